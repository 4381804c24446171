// Extractor: nothing of an archive may land outside the target, but through a link that an
// earlier entry made, and nothing gets a set-id bit. With MAKE_ENTRIES the input describes
// entries, which a real archive is made of first; without, it is the archive.
//
// Escapes through links do happen here, so started by root the harness mounts a small disk
// of its own and becomes an unprivileged user.

#include <archive.h>
#include <archive_entry.h>
#include <fuzzer/FuzzedDataProvider.h>
#include <sanitizer/lsan_interface.h>

#include <fcntl.h>
#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "launcher/extractor.h"
#include "tests/fuzz/expect.h"

namespace fs = std::filesystem;

namespace {

constexpr uid_t kNobody = 65534;

char root[] = "/dev/shm/fuzz-extractor.XXXXXX";
std::string sentinel, target, package;

// The archive library is not instrumented. What it makes of an input, hashed into these,
// guides the fuzzer in its place.
__attribute__((section("__libfuzzer_extra_counters"))) uint8_t counters[1 << 14];

void note(std::string_view kind, uint64_t value) {
  const size_t hash = std::hash<std::string_view>()(kind) * 31 + value * 2654435761u;
  ++counters[hash % sizeof counters];
}

void note_error(archive* reader) {
  const char* const text = archive_error_string(reader);
  if (!text) return;
  std::string shape;  // without the numbers and names that errors may quote
  for (const char* p = text; *p != '\0' && *p != ':' && shape.size() < 40; ++p)
    if (*p < '0' || *p > '9') shape.push_back(*p);
  note(shape, 0);
}

// Whether an entry is a link. Leaves what the archive is like in the counters.
bool look_at_archive() {
  archive* const reader = archive_read_new();
  (void)archive_read_support_filter_all(reader);  // the same reader as the extractor's:
  (void)archive_read_support_format_all(reader);  // warnings are for missing programs
  bool links = false;
  if (archive_read_open_filename(reader, package.c_str(), 10240) == ARCHIVE_OK) {
    archive_entry* entry = nullptr;
    for (int count = 0; archive_read_next_header(reader, &entry) >= ARCHIVE_WARN && count < 64; ++count) {
      links |= archive_entry_symlink(entry) || archive_entry_hardlink(entry);
      note("format", archive_format(reader));
      note("type", archive_entry_filetype(entry));
      note("entries", count);
      note("size", 64 - __builtin_clzll(archive_entry_size(entry) | 1));
      note_error(reader);
    }
    for (int i = 0; i < archive_filter_count(reader); ++i) note("filter", archive_filter_code(reader, i));
  }
  note_error(reader);
  (void)archive_read_free(reader);
  return links;
}

// Removes everything below `dir`, directories without rights included.
void wipe(const std::string& dir) {
  std::error_code error;
  (void)chmod(dir.c_str(), 0700);  // a link is never handed over, see below
  for (const auto& entry : fs::directory_iterator(dir, error)) {
    if (entry.is_directory(error) && !entry.is_symlink(error)) wipe(entry.path());
    (void)fs::remove(entry.path(), error);
  }
  EXPECT(fs::is_empty(dir, error) || error);
}

void expect_no_set_id(const std::string& dir) {
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(dir, error)) {
    struct stat st;
    if (lstat(entry.path().c_str(), &st) != 0) continue;
    EXPECT(S_ISLNK(st.st_mode) || (st.st_mode & (S_ISUID | S_ISGID)) == 0);
    if (S_ISDIR(st.st_mode)) expect_no_set_id(entry.path());
  }
}

bool holds_only(const std::string& dir, const char* name) {
  int others = 0;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(dir, error)) others += entry.path().filename() != name;
  return others == 0 && fs::exists(dir + "/" + name);
}

#ifdef MAKE_ENTRIES

constexpr int kFormats[] = {ARCHIVE_FORMAT_TAR_GNUTAR, ARCHIVE_FORMAT_TAR_PAX_INTERCHANGE, ARCHIVE_FORMAT_TAR_USTAR,
                            ARCHIVE_FORMAT_CPIO_POSIX, ARCHIVE_FORMAT_CPIO_SVR4_NOCRC};
