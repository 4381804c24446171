"""What starts leave: the user's copy, the log, and the start script run."""
def test_nothing_to_do(user):
    user.install_copy(2)
    user.launch()
    user.copy_is(2)
    user.started("start")
