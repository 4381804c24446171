"""A user of the launcher: a home, a copy of the client, the starts and what they left."""
import functools
import hashlib
import os
import re
import shutil
import stat
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Callable, Optional

import cell
import lines
from lines import TREE

MAKE_PACKAGE = TREE / "packaging/make-package"
PRODUCT = ".Quillmere"
COMPONENTS = "launcher_debug", "service_debug", "extractor_debug"

# A start script that waits while $NOTES.hold exists, but not for ever, and notes its start.
START_STOP = """#!/bin/sh
echo "$0 $*" >>"$NOTES"
[ -z "$CLIENT" ] || "${0%/package/*}/bin/cloud-ui" >/dev/null 2>&1 &
while [ -e "$NOTES.hold" ] && [ "$((i += 1))" -lt 600 ]; do sleep 0.05; done
"""
# A client that writes its pid file and notes the signals that ask it to end.
CLOUD_UI = """#!/bin/sh
trap 'echo TERM >>"$NOTES"; [ "$CLIENT" = stubborn ] || exit 0' TERM
echo "pid=$$" >"$HOME/.Quillmere/ui.pid"
while :; do sleep 0.1 & wait $!; done
"""


def until(condition: Callable[[], object], what: str, seconds: float = 30) -> object:
    """Waits for `condition` and returns its value; fails with `what` when it takes too long."""
    end = time.monotonic() + seconds * slowness["factor"]
    while not (value := condition()):
        assert time.monotonic() < end, f"waited in vain: {what}"
        time.sleep(0.02)
    return value


def says(*question: str, display: str) -> str:
    """The answer about the root window of a display, empty when there is none."""
    return subprocess.run(["xprop", "-display", display, "-root", *question], text=True,
                          capture_output=True).stdout


def start_x(display: str) -> subprocess.Popen:
    """Starts an X server."""
    server = subprocess.Popen(["Xvfb", display, "-dpi", "96", "-noreset", "-nolisten", "tcp",
                               "-nolock"], stderr=subprocess.DEVNULL)
    until(lambda: says("_", display=display), "the X server answers")
    return server


def listing(top: Path) -> dict[str, tuple]:
    """What is below `top`: type and mode of each name, and a file's digest or a link's target."""
    found = {}
    for path in top.rglob("*"):
        mode = path.lstat().st_mode
        found[str(path.relative_to(top))] = stat.filemode(mode), (
            os.readlink(path) if stat.S_ISLNK(mode) else
            hashlib.sha1(path.read_bytes()).hexdigest() if stat.S_ISREG(mode) else "")
    return found


def write(path: Path, content, mode: int = 0o644) -> Path:
    """Makes a file, a new one where there was one."""
    path.parent.mkdir(parents=True, exist_ok=True)
    path.unlink(missing_ok=True)
    path.write_bytes(content.encode() if isinstance(content, str) else content)
    path.chmod(mode)
    return path


def make_client(top: Path, build: int, size: int = 1) -> Path:
    """A client of about 50 KB, or `size` times as much, with names and links of all sorts."""
    write(top / "package/start-stop", START_STOP, 0o755)
    write(top / "bin/cloud-ui", CLOUD_UI, 0o755)
    for n in range(3):
        write(top / f"lib/data/{n}", f"{build} {n}\n" * 4000 * size)
    write(top / "lib/Grüße aus 東京/100 %s.txt", f"build {build}\n")
    write(top / f"lib/only{build}", "")
    (top / "lib/link").symlink_to("Grüße aus 東京")
    return top


@dataclass
class Build:
    """A package root with the launcher, and a whole copy unpacked by other means."""
    root: Path
    copy: Path
    listing: dict