constexpr const char* kNames[] = {"INFO", "bin/cloud-ui", "..", "../up", "a/../../up", "/abs", "//abs", "./x",
                                  "a", "a/b", "", ".", "/", "a//b/", "..\\up", "C:\\x", "c:/x", "\xff\xfe", "m\xc3\xbc",
                                  "...", "-", "~", "a\nb", "/dev/shm/up", "._a", "__MACOSX/._a"};
constexpr mode_t kTypes[] = {AE_IFREG, AE_IFREG, AE_IFDIR, AE_IFLNK, AE_IFIFO, AE_IFCHR, AE_IFBLK, AE_IFSOCK};

std::string make_name(FuzzedDataProvider& in) {
  std::string name = in.ConsumeBool() ? in.PickValueInArray(kNames) : in.ConsumeRandomLengthString(40);
  if (in.ConsumeIntegralInRange(0, 15) == 0) name.append(in.ConsumeIntegralInRange(0, 5000), 'n');
  if (in.ConsumeIntegralInRange(0, 3) == 0) name += std::string("/") + in.PickValueInArray(kNames);
  return name;
}

void write_package(const uint8_t* data, size_t size) {
  const __lsan::ScopedDisabler writers_leak;  // when the format refuses an entry
  FuzzedDataProvider in(data, size);
  archive* const writer = archive_write_new();
  (void)archive_write_set_format(writer, in.PickValueInArray(kFormats));  // the worst that
  (void)archive_write_open_filename(writer, package.c_str());  // failures leave is no archive
  for (int count = 0; in.remaining_bytes() > 0 && count < 20; ++count) {
    archive_entry* const entry = archive_entry_new();
    archive_entry_set_pathname(entry, make_name(in).c_str());
    archive_entry_set_filetype(entry, in.PickValueInArray(kTypes));
    archive_entry_set_perm(entry, in.ConsumeIntegralInRange(0, 07777));
    if (in.ConsumeIntegralInRange(0, 7) == 0) archive_entry_set_hardlink(entry, make_name(in).c_str());
    if (archive_entry_filetype(entry) == AE_IFLNK) archive_entry_set_symlink(entry, make_name(in).c_str());
    const std::string content = in.ConsumeRandomLengthString(100);
    archive_entry_set_size(entry, static_cast<la_int64_t>(content.size()));
    if (archive_write_header(writer, entry) >= ARCHIVE_WARN) (void)archive_write_data(writer, content.data(), content.size());
    archive_entry_free(entry);
  }
  (void)archive_write_free(writer);
}

#else

void write_package(const uint8_t* data, size_t size) {
  std::ofstream file(package, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
}

#endif

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  if (geteuid() == 0) {
    EXPECT(unshare(CLONE_NEWNS) == 0 && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
    EXPECT(mount("none", "/dev/shm", "tmpfs", MS_NODEV | MS_NOSUID, "size=64m,nr_inodes=4096,mode=777") == 0);
    EXPECT(setresgid(kNobody, kNobody, kNobody) == 0 && setresuid(kNobody, kNobody, kNobody) == 0);
    EXPECT(prctl(PR_SET_DUMPABLE, 1) == 0);  // the leak check traces the process
  }
  EXPECT(mkdtemp(root));
  EXPECT(setenv("PATH", "/nonexistent", 1) == 0);  // no helper programs for rare filters
  sentinel = std::string(root) + "/sentinel";
  target = sentinel + "/target";
  package = sentinel + ".qpk";
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  wipe(root);
  EXPECT(mkdir(sentinel.c_str(), 0755) == 0 && mkdir(target.c_str(), 0755) == 0);
  // Relative link targets count from the working directory.
  EXPECT(chdir(target.c_str()) == 0);
  write_package(data, size);

  Extractor extractor;
  extractor.SetSource(package.c_str());
  extractor.SetTarget(target.c_str());
  const int result = extractor.Extract();
  EXPECT(result == 0 || result == -1);

  const bool links = look_at_archive();
  note("result", result);
  if (!links) {
    EXPECT(holds_only(sentinel, "target"));
    EXPECT(chdir(root) == 0 && fs::remove(package) && holds_only(root, "sentinel"));
    expect_no_set_id(target);
  }
  return 0;
}
