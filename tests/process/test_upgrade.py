"""What starts leave: the user's copy, the log, and the start script run."""
import io
import lzma
import os
import shutil
import subprocess
import tarfile
from pathlib import Path

import pytest

import lines
from conftest import failure
from user import write

second_user = pytest.mark.second_user

# The fifth holds a no-break space and the sixth an ideographic one.
HOMES = ["plain", "two  blanks", "quote's", 'double "quotes"', "no\u00a0break", "東京　Käthe", "%s%n"]


@pytest.mark.parametrize("locale", ["C.UTF-8", "C"])
@pytest.mark.parametrize("name", HOMES)
def test_new_user(user, name, locale):
    user.live_in(name)
    user.launch(LC_ALL=locale)
    user.launch(LC_ALL=locale)
    assert user.log() == lines.upgrade(user, None, 2) + lines.run(2, 2, lines.NO_NEED)
    user.copy_is(2)
    user.started("start", "start")


def test_large_client(user, large_builds):
    """A part of its files is sent to the disk by a thread of its own."""
    user.builds, user.root = large_builds, large_builds[2].root
    user.install_copy(1)
    user.launch()
    user.copy_is(2)


def test_lower_build(user, builds):
    user.install_copy(2)
    user.root = builds[1].root
    user.launch()
    assert user.log() == lines.run(2, 1, lines.NO_NEED)
    user.copy_is(2)
    user.started("start")


def test_client_missing(user):
    user.install_copy(2)
    (user.app / "bin/cloud-ui").unlink()
    user.launch()
    assert user.log() == lines.upgrade(user, 2, 2)
    user.copy_is(2)


def test_relative_path(user):
    user.launch(program="./launcher", cwd=user.root / "bin", plugins="../lib/plugins")
    user.copy_is(2)


# ---- Packages that cannot be unpacked: what was unpacked goes, and the old copy is started

def tar(build, *entries) -> bytes:
    """A plain tar of a build's copy, with further entries behind: (name, type, link, content)."""
    made = io.BytesIO()
    with tarfile.open(fileobj=made, mode="w", format=tarfile.GNU_FORMAT) as archive:
        archive.add(build.copy, ".")
        for name, kind, link, content in entries:
            entry = tarfile.TarInfo(name)
            entry.type, entry.linkname, entry.size = kind, link, len(content)
            archive.addfile(entry, io.BytesIO(content))
    return made.getvalue()


