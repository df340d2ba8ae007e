# SPDX-License-Identifier: GPL-2.0-or-later
"""For tests of applies that go wrong: what is told, and steps of the work that fail."""

from __future__ import annotations

from typing import Any, Callable

import pytest
from libraries import by_library
from program import Program

_OF_THE_RUN = by_library("dnf.db.history", "libdnf5.base")

RUN_END = by_library(
    "\n    dnf.db.history.SwdbInterface.end = fail",
    "\n    run = libdnf5.base.Transaction.run"
    "\n    libdnf5.base.Transaction.run = lambda transaction: (run(transaction), fail())[1]",
)
"""For `in_work`: lets the library fail with `fail` when rpm has done its work, as where its history has no end."""


def fails(program: Program, apply: Any, *words: str) -> str:
    with pytest.raises(program.errors.YumBaseError) as caught:
        apply()
    text = str(caught.value)
    assert caught.value.value == text
    for word in words:
        assert word in text, text
    return text


def in_work(in_child: Callable[[str], None], line: str) -> None:
    """Changes a step of the work; the module wants the host's, which the process itself makes later."""
    in_child(
        f"""
import os, sys
from vemyum.apply import child
do = child._work
def changed(parent):
    from vemyum import backend
    from vemyum.apply import work
    import {_OF_THE_RUN}
    Transaction = backend.library().Transaction
    {line}
    return do(parent)
child._work = changed
"""
    )


def fail_with(error: str) -> str:
    return f"def fail(*_): raise {error}"
