"""What starts leave: the user's copy, the log, and the start script run."""
import io
import os
import re
import shutil
import subprocess
import tarfile
from pathlib import Path

import pytest

import lines
from conftest import failure
from user import write

second_user = pytest.mark.second_user


# With a no-break space and an ideographic one; the second in a locale that cannot show them.
@pytest.mark.parametrize("name, locale", [
    ("plain", "C.UTF-8"), ("no\u00a0break 東京　Käthe's \"%s%n\"", "C"),
    ("no\u00a0break 東京　Käthe's \"%s%n\"", "C.UTF-8")])
def test_new_user(user, name, locale):
    user.live_in(name)
    user.launch(LC_ALL=locale)
    user.launch(LC_ALL=locale)
    assert user.log() == lines.upgrade(user, None, 2) + lines.run(2, 2, lines.NO_NEED)
    user.copy_is(2)
    user.started("start", "start")


@pytest.mark.parametrize("size, after", [(None, 2), (9, 1), (6, 1)])
def test_large_client(user, large_builds, size, after):
    """A part of its files is sent to the disk by a thread of its own; without room for all too."""
    user.builds, user.root = large_builds, large_builds[2].root
    if size:
        subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}m", "tmpfs", user.home],
                       check=True)
        user.top.mkdir()
    user.install_copy(1)
    user.launch()
    user.copy_is(after)
    user.started("start")


REG, LINK = tarfile.REGTYPE, tarfile.LNKTYPE
TAKEN = "[ERROR] cloud-service(N): failed to backup app from '{0.app}' -> '{0.app}_tmp"


def tar(build, *entries) -> bytes:
    """A plain tar of a build's copy, with further entries behind: (name, type, link, content),
    which are somebody's and have the bits to run with that one's rights."""
    made = io.BytesIO()
    with tarfile.open(fileobj=made, mode="w", format=tarfile.GNU_FORMAT) as archive:
        archive.add(build.copy, ".")
        for name, kind, link, content in entries:
            entry = tarfile.TarInfo(name)
            entry.type, entry.linkname, entry.size = kind, link, len(content)
            entry.mode, entry.uid = 0o6755, 1234
            archive.addfile(entry, io.BytesIO(content))
    return made.getvalue()


def flip(archive: bytes, at: int) -> bytes:
    return archive[:at] + bytes([archive[at] ^ 4]) + archive[at + 1:]


def package(change):
    """Replaces the package by what `change` makes of it, or by a tar with that further entry."""
    def spoil(user):
        if isinstance(change, tuple):
            return write(user.package, tar(user.builds[2], change))
        return write(user.package, change(user.package.read_bytes()))
    return spoil


def info(text, of_copy=False):
    """Replaces a version file, by nothing at all or a directory when it has no text."""
    def spoil(user):
        path = (user.app if of_copy else user.root) / "INFO"
        path.unlink()
        if text == "directory":
            path.mkdir()
        elif text == "locked":
            user.give_away()
            os.chown(write(path, "[Version]\nbuild_version=9\n", 0), 0, 0)
        elif text:
            write(path, text)
    return spoil


def level(text):
    """Replaces the level file, by a directory when it has no text."""
    def spoil(user):
        path = write(user.root / "log/launcher.debug", text or "")
        if not text:
            path.unlink()
            path.mkdir()
    return spoil


def small_disk(user):
    copy = subprocess.run(["tar", "-C", user.top, "-c", "app"], check=True, stdout=subprocess.PIPE)
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=120k", "tmpfs", user.home], check=True)
    user.top.mkdir()
    subprocess.run(["tar", "-C", user.top, "-x"], input=copy.stdout, check=True)


def taken(count: int):
    """Makes the first names for backups those of something else."""
    def spoil(user):
        for n in range(count):
            (user.top / f"app_tmp{n or ''}/taken").mkdir(parents=True)
    return spoil


def compared(build: int) -> str:
    return f"[DEBUG] linux/linux-service(126): source version = 1, target version = {build}"


ROLLED_BACK = 1, lines.ROLLED_BACK, "[ERROR] extractor(N): ...", lines.FAILED, lines.DONE
NOTHING = "nothing"
REPLACED, KEPT = (2, lines.READY), (1, lines.NO_NEED)
REFUSED = "[WARNING] cloud-service(N): version file '{0.%s}/INFO' is refused..."
VARIANT = "[Version]\nbuild_version=@Variant(2)\n"

