# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys of repositories' metadata, which dnf keeps apart from those of packages."""

from __future__ import annotations

import os
import re
from typing import List, Sequence

import dnf.crypto
import dnf.repo
import libdnf.repo
from dnf.exceptions import RepoError

from .. import host
from ..keys import agreed_for_metadata, imported, issuers_of_metadata, key_file

_ABOUT_SIGNATURES = re.compile(r"\bGPG\b|\bsignature\b", re.I)


class RepositoryKeys:
    """A repository as the search for keys sees it."""

    def __init__(self, repo: dnf.repo.Repo) -> None:
        self._repo = repo
        self.id: str = repo.id
        self.gpgkey: List[str] = list(repo.gpgkey)
        self.verified = bool(repo.sslverify)

    def fetch(self, address: str) -> bytes:
        return fetched(address, self._repo)


def fetched(address: str, repo: dnf.repo.Repo) -> bytes:
    """What an address gives, by the repository's settings. RuntimeError with the library's words."""
    with open(os.memfd_create("answer"), "w+b") as file:
        repo._repo.downloadUrl(address, file.fileno())
        file.seek(0)
        return file.read()


class _KeyImport:
    """dnf's library asks it about each key of a repository that it is about to trust."""

    def __init__(self, answer: bool) -> None:
        self._answer = answer

    def _confirm(self, *_about: object) -> bool:
        return self._answer


def load(repo: dnf.repo.Repo, may_ask: bool) -> None:
    """Loads the metadata of a repository. RepoError, also for a signature by a key that isn't trusted: the user is
    asked about it, if that may be."""
    try:
        _load_with(repo, [], False)
    except RepoError as error:
        if not (may_ask and repo.repo_gpgcheck and repo.gpgkey and _ABOUT_SIGNATURES.search(str(error))):
            raise
        source = RepositoryKeys(repo)
        issuers = issuers_of_metadata(source, repo.baseurl, filter(None, (repo.metalink, repo.mirrorlist)))
        if issuers is None or _trusted(repo, issuers):
            raise
        agreed = agreed_for_metadata(source, issuers, str(error))
    else:
        return
    with key_file([agreed.key]) as path:
        _load_with(repo, [f"file://{path}"], True)
    host.log(host.LEVEL_NOTICE, imported(agreed))


def _load_with(repo: dnf.repo.Repo, keys: List[str], trusted: bool) -> None:
    """Without addresses of keys the library has none to fetch; it would do so before it asks."""
    configured = list(repo.gpgkey)
    repo._set_key_import(_KeyImport(trusted))
    repo.gpgkey = keys
    try:
        repo.load()
    finally:
        repo.gpgkey = configured
        repo._set_key_import(_KeyImport(False))


def _trusted(repo: dnf.repo.Repo, issuers: Sequence[str]) -> bool:
    """Whether the signature is wrong for another reason than the lack of one of these keys."""
    # dnf's own function is an older form of its library's.
    known = getattr(libdnf.repo, "keyidsFromPubring", None) or dnf.crypto.keyids_from_pubring
    ids = [key_id.upper() for key_id in known(repo._pubring_dir)]
    return any(issuer.endswith(key_id) or issuer.startswith(key_id) for issuer in issuers for key_id in ids)
