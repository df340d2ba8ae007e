# SPDX-License-Identifier: GPL-2.0-or-later
"""A disk that is full before an apply or fills in its middle, and a history of transactions that takes no more."""
from __future__ import annotations

import contextlib
import subprocess
from pathlib import Path
from typing import Callable, Iterator, List

import pytest

from desk import Desk, Disk
from rpmestate import Estate, spec

BEFORE = ("fleet-lamp-1.0-1.noarch", "fleet-match-1.0-1.noarch", "fleet-shell-1.0-1.x86_64")
AFTER = ("fleet-lamp-1.1-1.noarch", *BEFORE[1:])
HISTORY = "var/lib/dnf/history.sqlite"

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
        told = desk.told().splitlines()
        assert "/var/lib/dnf/history.sqlite" in told[-2] and told[-1] == APPLYING
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
    assert "Error unpacking rpm package fleet-anchor-1.0-1.noarch" in told
    # Whose words they are depends on who has met it last.
    assert any("No space left on device" in line or "disk is full" in line for line in told)
    assert told[-2:] == [REFRESH, APPLYING]
    root.make_room()
    desk.sound(*BEFORE, "fleet-ballast-1.0-1.noarch")
    desk.refresh()
    desk.untold()
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
    desk.mark("fleet-lamp")
    history.touch()
    desk.program.press("Apply Actions")
    assert desk.told() == (
        "The history of transactions, /var/lib/dnf/history.sqlite, is an empty file: the disk was full when it was to "
        f"be made. Remove it, and it is made anew.\n{APPLYING}"
    )
    history.write_bytes(b"no database " * 1000)
    desk.program.press("Apply Actions")
    told = desk.told().splitlines()
    assert told[-2].endswith(f"{HISTORY}\": Executing an SQL statement failed: file is not a database")
    assert told[-1] == APPLYING
    desk.sound(*BEFORE)

    history.unlink()
    desk.apply()
    desk.untold()
    desk.sound(*AFTER)
    desk.mark("fleet-oil")
    with read_only(history):
        desk.program.press("Apply Actions")
        told = desk.told().splitlines()
        assert HISTORY in told[-2] and "readonly database" in told[-2] and told[-1] == APPLYING
    desk.sound(*AFTER)
    desk.apply()
    desk.untold()
    desk.sound(*AFTER, "fleet-oil-1.0-1.noarch")


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
