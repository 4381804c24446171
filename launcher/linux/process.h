#pragma once

#include <sys/types.h>

#include <cstdint>
#include <ctime>

#include "ustring/ustring.h"

// Telling a process from another that gets the same number when the first has gone. Everything
// here is what /proc says at the moment; any thread.

struct ProcessInfo {
  // Clock ticks from the system's start to the process's. No two processes share both this and
  // the number.
  uint64_t start = 0;
  // Nothing of it runs any more: all it still does is wait for its parent to ask how it ended.
  bool ended = false;
};

// Takes `info` from the content of a file "stat" of /proc. -1 with `info` untouched when it is
// not of that form.
[[nodiscard]] int ParseProcessStat(const ustring& text, ProcessInfo& info);

// Looks the process `pid` up. -1 with `info` untouched when the system does not tell: there is no
// such process, it is hidden from the user, or /proc is not there.
[[nodiscard]] int GetProcessInfo(pid_t pid, ProcessInfo& info);

// Whether a process that started at `start` did so more than two seconds after the time
// `written`, a file's. Both ages are counted back from now, so a clock that was set while neither
// was there makes no difference. One that was set in between does: forward, it makes the file look
// older than it is, and back, younger.
bool IsStartedAfter(uint64_t start, time_t written);

// Whether the program that `pid` runs lies, or lay before it was removed, below the directory
// `dir`; links on the way to `dir` are followed. For a script that program is its interpreter.
bool IsProgramBelow(pid_t pid, const ustring& dir);
