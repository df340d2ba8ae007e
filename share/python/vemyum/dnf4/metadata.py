# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf tells of the reading of repositories, as the acts that the engine shows."""

from __future__ import annotations

import os
from typing import Any

import dnf.callback
import dnf.repo

from ..acts import FetchingActs, must_convert


class RepositoryProgress(dnf.callback.DownloadProgress):
    """Follows the fetching of one repository's metadata. dnf logs and drops what is raised here."""

    def __init__(self, repo: dnf.repo.Repo, directory: str) -> None:
        super().__init__()
        cache = repo._repo.getCachedir()
        lists = bool(repo.metalink), bool(repo.mirrorlist)
        self._acts = FetchingActs(repo.id, cache, directory, *lists, adds_up=False)

    def start(self, total_files: int, total_size: int, total_drpms: int = 0) -> None:
        self._acts.begin()

    def progress(self, payload: Any, done: float) -> None:
        self._acts.progress(int(payload.download_size), int(done))

    def end(self, payload: Any, status: Any, msg: Any) -> None:
        self._acts.close()


def is_to_be_converted(repo: dnf.repo.Repo, cachedir: str) -> bool:
    return must_convert(os.path.join(cachedir, f"{repo.id}.solv"), repo._repo.getCachedir())
