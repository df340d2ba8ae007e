# SPDX-License-Identifier: GPL-2.0-or-later
"""The Cache menu on the package library's own caches: what goes, what stays, and that the table comes back."""
from __future__ import annotations

import os
from pathlib import Path
from typing import BinaryIO, Callable, Iterable, NamedTuple

import pytest
from web import Web

from program import ACTION_COLUMN, Atspi, Program, has_state, wait_for
from rpmestate import Estate, spec

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]
METADATA = ("xml", "xml.gz", "xml.zst", "solv", "solvx")


class Cellar(NamedTuple):
    """An estate behind a web server, with a program whose caches hold metadata and one package."""

    estate: Estate
    web: Web
    program: Program
    later: list[Path]

    def cached(self, *endings: str) -> set[Path]:
        cache = self.estate.root / "var/cache/yum"
        return {path for ending in endings for path in cache.glob(f"**/*.{ending}")}

    def everything(self) -> set[Path]:
        """All files. An empty folder may go with the last of them or stay, as the library has it."""
        return {path for path in (self.estate.root / "var/cache/yum").glob("**/*") if not path.is_dir()}

    def offer_more(self) -> None:
        """The server has another package from now on, which nobody hears of who trusts the cache."""
        self.estate.repository("cask", self.later, baseurl=f"{self.web.url}/cask")

    def fetched_anew(self) -> bool:
        return any("repomd" in path for path in self.web.requests())


@pytest.fixture
def cellar(tmp_path: Path, serve: Serve, start: Start) -> Cellar:
    estate = Estate(tmp_path / "cellar")
    wine, port, ale = estate.build([spec("wine"), spec("port"), spec("ale")])
    estate.write_main_config(keepcache="1", metadata_expire="never")
    web = serve(estate)
    estate.repository("cask", [wine, port], baseurl=f"{web.url}/cask")
    program = start(estate)
    program.wait_ready()
    program.choose("View All")
    program.click_cell("wine", ACTION_COLUMN)
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")
    program.wait_ready()
    cellar = Cellar(estate, web, program, [wine, port, ale])
    assert [path.name for path in cellar.cached("rpm")] == ["wine-1.0-1.noarch.rpm"]
    assert cellar.cached("solv") and cellar.cached(*METADATA[:3])
    cellar.offer_more()
    program.press("Refresh")
    program.wait_ready()
    assert program.names() == ["port", "wine"]
    web.forget_requests()
    return cellar


def entry(program: Program, name: str) -> Atspi.Accessible:
    """Opens the Cache menu and gives one of its entries."""
    program.click(program.wait("Cache", Atspi.Role.MENU_ITEM))
    return program.wait(name, Atspi.Role.MENU_ITEM)


def clean(program: Program, name: str, heading: str) -> list[str]:
    """Chooses an entry and waits for its end; gives the lines that the log has got by it."""
    before = program.log_text().count("\n")
    program.click(entry(program, name))
    wait_for(lambda: heading in program.log_text().split("\n")[before:], f"{heading!r} in the log")
    program.wait_ready()
    return program.log_text().split("\n")[before + 1 :]


def held(paths: Iterable[Path]) -> dict[Path, BinaryIO]:
    """Opens the files, because a file that is open keeps its inode from being given to a new one."""
    return {path: path.open("rb") for path in paths}


def still_there(files: dict[Path, BinaryIO]) -> list[Path]:
    """Those of the files that are still the same under their paths; closes all of them."""
    try:
        return [
            path
            for path, file in files.items()
            if path.exists() and os.path.samestat(path.stat(), os.fstat(file.fileno()))
        ]
    finally:
        for file in files.values():
            file.close()


def test_cleaning_packages_leaves_the_metadata_and_the_table(cellar: Cellar) -> None:
    before = cellar.everything()
    lines = clean(cellar.program, "Clean Packages", "Cleaning Packages")
    assert {path.name for path in before - cellar.everything()} == {"wine-1.0-1.noarch.rpm"}
    assert lines == ["Cleaning Packages", "1 file removed"], "nothing is collected anew"
    assert cellar.program.names() == ["port", "wine"]
    assert not cellar.fetched_anew()


def test_cleaning_headers_finds_none_and_the_table_comes_back(cellar: Cellar) -> None:
    before = cellar.everything()
    lines = clean(cellar.program, "Clean Headers", "Cleaning Headers")
    assert cellar.everything() >= before
    assert lines[:2] == ["Cleaning Headers", "Initialization"]
    assert cellar.program.names() == ["port", "wine"]
    assert not cellar.fetched_anew()


def test_cleaning_metadata_fetches_what_the_server_has_now(cellar: Cellar) -> None:
    old = held(cellar.cached(*METADATA))
    lines = clean(cellar.program, "Clean XML Metadata", "Cleaning Xml Metadata")
    assert lines[1].endswith("files removed") and lines[2] == "Initialization"
    assert not still_there(old)
    assert {path.name for path in cellar.cached("rpm")} == {"wine-1.0-1.noarch.rpm"}
    assert cellar.fetched_anew()
    assert cellar.program.names() == ["ale", "port", "wine"]


def test_cleaning_all_leaves_nothing_of_the_old_caches(cellar: Cellar) -> None:
    old = held(cellar.cached("rpm", *METADATA))
    lines = clean(cellar.program, "Clean All", "Cleaning All")
    assert lines[0] == "Cleaning All" and "Initialization" in lines
    assert not still_there(old)
    assert not cellar.cached("rpm")
    assert cellar.fetched_anew()
    assert cellar.program.names() == ["ale", "port", "wine"]
    # What was put in before still is.
    assert cellar.program.cell(2, 1).get_name() != cellar.program.cell(0, 1).get_name()


def test_there_is_no_pickled_data_to_clean(cellar: Cellar) -> None:
    pickled = entry(cellar.program, "Clean Pickled Data")
    assert not has_state(pickled, Atspi.StateType.ENABLED)
    assert has_state(cellar.program.wait("Clean All", Atspi.Role.MENU_ITEM), Atspi.StateType.ENABLED)
    cellar.program.key("Escape", "Escape")


def test_a_server_that_is_gone_after_the_cleaning_is_told_and_a_refresh_brings_the_table(cellar: Cellar) -> None:
    cellar.web.lose("/cask/repodata/repomd.xml")
    program = cellar.program
    program.click(entry(program, "Clean All"))
    report = program.window("VEM Yum Error", timeout=60)
    assert "cask" in program.texts(report) and "404" in program.texts(report)
    program.press("Close", report)
    program.wait_ready()
    assert program.row_count() == 0
    cellar.web.find_again()
    program.press("Refresh")
    program.wait_ready()
    assert program.names() == ["ale", "port", "wine"]


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
