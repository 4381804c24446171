#include "lib/remove-tree.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "lib/directory.h"

namespace {

// Deeper than the trees that occur, so that these are never opened twice.
constexpr size_t kMaxOpen = 16;

// A directory on the way from the root of the tree to where the walk is.
struct Level {
  std::string name;  // in the directory above; the whole path for the first
  Dir dir;           // null while closed
  dev_t device = 0;  // what was closed, to know it again
  ino_t inode = 0;
  bool progress = false;             // something was removed since its reading began
  int readings = 0;                  // how often it has been read to its end
  std::vector<std::string> pending;  // its directories that are still to be visited
};

// How often a directory is read again. Streams that miss entries need a few times; where a name
// comes back whenever it is removed (a file that somebody holds, on some network file systems),
// it would go on for ever.
constexpr int kMaxReadings = 256;

// The way down. The lowest levels are open, those further up are closed and opened again by way
// of "..", which costs the same at any depth.
class Descent {
 public:
  bool is_over() const { return m_levels.empty(); }
  Level& current() { return m_levels.back(); }
  // The current directory, and the one above it once reach_parent() has succeeded.
  int at() const { return descriptor(m_levels.size()); }
  int parent() const { return descriptor(m_levels.size() - 1); }

  // Goes down to the directory `name` of the current one, at first to the path `name`.
  bool enter(const char* name) {
    Dir dir = open_directory(at(), name);
    // Others need descriptors, too: the walk makes do with two.
    while (!dir && (errno == EMFILE || errno == ENFILE) && close_uppermost()) {
      dir = open_directory(at(), name);
    }
    if (!dir) return false;
    m_levels.emplace_back();
    current().name = name;
    current().dir = std::move(dir);
    if (m_levels.size() - m_open > kMaxOpen) (void)close_uppermost();  // else one more is open
    return true;
  }

  // Opens the directory above again where that is needed; false when it is not to be had, or is
  // not the one that the walk came through, because the current one was moved.
  bool reach_parent() {
    if (m_levels.size() < 2) return true;
    Level& above = m_levels[m_levels.size() - 2];
    if (above.dir) return true;
    Dir dir = open_directory(at(), "..");
    struct stat st;
    if (!dir || fstat(dirfd(dir.get()), &st) != 0) return false;
    if (st.st_dev != above.device || st.st_ino != above.inode) {
      errno = ESTALE;
      return false;
    }
    above.dir = std::move(dir);
    --m_open;
    return true;
  }

  // Goes back up, after reach_parent().
  void leave() { m_levels.pop_back(); }

 private:
  int descriptor(size_t level) const {
    return level == 0 ? AT_FDCWD : dirfd(m_levels[level - 1].dir.get());
  }

  // Never closes the current directory.
  bool close_uppermost() {
    if (m_levels.size() < m_open + 2) return false;
    Level& level = m_levels[m_open];
    struct stat st;
    if (fstat(dirfd(level.dir.get()), &st) != 0) return false;
    level.device = st.st_dev;
    level.inode = st.st_ino;
    level.dir.reset();
    ++m_open;
    return true;
  }

  std::vector<Level> m_levels;
  size_t m_open = 0;  // the first level that is open
};

// Removes the current directory, which has been read to its end, and goes up. When it is not
// empty after all, it is read again as long as that gets on: a stream may miss entries while
// others are removed (some file systems count positions), or break off.
bool remove_current(Descent& descent) {
  if (!descent.reach_parent()) return false;
  Level& here = descent.current();
  if (unlinkat(descent.parent(), here.name.c_str(), AT_REMOVEDIR) == 0 || errno == ENOENT) {
    descent.leave();
    if (!descent.is_over()) descent.current().progress = true;
    return true;
  }
  if ((errno != ENOTEMPTY && errno != EEXIST) || !here.progress) return false;
  if (++here.readings > kMaxReadings) return false;
  here.progress = false;
  rewinddir(here.dir.get());
  return true;
}

// Gives the owner all rights to the directory `fd`. By way of its link in /proc where it could
// not be opened for reading: nothing else changes the mode of exactly the object that was looked
// at.
bool grant(int fd, bool readable) {
  struct stat st;
  if (fstat(fd, &st) != 0) return false;
  if ((st.st_mode & S_IRWXU) == S_IRWXU) return true;
  const mode_t mode = (st.st_mode | S_IRWXU) & 07777;
  if (readable) return fchmod(fd, mode) == 0;
  char link[32];
  (void)snprintf(link, sizeof link, "/proc/self/fd/%d", fd);  // fits
  return chmod(link, mode) == 0;
}

bool grant_unreadable(int at, const char* name) {
  const int fd = openat(at, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (fd < 0) return false;
  const bool granted = grant(fd, false);
  (void)close(fd);  // nothing was written
  return granted;
}

// Goes down to `name`, makes it accessible and notes the directories in it.
void visit(Descent& descent, const char* name) {
  if (!descent.enter(name) &&
      (errno != EACCES || !grant_unreadable(descent.at(), name) || !descent.enter(name))) {
    return;
  }
  (void)grant(descent.at(), true);  // best effort
  Level& here = descent.current();
  while (const dirent* const entry = next_entry(here.dir.get())) {
    if (is_directory(descent.at(), *entry)) here.pending.emplace_back(entry->d_name);
  }
}

}  // namespace

int remove_tree(const char* path) {
  Descent descent;
  // Meant: a directory that cannot be opened stays, and is no failure by itself; the directory
  // above then fails, because it is not empty.
  if (!descent.enter(path)) return 0;
  while (!descent.is_over()) {
    const dirent* const entry = next_entry(descent.current().dir.get());
    if (!entry) {
      if (!remove_current(descent)) return -3;
    } else if (is_directory(descent.at(), *entry)) {
      (void)descent.enter(entry->d_name);  // as above
    } else if (unlinkat(descent.at(), entry->d_name, 0) == 0) {
      descent.current().progress = true;
    } else if (errno != ENOENT) {
      return -3;
    }
  }
  return 0;
}

void make_tree_removable(const char* path) {
  Descent descent;
  visit(descent, path);
  while (!descent.is_over()) {
    std::vector<std::string>& pending = descent.current().pending;
    if (pending.empty()) {
      if (!descent.reach_parent()) return;
      descent.leave();
    } else {
      const std::string name = std::move(pending.back());
      pending.pop_back();
      visit(descent, name.c_str());
    }
  }
}
