"""Pid files that name another process by now. Numbers are given out anew in the cell of the row."""
import os
import shutil
import subprocess
import time
from pathlib import Path

from conftest import failure
from user import runs, write

DAYS = 3 * 24 * 3600


def start_with_number(number: int, *command: str) -> subprocess.Popen:
    """Starts `command` as the process `number`, which nobody else must have."""
    Path("/proc/sys/kernel/ns_last_pid").write_text(str(number - 1))
    started = subprocess.Popen(command)
    assert started.pid == number
    return started


def start_younger(user, program: str) -> int:
    """Starts a process that is three days younger than the pid file that names it."""
    user.install_copy(1)
    number = subprocess.Popen([program, "200"]).pid
    write(user.pid_file, f"pid={number}\n")
    os.utime(user.pid_file, (time.time() - DAYS,) * 2)
    user.launch()
    return number


@failure("stepped-clock")
def test_client_that_looks_younger(user):
    """Its place tells that it is the client, and that it was the clock that was set."""
    shutil.copy("/bin/sleep", user.top / "sleep")
    assert not runs(start_younger(user, str(user.top / "sleep")))


@failure("recycled-pid")
def test_number_of_a_younger_process(user):
    assert runs(start_younger(user, "sleep"))
    user.has(f"[DEBUG] linux/linux-service(76): pid file '{user.pid_file}' does not exist, "
             "no need to terminate")
    user.copy_is(2)


def test_number_taken_over_while_waiting(user):
    """The client ends after two seconds, and somebody else has its number when it would be killed
    for not having ended."""
    user.install_copy(1)
    number = 5000
    client = start_with_number(number, "sh", "-c", "trap 'sleep 2; exit' TERM; sleep 200 & wait")
    write(user.pid_file, f"pid={number}\n")
    started = user.start()
    client.wait()
    bystander = start_with_number(number, "sleep", "200")
    user.wait(started)
    user.copy_is(2)
    assert runs(bystander.pid)
