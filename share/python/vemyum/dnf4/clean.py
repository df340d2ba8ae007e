# SPDX-License-Identifier: GPL-2.0-or-later
"""Emptying dnf's cache."""

from __future__ import annotations

import glob
import os
import shutil
from typing import Collection

import dnf.repo

from .. import stop

_UNFINISHED = "*/tmpdir.*"
"""Where the metadata of a repository are put while they are fetched. A download that was killed leaves it."""
_UNFINISHED_FILES = r"^[^/]+/tmpdir\.[^/]+/"


def clean(cache_directory: str, kinds: Collection[str]) -> int:
    """Removes the cache's files of these kinds of `dnf.repo.CACHE_FILES`; how many those were. Raises what dnf raises,
    and OSError."""
    # Brings dnf's whole command line with it, which a start of the program need not wait for.
    from dnf.cli.commands import clean as dnf_clean

    patterns = [dnf.repo.CACHE_FILES[kind] for kind in kinds]
    if "metadata" in kinds:
        patterns.append(_UNFINISHED_FILES)
    files = list(dnf_clean._filter(list(dnf_clean._tree(cache_directory)), patterns))
    count = 0
    for file in files:
        stop.check()
        count += int(dnf_clean._clean(cache_directory, [file]))
    if "metadata" in kinds:
        for folder in glob.glob(os.path.join(glob.escape(cache_directory), _UNFINISHED)):
            shutil.rmtree(folder)
    return count