def make_builds(stage: Path, top: Path, size: int = 1) -> dict[int, Build]:
    """Two clients, packed into package roots with the launcher of `stage`: build 1, and build 2
    in a directory whose name is hard to handle."""
    builds = {}
    for number, name in (1, "first"), (2, "Zweites Päckchen '2'"):
        root = shutil.copytree(stage, top / name, symlinks=True)
        write(root / "log/launcher.debug", "".join(f"{c}=7\n" for c in COMPONENTS))
        client = make_client(top / f"client{number}", number, size)
        subprocess.run([MAKE_PACKAGE, "--client", client, "--build", str(number), "--root", root,
                        "--major", "3", "--minor", "4", "--icon-overlay", "7"], check=True,
                       stdout=subprocess.DEVNULL)
        copy = top / f"copy{number}"
        copy.mkdir()
        subprocess.run(["bsdtar", "-xpf", root / "package/quillmere.qpk", "-C", copy], check=True)
        builds[number] = Build(root, copy, listing(copy))
    return builds


slowness = {"factor": 1.0}


@functools.lru_cache
def sanitizer(launcher: Path) -> dict[str, str]:
    """The environment for a launcher that may be built with a sanitizer, and is slower then."""
    needed = subprocess.run(["ldd", launcher], capture_output=True, text=True).stdout
    if not any(f"lib{name}" in needed for name in ("asan", "tsan")):
        return {}
    slowness["factor"] = 6
    # The toolkit is not built for the sanitizer.
    env = {"UBSAN_OPTIONS": "halt_on_error=1:print_stacktrace=1", "LSAN_OPTIONS": "",
           "TSAN_OPTIONS": "ignore_noninstrumented_modules=1:"}
    for name in "lsan", "tsan":
        # The options are split at blanks, which the tree's own path may have.
        rules = shutil.copy(TREE / f"tests/{name}.supp", f"{cell.WORK}/{name}.{os.getpid()}")
        env[f"{name.upper()}_OPTIONS"] += (
            f"suppressions={rules}:fast_unwind_on_malloc=0:print_suppressions=0")
    return env


