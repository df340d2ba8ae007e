# SPDX-License-Identifier: GPL-2.0-or-later
"""Emptying the library's cache: a folder for each repository and address, named by both."""

from __future__ import annotations

import contextlib
import os
import re
from typing import Dict, Iterable, Iterator, Tuple

from .. import stop

_OF_A_REPOSITORY = re.compile(r".+-[0-9a-f]{16}")

_KINDS: Dict[str, Tuple[str, ...]] = {
    "packages": (r"packages",),
    # What a download that was killed leaves is among it.
    "metadata": (r"repodata", r"metalink\.xml", r"mirrorlist", r"countme", r"tmpdir\..*", r"attributes"),
    "dbcache": (r"solv",),
}
"""By kind, the names of what stands in a repository's folder."""


def clean(cache_directory: str, kinds: Iterable[str]) -> int:
    """How many files it removed. OSError. Files of repositories that lie on this machine are no cache, and stay."""
    names = re.compile("|".join(name for kind in kinds for name in _KINDS[kind]))
    count = 0
    for folder in _folders(cache_directory):
        for entry in list(os.scandir(folder)):
            if names.fullmatch(entry.name):
                count += _remove(entry.path)
        with contextlib.suppress(OSError):
            # Only of a folder in which nothing is left.
            os.rmdir(folder)
    return count


def _folders(cache_directory: str) -> Iterator[str]:
    with contextlib.suppress(FileNotFoundError):
        for entry in sorted(os.scandir(cache_directory), key=lambda entry: entry.name):
            if _OF_A_REPOSITORY.fullmatch(entry.name) and entry.is_dir(follow_symlinks=False):
                yield entry.path


def _remove(path: str) -> int:
    stop.check()
    if not os.path.isdir(path) or os.path.islink(path):
        os.unlink(path)
        return 1
    # A failure names the file; shutil's would name the folder.
    count = sum(_remove(entry.path) for entry in list(os.scandir(path)))
    os.rmdir(path)
    return count
