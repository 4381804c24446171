"""make-package: same bytes from the same client, what the archive holds, refusals that write
nothing, and --verify on good and bad roots."""
import os
import re
import resource
import shutil
import subprocess
import tarfile
import time
from pathlib import Path

import pytest

import cell
from conftest import rows
from user import MAKE_PACKAGE, listing, until, write

INFO = "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=12\nicon_overlay_version=0\n"


@pytest.fixture
def place(user) -> Path:
    """An empty directory."""
    return user.dir


def make_client(top: Path) -> Path:
    for program in "bin/cloud-ui", "package/start-stop":
        write(top / program, "#!/bin/sh\n", 0o755)
    write(top / "lib/data", "data\n", 0o600)
    os.link(top / "lib/data", top / "lib/hard")
    (top / "lib/up").symlink_to("../bin")
    (top / "soft").symlink_to("blank ü")
    for name in "new\nline", "-dash", "back\\nslash", "zz", "blank ü/x":
        write(top / name, "")
    (top / "blank ü/x").unlink()
    (top / "lib/empty").mkdir(mode=0o700)
    return top


def run(*arguments, **options) -> subprocess.CompletedProcess:
    return subprocess.run([MAKE_PACKAGE, *arguments], capture_output=True, text=True,
                          errors="replace", **options)


def pack(client: Path, root: Path, *options, **run_options) -> Path:
    done = run("--client", client, "--root", root, "--build", "12", *options, **run_options)
    assert done.returncode == 0, done.stderr
    return root / "package/quillmere.qpk"


@pytest.mark.parametrize("kind, note", [
    ("checked", ""), ("zstd", ""), ("xz", ""), ("tar", "no checksum"), ("gzip", "no checksum"),
    ("lz4", "no checksum")])
def test_same_bytes(user, place, kind, note):
    """From copies made in another order, at other times and by other users; --verify says which
    kinds have no checksums."""
    make_client(place / "client")
    user.sh("""mkdir other; (cd client; find . -mindepth 1 -print0 | sort -zr |
          tar --hard-dereference --no-recursion --null --files-from=- -cf -) | tar -C other -xf -
          find other -exec touch -h -d 2001-02-03 {} +; chown -hR 1234:1234 other || :""")
    pack(place / "client", place / "one", "--compression", kind)
    pack(place / "other", place / "two", "--compression", kind)
    assert listing(place / "one") == listing(place / "two")
    done = run("--verify", place / "one")
    assert done.returncode == 0 and done.stdout.count("note: ") == bool(note)
    assert note in done.stdout


def test_archive(user, place):
    client = make_client(place / "client")
    epoch = {**os.environ, "SOURCE_DATE_EPOCH": "86400"}
    package = pack(client, place / "root", "--compression", "tar", env=epoch)
    with tarfile.open(package) as archive:
        entries = archive.getmembers()
    assert [entry.name for entry in entries] == [
        "-dash", "back\\nslash", "bin", "blank ü", "lib", "lib/data", "lib/empty", "lib/hard",
        "lib/up", "new\nline", "package", "package/start-stop", "soft", "zz", "bin/cloud-ui",
        "INFO"]
    assert {(entry.uid, entry.gid, entry.mtime) for entry in entries} == {(0, 0, 86400)}
    assert {oct(entry.mode) for entry in entries if entry.isdir()} == {"0o755"}
    assert [entry.name for entry in entries if entry.isfile() and entry.mode == 0o755] == [
        "package/start-stop", "bin/cloud-ui"]
    assert {entry.mode for entry in entries if entry.isfile()} == {0o755, 0o644}
    assert not any(entry.islnk() for entry in entries)
    (place / "out").mkdir()
    said = subprocess.run(["bsdtar", "-C", place / "out", "-xpf", package], capture_output=True,
                          env={**os.environ, "LC_ALL": "C"}, check=True)
    assert not said.stdout + said.stderr
    assert (place / "out/INFO").read_text() == (place / "root/INFO").read_text() == INFO
    user.sh("diff -r --no-dereference -x INFO client out")
    assert {path: mode for path, (mode, _) in listing(place / "root").items()} == {
        "INFO": "-rw-r--r--", "package": "drwxr-xr-x", "package/quillmere.qpk": "-rw-r--r--"}


@pytest.mark.parametrize("code, word, spoil, options", rows("make-package", "refused"))
def test_refused(user, place, code, word, spoil, options):
    """Each row spoils a fresh client, or asks for what cannot be had."""
    make_client(place / "bad")
    user.sh(spoil, "bad")
    done = run("--client", "bad", "--root", "root", "--build", "12", *options.split(), cwd=place)
    assert done.returncode == code and word in done.stderr
    assert done.stderr.count("\n") == 1 and not (place / "root").exists()


