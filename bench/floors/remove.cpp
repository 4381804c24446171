// Floor of removal: the leanest remover of a directory tree by paths.
//
//   floor_remove DIR

#include <dirent.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "bench/stopwatch.h"

namespace {

bool remove_tree(std::string& path) {
  DIR* const dir = opendir(path.c_str());
  if (!dir) return false;
  const size_t length = path.size();
  bool removed = true;
  while (const dirent* const entry = removed ? readdir(dir) : nullptr) {
    if (strcmp(entry->d_name, ".") == 0 || strcmp(entry->d_name, "..") == 0) continue;
    path.append("/").append(entry->d_name);
    removed = entry->d_type == DT_DIR ? remove_tree(path) : unlink(path.c_str()) == 0;
    path.resize(length);
  }
  return closedir(dir) == 0 && removed && rmdir(path.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  std::string path = argv[1];
  const bench::Stopwatch watch;
  if (!remove_tree(path)) return 1;
  bench::print_result(watch.nanoseconds());
  return 0;
}
