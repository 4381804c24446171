"""The running client: which process is asked to end, how long it is given, and who is spared."""
import os
import subprocess
import time

import pytest

import lines
from conftest import failure
from user import runs, until, write


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


# ---- Pid files. Beside the launcher there is a process that leads a group of its own.

BYSTANDER = "BYSTANDER"
NO_PROCESS = ["name=x\n", "pid=\"\"", "pid=x1", "pid=0", "pid=-1", f"pid=-{BYSTANDER}",
              "pid=99999999999999999999", "pid=4294967295", "pid=18446744073709551615",
              "pid=2147483648", ""]
MALFORMED = [f"pid={BYSTANDER}\nno line\n", "pid=", f"pid={BYSTANDER} x"]
SECOND_USER = pytest.mark.second_user
PID_FILES = [
    pytest.param("missing", lines.no_pid, marks=failure("no-pid")),
    *((text, lines.no_pid) for text in NO_PROCESS),
    ("its own", lines.no_pid),
    pytest.param("directory", lines.bad_pid, marks=failure("bad-pid-file")),
    *((text, lines.bad_pid) for text in MALFORMED),
    pytest.param("locked", lines.bad_pid, marks=SECOND_USER),
    pytest.param("gone", None, marks=failure("client-gone")),
    pytest.param("somebody else's", lambda user: "[ERROR] linux/linux-service(96): kill: "
                 "Operation not permitted (1)", marks=[SECOND_USER, failure("foreign-client")]),
]


@pytest.mark.parametrize("text, line", PID_FILES)
def test_pid_file(user, text, line):
    user.install_copy(1)
    bystander = subprocess.Popen(["sleep", "200"], start_new_session=True)
    through = []
    if text == "directory":
        user.pid_file.mkdir()
    elif text == "locked":
        write(user.pid_file, f"pid={bystander.pid}\n", 0)
    elif text == "gone":
        gone = subprocess.Popen(["true"])
        gone.wait()
        write(user.pid_file, f"pid={gone.pid}\n")
    elif text == "its own":
        through = ["sh", "-c", f'echo "pid=$$" >"{user.pid_file}"; exec "$@"', "sh"]
    elif text == "somebody else's":
        write(user.pid_file, f"pid={bystander.pid}\n")
    elif text != "missing":
        write(user.pid_file, text.replace(BYSTANDER, str(bystander.pid)))
    if text in ("locked", "somebody else's"):
        user.give_away()
        if text == "locked":
            os.chown(user.pid_file, 0, 0)
    begin = time.monotonic()
    user.launch(*through)
    took = time.monotonic() - begin
    assert user.log() == lines.upgrade(user, 1, 2, lines.EXISTS, *([line(user)] if line else []))
    user.copy_is(2)
    user.started("start")
    assert runs(bystander.pid)
    assert text == "somebody else's" or took < 4  # nobody is waited for
