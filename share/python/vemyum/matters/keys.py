# SPDX-License-Identifier: GPL-2.0-or-later
"""The keys that the managed system's rpm trusts: a list, what a file or an address would bring, import and removal.

Needs no collection. Looking needs no rights and fetches nothing but the address that it is given. The keys of signed
metadata, which the libraries keep by themselves, are not among them. A key is a dictionary:

    fingerprint str, upper-case hexadecimal digits; "" for one that cannot be read
    keyId       str, likewise
    user        str, whose it is
    created     int, seconds since the epoch
    expires     int, likewise; 0 for never
    state       str: "valid", "soon" (it expires within 30 days), "expired", "revoked" or "unreadable"

One that is trusted has also:

    name        str, what rpm calls it, "gpg-pubkey-…"
    repositories list of str, the ids of the configured ones whose `gpgkey` names a file that holds it

One that a file or an address brings has instead:

    trusted     bool, whether rpm has it already, maybe in an older state
"""

from __future__ import annotations

import base64
import binascii
import contextlib
import os
import stat
import tempfile
import time
from typing import Any, Dict, Iterable, List, NamedTuple, Optional, Sequence, Tuple
from urllib.parse import unquote, urlsplit

import rpm

from .. import host, openpgp, rights, stop
from ..backend import System
from ..credentials import masked
from ..database import damage, point_rpm_at, transaction_is_at_work, unreadable
from ..errors import YumBaseError, os_error_text
from ..keys import Agreed, is_local, local_path
from ..messages import rpms_words
from ..signatures import import_key, remove_key
from ..text import valid, whole
from ..texts import _

Told = Dict[str, Any]

_SOON = 30 * 24 * 3600
"""Seconds in which somebody who looks now and then will learn of it."""
_LARGEST = 1024
"""KiB: the keys of whole distributions take some hundred."""
_LONGEST = 60
"""Seconds in which an address must have given its keys."""
_REMOTE = ("http", "https")


class _Entry(NamedTuple):
    """A key of the rpm database. `key` is None for one that cannot be read."""

    name: str
    version: str
    user: str
    created: int
    key: Optional[openpgp.Key]

    @property
    def fingerprint(self) -> str:
        return "" if self.key is None else self.key.primary.fingerprint


class _Read:
    """What was read last: that alone is imported, as it was shown."""

    location = ""
    keys: Dict[str, openpgp.Key] = {}
    """By fingerprint."""


# Looking --------------------------------------------------------------------------------------------------------


def listed(system: System, root: str) -> Told:
    """The dictionary has `keys`, those that are trusted, by their owners; and `notes`, a sentence for each key file of
    a repository that could not be looked into. YumBaseError, Stopped."""
    entries = _entries(root)
    used, notes = _used(system)
    found = []
    for entry in sorted(entries, key=lambda entry: (entry.user.casefold(), entry.created, entry.name)):
        if entry.key is not None:
            told = _told(entry.key)
        else:
            told = {
                "fingerprint": "",
                "keyId": entry.version.upper(),
                "user": entry.user,
                "created": entry.created,
                "expires": 0,
                "state": "unreadable",
            }
        told["name"] = entry.name
        told["repositories"] = used.get(entry.fingerprint, []) if entry.fingerprint else []
        found.append(told)
    return {"keys": found, "notes": notes}


def read(system: System, root: str, word: str) -> Told:
    """What a path or an address (http, https, file) would bring. The dictionary has `location` and `keys`, which stay
    at hand for `imported`; nothing is trusted yet. YumBaseError, Stopped."""
    _Read.location, _Read.keys = "", {}
    shown = masked(valid(word))
    try:
        keys = openpgp.keys_in(_content(system, word))
    except (openpgp.Unreadable, ValueError):
        # Or it has letters that no path or address can have.
        keys = []
    except OSError as error:
        raise YumBaseError(os_error_text(error)) from error
    if not keys:
        raise YumBaseError(_("{location}: there is no key in it").format(location=shown))
    trusted = {entry.fingerprint for entry in _entries(root)}
    _Read.location, _Read.keys = shown, {key.primary.fingerprint: key for key in keys}
    return {
        "location": shown,
        "keys": [
            {**_told(key), "trusted": fingerprint in trusted} for fingerprint, key in _Read.keys.items()
        ],
    }


