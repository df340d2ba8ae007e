# SPDX-License-Identifier: GPL-2.0-or-later
"""Servers that don't give the metadata: what is told of them, and the window behind it."""
from __future__ import annotations

import re
from pathlib import Path
from typing import Callable

import pytest

from desk import BEFORE, Desk, assert_told
from libraries import by_library
from rpmestate import Estate
from web import Web

REPOMD = "/harbour/repodata/repomd.xml"
PAGE = b"<!DOCTYPE html>\n<html><head><title>Welcome aboard</title></head><body>Please log in.</body></html>\n"
ZEROS = bytes(4096)

Serve = Callable[[Estate], Web]


class Harbour:
    """The repository of the desk's system behind a server, which is asked anew by each refresh."""

    def __init__(self, desk: Desk, web: Web, files: Path) -> None:
        self.desk = desk
        self.web = web
        self.address = f"{web.url}/harbour"
        self.files = files / "harbour/repodata"
        self.is_at(self.address)

    def is_at(self, *addresses: str) -> None:
        self.desk.site.write_repo_file("harbour", baseurl="\n ".join(addresses))

    def path_of(self, kind: str) -> str:
        (file,) = self.files.glob(f"*-{kind}.xml*")
        return f"/harbour/repodata/{file.name}"

    def assert_unread(self, *words: str, address: str = "", timeout: float = 60.0) -> str:
        """A refresh tells this, and nothing else happens. The library's words, as patterns, are all in its part."""
        self.desk.expire_metadata()
        self.desk.refresh()
        told = self.desk.told(timeout)
        first = f"Unable to read repository harbour ({address or self.address}):"
        assert_told(told, first, re.compile(".*".join(words)), "Unable to initialize")
        assert self.desk.program.row_count() == 0
        return told

    def assert_mended(self) -> None:
        """The next refresh brings the table."""
        self.web.find_again()
        self.is_at(self.address)
        self.desk.refresh()
        assert self.desk.untold().names() == ["fleet-lamp"]


@pytest.fixture
def harbour(desk: Desk, fleet: Estate, serve: Serve) -> Harbour:
    return Harbour(desk, serve(fleet), fleet.repos_dir)


def test_servers_that_refuse(harbour: Harbour) -> None:
    desk, web = harbour.desk, harbour.web
    desk.ready()

    nobody = "http://127.0.0.1:9/harbour"
    harbour.is_at(nobody)
    harbour.assert_unread("connect to server", "127.0.0.1:9", address=nobody)
    harbour.assert_mended()

    for status in (404, 503):
        web.fail(status, REPOMD)
        harbour.assert_unread(str(status), REPOMD)
        harbour.assert_mended()

    web.redirect(REPOMD, REPOMD)
    harbour.assert_unread("redirects", REPOMD)
    harbour.assert_mended()

    desk.sound(*BEFORE)


def test_servers_that_give_something_else(harbour: Harbour) -> None:
    desk, web = harbour.desk, harbour.web
    desk.ready()

    page = f'{web.url}{REPOMD} gives a web page in place of the metadata. It begins: "Welcome aboard Please log in."'
    for body in (PAGE, ZEROS):
        web.lie(body, REPOMD)
        told = harbour.assert_unread(by_library("repomd.xml", "Parsing unsuccessful"))
        assert (page in told.splitlines()) == (body == PAGE) and ("web page" in told) == (body == PAGE)
        harbour.assert_mended()

    primary = harbour.path_of("primary")
    for fault in (lambda: web.lie(PAGE, primary), lambda: web.lie(ZEROS, primary), lambda: web.cut(100, primary)):
        # What was fetched before isn't fetched again.
        desk.forget_metadata()
        fault()
        harbour.assert_unread(Path(primary).name)
        harbour.assert_mended()

    desk.sound(*BEFORE)


def test_the_second_mirror_is_asked_where_the_first_is_dead(harbour: Harbour) -> None:
    """For the metadata and for a package."""
    desk = harbour.desk
    dead = "http://127.0.0.1:9/harbour"
    harbour.is_at(dead, harbour.address)
    desk.mark("fleet-lamp")
    desk.apply()
    desk.untold()
    desk.sound("fleet-lamp-1.1-1.noarch", *BEFORE[1:])
    log = desk.new_log()
    assert re.search(f"^fleet-lamp-1.1-1.noarch.rpm: .*{dead}/fleet-lamp-1.1-1.noarch.rpm", log, re.MULTILINE), log


@pytest.mark.slow
def test_a_server_that_stands_still(harbour: Harbour) -> None:
    desk, web = harbour.desk, harbour.web
    desk.ready()
    web.hold(REPOMD)
    harbour.assert_unread("[Tt]imeout", REPOMD, timeout=600)
    web.let_go()
    harbour.assert_mended()
    desk.sound(*BEFORE)


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
