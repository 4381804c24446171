#pragma once

#include "ustring/ustring.h"

// The installation service: where the package and the user's copy live, what version each
// has, and the steps of an upgrade that are the same on every platform. What stops and
// starts the client is the derived class's part.
//
//   package root   the parent of the directory that holds the running executable;
//                  /package/quillmere.qpk and /INFO below it
//   user tree      home + "/.Quillmere", with the user's copy in /app
//
// The source version is that of the user's copy, the target version that of the package
// to which the copy is to be brought.
//
// Built on the GUI thread, used on the worker thread only, but for the static paths, which
// any thread may ask for. Failures are logged under
// "service_debug".
class Service {
 public:
  // A version record. Texts as the version file has them; empty where it has none.
  struct VersionInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;
    ustring icon_overlay_version;
  };

  Service() = default;
  virtual ~Service() = default;
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  // Asks the user's running client to end, and ends it by force when it does not.
  virtual void StopService() = 0;

  // Stores a time limit, in milliseconds. Nothing reads it.
  virtual void SetTimeout(int timeout);

  // Brings the user's copy to the package's version. 0, or the result of PrepareUserEnv.
  [[nodiscard]] virtual int HandlePackageUpgrade() = 0;

  // Comes last in every run, whatever happened before.
  virtual void PostUpgrade() = 0;

  // Comes first in every run: loads both version records.
  virtual void PreUpgrade() = 0;

  // Whether the user's copy must be replaced. Valid after PreUpgrade().
  virtual bool IsNeedUpgrade() = 0;

  // Creates the directory of the user's copy and unpacks the package into it. Returns 0;
  // -1 when the directory cannot be created, and Extractor::Extract's result otherwise.
  // What was unpacked before a failure stays.
  [[nodiscard]] virtual int ExtractPackage();

  // Reads the version file of the user's copy into source_version, and that of the package
  // into target_version. A key that is absent leaves its field alone, and so does a file
  // that is missing or, with a warning in the log, refused (CheckVersionFile).
  virtual void LoadSourceVersion();
  virtual void LoadTargetVersion();

  // Replaces the user's copy by the package: RestoreCopy(), then moves the copy aside under a free
  // backup name, unpacks, and removes the backups. Returns 0 when the new copy is in place and on
  // the disk. Returns -1 with the old copy in place when it could not be moved aside, or was moved
  // back because unpacking or bringing the disk up to date failed; an old copy that cannot be moved
  // back is whole under its backup name. Where there was no old copy, what was unpacked stays.
  [[nodiscard]] virtual int PrepareUserEnv();

  // Where an upgrade was cut short: when the user's copy is missing or not complete and a backup
  // is complete, removes the one and moves the other in its place. Otherwise, and when the state
  // of the copy cannot be told, changes nothing. A backup that cannot be moved back stays whole.
  void RestoreCopy();

  // The places of both trees, as UTF-8 paths without a trailing slash. None looks at the
  // disk. The two root paths need the application object; they are equal, and stand apart
  // for what they locate: the resource path package and images, the other the log levels.
  static ustring GetUserInstallPath();
  static ustring GetUserQuillmereInstallPath();
  static ustring GetUserQuillmereAppInstallPath();
  static ustring GetUserQuillmereDataInstallPath();
  static ustring GetRootQuillmereInstallPath();
  static ustring GetRootQuillmereResourceInstallPath();

  // Copies a file or a directory tree; directories that exist are merged. Returns 0, or -1
  // when `src` cannot be examined or is missing, `dst` cannot be created, or an entry of a
  // directory could not be copied, which ends the copy there. A single file that cannot be
  // copied and a directory that cannot be read count as success.
  [[nodiscard]] int FSCopyPath(const ustring& src, const ustring& dst);

 protected:
  int timeout = 0;                // milliseconds
  ustring per_user_install_path;  // the user's copy; set by the derived class
  VersionInfo target_version;
  VersionInfo source_version;

 private:
  static int BackUp(const ustring& app, ustring& backup, int& retry);
  static void RollBack(const ustring& app, const ustring& backup);
  static void RemoveBackups(const ustring& app, int last);
};
