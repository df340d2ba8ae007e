# SPDX-License-Identifier: GPL-2.0-or-later
"""The locks: pid files that dnf 4 has for the same system, and the library's own.

dnf 4 knows nothing of the library's lock, and may be there as well; so its files, too, keep it off, and two copies of
this program off each other, whichever library each uses.

The library's own is a POSIX lock of a file. It is only shared: `dnf5 list` goes on beside it, `dnf5 install` waits. And
so the process that works takes it, too, while the program that started it has it still; neither has to hand it over,
and whichever lives longer keeps it. Such a lock ends as soon as its process closes any descriptor of the file, which
nobody else opens there.
"""

from __future__ import annotations

import contextlib
import fcntl
import os
import struct
from typing import List, Optional

import libdnf5.conf

from .. import rights
from ..configuration import main_file
from ..lock import HeldError
from ..root import below
from .failures import FAILURES
from .settings import Settings

_LIBRARYS = "system-repo.lock"
_LIBRARYS_FOLDER = "/var/lib/dnf"

_CACHE_OF_DNF_4 = "/var/cache/dnf"
_PERSISTENT_OF_DNF_4 = "/var/lib/dnf"

_FLOCK = "hhqqi4x"
"""C's struct flock, as fcntl takes it."""

_held: Optional[int] = None
"""The descriptor with the library's lock."""


def lock_files(settings: Settings) -> List[str]:
    """dnf 4's, where that would have them."""
    cache, persistent = (_place_of_dnf_4(settings, folder) for folder in _folders_of_dnf_4(settings))
    return [
        os.path.join(cache, "metadata_lock.pid"),
        os.path.join(cache, "download_lock.pid"),
        os.path.join(persistent, "rpmdb_lock.pid"),
    ]


def _folders_of_dnf_4(settings: Settings) -> List[str]:
    """Its cachedir and its persistdir."""
    if rights.keeps_own_directory(settings.root):
        return [settings.cache_directory, settings.persistent_directory]
    main = main_file(settings.root)
    parser = libdnf5.conf.ConfigParser()
    with contextlib.suppress(*FAILURES):
        parser.read(settings.main_path)
    folders = []
    for option, usual in (
        ("cachedir", main.cache_directory or _CACHE_OF_DNF_4),
        ("persistdir", _PERSISTENT_OF_DNF_4),
    ):
        stated = parser.get_value("main", option) if parser.has_option("main", option) else usual
        folders.append(below(settings.root, _substituted(stated, settings)))
    return folders


def _substituted(text: str, settings: Settings) -> str:
    for name, value in sorted(settings.variables.items(), key=lambda pair: -len(pair[0])):
        text = text.replace(f"${{{name}}}", value).replace(f"${name}", value)
    return text


def _place_of_dnf_4(settings: Settings, folder: str) -> str:
    """Anybody but the administrator has the locks elsewhere, a folder for each that they are about."""
    if rights.is_administrator():
        return folder
    import hashlib  # only here: with it come 2 MiB that few need

    own = rights.own_directory(settings.root)
    return os.path.join(own, "locks", hashlib.sha1(folder.encode("utf-8", "surrogateescape")).hexdigest())


def hold(settings: Settings) -> None:
    """Takes the library's lock. HeldError, OSError. Who only looks keeps nobody off."""
    global _held
    if _held is not None or rights.keeps_own_directory(settings.root):
        return
    folder = below(settings.root, _LIBRARYS_FOLDER)
    os.makedirs(folder, exist_ok=True)
    path = os.path.join(folder, _LIBRARYS)
    file = os.open(path, os.O_RDWR | os.O_CREAT | os.O_CLOEXEC, 0o644)
    try:
        fcntl.lockf(file, fcntl.LOCK_SH | fcntl.LOCK_NB)
    except OSError as error:
        holder = _holder(file)
        os.close(file)
        if isinstance(error, (BlockingIOError, PermissionError)):
            raise HeldError(holder) from error
        error.filename = path
        raise
    _held = file


def _holder(file: int) -> int:
    """The process that keeps this one off; 0 for one that cannot be seen from here, or is gone by now."""
    asked = struct.pack(_FLOCK, fcntl.F_RDLCK, os.SEEK_SET, 0, 0, 0)
    kind, _whence, _start, _length, pid = struct.unpack(_FLOCK, fcntl.fcntl(file, fcntl.F_GETLK, asked))
    return pid if kind != fcntl.F_UNLCK and pid > 0 else 0


take_over = hold
"""In the process that works, beside the program that has it."""


def let_go() -> None:
    global _held
    if _held is not None:
        os.close(_held)
        _held = None
