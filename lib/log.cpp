#include "lib/log.h"

#include <fcntl.h>
#include <stdio_ext.h>
#include <syslog.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <ctime>
#include <sstream>

#include "lib/config.h"
#include "lib/open-file.h"

namespace {

constexpr int kDefaultThreshold = Logger::L_WARNING;
constexpr int32_t kMaxLogSize = 1048576;  // bytes; a log file past this is rotated
constexpr size_t kMaxStamp = 512;         // bytes of a time stamp
constexpr size_t kMaxName = 1024;         // bytes of a rotation file's name

// The lock on the log, held without thread cancellation: a thread cancelled inside
// would leave the log locked for good. One that was cancelled meanwhile, and is to end at
// once wherever it may be, ends when the state is restored: by unwinding from the
// destructor, which has unlocked by then.
class LogLock {
 public:
  // Neither call can fail here: the state is a valid one, the mutex is statically
  // initialised and never locked twice by a thread.
  explicit LogLock(pthread_mutex_t& mutex) : m_mutex(mutex) {
    (void)pthread_setcancelstate(PTHREAD_CANCEL_DISABLE, &m_state);
    (void)pthread_mutex_lock(&m_mutex);
  }
  ~LogLock() noexcept(false) {
    (void)pthread_mutex_unlock(&m_mutex);
    (void)pthread_setcancelstate(m_state, nullptr);
  }
  LogLock(const LogLock&) = delete;
  LogLock& operator=(const LogLock&) = delete;

 private:
  pthread_mutex_t& m_mutex;
  int m_state = PTHREAD_CANCEL_ENABLE;
};

// Keeps errno over a log call, so that callers can report a failure and still return it.
class SavedErrno {
 public:
  SavedErrno() = default;
  ~SavedErrno() { errno = m_errno; }
  SavedErrno(const SavedErrno&) = delete;
  SavedErrno& operator=(const SavedErrno&) = delete;

 private:
  const int m_errno = errno;
};

// The current local time as "%b %d %H:%M:%S ". Called with the lock held: lines come in
// bursts, so the text of the last second is kept.
const char* time_stamp() {
  static char stamp[kMaxStamp];
  static time_t stamped = -1;
  const time_t now = time(nullptr);
  if (now != stamped) {
    tm local;
    if (!localtime_r(&now, &local) ||
        strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", &local) == 0) {
      stamp[0] = '\0';
    }
    stamped = now;
  }
  return stamp;
}

// The name of rotation file `number`, cut at kMaxName bytes.
ustring numbered(const ustring& path, int number) {
  char name[kMaxName];
  const int length = snprintf(name, sizeof name, "%s_%d", path.c_str(), number);
  return length < 0 ? ustring() : ustring(name);
}

// Opens `path` for appending; null on failure. What the file holds already does not count
// towards its rotation, so `size` becomes 0; -1 for a device, which is never rotated.
FILE* open_log(const ustring& path, int32_t& size) {
  bool is_device = false;
  const int fd = open_file(path.c_str(), O_WRONLY | O_APPEND | O_CREAT, &is_device);
  if (fd < 0) return nullptr;
  FILE* const fp = fdopen(fd, "a");
  if (!fp) (void)close(fd);  // nothing was written
  size = is_device ? -1 : 0;
  return fp;
}

// Every line was flushed when it was written; closing has nothing left to fail at.
void close_flushed(FILE* fp) {
  if (fp) (void)fclose(fp);
}

}  // namespace

std::map<ustring, int> Logger::log_level;
Logger::Type Logger::log_type = ANDROID_LOGGER;
FILE* Logger::log_fp = stderr;
int32_t Logger::log_size = -1;
int32_t Logger::rotate_cnt = 0;
ustring Logger::log_path;
pthread_mutex_t Logger::log_lock = PTHREAD_MUTEX_INITIALIZER;

