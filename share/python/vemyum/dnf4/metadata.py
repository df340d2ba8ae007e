# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf tells of the reading of repositories, as the acts that the engine shows."""

from __future__ import annotations

import os
from typing import Any

import dnf.callback
import dnf.repo

from .. import stop
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


class _StoppableCallbacks(dnf.repo.RepoCallbacks):  # type: ignore[misc]
    """dnf's own have a download go on, whatever they are told."""

    def progress(self, total: float, done: float) -> int:
        super().progress(total, done)
        return int(stop.wanted())


def let_stop(repo: dnf.repo.Repo) -> None:
    """Has a download of the repository's metadata fail once the user wants to stop."""
    repo._callbacks = _StoppableCallbacks(repo)
    # The library owns them from here on.
    repo._callbacks.this.disown()
    repo._repo.setCallbacks(repo._callbacks)


def is_to_be_converted(repo: dnf.repo.Repo, cachedir: str) -> bool:
    return must_convert(os.path.join(cachedir, f"{repo.id}.solv"), repo._repo.getCachedir())
