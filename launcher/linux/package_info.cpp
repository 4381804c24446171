#include "launcher/linux/package_info.h"

#include <QDir>

PackageInfo& PackageInfo::GetInstance() {
  static PackageInfo instance;
  return instance;
}

PackageInfo::PackageInfo()
    : ImageFolder("/opt/Parvenor/Quillmere/images"),
      LogFolder((QDir::homePath() + "/.Quillmere").toUtf8().constData()),
      LogLevelPath("/opt/Parvenor/Quillmere/log/launcher.debug"),
      PackagePath("/opt/Parvenor/Quillmere/package/quillmere.qpk"),
      ConfigFolder("/opt/Parvenor/Quillmere/conf") {}