# Changing -------------------------------------------------------------------------------------------------------


def imported(root: str, fingerprints: Sequence[str]) -> List[Told]:
    """Has rpm trust these of the keys that were read last. For each a dictionary: `fingerprint`, and `fault`, a
    sentence, empty where it is trusted now. YumBaseError before anything is done: without the rights, where another
    program is at work, and for a key that wasn't read."""
    _require_way(root)
    unknown = next((one for one in fingerprints if one not in _Read.keys), None)
    if unknown is not None:
        raise YumBaseError(_("The key {key} has not been read: read its file once more.").format(key=unknown))
    return [{"fingerprint": one, "fault": _fault_of_import(root, _Read.keys[one])} for one in fingerprints]


def removed(root: str, key: str) -> None:
    """Has rpm trust a key no more, which is named by its fingerprint, or where it cannot be read by rpm's name for it.
    YumBaseError, also for one that isn't there."""
    _require_way(root)
    entries = _entries(root)
    entry = next((one for one in entries if key and key in (one.fingerprint, one.name)), None)
    if entry is None:
        raise YumBaseError(_("The key {key} is not among those that are trusted.").format(key=key))
    if any(one.name == entry.name and one.fingerprint != entry.fingerprint for one in entries):
        text = _("rpm has several keys that it calls {name}: it cannot remove only one of them.")
        raise YumBaseError(text.format(name=entry.name))
    remove_key(root, entry.name, entry.fingerprint)
    if any(one.name == entry.name for one in _entries(root)):
        raise YumBaseError(_("rpm has not removed the key {key}.").format(key=key))
    host.log(host.LEVEL_NOTICE, _("Removed the key {key}, {user}").format(key=key, user=entry.user))


def _require_way(root: str) -> None:
    rights.require_changeable(root)
    if transaction_is_at_work(root):
        # rpm would wait for it, however long that takes.
        raise YumBaseError(_("Another program is changing packages: try again once it has come to its end."))


def _fault_of_import(root: str, key: openpgp.Key) -> str:
    primary = key.primary
    if primary.revoked:
        return _("The key {key} has been revoked: it is not imported.").format(key=primary.fingerprint)
    try:
        import_key(root, Agreed(key, _Read.location))
    except YumBaseError as error:
        return str(error)
    there = next((one.key for one in _entries(root) if one.fingerprint == primary.fingerprint), None)
    if there is None:
        return _("rpm has not taken the key {key} in.").format(key=primary.fingerprint)
    if there.primary.expires != primary.expires:
        text = _("rpm keeps the key {key} as it was: to renew it, remove it first.")
        return text.format(key=primary.fingerprint)
    return ""


# The rpm database -----------------------------------------------------------------------------------------------


def _entries(root: str) -> List[_Entry]:
    """YumBaseError for a database that cannot be read."""
    with rpms_words() as said:
        try:
            point_rpm_at(root)
            fault = damage(root)
            if fault is not None:
                raise unreadable(root, fault, said())
            transaction = rpm.TransactionSet(root)
            # The header of a key isn't signed.
            transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
            try:
                return [_entry(header) for header in transaction.dbMatch("name", "gpg-pubkey")]
            finally:
                transaction.closeDB()
        except rpm.error as error:
            raise unreadable(root, error, said()) from error


def _entry(header: Any) -> _Entry:
    version, release = valid(header["version"]), valid(header["release"])
    key = _key_of(header["pubkeys"])
    created = key.primary.created if key is not None else _number(release)
    user = key.user_id if key is not None else valid(header["packager"] or header["summary"] or "")
    return _Entry(f"gpg-pubkey-{version}-{release}", version, user, created, key)


def _key_of(texts: Iterable[Any]) -> Optional[openpgp.Key]:
    """The key that rpm keeps as the only text of its list."""
    with contextlib.suppress(openpgp.Unreadable, binascii.Error, ValueError):
        for text in texts:
            for key in openpgp.keys_in(base64.b64decode(text)):
                return key
    return None


def _number(release: str) -> int:
    """When the key was made, which is what rpm tells instead of a release."""
    try:
        return int(release, 16)
    except ValueError:
        return 0


# Values ---------------------------------------------------------------------------------------------------------


