# SPDX-License-Identifier: GPL-2.0-or-later
"""Drives the helper script in the engine's order of calls."""

from __future__ import annotations

import gc
import runpy
from pathlib import Path
from typing import Any, Dict, List, Optional


class Collection:
    """What one collection gave. `merged` is what the engine makes of the three lists."""

    def __init__(self, yumio: Any) -> None:
        self.yumio = yumio
        yumio.setupTs()
        self.updates = list(yumio.collectUpdates())
        lists = yumio.collectAll()
        self.installed = list(lists.installed)
        self.available = list(lists.available)
        self.groups_text = ""
        try:
            yumio.setupTsGroup()
        except Exception as error:  # noqa: BLE001 - the text is the test's business
            self.groups_text = str(error)
        self.groups = list(yumio.collectGroupInfo())

    def update(self, name: str) -> Any:
        return first(self.updates, name)

    def there(self, name: str) -> Any:
        return first(self.installed, name)

    def offered(self, name: str) -> Any:
        return first(self.available, name)

    def pair(self, name: str) -> List[Any]:
        """An update as the engine passes it: new package, installed package."""
        return [self.update(name), self.there(name)]

    def group(self, name: str) -> Any:
        return first(self.groups, name)

    def merged(self) -> Dict[str, str]:
        """State by name, first come first served."""
        states: Dict[str, str] = {}
        for state, packages in (
            ("OutOfDate", self.updates),
            ("UpToDate", self.installed),
            ("Available", self.available),
        ):
            for package in packages:
                states.setdefault(package.name, state)
        return states

    def drop(self) -> None:
        self.updates, self.installed, self.available, self.groups = [], [], [], []


def first(packages: List[Any], name: str) -> Any:
    return next(package for package in packages if package.name == name)


class Program:
    """One process's use of the script: `namespace` is what `__main__` holds after it has run."""

    def __init__(self, script: Path) -> None:
        self.namespace = runpy.run_path(str(script), run_name="__main__")
        self.errors = self.namespace["yum"].Errors
        self.yumio: Any = None
        self.collection: Optional[Collection] = None

    def start(self) -> Any:
        """A new YumIO with the lock, as the first collection makes it."""
        self.yumio = self.namespace["YumIO"]()
        self.yumio.lock()
        return self.yumio

    def collect(self) -> Collection:
        """A whole collection, the one before it cleared."""
        self.clear()
        self.start()
        self.yumio.setupRepos()
        self.collection = Collection(self.yumio)
        return self.collection

    def clear(self) -> None:
        """What the engine does between two collections: flush, drop the packages, drop the object."""
        if self.yumio is not None:
            self.yumio.flush()
        if self.collection is not None:
            self.collection.drop()
        self.collection = None
        self.yumio = None
        gc.collect()

    def end(self) -> None:
        from vemyum import lists, lock

        self.clear()
        lock.LOCK.release()
        lists.Collector._known_installed.clear()
