"""The running client: which process is asked to end, how long it is given, and who is spared."""
import os
import shutil
import subprocess
import time
from pathlib import Path

import pytest

import lines
from conftest import failure
from user import runs, slowness, until, write


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


@pytest.mark.xdist_group("display")
def test_window_while_upgrading(user, display):
    """Neither Escape nor the window manager closes the window, which the start script keeps."""
    def x(*command: str) -> str:
        env = {**os.environ, "DISPLAY": display}
        return subprocess.run(command, env=env, check=True, capture_output=True, text=True,
                              timeout=60).stdout

    old = start_client(user, "stubborn")
    user.hold()
    started = user.start(CLIENT="stubborn", QT_QPA_PLATFORM=None, DISPLAY=display)
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

NO_CLIENT, SECOND_USER = "sleep 200", pytest.mark.second_user
DAYS = 3 * 24 * 3600


def start_with_number(number: int, *command: str) -> subprocess.Popen:
    """Starts `command` as the process `number`, which nobody else must have."""
    Path("/proc/sys/kernel/ns_last_pid").write_text(str(number - 1))
    started = subprocess.Popen(command)
    assert started.pid == number
    return started


# The text with the number of a process that leads a group of its own, the line, what that runs
@pytest.mark.parametrize("text, line, command", [
    pytest.param(None, lines.no_pid, NO_CLIENT, marks=failure("no-pid")),
    ("pid=-{}\n", lines.no_pid, NO_CLIENT),
    ("pid=0\n", lines.no_pid, NO_CLIENT),
    ("pid=-1\n", lines.no_pid, NO_CLIENT),
    pytest.param("pid={}\nno line\n", lines.bad_pid, NO_CLIENT, marks=failure("bad-pid-file")),
    ("pid={} x", lines.bad_pid, NO_CLIENT),
    pytest.param("locked pid={}\n", lines.bad_pid, NO_CLIENT, marks=SECOND_USER),
    pytest.param("pid={}\n", None, "true", marks=failure("client-gone")),
    pytest.param("pid={}\n", lambda user: "[ERROR] linux/linux-service(96): kill: Operation not "
                 "permitted (1)", NO_CLIENT, marks=[SECOND_USER, failure("foreign-client")]),
])
def test_pid_file(user, text, line, command):
    """Whoever is not this user's client goes on, and nobody else is waited for."""
    user.install_copy(1)
    bystander = subprocess.Popen(command.split(), start_new_session=True)
    if command == "true":
        bystander.wait()
    if text:
        write(user.pid_file, text.removeprefix("locked ").format(bystander.pid))
    if line not in (None, lines.no_pid, lines.bad_pid) or "locked" in (text or ""):
        user.give_away()
    if text and text.startswith("locked"):
        os.chown(user.pid_file, 0, 0)
        user.pid_file.chmod(0)
    begin = time.monotonic()
    user.launch()
    took = time.monotonic() - begin
    assert user.log() == lines.upgrade(user, 1, 2, lines.EXISTS, *([line(user)] if line else []))
    user.copy_is(2)
    user.started("start")
    assert runs(bystander.pid) == (command == NO_CLIENT)
    assert took < 4 * slowness() or line not in (None, lines.no_pid, lines.bad_pid)


@pytest.mark.parametrize("is_client", [
    pytest.param(True, marks=failure("stepped-clock")),
    pytest.param(False, marks=failure("recycled-pid"))])
def test_process_younger_than_the_file(user, is_client):
    """The place of its program tells a client whose clock was set from somebody else."""
    user.install_copy(1)
    program = shutil.copy("/bin/sleep", user.top) if is_client else "sleep"
    process = subprocess.Popen([program, "200"])
    write(user.pid_file, f"pid={process.pid}\n")
    os.utime(user.pid_file, (time.time() - DAYS,) * 2)
    user.launch()
    assert runs(process.pid) != is_client
    assert is_client or lines.no_pid(user) in user.log()
    user.copy_is(2)


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
