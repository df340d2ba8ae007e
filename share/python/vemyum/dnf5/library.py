# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf 5 as a library of `backend`."""

from __future__ import annotations

import libdnf5.conf

from ..apply.messages import Request
from .clean import clean as clean
from .history import records as records
from .history import usable_history as usable_history
from .lock import hold as hold
from .lock import let_go as let_go
from .lock import lock_files as lock_files
from .lock import take_over as take_over
from .logfiles import open_log_files as open_log_files
from .logfiles import tell_command as tell_command
from .logfiles import tell_end as tell_end
from .settings import Settings
from .settings import read_settings as read_settings
from .system import open_system as open_system
from .transaction import Transaction

_version = libdnf5.conf.get_library_version()

NAME = "dnf5"
VERSION = f"{_version.prime}.{_version.major}.{_version.minor}"
NEEDED_LATER = (
    "libdnf5.advisory",
    "libdnf5.common",
    "libdnf5.comps",
    "libdnf5.exception",
    "libdnf5.logger",
    "libdnf5.module",
    "libdnf5.transaction",
)
REBOOT_LISTS = ("/etc/dnf/suggest-reboot.d", "/usr/share/dnf5/suggest-reboot.d")


def open_transaction(settings: Settings, request: Request) -> Transaction:
    return Transaction(settings, request)
