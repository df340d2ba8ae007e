# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys that are missing: they are found at a repository's `gpgkey`, and the user is asked about each.

Nothing is trusted, and nothing fetched from a server, before the user has agreed.
"""

from __future__ import annotations

import contextlib
import html
import itertools
import os
import re
import tempfile
import time
import urllib.parse
from typing import Callable, Dict, Iterator, List, NamedTuple, Optional, Sequence

import dnf.crypto
import dnf.repo
import libdnf.repo

from . import host, openpgp
from .errors import RepoError, YumBaseError, os_error_text
from .root import below, managed_root
from .texts import _, ngettext

_FEW = 10
"""Packages that a question names."""

_SIGNATURE_OF_METADATA = "repodata/repomd.xml.asc"
_MIRRORS_OF_METALINK = re.compile(r">\s*([^<>\s]+)/repodata/repomd\.xml\s*<")
_MIRROR = re.compile(r"(?:https?|ftp|file)://")
_TRIES = 5
"""Servers that are asked for the signature of the metadata."""
_ABOUT_SIGNATURES = re.compile(r"\bGPG\b|\bsignature\b", re.I)


class Missing(YumBaseError):
    """No key has been found, or not been agreed to; the text tells of each address, in lines of their own."""


class Agreed(NamedTuple):
    key: openpgp.Key
    location: str


class Search:
    """Looks for keys, and asks. Each address is fetched once, each key is asked about once."""

    def __init__(self) -> None:
        self.agreed: Dict[str, Agreed] = {}
        """By fingerprint."""
        self._told: List[str] = []
        self._files: Dict[str, List[openpgp.Key]] = {}

    def find(
        self,
        issuers: Sequence[str],
        repos: Sequence[dnf.repo.Repo],
        packages: Sequence[str],
        refusal: Callable[[openpgp.Key], Optional[str]] = lambda key: None,
    ) -> None:
        """One of the keys that these signatures name by fingerprint or id.

        `packages` are what is signed, none for the metadata of the repository; `refusal` tells why a key that fits is
        of no use, or None. Raises Missing, also where the user doesn't agree.
        """
        for repo, location in _places(repos):
            for key in self._keys_at(location, repo, packages):
                part = next((part for part in map(key.part, issuers) if part), None)
                fingerprint = key.primary.fingerprint
                if part is None:
                    self._tell(location, _("the key {key} is not the one").format(key=fingerprint))
                    continue
                fault = _fault(key, part) or refusal(key)
                if fault is not None:
                    self._tell(location, fault)
                    continue
                if fingerprint not in self.agreed:
                    self._ask(key, location, repo, packages)
                    self.agreed[fingerprint] = Agreed(key, location)
                return
        self._give_up()

    def _ask(self, key: openpgp.Key, location: str, repo: dnf.repo.Repo, packages: Sequence[str]) -> None:
        primary = key.primary
        if not host.confirm_key(
            location,
            repo.id,
            _named(packages),
            key.user_id,
            primary.fingerprint,
            primary.key_id,
            primary.created,
            primary.expires,
            bool(repo.sslverify),
        ):
            self._tell(location, _("the key {key} was not agreed to").format(key=primary.fingerprint))
            self._give_up()

    def _keys_at(self, location: str, repo: dnf.repo.Repo, packages: Sequence[str]) -> List[openpgp.Key]:
        if location not in self._files:
            self._files[location] = []
            if not _is_local(location) and not host.confirm_key(
                location, repo.id, _named(packages), verified=bool(repo.sslverify)
            ):
                self._tell(location, _("it was not agreed to fetch the key"))
                self._give_up()
            try:
                self._files[location] = openpgp.keys_in(_content(location, repo))
                if not self._files[location]:
                    raise openpgp.Unreadable
            except openpgp.Unreadable:
                self._tell(location, _("there is no key in it"))
            except OSError as error:
                self._tell(location, os_error_text(error))
            except RuntimeError as error:
                self._tell(location, str(error))
        return self._files[location]

    def _tell(self, location: str, text: str) -> None:
        line = f"{location}: {text}"
        if line not in self._told:
            self._told.append(line)

    def _give_up(self) -> None:
        raise Missing("\n".join(self._told))


def _places(repos: Sequence[dnf.repo.Repo]) -> List[tuple[dnf.repo.Repo, str]]:
    """Each repository with each address of its keys, those first that need no network."""
    places = [(repo, location) for repo in repos for location in repo.gpgkey]
    return sorted(places, key=lambda place: not _is_local(place[1]))


def _is_local(location: str) -> bool:
    return urllib.parse.urlsplit(location).scheme.lower() in ("", "file")


def _content(location: str, repo: dnf.repo.Repo) -> bytes:
    """OSError, RuntimeError with the library's words."""
    if _is_local(location):
        path = urllib.parse.unquote(urllib.parse.urlsplit(location).path)
        place = below(managed_root(), path)
        # A file of the managed system, else one of this one, as dnf has it for any root.
        with open(place if os.path.exists(place) else path, "rb") as file:
            return file.read()
    return _downloaded(location, repo)


