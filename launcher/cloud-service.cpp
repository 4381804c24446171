#include "launcher/cloud-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>

#include <cstdio>

#include "launcher/extractor.h"
#include "launcher/version-file.h"
#include "lib/file-op.h"
#include "lib/log.h"

namespace {

const ustring kComponent("service_debug");

constexpr int kMaxBackups = 100;  // names tried for a backup, numbers 0 to 99

ustring to_ustring(const QString& text) { return text.toUtf8().constData(); }

// The name of backup number `index` of the directory `path`.
ustring GetAppBackupDir(const ustring& path, int index) {
  if (index == 0) return path + "_tmp";
  char number[8];
  if (snprintf(number, sizeof number, "%d", index) < 0) {
    // Meant: this message has no line feed.
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): snprintf failed (continuing without postfix)",
                   __LINE__);
    return path + "_tmp";
  }
  return path + "_tmp" + number;
}

void read_field(const QSettings& file, const char* key, ustring& field) {
  if (file.contains(key)) field = to_ustring(file.value(key).toString());
}

void read_version(const ustring& path, Service::VersionInfo& version) {
  ustring fault;
  if (CheckVersionFile(path, fault) != 0) {
    if (fault.empty()) return;  // nothing to read has no line of its own
    Logger::LogMsg(Logger::L_WARNING, kComponent,
                   "[WARNING] cloud-service(%d): version file '%s' is refused: %s\n", __LINE__,
                   path.c_str(), fault.c_str());
    return;
  }
  QSettings file(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
  file.beginGroup("Version");
  read_field(file, "major_version", version.major_version);
  read_field(file, "minor_version", version.minor_version);
  read_field(file, "build_version", version.build_version);
  read_field(file, "icon_overlay_version", version.icon_overlay_version);
  file.endGroup();
}

// Removes a copy that was not completed. Its version file goes first, and for good: were
// the removal itself cut short, what is left must not pass for a complete copy.
void discard_copy(const ustring& app) {
  const ustring info = app + "/INFO";
  if (IsFileExist(info, false)) {
    // When these fail, removing the whole may still succeed.
    (void)FSRemove(info, false);
    (void)FSSync(app);
  }
  (void)FSRemove(app, false);  // what stays makes the rename back fail, and nothing is lost
}

}  // namespace

void Service::SetTimeout(int limit) { timeout = limit; }

ustring Service::GetUserInstallPath() { return to_ustring(QDir::homePath()); }

ustring Service::GetUserQuillmereInstallPath() { return GetUserInstallPath() + "/.Quillmere"; }

ustring Service::GetUserQuillmereAppInstallPath() { return GetUserQuillmereInstallPath() + "/app"; }

ustring Service::GetUserQuillmereDataInstallPath() {
  return GetUserQuillmereInstallPath() + "/data";
}

ustring Service::GetRootQuillmereInstallPath() {
  return to_ustring(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/.."));
}

ustring Service::GetRootQuillmereResourceInstallPath() { return GetRootQuillmereInstallPath(); }

void Service::LoadSourceVersion() {
  const ustring path = GetUserQuillmereAppInstallPath() + "/INFO";
  if (!IsFileExist(path, false)) {
    Logger::LogMsg(Logger::L_INFO, kComponent, "[INFO] cloud-service(%d): source does not exist\n",
                   __LINE__);
    return;
  }
  read_version(path, source_version);
  Logger::LogMsg(Logger::L_INFO, kComponent,
                 "[INFO] cloud-service(%d): source_version = (%s, %s, %s, %s)\n", __LINE__,
                 source_version.major_version.c_str(), source_version.minor_version.c_str(),
                 source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
  // Meant: unlike the user's copy, a missing package version file gets no line of its own;
  // the empty fields below tell.
  read_version(GetRootQuillmereResourceInstallPath() + "/INFO", target_version);
  Logger::LogMsg(Logger::L_INFO, kComponent,
                 "[INFO] cloud-service(%d): target_version = (%s, %s, %s, %s)\n", __LINE__,
                 target_version.major_version.c_str(), target_version.minor_version.c_str(),
                 target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

int Service::ExtractPackage() {
  const ustring source = GetRootQuillmereResourceInstallPath() + "/package/quillmere.qpk";
  const ustring target = GetUserQuillmereAppInstallPath();
  if (FSMKDir(target, true) < 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): failed to create folder: '%s'\n", __LINE__,
                   target.c_str());
    return -1;
  }
  Logger::LogMsg(Logger::L_INFO, kComponent,
                 "[INFO] cloud-service(%d): extract package: '%s' -> '%s'\n", __LINE__,
                 source.c_str(), target.c_str());
  Extractor extractor;
  extractor.SetSource(source);
  extractor.SetTarget(target);
  return extractor.Extract();
}

int Service::PrepareUserEnv() {
  const ustring app = per_user_install_path;
  ustring backup;
  int retry = 0;
  // A copy that cannot be seen may still be there, and unpacking over it would mix the two.
  FILE_INFO info;
  if (FSStat(app, info, false) != 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): failed to examine app '%s'\n", __LINE__,
                   app.c_str());
    return -1;
  }
  if (info.isExist && BackUp(app, backup, retry) != 0) return -1;

  // Once the backups are gone the new copy is all there is: it has to be on the disk.
  if (ExtractPackage() != 0 || FSSync(app) != 0) {
    RollBack(app, backup);
    return -1;
  }

  Logger::LogMsg(Logger::L_INFO, kComponent,
                 "[INFO] cloud-service(%d): user installation is ready, removing backup app\n",
                 __LINE__);
  for (int i = 0; i <= retry; ++i) {
    // A backup that stays costs space; the next upgrade tries again.
    (void)FSRemove(GetAppBackupDir(app, i), false);
  }
  return 0;
}

