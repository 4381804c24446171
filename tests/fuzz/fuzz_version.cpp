// The version file of the user's copy: any bytes in it leave valid texts in the record and
// a decision, and never a crash.

#include <QCoreApplication>

#include <cstring>
#include <fstream>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

#include "launcher/linux/linux-service.h"
#include "tests/fuzz/expect.h"

namespace {

class Probe : public LinuxService {
 public:
  const VersionInfo& source() const { return source_version; }
  void set_target(const char* build) { target_version.build_version = build; }
};

// The settings reader keeps the last 30 files in memory and looks at nothing but size and
// time to tell whether one has changed; more homes than that make it read each input.
constexpr int kHomes = 48;

std::string homes[kHomes];

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static QCoreApplication application(*argc, *argv);
  const char* const temporary = getenv("TMPDIR");
  std::string root = std::string(temporary ? temporary : "/tmp") + "/fuzz-version.XXXXXX";
  EXPECT(mkdtemp(root.data()));
  for (int i = 0; i < kHomes; ++i) {
    homes[i] = root + ("/" + std::to_string(i));
    for (const char* part : {"", "/.Quillmere", "/.Quillmere/app"})
      EXPECT(mkdir((homes[i] + part).c_str(), 0755) == 0);
  }
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static int turn = 0;
  const std::string& home = homes[++turn % kHomes];
  EXPECT(setenv("HOME", home.c_str(), 1) == 0);
  std::ofstream file(home + "/.Quillmere/app/INFO", std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  file.close();
  EXPECT(file);

  Probe service;
  service.LoadSourceVerInfo();
  const Service::VersionInfo& version = service.source();
  for (const ustring* field : {&version.major_version, &version.minor_version, &version.build_version, &version.icon_overlay_version})
    EXPECT(ustring::is_valid(*field) && strlen(field->c_str()) == field->length());
  // Without a client program every copy is replaced, whatever its version says.
  service.set_target("1");
  EXPECT(service.IsNeedUpgrade());
  return 0;
}
