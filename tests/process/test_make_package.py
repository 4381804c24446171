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
from user import MAKE_PACKAGE, listing, until, write

NOTES = {"checked": "", "zstd": "", "xz": "", "tar": "no checksum", "gzip": "no checksum",
         "lz4": "no checksum"}
INFO = "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=12\nicon_overlay_version=0\n"


@pytest.fixture
def place(user) -> Path:
    """An empty directory."""
    return user.dir


def sh(command: str, directory: Path, **env: object) -> None:
    subprocess.run(["bash", "-euc", f"umask 022; {command}"], cwd=directory, check=True,
                   env={**os.environ, **{name: str(value) for name, value in env.items()}})


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


@pytest.mark.parametrize("kind", NOTES)
def test_same_bytes(place, kind):
    """From copies made in another order, at other times and by other users; --verify says which
    kinds have no checksums."""
    make_client(place / "client")
    sh("""mkdir other; (cd client; find . -mindepth 1 -print0 | sort -zr |
          tar --hard-dereference --no-recursion --null --files-from=- -cf -) | tar -C other -xf -
          find other -exec touch -h -d 2001-02-03 {} +; chown -hR 1234:1234 other || :""", place)
    pack(place / "client", place / "one", "--compression", kind)
    pack(place / "other", place / "two", "--compression", kind)
    assert listing(place / "one") == listing(place / "two")
    done = run("--verify", place / "one")
    assert done.returncode == 0 and done.stdout.count("note: ") == bool(NOTES[kind])
    assert NOTES[kind] in done.stdout


def test_archive(place):
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
    sh("diff -r --no-dereference -x INFO client out", place)
    assert {path: mode for path, (mode, _) in listing(place / "root").items()} == {
        "INFO": "-rw-r--r--", "package": "drwxr-xr-x", "package/quillmere.qpk": "-rw-r--r--"}


# name: exit code, a word of the one line, what spoils a fresh client in ".", options
REFUSED = {
    "no client program": (1, "bin/cloud-ui is missing", "rm bin/cloud-ui"),
    "client program not executable": (1, "not executable", "chmod 644 bin/cloud-ui"),
    "start script is a link": (1, "not a regular file",
                               "mv package/start-stop zz; ln -s ../zz package/start-stop"),
    "bin is a link": (1, "bin/cloud-ui is missing", "mv bin b; ln -s b bin"),
    "FIFO": (1, "FIFO", "mkfifo lib/fifo"),
    "set-group-ID": (1, "set-group-ID", "chmod g+s zz"),
    "absolute link": (1, "lead out", "ln -s /etc lib/l"),
    "link that comes back": (1, "lead out", "ln -s ../bad/bin l"),
    "link up through a link": (1, "lead out",
                               "ln -s ../.. lib/empty/top; ln -s top/../x lib/empty/l"),
    "not UTF-8": (1, "not valid UTF-8", "touch lib/$'\\374'"),
    "INFO is a directory": (1, "not a regular file", "mkdir INFO"),
    "root inside the client": (1, "inside the client", ":", "--root", "bad/out"),
    "build 0": (1, "plain number", ":", "--build", "0"),
    "build with a zero in front": (1, "plain number", ":", "--build", "012"),
    "build too high": (1, "plain number", ":", "--build", "2147483648"),
    "minor not a number": (1, "--minor", ":", "--minor", "-1"),
    "unknown compression": (2, "unknown compression", ":", "--compression", "rar"),
    "unknown option": (2, "unknown option", ":", "--force", "1"),
}


@pytest.mark.parametrize("name", REFUSED)
def test_refused(place, name):
    code, word, spoil, *options = REFUSED[name]
    sh(spoil, make_client(place / "bad"))
    done = run("--client", "bad", "--root", "root", "--build", "12", *options, cwd=place)
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


