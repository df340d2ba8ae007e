# SPDX-License-Identifier: GPL-2.0-or-later
"""A user without any rights, whom a test that root runs can act as."""

from __future__ import annotations

import atexit
import os
import shutil
import tempfile
from pathlib import Path

NOBODY = 65534
"""The account, and its group, that every system has."""


def other_users_exist() -> bool:
    """Whether this process may become another user: not in a user namespace that has only one."""
    try:
        return os.geteuid() == 0 and Path("/proc/self/uid_map").read_text().split()[2] != "1"
    except OSError:
        return False


def use_reachable_folder() -> None:
    """Lets pytest make its folders in one that is this run's alone, and that other users may enter.

    The usual one is shared by all runs of a user, and each closes it to others when it starts, whatever tests of
    another run have other users do there.
    """
    folder = tempfile.mkdtemp(prefix="vem-tests-")
    os.chmod(folder, 0o755)
    os.environ["PYTEST_DEBUG_TEMPROOT"] = folder
    # Behind what pytest itself does there when it ends.
    atexit.register(shutil.rmtree, folder, ignore_errors=True)
