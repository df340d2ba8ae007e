# SPDX-License-Identifier: GPL-2.0-or-later
"""Room on the disks."""

from __future__ import annotations

import os
from typing import List

from .root import as_configured
from .texts import _

_SCARCE = 1 << 20
"""So few free bytes are worth a word when something went wrong."""


def scarce_space(directory: str) -> List[str]:
    """A line about a full disk, for behind a message: many a program that met one calls it something else."""
    try:
        space = os.statvfs(directory)
    except OSError:
        return []
    free = space.f_bavail * space.f_frsize
    if free >= _SCARCE:
        return []
    return [
        _("Only {size} KiB are free in {directory}.").format(size=free // 1024, directory=as_configured(directory))
    ]
