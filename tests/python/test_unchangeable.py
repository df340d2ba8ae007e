# SPDX-License-Identifier: GPL-2.0-or-later
"""Systems whose packages nobody can change: made from an image, or with a /usr that is read-only."""

from __future__ import annotations

import json
import os
import shutil
import subprocess
import sys
from pathlib import Path
from types import SimpleNamespace
from typing import Any, Callable, Dict, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate
from vemyum import rights

HERE = Path(__file__).resolve().parent
IMAGE_BASED = "This system is image-based: its packages come with its image, and can only be looked at here."
READ_ONLY = "{directory} is read-only: packages can be looked at, not changed."

# In a mount namespace where the directories behind it are read-only.
READ_ONLY_DIRECTORIES = """
set -e
while [ "$1" != -- ]; do
    mount --bind "$1" "$1" && mount -o remount,bind,ro "$1" || exit 77
    shift
done
shift
exec "$@"
"""

LOOKING = """
import json, sys
sys.path[:0] = [sys.argv[1]]
sys.path.append(sys.argv[1] + "/../../estate")
import fake_host
from pathlib import Path
from program import Program
program = Program(Path(sys.argv[1]) / "../../share/python/YumIO.py")
said = {"why": program.namespace["whyOnlyLooking"]()}
found = program.collect()
said["table"] = found.merged()
try:
    found.yumio.apply([found.offered("lone")], [], [])
except program.errors.YumBaseError as error:
    said["refused"] = str(error)
said["cleaned"] = found.yumio.cleanMetadata()[0]
for name in "log", "warninglog", "errorlog":
    said[name] = fake_host.HOST.text(name).splitlines()
said["asked"] = len(fake_host.HOST.named("userconfirm", "listTransaction", "dsTsCheck"))
sys.__stdout__.write(json.dumps(said) + "\\n")
program.end()
"""

Look = Callable[..., Dict[str, Any]]


@pytest.fixture
def look(estate: Estate, rpms: Catalogue, tmp_path: Path) -> Look:
    """The program on lamp 1.0, installed, and lone 1.0, offered, with some directories of the root read-only."""
    estate.install([rpms["lamp-1.0"]])
    estate.repository("base", rpms.some("lone-1.0"))
    (estate.root / "usr").mkdir(exist_ok=True)

    def look(*directories: str) -> Dict[str, Any]:
        paths = [str(estate.root / directory) for directory in directories]
        run = subprocess.run(
            ["unshare", "--mount", "sh", "-c", READ_ONLY_DIRECTORIES, "sh", *paths, "--"]
            + [sys.executable, "-B", "-c", LOOKING, str(HERE)],
            stdout=subprocess.PIPE,
            text=True,
            check=False,
        )
        if run.returncode == 77:
            pytest.skip("no right to mount")
        assert run.returncode == 0
        said: Dict[str, Any] = json.loads(run.stdout)
        return said

    return look


@pytest.fixture
def image(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Path:
    """What tells of an image, elsewhere than on this machine; there from the start."""
    mark = tmp_path / "ostree-booted"
    mark.touch()
    monkeypatch.setattr(rights, "_BOOTED_IMAGE", str(mark))
    return mark


def pretend_read_only(monkeypatch: pytest.MonkeyPatch, *directories: str) -> None:
    def statvfs(path: str) -> Any:
        if not os.path.exists(path):
            raise FileNotFoundError(path)
        return SimpleNamespace(f_flag=os.ST_RDONLY if path in directories else 0)

    monkeypatch.setattr(rights.os, "statvfs", statvfs)


# The rule -----------------------------------------------------------------------------------------------


def test_running_system_made_from_an_image_cannot_be_changed(
    image: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    pretend_read_only(monkeypatch)
    assert rights.unchangeable("/") == IMAGE_BASED
    (tmp_path / "link").symlink_to("/")
    assert rights.unchangeable(str(tmp_path / "link")) == IMAGE_BASED
    # The running system's mark tells nothing of another one.
    assert rights.unchangeable(str(tmp_path)) is None
    image.unlink()
    assert rights.unchangeable("/") is None


def test_read_only_usr_cannot_be_changed(
    image: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    image.unlink()
    usr = tmp_path / "usr"
    pretend_read_only(monkeypatch, "/usr", str(usr))
    assert rights.unchangeable("/") == READ_ONLY.format(directory="/usr")
    # What is not there can still be made.
    assert rights.unchangeable(str(tmp_path)) is None
    usr.mkdir()
    assert rights.unchangeable(str(tmp_path)) == READ_ONLY.format(directory=usr)
    pretend_read_only(monkeypatch)
    assert rights.unchangeable(str(tmp_path)) is None


def test_only_the_var_that_is_read_only_needs_another_place(
    tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    (tmp_path / "var").mkdir()
    pretend_read_only(monkeypatch, str(tmp_path / "usr"))
    assert not rights.keeps_own_directory(str(tmp_path))
    pretend_read_only(monkeypatch, str(tmp_path / "var"))
    assert rights.keeps_own_directory(str(tmp_path))


def test_program_tells_the_engine(
    estate: Estate, program: Program, monkeypatch: pytest.MonkeyPatch
) -> None:
    assert program.namespace["whyOnlyLooking"]() is None
    assert program.namespace["whyNoChange"]() is None
    monkeypatch.setattr(os, "geteuid", lambda: 65534)
    assert program.namespace["whyOnlyLooking"]() is None
    assert program.namespace["whyNoChange"]().startswith("Started without administrator rights")
    (estate.root / "usr").mkdir(exist_ok=True)
    pretend_read_only(monkeypatch, str(estate.root / "usr"))
    for name in "whyOnlyLooking", "whyNoChange":
        assert program.namespace[name]() == READ_ONLY.format(directory=estate.root / "usr")


# What remains -------------------------------------------------------------------------------------------


def test_changeable_system_says_nothing(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    lamp[1].collect()
    assert "looked at" not in host.text("log")


def test_read_only_usr_is_told_once_and_looked_at(look: Look, estate: Estate) -> None:
    said = look("usr")
    reason = READ_ONLY.format(directory=estate.root / "usr")
    assert said["why"] == said["refused"] == reason
    assert said["log"].count(reason) == 1
    assert said["table"] == {"lamp": "UpToDate", "lone": "Available"}
    assert said["asked"] == 0 and said["errorlog"] == []


def test_caches_of_a_writable_var_are_the_systems_and_can_be_cleaned(look: Look, estate: Estate) -> None:
    said = look("usr")
    assert (estate.root / "var/cache/yum").is_dir() and not (Path.home() / ".cache/vem").exists()
    assert said["cleaned"] == 0
    assert not list((estate.root / "var/cache/yum").rglob("*.solv"))


def test_database_that_is_read_only_too_can_be_looked_at(look: Look, estate: Estate) -> None:
    place = estate.root / "usr/lib/sysimage/rpm"
    place.parent.mkdir(parents=True)
    shutil.move(str(estate.root / "var/lib/rpm"), place)
    (estate.root / "etc/rpm/macros.estate").write_text("%_dbpath /usr/lib/sysimage/rpm\n", encoding="utf-8")
    assert look("usr")["table"] == {"lamp": "UpToDate", "lone": "Available"}


def test_system_that_is_read_only_as_a_whole_is_looked_at_from_the_users_cache(look: Look, estate: Estate) -> None:
    said = look("")
    assert said["refused"] == READ_ONLY.format(directory=estate.root / "usr")
    assert said["table"] == {"lamp": "UpToDate", "lone": "Available"}
    assert len(list((Path.home() / ".cache/vem").iterdir())) == 1
