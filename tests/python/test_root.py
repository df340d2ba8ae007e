# SPDX-License-Identifier: GPL-2.0-or-later
"""Links of the managed system lead where they lead there, never out of the root."""

from __future__ import annotations

import errno
import os
import sys
from pathlib import Path
from typing import List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "share/python"))

from vemyum import configuration, database, rights, root  # noqa: E402


@pytest.fixture
def folder(tmp_path: Path) -> Path:
    """A root with a file and links to it, beside something of the host's."""
    folder = tmp_path / "root"
    (folder / "etc").mkdir(parents=True)
    (folder / "etc/file").write_text("inside")
    (tmp_path / "secret").write_text("of the host")
    for link, target in {
        "etc/relative": "file",
        "etc/absolute": "/etc/file",
        "etc/host": f"{tmp_path}/secret",
        "etc/above": "../../../secret",
        "etc/dangling": "/none/here",
        "etc/loop": "/etc/loop",
        "folder": "/etc",
    }.items():
        (folder / link).symlink_to(target)
    return folder


@pytest.mark.parametrize(
    ("path", "place"),
    [
        # Whatever stays inside by itself keeps its text.
        ("/etc/file", "/etc/file"),
        ("/etc/relative", "/etc/relative"),
        ("/etc//../etc/none", "/etc//../etc/none"),
        ("etc/file", "/etc/file"),
        ("/etc/absolute", "/etc/file"),
        ("/folder/absolute", "/etc/file"),
        ("/folder/none/at/all", "/etc/none/at/all"),
        ("/etc/above", "/secret"),
        ("/../secret", "/secret"),
        ("/etc/dangling", "/none/here"),
        ("/", "/"),
    ],
)
def test_paths_lead_to_what_is_inside(folder: Path, path: str, place: str) -> None:
    assert root.below(str(folder), path) == f"{folder}{place}"


def test_path_of_the_host_is_one_below_the_root(folder: Path, tmp_path: Path) -> None:
    assert root.below(str(folder), "/etc/host") == f"{folder}{tmp_path}/secret"


def test_loop_is_a_fault(folder: Path) -> None:
    with pytest.raises(OSError) as caught:
        root.below(str(folder), "/etc/loop")
    assert caught.value.errno == errno.ELOOP