class User:
    """The home of one user on a machine whose package root is `root`; all of it lies in `dir`.

    Everything is root's own until `give_away` makes it an ordinary user's."""

    def __init__(self, directory: Path, builds: dict[int, Build]):
        self.dir = directory
        self.builds = builds
        self.root = builds[2].root
        self.as_nobody = False
        self.live_in("home")
        (self.dir / "run").mkdir(mode=0o700)
        self.dir.chmod(0o755)
        self.notes = self.dir / "notes"
        self.starts = 0

    def live_in(self, name: str) -> None:
        """Makes the directory `name` the home."""
        self.home = self.dir / name
        self.top = self.home / PRODUCT
        self.app = self.top / "app"
        self.pid_file = self.top / "ui.pid"
        self.log_file = self.top / "log/launcher.log"
        self.top.mkdir(parents=True, exist_ok=True)

    # ---- before a start

    def own_root(self) -> Path:
        """A package root that the row may change."""
        self.root = shutil.copytree(self.root, self.dir / "root", symlinks=True)
        return self.root

    def sh(self, command: str, cwd: str = ".", **env: object) -> None:
        """Runs shell commands beside the home, which find its places in variables."""
        places = {"home": self.home, "top": self.top, "app": self.app, "root": self.root,
                  "copy": self.dir / "copy", **env}
        subprocess.run(["bash", "-euc", f"umask 022; {command}"], cwd=self.dir / cwd, check=True,
                       env={**os.environ, **{name: str(value) for name, value in places.items()}})

    @property
    def package(self) -> Path:
        return self.root / "package/quillmere.qpk"

    def install_copy(self, build: int) -> None:
        subprocess.run(["cp", "-a", self.builds[build].copy, self.app], check=True)

    def give_away(self) -> None:
        """Makes the home an ordinary user's, as whom the launcher runs from now on."""
        owner = f"{cell.NOBODY}:{cell.NOBODY}"
        subprocess.run(["chown", "-R", owner, self.home, self.dir / "run"], check=True)
        os.chown(self.dir, cell.NOBODY, cell.NOBODY)
        self.as_nobody = True

    def hold(self) -> None:
        """Makes start scripts wait until `let_go`."""
        Path(f"{self.notes}.hold").touch()

    def let_go(self) -> None:
        Path(f"{self.notes}.hold").unlink()

    # ---- starts

    def environment(self, **changes: Optional[str]) -> dict[str, str]:
        """What a launcher is started with, and nothing else; None takes a variable away."""
        env = {"PATH": os.environ["PATH"], "HOME": str(self.home), "LC_ALL": "C.UTF-8",
               "XDG_RUNTIME_DIR": str(self.dir / "run"), "TMPDIR": str(self.dir),
               "NOTES": str(self.notes), "QT_QPA_PLATFORM": "offscreen",
               **sanitizer(self.root / "bin/launcher"), **changes}
        return {name: value for name, value in env.items() if value is not None}

    def start(self, *through, **changes: Optional[str]) -> subprocess.Popen:
        """Starts the launcher, through the command `through` when there is one."""
        self.starts += 1
        if "strace" in through:  # a search for leaks traces the process, too
            changes["ASAN_OPTIONS"] = "detect_leaks=0"
        env = self.environment(**changes)
        if self.as_nobody:
            through = ("setpriv", f"--reuid={cell.NOBODY}", f"--regid={cell.NOBODY}",
                       "--clear-groups", *through)
        out, err = self.dir / f"out{self.starts}", self.dir / f"err{self.starts}"
        with open(out, "wb") as out_file, open(err, "wb") as err_file:
            started = subprocess.Popen([*through, self.root / "bin/launcher"], env=env,
                                       cwd=self.dir, stdin=subprocess.DEVNULL,
                                       stdout=out_file, stderr=err_file)
        started.out, started.err = out, err
        return started

    def wait(self, started: subprocess.Popen, plugins=None) -> str:
        """Waits for a start: it ends with 0 and has printed its line. Returns its errors."""
        code = started.wait(timeout=60 * slowness["factor"])
        errors = started.err.read_text(errors="replace")
        assert code == 0, errors
        line = f"lib path = '{plugins or self.root / 'lib/plugins'}'\n"
        assert started.out.read_text() == line
        return errors

    def launch(self, *through, plugins=None, **changes: Optional[str]) -> str:
        return self.wait(self.start(*through, **changes), plugins)

    # ---- after a start

    def log(self, errors: str = "") -> list[str]:
        """The log and `errors` without time stamps, and without free line numbers."""
        text = self.log_file.read_text(errors="replace") if self.log_file.is_file() else ""
        text = re.sub(r"(?m)^[A-Z][a-z]{2} \d\d \d\d:\d\d:\d\d ", "", text + errors)
        free = r" (cloud-service|extractor|file-op|startup|libarchive)\(\d+\)"
        return re.sub(free, r" \1(N)", text).splitlines()

    def has(self, *wanted: str, errors: str = "") -> None:
        """Each of `wanted`, a line or a name in `lines`, is in the log, as often as it is given;
        "..." stands for any text."""
        log = self.log(errors)
        for line in wanted:
            text = getattr(lines, line, line).format(self)
            pattern = ".*".join(re.escape(part) for part in text.split("..."))
            found = [said for said in log if re.fullmatch(pattern, said)]
            assert len(found) >= wanted.count(line), (text, log)

    def copy_is(self, build: int, backups: int = 0) -> None:
        """The copy is that build's, whole, and this many backups are beside it."""
        assert listing(self.app) == self.builds[build].listing
        assert len(list(self.top.glob("app_*"))) == backups

    def started(self, *notes: str) -> None:
        """What the copies have noted, "start" for a start of the start script: nothing else."""
        start = f"{self.app}/package/start-stop start"
        found = self.notes.read_text().splitlines() if self.notes.exists() else []
        assert found == [start if note == "start" else note for note in notes]

    def client_pid(self) -> int:
        """The process in the pid file, 0 while there is none."""
        text = self.pid_file.read_text() if self.pid_file.is_file() else ""
        return int(text[4:]) if re.fullmatch(r"pid=\d+\n", text) else 0


def runs(pid: int) -> bool:
    """Whether there is such a process, and it has not ended."""
    try:
        return Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0] != "Z"
    except (OSError, IndexError):
        return False
