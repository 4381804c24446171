#include "lib/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>
#include <utime.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "lib/directory.h"
#include "lib/log.h"
#include "lib/remove-tree.h"
#include "lib/tmp_name_gen.h"

namespace {

const ustring kComponent("file_op_debug");

constexpr uid_t kUnsetUid = static_cast<uid_t>(-1);
constexpr gid_t kUnsetGid = static_cast<gid_t>(-1);
constexpr mode_t kDefaultMode = static_cast<mode_t>(-1);

// Owner and group of new directories; set once by FSInitialize.
uid_t g_uid = kUnsetUid;
gid_t g_gid = kUnsetGid;

constexpr int kCopyBuffer = 33554432;   // bytes; one buffer of 32 MiB for each copy
constexpr size_t kCopySlice = 262144;   // bytes moved at once: what stays in the cache
constexpr size_t kPageSize = 4096;      // bytes; only speed depends on it
constexpr size_t kTemplateSize = 4096;  // bytes of a mkstemp template
constexpr size_t kRealPathSize = 8192;  // bytes of a resolved path

// File-system types, from the statfs manual page.
constexpr uint32_t kNfsMagic = 0x6969;
constexpr uint32_t kCifsMagic = 0xFF534D42;
constexpr uint32_t kMsdosMagic = 0x4D44;

// Owns a file descriptor. Closing keeps errno, so a failing function can just return.
class Descriptor {
 public:
  explicit Descriptor(int fd) : m_fd(fd) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  bool is_open() const { return m_fd >= 0; }
  int get() const { return m_fd; }
  int release() { return std::exchange(m_fd, -1); }

  void close() {
    if (m_fd < 0) return;
    const int error = errno;
    // What was written has been synced by then; there is nothing left to lose.
    (void)::close(release());
    errno = error;
  }

 private:
  int m_fd;
};

struct Freer {
  void operator()(void* p) const { free(p); }
};

// Clears the process umask while a mode is to be applied exactly.
class UmaskGuard {
 public:
  explicit UmaskGuard(bool exact) : m_exact(exact), m_old(exact ? umask(0) : 0) {}
  ~UmaskGuard() {
    if (m_exact) (void)umask(m_old);  // cannot fail; returns the 0 set above
  }
  UmaskGuard(const UmaskGuard&) = delete;
  UmaskGuard& operator=(const UmaskGuard&) = delete;

 private:
  const bool m_exact;
  const mode_t m_old;
};

// FT_ERR for a type that has no name here.
FILE_TYPE type_of_mode(mode_t mode) {
  switch (mode & S_IFMT) {
    case S_IFREG: return FT_FILE;
    case S_IFDIR: return FT_DIR;
    case S_IFCHR:
    case S_IFBLK: return FT_DEV;
    case S_IFLNK: return FT_SLINK;
    case S_IFIFO: return FT_FIFO;
    case S_IFSOCK: return FT_SOCK;
    default: return FT_ERR;
  }
}

// A file system need not support syncing (a pipe or a device does not): that is no loss.
bool sync_descriptor(int fd) { return fsync(fd) == 0 || errno == EINVAL || errno == EROFS; }

int write_error() {
  Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] file-op(%d): CopyFile: write: %s (%d)\n",
                 __LINE__, strerror(errno), errno);
  return errno == ENOSPC ? -2 : -1;
}

// Copies what is left of `in` to `out` through `buffer`, kCopySlice bytes long or more.
int copy_content(int in, int out, char* buffer) {
  for (;;) {
    const ssize_t count = TEMP_FAILURE_RETRY(read(in, buffer, kCopySlice));
    if (count < 0) {
      Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] file-op(%d): CopyFile: read: %s (%d)\n",
                     __LINE__, strerror(errno), errno);
      return -1;
    }
    if (count == 0) return 0;
    for (ssize_t done = 0; done < count;) {
      const ssize_t written = TEMP_FAILURE_RETRY(write(out, buffer + done, count - done));
      if (written < 1) return write_error();
      done += written;
    }
  }
}

