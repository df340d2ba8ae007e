# SPDX-License-Identifier: GPL-2.0-or-later
"""Where the rpm database of a managed root lies.

A distribution's rpm may look at a path that depends on who runs it (Debian: ~/.rpmdb). Below a root
of its own the database is where that system has it, so the path is stated outright.
"""

from __future__ import annotations

import os
from typing import AbstractSet, Optional

import rpm

from .text import valid
from .texts import _

_PLACES = ("/var/lib/rpm", "/usr/lib/sysimage/rpm")
_DATABASES = ("rpmdb.sqlite", "Packages.db", "Packages")
_FEW = 5


def database_directory(root: str) -> Optional[str]:
    """The directory, as seen from within `root`; None leaves it to rpm's own configuration."""
    if root == "/":
        return None
    for place in _PLACES:
        if any(os.path.exists(os.path.join(root + place, name)) for name in _DATABASES):
            return place
    for place in _PLACES:
        if os.path.isdir(root + place):
            return place
    return None


def point_rpm_at(root: str) -> None:
    """Makes rpm, libdnf and libsolv use the root's database.

    Needed again whenever rpm's configuration may have been read anew: that forgets the macro. libdnf
    does so when it first looks for the machine's architecture.
    """
    directory = database_directory(root)
    if directory is not None and rpm.expandMacro("%_dbpath") != directory:
        rpm.addMacro("_dbpath", directory)


def damage(root: str) -> Optional[str]:
    """What is wrong with a database that lists no packages, or None for one that may be empty.

    rpm takes an empty file for a new database and a damaged one for one without packages.
    """
    directory = database_directory(root)
    if directory is None:
        return None
    for name in _DATABASES:
        path = os.path.join(root + directory, name)
        if os.path.exists(path) and os.path.getsize(path) == 0 and not os.path.exists(path + "-wal"):
            return _("{path} is empty").format(path=path)
    return None


def unlisted(root: str, names: AbstractSet[str]) -> Optional[str]:
    """What is wrong with a database whose index tells names that are not among these; None if nothing.

    Where rpm meets a damaged page it prints a line and ends the list of packages there, as if it were
    complete.
    """
    transaction = rpm.TransactionSet(root)
    try:
        indexed = {valid(name) for name in transaction.dbIndex(rpm.RPMTAG_NAME)}
        unknown = indexed - names - {"gpg-pubkey"}
        if not unknown:
            return None
        # What somebody else has just installed is listed by now.
        transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
        missing = sorted(unknown - {valid(header["name"]) for header in transaction.dbMatch()})
    finally:
        transaction.closeDB()
    if not missing:
        return None
    few = ", ".join(missing[:_FEW]) + (", ..." if len(missing) > _FEW else "")
    return _("packages are installed that it no longer lists ({packages}). It is damaged.").format(packages=few)
