"""Pid files that name another process by now. Numbers are given out anew in the cell of the row."""
import subprocess
import time
from pathlib import Path

from user import runs, write

DAYS = 3 * 24 * 3600


def start_with_number(number: int, *command: str) -> subprocess.Popen:
    """Starts `command` as the process `number`, which nobody else must have."""
    Path("/proc/sys/kernel/ns_last_pid").write_text(str(number - 1))
    started = subprocess.Popen(command)
    assert started.pid == number
    return started


def test_number_of_a_younger_process(user):
    user.install_copy(1)
    bystander = subprocess.Popen(["sleep", "200"])
    write(user.pid_file, f"pid={bystander.pid}\n")
    subprocess.run(["touch", "-d", f"@{int(time.time()) - DAYS}", user.pid_file], check=True)
    user.launch()
    user.has(f"[DEBUG] linux/linux-service(76): pid file '{user.pid_file}' does not exist, "
             "no need to terminate")
    user.copy_is(2)
    assert runs(bystander.pid)


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
