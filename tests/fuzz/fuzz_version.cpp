// The version file of the user's copy: any bytes in it leave valid texts in the record and a
// decision, and never a crash. What is not refused gives the settings reader nothing but texts
// and bytes, and the record has the reader's values.

#include <QCoreApplication>
#include <QSettings>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "launcher/linux/linux-service.h"
#include "launcher/version-file.h"
#include "tests/fuzz/expect.h"

namespace fs = std::filesystem;

namespace {

struct Probe : LinuxService {
  using LinuxService::source_version;
};

bool is_plain(const QVariant& value) {
  if (value.type() == QVariant::List) {
    const QVariantList list = value.toList();
    return std::all_of(list.begin(), list.end(), is_plain);
  }
  return value.type() == QVariant::Invalid || value.type() == QVariant::String ||
         value.type() == QVariant::StringList || value.type() == QVariant::ByteArray;
}

std::string root = fs::temp_directory_path() / "fuzz-version.XXXXXX";

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  static QCoreApplication application(*argc, *argv);
  EXPECT(mkdtemp(root.data()));
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  static int turn = 0;
  // The settings reader looks at nothing but size and time to tell whether a file that it
  // knows has changed; a home for each input makes it read each.
  const std::string home = root + "/" + std::to_string(++turn);
  const std::string path = home + "/.Quillmere/app/INFO";
  EXPECT(fs::create_directories(home + "/.Quillmere/app"));
  EXPECT(setenv("HOME", home.c_str(), 1) == 0);
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  EXPECT(fs::file_size(path) == size);

  Probe service;
  service.LoadSourceVerInfo();
  ustring fault;
  const bool taken = CheckVersionFile(path.c_str(), fault) == 0;
  QSettings reader(taken ? QString::fromStdString(path) : QString("/dev/null"),
                   QSettings::IniFormat);
  reader.beginGroup("Version");
  const Service::VersionInfo& version = service.source_version;
  const std::pair<const char*, const ustring&> fields[] = {
      {"major_version", version.major_version},
      {"minor_version", version.minor_version},
      {"build_version", version.build_version},
      {"icon_overlay_version", version.icon_overlay_version}};
  for (const auto& [key, field] : fields) {
    EXPECT(ustring::is_valid(field) && strlen(field.c_str()) == field.length());
    const QVariant value = reader.value(key);
    EXPECT(is_plain(value) && field == value.toString().toUtf8().constData());
  }
  fs::remove_all(home);
  return 0;
}
