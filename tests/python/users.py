# SPDX-License-Identifier: GPL-2.0-or-later
"""A user without any rights, whom a test that root runs can act as."""

from __future__ import annotations

import os
from pathlib import Path

NOBODY = 65534
"""The account, and its group, that every system has."""


def other_users_exist() -> bool:
    """Whether this process may become another user: not in a user namespace that has only one."""
    try:
        return os.geteuid() == 0 and Path("/proc/self/uid_map").read_text().split()[2] != "1"
    except OSError:
        return False
