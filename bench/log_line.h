#pragma once

#include <cstring>

// The line of the log that the benchmark and its floor write: both the same text.

namespace bench {

constexpr int kLogLines = 5000;  // well below 1 MiB, where the launcher's log would be rotated
constexpr const char* kCopyFrom = "/usr/share/doc/readme";
constexpr const char* kCopyTo = "/home/user/readme";

// Whether the job on the command line wants lines that are written; or filtered out.
inline bool wants_lines_written(char** argv) { return strcmp(argv[1], "written") == 0; }

}  // namespace bench
