# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history database."""

from __future__ import annotations

import os
import re
from typing import ContextManager, List

import libdnf5.base
import libdnf5.conf

from ..database import point_rpm_at
from ..history import Layout, fault, usable
from ..root import below
from .settings import Settings

LAYOUT = Layout(
    "select trans.id, dt_begin, description, name from trans join trans_state on trans_state.id = state_id "
    "order by trans.id desc limit 1",
    "select pkg_name.name, epoch, version, release, arch.name, trans_item_action.name from trans_item "
    "join rpm using (item_id) join pkg_name on pkg_name.id = name_id join arch on arch.id = arch_id "
    "join trans_item_action on trans_item_action.id = action_id where trans_id = ?",
    "Started",
    ("Install", "Upgrade", "Downgrade", "Reinstall"),
    ("Remove", "Replaced"),
    "select trans.id, dt_begin, user_id, description, trans_item_action.name, epoch, version, release from trans_item "
    "join rpm using (item_id) join pkg_name on pkg_name.id = name_id join arch on arch.id = arch_id "
    "join trans_item_action on trans_item_action.id = action_id join trans on trans.id = trans_id "
    "where pkg_name.name = ? and arch.name = ? order by trans.id desc, trans_item.id desc",
    "Install",
)

_STATEMENT = re.compile(r'(\bSQL\b[^"\n]*): ".*?"(?=$|: )', re.S | re.M)
"""What the library quotes of its own, a hundred lines at times. It doesn't name the file."""


def history_path(settings: Settings, config: libdnf5.conf.ConfigMain) -> str:
    """The managed system's, whoever looks at it."""
    directory = config.transaction_history_dir or config.system_state_dir
    return os.path.join(below(settings.root, directory), "transaction_history.sqlite")


def usable_history(settings: Settings) -> ContextManager[None]:
    """See `backend.Library`."""
    library = _read(settings)
    # What it gives ends with it.
    path = history_path(settings, library.get_config())

    def make() -> None:
        library = _read(settings)
        settings.put_into(library)
        # They have nothing to do with it.
        library.get_config().plugins = False
        point_rpm_at(settings.root)
        library.setup()
        library.get_transaction_history().list_all_transactions()

    def told_of(text: str) -> List[str]:
        lines = _STATEMENT.sub(r"\1", text).splitlines()
        about = [line for line in lines if "SQL" in line.split()]
        cause = "; ".join(about) or (fault(path) if os.path.exists(path) else None)
        return [cause, *(line for line in lines if line not in about)] if cause else []

    return usable(path, make, told_of)


def _read(settings: Settings) -> libdnf5.base.Base:
    """With the configuration alone. The library's failures."""
    library = libdnf5.base.Base()
    settings.load_into(library)
    return library
