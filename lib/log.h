#pragma once

#include <pthread.h>

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <map>

#include "ustring/ustring.h"

// Lets the compiler check a message's arguments against its format: the positions of the
// format and of the first argument among the parameters, counted from 1, the second 0 for
// a va_list.
#define LOG_PRINTF_FORMAT(fmt, first) __attribute__((format(printf, fmt, first)))

// The process-wide diagnostic log.
//
// A message names a component (a short word such as "service_debug") and a level;
// it is written when its level is at most the component's threshold. Thresholds come
// from the level file, one line `component=threshold` each; a component without a
// line has threshold 4 (L_WARNING).
//
// The whole line stands in the format, which is always one literal:
//
//   Logger::LogMsg(Logger::L_DEBUG, "service_debug",
//                  "[DEBUG] cloud-service(%d): copy from '%s' to '%s'\n", __LINE__, ...);
//
// The tag matches the level ([DEBUG], [INFO], [NOTE], [WARNING], [ERROR]); the source
// line is the first argument. Messages that support looks for by their number carry a fixed
// one instead. The logger adds a time stamp and nothing else, and
// flushes every line, so a crash loses nothing already logged. Write errors are not
// reported: a full disk must not stop the launcher.
//
// Any thread may log. Initialize() and Destroy() belong to the main thread while no
// other thread logs.
class Logger {
 public:
  using xchar = char;  // formats and texts are UTF-8

  enum Type {
    ANDROID_LOGGER = 0,  // another platform's log; here: standard error, no time stamp
    SYSLOG_LOGGER = 1,
    STDOUT_LOGGER = 2,
    STDERR_LOGGER = 3,
    FILE_LOGGER = 4,  // appended to, rotated past 1 MiB
  };

  // The severities of the system log.
  enum Level {
    L_EMERG = 0,
    L_ALERT = 1,
    L_CRIT = 2,
    L_ERR = 3,
    L_WARNING = 4,
    L_NOTICE = 5,
    L_INFO = 6,
    L_DEBUG = 7,
  };

  // Chooses the sink and loads the thresholds from the level file at `level_path`
  // (may be empty; a missing or malformed file gives no thresholds). Thresholds of an
  // earlier call stay unless overridden. `path`, the log file, and `count`, the number of
  // rotation files, are for FILE_LOGGER only.
  // Returns 0, or -1 when a file sink's path is empty, cannot be opened or is neither a file
  // nor a character device (which is never rotated, and no more waited for than the others);
  // the earlier stream then stays in use, under the new type.
  [[nodiscard]] static int Initialize(Type type, const ustring& path, const ustring& level_path,
                                      int count);

  // Writes one message; errno stays as it was. Before Initialize() messages of levels
  // 0 to 4 go to standard error without a time stamp.
  static void LogMsg(Level level, const ustring& comp, const xchar* fmt, ...)
      LOG_PRINTF_FORMAT(3, 4);

  // The same; leaves `args` indeterminate, as vfprintf does.
  static void LogMsg2(Level level, const ustring& comp, const xchar* fmt, va_list args)
      LOG_PRINTF_FORMAT(3, 0);

  // Moves the log file to number 0, every numbered file one up, and opens a fresh log
  // file. With a count of N numbers 0 to N-2 survive (number 0 always does).
  // Returns 0, or -1 when the log file cannot be renamed or opened anew: the sink is
  // then closed and later messages are dropped.
  // Called by the writers with the lock held.
  [[nodiscard]] static int Rotate();

  // Closes a file sink and returns to the state before Initialize(), thresholds
  // included.
  static void Destroy();

 private:
  static bool IsWanted(Level level, const ustring& comp);
  static int Emit(const xchar* fmt, va_list args) LOG_PRINTF_FORMAT(1, 0);

  // All of these are guarded by log_lock once Initialize() has returned.
  static std::map<ustring, int> log_level;  // thresholds by component
  static Type log_type;
  static FILE* log_fp;      // owned when log_path is not empty
  static int32_t log_size;  // bytes on the file since opening or rotation; -1: never rotated
  static int32_t rotate_cnt;
  static ustring log_path;
  static pthread_mutex_t log_lock;
};

// LogMsg2 for callers that have no ustring. `level` is a Logger::Level.
extern "C" void LogMSG_c(int level, char* comp, const Logger::xchar* fmt, va_list args)
    LOG_PRINTF_FORMAT(3, 0);
