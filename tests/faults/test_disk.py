# SPDX-License-Identifier: GPL-2.0-or-later
"""A disk that is full before an apply or fills in its middle, and a history of transactions that takes no more."""
from __future__ import annotations

import contextlib
import re
import subprocess
from pathlib import Path
from typing import Callable, Iterator, List

import pytest

from desk import AFTER, BEFORE, Desk, Disk
from libraries import HISTORY, by_library
from rpmestate import Estate, spec

BALLAST = spec(
    "fleet-ballast",
    scriptlets={
        "post -p <lua>": 'local file = io.open("/.filling", "w")\nfile:setvbuf("no")\n'
        'local block = string.rep("x", 4096)\nwhile file:write(block) do end\nfile:close()'
    },
)
"""Fills the disk when it is installed."""
BARGE = spec("fleet-barge", files={"/usr/share/barge": "x" * (2 << 20)})
ANCHOR = spec("fleet-anchor", requires=["fleet-ballast"], files={"/usr/share/anchor": "y" * 60000})

CANNOT_USE = f"The history of transactions, /{HISTORY}, cannot be used: "
APPLYING = "Error applying changes"
REFRESH = "A part of the transaction may have been done: please refresh the list of packages."


@pytest.fixture(scope="module")
def cargo(tmp_path_factory: pytest.TempPathFactory) -> List[Path]:
    return Estate(tmp_path_factory.mktemp("cargo")).build([BALLAST, BARGE, ANCHOR])


@pytest.fixture
def root(desk: Desk, disk: Callable[[Path, int], Disk], cargo: List[Path]) -> Disk:
    """The site on a disk of its own, with the cargo on offer."""
    desk.site.repository("hold", cargo)
    return disk(desk.site.root, 24 << 10)


def test_full_before_the_apply(desk: Desk, root: Disk) -> None:
    desk.mark("fleet-lamp", "fleet-barge")
    # There is no history yet: it can't be made, or be made in part only.
    for spare in (0, 64):
        root.fill(spare)
        desk.program.press("Apply Actions")
        first, second, last = desk.told().splitlines()
        assert first.startswith(f"The history of transactions, /{HISTORY}, cannot be ")
        assert re.fullmatch(rf"Only \d+ KiB are free in {Path('/', HISTORY).parent}\.", second) and last == APPLYING
        assert not (desk.site.root / HISTORY).exists()
        root.make_room()
    root.fill(1600)
    desk.apply()
    told = desk.told()
    # rpm's words, and dnf's.
    assert "installing package fleet-barge-1.0-1.noarch needs " in told and "more space on the / filesystem" in told
    assert told.endswith(f"\n{APPLYING}") and REFRESH not in told
    root.make_room()
    desk.sound(*BEFORE)
    # The marks are still there.
    desk.apply()
    desk.untold()
    desk.sound(*AFTER, "fleet-barge-1.0-1.noarch")


def test_filling_in_the_middle(desk: Desk, root: Disk) -> None:
    desk.mark("fleet-ballast", "fleet-anchor")
    desk.apply()
    told = desk.told().splitlines()
    unpacking = by_library("Error unpacking rpm package {}", "{} could not be unpacked")
    assert unpacking.format("fleet-anchor-1.0-1.noarch") in told
    # Whose words they are depends on who has met it last.
    assert any("No space left on device" in line or "disk is full" in line for line in told)
    assert told[-2:] == [REFRESH, APPLYING]
    root.make_room()
    desk.sound(*BEFORE, "fleet-ballast-1.0-1.noarch", cut_off=True)
    desk.refresh()
    # The end of the transaction found no room in the history either.
    first, *rest = desk.told_unfinished().splitlines()
    assert first.startswith("The last transaction was cut off before its end: number 1, of ")
    assert rest == ["Still to be installed:", "    fleet-anchor-1.0-1.noarch"]
    desk.mark("fleet-anchor", "fleet-lamp")
    desk.apply()
    desk.untold()
    desk.sound(*AFTER, "fleet-ballast-1.0-1.noarch", "fleet-anchor-1.0-1.noarch")


@contextlib.contextmanager
def read_only(file: Path) -> Iterator[None]:
    """Root may write to any file, but not where nobody may."""
    subprocess.run(["mount", "--bind", str(file), str(file)], check=True)
    try:
        subprocess.run(["mount", "-o", "remount,bind,ro", str(file)], check=True)
        yield
    finally:
        subprocess.run(["umount", "--lazy", str(file)], check=True)


def test_history(desk: Desk, own_mounts: None) -> None:
    history = desk.site.root / HISTORY
    history.parent.mkdir(parents=True, exist_ok=True)
    desk.mark("fleet-lamp")
    for content, fault in ((b"", "no such table: config"), (b"no database " * 1000, "file is not a database")):
        history.write_bytes(content)
        desk.program.press("Apply Actions")
        assert desk.told() == f"{CANNOT_USE}{fault}\nMove it elsewhere, and it is made anew.\n{APPLYING}"
    history.unlink()
    desk.sound(*BEFORE)
    desk.apply()
    desk.untold()
    desk.sound(*AFTER)
    desk.mark("fleet-oil")
    with read_only(history):
        desk.program.press("Apply Actions")
        assert desk.told() == f"{CANNOT_USE}Read-only file system\n{APPLYING}"
    desk.sound(*AFTER)
    desk.apply()
    desk.untold()
    desk.sound(*AFTER, "fleet-oil-1.0-1.noarch")


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