int copy_through_buffer(int in, int out) {
  // Only the pages that are touched cost anything, and those are the slice's. On the start of a
  // page, because the processor moves what is aligned nearly twice as fast.
  const std::unique_ptr<char, Freer> buffer(
      static_cast<char*>(aligned_alloc(kPageSize, kCopyBuffer)));
  if (buffer) return copy_content(in, out, buffer.get());
  Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] file-op(%d): FSCopy: malloc(%d): %s (%d)\n",
                 __LINE__, kCopyBuffer, strerror(errno), errno);
  return -1;
}

int open_error(const ustring& path) {
  Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n",
                 __LINE__, path.c_str(), strerror(errno), errno);
  return -1;
}

Descriptor open_for_copy(const ustring& path, int flags) {
  const int fd = TEMP_FAILURE_RETRY(open(path.c_str(), flags | O_CLOEXEC, 0666));
  if (fd < 0) (void)open_error(path);
  return Descriptor(fd);
}

bool same_object(const struct stat& a, const struct stat& b) {
  return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Empties `out` as opening it for a copy of `in` would: 0; 1 when both are one object, which is
// left alone; -1 on failure.
int empty_for_copy(int in, int out) {
  struct stat from;
  struct stat to;
  if (fstat(in, &from) != 0 || fstat(out, &to) != 0) return -1;
  if (same_object(from, to)) return 1;
  // Nothing but a file has a length; a new one has none yet.
  if (!S_ISREG(to.st_mode) || to.st_size == 0) return 0;
  return TEMP_FAILURE_RETRY(ftruncate(out, 0)) == 0 ? 0 : -1;
}

// Makes `prefix` a directory; `last` says that it is the whole path. See FSMKDirP.
int make_component(const char* prefix, bool last, bool force, mode_t mode) {
  struct stat st;
  if (stat(prefix, &st) == 0) {
    if (S_ISDIR(st.st_mode)) return 0;
    if (!force) {
      errno = last ? EEXIST : ENOTDIR;
      return -1;
    }
    // When it cannot be removed, the mkdir below fails and tells.
    (void)remove(prefix);
  }
  if (mkdir(prefix, mode) != 0) return -1;
  if (g_uid != kUnsetUid || g_gid != kUnsetGid) {
    // As with FSChown: only root may give directories away.
    (void)!chown(prefix, g_uid == kUnsetUid ? geteuid() : g_uid,
                 g_gid == kUnsetGid ? getegid() : g_gid);
  }
  return 0;
}

// Reads `dir` to its end and closes it, so that a walk holds no descriptor for each level; errno
// is 0 unless the reading failed.
std::vector<std::pair<std::string, bool>> read_entries(Dir dir) {
  std::vector<std::pair<std::string, bool>> entries;  // name, is a directory
  while (const dirent* const entry = next_entry(dir.get())) {
    // The stream's word alone: an entry of unknown type is no directory.
    entries.emplace_back(entry->d_name, entry->d_type == DT_DIR);
  }
  return entries;
}

int move_directory(const ustring& from, const ustring& to, bool do_case_check) {
  if (FSMKDir(to, true) != 0) return -3;
  struct stat source;
  struct stat target;
  if (stat(from.c_str(), &source) != 0 || stat(to.c_str(), &target) != 0) return -3;
  // One directory under two names: it is where it shall be, and must not be removed.
  if (same_object(source, target)) {
    errno = EEXIST;
    return -3;
  }
  Dir dir(opendir(from.c_str()));
  if (!dir) return -3;
  const auto entries = read_entries(std::move(dir));
  for (const auto& [name, is_dir] : entries) {
    const ustring child = "/" + ustring(name);
    if (FSRename(from + child, to + child, do_case_check) != 0) return -3;
  }
  return remove(from.c_str()) == 0 ? 0 : -3;
}

FILE_TYPE type_of_entry(unsigned char d_type) {
  return type_of_mode(DTTOIF(d_type));  // DT_UNKNOWN is 0 and has no name either
}

}  // namespace

