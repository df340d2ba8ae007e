# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history database."""

from __future__ import annotations

import os
import re
from typing import ContextManager, List, Optional

import libdnf5.base
import libdnf5.conf

from ..history import Layout, fault, told, usable
from ..root import below
from .failures import words
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
)

_ABOUT_HISTORY = re.compile(r"\bSQL")
_STATEMENT = re.compile(r'(\bSQL\b[^"]*?): ".*"', re.S)
"""What the library quotes of its own, a hundred lines at times."""


def history_path(settings: Settings, config: libdnf5.conf.ConfigMain) -> str:
    """The managed system's, whoever looks at it."""
    directory = config.transaction_history_dir or config.system_state_dir
    return os.path.join(below(settings.root, directory), "transaction_history.sqlite")


def usable_history(settings: Settings) -> ContextManager[None]:
    """See `history.usable`. The library makes one itself, and doesn't name the file when that is at fault. The
    library's failures."""
    path = _path(settings)

    def told_by(error: Exception) -> Optional[List[str]]:
        text = _STATEMENT.sub(r"\1", words(error))
        cause = fault(path) if os.path.exists(path) else None
        about_history = _ABOUT_HISTORY.search(text) is not None
        if cause is None and not about_history:
            return None
        return [told(path, cause or text, False), *([] if about_history else [text])]

    return usable(path, None, told_by)


def _path(settings: Settings) -> str:
    """The library's failures."""
    library = libdnf5.base.Base()
    settings.load_into(library)
    return history_path(settings, library.get_config())
