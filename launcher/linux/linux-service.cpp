#include "launcher/linux/linux-service.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "launcher/linux/process.h"
#include "lib/config.h"
#include "lib/file-op.h"
#include "lib/log.h"

namespace {

const ustring kComponent("service_debug");

constexpr int kTimeout = 10000;      // milliseconds; nothing reads it
constexpr int kProbes = 5;           // looks at a client that was asked to end,
constexpr unsigned kProbeDelay = 1;  // seconds apart
constexpr int kForkAttempts = 3;     // to start a process, likewise

// The process that `text` names, 0 when it names none that may be signalled. Anything
// below 1 would reach a whole group of processes, a number that does not fit pid_t another
// one than was written, and a stale file may name the launcher itself.
pid_t parse_pid(const ustring& text) {
  const long long number = strtoll(text.c_str(), nullptr, 10);
  const bool usable =
      number >= 1 && number <= std::numeric_limits<pid_t>::max() && number != getpid();
  return usable ? static_cast<pid_t>(number) : 0;
}

// When the file at `path`, links followed, was written; the epoch when that cannot be told.
time_t time_of(const ustring& path) {
  struct stat info;
  return stat(path.c_str(), &info) == 0 ? info.st_mtime : 0;
}

// The process that a pid file names, as it is found first.
class Client {
 public:
  explicit Client(pid_t pid) : m_pid(pid), m_known(pid > 0 && GetProcessInfo(pid, m_info) == 0) {}

  pid_t pid() const { return m_pid; }

  // Whether it can have written the pid file at the time `written`. A process that the system
  // tells nothing about can, and so can whatever runs from the user's tree: when the clock was set
  // forward since, the client itself looks younger than its file.
  bool IsWriterOf(time_t written) const {
    if (m_pid <= 0) return false;
    return !m_known || !IsStartedAfter(m_info.start, written) ||
           IsProgramBelow(m_pid, Service::GetUserQuillmereInstallPath());
  }

  bool IsGone() const { return (kill(m_pid, 0) != 0 && errno == ESRCH) || IsReplaced(); }

  // Whether it has ended, its number being another's or, where its parent does not ask for its
  // end, still its own.
  bool IsReplaced() const {
    ProcessInfo now;
    return m_known && GetProcessInfo(m_pid, now) == 0 && (now.ended || now.start != m_info.start);
  }

 private:
  const pid_t m_pid;  // 0: none
  ProcessInfo m_info;
  const bool m_known;
};

// The number as atoi reads it; 0 for an empty text.
int build_number(const ustring& text) { return text.empty() ? 0 : atoi(text.c_str()); }

// `program` as the toolkit's command lines hold it: as it is, or in double quotes with each
// quote of its own tripled, when a quote or a blank would split it. Blanks are the toolkit's:
// every kind of space that there is.
QString quoted(const QString& program) {
  const auto splits = [](QChar c) { return c.isSpace() || c == '"'; };
  if (std::none_of(program.begin(), program.end(), splits)) return program;
  return '"' + QString(program).replace("\"", "\"\"\"") + '"';
}

// Starts a process that ends at once, and waits for it; false when there is none to be had. A
// fork of its own would take a millisecond of every start. Nothing here may be kept in a
// register over the call, so this stays a function.
__attribute__((noinline)) bool start_empty_process() {
  const pid_t pid = vfork();  // NOLINT(clang-analyzer-security.insecureAPI.vfork): as said
  if (pid == 0) _exit(0);
  if (pid > 0) (void)waitpid(pid, nullptr, 0);  // nobody to wait for where SIGCHLD is ignored
  return pid > 0;
}

// Whether the system has another process to give; one that is short of them is asked again.
// The toolkit takes a refusal for a program that runs, and waits for its end for ever.
bool can_start_process() {
  for (int attempt = 1; !start_empty_process(); ++attempt) {
    if (attempt == kForkAttempts) return false;
    (void)sleep(kProbeDelay);  // cut short by a signal, it is asked sooner
  }
  return true;
}

}  // namespace

LinuxService::LinuxService() {
  timeout = kTimeout;
  per_user_install_path = GetUserQuillmereAppInstallPath();
}

