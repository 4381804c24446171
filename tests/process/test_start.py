"""Starts from surroundings that are not a desktop's, and what a start leaves to the client."""
import fcntl
import os
import signal
import subprocess
from pathlib import Path

import pytest

import lines
from cell import NOBODY
from conftest import failure, rows
from user import start_x, until, write

# What a program that is started takes over from the one that starts it.
INHERITING = """#!/bin/sh
grep -E 'Sig(Blk|Ign)' /proc/self/status >>"$NOTES"
echo "platform=${QT_QPA_PLATFORM-unset}" >>"$NOTES"
"""


def locks(directory: Path) -> list[Path]:
    return list(directory.glob("qtsingleapp-*-lockfile"))


def has_upgraded(user, started) -> None:
    """The start ended with 0, and the log and the lock hold nothing that was not meant for them."""
    assert started.wait(timeout=60) == 0, started.err.read_text()
    user.copy_is(2)
    log = user.log()
    assert log[-1] == lines.DONE and all(line[0] == "[" for line in log), log
    assert [lock.stat().st_size for lock in locks(user.top)] == [0]


@pytest.mark.parametrize("command", rows("start", "closed streams"))
def test_closed_streams(user, command):
    user.install_copy(1)
    has_upgraded(user, user.start("bash", "-c", f"set -o pipefail; {command}", "sh"))
    user.started("start")


@failure("session-ends")
@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGHUP, signal.SIGINT])
def test_session_ends(user, number):
    user.install_copy(1)
    user.hold()
    started = user.start()
    until(user.log_file.exists, "the launcher is at work")
    while not user.notes.exists():
        started.send_signal(number)
        assert started.poll() is None
    assert started.out.read_text()  # at once, not at the end
    user.let_go()
    has_upgraded(user, started)
    user.started("start")


@failure("display-gone")
def test_display_goes_away(user):
    server = start_x(":78")
    user.install_copy(1)
    user.hold()
    started = user.start(QT_QPA_PLATFORM="xcb", DISPLAY=":78")
    until(user.notes.exists, "the client starts")
    server.kill()
    until(lambda: "X11 connection broke" in started.err.read_text(), "the launcher notices")
    user.let_go()
    started.wait(timeout=60)
    user.copy_is(2)
    assert user.log()[-1] == lines.DONE


@failure("no-thread", "no-process")
@pytest.mark.second_user
@pytest.mark.parametrize("processes", [1, 2, 3])
def test_no_more_processes(user, processes):
    """Threads count as well. What cannot be done is logged, and the launcher ends."""
    user.install_copy(2)
    user.give_away()
    # A search for leaks takes a process of its own.
    user.launch("prlimit", f"--nproc={processes}", ASAN_OPTIONS="detect_leaks=0")
    failed = "\n".join(line for line in user.log() if line.startswith("[ERROR]"))
    if processes == 1:
        assert "Failed to start the worker thread" in failed
    assert user.notes.exists() or "Failed to start the client" in failed


@failure("no-display")
@pytest.mark.parametrize("platform, session, through", rows("start", "no display"))
def test_no_display(user, platform, session, through):
    """The client takes over neither the platforms that were tried nor the launcher's handling of
    signals; those that the caller ignores stay ignored."""
    user.install_copy(2)
    write(user.app / "package/start-stop", INHERITING, 0o755)
    user.launch(through, QT_QPA_PLATFORM=platform, **session)
    platform = "unset" if platform is None else platform
    assert user.notes.read_text().split() == [
        "SigBlk:", "0" * 16, "SigIgn:", f"{int(through == 'nohup'):016}", f"platform={platform}"]


@pytest.mark.parametrize("way, plugins", rows("start", "ways"))
def test_ways_to_the_executable(user, way, plugins):
    """What lies beside a working directory or a link is never loaded."""
    user.launch("bash", "-c", way, "sh", plugins=plugins)
    user.copy_is(2)


@pytest.mark.parametrize("arguments, answer", rows("start", "questions"))
def test_questions(user, arguments, answer):
    user.install_copy(2)
    started = user.start("sh", "-c", f'exec "$@" {arguments}', "sh")
    if answer is None:
        user.wait(started)
        return user.started("start")
    assert started.wait(timeout=60) == 0
    assert started.out.read_text().startswith(answer) and not started.err.read_text()
    user.started()
    assert not user.log_file.exists() and not locks(user.top)


# ---- One instance

def runtime_directory(mode: int, owner: int) -> Path:
    """The directory of the user who runs the launcher, which nobody else has seen."""
    subprocess.run(["mount", "-t", "tmpfs", "tmpfs", "/run"], check=True)
    directory = Path(f"/run/user/{os.getuid()}")
    directory.mkdir(parents=True)
    directory.chmod(mode)
    os.chown(directory, owner, owner)
    return directory


@failure("second-start", "hanging-script")
def test_fifty_starts(user):
    user.install_copy(1)
    user.hold()
    started = [user.start() for _ in range(50)]
    until(lambda: sum(one.poll() is None for one in started) == 1, "all but one end")
    user.let_go()
    for one in started:
        user.wait(one)
    log = user.log()
    assert log.count(lines.ALREADY) == 49
    assert [line for line in log if line != lines.ALREADY] == lines.upgrade(
        user, 1, 2, lines.EXISTS, lines.NO_PID.format(user))
    user.copy_is(2)
    user.started("start")


@pytest.mark.parametrize("other_home", [False, True])
def test_one_instance_in_every_environment(user, other_home):
    """A second launcher from another kind of session finds the first."""
    directory = runtime_directory(0o700, os.getuid())
    user.install_copy(2)
    user.hold()
    first = user.start()
    until(user.notes.exists, "the client starts")
    assert locks(directory) and locks(user.top)
    if other_home:
        user.live_in("other")
    else:
        directory.rename("/run/user/gone")  # the user has logged out, and in again
    user.launch(XDG_RUNTIME_DIR=None)
    assert user.log()[-1] == lines.ALREADY
    user.let_go()
    user.wait(first)
    assert user.notes.read_text().count("start-stop") == 1


@pytest.mark.second_user
@pytest.mark.parametrize("mode, owner", [(0o755, 0), (0o770, 0), (0o700, NOBODY)])
def test_runtime_directory_is_not_the_users_own(user, mode, owner):
    directory = runtime_directory(mode, owner)
    user.install_copy(2)
    user.launch(XDG_RUNTIME_DIR=str(directory))
    assert not locks(directory) and locks(user.top)


@failure("no-lock")
@pytest.mark.second_user
@pytest.mark.parametrize("link, owner", [(Path.symlink_to, NOBODY), (Path.hardlink_to, 0)])
def test_lock_is_taken_by_somebody_else(user, link, owner):
    """In a directory that anybody may write to, the lock's name leads to a lock that is held."""
    user.install_copy(2)
    user.give_away()
    user.top.chmod(0o777)
    user.launch()
    (lock,) = locks(user.top)
    lock.unlink()
    held = write(user.top / "held", "", 0o666)
    os.chown(held, owner, owner)
    link(lock, held)
    with open(held, "r+b") as file:
        fcntl.lockf(file, fcntl.LOCK_EX)
        user.launch()
    user.started("start", "start")
