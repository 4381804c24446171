// Extractor: nothing of an archive may land outside the target, but through a symbolic link
// that an earlier entry made, and nothing gets a set-id bit. The input describes the entries,
// which a real archive is made of first.
//
// Escapes through links do happen here, so started by root the harness mounts a small disk
// of its own and becomes an unprivileged user.

#include <archive.h>
#include <archive_entry.h>
#include <fuzzer/FuzzedDataProvider.h>
#include <sanitizer/lsan_interface.h>

#include <sched.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "launcher/extractor.h"
#include "tests/fuzz/expect.h"

namespace fs = std::filesystem;

namespace {

char root[] = "/dev/shm/fuzz-extractor.XXXXXX";
std::string sentinel, target, package;

bool holds_only(const std::string& dir, const std::string& path) {
  return fs::exists(path) && std::next(fs::directory_iterator(dir)) == fs::directory_iterator();
}

constexpr int kFormats[] = {ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FORMAT_TAR_PAX_INTERCHANGE,
                            ARCHIVE_FORMAT_CPIO_POSIX, ARCHIVE_FORMAT_CPIO_SVR4_NOCRC};
constexpr const char* kNames[] = {
    "INFO", "..",    "../up",  "a/../../up", "/abs",     "./x", "a",    "a/b",         "",   ".",
    "/",    "a//b/", "..\\up", "c:/x",       "\xff\xfe", "...", "a\nb", "/dev/shm/up", "._a"};
constexpr mode_t kTypes[] = {AE_IFREG, AE_IFREG, AE_IFDIR, AE_IFLNK,
                             AE_IFIFO, AE_IFCHR, AE_IFBLK, AE_IFSOCK};

std::string make_name(FuzzedDataProvider& in) {
  std::string name =
      in.ConsumeBool() ? in.PickValueInArray(kNames) : in.ConsumeRandomLengthString(40);
  if (in.ConsumeIntegralInRange(0, 15) == 0) name.append(in.ConsumeIntegralInRange(0, 5000), 'n');
  if (in.ConsumeIntegralInRange(0, 3) == 0) name += std::string("/") + in.PickValueInArray(kNames);
  return name;
}

// Returns whether an entry is a symbolic link.
bool write_package(FuzzedDataProvider in) {
  const __lsan::ScopedDisabler writers_leak;  // when the format refuses an entry
  archive* const writer = archive_write_new();
  (void)archive_write_set_format(writer, in.PickValueInArray(kFormats));  // the worst that
  (void)archive_write_open_filename(writer, package.c_str());  // failures leave is no archive
  bool links = false;
  for (int count = 0; in.remaining_bytes() > 0 && count < 20; ++count) {
    archive_entry* const entry = archive_entry_new();
    const mode_t type = in.PickValueInArray(kTypes);
    archive_entry_set_pathname(entry, make_name(in).c_str());
    archive_entry_set_mode(entry, type | in.ConsumeIntegralInRange(0, 07777));
    if (in.ConsumeIntegralInRange(0, 7) == 0)
      archive_entry_set_hardlink(entry, make_name(in).c_str());
    if (type == AE_IFLNK) archive_entry_set_symlink(entry, make_name(in).c_str());
    const std::string content = in.ConsumeRandomLengthString(100);
    archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
    if (archive_write_header(writer, entry) >= ARCHIVE_WARN)
      (void)archive_write_data(writer, content.data(), content.size());
    links |= archive_entry_symlink(entry) != nullptr;
    archive_entry_free(entry);
  }
  (void)archive_write_free(writer);
  return links;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  if (geteuid() == 0) {
    EXPECT(unshare(CLONE_NEWNS) == 0);
    EXPECT(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
    EXPECT(mount("none", "/dev/shm", "tmpfs", MS_NODEV | MS_NOSUID, "size=64m,mode=777") == 0);
    EXPECT(setgid(65534) == 0 && setuid(65534) == 0);  // nobody
    EXPECT(prctl(PR_SET_DUMPABLE, 1) == 0);            // the leak check traces the process
  }
  EXPECT(mkdtemp(root));
  (void)archive_read_free(archive_read_new());     // loads the library, whose names are used here
  EXPECT(setenv("PATH", "/nonexistent", 1) == 0);  // no helper programs for rare filters
  sentinel = std::string(root) + "/sentinel";
  target = sentinel + "/target";
  package = sentinel + ".qpk";
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  for (const auto& entry : fs::recursive_directory_iterator(root)) {  // entered after this
    if (!entry.is_symlink() && entry.is_directory()) fs::permissions(entry, fs::perms::owner_all);
  }
  for (const auto& entry : fs::directory_iterator(root)) fs::remove_all(entry);
  EXPECT(fs::create_directories(target));
  EXPECT(chdir(target.c_str()) == 0);  // link targets count from here
  const bool links = write_package({data, size});

  Extractor extractor;
  extractor.SetSource(package.c_str());
  extractor.SetTarget(target.c_str());
  const int result = extractor.Extract();
  EXPECT(result == 0 || result == -1);
  if (links) return 0;
  EXPECT(fs::remove(package) && holds_only(root, sentinel) && holds_only(sentinel, target));
  constexpr auto kSetId = fs::perms::set_uid | fs::perms::set_gid;
  constexpr auto kSkip = fs::directory_options::skip_permission_denied;
  for (const auto& entry : fs::recursive_directory_iterator(target, kSkip))
    EXPECT((entry.symlink_status().permissions() & kSetId) == fs::perms::none);
  return 0;
}