int Logger::Initialize(Type type, const ustring& path, const ustring& level_path, int count) {
  log_level["default_component"] = kDefaultThreshold;
  if (!level_path.empty()) {
    Config levels;
    // A level file that is missing or malformed sets no thresholds.
    (void)levels.read(level_path);
    for (const auto& [component, text] : levels) {
      int threshold = 0;
      std::istringstream(text.c_str()) >> threshold;  // 0 where there is no number
      log_level[component] = threshold;
    }
  }

  log_type = type;
  FILE* const earlier = log_path.empty() ? nullptr : log_fp;  // a file of an earlier call
  if (type == SYSLOG_LOGGER || type == STDOUT_LOGGER || type == STDERR_LOGGER) {
    log_fp = type == SYSLOG_LOGGER ? nullptr : type == STDOUT_LOGGER ? stdout : stderr;
    log_path.clear();
    log_size = -1;
    close_flushed(earlier);
    return 0;
  }

  if (path.empty()) return -1;
  int32_t size = 0;
  FILE* const fp = open_log(path, size);
  if (!fp) return -1;
  log_fp = fp;
  log_size = size;
  log_path = path;
  rotate_cnt = count;
  close_flushed(earlier);
  return 0;
}

void Logger::Destroy() {
  if (!log_path.empty()) close_flushed(log_fp);
  log_level.clear();
  log_type = ANDROID_LOGGER;
  log_fp = stderr;
  log_size = -1;
  rotate_cnt = 0;
  log_path.clear();
}

void Logger::LogMsg(Level level, const ustring& comp, const xchar* fmt, ...) {
  va_list args;
  va_start(args, fmt);
  LogMsg2(level, comp, fmt, args);
  va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& comp, const xchar* fmt, va_list args) {
  const SavedErrno saved;
  const LogLock lock(log_lock);
  if (log_type != SYSLOG_LOGGER && !log_fp) return;  // closed by a failed rotation
  if (!IsWanted(level, comp)) return;
  const int written = Emit(fmt, args);
  if (log_type != FILE_LOGGER || log_size < 0 || written < 0) return;
  log_size += written;
  // A failed rotation has closed the log; there is nowhere left to report it.
  if (log_size > kMaxLogSize) (void)Rotate();
}

bool Logger::IsWanted(Level level, const ustring& comp) {
  // "default_component" is deliberately no fallback: raising it in the level file
  // leaves components without a line of their own at 4.
  const auto it = log_level.find(comp);
  return level <= (it == log_level.end() ? kDefaultThreshold : it->second);
}

// Returns the bytes that count towards rotation, negative when the write failed.
int Logger::Emit(const xchar* fmt, va_list args) {
  if (log_type == SYSLOG_LOGGER) {
    vsyslog(LOG_ERR, fmt, args);  // one priority for all, so that none is filtered out
    return 0;
  }
  if (log_type < SYSLOG_LOGGER || log_type > FILE_LOGGER) {
    (void)vfprintf(stderr, fmt, args);  // where would its failure be reported?
    return 0;
  }
  if (!log_fp) return 0;
  const char* const stamp = time_stamp();
  const bool stamped = fputs(stamp, log_fp) != EOF;
  const int text = vfprintf(log_fp, fmt, args);
  if (fflush(log_fp) == 0 && stamped && text >= 0) return static_cast<int>(strlen(stamp)) + text;
  // What a full disk refuses is lost: the stream would keep it, and put the middle of some line
  // in front of the next one that fits.
  if (log_type == FILE_LOGGER) __fpurge(log_fp);
  return -1;
}

int Logger::Rotate() {
  // The renames run before the removal, so the file that has just reached the last
  // number goes at once: N-1 files survive, not N. Older logs that cannot be moved or
  // removed are no reason to stop logging.
  for (int i = rotate_cnt - 2; i >= 0; --i) {
    (void)rename(numbered(log_path, i).c_str(), numbered(log_path, i + 1).c_str());
  }
  (void)remove(numbered(log_path, rotate_cnt - 1).c_str());

  close_flushed(log_fp);
  log_fp = nullptr;
  log_size = 0;
  if (rename(log_path.c_str(), numbered(log_path, 0).c_str()) != 0) return -1;
  log_fp = open_log(log_path, log_size);
  return log_fp ? 0 : -1;
}

extern "C" void LogMSG_c(int level, char* comp, const Logger::xchar* fmt, va_list args) {
  Logger::LogMsg2(static_cast<Logger::Level>(level), comp, fmt, args);
}