# name: a word of what --verify says, and a command in a tree that holds the archive's files; the
# variables are the names that are archived in this order (none: the archive stays), tar's format
# and --transform, and what is done afterwards.
SPOILT = {
    "nothing wrong": ("build 12", 'names=; echo "author=a@b" >>"$root/INFO"'),
    "checksum of all": ("one checksum for all", """names=
        xz -c "$qpk" >x; cat x >"$qpk" """),
    "object": ("may hold an object", 'names=; echo "x=@Variant(0)" >>"$root/INFO"'),
    "object in a list": ("may hold an object", """names=
        echo 'x=x, "@" "Rect(1 2 3 4)"' >>"$root/INFO" """),
    "object, escaped": ("may hold an object", """names=
        echo 'x=\\x40Size(1 2)' >>"$root/INFO" """),
    "large INFO": ("larger than 64 KiB", 'names=; printf "%65536s" x >>"$root/INFO"'),
    "no INFO": ("INFO: missing", 'names=; rm "$root/INFO"'),
    "no build number": ("no plain build number", 'names=; sed -i s/Version/Versions/ "$root/INFO"'),
    "INFO not for everybody": ("may not read", "after='chmod 600 \"$root/INFO\"'"),
    "no archive": ("qpk: missing", 'names=; rm "$qpk"'),
    "not an archive": ("gives up", 'names=; head -c 9999 /dev/urandom >"$qpk"'),
    "damaged": ("gives up", "names=; bsdtar --format=zip --options=zip:compression=store "
                "-cf \"$qpk\" bin package lib INFO; sed -i s,/bin/sh,/bin/ah, \"$qpk\""),
    "no entries": ("no entries", 'names=; tar -cf "$qpk" -T /dev/null'),
    "names that a C locale cannot show": ("gives up", "format=posix; touch lib/ü"),
    "other build inside": ("again at every start", "sed -i s/12/11/ INFO"),
    "INFO not last": ("not the last", 'names="INFO bin package lib"'),
    "no start script": ("start-stop is missing", 'names="bin lib INFO"'),
    "client program not executable": ("not executable", "chmod 644 bin/cloud-ui"),
    "hard link": ("hard link", "ln lib/data lib/again"),
    "name above the top": ('a name with ".."', "rename=s,^lib/data,../data,"),
    "absolute name": ("an absolute name", "rename=s,^lib/data,/tmp/data,"),
    "entry through a link": ("lies below lib/up", "rename=s,^lib/hard,lib/up/hard,"),
    "link out": ("lead out", "ln -s / lib/out"),
    "FIFO": ("FIFO", "mkfifo lib/fifo"),
    "set-user-ID": ("set-user-ID", "chmod u+s bin/cloud-ui"),
    "directory that stays": ("could not empty", "chmod 555 lib/empty"),
    "name twice": ("occurs twice", "rename=s,^lib/hard,lib/data,"),
}


@pytest.mark.parametrize("name", SPOILT)
def test_verify(place, name):
    word, spoil = SPOILT[name]
    pack(make_client(place / "client"), place / "root", "--compression", "tar")
    root = place / "root"
    sh(f"""mkdir in; bsdtar -C in -xpf root/package/quillmere.qpk; cd in
           names="bin package lib INFO" format=gnu rename=s,^,, after=:
           {spoil}
           [[ -z $names ]] ||
               LC_ALL=C tar --format="$format" -P --transform="$rename" -cf "$qpk" $names
           eval "$after" """, place, root=root, qpk=root / "package/quillmere.qpk")
    done = run("--verify", root)
    assert done.returncode == (name not in ("nothing wrong", "checksum of all"))
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


def test_progress(place):
    """In per cent, on a terminal, of what takes longer than two seconds."""
    make_client(place / "client")
    write(place / "slow/xz", '#!/bin/sh\n[ -e 2 ] || sleep 3\n>2\nexec /usr/bin/xz "$@"\n', 0o755)
    env = {**os.environ, "PATH": f"{place / 'slow'}:{os.environ['PATH']}"}
    options = "--client client --build 2 --compression xz --root made"
    done = subprocess.run(["script", "-qec", f"{MAKE_PACKAGE} {options}", "/dev/null"],
                          cwd=place, env=env, capture_output=True, check=True)
    shown = re.findall(rb"\r *(\d+) % ", done.stdout)
    assert shown and all(int(percent) <= 100 for percent in shown), done


# ---- A file larger than 4 GiB, as data and as a file with holes

GIGABYTE = 1 << 30


@pytest.mark.large
@pytest.mark.parametrize("holes", [False, True])
def test_large_entry(user, holes):
    room = shutil.disk_usage(user.dir).free
    if not holes and room < 5 * GIGABYTE:
        pytest.skip(f"needs 5 GiB of memory, there are {room >> 20} MiB")
    client = user.dir / "client"
    make_client(client)
    size = 4 * GIGABYTE + (64 << 20)
    with open(client / "large", "wb") as large:
        large.truncate(size)
        for at in 0, 4 * GIGABYTE - 8, 4 * GIGABYTE + 4096, size - 8:
            large.seek(at)
            large.write(f"mark {at % 1000:03}".encode())
    package = pack(client, user.own_root(), "--compression", "zstd")
    if holes:
        shutil.copy(user.root / "INFO", client)
        sh('tar --sparse -cf "$qpk" bin package large INFO', client, qpk=package)
    user.launch()
    sh('cmp client/large "$app/large"; cmp "$root/INFO" "$app/INFO"', user.dir, app=user.app,
       root=user.root)
