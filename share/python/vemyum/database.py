# SPDX-License-Identifier: GPL-2.0-or-later
"""Where the rpm database of a managed root lies.

rpm is asked. For the running system its configuration says it, as it does for the command line. A system
below a root of its own has a configuration of its own, which rpm would not read by itself.
"""

from __future__ import annotations

import contextlib
import fcntl
import functools
import os
import subprocess
from typing import AbstractSet, Dict, Optional, Sequence, Tuple

import rpm

from .backend import PkgTup
from .errors import YumBaseError, os_error_text
from .root import as_configured, below, files, within
from .text import valid
from .texts import _

_MACRO_FILES = (
    ("/usr/lib/rpm", "macros"),
    ("/usr/lib/rpm/macros.d", "macros.*"),
    # The distribution's own, in a folder of its name.
    ("/usr/lib/rpm", "*/macros"),
    ("/etc/rpm", "macros.*"),
    ("/etc/rpm", "macros"),
)
"""Where rpm looks for its macros, in its order (see `rpm --showrc`). Left out are a user's own, and those of the
processor, which the database doesn't depend on."""

_BUILT_IN = "/var/lib/rpm"
"""What rpm's own sources say where nobody says anything else."""

_ADMINISTRATORS_HOME = "/root"

_DATABASES = ("rpmdb.sqlite", "Packages.db", "Packages")
"""The main files of rpm's kinds of databases. Whatever kind is configured, rpm opens the one that is there."""

_FEW = 5


def database_directory(root: str) -> str:
    """The directory, as seen from within `root`, from without too. YumBaseError when rpm cannot be asked, OSError."""
    if root == "/":
        return str(rpm.expandMacro("%{_dbpath}"))
    macros = _macro_files(root)
    stated = _stated_below(root, macros) if macros else ""
    return within(root, below(root, stated or _usual_directory(os.path.expanduser("~"))))


def unreadable(root: str, error: object, said: Sequence[str]) -> YumBaseError:
    """That the database cannot be read: a library's words, and what rpm has said."""
    told = _("The rpm database of {root} cannot be read: {error}").format(root=root, error=error)
    return YumBaseError("\n".join([told, *said]))


def _macro_files(root: str) -> Tuple[Tuple[str, int], ...]:
    """The root's macro files, with what tells whether one has changed."""
    found = []
    for directory, pattern in _MACRO_FILES:
        for _path, place in files(root, directory, pattern):
            # It may be gone by now.
            with contextlib.suppress(OSError):
                found.append((place, os.stat(place).st_mtime_ns))
    return tuple(found)


@functools.lru_cache(maxsize=None)
def _stated_below(root: str, macros: Tuple[Tuple[str, int], ...]) -> str:
    """What the root's own macros say, empty for nothing.

    Read by a process of its own, so that this one's macros stay as they are. It looks from within the root,
    whose path rpm might take for several or for a pattern. A place in a home is that of the root's administrator.
    """
    home = {"HOME": _ADMINISTRATORS_HOME}
    names = [within(root, place).lstrip("/") for place, _time in macros]
    return _asked(["--macros=" + ":".join(names)], root, home)


@functools.lru_cache(maxsize=None)
def _usual_directory(home: str) -> str:
    """What the command line would take for a root that says nothing. A place in the caller's home is none there."""
    stated = _asked([], "/", {})
    in_home = home != "/" and stated.startswith(home + "/")
    return stated if stated and not in_home else _BUILT_IN


def _asked(options: Sequence[str], directory: str, variables: Dict[str, str]) -> str:
    """What %_dbpath is for rpm in a process of its own, empty if it is not defined."""
    try:
        done = subprocess.run(
            ["rpm", *options, "--eval", "%{?_dbpath}"],
            cwd=directory,
            env={**os.environ, **variables},
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
        )
    except OSError as error:
        fault = os_error_text(error)
    else:
        if done.returncode == 0:
            return os.fsdecode(done.stdout).rstrip("\n")
        fault = valid(done.stderr).strip()
    raise YumBaseError(_("rpm cannot be asked where its database is: {fault}").format(fault=fault))


def point_rpm_at(root: str) -> None:
    """Makes rpm, libdnf and libsolv use the root's database.

    Needed again whenever rpm's configuration may have been read anew: that forgets the macro. libdnf
    does so when it first looks for the machine's architecture.
    """
    if root == "/":
        return
    directory = database_directory(root)
    if rpm.expandMacro("%{_dbpath}") != directory:
        rpm.addMacro("_dbpath", directory)


def running_kernel(root: str) -> Optional[PkgTup]:
    """The package of the kernel that this machine runs; None below another root, which isn't what it runs."""
    if root != "/":
        return None
    release = os.uname().release
    transaction = rpm.TransactionSet(root)
    try:
        for path in (f"/lib/modules/{release}/vmlinuz", f"/usr/lib/modules/{release}/vmlinuz", f"/boot/vmlinuz-{release}"):
            for header in transaction.dbMatch("basenames", path):
                epoch = str(header["epoch"] or 0)
                return (header["name"], header["arch"], epoch, header["version"], header["release"])
    finally:
        transaction.closeDB()
    return None


def require_sound(root: str, names: AbstractSet[str], count: int, known: int) -> None:
    """Raises YumBaseError when the database lists less than it should: `count` packages of these names, `known` of
    them by what was seen last."""
    fault = unlisted(root, names)
    if count == 0:
        fault = fault or damage(root)
        if fault is None and known > 0:
            fault = _("it lists no packages, though it did before. If that is right, start anew.")
    if fault is not None:
        raise YumBaseError(_("The rpm database of {root} cannot be used: {fault}").format(root=root, fault=fault))


def transaction_is_at_work(root: str) -> bool:
    """Whether a process holds rpm's lock of the database, as each does that changes it, dnf or not."""
    path = os.path.join(below(root, database_directory(root)), ".rpm.lock")
    with contextlib.suppress(FileNotFoundError, PermissionError), open(path, "rb") as file:
        try:
            fcntl.lockf(file, fcntl.LOCK_SH | fcntl.LOCK_NB)
        except (BlockingIOError, PermissionError):
            return True
    return False


def damage(root: str) -> Optional[str]:
    """What is wrong with a database that lists no packages, or None for one that may be empty.

    rpm takes an empty file for a new database and a damaged one for one without packages.
    """
    directory = below(root, database_directory(root))
    for name in _DATABASES:
        path = os.path.join(directory, name)
        if os.path.exists(path) and os.path.getsize(path) == 0 and not os.path.exists(path + "-wal"):
            return _("{path} is empty").format(path=as_configured(path))
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