def _told(key: openpgp.Key) -> Told:
    primary = key.primary
    return {
        "fingerprint": primary.fingerprint,
        "keyId": primary.key_id,
        "user": key.user_id,
        "created": primary.created,
        "expires": whole(primary.expires),
        "state": _state(primary),
    }


def _state(primary: openpgp.Part) -> str:
    if primary.revoked:
        return "revoked"
    left = primary.expires - time.time() if primary.expires else _SOON + 1
    return "expired" if left <= 0 else "soon" if left <= _SOON else "valid"


def _used(system: System) -> Tuple[Dict[str, List[str]], List[str]]:
    """By fingerprint the repositories that name the key; and what could not be looked into."""
    used: Dict[str, List[str]] = {}
    notes: List[str] = []
    files: Dict[str, List[str]] = {}
    for source in system.key_sources():
        for location in dict.fromkeys(source.gpgkey):
            stop.check()
            shown = masked(valid(location))
            if not is_local(location):
                text = _("Repository {id}: which keys {location} has is only known once it is fetched.")
                notes.append(text.format(id=source.id, location=shown))
                continue
            try:
                if location not in files:
                    found = openpgp.keys_in(_file(local_path(location)))
                    files[location] = [key.primary.fingerprint for key in found]
            except (openpgp.Unreadable, ValueError):
                fault = _("{location}: there is no key in it").format(location=shown)
            except OSError as error:
                fault = os_error_text(error)
            except YumBaseError as error:
                fault = str(error)
            else:
                for fingerprint in files[location]:
                    used.setdefault(fingerprint, []).append(source.id)
                continue
            notes.append(_("Repository {id}: {fault}").format(id=source.id, fault=fault))
    return {fingerprint: list(dict.fromkeys(ids)) for fingerprint, ids in used.items()}, notes


# Files and addresses --------------------------------------------------------------------------------------------


def _content(system: System, word: str) -> bytes:
    """YumBaseError, OSError."""
    scheme = urlsplit(word).scheme.lower() if "://" in word else ""
    if scheme == "":
        return _file(os.path.abspath(word))
    if scheme == "file":
        return _file(unquote(urlsplit(word).path))
    if scheme in _REMOTE:
        return _fetched(system, word)
    raise YumBaseError(_("Keys are read from files, and from addresses that begin with http://, https:// or file://."))


def _file(path: str) -> bytes:
    """Of a regular file, whoever may put another one there meanwhile. YumBaseError for what is no file of keys."""
    # A pipe would be waited for.
    with open(path, "rb", opener=lambda name, flags: os.open(name, flags | os.O_NONBLOCK)) as file:
        if not stat.S_ISREG(os.fstat(file.fileno()).st_mode):
            raise YumBaseError(_("{path} is no file").format(path=path))
        content = file.read(_LARGEST * 1024 + 1)
    if len(content) > _LARGEST * 1024:
        raise YumBaseError(_too_large(path))
    return content


def _fetched(system: System, address: str) -> bytes:
    """Stopped, YumBaseError with the library's words or that it was too much."""
    bounds = _Bounds()
    shown = masked(valid(address))
    with tempfile.TemporaryDirectory(prefix="vem-key-") as folder:
        path = os.path.join(folder, "key")
        try:
            system.fetch(address, path, bounds.enough)
        except YumBaseError as error:
            if isinstance(error, stop.Stopped):
                raise
            if bounds.too_large:
                raise YumBaseError(_too_large(shown)) from error
            if bounds.too_long:
                text = _("{location} has not given its keys within {seconds} seconds.")
                raise YumBaseError(text.format(location=shown, seconds=_LONGEST)) from error
            raise YumBaseError(_("{location}: {fault}").format(location=shown, fault=masked(str(error)))) from error
        try:
            return _file(path)
        except YumBaseError as error:
            # The library may come to its end before it asks.
            raise YumBaseError(_too_large(shown)) from error


class _Bounds:
    """What no address may go beyond."""

    def __init__(self) -> None:
        self.too_large = self.too_long = False
        self._end = time.monotonic() + _LONGEST

    def enough(self, size: int) -> bool:
        self.too_large = self.too_large or size > _LARGEST * 1024
        self.too_long = self.too_long or time.monotonic() > self._end
        return self.too_large or self.too_long


def _too_large(location: str) -> str:
    return _("{location} is larger than {size} KiB, and no file of keys.").format(location=location, size=_LARGEST)