LinuxService& LinuxService::GetInstace() {
  static LinuxService instance;
  return instance;
}

void LinuxService::LoadSourceVerInfo() { LoadSourceVersion(); }

void LinuxService::LoadTargetVerInfo() { LoadTargetVersion(); }

void LinuxService::PreUpgrade() {
  LoadTargetVerInfo();
  LoadSourceVerInfo();
  Logger::LogMsg(Logger::L_DEBUG, kComponent,
                 "[DEBUG] linux/linux-service(%d): Source version: ('%s', '%s')\n", 62,
                 source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
  Logger::LogMsg(Logger::L_DEBUG, kComponent,
                 "[DEBUG] linux/linux-service(%d): Target version: ('%s', '%s')\n", 63,
                 target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

bool LinuxService::IsNeedUpgrade() {
  const int source = build_number(source_version.build_version);
  const int target = build_number(target_version.build_version);
  Logger::LogMsg(Logger::L_DEBUG, kComponent,
                 "[DEBUG] linux/linux-service(%d): source version = %d, target version = %d\n", 126,
                 source, target);
  return target > source || !PerUserBinPathExist();
}

bool LinuxService::PerUserBinPathExist() {
  return access((per_user_install_path + "/bin/cloud-ui").c_str(), F_OK) == 0;
}

int LinuxService::HandlePackageUpgrade() {
  if (PerUserBinPathExist()) {
    Logger::LogMsg(Logger::L_DEBUG, kComponent,
                   "[DEBUG] linux/linux-service(%d): local appdata exist\n", 139);
    StopService();
  }
  return PrepareUserEnv();
}

void LinuxService::StopService() {
  const ustring path = GetUserQuillmereInstallPath() + "/ui.pid";
  const bool exists = IsFileExist(path, false);
  // Before the reading: were the file replaced in between, it would look too old, never too new.
  const time_t written = exists ? time_of(path) : 0;
  Config file;
  if (exists && file.read(path) < 0) {
    Logger::LogMsg(Logger::L_NOTICE, kComponent,
                   "[NOTE] linux/linux-service(%d): Failed to read pid file '%s', not exist ?\n",
                   81, path.c_str());
    return;
  }
  const Client client(exists ? parse_pid(file["pid"]) : 0);
  if (!client.IsWriterOf(written)) {
    // Meant: a file that names no process, or one that cannot be the client, counts as missing,
    // message included.
    Logger::LogMsg(
        Logger::L_DEBUG, kComponent,
        "[DEBUG] linux/linux-service(%d): pid file '%s' does not exist, no need to terminate\n", 76,
        path.c_str());
    return;
  }

  if (kill(client.pid(), SIGTERM) != 0) {
    const int error = errno;
    if (error == ESRCH) return;
    Logger::LogMsg(Logger::L_ERR, kComponent, "[ERROR] linux/linux-service(%d): kill: %s (%d)\n",
                   96, strerror(error), error);
  }
  for (int probe = 0; probe < kProbes; ++probe) {
    if (client.IsGone()) return;
    (void)sleep(kProbeDelay);  // cut short by a signal, it only makes the wait shorter
  }
  // It may have ended since the last look, and its number be another's by now.
  if (client.IsReplaced()) return;
  // Nobody waits for it from here on: whatever comes of this, the upgrade goes on.
  (void)kill(client.pid(), SIGKILL);
}

void LinuxService::PostUpgrade() {
  (void)LaunchPerUserBin();  // always 0
}

int LinuxService::LaunchPerUserBin() {
  if (!can_start_process()) {
    const int error = errno;
    Logger::LogMsg(Logger::L_ERR, kComponent,
                   "[ERROR] linux/linux-service(%d): Failed to start the client: %s (%d)\n",
                   __LINE__, strerror(error), error);
    return 0;
  }
  const ustring script = per_user_install_path + "/package/start-stop";
  const QString command = quoted(QString::fromUtf8(script.c_str())) + " start";
  QStringList arguments = QProcess::splitCommand(command);
  const QString program = arguments.takeFirst();
  // The script's outcome is its own business; a missing one leaves nothing to start.
  (void)QProcess::execute(program, arguments);
  return 0;
}