// Moves `app` to the first backup name that takes it. 0 with its name in `backup` and its
// number in `retry`; -1 with `app` in place when none of the names does.
int Service::BackUp(const ustring& app, ustring& backup, int& retry) {
  for (retry = 0; retry < kMaxBackups; ++retry) {
    backup = GetAppBackupDir(app, retry);
    if (FSRename(app, backup, false) == 0) return 0;
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): failed to backup app from '%s' -> '%s'\n", __LINE__,
                   app.c_str(), backup.c_str());
  }
  Logger::LogMsg(
      Logger::L_ERR, kComponent,
      "[ERROR] cloud-service(%d): failed to backup app from '%s' -> '%s' at max retries, exiting\n",
      __LINE__, app.c_str(), backup.c_str());
  return -1;
}

void Service::RollBack(const ustring& app, const ustring& backup) {
  if (backup.empty()) {
    Logger::LogMsg(
        Logger::L_ERR, kComponent,
        "[ERROR] cloud-service(%d): Failed to extract package, and no old installation to rollback\n",
        __LINE__);
    return;
  }
  Logger::LogMsg(
      Logger::L_ERR, kComponent,
      "[ERROR] cloud-service(%d): Failed to extract package, rollback to old installation\n",
      __LINE__);
  discard_copy(app);
  // When even this fails the old copy is whole under its backup name.
  (void)FSRename(backup, app, false);
}

int Service::FSCopyPath(const ustring& src, const ustring& dst) {
  Logger::LogMsg(Logger::L_DEBUG, kComponent, "[DEBUG] cloud-service(%d): copy from '%s' to '%s'\n",
                 __LINE__, src.c_str(), dst.c_str());
  FILE_INFO info;
  if (FSStat(src, info, false) < 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): FSCopyPath: failed to stat source '%s'\n", __LINE__,
                   src.c_str());
    return -1;
  }
  if (!info.isExist) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): FSCopyPath: source path '%s' does not exist\n",
                   __LINE__, src.c_str());
    return -1;
  }
  if (info.type != FT_DIR) {
    (void)FSCopy(src, dst, false);  // meant: a single file's failure shows in the log alone
    return 0;
  }
  if (FSMKDir(dst, true) < 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): FSCopyPath: failed to create dest folder '%s'\n",
                   __LINE__, dst.c_str());
    return -1;
  }
  DIR_HANDLE handle;
  if (FSOpenDir(src, 0, handle) < 0) {
    // Meant: a directory that cannot be read leaves an empty one and counts as copied.
    Logger::LogMsg(
        Logger::L_WARNING, kComponent,
        "[WARNING] cloud-service(%d): FSCopyPath: failed to create handle  for src '%s' failed\n",
        __LINE__, src.c_str());
    return 0;
  }
  DIR_ENTRY entry;
  while (FSReadDir(handle, entry) >= 1) {
    if (entry.name == "." || entry.name == "..") continue;
    const ustring from = src + "/" + entry.name;
    const ustring to = dst + "/" + entry.name;
    const int result = entry.type == FT_DIR ? FSCopyPath(from, to) : FSCopy(from, to, false);
    if (result < 0) {
      Logger::LogMsg(Logger::L_ERR, kComponent,
                     "[ERROR] cloud-service(%d): FSCopyPath: failed to copy from '%s' to '%s'\n",
                     __LINE__, from.c_str(), to.c_str());
      return -1;
    }
  }
  return 0;
}
