# SPDX-License-Identifier: GPL-2.0-or-later
"""Room on the disks."""

from __future__ import annotations

import os
from typing import List

from .root import as_configured
from .texts import _

_SCARCE = 1 << 20
"""So few free bytes are worth a word when something went wrong."""


def scarce_space(directory: str, wanted: int = _SCARCE) -> List[str]:
    """A line about a disk with less room than that, for behind a message. On a full one dnf stumbles over its own
    truncated files, and calls them malformed, or others than announced."""
    try:
        space = os.statvfs(directory)
    except OSError:
        return []
    free = space.f_bavail * space.f_frsize
    if free >= max(wanted, _SCARCE):
        return []
    return [
        _("Only {size} KiB are free in {directory}.").format(size=free // 1024, directory=as_configured(directory))
    ]