def test_without_a_root_paths_stay_as_they_are(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.delenv("VEMROOT", raising=False)
    assert root.managed_root() == "/"
    assert root.below("/", "/etc/../x") == "/etc/../x"
    assert root.within("/", "/etc/x") == "/etc/x"
    (tmp_path / "b.conf").write_text("")
    (tmp_path / "a.conf").symlink_to(tmp_path / "b.conf")
    names = [f"{tmp_path}/a.conf", f"{tmp_path}/b.conf"]
    assert root.files("/", str(tmp_path), "*.conf") == [(name, name) for name in names]


def test_files_are_regular_ones_inside(folder: Path) -> None:
    os.mkfifo(folder / "etc/pipe")
    (folder / "etc/.hidden").write_text("")
    found = root.files(str(folder), "/folder", "*")
    assert [path for path, _place in found] == ["/folder/absolute", "/folder/file", "/folder/relative"]
    # The directory is a link out of the root: no place has a link in it.
    assert {root.within(str(folder), place) for _path, place in found} == {"/etc/file"}
    (folder / "usr/one").mkdir(parents=True)
    (folder / "usr/one/macros").write_text("")
    assert root.files(str(folder), "/usr", "*/macros") == [("/usr/one/macros", f"{folder}/usr/one/macros")]


def move(estate: Estate, path: str) -> None:
    """Puts an absolute link in the place of something, whose name means nothing outside of the root."""
    there = estate.root / path
    kept = estate.root / "moved" / path
    kept.parent.mkdir(parents=True, exist_ok=True)
    there.rename(kept)
    there.symlink_to(f"/moved/{path}")


@pytest.mark.parametrize(
    "path",
    [
        "etc", "etc/yum.conf", "etc/yum.repos.d", "etc/yum.repos.d/base.repo", "etc/rpm",
        "var", "var/lib/rpm", "usr", "usr/lib/rpm",
    ],
)
def test_system_behind_absolute_links_is_managed(lamp: Tuple[Estate, Program], path: str) -> None:
    estate, program = lamp
    for folder in ("usr/lib/rpm", "var/cache/yum"):
        (estate.root / folder).mkdir(parents=True, exist_ok=True)
    move(estate, path)
    collection = program.collect()
    assert collection.there("lamp").version == "1.0"
    assert collection.offered("lamp").version == "1.1"
    assert program.start().repos.repos.keys() == {"base"}


def test_caches_lie_inside(lamp: Tuple[Estate, Program], tmp_path: Path) -> None:
    estate, program = lamp
    (estate.root / "var/log").mkdir(parents=True, exist_ok=True)
    host = tmp_path / "host"
    host.mkdir()
    for path in ("var/log", "var/cache"):
        there = estate.root / path
        if there.is_dir():
            there.rmdir()
        there.symlink_to(host)
    program.collect()
    assert list(host.iterdir()) == []
    assert list((estate.root / str(host)[1:]).rglob("*.solv"))


def test_repositories_of_the_host_are_not_read(lamp: Tuple[Estate, Program], tmp_path: Path) -> None:
    estate, program = lamp
    host = tmp_path / "host"
    host.mkdir()
    (host / "other.repo").write_text("[other]\nbaseurl=file:///nowhere\n")
    (estate.root / "etc/yum").mkdir(exist_ok=True)
    (estate.root / "etc/yum/repos.d").symlink_to(host)
    (estate.root / "etc/yum.repos.d/link.repo").symlink_to(host / "other.repo")
    assert program.start().repos.repos.keys() == {"base"}


def test_one_directory_is_read_once(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = lamp
    (estate.root / "etc/yum").mkdir(exist_ok=True)
    (estate.root / "etc/yum/repos.d").symlink_to("../yum.repos.d")
    (estate.root / "etc/yum.repos.d/again.repo").symlink_to("base.repo")
    (estate.root / "etc/yum.repos.d/main.repo").symlink_to("../yum.conf")
    assert program.start().repos.repos.keys() == {"base"}
    assert not host.named("warninglog")


def test_pipe_among_the_repositories_is_left_alone(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    os.mkfifo(estate.root / "etc/yum.repos.d/a.repo")
    assert program.collect().offered("lamp").version == "1.1"


def test_main_file_that_is_a_pipe_is_told(estate: Estate, program: Program, host: FakeHost) -> None:
    main = estate.root / "etc/yum.conf"
    main.unlink()
    os.mkfifo(main)
    with pytest.raises(SystemExit):
        program.start()
    report = host.text("errorlog")
    assert "/etc/yum.conf is not a regular file" in report and str(main) not in report


def test_main_file_that_leads_round_in_circles_is_told(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    program.start()
    main = estate.root / "etc/yum.conf"
    main.unlink()
    main.symlink_to("/etc/yum.conf")
    yumio = program.namespace["YumIO"]()
    assert yumio.repos.repos.keys() == {"/etc/yum.conf"}
    with pytest.raises(program.errors.RepoError, match="Too many levels of symbolic links"):
        yumio.setupRepos()


@pytest.mark.parametrize("path", ["etc/yum/vars", "etc/yum/vars/word"])
def test_variables_are_those_of_the_root(lamp: Tuple[Estate, Program], path: str) -> None:
    estate, program = lamp
    variables = estate.root / "etc/yum/vars"
    variables.mkdir(parents=True)
    (variables / "word").write_text("inside\n")
    move(estate, path)
    assert program.start().conf.yumvar["word"] == "inside"


def test_variables_of_the_host_are_none(lamp: Tuple[Estate, Program], tmp_path: Path) -> None:
    estate, program = lamp
    variables = estate.root / "etc/yum/vars"
    variables.mkdir(parents=True)
    (tmp_path / "word").write_text("outside\n")
    (variables / "word").symlink_to(tmp_path / "word")
    assert "word" not in program.start().conf.yumvar


def test_directory_of_variables_above_the_root_is_the_one_inside(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    variables = estate.root / "data/vars"
    variables.mkdir(parents=True)
    (variables / "word").write_text("inside\nrest\n")
    outside = estate.root.parent / "data"
    with open(estate.root / "etc/yum.conf", "a", encoding="utf-8") as main:
        main.write("varsdir=/../data/vars\n")
    assert program.start().conf.yumvar["word"] == "inside"
    assert not outside.exists()


def test_protected_packages_are_those_of_the_root(estate: Estate, tmp_path: Path) -> None:
    folder = estate.root / "etc/dnf/protected.d"
    folder.mkdir(parents=True)
    (folder / "a.conf").write_text("inside\n")
    (tmp_path / "outside.conf").write_text("outside\n")
    (folder / "b.conf").symlink_to(tmp_path / "outside.conf")
    move(estate, "etc/dnf")
    assert configuration.protected_packages(str(estate.root)) == ["dnf", "yum", "inside"]


def test_database_is_the_one_inside(estate: Estate, rpms: Catalogue) -> None:
    estate.install([rpms["lamp-1.0"]])
    move(estate, "var/lib/rpm")
    assert database.database_directory(str(estate.root)) == "/moved/var/lib/rpm"
    assert database.damage(str(estate.root)) is None


def test_read_only_directory_is_the_one_inside(estate: Estate, monkeypatch: pytest.MonkeyPatch) -> None:
    asked: List[str] = []
    statvfs = os.statvfs

    def ask(path: str) -> os.statvfs_result:
        asked.append(path)
        return statvfs(path)

    monkeypatch.setattr(os, "statvfs", ask)
    (estate.root / "usr").symlink_to("/data/usr")
    (estate.root / "data/usr").mkdir(parents=True)
    rights.unchangeable(str(estate.root))
    assert asked == [f"{estate.root}/data/usr"]
