#include "lib/directory.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

void DirCloser::operator()(DIR* dp) const {
  const int error = errno;
  (void)closedir(dp);  // fails for an invalid stream only
  errno = error;
}

Dir open_directory(int at, const char* name) {
  const int fd = openat(at, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (fd < 0) return nullptr;
  Dir dir(fdopendir(fd));  // the stream owns the descriptor from now on
  if (!dir) {
    const int error = errno;
    (void)close(fd);  // nothing was written
    errno = error;
  }
  return dir;
}

const dirent* next_entry(DIR* dp) {
  const auto is_dot = [](const char* name) {
    return strcmp(name, ".") == 0 || strcmp(name, "..") == 0;
  };
  const dirent* entry;
  do {
    errno = 0;
    // Re-entrant as long as one thread reads one stream.
    entry = readdir(dp);
  } while (entry && is_dot(entry->d_name));
  return entry;
}

bool is_directory(int at, const dirent& entry) {
  if (entry.d_type != DT_UNKNOWN) return entry.d_type == DT_DIR;
  struct stat st;
  return fstatat(at, entry.d_name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(st.st_mode);
}
