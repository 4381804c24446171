"""The programs that pack, show and remove the launcher, with stand-ins for what takes them long."""
import os
import shutil
import subprocess

import pytest

from conftest import rows
from user import TREE, write

STAND_INS = {
    # No package is ever missing, and the client's own is there when a row says so.
    "dpkg-query": f"""[ "$1" != --search ] || exit "$SEARCH"
awk '{{ print $2, "installed" }}' '{TREE}/tools/packages.list'""",
    "cmake": '[ "$1" != --install ] || cp -a "$STAGE/." "$4"',
    "dpkg-buildpackage": """[ "$*" = "--build=binary --no-sign" ] && [ -x debian/rules ] || exit 9
[ ! -e build ] && [ ! -e .git ] && [ -e half-edited ] || exit 8
echo deb >"../parvenor-quillmere-launcher_1.2.3_$(dpkg --print-architecture).deb" """,
    "lintian": 'case "$*" in *"--fail-on error,warning"*_1.2.3_*.deb) exit "$LINTIAN" ;; esac',
}


def run(user, *command, **env: object) -> subprocess.CompletedProcess:
    for name, script in STAND_INS.items():
        write(user.dir / "bin" / name, f"#!/bin/sh\n{script}\n", 0o755)
    path = f"{user.dir / 'bin'}:{os.environ['PATH']}"
    env = {**user.environment(PATH=path), **{name: str(value) for name, value in env.items()}}
    return subprocess.run(command, env=env, capture_output=True, text=True, cwd=user.dir)


@pytest.mark.parametrize("client, before, after, words", rows("scripts", "demo"))
def test_demo(user, client, before, after, words):
    """What the demonstration says when its launcher does something before and after its work."""
    launcher = user.own_root() / "bin/launcher"
    launcher.rename(f"{launcher}.real")
    shutil.rmtree(user.root / "package")
    write(launcher, f"""#!/bin/sh
cd "$HOME/.Quillmere" 2>/dev/null && {{ {before}; }}
"$0.real"
cd "$HOME/.Quillmere" && {{ {after}; }}
""", 0o755)
    done = run(user, TREE / "demo", *client.split() and [TREE / client], STAGE=user.root)
    assert words in done.stdout + done.stderr, done
    assert done.returncode == (words != "All as it should be")


@pytest.mark.parametrize("arguments, version, lintian, code, words", rows("scripts", "build-deb"))
def test_build_deb(user, arguments, version, lintian, code, words):
    """Whatever lies in the tree is built, but for what building left there."""
    tree = user.dir / "tree"
    for part in "tools", "packaging/debian":
        shutil.copytree(TREE / part, tree / part)
    shutil.copy(TREE / "packaging/build-deb", tree / "packaging")
    write(tree / "packaging/debian/changelog", "parvenor-quillmere (1.2.3) stable; urgency=low\n")
    write(tree / "CMakeLists.txt", f"project(x VERSION {version} LANGUAGES CXX)\n")
    for name in "half-edited", "build/x", ".git/x":
        write(tree / name, "")
    done = run(user, tree / "packaging/build-deb", *arguments.split(), LINTIAN=lintian)
    assert done.returncode == code and words in done.stdout + done.stderr, done
    made = [path.name.rpartition("_")[0] for path in user.dir.glob("out/*")]
    assert made == ["parvenor-quillmere-launcher_1.2.3"] * (code == 0)


@pytest.mark.parametrize("reason, own_package, left", [
    ("purge", False, []), ("purge", True, ["INFO", "log", "package"]),
    ("remove", False, [".INFO.abcdef", "INFO", "log", "package"])])
def test_removal(user, reason, own_package, left):
    """A purge takes along what no other Debian package has brought."""
    subprocess.run(["mount", "-t", "tmpfs", "tmpfs", "/opt"], check=True)
    root = user.own_root()
    there = shutil.copytree(root, "/opt/Parvenor/Quillmere", ignore=lambda _, names: {
        "bin", "lib", "images", "texts"} & {*names})
    write(user.dir / "x", "")
    shutil.copy(user.dir / "x", f"{there}/.INFO.abcdef")
    done = run(user, "sh", TREE / "packaging/debian/postrm", reason, SEARCH=int(not own_package))
    assert done.returncode == 0, done
    assert sorted(os.listdir(there) if os.path.exists(there) else []) == left
    assert os.path.exists("/opt/Parvenor") == bool(left)
