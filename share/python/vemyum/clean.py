# SPDX-License-Identifier: GPL-2.0-or-later
"""Emptying the caches."""

from __future__ import annotations

import glob
import os
import shutil
from typing import List, Optional, Tuple

import dnf.repo

from . import host
from .errors import YumBaseError, reported_as
from .texts import _, ngettext

_UNFINISHED = "*/tmpdir.*"
"""Where the metadata of a repository are put while they are fetched. A download that was killed leaves it."""
_UNFINISHED_FILES = r"^[^/]+/tmpdir\.[^/]+/"


def clean(cache_directory: Optional[str], *kinds: str) -> Tuple[int, List[str]]:
    """Removes the cache's files of these kinds of `dnf.repo.CACHE_FILES`.

    Gives 0 and a sentence, or 1 and the reason, which is in the log as well. Raises nothing of dnf's.
    Files of repositories that lie on this machine are no cache, and stay.
    """
    if cache_directory is None:
        return (1, [_("The configuration cannot be read")])
    # Brings dnf's whole command line with it, which a start of the program need not wait for.
    from dnf.cli.commands import clean as dnf_clean

    patterns = [dnf.repo.CACHE_FILES[kind] for kind in kinds]
    if "metadata" in kinds:
        patterns.append(_UNFINISHED_FILES)
    try:
        with reported_as(YumBaseError, _("Unable to clean")):
            files = list(dnf_clean._filter(list(dnf_clean._tree(cache_directory)), patterns))
            count = dnf_clean._clean(cache_directory, files)
            if "metadata" in kinds:
                for folder in glob.glob(os.path.join(glob.escape(cache_directory), _UNFINISHED)):
                    shutil.rmtree(folder)
    except YumBaseError as error:
        host.errorlog(host.LEVEL_ERROR, str(error))
        return (1, [str(error)])
    text = ngettext("{count} file removed", "{count} files removed", count).format(count=count)
    host.log(host.LEVEL_NOTICE, text)
    return (0, [text])
