# SPDX-License-Identifier: GPL-2.0-or-later
"""Emptying the caches."""

from __future__ import annotations

import os
import subprocess
from pathlib import Path
from typing import Any, List

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate
from web import Web


@pytest.fixture
def yumio(estate: Estate, rpms: Catalogue, web: Web, program: Program, host: FakeHost) -> Any:
    """A session whose cache holds metadata, converted metadata and one package."""
    estate.write_main_config(keepcache="1")
    estate.repository("base", rpms.some("lone-1.0", "lib-1.0"), baseurl=f"{web.url}/base")
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert cached(estate, "rpm") and cached(estate, "solv") and cached(estate, "xml", "xml.gz", "xml.zst")
    return found.yumio


def cached(estate: Estate, *endings: str) -> List[Path]:
    return [path for ending in endings for path in (estate.root / "var/cache/yum").glob(f"**/*.{ending}")]


def test_packages(estate: Estate, yumio: Any) -> None:
    assert yumio.cleanPackages()[0] == 0
    assert not cached(estate, "rpm") and cached(estate, "solv") and cached(estate, "xml")


def test_metadata(estate: Estate, yumio: Any, program: Program, web: Web) -> None:
    assert yumio.cleanMetadata()[0] == 0
    assert cached(estate, "rpm") and not cached(estate, "solv", "solvx", "xml", "xml.gz")
    web.forget_requests()
    assert program.collect().merged() == {"lone": "UpToDate", "lib": "Available"}
    assert "/base/repodata/repomd.xml" in web.requests()


def test_nothing_is_removed_below_another_process(
    estate: Estate, yumio: Any, program: Program
) -> None:
    yumio.unlock()
    with subprocess.Popen(["sleep", "60"]) as other:
        (estate.root / "var/cache/yum/metadata_lock.pid").write_text(str(other.pid))
        for clean in (yumio.cleanPackages, yumio.cleanMetadata, yumio.cleanPickles):
            with pytest.raises(program.errors.YumBaseError, match=f"held by process {other.pid}"):
                clean()
        other.kill()
    assert cached(estate, "rpm") and cached(estate, "solv") and cached(estate, "xml")
    assert yumio.cleanPackages()[0] == 0
    assert not cached(estate, "rpm") and not list(estate.root.glob("var/**/*_lock.pid"))


def test_what_a_killed_download_has_left_goes_with_the_metadata(estate: Estate, yumio: Any) -> None:
    (folder,) = (file.parent.parent for file in cached(estate, "rpm"))
    unfinished = folder / "tmpdir.x7Yz12/repodata"
    unfinished.mkdir(parents=True)
    (unfinished / "primary.xml.gz.part").write_text("half")
    yumio.cleanPackages()
    assert unfinished.exists()
    assert yumio.cleanMetadata()[0] == 0
    assert not unfinished.parent.exists()


def test_converted_metadata(estate: Estate, yumio: Any) -> None:
    assert yumio.cleanPickles()[0] == 0
    assert cached(estate, "rpm") and cached(estate, "xml") and not cached(estate, "solv", "solvx")


def test_headers_there_are_none(estate: Estate, yumio: Any) -> None:
    before = sorted((estate.root / "var/cache/yum").glob("**/*"))
    assert yumio.cleanHeaders()[0] == 0
    assert sorted((estate.root / "var/cache/yum").glob("**/*")) == before


def test_cleaning_twice_is_fine(yumio: Any) -> None:
    for clean in (yumio.cleanHeaders, yumio.cleanPackages, yumio.cleanMetadata, yumio.cleanPickles):
        clean()
        answer = clean()
        assert type(answer) is tuple and type(answer[0]) is int and answer[0] == 0


def test_repository_on_this_machine_keeps_its_files(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    directory = estate.repository("base", rpms.some("lone-1.0"))
    before = sorted(directory.glob("**/*"))
    yumio = program.collect().yumio
    assert (yumio.cleanPackages()[0], yumio.cleanMetadata()[0]) == (0, 0)
    assert sorted(directory.glob("**/*")) == before


def test_file_that_cannot_be_removed_is_told(
    yumio: Any, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    def refuse(path: str, **_: Any) -> None:
        raise PermissionError(13, "Permission denied", path)

    host.calls.clear()
    with monkeypatch.context() as patch:
        patch.setattr(os, "unlink", refuse)
        assert yumio.cleanPackages()[0] == 1
    assert "lone-1.0-1.noarch.rpm: Permission denied" in host.text("errorlog")


def test_answers_after_the_end_of_the_session(yumio: Any) -> None:
    yumio.flush()
    assert yumio.cleanPackages()[0] == 0
