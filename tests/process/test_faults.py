"""Upgrades that are disturbed in every way we know. A whole copy, old or new, has to be in place
after each start, and started. Without --full a sample of each campaign."""
import subprocess

import pytest

from conftest import failure
from faults import READS, calls, errors_of, force_upgrade, inject, new_home, whole_and_started
from user import write

pytestmark = pytest.mark.faults


# ---- What is wrong with a start; what it has to be started through, too

def damaged(user):
    """Without checksums the damage shows only when most is unpacked."""
    archive = subprocess.run(["tar", "-C", user.builds[2].copy, "-c", "lib", "package", "bin",
                              "INFO"], check=True, capture_output=True).stdout
    write(user.package, archive[:len(archive) * 2 // 3])


def missing(user):
    user.package.unlink()


def resize(user, size):
    """With type and source, without which an ordinary user's namespace has no remounting."""
    user.sh(f"mount -t tmpfs -o remount,size={size} tmpfs $home")


def full_disk(user):
    resize(user, "$(($(df -k --output=used $home | tail -n 1)))k")


def no_thread(user):
    """Processes can be had, but no thread to do the work."""
    return ["strace", "-qq", "-b", "execve", "-o", str(user.dir / "trace"),
            "-e", "inject=clone3:error=EAGAIN"]


def undisturbed(user):
    pass


@failure("killed-early", "killed-unpacking", "killed-late", "no-thread")
@pytest.mark.parametrize("way", [undisturbed, damaged, missing, full_disk, no_thread])
def test_killed_then(user, share, way):
    """Killed at each call that changes a file, then an attempt that fails, then one that does
    not: nothing is left in the end."""
    user.own_root()
    good = user.package.read_bytes()
    new_home(user)
    places = [place for place in calls(user) if place[0] not in READS]
    assert len(places) > 30
    user.sh("mount -t tmpfs tmpfs $home")
    for call, number in share(places, 16):
        resize(user, "64m")
        new_home(user)
        write(user.package, good)
        write(user.root / "INFO", "[Version]\nbuild_version=2\n")
        killed = user.start(*inject(user, call, number, "signal=SIGKILL"))
        assert killed.wait() == -9, (call, number)
        user.notes.unlink(missing_ok=True)
        force_upgrade(user)
        through = way(user) or []
        try:
            user.launch(*through)
            whole_and_started(user)
            assert way is not no_thread or "Failed to start the worker" in "".join(user.log())
            resize(user, "64m")
            write(user.package, good)
            user.launch()
            assert whole_and_started(user) == 2
            user.copy_is(2)
        except AssertionError as wrong:
            raise AssertionError(f"killed at {call} {number}, then {way.__name__}") from wrong


def test_failing_calls(user, share):
    """Each call fails once, with each error that it can give."""
    new_home(user)
    places = [(*place, error) for place in calls(user) for error in errors_of(place[0])]
    kept = 0
    for call, number, error in share(places, 24):
        new_home(user)
        user.launch(*inject(user, call, number, f"error={error}"))
        kept += whole_and_started(user) == 1
        assert "INJECTED" in (user.dir / "trace").read_text(errors="replace"), (call, number)
    print(f"the old copy kept {kept} times")
