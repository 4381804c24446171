"""One launcher at a time for a user and a package root."""
import lines
from conftest import failure
from user import until


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
