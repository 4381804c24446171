"""The launcher's log lines, as User.log() shows them."""
import re
from pathlib import Path

TREE = Path(__file__).resolve().parents[2]
_PROJECT = re.search(r"project\(\S+ VERSION (\S+)", (TREE / "CMakeLists.txt").read_text())
VERSION = f"[DEBUG] startup(N): version {_PROJECT[1]}"
RUNNING = "[DEBUG] launcher(88): running"
NO_NEED = "[DEBUG] launcher(93): no need to upgrade"
FAILED = "[ERROR] launcher(100): Failed to upgrade packge"
DONE = "[DEBUG] launcher(111): done"
ALREADY = "[DEBUG] main(80): app has already launched, return"
READY = "[INFO] cloud-service(N): user installation is ready, removing backup app"
EXISTS = "[DEBUG] linux/linux-service(139): local appdata exist"
ROLLED_BACK = ("[ERROR] cloud-service(N): Failed to extract package, "
               "rollback to old installation")
NO_COPY = ("[ERROR] cloud-service(N): Failed to extract package, "
           "and no old installation to rollback")
NO_PID = ("[DEBUG] linux/linux-service(76): pid file '{0.pid_file}' does not exist, "
          "no need to terminate")
BAD_PID = ("[NOTE] linux/linux-service(81): Failed to read pid file '{0.pid_file}', "
           "not exist ?")


def run(old, new: int, *between: str) -> list[str]:
    """The log of one start of a launcher with build `new`; `old` is None without a copy."""
    source = " does not exist" if old is None else f"_version = (3, 4, {old}, 7)"
    build, overlay = ("", "") if old is None else (old, "7")
    return [VERSION, RUNNING, f"[INFO] cloud-service(N): target_version = (3, 4, {new}, 7)",
            f"[INFO] cloud-service(N): source{source}",
            f"[DEBUG] linux/linux-service(62): Source version: ('{build}', '{overlay}')",
            f"[DEBUG] linux/linux-service(63): Target version: ('{new}', '7')",
            f"[DEBUG] linux/linux-service(126): source version = {old or 0}, "
            f"target version = {new}", *between, DONE]


def upgrade(user, old, new: int, *before: str) -> list[str]:
    """The log of a start that upgrades; `before` unpacking these lines."""
    way = f"'{user.package}'", f"'{user.app}'"
    return run(old, new, *before, "[INFO] cloud-service(N): extract package: %s -> %s" % way,
               "[DEBUG] extractor(N): decompress from %s to %s" % way, READY)
