# SPDX-License-Identifier: GPL-2.0-or-later
"""Package files from elsewhere: `.rpm` files of this machine and addresses, beside what the repositories have."""

from __future__ import annotations

import hashlib
import os
from typing import Any, Dict, List, NamedTuple, Sequence
from urllib.parse import unquote, urlsplit

import rpm

from . import stop
from .backend import Row, System
from .credentials import masked
from .errors import YumBaseError, os_error_text, reported_as
from .packages import pkgtup, shown
from .signatures import checksig
from .text import valid
from .texts import _

_fetched: Dict[str, str] = {}
"""By address: the file that this process has made of it. What an address gives is read once."""


class Opened(NamedTuple):
    """What came of one word: the name of the package that has a row, or else why there is none."""

    word: str
    name: str
    refusal: str


class _Refused(Exception):
    pass


def open_files(words: Sequence[str], system: System) -> "tuple[List[Opened], List[Row]]":
    """For each word, a path or an address, what came of it; and the packages of those that have a row. Of two files for
    one name the later one counts. Stopped."""
    rows: Dict[str, Row] = {}
    opened: List[Opened] = []
    arches = system.architectures()
    installed = {pkgtup(row) for row in system.installed()} if words else set()
    for word in reversed(list(dict.fromkeys(words))):
        stop.check()
        try:
            row = _opened(word, system, arches)
            if row.name in rows:
                raise _Refused(_("another file of the package {name} was opened later").format(name=row.name))
            if pkgtup(row) in installed:
                raise _Refused(_("{package} is already installed").format(package=shown(pkgtup(row))))
        except _Refused as refused:
            opened.append(Opened(word, "", f"{masked(valid(word))}: {refused}"))
        else:
            rows[row.name] = row
            opened.append(Opened(word, row.name, ""))
    return opened[::-1], list(rows.values())


def _opened(word: str, system: System, arches: Sequence[str]) -> Row:
    try:
        with reported_as(YumBaseError):
            path = _file_of(word, system)
            _look_at(path, arches)
            return system.add_file(path)
    except stop.Stopped:
        raise
    except YumBaseError as error:
        stop.check()
        raise _Refused(str(error)) from error


def _file_of(word: str, system: System) -> str:
    """The file of a word; what an address gives is fetched."""
    if "://" not in word:
        return os.path.abspath(word)
    path = _fetched.get(word)
    if path is None or not os.path.exists(path):
        # Named as the caches of repositories are, so that what cleans these finds it.
        folder = "files-" + hashlib.sha256(word.encode("utf-8", "surrogateescape")).hexdigest()[:16]
        name = os.path.basename(unquote(urlsplit(word).path)) or "package.rpm"
        path = os.path.join(system.settings.cache_directory, folder, "packages", name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        if os.path.exists(path):
            # A download that was cut off would be gone on with.
            os.unlink(path)
        system.fetch(word, path)
        _fetched[word] = path
    return path


def _look_at(path: str, arches: Sequence[str]) -> None:
    """YumBaseError for what cannot be installed here: another kind of file, a damaged one, source, other machines."""
    try:
        with open(path, "rb") as package:
            header = _header_of(package)
    except OSError as error:
        raise YumBaseError(os_error_text(error)) from error
    except rpm.error as error:
        raise YumBaseError(_("this is no rpm package, or it is damaged")) from error
    if header.isSource():
        raise YumBaseError(_("this is a source package, which cannot be installed here"))
    if header["arch"] not in arches:
        raise YumBaseError(_("this package is for other machines ({arch})").format(arch=valid(header["arch"])))
    # Whether the signature counts is asked before the transaction, as for every package.
    if checksig(["--nosignature"], path).returncode != 0:
        raise YumBaseError(_("this is no rpm package, or it is damaged"))


def _header_of(package: Any) -> Any:
    transaction = rpm.TransactionSet()
    transaction.setVSFlags(rpm._RPMVSF_NOSIGNATURES)
    return transaction.hdrFromFdno(package.fileno())
