"""Namespaces: what a row of tests starts, signals or mounts stays inside and ends with it.

The whole run lives in process-id, mount and network namespaces of its own, with a disk in memory
at WORK, so that nothing of the machine can be signalled, connected to or written over. Each row
then runs in a cell: once more process ids and mounts of its own. A launcher that signals every
process it can see ends the row and no other, and when the row has ended nothing of it is left.
"""
import ctypes
import os
import pickle
import signal
import subprocess
import sys
from typing import Callable

WORK = "/dev/shm"  # where every machine has a directory; the disk is seen by this run alone
SOCKETS = "/tmp/.X11-unix"  # the X servers', likewise; and /run, where locks may lie
INSIDE = "QUILLMERE_TESTS_INSIDE"
NOBODY = 65534  # a user and a group, the second ones where there are any
EXIT_CANNOT = 77

CLONE_NEWNS, CLONE_NEWPID = 0x00020000, 0x20000000
PR_SET_PDEATHSIG = 1
libc = ctypes.CDLL(None, use_errno=True)


def enter(command: list[str]) -> int:
    """Runs `command` in namespaces of its own and returns its exit code, EXIT_CANNOT when there
    are none to be had. An ordinary user becomes root there, with other ids where newuidmap
    gives some."""
    users = [[]] if os.getuid() == 0 else [["--map-root-user", "--map-auto"], ["--map-root-user"]]
    for user in users:
        unshare = ["unshare", *user, "--pid", "--mount", "--net", "--fork", "--mount-proc",
                   "--kill-child"]
        if subprocess.run([*unshare, "true"], stderr=subprocess.DEVNULL).returncode == 0:
            break
    else:
        print("namespaces cannot be made here: nothing was tested", file=sys.stderr)
        return EXIT_CANNOT
    # A process group reaches through namespaces, hence the session of its own. The shell is the
    # first process: it takes leave of every process that has lost its parent.
    script = f"""mount -t tmpfs -o mode=755 tmpfs {WORK} && mkdir -p {SOCKETS} &&
                 mount -t tmpfs -o mode=1777 tmpfs {SOCKETS} &&
                 mount -t tmpfs -o mode=755 tmpfs /run || exit
                 setsid --wait "$@"; exit $?"""
    return subprocess.run([*unshare, "sh", "-c", script, "sh", *command],
                          env={**os.environ, INSIDE: "1", "TMPDIR": WORK}).returncode


def has_second_user() -> bool:
    with open("/proc/self/uid_map", encoding="ascii") as lines:
        return any(int(first) <= NOBODY < int(first) + int(count)
                   for first, _, count in (line.split() for line in lines))


def _system(result: int) -> None:
    if result != 0:
        raise OSError(ctypes.get_errno(), os.strerror(ctypes.get_errno()))


def _first_process(child: int) -> None:
    """Waits until everybody's `child` has ended; the kernel then ends all others."""
    while os.wait()[0] != child:
        pass
    os._exit(0)


def _keeper(work: Callable[[], object], write: int) -> None:
    """The cell's outside: ends when the cell does, and the cell with it."""
    _system(libc.unshare(CLONE_NEWNS | CLONE_NEWPID))
    first = os.fork()
    if first != 0:
        os.close(write)
        os.waitpid(first, 0)
        os._exit(0)
    _system(libc.prctl(PR_SET_PDEATHSIG, signal.SIGKILL))
    _system(libc.mount(b"proc", b"/proc", b"proc", 0, None))
    worker = os.fork()
    if worker != 0:
        os.close(write)
        _first_process(worker)
    os.setsid()
    outcome = pickle.dumps(work())
    sys.stdout.flush()
    sys.stderr.flush()
    while outcome:
        outcome = outcome[os.write(write, outcome):]
    os._exit(0)


def run(work: Callable[[], object]) -> object:
    """What `work`, called in a cell, returns; None when it ended without a word."""
    sys.stdout.flush()
    sys.stderr.flush()
    read, write = os.pipe()
    keeper = os.fork()
    if keeper == 0:
        try:
            os.close(read)
            _keeper(work, write)
        finally:
            os._exit(1)  # never back into the caller's copy
    os.close(write)
    try:
        with os.fdopen(read, "rb") as pipe:
            said = pipe.read()
    finally:
        os.kill(keeper, signal.SIGKILL)
        os.waitpid(keeper, 0)
    return pickle.loads(said) if said else None