# What is done to a user with build 1 and a package root with build 2; which build is in
# place and started after a start, and what the log says.
STARTS = {
    "client missing": (lambda user: (user.app / "bin/cloud-ui").unlink(), REPLACED),
    "no package": (lambda user: user.package.unlink(), ROLLED_BACK),
    "text for a package": (package(lambda _: b"no archive\n" * 999), ROLLED_BACK),
    "no entries": (package(lambda _: bytes(10240)), ROLLED_BACK),
    "half": (package(lambda good: good[:len(good) // 2]), ROLLED_BACK),
    "last byte missing": (package(lambda good: good[:-1]), ROLLED_BACK),
    "bit of a file": (package(lambda good: flip(good, len(good) // 2)), ROLLED_BACK),
    "above the copy": (package(("../evil", REG, "", b"evil")), ROLLED_BACK),
    "hard link": (package(("two", LINK, "INFO", b"")), ROLLED_BACK),
    "file for the target": (package(("./.", REG, "", b"evil")), ROLLED_BACK),
    "package/no INFO": (info(""), KEPT),
    "package/directory": (info("directory"), KEPT),
    "package/locked": (info("locked"), KEPT),
    "package/object": (info(VARIANT), (*KEPT, REFUSED % "root")),
    "copy/no INFO": (info("", True), REPLACED),
    "copy/cut off": (info("[Version\n", True), REPLACED),
    "copy/locked": (info("locked", True), REPLACED),
    "copy/object": (info(VARIANT, True), (*REPLACED, REFUSED % "app")),
    "3 or so": (info("[Version]\nbuild_version=3 or so\n"), (2, compared(3))),
    "1x": (info("[Version]\nbuild_version=1x\n"), (*KEPT, compared(1))),
    "x9": (info("[Version]\nbuild_version=x9\n"), (*KEPT, compared(0))),
    "full disk": (small_disk, ROLLED_BACK),
    "three names taken": (taken(3), (2, f"{TAKEN}'", f"{TAKEN}2'")),
    "all names taken": (taken(100), (
        1, f"{TAKEN}'", f"{TAKEN}98'", f"{TAKEN}99' at max retries, exiting", lines.FAILED)),
    "file for the log's directory": (lambda user: write(user.top / "log", ""), (2,)),
    "level file malformed": (level("launcher_debug=7\nno line\n"), (2, NOTHING)),
    "level file a directory": (level(None), (2, NOTHING)),
    "no pictures": (lambda user: shutil.rmtree(user.root / "images"), REPLACED),
}


@failure("rolled-back", "no-archive", "empty-archive", "damaged-archive", "bad-entry", "hard-link",
         "target-entry", "bad-package-info", "bad-copy-info", "refused-info", "odd-build-number",
         "full-disk", "backup-name-taken", "no-backup-name", "no-log-directory", "no-icon",
         "bad-level-file")
@pytest.mark.parametrize("name", [pytest.param(name, marks=second_user if "locked" in name else [])
                                  for name in STARTS])
def test_start(user, name):
    spoil, (build, *said) = STARTS[name]
    user.install_copy(1)
    user.own_root()
    spoil(user)
    user.launch()
    if said == [NOTHING]:
        assert user.log() == []
    else:
        user.has(*(line.format(user) for line in said))
    user.copy_is(build, backups=100 if name == "all names taken" else 0)
    user.started("start")
    assert not (user.top / "evil").exists()


@failure("no-rollback")
def test_bad_package_without_a_copy(user):
    user.own_root()
    user.package.unlink()
    user.launch()
    user.has(lines.NO_COPY, lines.FAILED, lines.DONE)
    user.started()


@failure("inner-info-lower")
def test_package_with_a_lower_build_inside(user):
    write(user.own_root() / "INFO", "[Version]\nbuild_version=3\n")
    for _ in range(2):
        user.launch()
        user.copy_is(2)
    assert user.log().count(lines.READY) == 2


@second_user
@failure("no-log", "no-log-directory", "no-backup-name")
@pytest.mark.parametrize("copy", [0, 1])
def test_read_only_home(user, copy):
    if copy:
        user.install_copy(1)
        user.log_file.parent.mkdir()
    else:
        user.top.rmdir()
    user.give_away()
    shutil.chown(user.top if copy else user.home, 0)
    said = user.launch()
    assert lines.FAILED in (user.log() if copy else said)
    user.started(*["start"] * copy)
    if copy:
        user.copy_is(1)
    else:
        assert list(user.home.iterdir()) == []


@second_user
def test_copy_without_write_permission(user):
    """Which a client may take from its own directories."""
    user.install_copy(1)
    (user.app / "bin").chmod(0o500)
    user.give_away()
    user.launch()
    user.copy_is(2)


@failure("no-target")
def test_file_for_the_product_directory(user):
    user.top.rmdir()
    write(user.top, "")
    assert lines.FAILED in user.launch()
    user.started()


@failure("language")
@pytest.mark.parametrize("locale, code", [
    ("de_DE.UTF-8", "deu"), ("zh_TW", "cht"), ("pt_PT", "ptg"), ("xx_YY", "enu")])
def test_language(user, locale, code):
    user.install_copy(2)
    errors = user.launch(LC_ALL=locale)
    assert f"qPrintable(qstrDef)=[{code}\n" in errors


# ---- What is missing or odd, and harms nobody

def library_path(name: str) -> Path:
    known = subprocess.run(["/sbin/ldconfig", "-p"], capture_output=True, text=True).stdout
    return Path(re.search(rf"{re.escape(name)}\.\d+ .* => (.*)", known)[1])


@failure("no-library", "no-plug-in")
@pytest.mark.parametrize("library", [True, False])
def test_toolkit_incomplete(user, library):
    """The system or the toolkit ends the launcher before it has touched anything."""
    user.install_copy(1)
    if library:
        write(user.dir / "lib" / library_path("libQt5Widgets.so").name, "")
    else:
        shutil.rmtree(user.own_root() / "lib/plugins/platforms")
    code = user.start(LD_LIBRARY_PATH=str(user.dir / "lib")).wait()
    assert code == 127 if library else code != 0
    user.copy_is(1)
    user.started()


@failure("no-archive-library")
@pytest.mark.parametrize("reason, spoil", [
    ("undefined symbol: archive_read_support_format_all", lambda library: library.replace(
        b"archive_read_support_format_all", b"archive_read_support_format_xyz")),
    ("cannot read file data", lambda library: library[:100])])
def test_archive_library(user, reason, spoil):
    """The loader's own words are logged, and nothing is begun with half a library."""
    user.install_copy(1)
    path = library_path("libarchive.so")
    write(user.dir / "lib" / path.name, spoil(path.read_bytes()))
    user.launch(LD_LIBRARY_PATH=str(user.dir / "lib"))
    user.has(lines.ROLLED_BACK, "[ERROR] libarchive(...", "[ERROR] extractor(N): ...")
    assert any(reason in line for line in user.log()), user.log()
    user.copy_is(1)
    user.started("start")


@failure("no-start-script")
@pytest.mark.parametrize("fault", ["rm", "chmod 644", "printf '#!/bin/sh\\nexit 9' >"])
def test_start_script(user, fault):
    user.install_copy(2)
    subprocess.run(f"{fault} '{user.app}/package/start-stop'", shell=True, check=True)
    user.launch()
    assert user.log() == lines.run(2, 2, lines.NO_NEED)
    user.started()


def unpack(user, content: bytes) -> None:
    """A start with a package of that content, which is unpacked to its end."""
    write(user.own_root() / "package/quillmere.qpk", content)
    user.launch()
    user.has(lines.READY)


@failure("absolute-name", "link-out", "set-id")
def test_odd_entries(user):
    """Neither absolute names nor owners and special bits are taken over; links are followed."""
    unpack(user, tar(user.builds[2], ("/outside", REG, "", b"1"),
                     ("out", tarfile.SYMTYPE, "../..", b""), ("out/written", REG, "", b"1")))
    found = (user.app / "outside").stat()
    assert found.st_mode & 0o7777 == 0o755 and found.st_uid == os.getuid()
    assert (user.home / "written").exists() and not Path("/outside").exists()


@failure("plain-tar-cut")
def test_plain_tar_cut_between_entries(user):
    """What is behind the cut, the version file in a good package, is missing, so the next start
    replaces the copy."""
    good = tar(user.builds[2])
    unpack(user, good[:good.index(b"./bin/cloud-ui") // 512 * 512])
    assert not (user.app / "bin/cloud-ui").exists()
    user.launch()
    assert user.log().count(lines.READY) == 2


@failure("plain-tar-damage")
def test_damage_in_a_plain_tar(user):
    good = tar(user.builds[2])
    at = good.index(b"2 1\n2 1\n")
    unpack(user, good[:at] + b"3" + good[at + 1:])
    assert (user.app / "lib/data/1").read_text().startswith("3 1\n2 1\n")
