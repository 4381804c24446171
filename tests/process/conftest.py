"""Options and fixtures of the process tests; see cell.py for where their rows run."""
import json
import os
import shutil
import subprocess
import sys
from pathlib import Path

import pytest

import cell

pytest.register_assert_rewrite("user")
from user import Build, User, make_builds  # noqa: E402

TREE = Path(__file__).resolve().parents[2]


def failure(*ids: str):
    """Marks a test that shows what these rows of docs/failures.md promise; see test_pages.py."""
    return pytest.mark.failure(*ids)


def rows(file: str, table: str) -> list:
    """The rows of a table of tests/data, by name, with the marks that they ask for: an object is
    one argument of the test, a list has one each. Its "failure" is what failure() takes."""
    found = json.loads((TREE / f"tests/data/{file}.json").read_text())[table]
    return [pytest.param(*row if isinstance(row, list) else [row], id=name,
                         marks=[pytest.mark.second_user] if "nobody" in row else [])
            for name, row in found.items()]


def pytest_addoption(parser):
    parser.addoption("--build", default=TREE / "build/dev", type=Path,
                     help="build tree to stage the launcher from (build/dev)")
    parser.addoption("--stage", type=Path, help="staged tree to use instead of making one")
    parser.addoption("--full", action="store_true", help="whole campaigns instead of samples")


@pytest.hookimpl(tryfirst=True)
def pytest_cmdline_main(config):
    if cell.INSIDE not in os.environ and not config.option.collectonly:
        patience = ["--timeout=0"] if config.option.full else []
        return cell.enter([sys.executable, "-B", "-m", "pytest", *config.invocation_params.args,
                           *patience])
    return None


@pytest.hookimpl(tryfirst=True)
def pytest_pyfunc_call(pyfuncitem):
    arguments = {name: pyfuncitem.funcargs[name] for name in pyfuncitem._fixtureinfo.argnames}

    def work():
        try:
            pyfuncitem.obj(**arguments)
        except BaseException:
            return str(pyfuncitem.repr_failure(pytest.ExceptionInfo.from_current()))
        return ""

    if wrong := cell.run(work):
        pytest.fail(wrong, pytrace=False)
    if wrong is None:
        pytest.fail("ended without a word, as if it had been killed", pytrace=False)
    return True


def pytest_runtest_setup(item):
    if item.get_closest_marker("second_user") and not cell.has_second_user():
        pytest.skip("needs a second user id, which root has")


@pytest.fixture(params=range(4))
def share(request):
    """Takes a part of a campaign's places, so that workers share them; each `every`th of those
    when the campaign is no full one."""
    def take(places: list, every: int) -> list:
        taken = places[request.param::4][::1 if request.config.option.full else every]
        print(f"{len(taken)} of {len(places)}")
        return taken
    return take


@pytest.fixture(scope="session")
def stage(request) -> Path:
    """A staged tree of the launcher. Nobody writes to it."""
    given = request.config.option.stage
    if given:
        return given.resolve()
    made = Path(cell.WORK, f"stage.{os.getpid()}")
    subprocess.run(["cmake", "--install", request.config.option.build, "--prefix", made],
                   check=True, stdout=subprocess.DEVNULL)
    return made


@pytest.fixture(scope="session")
def builds(stage) -> dict[int, Build]:
    """Two package roots, builds 1 and 2 of a client that notes what happens to it."""
    return make_builds(stage, Path(cell.WORK, f"builds.{os.getpid()}"))


@pytest.fixture
def user(builds, request) -> User:
    """A user without a copy, whose launcher is that of a package root with build 2."""
    directory = Path(cell.WORK, f"row.{os.getpid()}")
    directory.mkdir()
    yield User(directory, builds)
    # The rows' mounts have gone with their cells.
    shutil.rmtree(directory)
