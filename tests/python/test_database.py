# SPDX-License-Identifier: GPL-2.0-or-later
"""Where the rpm database of a root is: rpm is asked, by what the root itself says."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

import pytest
from catalogue import Catalogue
from program import Program
from rpmestate import DB_PATH, Estate

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "share/python"))

import rpm  # noqa: E402
from vemyum import database, errors  # noqa: E402

ELSEWHERE = "/usr/lib/sysimage/rpm"


@pytest.fixture
def root(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Path:
    """An empty root, looked at by a user with a home of its own."""
    root = tmp_path / "root"
    root.mkdir()
    monkeypatch.setenv("HOME", str(tmp_path / "home"))
    return root


def state(root: Path, file: str, text: str) -> Path:
    path = root / file
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text)
    return path


def stand_in(tmp_path: Path, monkeypatch: pytest.MonkeyPatch, body: str) -> None:
    """A host whose rpm is this script."""
    programs = tmp_path / "programs"
    programs.mkdir()
    (programs / "rpm").write_text(f"#!/bin/sh\n{body}\n")
    (programs / "rpm").chmod(0o755)
    monkeypatch.setenv("PATH", f"{programs}:{os.environ['PATH']}")


@pytest.mark.parametrize(
    "file",
    [
        "usr/lib/rpm/macros",
        "usr/lib/rpm/macros.d/macros.place",
        "usr/lib/rpm/someones/macros",
        "etc/rpm/macros.place",
        "etc/rpm/macros",
    ],
)
def test_every_macro_file_of_the_root_is_read(root: Path, file: str) -> None:
    state(root, file, "%_dbpath /srv/packages\n")
    assert database.database_directory(str(root)) == "/srv/packages"


def test_macros_are_evaluated_and_the_later_file_wins(root: Path) -> None:
    state(root, "usr/lib/rpm/macros", "%_var /data\n%_dbpath %{_var}/lib/rpm\n")
    assert database.database_directory(str(root)) == "/data/lib/rpm"
    state(root, "etc/rpm/macros.image", "%_dbpath %{_usr}/lib/sysimage/rpm\n%_usr /usr\n")
    assert database.database_directory(str(root)) == ELSEWHERE


def test_changed_macros_are_read_again(root: Path) -> None:
    file = state(root, "etc/rpm/macros", "%_dbpath /one\n")
    assert database.database_directory(str(root)) == "/one"
    file.write_text("%_dbpath /two\n")
    os.utime(file, ns=(1, 1))
    assert database.database_directory(str(root)) == "/two"
    file.unlink()
    assert database.database_directory(str(root)) != "/two"


def test_rpm_is_asked_once_while_the_macros_stay(
    root: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    stand_in(tmp_path, monkeypatch, f"echo asked >>'{tmp_path}/said'; echo /here")
    state(root, "etc/rpm/macros", "%_dbpath /here\n")
    assert [database.database_directory(str(root)) for _ in range(3)] == ["/here"] * 3
    assert (tmp_path / "said").read_text() == "asked\n"


@pytest.mark.parametrize("name", ["a b", "a:b", "a*[b]", "100%x", "naïve"])
def test_root_of_any_name_is_read(tmp_path: Path, root: Path, name: str) -> None:
    odd = root.rename(tmp_path / name)
    state(odd, "etc/rpm/macros.place", "%_dbpath /there\n")
    assert database.database_directory(str(odd)) == "/there"


def test_home_is_that_of_the_roots_administrator(root: Path) -> None:
    state(root, "usr/lib/rpm/macros", "%_dbpath %{getenv:HOME}/.packages\n")
    assert database.database_directory(str(root)) == "/root/.packages"


def test_macros_of_this_process_stay(root: Path) -> None:
    state(root, "etc/rpm/macros", "%_dbpath /there\n%_mark_of_the_root 1\n")
    before = rpm.expandMacro("%{_dbpath}")
    database.database_directory(str(root))
    assert rpm.expandMacro("%{_dbpath} %{?_mark_of_the_root}") == f"{before} "


@pytest.mark.parametrize("has_macros", [False, True])
def test_root_that_says_nothing_has_the_place_of_the_host(
    root: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch, has_macros: bool
) -> None:
    # The root's macros are asked for with an option, the host's without.
    stand_in(tmp_path, monkeypatch, 'case $1 in --macros=*) echo ;; *) echo /host/rpm ;; esac')
    if has_macros:
        state(root, "usr/lib/rpm/macros.d/macros.other", "%_other 1\n")
    assert database.database_directory(str(root)) == "/host/rpm"


def test_place_in_the_callers_home_is_none_for_another_root(
    root: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    stand_in(tmp_path, monkeypatch, 'echo "$HOME/.packages"')
    assert database.database_directory(str(root)) == "/var/lib/rpm"


def test_running_system_has_the_place_that_rpm_says() -> None:
    # Without what other tests have told this process.
    rpm.reloadConfig()
    said = subprocess.run(["rpm", "--eval", "%{_dbpath}"], check=True, capture_output=True, text=True).stdout
    assert database.database_directory("/") == said.strip()


def test_rpm_that_fails_is_told(root: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    stand_in(tmp_path, monkeypatch, "echo macros are broken >&2; exit 1")
    with pytest.raises(errors.YumBaseError, match="where its database is: macros are broken"):
        database.database_directory(str(root))


def test_rpm_that_is_missing_is_told(root: Path, tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setenv("PATH", str(tmp_path))
    with pytest.raises(errors.YumBaseError, match="where its database is: rpm: No such file"):
        database.database_directory(str(root))


def test_the_program_finds_a_database_in_another_place(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", rpms.some("battery-1.0"))
    place = estate.root / ELSEWHERE.lstrip("/")
    place.parent.mkdir(parents=True)
    (estate.root / DB_PATH.lstrip("/")).rename(place)
    state(estate.root, "etc/rpm/macros.estate", f"%_dbpath {ELSEWHERE}\n")
    found = program.collect()
    assert found.merged() == {"lone": "UpToDate", "battery": "Available"}
    found.yumio.apply([found.offered("battery")], [], [])
    assert program.collect().merged() == {"lone": "UpToDate", "battery": "UpToDate"}
    assert not (estate.root / DB_PATH.lstrip("/")).exists()
