# SPDX-License-Identifier: GPL-2.0-or-later
"""Repository files that aren't UTF-8, such as the editor leaves where a name with an umlaut was typed."""

from __future__ import annotations

import os
import tempfile
from pathlib import Path
from typing import Dict, Tuple

import pytest
from fake_host import FakeHost
from libraries import by_library
from program import Program
from rpmestate import Estate

LATIN1 = "B\u00fcro".encode("latin-1")
UTF8 = "M\u00f6bel".encode()


def append(estate: Estate, text: bytes) -> Path:
    """Makes `text` the end of the one section of base.repo."""
    file = estate.root / "etc/yum.repos.d/base.repo"
    file.write_bytes(file.read_bytes() + text)
    return file


def names(program: Program) -> Dict[str, str]:
    return {repo.id: repo.name for repo in program.start().repos.repos.values()}


@pytest.mark.parametrize(
    ("line", "name"),
    [(LATIN1, "B\u00fcro"), (UTF8, "M\u00f6bel"), (LATIN1 + b" " + UTF8, "B\u00fcro M\u00f6bel")],
)
def test_bytes_that_are_not_utf8_are_read_as_latin1(
    lamp: Tuple[Estate, Program], line: bytes, name: str
) -> None:
    estate, program = lamp
    append(estate, b"name=" + line + b"\n")
    assert names(program) == {"base": name}
    assert program.collect().offered("lamp").version == "1.1"


def test_comment_in_latin1_does_not_keep_a_repository_out(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    append(estate, b"# " + LATIN1 + b" = " + LATIN1 + b"\n" + LATIN1 + b"=1\n")
    assert program.collect().offered("lamp").version == "1.1"


def test_name_of_a_file_in_latin1_does_not_keep_its_repository_out(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    file = estate.root / "etc/yum.repos.d/base.repo"
    file.rename(file.with_name(os.fsdecode(LATIN1 + b".repo")))
    assert program.collect().offered("lamp").version == "1.1"


def test_repository_in_the_main_file_may_be_named_in_latin1(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    file = estate.root / "etc/yum.repos.d/base.repo"
    with open(estate.root / "etc/yum.conf", "ab") as main:
        main.write(file.read_bytes() + b"name=" + LATIN1 + b"\n")
    file.unlink()
    assert names(program) == {"base": "B\u00fcro"}


def test_identifier_beyond_ascii_costs_only_its_own_repository(
    lamp: Tuple[Estate, Program], host: FakeHost
) -> None:
    estate, program = lamp
    append(estate, b"[" + LATIN1 + b"]\nbaseurl=file:///nowhere\n")
    assert program.collect().offered("lamp").version == "1.1"
    refused = by_library("Bad id for repo: {}", 'Invalid repository id "{}"').format("B\u00fcro")
    assert refused in host.text("warninglog")


@pytest.mark.parametrize("mark", [b"", b"\xef\xbb\xbf"])
@pytest.mark.parametrize("name", [b"Base", UTF8, LATIN1])
@pytest.mark.parametrize("ends", [b"\n", b"\r\n"])
def test_mark_and_ends_of_a_file_cost_nothing(
    lamp: Tuple[Estate, Program], mark: bytes, name: bytes, ends: bytes
) -> None:
    estate, program = lamp
    for file in (estate.root / "etc/yum.repos.d/base.repo", estate.root / "etc/yum.conf"):
        text = file.read_bytes() + (b"name=" + name + b"\nenabled=1\n" if file.suffix == ".repo" else b"")
        file.write_bytes(mark + text.replace(b"\n", ends))
    assert names(program) == {"base": name.decode("latin-1" if name == LATIN1 else "utf-8")}
    assert program.collect().offered("lamp").version == "1.1"


def test_file_that_is_not_utf8_is_told_with_its_line(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = lamp
    file = append(estate, b"name=" + LATIN1 + b"\n")
    line = file.read_bytes().count(b"\n")
    program.start()
    assert f"/etc/yum.repos.d/{file.name}, line {line}, is read as Latin-1" in host.text("warninglog")


@pytest.mark.parametrize("before", [b"", b"# " + LATIN1 + b"\n"])
def test_fault_in_a_file_is_told_once_and_by_the_files_own_name(
    lamp: Tuple[Estate, Program], host: FakeHost, before: bytes
) -> None:
    estate, program = lamp
    (estate.root / "etc/yum.repos.d/broken.repo").write_bytes(before + b"[broken\nname=x\n")
    program.start()
    words = by_library("Parsing", "Missing ']'")
    told = [line for line in host.text("warninglog").splitlines() if "Latin-1" not in line]
    assert "".join(told).count(words) == 1 and "".join(told).count("/etc/yum.repos.d/broken.repo") == 1
    assert program.collect().offered("lamp").version == "1.1"


def test_nothing_of_the_file_is_changed_or_left_elsewhere(
    lamp: Tuple[Estate, Program], tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate, program = lamp
    file = append(estate, b"name=" + LATIN1 + b"\n")
    before = file.read_bytes()
    directory = tmp_path / "temporary"
    directory.mkdir()
    monkeypatch.setattr(tempfile, "tempdir", str(directory))
    assert names(program) == {"base": "B\u00fcro"}
    assert file.read_bytes() == before
    assert list(directory.iterdir()) == []
