#pragma once

#include "launcher/cloud-service.h"

// The installation service on Linux: decides by build number, stops the client through
// its pid file and starts it through its start script.
class LinuxService : public Service {
 public:
  // Sets the place of the user's copy; looks at nothing on the disk.
  LinuxService();
  ~LinuxService() override = default;

  // The process-wide instance, built on first use. The name lacks an "n"; it stays so.
  static LinuxService& GetInstace();

  // Sends SIGTERM to the process named in the pid file, waits up to 5 seconds for its end
  // and sends SIGKILL if it is still there, without waiting any further. A signal that is
  // refused is logged and changes nothing else. Without a pid file, or with one that names no
  // process this may signal or one that started after the file was written, nothing is sent and
  // nobody waited for. A process whose parent does not ask for its end has ended all the same.
  void StopService() override;

  // Stops the client where there is a copy, then PrepareUserEnv, whose result it returns.
  [[nodiscard]] int HandlePackageUpgrade() override;

  // Starts the user's client.
  void PostUpgrade() override;

  // Loads and logs both version records.
  void PreUpgrade() override;

  // True when the package's build number is higher than the copy's, or the copy has no
  // client executable. A lower build number never asks for an upgrade.
  bool IsNeedUpgrade() override;

  void LoadSourceVerInfo();
  void LoadTargetVerInfo();

  // Whether the copy has a client executable; neither its type nor its rights are looked at.
  bool PerUserBinPathExist();

  // Runs the copy's start script and waits for its end. Always 0: a script that fails or
  // is missing leaves nothing that could be done.
  int LaunchPerUserBin();
};
