# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloading packages, as far as that is the same with every library: what the engine is told, and what failed."""

from __future__ import annotations

import os
from typing import Dict, Iterable, List, NamedTuple, Optional

from . import host
from .errors import YumBaseError
from .space import scarce_space
from .texts import _


class Place(NamedTuple):
    """Where the file of a package is, or is to be."""

    package: str
    path: str
    size: int

    def is_whole(self) -> bool:
        """Not by its checksum: the library looks at that when it comes to the download."""
        try:
            return os.path.getsize(self.path) == self.size
        except OSError:
            return False


class Causes:
    """Why a file couldn't be had from one place and another, each once: the library tries each several times."""

    def __init__(self) -> None:
        self._lines: Dict[str, None] = {}

    def add(self, file: str, message: str, address: str) -> None:
        cause = message.strip() if address in message else f"{address}: {message.strip()}"
        if cause not in self._lines:
            self._lines[cause] = None
            host.log(host.LEVEL_NOTICE, f"{file}: {cause}")

    def lines(self) -> List[str]:
        return list(self._lines)


class File:
    """One that is fetched. Whoever moves it on tells the meter."""

    def __init__(self, name: str, size: int) -> None:
        self.name = name
        self.size = size
        self.done = 0
        self.begun = False
        """Whether the meter has heard of it."""
        self.ended = False


class Meter:
    """Tells the engine of one file after the other, though several are fetched at a time.

    A file that is fetched beside the one on show waits for its turn and is then told with what it has.
    """

    def __init__(self) -> None:
        self._waiting: List[File] = []
        self._shown: Optional[File] = None

    def forget(self) -> None:
        """What has been begun is begun anew, as other files."""
        self._waiting.clear()
        self._shown = None

    def tell(self, moved: File) -> None:
        if not moved.begun:
            moved.begun = True
            self._waiting.append(moved)
        self._show(moved)

    def finish(self) -> None:
        """Ends the files that the library has left without an end: siblings of one that failed."""
        for file in self._waiting:
            file.ended = True
        self._show(None)

    def _show(self, moved: Optional[File]) -> None:
        while self._waiting:
            first = self._waiting[0]
            if first is not self._shown:
                self._shown = first
                host.apply_meter_start(first.name, first.size)
                if first is not moved or first.done:
                    host.apply_meter_update(first.done)
            elif first is moved:
                host.apply_meter_update(first.done)
            if not first.ended:
                return
            host.apply_meter_end(first.done)
            del self._waiting[0]


def failure(lines: Iterable[str], places: Iterable[Place]) -> YumBaseError:
    """That packages couldn't be had: why, and where there is no room for the largest of the files that go there."""
    wanted: Dict[str, int] = {}
    for place in places:
        directory = os.path.dirname(place.path)
        wanted[directory] = max(wanted.get(directory, 0), place.size)
    scarce = [line for directory, size in wanted.items() for line in scarce_space(directory, size)]
    return YumBaseError("\n".join([_("Unable to download packages:"), *lines, *scarce]))


def require_files(places: Iterable[Place]) -> None:
    """YumBaseError names a package without a file."""
    for place in places:
        if not os.path.exists(place.path):
            raise YumBaseError(
                _("The file of package {package} is missing: {path}").format(
                    package=place.package, path=place.path
                )
            )
