# SPDX-License-Identifier: GPL-2.0-or-later
"""Fixtures for tests that read: they are imported where they are wanted."""

from __future__ import annotations

from pathlib import Path
from typing import Any, Callable, Iterator, List

import pytest
from rpmestate import Estate
from web import Web


@pytest.fixture
def opened(estate: Estate) -> Callable[..., Any]:
    """Opens the estate's system, its configuration read anew."""
    from vemyum.dnf5 import settings, system

    return lambda sections=None: system.open_system(settings.read_settings(), sections)


@pytest.fixture
def loaded(opened: Callable[..., Any]) -> Callable[..., Any]:
    """The same with everything read."""

    def load(sections: Any = None) -> Any:
        system = opened(sections)
        system.load()
        return system

    return load


@pytest.fixture
def web(tmp_path: Path, estate: Estate) -> Iterator[Web]:
    """A web server on loopback over the estate's repositories."""
    with Web(estate.repos_dir, tmp_path / "web") as web:
        yield web


def shown(rows: List[Any]) -> List[str]:
    return sorted(map(str, rows))


def cache(estate: Estate, repository: str) -> Path:
    (found,) = (estate.root / "var/cache/yum").glob(f"{repository}-*")
    return found
