# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history database."""

from __future__ import annotations

import contextlib
import os
import re
from typing import Iterator

import libdnf5.base
import libdnf5.conf

from ..errors import YumBaseError
from ..history import Layout, fault, remove_useless, told
from ..root import below
from .failures import FAILURES, words
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


@contextlib.contextmanager
def usable_history(settings: Settings) -> Iterator[None]:
    """Lets a block use the history, which the library makes if there is none. YumBaseError where it cannot be used;
    also when that fails in the block. One that was made for nothing, since there was no room for more, is removed
    again."""
    path = _path(settings)
    existed = os.path.exists(path)
    made_for_nothing = not existed
    try:
        cause = fault(path) if existed else None
        if cause is not None:
            raise YumBaseError(told(path, cause, True))
        try:
            yield
            made_for_nothing = False
        except (YumBaseError, *FAILURES) as error:
            # The library doesn't name the file.
            text = _STATEMENT.sub(r"\1", words(error))
            cause = fault(path) if os.path.exists(path) else None
            about_history = _ABOUT_HISTORY.search(text) is not None
            if cause is None and not about_history:
                raise
            lines = [told(path, cause or text, False), *([] if about_history else [text])]
            raise YumBaseError("\n".join(lines)) from error
    finally:
        if made_for_nothing:
            remove_useless(path)


def _path(settings: Settings) -> str:
    """The library's failures."""
    library = libdnf5.base.Base()
    settings.load_into(library)
    return history_path(settings, library.get_config())
