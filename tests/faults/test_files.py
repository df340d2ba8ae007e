# SPDX-License-Identifier: GPL-2.0-or-later
"""Damaged files of cache, lock and configuration: which one it is, and what is done about it, is told."""
from __future__ import annotations

from pathlib import Path

import pytest

from desk import AFTER, BEFORE, Desk
from libraries import by_library

ALL = ["fleet-bellows", "fleet-lamp", "fleet-match", "fleet-oil", "fleet-orphan", "fleet-shell", "fleet-sulker", "fleet-wick"]
UNPARSED = by_library("Parsing file '{}' failed: ", 'Error in configuration file "{}"\n')
DAMAGED_CACHE = "The cache of the metadata was damaged: it is made anew"


def truncate(path: Path) -> None:
    content = path.read_bytes()
    path.write_bytes(content[: len(content) // 2])


def test_the_cache_of_the_metadata(desk: Desk) -> None:
    """It is made anew, without a word in the way."""
    cache = desk.site.root / "var/cache/yum"
    desk.ready().choose("View All")
    desk.new_log()
    fast = list(cache.rglob("*.solv*"))
    assert fast
    for file in fast:
        truncate(file)
    desk.refresh()
    assert desk.untold().names() == ALL
    assert DAMAGED_CACHE in desk.new_log()

    # Without the fast form the metadata themselves are read.
    (primary,) = cache.glob("*/repodata/*primary.xml*")
    whole = primary.read_bytes()
    for file in cache.rglob("*.solv*"):
        file.unlink()
    truncate(primary)
    desk.refresh()
    assert desk.untold().names() == ALL
    assert primary.read_bytes() == whole

    desk.mark("fleet-lamp")
    desk.apply()
    desk.untold()
    desk.sound(*AFTER)


def test_the_lock_file(desk: Desk) -> None:
    file = desk.site.root / "var/cache/yum/download_lock.pid"
    file.parent.mkdir(parents=True)
    file.write_bytes(b"\0\xff nonsense")
    desk.open()
    told = desk.told().splitlines()
    assert told[0].startswith(f"The lock file {file} does not hold the number of a process.")
    assert told[1:] == ["Unable to obtain yum lock"]
    file.unlink()
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]


def test_a_repository_file(desk: Desk) -> None:
    """It is left out, and the log tells why."""
    file = desk.site.root / "etc/yum.repos.d/harbour.repo"
    whole = file.read_bytes()
    desk.ready()
    for damage in (b"no section\n", bytes(100)):
        file.write_bytes(damage)
        desk.refresh()
        assert desk.told() == (
            "No repositories are configured.\n"
            "Under the Repositories menu, Edit Configuration can be used to configure repositories."
        )
    assert desk.new_log().count(UNPARSED.format(f"/etc/yum.repos.d/{file.name}")) == 2
    file.write_bytes(whole)
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]


def test_the_main_file(desk: Desk) -> None:
    file = desk.site.root / "etc/yum.conf"
    whole = file.read_bytes()
    desk.mark("fleet-lamp")
    unparsed = UNPARSED.format("/etc/yum.conf")
    for damage in (b"[main\n", b"\xff\xfe[main]\n"):
        file.write_bytes(damage)
        desk.program.press("Apply Actions")
        told = desk.told()
        assert told.startswith(unparsed) and told.endswith("\nError applying changes")
    desk.refresh()
    told = desk.told()
    assert told.startswith(unparsed) and told.endswith("\nUnable to initialize")
    file.write_bytes(whole)
    desk.refresh()
    desk.untold()

    desk.mark("fleet-lamp")
    file.unlink()
    desk.program.press("Apply Actions")
    assert desk.told() == (
        "The main configuration file /etc/yum.conf is no longer there. Please refresh the list of packages.\n"
        "Error applying changes"
    )
    # One that is there and cannot be read by anybody.
    file.mkdir()
    desk.program.press("Apply Actions")
    first = desk.told().removesuffix("\nError applying changes")
    assert "/etc/yum.conf" in first and "Is a directory" in first
    desk.refresh()
    assert desk.told() == f"{first}\nUnable to initialize"
    file.rmdir()
    file.write_bytes(whole)
    desk.refresh()
    desk.untold()
    desk.sound(*BEFORE)
    desk.mark("fleet-lamp")
    desk.apply()
    desk.untold()
    desk.sound(*AFTER)


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
