"""A loss of power at any place of an upgrade leaves a whole copy, old or new, to start."""
import shutil

import pytest

import power
from faults import force_upgrade, new_home, whole_and_started
from test_faults import damaged, missing
from user import User, write

pytestmark = pytest.mark.faults


def record(user: User, *options: str) -> power.Recording:
    """What a start changes in the home as it is, when strace has these options, too."""
    shutil.rmtree(user.top / "log", ignore_errors=True)
    before = power.read_tree(user.top)
    trace = user.dir / "power"
    user.launch("strace", "-ff", "-qq", "-y", "-b", "execve", "-s", "4096", "-e",
                f"trace={power.CALLS}", "-o", str(trace), *options)
    worker, = [text for path in user.dir.glob("power.*")
               if "rename(" in (text := path.read_text(errors="replace"))]
    for path in user.dir.glob("power.*"):
        path.unlink()
    user.notes.unlink(missing_ok=True)
    return power.Recording(user.top, before, power.read_tree(user.builds[2].copy), worker)


def put(user: User, state: power.Node) -> None:
    shutil.rmtree(user.top)
    power.write_tree(state, user.top)


def rolled_back(user):
    damaged(user)
    return record(user)


def rolled_back_late(user):
    """The barrier behind the last entry fails: the copy to be removed is a whole one."""
    return record(user, "-e", "inject=syncfs:error=EIO:when=2")


def recovered(user):
    """The next start after a kill in the middle puts the old copy back."""
    recording = record(user)
    put(user, recording.replay(len(recording.changes) // 2, set(), False))
    return record(user)


@pytest.mark.parametrize("history", [record, rolled_back, rolled_back_late, recovered])
def test_power_lost(user, share, history):
    user.own_root()
    good = user.package.read_bytes()
    new_home(user)
    recording = history(user)
    if history is record:
        shutil.rmtree(user.top / "log")
        for lock in user.top.glob("*-lockfile"):
            lock.unlink()
        assert recording.end == power.digest(power.read_tree(user.top))
    force_upgrade(user)
    print(f"{len(recording.changes)} changes")
    for what, state in share(list(power.states(recording, 150)), 60):
        put(user, state)
        if user.package.exists():
            missing(user)
        user.launch()
        try:
            whole_and_started(user)
            write(user.package, good)
            user.launch()
            assert whole_and_started(user) == 2
        except AssertionError as wrong:
            raise AssertionError(what) from wrong
