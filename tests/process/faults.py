"""What disturbs a launcher: strace, on the calls that have to do with the copies, the log and the
package. That leaves out the start of the libraries, and what the launcher executes."""
import os
import shutil
from collections import Counter
from pathlib import Path

from user import User, listing, write

# The errors that a call can give. A close that is made to fail does not happen, which no system
# does: it is left out.
ERRORS = {
    "openat": "EMFILE EACCES EIO ENOSPC EDQUOT EINTR",
    **dict.fromkeys(("mkdir", "symlink", "rename"), "EACCES EIO ENOSPC EDQUOT"),
    **dict.fromkeys(("write", "syncfs"), "EIO ENOSPC EDQUOT EINTR"),
    **dict.fromkeys(("unlink", "unlinkat", "access", "newfstatat", "statx"), "EACCES EIO"),
    "close": "",
}
OTHER_ERRORS = "EIO EINTR"
READS = ("access", "newfstatat", "statx", "read", "getdents64", "lseek", "close", "fcntl",
         "readlink", "fstat", "faccessat2", "statfs")


def strace(user: User, *options: str) -> list[str]:
    """The command to start a launcher through, with these options."""
    paths = {"", *(name for build in user.builds.values() for name in build.listing)}
    watched = [user.top, user.top / "log", user.log_file, user.pid_file, user.root / "INFO",
               user.root / "log/launcher.debug", user.root / "package", user.package]
    for copy in user.app, Path(f"{user.app}_tmp"):
        watched += [copy / path for path in paths]
    command = ["strace", "-f", "-qq", "-b", "execve", "-o", str(user.dir / "trace")]
    for path in watched:
        command += ["-P", str(path)]
    return [*command, *options]


def inject(user: User, call: str, number: int, effect: str) -> list[str]:
    """To start a launcher through: the call of that name and number has an effect, such as
    "signal=SIGKILL" or "error=EIO"."""
    return strace(user, "-e", f"inject={call}:{effect}:when={number}")


def calls(user: User, through=None) -> list[tuple[str, int]]:
    """Every watched call of an upgrade, by its name and number as strace counts them: for each
    thread. The home is used up."""
    user.launch(*(through or strace(user)))
    counts: Counter = Counter()
    for line in (user.dir / "trace").read_text(errors="replace").splitlines():
        thread, _, rest = line.partition(" ")
        name = rest.strip().partition("(")[0]
        if name.isidentifier() and name != "execve" and "resumed" not in rest:
            counts[thread, name] += 1
    most: Counter = Counter()
    for (_, name), count in counts.items():
        most[name] = max(most[name], count)
    return [(name, n) for name in sorted(most) for n in range(1, most[name] + 1)]


def errors_of(call: str) -> list[str]:
    return ERRORS.get(call, OTHER_ERRORS).split()


def new_home(user: User, copy: int = 1) -> None:
    """A home like that of the first day: the copy of a build, and nothing else."""
    for path in user.top.iterdir() if user.top.exists() else ():
        shutil.rmtree(path) if path.is_dir() else path.unlink()
    user.top.mkdir(parents=True, exist_ok=True)
    user.notes.unlink(missing_ok=True)
    if copy:
        user.install_copy(copy)


def whole_and_started(user: User) -> int:
    """Checks that a whole copy is in place and was started once; returns its build. The version
    file is the last that is unpacked: a copy in which it is empty is whole, and replaced by the
    next start."""
    found = listing(user.app)
    found.pop("INFO", None)
    copy = next((number for number, build in user.builds.items()
                 if {**found, "INFO": build.listing["INFO"]} == build.listing), 0)
    assert copy, f"no whole copy in place, but {sorted(os.listdir(user.top))}"
    user.started("start")
    user.notes.unlink()
    return copy


def force_upgrade(user: User) -> None:
    """Gives the package root a build number that no copy reaches: each start upgrades."""
    write(user.root / "INFO", "[Version]\nbuild_version=3\n")
