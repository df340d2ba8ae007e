# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys that are missing: they are found at a repository's `gpgkey`, and the user is asked about each.

Nothing is trusted, and nothing fetched from a server, before the user has agreed.
"""

from __future__ import annotations

import contextlib
import itertools
import os
import tempfile
import time
import urllib.parse
from typing import Callable, Dict, Iterable, Iterator, List, NamedTuple, Optional, Sequence

from . import host, openpgp
from .backend import KeySource
from .errors import RepoError, YumBaseError, os_error_text
from .mirrors import TRIES, mirrors_in
from .root import below, managed_root
from .texts import _, ngettext

_FEW = 10
"""Packages that a question names."""
_SIGNATURE_OF_METADATA = "repodata/repomd.xml.asc"


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
        repos: Sequence[KeySource],
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

    def _ask(self, key: openpgp.Key, location: str, repo: KeySource, packages: Sequence[str]) -> None:
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
            repo.verified,
        ):
            self._tell(location, _("the key {key} was not agreed to").format(key=primary.fingerprint))
            self._give_up()

    def _keys_at(self, location: str, repo: KeySource, packages: Sequence[str]) -> List[openpgp.Key]:
        if location not in self._files:
            self._files[location] = []
            if not is_local(location) and not host.confirm_key(
                location, repo.id, _named(packages), verified=repo.verified
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


def _places(repos: Sequence[KeySource]) -> List[tuple[KeySource, str]]:
    """Each repository with each address of its keys, those first that need no network."""
    places = [(repo, location) for repo in repos for location in repo.gpgkey]
    return sorted(places, key=lambda place: not is_local(place[1]))


def is_local(location: str) -> bool:
    """Whether it is a path or the address of a file."""
    return urllib.parse.urlsplit(location).scheme.lower() in ("", "file")


def _content(location: str, repo: KeySource) -> bytes:
    """OSError, RuntimeError with the library's words."""
    if is_local(location):
        with open(local_path(location), "rb") as file:
            return file.read()
    return repo.fetch(location)


def local_path(location: str) -> str:
    """A file of the managed system, else one of this one, as dnf has it for any root. OSError."""
    path = urllib.parse.unquote(urllib.parse.urlsplit(location).path)
    place = below(managed_root(), path)
    return place if os.path.exists(place) else path


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


def imported(agreed: Agreed) -> str:
    return _("Imported the key {key}, {user}, from {location}").format(
        key=agreed.key.primary.fingerprint, user=agreed.key.user_id, location=agreed.location
    )


# Of metadata -------------------------------------------------------------------------------------------------------


def issuers_of_metadata(source: KeySource, bases: Iterable[str], lists: Iterable[str]) -> Optional[List[str]]:
    """Who has signed a repository's metadata, by the first server that tells; None for no signature. `lists` are the
    addresses of lists of mirrors."""
    for server in itertools.islice(_servers(source, bases, lists), TRIES):
        with contextlib.suppress(RuntimeError, openpgp.Unreadable):
            issuers = openpgp.issuers_of(source.fetch(f"{server.rstrip('/')}/{_SIGNATURE_OF_METADATA}"))
            if issuers:
                return issuers
    return None


def _servers(source: KeySource, bases: Iterable[str], lists: Iterable[str]) -> Iterator[str]:
    """The libraries forget mirrors where they could not use what these gave."""
    yield from bases
    for address in lists:
        with contextlib.suppress(RuntimeError):
            yield from mirrors_in(source.fetch(address))


def agreed_for_metadata(source: KeySource, issuers: Sequence[str], fault: str) -> Agreed:
    """Asks about a key of the metadata's signature. RepoError, which begins with the library's words for the fault."""
    search = Search()
    try:
        search.find(issuers, [source], [])
    except Missing as missing:
        told = [f"    {line}" for line in str(missing).splitlines()]
        raise RepoError("\n".join([fault, _("No key of this signature is trusted:"), *told])) from missing
    (agreed,) = search.agreed.values()
    return agreed
