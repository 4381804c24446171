#pragma once

#include "ustring/ustring.h"

// The fixed places of a package that is installed in its usual root. The launcher itself
// finds everything from its own place (see Service); this is the shared description of the
// layout. Unchanging once built; any thread.
class PackageInfo {
 public:
  // The process-wide instance, built on first use.
  static PackageInfo& GetInstance();

  PackageInfo();

  ustring GetImageFolder() const { return ImageFolder; }
  ustring GetLogFolder() const { return LogFolder; }
  ustring GetLogLevelPath() const { return LogLevelPath; }
  ustring GetPackagePath() const { return PackagePath; }
  ustring GetConfigFolder() const { return ConfigFolder; }

 private:
  ustring ImageFolder;
  ustring LogFolder;  // the user's, the only one outside the package
  ustring LogLevelPath;
  ustring PackagePath;
  ustring ConfigFolder;
};
