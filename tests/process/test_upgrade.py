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


# ---- Packages that cannot be unpacked: what was unpacked goes, and the old copy is started

REG, LINK = tarfile.REGTYPE, tarfile.LNKTYPE


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


def flip(archive: bytes, at: int) -> bytes:
    return archive[:at] + bytes([archive[at] ^ 4]) + archive[at + 1:]


# Of build 2's package and its archive: the content of a bad one, None for none at all.
BAD_PACKAGES = {
    "missing": lambda good, build: None,
    "text": lambda good, build: b"no archive\n" * 999,
    "no entries": lambda good, build: bytes(10240),
    "half": lambda good, build: good[:len(good) // 2],
    "half a plain tar": lambda good, build: tar(build)[:len(tar(build)) // 2],
    "last byte missing": lambda good, build: good[:-1],
    "bit of a file's contents": lambda good, build: flip(good, len(good) // 2),
    "bit of INFO": lambda good, build: flip(good, good.rindex(b"\x28\xb5\x2f\xfd") - 1000),
    "above the copy": lambda good, build: tar(build, ("../evil", REG, "", b"evil")),
    "hard link": lambda good, build: tar(build, ("1", REG, "", b"1"), ("2", LINK, "1", b"")),
    "file for the target": lambda good, build: tar(build, ("./.", REG, "", b"evil")),
}


@failure("rolled-back", "no-archive", "empty-archive", "damaged-archive", "bad-entry",
         "hard-link", "target-entry")
@pytest.mark.parametrize("name", BAD_PACKAGES)
def test_bad_package(user, name):
    user.install_copy(1)
    user.own_root()
    content = BAD_PACKAGES[name](user.package.read_bytes(), user.builds[2])
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

@failure("bad-package-info", "bad-copy-info", "refused-info")
@pytest.mark.parametrize("of_package", [True, False])
@pytest.mark.parametrize("content", [
    None, "directory", "[Version\n", "[Version]\nbuild_version=@Variant(2)\n",
    pytest.param("locked", marks=second_user)])
def test_bad_version_file(user, of_package, content):
    """Counts as build 0, whose it may be."""
    user.install_copy(1)
    info = (user.own_root() if of_package else user.app) / "INFO"
    if content == "locked":
        user.give_away()
        os.chown(write(info, "[Version]\nbuild_version=9\n", 0), 0, 0)
    elif content == "directory":
        info.unlink()
        info.mkdir()
    elif content:
        write(info, content)
    else:
        info.unlink()
    user.launch()
    user.has(lines.NO_NEED if of_package else lines.READY)
    if content and "@" in content:
        user.has(f"[WARNING] cloud-service(N): version file '{info}' is refused...")
    user.copy_is(1 if of_package else 2)
    user.started("start")


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


@failure("no-log-directory", "no-target")
@pytest.mark.parametrize("name", ["log", "."])
def test_file_for_a_directory(user, name):
    if name == ".":
        user.top.rmdir()
    taken = write(user.top / name, "")
    said = user.launch()
    assert taken.is_file()
    if name == ".":
        assert lines.FAILED in said
    else:
        user.copy_is(2)


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
@pytest.mark.parametrize("taken, after", [(3, 2), (100, 1)])
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
@pytest.mark.parametrize("fault", ["malformed", "directory"])
def test_level_file(user, fault):
    user.install_copy(1)
    level = write(user.own_root() / "log/launcher.debug", "launcher_debug=7\nno line\n")
    if fault == "directory":
        level.unlink()
        level.mkdir()
    user.launch()
    assert user.log() == []
    user.copy_is(2)


@failure("language")
@pytest.mark.parametrize("locale, code", [
    ("de_DE.UTF-8", "deu"), ("zh_TW", "cht"), ("pt_PT", "ptg"), ("xx_YY", "enu")])
def test_language(user, locale, code):
    user.install_copy(2)
    errors = user.launch(LC_ALL=locale)
    assert f"qPrintable(qstrDef)=[{code}\n" in errors


# ---- What is missing or odd, and harms nobody

def hide_library(name: str) -> None:
    known = subprocess.run(["/sbin/ldconfig", "-p"], capture_output=True, text=True).stdout
    paths = {line.split()[-1] for line in known.splitlines() if line.strip().startswith(name)}
    assert paths
    for path in paths:
        subprocess.run(["mount", "--bind", "/dev/null", path], check=True)


@failure("no-library", "no-plug-in")
@pytest.mark.parametrize("what", ["library", "plug-in"])
def test_toolkit_incomplete(user, what):
    """The system or the toolkit ends the launcher before it has touched anything."""
    user.install_copy(1)
    if what == "library":
        hide_library("libQt5Widgets.so")
    else:
        shutil.rmtree(user.own_root() / "lib/plugins/platforms")
    code = user.start().wait()
    assert code == 127 if what == "library" else code != 0
    user.copy_is(1)
    user.started()


@failure("no-archive-library")
@pytest.mark.parametrize("reason, spoil", [
    ("undefined symbol: archive_read_support_format_all", lambda library: library.replace(
        b"archive_read_support_format_all", b"archive_read_support_format_xyz")),
    ("cannot read file data", lambda library: library[:100]),
    ("file too short", None)])
def test_archive_library(user, reason, spoil):
    """The loader's own words are logged, and nothing is begun with half a library."""
    user.install_copy(1)
    if spoil:
        known = subprocess.run(["/sbin/ldconfig", "-p"], capture_output=True, text=True).stdout
        name, path = re.search(r"(libarchive\.so\.\d+) .* => (.*)", known).groups()
        write(user.dir / "lib" / name, spoil(Path(path).read_bytes()))
    else:
        hide_library("libarchive.so")
    user.launch(LD_LIBRARY_PATH=str(user.dir / "lib"))
    user.has(lines.ROLLED_BACK, "[ERROR] libarchive(...", "[ERROR] extractor(N): ...")
    assert any(reason in line for line in user.log()), [x for x in user.log() if "libarch" in x]
    user.copy_is(1)
    user.started("start")


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


@failure("absolute-name", "link-out")
def test_names_that_lead_elsewhere(user):
    unpack(user, tar(user.builds[2], ("/outside", REG, "", b"1"),
                     ("out", tarfile.SYMTYPE, "../..", b""), ("out/written", REG, "", b"1")))
    assert (user.app / "outside").exists() and not Path("/outside").exists()
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
