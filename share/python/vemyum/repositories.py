# SPDX-License-Identifier: GPL-2.0-or-later
"""The repositories as the engine sees them: `YumIO.repos`."""

from __future__ import annotations

from typing import Dict, Iterable

from .backend import RepositoryState
from .errors import RepoError
from .texts import _


class Repository:
    """One configured repository. `enabled` is 1 or 0."""

    __slots__ = ("id", "name", "enabled")

    def __init__(self, id: str, name: str, enabled: bool) -> None:
        self.id = id
        self.name = name
        self.enabled = int(enabled)


class Repositories:
    """Holds the dictionary `repos` and switches repositories on and off, before they are read."""

    def __init__(self, repositories: Iterable[RepositoryState]) -> None:
        self.repos: Dict[str, Repository] = {
            state.id: Repository(state.id, state.name, state.enabled) for state in repositories
        }

    def enableRepo(self, id: str) -> None:
        """Takes effect at the next reading. RepoError for an unknown id."""
        self._find(id).enabled = 1

    def disableRepo(self, id: str) -> None:
        """Takes effect at the next reading. RepoError for an unknown id."""
        self._find(id).enabled = 0

    def _find(self, id: str) -> Repository:
        try:
            return self.repos[id]
        except KeyError:
            raise RepoError(_("There is no repository {id}").format(id=id)) from None


class UnreadableRepositories(Repositories):
    """Stands in where the configuration cannot be read: one entry, so that reading it is tried and
    gives the reason."""

    def __init__(self, file: str) -> None:
        super().__init__(())
        self.repos[file] = Repository(file, file, True)
