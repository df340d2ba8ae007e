# SPDX-License-Identifier: GPL-2.0-or-later
"""Progress of reading repositories, as the acts that the engine shows one after the other.

Per repository: mirror list, repomd, download, conversion, reading. The engine recognises the first three by the name of
the file in the meter's path, and a repository by the directory in front of it. The library doesn't tell which file it
fetches; the files that stand in its temporary directory do.
"""

from __future__ import annotations

import contextlib
import os
import time
from typing import Dict, List, Optional

import libdnf5.repo

from .. import host
from ..errors import RepoError
from ..repomd import FOLDER, NAME, listed
from .base import log_mirror

MIRROR_LISTS = ("metalink.xml", "mirrorlist")
"""As the library keeps them beside the metadata."""

_LOOK_EVERY = 0.1
"""Seconds between two looks at the growing files."""

_CONVERSION = "MD Read"
"""The name by which the engine knows a conversion of metadata that tells no repository."""


class FetchingProgress:
    """Follows the fetching of one repository's metadata (`base.Listener`)."""

    def __init__(self, repo: libdnf5.repo.Repo, directory: Optional[str]) -> None:
        """`directory` is the one that the acts name, None for no acts."""
        self.causes: List[str] = []
        """Why mirrors failed."""
        self._id = repo.get_id()
        self._cache = repo.get_cachedir()
        config = repo.get_config()
        self._mirrors = ""
        if not _is_empty(config.get_metalink_option()):
            self._mirrors = "metalink.xml"
        elif not _is_empty(config.get_mirrorlist_option()):
            self._mirrors = "metalink"
        self._directory = directory
        self._act: Optional[str] = None
        self._size = 0
        self._expected: Dict[str, int] = {}
        self._looked = 0.0

    def begin(self, _repository: int, _what: str, _size: int) -> int:
        self._act, self._size, self._expected, self._looked = None, 0, {}, 0.0
        return 0

    def progress(self, _number: int, size: int, done: int) -> None:
        if self._directory is None:
            return
        if self._act == "primary":
            self._follow_download(False)
            return
        files = self._fetched()
        if any(name != NAME for name in files):
            self._expected = self._announced_sizes()
            self.open("primary", sum(self._expected.get(name, 0) for name in files))
            self._follow_download(True)
            return
        act = self._mirrors if self._mirrors and NAME not in files else NAME
        if act == NAME and self._mirrors:
            # The library counts one file on top of the other.
            before = self._mirror_list_size()
            size, done = max(size - before, 0), max(done - before, 0)
        if act != self._act or (size and size != self._size):
            self.open(act, size)
        if done:
            host.collect_meter_update(done)

    def end(self, _number: int, _status: int, _message: str) -> None:
        self.close()

    def mirror_failed(self, _number: int, message: str, _address: str) -> None:
        self.causes.append(message)
        log_mirror(message)

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
            files = self._fetched()
            # What the mirror sends beyond the announced size is a fault, found out later.
            done = sum(min(size, self._expected.get(name, size)) for name, size in files.items())
            host.collect_meter_update(done - files.get(NAME, 0))

    def _folder(self) -> Optional[str]:
        try:
            folders = [entry.path for entry in os.scandir(self._cache) if entry.name.startswith("tmpdir.")]
            return max(folders, key=os.path.getmtime, default=None)
        except OSError:
            return None

    def _fetched(self) -> Dict[str, int]:
        """The files of the metadata that exist by now, with their sizes so far."""
        folder = self._folder()
        if folder is None:
            return {}
        try:
            return {entry.name: entry.stat().st_size for entry in os.scandir(os.path.join(folder, FOLDER))}
        except OSError:
            return {}

    def _mirror_list_size(self) -> int:
        folder = self._folder()
        for name in MIRROR_LISTS if folder is not None else ():
            with contextlib.suppress(OSError):
                return os.stat(os.path.join(folder, name)).st_size
        return 0

    def _announced_sizes(self) -> Dict[str, int]:
        folder = self._folder()
        if folder is None:
            return {}
        try:
            files = listed(os.path.join(folder, FOLDER, NAME))
        except (RepoError, OSError):
            return {}
        return {os.path.basename(file.href): file.size for file in files}


class ReadingProgress:
    """The acts after the download: a conversion where no converted form is at hand, else a reading."""

    def begin(self, repo: libdnf5.repo.Repo, converts: bool) -> None:
        host.collect_progress(0, 1, _CONVERSION if converts else repo.get_id())

    def end(self, repo: libdnf5.repo.Repo) -> None:
        """Ends the repository's acts, so that the next one starts a block of its own."""
        host.collect_progress(1, 1, repo.get_id())


def must_convert(repo: libdnf5.repo.Repo) -> bool:
    cache = repo.get_cachedir()
    try:
        converted = os.path.getmtime(os.path.join(cache, "solv", f"{repo.get_id()}.solv"))
        fetched = os.path.getmtime(os.path.join(cache, FOLDER, NAME))
    except OSError:
        return True
    return converted < fetched


def _is_empty(option: object) -> bool:
    return bool(option.empty()) or not option.get_value()  # type: ignore[attr-defined]