bool operator==(const FILE_INFO& a, const FILE_INFO& b) {
  return a.isExist == b.isExist && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
         a.path == b.path && a.name == b.name;
}

bool operator!=(const FILE_INFO& a, const FILE_INFO& b) { return !(a == b); }

_DIR_HANDLE_tag::~_DIR_HANDLE_tag() { FSCloseDir(*this); }

void FSInitialize(uid_t u, gid_t g) {
  g_uid = u;
  g_gid = g;
}

void FSChown(const ustring& path) {
  (void)!chown(path.c_str(), g_uid, g_gid);  // only root may give files away
}

int FSInit(const ustring& /*path*/) { return 0; }

bool IsFileExist(const ustring& path, bool /*do_case_check*/) {
  return !path.empty() && access(path.c_str(), F_OK) == 0;
}

int GetFileInfo(const ustring& path, FILE_INFO& info) {
  struct stat st = {};
  FILE_TYPE type = FT_FILE;
  const bool exists = lstat(path.c_str(), &st) == 0;
  if (exists) {
    type = type_of_mode(st.st_mode);
    if (type == FT_ERR) return -1;
  } else if (errno != ENOENT) {
    return -1;
  }

  info.isExist = exists;
  info.mtime = static_cast<uint32_t>(exists ? st.st_mtime : time(nullptr));
  info.path = path;
  info.size = static_cast<uint64_t>(st.st_size);
  info.type = type;
  info.uid = st.st_uid;
  info.gid = st.st_gid;
  info.mode = st.st_mode;
  return 0;
}

int FSStat(const ustring& path, FILE_INFO& info, bool /*do_case_check*/) {
  if (path.empty()) return -1;
  return GetFileInfo(path, info) == 0 ? 0 : -2;
}

int FSCopy(const ustring& src, const ustring& dst, bool isDelOrigin) {
  Descriptor in = open_for_copy(src, O_RDONLY);
  if (!in.is_open()) return -1;
  // Emptied only below: it may be the source under another name.
  const Descriptor out = open_for_copy(dst, O_WRONLY | O_CREAT);
  if (!out.is_open()) return -1;
  const int emptied = empty_for_copy(in.get(), out.get());
  if (emptied < 0) return open_error(dst);
  const bool itself = emptied == 1;

  const int result = itself ? 0 : copy_through_buffer(in.get(), out.get());
  // Before the source goes: the disk may turn out to be full or broken only now.
  const int error = errno;
  if (!sync_descriptor(out.get())) {
    if (result == 0) return write_error();
  }
  errno = error;
  if (result != 0 || !isDelOrigin) return result;

  if (itself) {
    errno = EEXIST;
    return -1;
  }
  in.close();
  return remove(src.c_str()) == 0 ? 0 : -1;
}

int FSMKDir(const ustring& path, bool isCreateParent) {
  if (path.empty()) return -1;
  FILE_INFO info;
  if (GetFileInfo(path, info) != 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] file-op(%d): FSMKDir: Failed to to file info '%s'\n", __LINE__,
                   path.c_str());
    return -1;
  }
  if (info.isExist) {
    if (info.type == FT_DIR) return 0;
    Logger::LogMsg(
        Logger::L_ERR, kComponent,
        "[ERROR] file-op(%d): FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
        __LINE__, path.c_str(), static_cast<int>(info.type));
    return -1;
  }
  const int made =
      isCreateParent ? FSMKDirP(path, nullptr, false, kDefaultMode) : mkdir(path.c_str(), 0777);
  if (made != 0) return -2;
  FSChown(path);
  return 0;
}

