"""What starts leave: the user's copy, the log, and the start script run."""
import subprocess

import pytest

import lines
from conftest import rows
from faults import strace
from user import make_builds

# How a start can end: the build in place and the lines of the log; 0 where the row itself tells.
ENDS = {
    "replaced": (2, "READY"),
    "kept": (1, "NO_NEED"),
    "rolled back": (1, "ROLLED_BACK", "[ERROR] extractor(N): ...", "FAILED", "DONE"),
    "failed": (1, "FAILED"),
    "no copy": (0, "FAILED"),
    "silent": (2,),   # the log stays empty
    "ended": (1,),    # with another exit code than 0
    "started": (0, "DONE"),
}
# What the rows' commands have at hand: a copy of build 2 to pack, and packing parts of it.
COMMANDS = """export LC_ALL=C
qpk=$root/package/quillmere.qpk level=$root/log/launcher.debug
libarchive=$(/sbin/ldconfig -p | sed -n 's|.* => \\(.*/libarchive.so.*\\)|\\1|p' | head -n 1)
version() { printf '[Version]\\nbuild_version=%s\\n' "$2" >$1/INFO; }
pack() { tar -b 1 -C $copy -cf $qpk $1; }
pack_more() {  # NAMES TRANSFORMATION OPTION...
    names=$1 rename=$2; shift 2
    tar -b 1 -P -C $copy "$@" --transform "$rename" -rf $qpk $names
}
mkdir lib
"""


@pytest.mark.parametrize("name, locale", rows("upgrade", "new user"))
def test_new_user(user, name, locale):
    user.live_in(name)
    user.launch(LC_ALL=locale)
    user.launch(LC_ALL=locale)
    assert user.log() == lines.upgrade(user, None, 2) + lines.run(2, 2, lines.NO_NEED)
    user.copy_is(2)
    user.started("start", "start")


@pytest.mark.parametrize("size, after", [(None, 2), (9, 1), (6, 1)])
def test_large_client(user, stage, size, after):
    """A part of its files is sent to the disk by a thread of its own; without room for all too."""
    user.builds = make_builds(stage, user.dir / "large", 100)
    user.root = user.builds[2].root
    if size:
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}m", "tmpfs", user.home],
                       check=True)
        user.top.mkdir()
    user.install_copy(1)
    user.launch()
    user.copy_is(after)
    user.started("start")


@pytest.mark.parametrize("row", rows("upgrade", "start"))
def test_start(user, row):
    """Most rows spoil something of a user with build 1 and a package root with build 2."""
    copy, end = row.get("copy", 1), row["end"]
    user.own_root()
    if copy:
        user.install_copy(copy)
    if row.get("nobody"):
        user.give_away()
    subprocess.run(["cp", "-a", user.builds[2].copy, user.dir / "copy"], check=True)
    user.sh(COMMANDS + row["do"])
    through = strace(user, "-e", f"inject={row['inject']}") if "inject" in row else []
    errors, check = "", row.get("check", "")
    for _ in range(row.get("launches", 1)):
        started = user.start(*through, LD_LIBRARY_PATH=str(user.dir / "lib"),
                             **row.get("env", {}))
        if end == "ended":
            assert started.wait() != 0
        else:
            errors += user.wait(started)
        user.sh(check, old=user.builds[1].copy)
        through, check = [], ""  # of the first one
    build, *said = ENDS[end]
    user.has(*said, *row.get("said", []), errors=errors)
    assert end != "silent" or user.log() == []
    if build:
        user.copy_is(build, row.get("backups", 0))
    user.started(*["start"] * row.get("starts", 1))
