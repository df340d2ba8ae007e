# SPDX-License-Identifier: GPL-2.0-or-later
"""What the tests of faults share: the fixtures of the end-to-end tests, a window that is read and mended, small disks.

Tests with the mark `slow` are those of `./check --faults`.
"""
from __future__ import annotations

import ctypes
import os
import subprocess
import sys
from pathlib import Path
from typing import Callable, Iterator

import pytest

HERE = Path(__file__).resolve().parent
TOP = HERE.parents[1]
sys.path[:0] = [str(HERE), str(TOP / "tests/e2e"), str(TOP / "estate")]
sys.path.append(str(TOP / "tests/python"))

from fixtures import *  # noqa: E402,F401,F403
from desk import Desk, Disk, processes_of  # noqa: E402
from program import Program, wait_for  # noqa: E402
from rpmestate import Estate  # noqa: E402

CLONE_NEWNS = 0x20000


def pytest_configure(config: pytest.Config) -> None:
    config.addinivalue_line("markers", "slow: takes long, and is left out unless it is asked for")


@pytest.fixture
def desk(site: Estate, start: Callable[..., Program]) -> Iterator[Desk]:
    """The site and its window, which starts when it is first wanted. Nothing of either is left behind it."""
    desk = Desk(site, start)
    yield desk
    desk.program_ends()
    wait_for(lambda: not processes_of(site), f"the end of {processes_of(site)}", timeout=30)


@pytest.fixture(scope="session")
def own_mounts() -> None:
    """Mounts of these tests are seen by nobody else, and gone with them, however they end."""
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(CLONE_NEWNS) != 0:
        pytest.skip(f"no mounts of one's own: {os.strerror(ctypes.get_errno())}")
    subprocess.run(["mount", "--make-rprivate", "/"], check=True)


@pytest.fixture
def disk(own_mounts: None) -> Iterator[Callable[[Path, int], Disk]]:
    """Puts a disk of so many KiB below a directory, which is made, or whose content moves there."""
    disks: list[Disk] = []

    def put(directory: Path, size: int) -> Disk:
        disks.append(Disk(directory, size))
        return disks[-1]

    yield put
    for each in reversed(disks):
        each.take_away()
