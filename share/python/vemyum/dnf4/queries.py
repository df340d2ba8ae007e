# SPDX-License-Identifier: GPL-2.0-or-later
"""Repositories whose address ends in a query: the metadata is fetched for dnf, packages are asked for by their complete
address."""

from __future__ import annotations

import functools
from typing import Any, Dict, Iterable, List, Optional

import dnf.repo

from ..backend import CHANGELOGS, PRIMARY
from ..queries import fetch
from ..repomd import LEFT_OUT, File, join, listed


def base_addresses(repo: dnf.repo.Repo) -> List[str]:
    """The base addresses of a repository if one has a query and dnf would use them; else none."""
    addresses = [str(address) for address in repo.baseurl]
    if repo.metalink or repo.mirrorlist or not any("?" in address for address in addresses):
        return []
    return addresses


def rounds(payloads: Iterable[Any]) -> int:
    """How often these payloads are worth trying: as often as one of such repositories has addresses."""
    return max((len(base_addresses(payload.pkg.repo)) for payload in payloads), default=0) or 1


def ask_by_complete_address(payloads: Iterable[Any], turn: int) -> None:
    """Lets dnf fetch the packages of such repositories, in the first round (0) from their first address."""
    for payload in payloads:
        addresses = base_addresses(payload.pkg.repo)
        if addresses and not payload.pkg.baseurl:
            address = addresses[min(turn, len(addresses) - 1)]
            payload._target_params = functools.partial(_parameters, payload, address)


def _parameters(payload: Any, address: str) -> Dict[str, Any]:
    parameters: Dict[str, Any] = type(payload)._target_params(payload)
    parameters["relative_url"] = join(address, parameters["relative_url"])
    return parameters


class _Repository:
    """See `queries.Repository`."""

    def __init__(self, repo: dnf.repo.Repo) -> None:
        self._repo = repo
        self.id: str = repo.id
        self.cache: str = repo._repo.getCachedir()
        self.signed = bool(repo.repo_gpgcheck)

    def download(self, address: str, target: str) -> None:
        # The library opens the descriptor once more, for writing and reading.
        with open(target, "w+b") as file:
            self._repo._repo.downloadUrl(address, file.fileno())

    def wanted(self, repomd: str) -> List[File]:
        return listed(repomd, LEFT_OUT if self._repo.load_metadata_other else (*LEFT_OUT, CHANGELOGS))

    def age_file(self) -> str:
        return str(self._repo.get_metadata_path(PRIMARY))


def fetch_metadata(repo: dnf.repo.Repo, lazy: bool, meter: Optional[str]) -> None:
    """Brings what is missing, or older than the configuration allows unless `lazy`, into dnf's cache, as
    `queries.fetch`."""
    cached = repo._repo.loadCache(False)
    if cached and (lazy or not repo._repo.isExpired()):
        return
    fetch(_Repository(repo), base_addresses(repo), cached, meter)
    # dnf keeps what it looked at before.
    repo._repo.loadCache(False)
