#pragma once

#include <dirent.h>

#include <memory>

// Directory streams that close themselves, opened below a directory that is open already.
// errno is left as the failing call set it. Any thread; a stream belongs to one at a time.

struct DirCloser {
  void operator()(DIR* dp) const;  // keeps errno
};
using Dir = std::unique_ptr<DIR, DirCloser>;

// Opens the directory `name` in the directory `at` (AT_FDCWD for a path); null on failure, which
// a link as the last component is, too.
[[nodiscard]] Dir open_directory(int at, const char* name);

// The next entry but "." and "..", or null at the end (errno 0) and on an error. Valid until the
// stream is read or closed.
[[nodiscard]] const dirent* next_entry(DIR* dp);

// Whether `entry`, read from the directory `at`, is itself a directory. Asks the file system where
// the stream does not tell.
[[nodiscard]] bool is_directory(int at, const dirent& entry);
