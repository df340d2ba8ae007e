# SPDX-License-Identifier: GPL-2.0-or-later
"""Progress of reading repositories, as the acts that the engine shows one after the other.

Per repository: mirror list, repomd, download, conversion, reading. The engine recognises the first three by the name of
the file in the meter's path, and a repository by the directory in front of it. A library doesn't tell which file it
fetches; the files that stand in its temporary directory do.
"""

from __future__ import annotations

import contextlib
import os
import time
from typing import Dict, Optional

from . import host
from .errors import RepoError
from .repomd import FOLDER, NAME, listed

MIRROR_LISTS = ("metalink.xml", "mirrorlist")
"""As a library keeps them beside the metadata."""

_METALINK, _MIRROR_LIST, _DOWNLOAD = "metalink.xml", "metalink", "primary"

_LOOK_EVERY = 0.1
"""Seconds between two looks at the growing files."""

_CONVERSION = "MD Read"
"""The name by which the engine knows a conversion of metadata that tells no repository."""


class GrowingFiles:
    """The metadata of a repository while a library fetches it: beside what the repository's cache holds."""

    def __init__(self, cache: str) -> None:
        self._cache = cache

    def sizes(self) -> Dict[str, int]:
        """The files that exist by now, with their sizes so far."""
        folder = self._folder()
        if folder is None:
            return {}
        try:
            return {entry.name: entry.stat().st_size for entry in os.scandir(os.path.join(folder, FOLDER))}
        except OSError:
            return {}

    def announced(self) -> Dict[str, int]:
        """The sizes of the files that are listed."""
        folder = self._folder()
        if folder is None:
            return {}
        try:
            files = listed(os.path.join(folder, FOLDER, NAME), ())
        except (RepoError, OSError):
            return {}
        return {os.path.basename(file.href): file.size for file in files}

    def mirror_list_size(self) -> int:
        folder = self._folder()
        for name in MIRROR_LISTS if folder is not None else ():
            with contextlib.suppress(OSError):
                return os.stat(os.path.join(folder, name)).st_size
        return 0

    def _folder(self) -> Optional[str]:
        try:
            folders = [entry.path for entry in os.scandir(self._cache) if entry.name.startswith("tmpdir.")]
            return max(folders, key=os.path.getmtime, default=None)
        except OSError:
            return None


class FetchingActs:
    """Those of one repository, while a library tells how much it has fetched."""

    def __init__(
        self, id: str, cache: str, directory: Optional[str], metalink: bool, mirrorlist: bool, adds_up: bool
    ) -> None:
        """`cache` is the repository's own; `directory` is the one that the acts name, None for no acts. `adds_up` tells
        whether the library counts one file on top of the other."""
        self._id = id
        self._files = GrowingFiles(cache)
        self._directory = directory
        self._mirrors = _METALINK if metalink else _MIRROR_LIST if mirrorlist else None
        self._adds_up = adds_up
        self.begin()

    def begin(self) -> None:
        self._act: Optional[str] = None
        self._size = 0
        self._expected: Dict[str, int] = {}
        self._looked = 0.0

    def progress(self, size: int, done: int) -> None:
        if self._directory is None:
            return
        if self._act == _DOWNLOAD:
            self._follow_download(False)
            return
        files = self._files.sizes()
        if any(name != NAME for name in files):
            self._expected = self._files.announced()
            self.open(_DOWNLOAD, sum(self._expected.get(name, 0) for name in files))
            self._follow_download(True)
            return
        act = self._mirrors if self._mirrors and NAME not in files else NAME
        if act == NAME and self._mirrors and self._adds_up:
            before = self._files.mirror_list_size()
            size, done = max(size - before, 0), max(done - before, 0)
        if act != self._act or (size and size != self._size):
            self.open(act, size)
        if done:
            host.collect_meter_update(done)

    def open(self, act: str, size: int) -> None:
        self._act, self._size = act, size
        if self._directory is not None:
            host.collect_meter_start(f"{self._directory}/{self._id}/{act}", size or None)

    def close(self) -> None:
        if self._act is not None and self._directory is not None:
            if self._size:
                host.collect_meter_update(self._size)
            host.collect_meter_end(self._size)
        self._act = None

    def _follow_download(self, at_once: bool) -> None:
        now = time.monotonic()
        if at_once or now - self._looked >= _LOOK_EVERY:
            self._looked = now
            files = self._files.sizes()
            # What the mirror sends beyond the announced size is a fault, found out later.
            done = sum(min(size, self._expected.get(name, size)) for name, size in files.items())
            host.collect_meter_update(done - files.get(NAME, 0))


def reading_begins(id: str, converts: bool) -> None:
    """Behind the download: a conversion where no converted form is at hand, else a reading."""
    host.collect_progress(0, 1, _CONVERSION if converts else id)


def reading_ends(id: str) -> None:
    """Ends the repository's acts, so that the next one starts a block of its own."""
    host.collect_progress(1, 1, id)


def must_convert(converted: str, cache: str) -> bool:
    """Whether the converted form of a repository's metadata is older than what its cache holds, or not there."""
    try:
        return os.path.getmtime(converted) < os.path.getmtime(os.path.join(cache, FOLDER, NAME))
    except OSError:
        return True
