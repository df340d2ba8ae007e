# SPDX-License-Identifier: GPL-2.0-or-later
"""Servers that don't give the metadata: what is told of them, and the window behind it."""
from __future__ import annotations

import pytest

from desk import Desk

BEFORE = ("fleet-lamp-1.0-1.noarch", "fleet-match-1.0-1.noarch", "fleet-shell-1.0-1.x86_64")


def test_a_server_that_refuses_connections(desk: Desk) -> None:
    address = "http://127.0.0.1:9/harbour"
    desk.site.write_repo_file("harbour", baseurl=address)
    desk.open()
    told = desk.told().splitlines()
    assert told[0] == f"Unable to read repository harbour ({address}):"
    assert told[-1] == "Unable to initialize"
    desk.sound(*BEFORE)
    desk.site.write_repo_file("harbour")
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
