"""The running client: which process is asked to end, how long it is given, and who is spared."""
import os
import shutil
import subprocess
import time
from pathlib import Path

import pytest

import lines
from cell import NOBODY
from conftest import failure, rows
from user import runs, says, slowness, start_x, until, write


def start_client(user, kind: str) -> int:
    """An earlier start of build 1's launcher starts the client: its process."""
    user.install_copy(1)
    user.root = user.builds[1].root
    user.launch(CLIENT=kind)
    user.root = user.builds[2].root
    user.log_file.unlink()
    return until(user.client_pid, "the client's pid file")


def upgrade_beside(user, kind: str, old: int, started) -> None:
    user.wait(started)
    until(lambda: not runs(old), "the old client ends")
    user.started("start", "TERM", "start")
    user.copy_is(2)
    assert user.log() == lines.upgrade(user, 1, 2, lines.EXISTS)
    until(lambda: user.client_pid() not in (0, old) and runs(user.client_pid()), "a new client")


@pytest.mark.parametrize("kind, least, most", [
    ("plain", 0, 4), pytest.param("stubborn", 5, 9, marks=failure("stubborn-client"))])
def test_running_client(user, kind, least, most):
    old = start_client(user, kind)
    begin = time.monotonic()
    upgrade_beside(user, kind, old, user.start(CLIENT=kind))
    assert least <= time.monotonic() - begin < most * 2


def test_window_while_upgrading(user):
    """Neither Escape nor the window manager closes the window, which the start script keeps."""
    env = {**os.environ, "DISPLAY": ":79", "HOME": str(user.home)}

    def x(*command: str) -> str:
        return subprocess.run(command, env=env, check=True, capture_output=True, text=True,
                              timeout=60).stdout

    start_x(":79")
    subprocess.Popen(["openbox"], env=env, stderr=subprocess.DEVNULL)
    until(lambda: "=" in says("_NET_SUPPORTED", display=":79"), "the window manager answers")
    old = start_client(user, "stubborn")
    user.hold()
    started = user.start(CLIENT="stubborn", QT_QPA_PLATFORM=None, DISPLAY=":79")
    window = x("xdotool", "search", "--sync", "--onlyvisible", "--name",
               "^Parvenor Quillmere$").strip()
    assert '"parvenor-quillmere"' in x("xprop", "-id", window, "WM_CLASS")
    x("xdotool", "windowactivate", "--sync", window, "key", "Escape")
    # Without its hints the window manager closes a window that has no close button, too.
    x("xprop", "-id", window, "-remove", "_MOTIF_WM_HINTS")
    x("xdotool", "key", "alt+F4")
    until(lambda: user.notes.read_text().count("\n") == 3, "the new copy starts")
    assert "Map State: IsViewable" in x("xwininfo", "-id", window)
    user.let_go()
    upgrade_beside(user, "stubborn", old, started)


# ---- Pid files. Numbers of processes are given out anew in the cell of the row.

def start_with_number(number: int, *command: str) -> subprocess.Popen:
    """Starts `command` as the process `number`, which nobody else must have."""
    Path("/proc/sys/kernel/ns_last_pid").write_text(str(number - 1))
    started = subprocess.Popen(command)
    assert started.pid == number
    return started


@pytest.mark.parametrize("row", rows("client", "pid file"))
def test_pid_file(user, row):
    """Whoever is not this user's client goes on, and nobody else is waited for. The place of its
    program tells a client whose clock was set from somebody else."""
    user.install_copy(1)
    shutil.copy("/bin/sleep", user.top)
    program = user.top / "sleep" if row.get("own") else "/bin/sleep"
    bystander = subprocess.Popen([program, "200"], start_new_session=True)
    if row.get("nobody"):
        user.give_away()
    user.sh(row["do"], pid=bystander.pid, nobody=NOBODY)
    begin = time.monotonic()
    user.launch()
    assert row.get("waits") or time.monotonic() - begin < 4 * slowness["factor"]
    said = [getattr(lines, row["said"], row["said"]).format(user)] if "said" in row else []
    assert user.log() == lines.upgrade(user, 1, 2, lines.EXISTS, *said)
    user.copy_is(2)
    user.started("start")
    assert runs(bystander.pid) != row.get("ended", False)


def test_number_taken_over_while_waiting(user):
    """Somebody else has the client's number when that would be killed for not having ended."""
    user.install_copy(1)
    client = start_with_number(5000, "sh", "-c", "trap 'sleep 2; exit' TERM; sleep 200 & wait")
    write(user.pid_file, "pid=5000\n")
    started = user.start()
    client.wait()
    bystander = start_with_number(5000, "sleep", "200")
    user.wait(started)
    user.copy_is(2)
    assert runs(bystander.pid)
