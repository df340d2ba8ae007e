# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys of repositories' metadata, which dnf keeps apart from those of packages."""

from __future__ import annotations

import contextlib
import html
import itertools
import os
import re
from typing import Iterator, List, Optional, Sequence

import dnf.crypto
import dnf.repo
import libdnf.repo
from dnf.exceptions import RepoError

from .. import host, openpgp
from ..keys import Missing, Search, imported, key_file
from ..texts import _

_SIGNATURE_OF_METADATA = "repodata/repomd.xml.asc"
_MIRRORS_OF_METALINK = re.compile(r">\s*([^<>\s]+)/repodata/repomd\.xml\s*<")
_MIRROR = re.compile(r"(?:https?|ftp|file)://")
_TRIES = 5
"""Servers that are asked for the signature of the metadata."""
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
        issuers = _issuers(repo)
        if issuers is None or _trusted(repo, issuers):
            raise
        search = Search()
        try:
            search.find(issuers, [RepositoryKeys(repo)], [])
        except Missing as missing:
            raise RepoError(_untrusted(str(error), str(missing))) from error
    else:
        return
    (agreed,) = search.agreed.values()
    with key_file([agreed.key]) as path:
        _load_with(repo, [f"file://{path}"], True)
    host.log(host.LEVEL_NOTICE, imported(agreed))


def _untrusted(text: str, told: str) -> str:
    return "\n".join([text, _("No key of this signature is trusted:"), *(f"    {line}" for line in told.splitlines())])


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


def _issuers(repo: dnf.repo.Repo) -> Optional[List[str]]:
    """Who has signed the metadata, by the first server that tells; None for no signature."""
    for base in itertools.islice(_bases(repo), _TRIES):
        with contextlib.suppress(RuntimeError, openpgp.Unreadable):
            issuers = openpgp.issuers_of(fetched(f"{base.rstrip('/')}/{_SIGNATURE_OF_METADATA}", repo))
            if issuers:
                return issuers
    return None


def _bases(repo: dnf.repo.Repo) -> Iterator[str]:
    """The addresses of a repository. The library forgets its mirrors where it could not use what they gave."""
    yield from repo.baseurl
    for address in filter(None, (repo.metalink, repo.mirrorlist)):
        with contextlib.suppress(RuntimeError):
            text = fetched(address, repo).decode("utf-8", "replace")
            # A metalink may be given where a list of mirrors is asked for.
            found = map(html.unescape, _MIRRORS_OF_METALINK.findall(text)) if "<metalink" in text else text.split()
            yield from (mirror for mirror in found if _MIRROR.match(mirror))


def _trusted(repo: dnf.repo.Repo, issuers: Sequence[str]) -> bool:
    """Whether the signature is wrong for another reason than the lack of one of these keys."""
    # dnf's own function is an older form of its library's.
    known = getattr(libdnf.repo, "keyidsFromPubring", None) or dnf.crypto.keyids_from_pubring
    ids = [key_id.upper() for key_id in known(repo._pubring_dir)]
    return any(issuer.endswith(key_id) or issuer.startswith(key_id) for issuer in issuers for key_id in ids)
