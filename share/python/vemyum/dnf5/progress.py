# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library tells of the fetching of repositories, as the acts that the engine shows."""

from __future__ import annotations

import os
from typing import List, Optional

import libdnf5.repo

from ..acts import FetchingActs, must_convert
from .base import log_mirror


class FetchingProgress:
    """Follows the fetching of one repository's metadata (`base.Listener`)."""

    def __init__(self, repo: libdnf5.repo.Repo, directory: Optional[str]) -> None:
        """`directory` is the one that the acts name, None for no acts."""
        self.causes: List[str] = []
        """Why mirrors failed."""
        config = repo.get_config()
        lists = (not _is_empty(option) for option in (config.get_metalink_option(), config.get_mirrorlist_option()))
        self.acts = FetchingActs(repo.get_id(), repo.get_cachedir(), directory, *lists, adds_up=True)

    def begin(self, _repository: int, _what: str, _size: int) -> int:
        self.acts.begin()
        return 0

    def progress(self, _number: int, size: int, done: int) -> None:
        self.acts.progress(size, done)

    def end(self, _number: int, _status: int, _message: str) -> None:
        self.acts.close()

    def mirror_failed(self, _number: int, message: str, address: str) -> None:
        # Of a file that isn't what was announced the library doesn't say which it is.
        self.causes.append(message if address in message else f"{address}: {message.strip()}")
        log_mirror(message)


def is_to_be_converted(repo: libdnf5.repo.Repo) -> bool:
    cache = repo.get_cachedir()
    return must_convert(os.path.join(cache, "solv", f"{repo.get_id()}.solv"), cache)


def _is_empty(option: object) -> bool:
    return bool(option.empty()) or not option.get_value()  # type: ignore[attr-defined]
