# SPDX-License-Identifier: GPL-2.0-or-later
"""What the user stops is given up at once, whatever a server does, and leaves everything as it was."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Iterator

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Collection, Program
from rpmestate import Estate
from stopping import Stopper
from web import Web

AT_ONCE = 1.5
"""Seconds; a second is what a user waits at most, the rest is for a machine that does other things."""


@pytest.fixture
def stopper(program: Program, tmp_path: Path) -> Iterator[Stopper]:
    stopper = Stopper(program, tmp_path)
    yield stopper
    program.clear()
    stopper.close()


@pytest.fixture
def served(estate: Estate, rpms: Catalogue, web: Web) -> Estate:
    """Two repositories in the web, which can be done without."""
    for id, names in {"base": ("battery-1.0", "lib-1.0"), "more": ("lone-1.0",)}.items():
        extra = {"skip_if_unavailable": "1"}
        estate.repository(id, rpms.some(*names), baseurl=f"{web.url}/{id}", extra=extra)
    return estate


def grow_old(estate: Estate) -> None:
    """What has been fetched is to be fetched anew."""
    for file in (estate.root / "var/cache").rglob("*"):
        os.utime(file, (0, 0), follow_symlinks=False)


@pytest.fixture
def requests(tmp_path: Path) -> Path:
    return tmp_path / "web" / "requests"


def stopped(program: Program, kind: str = "YumBaseError") -> pytest.RaisesContext[BaseException]:
    return pytest.raises(getattr(program.errors, kind), match="^Stopped$")


def test_a_silent_server_is_left_and_what_was_read_before_shows(
    served: Estate, program: Program, web: Web, stopper: Stopper, requests: Path
) -> None:
    before = program.collect().merged()
    assert set(before) == {"battery", "lib", "lone"}
    web.forget_requests()
    grow_old(served)
    web.hold("/base/repodata/repomd.xml")
    program.clear()
    program.start()
    with stopper.once(requests, "/base/"), stopped(program, "RepoError"):
        program.yumio.setupRepos()
    assert stopper.seconds() < AT_ONCE
    assert set(web.requests()) == {"/base/repodata/repomd.xml"}, "the other repository isn't tried"
    web.forget_requests()
    program.clear()
    program.start()
    program.yumio.stayOnDisk()
    program.yumio.setupRepos()
    program.collection = Collection(program.yumio)
    assert program.collection.merged() == before
    assert program.yumio.incomplete() == []
    assert web.requests() == []


def test_without_the_network_a_repository_that_was_never_read_is_left_out(
    served: Estate, program: Program, web: Web
) -> None:
    program.start()
    program.yumio.stayOnDisk()
    program.yumio.setupRepos()
    program.collection = Collection(program.yumio)
    assert program.collection.merged() == {}
    told = program.yumio.incomplete()
    assert [text.split()[4] for text in told] == ["base", "more"]
    assert all(text.endswith(":\nNothing of it has been fetched before") for text in told)
    assert web.requests() == []


@pytest.mark.parametrize("list", ["metalink", "mirrorlist"])
def test_a_silent_list_of_mirrors_is_left(
    list: str, estate: Estate, rpms: Catalogue, program: Program, web: Web, stopper: Stopper, requests: Path
) -> None:
    estate.repository("base", [rpms["lone-1.0"]], extra={"baseurl": None, list: f"{web.url}/mirrors"})
    web.hold("/mirrors")
    program.start()
    with stopper.once(requests, "/mirrors"), stopped(program, "RepoError"):
        program.yumio.setupRepos()
    assert stopper.seconds() < AT_ONCE


def test_a_silent_server_of_change_logs_is_left(
    served: Estate, program: Program, web: Web, stopper: Stopper, requests: Path
) -> None:
    found = program.collect()
    web.forget_requests()
    web.hold("repodata")
    with stopper.once(requests, "repodata"), stopped(program):
        found.yumio.collectOtherData()
    assert stopper.seconds() < AT_ONCE
    web.let_go()
    assert found.yumio.collectOtherData()
    assert found.offered("lone").returnChangelog() is not None


def test_cleaning_is_stopped_before_the_next_file(served: Estate, program: Program, stopper: Stopper) -> None:
    found = program.collect()
    before = sorted((served.root / "var/cache").rglob("*"))
    with stopper.at_once(), stopped(program):
        found.yumio.cleanMetadata()
    assert sorted((served.root / "var/cache").rglob("*")) == before
    assert found.yumio.cleanMetadata()[0] == 0


def test_each_step_of_a_collection_can_be_stopped(served: Estate, program: Program, stopper: Stopper) -> None:
    found = program.collect()
    with stopper.at_once():
        for step in ("collectUpdates", "collectAll", "setupTsGroup", "collectFileLists"):
            with stopped(program):
                getattr(found.yumio, step)()
    assert found.yumio.collectFileLists()


def test_an_apply_that_is_stopped_asks_nothing(
    served: Estate, program: Program, stopper: Stopper, host: FakeHost
) -> None:
    found = program.collect()
    with stopper.at_once(), stopped(program):
        found.yumio.apply([found.offered("lone")], [], [])
    assert not host.named("userconfirm")
    found.yumio.apply([found.offered("lone")], [], [])
    assert served.installed() == {"lone-1.0-1.noarch"}


def test_a_stopped_download_keeps_what_is_there_as_a_whole(
    served: Estate, program: Program, web: Web, stopper: Stopper, requests: Path, host: FakeHost
) -> None:
    found = program.collect()
    web.forget_requests()
    web.hold("lone-1.0")
    with stopper.once(requests, "lone-1.0"), stopped(program):
        found.yumio.apply(list(found.available), [], [])
    assert stopper.seconds() < AT_ONCE
    assert served.installed() == set()
    assert {path.rsplit("/")[-1][:4] for path in web.requests()} == {"batt", "lib-", "lone"}
    web.let_go()
    web.forget_requests()
    # The lock is this program's again, and the same object serves the next one.
    found.yumio.apply(list(found.available), [], [])
    assert {path.rsplit("/")[-1][:4] for path in web.requests()} == {"lone"}
    assert len(served.installed()) == 3


def test_the_fetching_of_a_package_file_is_stopped(
    served: Estate, program: Program, web: Web, stopper: Stopper, requests: Path
) -> None:
    yumio = program.start()
    yumio.setupRepos()
    web.hold("silent.rpm")
    with stopper.once(requests, "silent.rpm"), stopped(program):
        yumio.openPackageFiles([f"{web.url}/silent.rpm"])
    assert stopper.seconds() < AT_ONCE


def test_what_rpm_has_begun_is_not_stopped(
    estate: Estate, rpms: Catalogue, program: Program, stopper: Stopper, host: FakeHost
) -> None:
    estate.repository("base", [rpms["lone-1.0"]])
    found = program.collect()
    told = host.tsInitCallback

    def begins(real: int) -> None:
        told(real)
        if real:
            stopper.wish()

    host.tsInitCallback = begins  # type: ignore[method-assign]
    try:
        found.yumio.apply([found.offered("lone")], [], [])
    finally:
        del host.tsInitCallback
        stopper.forget()
    assert estate.installed() == {"lone-1.0-1.noarch"}
