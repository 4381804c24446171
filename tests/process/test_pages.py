"""What the pages promise is shown by tests, row for row."""
import re

from conftest import TREE


def texts(pattern: str) -> str:
    return "".join(file.read_text() for file in TREE.glob(pattern))


def test_failures_have_tests():
    """The last column of the tables of docs/failures.md holds ids; failure("id") marks a
    test, and "failure": "id id" a row of tests/data."""
    page = (TREE / "docs/failures.md").read_text()
    promised = re.findall(r"^\|.*\| `([a-z-]+)` \|$", page, re.M)
    assert len(promised) == len(set(promised)) > 30
    rows = [line for line in page.splitlines() if line.count("|") >= 5 and " id |" not in line]
    assert [line for line in rows if not line.endswith("` |") and "---" not in line] == []
    shown = set()
    for marks in re.findall(r"\bfailure\(([^)]*)\)", texts("tests/process/test_*.py")):
        shown.update(re.findall(r'"([^"]+)"', marks))
    for ids in re.findall(r'"failure": "([^"]+)"', texts("tests/data/*.json")):
        shown.update(ids.split())
    assert shown - {"id"} == set(promised)