def test_half_way(place):
    """A run that cannot write leaves the old package; what it leaves goes with the next."""
    pack(make_client(place / "client"), place / "root")
    before = listing(place / "root")
    write(place / "client/big", os.urandom(3000000))
    limit = (1000000, 1000000)
    done = run("--client", place / "client", "--root", place / "root", "--build", "13",
               preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, limit))
    assert done.returncode == 1 and listing(place / "root") == before
    write(place / "root/package/.quillmere.qpk.abcdef", "")
    pack(place / "client", place / "root")
    assert listing(place / "root").keys() == before.keys() != listing(place / "root")


def test_order_of_publishing(place):
    """Both files are on the disk before the archive takes its place, and after it INFO does."""
    pack(make_client(place / "client"), place / "root")
    trace = place / "trace"
    calls = "trace=fsync,fdatasync,sync,syncfs,renameat2,rename"
    subprocess.run(["strace", "-f", "-qq", "-e", calls, "-y", "-o", trace, MAKE_PACKAGE,
                    "--client", place / "client", "--root", place / "root", "--build", "13"],
                   check=True, stdout=subprocess.DEVNULL)
    done = [line.partition(" ")[2].strip() for line in trace.read_text().splitlines()]
    names = [re.sub(r".*/(\.?)(quillmere.qpk|INFO|package|root)[.\w]*[\">].*", r"\1\2", line)
             for line in done if str(place / "root") in line]
    assert names == [".quillmere.qpk", ".INFO", "quillmere.qpk", "package", "INFO", "root"]


@pytest.mark.parametrize("word, spoil", rows("make-package", "verify"))
def test_verify(user, place, word, spoil):
    """Each row has a command for a tree that holds the archive's files; it may set the names that
    are archived in this order (none: the archive stays), tar's format, and what is done after."""
    pack(make_client(place / "client"), place / "root", "--compression", "tar")
    user.root = place / "root"
    user.sh(f"""qpk=$root/package/quillmere.qpk; mkdir in; bsdtar -C in -xpf $qpk; cd in
                names="bin package lib INFO" format=gnu rename=s,^,, after=:
                {spoil}
                [[ -z $names ]] ||
                    LC_ALL=C tar --format=$format -P --transform=$rename -cf $qpk $names
                eval "$after" """)
    done = run("--verify", user.root)
    assert done.returncode == (word not in ("build 12", "one checksum for all"))
    assert word in done.stdout + done.stderr


@pytest.mark.second_user
def test_lock(place):
    """Another user cannot keep a packager waiting; another packager can, and says so."""
    client, root = make_client(place / "client"), place / "root"
    package = pack(client, root).parent
    nobody = ["setpriv", f"--reuid={cell.NOBODY}", f"--regid={cell.NOBODY}", "--clear-groups"]
    with subprocess.Popen([*nobody, "flock", package, "sleep", "60"]) as blocker:
        until(lambda: "FLOCK" in open("/proc/locks").read(), "the directory is locked")
        pack(client, root, timeout=30)
        blocker.kill()
    lock = write(package / ".make-package.lock", "", 0o600)
    with subprocess.Popen(["flock", lock, "sleep", "1"]):
        time.sleep(0.3)
        done = run("--client", client, "--build", "13", "--root", root, timeout=30)
    assert done.stdout.startswith("note: waiting for another make-package")
    assert os.listdir(package) == ["quillmere.qpk"]


# ---- A file larger than 4 GiB, as data and as a file with holes

GIGABYTE = 1 << 30


@pytest.mark.large
@pytest.mark.parametrize("holes", [False, True])
def test_large_entry(user, holes):
    client = make_client(user.dir / "client")
    size = 4 * GIGABYTE + (64 << 20)
    with open(client / "large", "wb") as large:
        large.truncate(size)
        for at in 0, 4 * GIGABYTE - 8, 4 * GIGABYTE + 4096, size - 8:
            large.seek(at)
            large.write(f"mark {at % 1000:03}".encode())
    package = pack(client, user.own_root(), "--compression", "zstd")
    if holes:
        shutil.copy(user.root / "INFO", client)
        user.sh("tar --sparse -cf $qpk bin package large INFO", "client", qpk=package)
    user.launch()
    user.sh("cmp client/large $app/large; cmp $root/INFO $app/INFO")