def half(archive: bytes) -> bytes:
    return archive[:len(archive) // 2]


def flipped(archive: bytes) -> bytes:
    middle = len(archive) // 2
    return archive[:middle] + bytes([archive[middle] ^ 1]) + archive[middle + 1:]


def packed(build) -> bytes:
    return lzma.compress(tar(build), preset=0)


REG, LINK = tarfile.REGTYPE, tarfile.LNKTYPE
BAD_PACKAGES = {
    "no-archive/missing": lambda build: None,
    "no-archive/text": lambda build: b"no archive\n" * 999,
    "no-archive/no byte": lambda build: b"",
    "empty-archive": lambda build: bytes(10240),
    "damaged-archive/half": lambda build: half(tar(build)),
    "damaged-archive/half xz": lambda build: half(packed(build)),
    "damaged-archive/flipped bit": lambda build: flipped(packed(build)),
    "bad-entry/above the copy": lambda build: tar(build, ("../evil", REG, "", b"evil")),
    "hard-link": lambda build: tar(build, ("one", REG, "", b"1"), ("two", LINK, "one", b"")),
    "target-entry/file": lambda build: tar(build, ("./.", REG, "", b"evil")),
}


@failure("rolled-back", "no-archive", "empty-archive", "damaged-archive", "bad-entry",
         "hard-link", "target-entry")
@pytest.mark.parametrize("name", BAD_PACKAGES)
def test_bad_package(user, name):
    user.install_copy(1)
    user.own_root()
    content = BAD_PACKAGES[name](user.builds[2])
    user.package.unlink()
    if content is not None:
        write(user.package, content)
    user.launch()
    user.has(lines.ROLLED_BACK, lines.FAILED, lines.DONE, "[ERROR] extractor(N): ...")
    user.copy_is(1)
    user.started("start")
    assert not (user.top / "evil").exists()


@failure("no-rollback")
def test_bad_package_without_a_copy(user):
    user.own_root()
    user.package.unlink()
    user.launch()
    user.has(lines.NO_COPY, lines.FAILED, lines.DONE)
    user.started()


# ---- Version files

BAD_VERSIONS = {
    "missing": lambda path: path.unlink(),
    "directory": lambda path: (path.unlink(), path.mkdir()),
    "no version": lambda path: write(path, "1\n2\n3\n"),
    "a program": lambda path: write(path, open("/bin/true", "rb").read(9999)),
    "cut off": lambda path: write(path, "[Version\n"),
    "no number": lambda path: write(path, "[Version]\nbuild_version=-x9\n"),
    "locked": lambda path: write(path, "[Version]\nbuild_version=9\n", 0),
}


@pytest.mark.parametrize("whose", [pytest.param("package", marks=failure("bad-package-info")),
                                   pytest.param("copy", marks=failure("bad-copy-info"))])
@pytest.mark.parametrize("fault", [pytest.param(name, marks=second_user if name == "locked" else [])
                                   for name in BAD_VERSIONS])
def test_bad_version_file(user, whose, fault):
    user.install_copy(1)
    user.own_root()
    if fault == "locked":
        user.give_away()
    BAD_VERSIONS[fault]((user.root if whose == "package" else user.app) / "INFO")
    if whose == "package":
        copy = user.app / "INFO"
        assert copy.is_file()
        user.launch()
        user.has(lines.NO_NEED)
        user.copy_is(1)
    else:
        user.launch()
        user.has(lines.READY)
        user.copy_is(2)
    user.started("start")


@failure("refused-info")
def test_refused_version_file(user):
    user.install_copy(1)
    write(user.own_root() / "INFO", "[Version]\nbuild_version=@Variant(2)\n")
    user.launch()
    user.has(f"[WARNING] cloud-service(N): version file '{user.root / 'INFO'}' is refused...",
             lines.NO_NEED)
    user.copy_is(1)


@failure("odd-build-number")
@pytest.mark.parametrize("text, build, after", [("3 or so", 3, 2), ("1x", 1, 1), ("x9", 0, 1)])
def test_odd_build_number(user, text, build, after):
    user.install_copy(1)
    write(user.own_root() / "INFO", f"[Version]\nbuild_version={text}\n")
    user.launch()
    user.has(f"[DEBUG] linux/linux-service(126): source version = 1, target version = {build}")
    user.copy_is(after)


@failure("inner-info-lower")
def test_package_with_a_lower_build_inside(user):
    write(user.own_root() / "INFO", "[Version]\nbuild_version=3\n")
    for _ in range(2):
        user.launch()
        user.copy_is(2)
    assert user.log().count(lines.READY) == 2


# ---- Homes and disks that do not go along

@second_user
@failure("no-log", "no-log-directory")
def test_read_only_home(user):
    user.top.rmdir()
    user.give_away()
    shutil.chown(user.home, 0)
    assert lines.FAILED in user.launch()
    assert list(user.home.iterdir()) == []
    user.started()


@second_user
@failure("no-backup-name")
def test_read_only_home_with_a_copy(user):
    user.install_copy(1)
    user.log_file.parent.mkdir()
    user.give_away()
    shutil.chown(user.top, 0)
    user.launch()
    user.has(lines.FAILED)
    user.copy_is(1)
    user.started("start")


@failure("no-log-directory")
def test_file_for_the_log_directory(user):
    user.install_copy(1)
    write(user.top / "log", "")
    user.launch()
    user.copy_is(2)
    assert (user.top / "log").is_file()


@failure("no-target")
def test_file_for_the_product_directory(user):
    user.top.rmdir()
    write(user.top, "")
    assert lines.FAILED in user.launch()
    user.started()


@failure("full-disk")
def test_full_disk(user):
    subprocess.run(["mount", "-t", "tmpfs", "-o", "size=120k", "tmpfs", user.home], check=True)
    user.top.mkdir()
    user.install_copy(1)
    user.launch()
    user.has(lines.FAILED)
    user.copy_is(1)
    user.started("start")


@failure("backup-name-taken")
@pytest.mark.parametrize("taken, after", [(3, 2), pytest.param(100, 1, marks=failure("no-backup-name"))])
def test_names_taken(user, taken, after):
    user.install_copy(1)
    names = [user.top / f"app_tmp{n or ''}" for n in range(taken)]
    for name in names:
        (name / "taken").mkdir(parents=True)
    user.launch()
    user.has(*(f"[ERROR] cloud-service(N): failed to backup app from '{user.app}' -> '{name}'"
               for name in names))
    if after == 1:
        user.has(lines.FAILED, "[ERROR] cloud-service(N): failed to backup app from "
                 f"'{user.app}' -> '{names[99]}' at max retries, exiting")
    user.copy_is(after, backups=taken if after == 1 else 0)
    user.started("start")


# ---- What else there is to configure

@failure("bad-level-file")
@pytest.mark.parametrize("fault", ["missing", "malformed", "directory",
                                   pytest.param("locked", marks=second_user)])
def test_level_file(user, fault):
    user.install_copy(1)
    level = user.own_root() / "log/launcher.debug"
    level.unlink()
    if fault == "malformed":
        write(level, "launcher_debug=7\nno line\n")
    elif fault == "directory":
        level.mkdir()
    elif fault == "locked":
        write(level, "launcher_debug=7\n", 0)
        user.give_away()
    user.launch()
    assert user.log() == []
    user.copy_is(2)


@failure("language")
@pytest.mark.parametrize("locale, code", [
    ("de_DE.UTF-8", "deu"), ("zh_TW", "cht"), ("zh_CN.UTF-8", "chs"), ("pt_PT", "ptg"),
    ("pt_BR.UTF-8", "ptb"), ("C", "enu"), ("xx_YY", "enu")])
def test_language(user, locale, code):
    user.install_copy(2)
    errors = user.launch(LC_ALL=locale)
    assert f"qPrintable(qstrDef)=[{code}\n" in errors


# ---- What is missing or odd, and harms nobody

def hide_library(name: str) -> None:
    known = subprocess.run(["ldconfig", "-p"], capture_output=True, text=True).stdout
    paths = {line.split()[-1] for line in known.splitlines() if line.strip().startswith(name)}
    assert paths
    for path in paths:
        subprocess.run(["mount", "--bind", "/dev/null", path], check=True)


@failure("no-library")
def test_without_a_library(user):
    user.install_copy(1)
    hide_library("libQt5Widgets.so")
    assert user.start().wait() == 127
    user.copy_is(1)
    user.started()


@failure("no-archive-library")
def test_without_libarchive(user):
    user.install_copy(1)
    hide_library("libarchive.so")
    user.launch()
    user.has(lines.ROLLED_BACK, "[ERROR] extractor(N): ...")
    user.copy_is(1)
    user.started("start")


@failure("no-plug-in")
def test_without_plugins(user):
    user.install_copy(1)
    shutil.rmtree(user.own_root() / "lib/plugins/platforms")
    assert user.start().wait() != 0
    user.copy_is(1)
    user.started()


@failure("no-icon")
def test_without_pictures(user):
    shutil.rmtree(user.own_root() / "images")
    user.launch()
    user.copy_is(2)


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


@failure("absolute-name")
def test_absolute_name(user):
    unpack(user, tar(user.builds[2], ("/outside", REG, "", b"1")))
    assert (user.app / "outside").exists() and not Path("/outside").exists()


@failure("link-out")
def test_link_out_of_the_copy(user):
    unpack(user, tar(user.builds[2], ("out", tarfile.SYMTYPE, "../..", b""),
                     ("out/written", REG, "", b"1")))
    assert (user.home / "written").exists()


@failure("set-id")
def test_set_user_id(user):
    program = tarfile.TarInfo("bin/program")
    program.mode, program.uid = 0o6755, 1234
    made = io.BytesIO()
    with tarfile.open(fileobj=made, mode="w") as archive:
        archive.addfile(program)
    unpack(user, made.getvalue())
    found = (user.app / "bin/program").stat()
    assert found.st_mode & 0o7777 == 0o755 and found.st_uid == os.getuid()


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
