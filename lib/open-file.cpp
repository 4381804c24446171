#include "lib/open-file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

int open_file(const char* path, int flags, bool* is_device) {
  const int fd = TEMP_FAILURE_RETRY(open(path, flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666));
  if (fd < 0) return -1;
  struct stat st;
  if (fstat(fd, &st) == 0) {
    const bool device = is_device && S_ISCHR(st.st_mode);
    if (is_device) *is_device = device;
    if (device || S_ISREG(st.st_mode)) return fd;
  }
  (void)close(fd);  // nothing was written
  errno = EINVAL;
  return -1;
}