def _downloaded(address: str, repo: dnf.repo.Repo) -> bytes:
    """RuntimeError with the library's words."""
    with open(os.memfd_create("key"), "w+b") as file:
        repo._repo.downloadUrl(address, file.fileno())
        file.seek(0)
        return file.read()


def _fault(key: openpgp.Key, part: openpgp.Part) -> Optional[str]:
    """What the key itself says against its use."""
    now = time.time()
    for one in (key.primary, part):
        if one.revoked:
            return _("the key {key} has been revoked").format(key=one.fingerprint)
        if one.expires and one.expires <= now:
            day = time.strftime("%x", time.localtime(one.expires))
            return _("the key {key} has expired ({date})").format(key=one.fingerprint, date=day)
    return None


def _named(packages: Sequence[str]) -> str:
    more = len(packages) - _FEW
    if more <= 1:
        return ", ".join(packages)
    rest = ngettext("and {number} more", "and {number} more", more).format(number=more)
    return ", ".join([*packages[:_FEW], rest])


@contextlib.contextmanager
def key_file(keys: Sequence[openpgp.Key]) -> Iterator[str]:
    """The path of a file that holds these keys, as long as the block runs."""
    with tempfile.NamedTemporaryFile(prefix="vem-key-", suffix=".asc") as file:
        for key in keys:
            file.write(openpgp.armoured(key.data))
        file.flush()
        yield file.name


# Keys of metadata ------------------------------------------------------------------------------------------------


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
            search.find(issuers, [repo], [])
        except Missing as missing:
            raise RepoError(_untrusted(str(error), str(missing))) from error
    else:
        return
    (agreed,) = search.agreed.values()
    with key_file([agreed.key]) as path:
        _load_with(repo, [f"file://{path}"], True)
    host.log(host.LEVEL_NOTICE, imported(agreed))


def imported(agreed: Agreed) -> str:
    return _("Imported the key {key}, {user}, from {location}").format(
        key=agreed.key.primary.fingerprint, user=agreed.key.user_id, location=agreed.location
    )


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
            issuers = openpgp.issuers_of(_downloaded(f"{base.rstrip('/')}/{_SIGNATURE_OF_METADATA}", repo))
            if issuers:
                return issuers
    return None


def _bases(repo: dnf.repo.Repo) -> Iterator[str]:
    """The addresses of a repository. The library forgets its mirrors where it could not use what they gave."""
    yield from repo.baseurl
    for address in filter(None, (repo.metalink, repo.mirrorlist)):
        with contextlib.suppress(RuntimeError):
            text = _downloaded(address, repo).decode("utf-8", "replace")
            # A metalink may be given where a list of mirrors is asked for.
            found = map(html.unescape, _MIRRORS_OF_METALINK.findall(text)) if "<metalink" in text else text.split()
            yield from (mirror for mirror in found if _MIRROR.match(mirror))


def _trusted(repo: dnf.repo.Repo, issuers: Sequence[str]) -> bool:
    """Whether the signature is wrong for another reason than the lack of one of these keys."""
    # dnf's own function is an older form of its library's.
    known = getattr(libdnf.repo, "keyidsFromPubring", None) or dnf.crypto.keyids_from_pubring
    ids = [key_id.upper() for key_id in known(repo._pubring_dir)]
    return any(issuer.endswith(key_id) or issuer.startswith(key_id) for issuer in issuers for key_id in ids)
