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

// Whether there is something at `path`, if only a link to nothing. False when it cannot be seen.
bool is_there(const ustring& path) {
  FILE_INFO info;
  return FSStat(path, info, false) == 0 && info.isExist;
}

// Whether there is nothing at `path`. False when it cannot be seen.
bool is_missing(const ustring& path) {
  FILE_INFO info;
  return FSStat(path, info, false) == 0 && !info.isExist;
}

// Removes `path`, directories that their owner may not write included. False when something of
// it stays.
bool remove_all(const ustring& path) {
  if (FSRemove(path, false) == 0 && is_missing(path)) return true;
  FSMakeRemovable(path);
  return FSRemove(path, false) == 0 && is_missing(path);
}

// Takes the version file from the directory `copy`: what is left, whole or not, does not pass for
// a complete copy any more. A link is left alone, because what it leads to is not removed either.
void unmark(const ustring& copy) {
  FILE_INFO info;
  if (FSStat(copy, info, false) != 0 || !info.isExist || info.type != FT_DIR) return;
  if (FSRemove(copy + "/INFO", false) == 0) return;
  FSMakeRemovable(copy);
  (void)FSRemove(copy + "/INFO", false);  // removing the whole may still succeed
}

// Removes a copy that was not completed. Its version file goes first, and for good: were
// the removal itself cut short, what is left must not pass for a complete copy.
void discard_copy(const ustring& app) {
  if (IsFileExist(app + "/INFO", false)) {
    unmark(app);
    (void)FSSync(app);  // when this fails, removing the whole may still succeed
  }
  (void)remove_all(app);  // what stays makes the rename back fail, and nothing is lost
}

// The number of the newest complete backup of `app`, -1 without one. A copy is moved to the first
// name that is free, and backups lose their version files before the first of them is removed: a
// complete one therefore has all names below it taken, and the newest has the highest number.
int newest_backup(const ustring& app) {
  for (int i = kMaxBackups - 1; i >= 0; --i) {
    const ustring backup = GetAppBackupDir(app, i);
    if (IsFileExist(backup + "/INFO", false) && IsFileExist(backup + "/bin/cloud-ui", false)) {
      return i;
    }
  }
  return -1;
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

void Service::RestoreCopy() {
  const ustring app = per_user_install_path;
  // Only what is certain counts: a copy that cannot be looked at may be whole.
  if (!is_missing(app + "/INFO") && !is_missing(app + "/bin/cloud-ui")) return;
  const int number = newest_backup(app);
  if (number < 0) return;
  const ustring backup = GetAppBackupDir(app, number);
  Logger::LogMsg(Logger::L_WARNING, kComponent,
                 "[WARNING] cloud-service(%d): '%s' is not complete, moving '%s' back\n", __LINE__,
                 app.c_str(), backup.c_str());
  // Until the rename there is an incomplete copy or none, and a complete backup: whenever this is
  // cut short, the next run begins it anew. The removal is to reach the disk before the rename.
  discard_copy(app);
  (void)FSSync(backup);  // moving it back is right even when this fails
  if (FSRenameWhole(backup, app) != 0) {
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] cloud-service(%d): failed to move '%s' back to '%s'\n", __LINE__,
                   backup.c_str(), app.c_str());
  }
}

int Service::PrepareUserEnv() {
  const ustring app = per_user_install_path;
  ustring backup;
  int retry = 0;
  RestoreCopy();
  // The second look is for a link to nothing, in whose place nothing could be unpacked, and for
  // an error that passes: unpacking over a copy that is there would mix the two.
  const bool exists = IsFileExist(app, false) || is_there(app);
  if (exists && BackUp(app, backup, retry) != 0) return -1;

  // Once the backups are gone the new copy is all there is: it has to be on the disk. A derived
  // class may unpack nothing at all.
  if (ExtractPackage() != 0 || (!is_missing(app) && FSSync(app) != 0)) {
    RollBack(app, backup);
    return -1;
  }

  Logger::LogMsg(Logger::L_INFO, kComponent,
                 "[INFO] cloud-service(%d): user installation is ready, removing backup app\n",
                 __LINE__);
  RemoveBackups(app, retry);
  return 0;
}

// Removes the backups of `app` with the numbers 0 to `last`. First none of them is complete any
// more, so that what a removal leaves that is cut short is never taken for a copy.
void Service::RemoveBackups(const ustring& app, int last) {
  for (int i = 0; i <= last; ++i) unmark(GetAppBackupDir(app, i));
  // After a loss of power one of several could be whole in name alone, and pass for the newest.
  if (last > 0 && !is_missing(app)) (void)FSSync(app);
  for (int i = 0; i <= last; ++i) {
    const ustring backup = GetAppBackupDir(app, i);
    if (remove_all(backup)) continue;
    Logger::LogMsg(
        Logger::L_WARNING, kComponent,
        "[WARNING] cloud-service(%d): failed to remove backup '%s', which takes up disk space until a later upgrade removes it\n",
        __LINE__, backup.c_str());
  }
}

// Moves `app` to the first backup name that takes it, in one piece: some file systems move a
// directory file by file only, and a move that was cut short there would leave no whole copy. 0
// with its name in `backup` and its number in `retry`; -1 with `app` in place when none of the
// names does.
int Service::BackUp(const ustring& app, ustring& backup, int& retry) {
  for (retry = 0; retry < kMaxBackups; ++retry) {
    backup = GetAppBackupDir(app, retry);
    if (FSRenameWhole(app, backup) == 0) return 0;
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
  if (FSRenameWhole(backup, app) != 0) {
    Logger::LogMsg(
        Logger::L_ERR, kComponent,
        "[ERROR] cloud-service(%d): failed to roll back, the old installation stays in '%s'\n",
        __LINE__, backup.c_str());
  }
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
