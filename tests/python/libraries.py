# SPDX-License-Identifier: GPL-2.0-or-later
"""The package library that the tests run on: VEMBACKEND names it. One process uses one of them, tests too."""

from __future__ import annotations

import os
import sys
from pathlib import Path
from typing import TypeVar

import pytest

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "share/python"))

from vemyum import choice  # noqa: E402
from vemyum.choice import DNF4, DNF5  # noqa: E402

BACKEND = os.environ.get(choice.VARIABLE) or next(iter(choice.present()), DNF4)
"""Without a word, the first of those that this machine has."""


_Word = TypeVar("_Word")


def by_library(dnf4: _Word, dnf5: _Word) -> _Word:
    """The word of the library that the tests run on."""
    return {DNF4: dnf4, DNF5: dnf5}[BACKEND]


CACHE = by_library("var/cache/dnf", "var/cache/libdnf5")
"""Below the managed root: where the cache is when nobody names another place."""
HISTORY = by_library("var/lib/dnf/history.sqlite", "usr/lib/sysimage/libdnf5/transaction_history.sqlite")
"""Below the managed root, too."""
MISREAD = by_library("IniParser", "Missing ']'")
"""Of what it says of a configuration in which a section's name has no end."""
NO_INI_FILE = by_library("'/etc/yum.conf' failed", 'file "/etc/yum.conf"\nMissing section header')
"""Of what it says of a main file without any section."""


def only_with(backend: str) -> None:
    """Leaves out the file that calls it, before it imports what must not be imported beside the other library."""
    if backend != BACKEND:
        pytest.skip(f"about {choice.NAMES[backend]}, not about {choice.NAMES[BACKEND]}", allow_module_level=True)
