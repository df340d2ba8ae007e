# SPDX-License-Identifier: GPL-2.0-or-later
"""The pictures of the manual show the program as it is: each is taken anew and held against the committed one.

Releases of the toolkit draw differently: with another one than the committed pictures were taken with, each has to be
there and to be taken, and nothing more.
"""
from __future__ import annotations

import os
import sys
import time
from pathlib import Path
from typing import Callable

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "manual"))

from picturebook import PICTURES, Area, Book, difference, photograph, size_of  # noqa: E402

TOLERANCE = 0.05
"""Of `difference`. The same machine takes the very same pictures, another word on a button gives 0.08 and more;
what lies between is left to other ways to draw letters."""

TAKEN_WITH = "6.4."
"""The toolkit of the committed pictures."""

PATIENCE = 10.0
"""Seconds until a picture has to be right. Cursors blink, and windows take their time."""


def test_the_pictures_show_the_program_as_it_is(tmp_path: Path) -> None:
    shots = Path(os.environ.get("VEM_SHOTS", tmp_path / "shots"))
    shots.mkdir(parents=True, exist_ok=True)
    faults = []

    def compare(name: str, where: Callable[[], Area]) -> None:
        committed, now = PICTURES / f"{name}.png", shots / f"{name}.png"
        if not committed.exists():
            faults.append(f"{name}: no such picture was committed")
            return
        deadline = time.monotonic() + PATIENCE
        while True:
            photograph(where(), now)
            if not os.environ.get("VEM_TOOLKIT", TAKEN_WITH).startswith(TAKEN_WITH):
                return
            if size_of(now) != size_of(committed):
                fault = f"{name}: {size_of(now)} pixels, not {size_of(committed)}"
            elif (found := difference(now, committed)) > TOLERANCE:
                fault = f"{name}: differs by {found:.3f}, see {now}"
            else:
                return
            if time.monotonic() > deadline:
                faults.append(fault)
                return
            time.sleep(0.2)

    book = Book(tmp_path, compare)
    try:
        book.take()
    except AssertionError as fault:
        print((tmp_path / "vem.log").read_text(errors="replace"))
        raise AssertionError("\n".join([*faults, str(fault)])) from fault
    left = {path.stem for path in PICTURES.iterdir()} - set(book.taken)
    faults += [f"{name}: nobody takes this picture" for name in sorted(left)]
    advice = "The manual's pictures no longer show the program. If it is meant to look so: manual/take-pictures"
    assert not faults, "\n".join([advice, *faults])
