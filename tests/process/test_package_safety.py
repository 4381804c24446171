"""A package on its way to the copy: damage, who may write it when, and what --verify says of it."""
import os
import re
import subprocess
import time

import pytest

import cell
from user import MAKE_PACKAGE, make_client, make_package, until, write

MAGIC = b"\x28\xb5\x2f\xfd"  # what each piece of an archive of the default kind begins with


def flip(archive: bytes, at: int) -> bytes:
    return archive[:at] + bytes([archive[at] ^ 4]) + archive[at + 1:]


def piece(archive: bytes, number: int) -> int:
    """Where a piece of the archive begins."""
    return [found.start() for found in re.finditer(re.escape(MAGIC), archive)][number]


DAMAGED = {
    "bit of a file's contents": lambda archive: flip(archive, len(archive) // 2),
    "bit that says there is a checksum": lambda archive: flip(archive, 4),
    "bit of a checksum": lambda archive: flip(archive, piece(archive, 1) - 1),
    "bit of INFO": lambda archive: flip(archive, piece(archive, 2) - 1000),
    "cut in a file": lambda archive: archive[:len(archive) // 2],
    "cut before INFO": lambda archive: archive[:piece(archive, 1)],
    "cut before the end": lambda archive: archive[:piece(archive, 2)],
    "last byte missing": lambda archive: archive[:-1],
}


@pytest.mark.parametrize("name", DAMAGED)
def test_damaged_package(user, name):
    """The unit tests damage it in hundreds of places."""
    user.install_copy(1)
    user.own_root()
    write(user.package, DAMAGED[name](user.package.read_bytes()))
    user.launch()
    user.has("[ERROR] cloud-service(N): Failed to extract package, rollback to old installation")
    user.copy_is(1)
    user.started("start")


@pytest.mark.parametrize("reason, spoil", [
    ("undefined symbol: archive_read_support_format_all", lambda library: library.replace(
        b"archive_read_support_format_all", b"archive_read_support_format_xyz")),
    ("cannot read file data", lambda library: library[:100]),
])
def test_archive_library_damaged(user, reason, spoil):
    """The loader's own words are logged, and nothing is begun with half a library."""
    cache = subprocess.run(["/sbin/ldconfig", "-p"], capture_output=True, text=True, check=True)
    name, path = re.search(r"(libarchive\.so\.\d+) .* => (.*)", cache.stdout).groups()
    with open(path, "rb") as library:
        write(user.dir / "lib" / name, spoil(library.read()))
    user.install_copy(1)
    user.launch(LD_LIBRARY_PATH=str(user.dir / "lib"))
    user.has("[ERROR] libarchive(...", "[ERROR] extractor(N): Allocate archive failed")
    assert any(reason in line for line in user.log()), [x for x in user.log() if "libarch" in x]
    user.copy_is(1)
    user.started("start")


# ---- make-package

def verify(root) -> subprocess.CompletedProcess:
    return subprocess.run([MAKE_PACKAGE, "--verify", root], capture_output=True, text=True)


@pytest.mark.parametrize("kind, note", [
    ("checked", ""), ("zstd", ""), ("xz", ""), ("tar", "no checksum"), ("gzip", "no checksum"),
    ("lz4", "no checksum"), ("zstd in one piece", "one checksum for all")])
def test_verify_tells_of_checksums(user, kind, note):
    root = user.dir / "made"
    make_package(user.builds[2].client, 2, root, "--compression", kind.split()[0])
    if "one piece" in kind:
        archive = root / "package/quillmere.qpk"
        subprocess.run(f"zstd -dc '{archive}' | zstd -qc >x; mv x '{archive}'", shell=True,
                       cwd=user.dir, check=True)
    done = verify(root)
    assert done.returncode == 0 and done.stdout.count("note: ") == bool(note)
    assert note in done.stdout


@pytest.mark.parametrize("line, word", [
    ("author=a@b.example\\n", ""),
    ("major_version=@Variant(\\0)", "may hold an object"),
    ('major_version=x, "@" "Rect(1 2 3 4)"', "may hold an object"),
    ("major_version=\\x40Size(1 2)", "may hold an object"),
    ("x" * 65536, "larger than 64 KiB"),
])
def test_verify_version_file(user, line, word):
    root = user.own_root()
    write(root / "INFO", (root / "INFO").read_text() + line + "\n")
    done = verify(root)
    assert done.returncode == bool(word) and word in done.stderr


@pytest.mark.second_user
def test_lock(user):
    """Another user cannot keep a packager waiting; another packager can, and says so."""
    root, client = user.dir / "made", make_client(user.dir / "client", 1)
    package = root / "package"
    make_package(client, 1, root)
    nobody = ["setpriv", f"--reuid={cell.NOBODY}", f"--regid={cell.NOBODY}", "--clear-groups"]
    with subprocess.Popen([*nobody, "flock", package, "sleep", "60"]) as blocker:
        until(lambda: "FLOCK" in open("/proc/locks").read(), "the directory is locked")
        subprocess.run([MAKE_PACKAGE, "--client", client, "--build", "2", "--root", root],
                       timeout=30, check=True, capture_output=True)
        blocker.kill()
    assert os.listdir(package) == ["quillmere.qpk"]
    lock = write(package / ".make-package.lock", "", 0o600)
    with subprocess.Popen(["flock", lock, "sleep", "1"]):
        time.sleep(0.3)
        done = subprocess.run([MAKE_PACKAGE, "--client", client, "--build", "3", "--root", root],
                              timeout=30, check=True, capture_output=True, text=True)
    assert done.stdout.startswith("note: waiting for another make-package")
    assert os.listdir(package) == ["quillmere.qpk"]


def test_progress(user):
    """In per cent, on a terminal only, of what takes longer than two seconds."""
    for program in "xz", "bsdtar":
        write(user.dir / "slow" / program, f"""#!/bin/sh
[ ! -e "$SLOW" ] || {{ rm "$SLOW"; sleep 3; }}
exec /usr/bin/{program} "$@"
""", 0o755)
    slow = user.dir / "slow/once"
    env = {**os.environ, "PATH": f"{user.dir / 'slow'}:{os.environ['PATH']}", "SLOW": str(slow)}
    for options in (f"--client '{user.builds[2].client}' --build 2 --compression xz --root made",
                    "--verify made"):
        for through in "script", "sh":
            slow.touch()
            words = ["-qec", "/dev/null"] if through == "script" else ["-c"]
            done = subprocess.run([through, words[0], f"{MAKE_PACKAGE} {options}", *words[1:]],
                                  cwd=user.dir, env=env, capture_output=True, check=True)
            shown = re.findall(rb"\r *(\d+) % ", done.stdout + done.stderr)
            assert bool(shown) == (through == "script") and all(int(x) <= 100 for x in shown), done
