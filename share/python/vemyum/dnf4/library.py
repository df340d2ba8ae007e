# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf 4 as a library of `backend`."""

from __future__ import annotations

import contextlib
from typing import Any, ContextManager, List, Optional, Sequence

import dnf.const
import dnf.lock

from ..apply.messages import Request
from ..sections import RepositorySection
from ..transactions import Records
from . import history, logfiles
from .clean import clean as clean
from .configuration import Settings
from .logfiles import tell_end as tell_end
from .system import System
from .transaction import Transaction

NAME = "dnf4"
VERSION: str = dnf.const.VERSION
NEEDED_LATER = (
    "dnf.crypto",
    "dnf.db.group",
    "dnf.db.history",
    "dnf.drpm",
    "dnf.module.module_base",
    "dnf.persistor",
    "dnf.rpm.miscutils",
    "dnf.rpm.transaction",
    "dnf.yum.misc",
    "dnf.yum.rpmtrans",
    "libdnf.transaction",
)
REBOOT_LISTS = ("/etc/dnf/plugins/needs-restarting.d",)

_BUILDERS = {
    name: getattr(dnf.lock, name) for name in ("build_metadata_lock", "build_download_lock", "build_rpmdb_lock")
}
"""dnf's own, by their names."""


def read_settings() -> Settings:
    return Settings()


def open_system(settings: Settings, sections: Optional[Sequence[RepositorySection]] = None) -> System:
    return System(settings, sections)


def open_transaction(settings: Settings, request: Request) -> Transaction:
    return Transaction(settings, request)


def usable_history(settings: Settings) -> ContextManager[None]:
    return history.usable_history(settings.conf)


def records(settings: Settings) -> Records:
    return history.records(settings)


def open_log_files(settings: Settings) -> None:
    logfiles.open_log_files(settings.conf)


def tell_command(settings: Settings, command: str) -> None:
    logfiles.tell_command(settings.conf, command)


def lock_files(settings: Settings) -> List[str]:
    conf = settings.conf
    directories = {"build_rpmdb_lock": conf.persistdir}
    return [str(build(directories.get(name, conf.cachedir), True).target) for name, build in _BUILDERS.items()]


def hold(settings: Settings) -> None:
    """A second lock object of the same process would succeed and remove the pid file when it is left."""
    for name in _BUILDERS:
        setattr(dnf.lock, name, _no_lock)


take_over = hold


def let_go() -> None:
    for name, builder in _BUILDERS.items():
        setattr(dnf.lock, name, builder)


def _no_lock(*_: Any) -> ContextManager[None]:
    return contextlib.nullcontext()
