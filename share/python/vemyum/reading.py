# SPDX-License-Identifier: GPL-2.0-or-later
"""What is told of a repository that cannot be read."""

from __future__ import annotations

import glob
import logging
import os
import re
from typing import Dict, Iterable

from .messages import LOGGER
from .space import scarce_space
from .texts import _

NEVER_FETCHED = _("Nothing of it has been fetched before")
"""Why a repository cannot be read without the network."""

_UNREADABLE = re.compile(r"\bpars(e|er|ing)\b|no urls in mirrorlist|not found in metalink", re.I)
_DURATION = re.compile(r" after \d+ m(?:illi)?s(?:econds)?\b")


def is_unreadable(text: str) -> bool:
    """Whether a library's words are about an answer that isn't what was asked for."""
    return _UNREADABLE.search(text) is not None


def without_durations(text: str) -> str:
    """A failure's text as it is each time that it happens."""
    return _DURATION.sub("", text)


def drop_damaged(caches: Iterable[str]) -> bool:
    """Removes the files that match these patterns: forms of the metadata that are made for fast reading, where the
    library says that one is damaged. Whether there was anything to remove: it is made anew from the metadata."""
    found = [path for pattern in caches for path in glob.glob(pattern)]
    for path in found:
        os.unlink(path)
    if found:
        logging.getLogger(LOGGER).warning("%s", _("The cache of the metadata was damaged: it is made anew"))
    return bool(found)


def failure_text(id: str, addresses: Iterable[str], text: str, causes: Iterable[str], cache: str) -> str:
    """Names the first address, and each cause once that the library's text doesn't tell."""
    where = next(filter(None, addresses), _("no address"))
    lines = [_("Unable to read repository {id} ({address}):").format(id=id, address=where)]
    said: Dict[str, str] = {}
    for line in (*text.strip().splitlines(), *(cause for cause in causes if cause not in text)):
        # The library tries several times, and tells each time how long that took.
        said.setdefault(without_durations(line), line)
    return "\n".join([*lines, *said.values(), *scarce_space(cache)])
