# SPDX-License-Identifier: GPL-2.0-or-later
"""The root that is managed, and where its paths lead.

VEMROOT names the root; unset, it is "/". A symbolic link of the managed system is that system's own: "/srv" is
its /srv. Below a root of its own the system calls would follow an absolute link, or one with too many "..", out
of the root. What is to be opened, by whomever, is therefore asked for here first.
"""

from __future__ import annotations

import contextlib
import errno
import fnmatch
import os
import re
from typing import List, Tuple

_MOST_LINKS = 40
"""As many as the kernel follows in one path."""


def managed_root() -> str:
    """The root that is managed: an absolute path without a slash at its end, or "/"."""
    return os.path.abspath(os.environ.get("VEMROOT") or "/")


def below(root: str, path: str) -> str:
    """`path` of the managed system as a path of the process, whether it is there or not.

    The two joined, as long as that leads to the same place as in the managed system; else the place itself, a path
    without links. OSError for links that go round in circles.
    """
    if root == "/":
        return path
    joined = f"{root}/{path.lstrip('/')}"
    place = root + _followed(root, path)
    return joined if os.path.realpath(joined) == os.path.realpath(place) else place


def within(root: str, path: str) -> str:
    """The other way round: a path that `below` gave as one of the managed system."""
    return path if root == "/" else path[len(root) :] or "/"


def as_configured(text: str) -> str:
    """`text` with each path below the managed root as the configuration states it, which knows no such root."""
    root = managed_root()
    return text if root == "/" else re.sub(rf"(?<![\w./-]){re.escape(root)}(?=/)", "", text)


def files(root: str, directory: str, pattern: str) -> List[Tuple[str, str]]:
    """The regular files below a directory of the managed system whose names match, as by a shell, in order.

    Each as a path of the managed system, by its own name, and as the path of the process that `below` gives.
    """
    found = [directory]
    for part in pattern.split("/"):
        found = [f"{folder}/{name}" for folder in found for name in _names(root, folder, part)]
    pairs = []
    for path in found:
        with contextlib.suppress(OSError):
            pairs.append((path, below(root, path)))
    return [(path, place) for path, place in pairs if os.path.isfile(place)]


def _names(root: str, directory: str, pattern: str) -> List[str]:
    try:
        names = os.listdir(below(root, directory))
    except OSError:
        return []
    return sorted(
        name for name in names if fnmatch.fnmatchcase(name, pattern) and not name.startswith(".")
    )


def _followed(root: str, path: str) -> str:
    """The path of the managed system without links and dots; what isn't there is kept as it is written."""
    done: List[str] = []
    ahead = path.split("/")[::-1]
    links = 0
    while ahead:
        name = ahead.pop()
        if name == "..":
            del done[-1:]
        elif name not in ("", "."):
            done.append(name)
            try:
                target = os.readlink("/".join([root, *done]))
            except OSError:
                # No link, or nothing at all.
                continue
            links += 1
            if links > _MOST_LINKS:
                raise OSError(errno.ELOOP, os.strerror(errno.ELOOP), f"{root}/{path.lstrip('/')}")
            done = [] if target.startswith("/") else done[:-1]
            ahead += target.split("/")[::-1]
    return "".join(f"/{name}" for name in done)
