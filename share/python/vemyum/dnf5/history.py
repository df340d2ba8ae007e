# SPDX-License-Identifier: GPL-2.0-or-later
"""The library's history database."""

from __future__ import annotations

import os
import re
from typing import ContextManager, List

import libdnf5.base
import libdnf5.conf

from ..apply.messages import DOWNGRADE, INSTALL, REINSTALL, REMOVE, REPLACED, UPGRADE
from ..database import point_rpm_at
from ..history import fault, usable
from ..root import below
from ..transactions import DONE, FAILED, OPEN, REASON, Layout, Records
from .settings import Settings

_ACTIONS = "trans_item_action on trans_item_action.id = action_id"

LAYOUT = Layout(
    heads="select trans.id, dt_begin, dt_end, user_id, description, comment, name from trans "
    "join trans_state on trans_state.id = state_id",
    packages="select trans_id, pkg_name.name as package, epoch, version, release, arch.name as architecture, "
    "trans_item_action.name, trans_item_reason.name, repoid, trans_item_state.name "
    "from trans_item join rpm using (item_id) join pkg_name on pkg_name.id = name_id join arch on arch.id = arch_id "
    f"join {_ACTIONS} join trans_item_reason on trans_item_reason.id = reason_id "
    "join trans_item_state on trans_item_state.id = trans_item.state_id left join repo on repo.id = repo_id",
    counts="select trans_id, name, count from (select trans_id, action_id, count(*) as count from trans_item "
    f"group by trans_id, action_id) join {_ACTIONS}",
    groups="select trans_id, groupid, comps_group.name, trans_item_action.name, 0 from trans_item "
    f"join comps_group using (item_id) join {_ACTIONS} union all "
    "select trans_id, environmentid, comps_environment.name, trans_item_action.name, 1 from trans_item "
    f"join comps_environment using (item_id) join {_ACTIONS}",
    output="",
    known="select item_id, pkg_name.name, epoch, version, release, arch.name from rpm "
    "join pkg_name on pkg_name.id = name_id join arch on arch.id = arch_id",
    results={"Started": OPEN, "Ok": DONE, "Error": FAILED},
    actions={
        "Install": INSTALL,
        "Upgrade": UPGRADE,
        "Downgrade": DOWNGRADE,
        "Reinstall": REINSTALL,
        "Remove": REMOVE,
        "Replaced": REPLACED,
        "Reason Change": REASON,
    },
    reasons={
        "Dependency": "dependency",
        "User": "user",
        "Clean": "clean",
        "Weak Dependency": "weak",
        "Group": "group",
        "External User": "external",
    },
    states={"Ok": DONE, "Error": FAILED},
)

_STATEMENT = re.compile(r'(\bSQL\b[^"\n]*): ".*?"(?=$|: )', re.S | re.M)
"""What the library quotes of its own, a hundred lines at times. It doesn't name the file."""


def history_path(settings: Settings, config: libdnf5.conf.ConfigMain) -> str:
    """The managed system's, whoever looks at it."""
    directory = config.transaction_history_dir or config.system_state_dir
    return os.path.join(below(settings.root, directory), "transaction_history.sqlite")


def records(settings: Settings) -> Records:
    """See `backend.Library`."""
    library = _read(settings)
    # What it gives ends with it.
    return Records(history_path(settings, library.get_config()), LAYOUT)


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
