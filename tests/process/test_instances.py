"""One launcher at a time for a user and a package root."""
import os
import stat

import pytest

import lines
from conftest import failure
from user import until


def locks(directory):
    return list(directory.glob("qtsingleapp-*-lockfile"))


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
        user, 1, 2, lines.EXISTS, lines.no_pid(user))
    user.copy_is(2)
    user.started("start")


def test_killed_launcher(user):
    user.install_copy(2)
    user.hold()
    killed = user.start()
    until(user.notes.exists, "the start script runs")
    killed.kill()
    killed.wait()
    user.let_go()
    user.launch()
    run = lines.run(2, 2, lines.NO_NEED)
    assert user.log() == run[:-1] + run


@pytest.mark.parametrize("mode, used", [(0o700, True), (0o755, False)])
def test_runtime_directory(user, mode, used):
    user.install_copy(2)
    (user.dir / "run").chmod(mode)
    user.launch()
    assert bool(locks(user.dir / "run")) == used and bool(locks(user.dir)) != used


@pytest.mark.second_user
@pytest.mark.parametrize("kind", ["link", "somebody else's"])
def test_hostile_lock(user, kind):
    """In a directory that anybody may write to, the lock's name leads to a lock that is held."""
    user.install_copy(2)
    user.give_away()
    user.dir.chmod(0o777)
    user.launch(XDG_RUNTIME_DIR="")
    lock, = locks(user.dir)
    lock.unlink()
    user.hold()
    own = user.root
    if kind == "link":
        user.root = user.builds[1].root
    else:
        user.as_nobody = False
    holder = user.start(XDG_RUNTIME_DIR="")
    until(lambda: user.notes.read_text().count("\n") == 2, "the lock is held")
    held, = locks(user.dir)
    held.chmod(0o666)
    (os.symlink if kind == "link" else os.link)(held, lock)
    user.as_nobody, user.root = True, own
    user.launch(XDG_RUNTIME_DIR="", NOTES=str(user.dir / "second"))
    assert (user.dir / "second").exists()
    assert holder.poll() is None


@pytest.mark.second_user
def test_two_users(user):
    """Both have their locks in the same directory; the second starts while the first one runs."""
    user.install_copy(1)
    user.dir.chmod(0o777 | stat.S_ISVTX)
    user.hold()
    first = user.start(XDG_RUNTIME_DIR="")
    until(user.notes.exists, "the first start script runs")
    user.live_in("second home")
    user.install_copy(1)
    user.give_away()
    user.launch(XDG_RUNTIME_DIR="", NOTES=str(user.dir / "second"))
    assert user.log() == lines.upgrade(user, 1, 2, lines.EXISTS, lines.no_pid(user))
    user.copy_is(2)
    assert len(locks(user.dir)) == 2
    user.let_go()
    user.wait(first)
