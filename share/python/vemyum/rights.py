# SPDX-License-Identifier: GPL-2.0-or-later
"""Whether the system can be changed and by whom, and where the program keeps things for who may only look.

The library locks, caches and logs in directories of the system. For anybody but the administrator they all lie in a
folder of the user's own, one for each root that is looked at, and nothing of the system is touched.
"""

from __future__ import annotations

import contextlib
import errno
import os
from typing import Optional

from .errors import YumBaseError, os_error_text
from .root import below
from .texts import _

LOOK_ONLY = _("Started without administrator rights: packages can be looked at, not changed.")
NO_CHANGE = _(
    "Only the administrator can install, update or remove packages: start the program with administrator rights."
)
NO_CLEANING = _("Only the administrator can clean the caches: start the program with administrator rights.")
IMAGE_BASED = _("This system is image-based: its packages come with its image, and can only be looked at here.")
READ_ONLY = _("{directory} is read-only: packages can be looked at, not changed.")

_BOOTED_IMAGE = "/run/ostree-booted"
"""There on a running system that was made from an image, by bootc too, even while its /usr is unlocked for a try."""

OWN_FOLDERS = {"cachedir": "cache", "persistdir": "persist", "logdir": "log"}
"""What lies in the user's folder, by the configuration's names for these directories."""


def is_administrator() -> bool:
    """rpm lets nobody else change a system, not even one whose files belong to the user."""
    return os.geteuid() == 0


def require_administrator(refusal: str) -> None:
    """YumBaseError with this sentence for anybody else."""
    if not is_administrator():
        raise YumBaseError(refusal)


def unchangeable(root: str) -> Optional[str]:
    """Why not even the administrator can change packages below this root, in one sentence; None if that is not so.

    Asked anew each time: a file system can be mounted for writing meanwhile.
    """
    if os.path.realpath(root) == "/" and os.path.exists(_BOOTED_IMAGE):
        return IMAGE_BASED
    return READ_ONLY.format(directory=os.path.join(root, "usr")) if _is_read_only(root, "/usr") else None


def require_changeable(root: str) -> None:
    """YumBaseError with the reason where packages cannot be changed, by nobody or not by this user."""
    reason = unchangeable(root)
    if reason is not None:
        raise YumBaseError(reason)
    require_administrator(NO_CHANGE)


def keeps_own_directory(root: str) -> bool:
    """Whether caches and locks lie in a folder of the user's own: the system's are closed, or cannot be written."""
    return not is_administrator() or _is_read_only(root, "/var")


def _is_read_only(root: str, directory: str) -> bool:
    try:
        return bool(os.statvfs(below(root, directory)).f_flag & os.ST_RDONLY)
    except OSError:
        # What is not there yet is no obstacle.
        return False


def own_directory(root: str) -> str:
    """The user's folder for this root, made if it is missing. YumBaseError when it cannot be used."""
    caches = os.environ.get("XDG_CACHE_HOME", "")
    if not os.path.isabs(caches):
        caches = os.path.join(os.path.expanduser("~"), ".cache")
    import hashlib  # only here: with it come 2 MiB that few need

    name = hashlib.sha256(os.fsencode(os.path.realpath(root))).hexdigest()[:16]
    own = os.path.join(caches, "vem", name)
    try:
        for kind in OWN_FOLDERS.values():
            folder = os.path.join(own, kind)
            _make_private(folder)
            if not os.access(folder, os.W_OK | os.X_OK):
                raise PermissionError(errno.EACCES, os.strerror(errno.EACCES), folder)
    except OSError as error:
        raise YumBaseError(
            _("Without administrator rights the program needs a cache of the user's own, which cannot be used:")
            + f"\n{os_error_text(error)}"
        ) from error
    return own


def _make_private(folder: str) -> None:
    """Makes the folder, and those above it, for this user's eyes only where they are missing. OSError."""
    if not os.path.isabs(folder):
        raise FileNotFoundError(errno.ENOENT, _("The user has no home directory"), folder)
    if not os.path.isdir(folder):
        _make_private(os.path.dirname(folder))
        # Another copy of the program may be as far.
        with contextlib.suppress(FileExistsError):
            os.mkdir(folder, 0o700)