int FSMKDirP(const ustring& path, char** endptr, bool blForceCreate, mode_t mode) {
  if (path.empty()) return -1;
  const bool exact = mode != kDefaultMode;
  const UmaskGuard guard(exact);

  std::string walked(path.c_str());
  const size_t length = walked.size();
  size_t end = 0;
  int result = 0;
  while (result == 0 && end < length) {
    // From the second byte on, so that a leading "/" stays part of the first component.
    end = std::min(walked.find('/', end + 1), length);
    const char separator = std::exchange(walked[end], '\0');
    result = make_component(walked.c_str(), end == length, blForceCreate, exact ? mode : 0777);
    walked[end] = separator;
  }
  if (endptr) *endptr = const_cast<char*>(path.c_str()) + (result == 0 ? length - 1 : end);
  return result;
}

int FSRenameWhole(const ustring& from, const ustring& to) {
  if (from.empty() || to.empty()) return -1;
  FILE_INFO info;
  if (FSStat(from, info, false) != 0 || !info.isExist) return -2;
  if (rename(from.c_str(), to.c_str()) == 0) return 0;
  return errno == ENAMETOOLONG ? -100 : -3;
}

int FSRename(const ustring& from, const ustring& to, bool do_case_check) {
  const int whole = FSRenameWhole(from, to);
  if (whole != -3 || errno != EXDEV) return whole;

  FILE_INFO info;
  if (FSStat(from, info, do_case_check) != 0) return -2;
  switch (info.type) {
    case FT_FILE: return FSCopy(from, to, true) < 0 ? -3 : 0;
    case FT_DIR: return move_directory(from, to, do_case_check);
    // Meant: what cannot be copied stays behind, and quietly.
    default: return 0;
  }
}

int FSRemove(const ustring& path, bool /*allowundo*/) {
  if (path.empty()) return -1;
  FILE_INFO info;
  if (GetFileInfo(path, info) != 0) return -1;
  if (!info.isExist) return 0;
  if (info.type == FT_DIR) return remove_tree(path.c_str());
  // Gone meanwhile is as good as removed.
  return remove(path.c_str()) == 0 || errno == ENOENT ? 0 : -3;
}

void FSMakeRemovable(const ustring& path) { make_tree_removable(path.c_str()); }

int FSSync(const ustring& path) {
  const Descriptor fd(TEMP_FAILURE_RETRY(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)));
  if (fd.is_open() && syncfs(fd.get()) == 0) return 0;
  if (fd.is_open() && errno == ENOSYS) {
    // Not refused but not there, by the kernel or a sandbox: sync() waits for all file systems.
    sync();
    return 0;
  }
  Logger::LogMsg(Logger::L_ERR, kComponent,
                 "[ERROR] file-op(%d): FSSync: Failed to sync the file system of '%s'. %s\n",
                 __LINE__, path.c_str(), strerror(errno));
  return -1;
}

void FSStartSync(const ustring& path) {
  const Descriptor fd(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (fd.is_open()) (void)sync_file_range(fd.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
}

int FSMktemp(const ustring& prefix, ustring& path) {
  char name[kTemplateSize];
  // A prefix too long for the buffer ends in a template that mkstemp refuses.
  (void)snprintf(name, sizeof name, "%s/XXXXXX", prefix.c_str());
  const Descriptor fd(mkostemp(name, O_CLOEXEC));
  if (!fd.is_open()) {
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] file-op(%d): mkstemp(%s): %s\n", __LINE__,
                   (prefix + "/XXXXXX").c_str(), strerror(errno));
    return -1;
  }
  // An empty file: neither its durability nor its mode is worth failing for.
  (void)fsync(fd.get());
  (void)fchmod(fd.get(), 0644);
  path = name;
  return 0;
}

int TraverseDir(const ustring& dir, FN_ACT_TRAVERSE_DIR fn, void* pPriv) {
  if (dir.empty() || !fn) return -1;
  FILE_INFO info;
  if (GetFileInfo(dir, info) != 0 || !info.isExist || info.type != FT_DIR) return -1;
  Dir stream(opendir(dir.c_str()));
  if (!stream) return -2;
  if (fn(dir, pPriv) != 0) return -2;

  const auto entries = read_entries(std::move(stream));
  const bool complete = errno == 0;
  for (const auto& [name, is_dir] : entries) {
    const ustring child = dir + "/" + name;
    if ((is_dir ? TraverseDir(child, fn, pPriv) : fn(child, pPriv)) != 0) return -2;
  }
  return complete ? 0 : -2;
}

