# SPDX-License-Identifier: GPL-2.0-or-later
"""Progress of reading repositories, as the acts that the engine shows one after the other.

Per repository: mirror list, repomd, download, conversion, reading. The engine recognises the first
three by the name of the file in the meter's path, and a repository by the directory in front of it.
dnf doesn't tell which file it fetches; the files that stand in its temporary directory do.
"""

from __future__ import annotations

import os
import re
import time
from typing import Any, Dict, Optional

import dnf.callback
import dnf.repo

from .. import host

_REPOMD = "repomd.xml"
_ENTRY = re.compile(r"<data\b.*?</data>", re.DOTALL)
_HREF = re.compile(r"<location\b[^>]*\bhref=\"([^\"]*)\"")
_SIZE = re.compile(r"<size>(\d+)</size>")
_LOOK_EVERY = 0.1
"""Seconds between two looks at the growing files."""

_CONVERSION = "MD Read"
"""The name by which the engine knows a conversion of metadata that tells no repository."""


class RepositoryProgress(dnf.callback.DownloadProgress):
    """Follows the fetching of one repository's metadata. dnf logs and drops what is raised here."""

    def __init__(self, repo: dnf.repo.Repo, directory: str) -> None:
        super().__init__()
        self._repo = repo
        self._directory = directory
        self._act: Optional[str] = None
        self._size: Optional[int] = None
        self._expected: Dict[str, int] = {}
        self._looked = 0.0

    def start(self, total_files: int, total_size: int, total_drpms: int = 0) -> None:
        self._act, self._size, self._expected, self._looked = None, None, {}, 0.0

    def progress(self, payload: Any, done: float) -> None:
        if self._act == "primary":
            self._follow_download(False)
            return
        files = self._fetched()
        if any(name != _REPOMD for name in files):
            self._expected = self._announced_sizes()
            self._open("primary", sum(self._expected.get(name, 0) for name in files))
            self._follow_download(True)
            return
        if _REPOMD in files or not (self._repo.metalink or self._repo.mirrorlist):
            act = "repomd.xml"
        else:
            act = "metalink.xml" if self._repo.metalink else "metalink"
        total = int(payload.download_size)
        if act != self._act or (total and total != self._size):
            self._open(act, total)
        if done:
            host.collect_meter_update(done)

    def end(self, payload: Any, status: Any, msg: Any) -> None:
        if self._act is not None:
            if self._size:
                host.collect_meter_update(self._size)
            host.collect_meter_end(self._size)
            self._act = None

    def _open(self, act: str, size: int) -> None:
        self._act, self._size = act, size or None
        host.collect_meter_start(f"{self._directory}/{self._repo.id}/{act}", self._size)

    def _follow_download(self, at_once: bool) -> None:
        now = time.monotonic()
        if at_once or now - self._looked >= _LOOK_EVERY:
            self._looked = now
            files = self._fetched()
            # What the mirror sends beyond the announced size is a fault, found out later.
            done = sum(min(size, self._expected.get(name, size)) for name, size in files.items())
            host.collect_meter_update(done - files.get(_REPOMD, 0))

    def _folder(self) -> Optional[str]:
        cache = self._repo._repo.getCachedir()
        try:
            folders = [entry.path for entry in os.scandir(cache) if entry.name.startswith("tmpdir.")]
            return max(folders, key=os.path.getmtime, default=None)
        except OSError:
            return None

    def _fetched(self) -> Dict[str, int]:
        """The files of the metadata that exist by now, with their sizes so far."""
        folder = self._folder()
        if folder is None:
            return {}
        try:
            entries = os.scandir(os.path.join(folder, "repodata"))
            return {entry.name: entry.stat().st_size for entry in entries}
        except OSError:
            return {}

    def _announced_sizes(self) -> Dict[str, int]:
        folder = self._folder()
        if folder is None:
            return {}
        try:
            path = os.path.join(folder, "repodata", _REPOMD)
            with open(path, encoding="utf-8", errors="replace") as repomd:
                text = repomd.read()
        except OSError:
            return {}
        sizes: Dict[str, int] = {}
        for entry in _ENTRY.findall(text):
            href, size = _HREF.search(entry), _SIZE.search(entry)
            if href and size:
                sizes[os.path.basename(href.group(1))] = int(size.group(1))
        return sizes


class ReadingProgress:
    """The acts after the download: one conversion where no converted form is at hand, one reading."""

    def __init__(self, cachedir: str) -> None:
        self._cachedir = cachedir

    def begin(self, repo: dnf.repo.Repo) -> None:
        if self._must_convert(repo):
            host.collect_progress(0, 1, _CONVERSION)
        else:
            host.collect_progress(0, 1, repo.id)

    def end(self, repo: dnf.repo.Repo) -> None:
        """Ends the repository's acts, so that the next one starts a block of its own."""
        host.collect_progress(1, 1, repo.id)

    def _must_convert(self, repo: dnf.repo.Repo) -> bool:
        try:
            converted = os.path.getmtime(os.path.join(self._cachedir, f"{repo.id}.solv"))
            fetched = os.path.getmtime(os.path.join(repo._repo.getCachedir(), "repodata", _REPOMD))
        except OSError:
            return True
        return converted < fetched
