# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys of repositories' metadata: nothing is trusted, and nothing fetched from a server, before the user has agreed."""

from __future__ import annotations

import re
from typing import Any, Callable, List

import libdnf5.repo

from .. import host
from ..keys import agreed_for_metadata, imported, issuers_of_metadata, key_file
from .base import Base, open_base
from .failures import FAILURES, words
from .metadata import addresses, content_of

_LACKING = re.compile(r"\bkey not found\b|\bno public key\b", re.I)
"""Stands in the library's words where a signature is good as far as one can tell."""


class Source:
    """A repository as a source of keys (`backend.KeySource`)."""

    def __init__(self, base: Base, repo: libdnf5.repo.Repo) -> None:
        config = repo.get_config()
        self.id: str = repo.get_id()
        self.gpgkey: List[str] = [str(address) for address in config.gpgkey]
        self.verified = bool(config.sslverify)
        self._base = base
        self._repo = repo

    def fetch(self, address: str) -> bytes:
        return content_of(self._base, self._repo, address)


class _Agreed(libdnf5.repo.RepoCallbacks):  # type: ignore[misc]
    """Lets the one key in that the user has agreed to."""

    def __init__(self, fingerprint: str) -> None:
        super().__init__()
        self._fingerprint = fingerprint.upper()

    def repokey_import(self, key: Any) -> bool:
        try:
            return bool(key.get_fingerprint().upper() == self._fingerprint)
        except BaseException:  # noqa: BLE001 - what left this would end the process
            return False


def load_signed(base: Base, repo: libdnf5.repo.Repo, fetch: Callable[[], None], may_ask: bool) -> None:
    """Fetches the metadata of a repository by `fetch`. Where it is signed by a key that isn't trusted, the user is
    asked about it, if that may be. RepoError, the library's failures."""
    try:
        # That trusts no key: only a whole load of the library takes one in.
        fetch()
        return
    except FAILURES as error:
        text = words(error)
        source = Source(base, repo)
        if not (may_ask and repo.get_config().repo_gpgcheck and source.gpgkey and _LACKING.search(text)):
            raise
        bases = len(repo.get_config().baseurl)
        issuers = issuers_of_metadata(source, addresses(repo)[:bases], addresses(repo)[bases:])
        if issuers is None:
            raise
        agreed = agreed_for_metadata(source, issuers, text)
    with key_file([agreed.key]) as path:
        _load_trusting(base, repo, path, agreed.key.primary.fingerprint)
    host.log(host.LEVEL_NOTICE, imported(agreed))


def _load_trusting(base: Base, repo: libdnf5.repo.Repo, path: str, fingerprint: str) -> None:
    """Has the library fetch the metadata and take the key in. A Base can load once only: another one does it."""
    other = open_base(base.settings, [base.sections[repo.get_id()]])
    same = other.repository(repo.get_id())
    same.enable()
    same.get_config().gpgkey = [f"file://{path}"]
    other.answer_with(same, _Agreed(fingerprint))
    other.downloads.listener = base.downloads.listener
    try:
        other.library.get_repo_sack().load_repos(libdnf5.repo.Repo.Type_AVAILABLE)
    except FAILURES:
        other.take_vacant_descriptors()
        raise
    finally:
        other.downloads.listener = None
        other.log.tell()