int FSUTime(const ustring& path, time_t atime, time_t mtime) {
  const utimbuf times = {atime, mtime};
  return utime(path.c_str(), &times) == 0 ? 0 : -1;
}

int FSCreateTempPath(const ustring& prefix, ustring& path) {
  path = TmpNameGen::getInstance().getTmpPath(prefix);
  return path.empty() ? -1 : 0;
}

int FSOpenDir(const ustring& path, int flag, DIR_HANDLE& dh) {
  DIR* const dp = opendir(path.c_str());
  if (!dp) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] file-op(%d): FSOpenDir: Failed to open directory '%s'. %s\n", __LINE__,
                   path.c_str(), strerror(errno));
    return -1;
  }
  dh.dp = dp;
  dh.path = path;
  dh.flag = flag;
  return 0;
}

int FSReadDir(DIR_HANDLE& dh, DIR_ENTRY& entry) {
  errno = 0;
  const dirent* const read = readdir(dh.dp);
  if (!read) {
    if (errno == 0) return 0;
    // Meant: this message and the next name the opening of the directory.
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] file-op(%d): FSOpenDir: Failed to read directory '%s'. %s\n", __LINE__,
                   dh.path.c_str(), strerror(errno));
    return -1;
  }

  FILE_INFO info;
  if (dh.flag & 1) {
    const ustring path = dh.path + "/" + read->d_name;
    if (FSStat(path, info, false) != 0) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] file-op(%d): FSOpenDir: Failed to get info for '%s'\n", __LINE__,
                     path.c_str());
      return -1;
    }
  }
  entry.name = read->d_name;
  entry.type = type_of_entry(read->d_type);
  entry.mtime = info.mtime;
  entry.size = info.size;
  return 1;
}

void FSCloseDir(DIR_HANDLE& dh) {
  DirCloser close;
  if (dh.dp) close(dh.dp);
  dh.dp = nullptr;
  dh.path.clear();
}

bool FSTimeEqual(time_t a, time_t b) { return a == b; }

bool isFileLocked(const ustring& path, int flag) {
  return access(path.c_str(), flag) != 0 && (errno == EPERM || errno == EACCES);
}

bool isMountPoint(const ustring& path) {
  struct statfs fs;
  if (statfs(path.c_str(), &fs) != 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] file-op(%d): isMountPoint: Failed to get file system info '%s'. %s\n",
                   __LINE__, path.c_str(), strerror(errno));
    return false;
  }
  const auto type = static_cast<uint32_t>(fs.f_type);
  return type == kNfsMagic || type == kCifsMagic;
}

bool IsMSDOS(const ustring& path) {
  struct statfs fs;
  if (statfs(path.c_str(), &fs) != 0) {
    // Meant: the message names the operation that this test serves.
    Logger::LogMsg(
        Logger::L_ERR, kComponent,
        "[ERROR] file-op(%d): IsSupportLargeFile: Failed to get file system info '%s'. %s\n",
        __LINE__, path.c_str(), strerror(errno));
    return false;
  }
  if (static_cast<uint32_t>(fs.f_type) != kMsdosMagic) return false;
  Logger::LogMsg(Logger::L_WARNING, kComponent,
                 "[WARNING] file-op(%d): Detect a MSDOS platform for path '%s'.\n", __LINE__,
                 path.c_str());
  return true;
}

int FSGetRealPath(ustring& path) {
  static_assert(kRealPathSize >= PATH_MAX, "realpath writes up to PATH_MAX bytes");
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] file-op(%d):  org path [%s]\n", __LINE__,
                 path.c_str());
  char resolved[kRealPathSize];
  if (!realpath(path.c_str(), resolved)) return -1;
  path = resolved;
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] file-op(%d):  get full path [%s]\n",
                 __LINE__, path.c_str());
  return 0;
}
