# SPDX-License-Identifier: GPL-2.0-or-later
"""What a transaction that was cut off has left: told by the library's history and by the rpm database.

rpm puts the new version of a package in before it takes the old one out, and a library closes the entry in its history
behind both. Whoever cuts that off leaves an open entry and packages that are there twice.
"""

from __future__ import annotations

import time
from typing import Any, Dict, List, NamedTuple, Optional, Tuple

from . import host
from .backend import OpenEntry, Row, System
from .database import transaction_is_at_work
from .rights import is_administrator, unchangeable
from .texts import _

_FEW = 10
"""So many lines of a list fit into a box."""


class Unfinished(NamedTuple):
    """`text` tells everything, in lines; it is empty where nothing can be done. `versions` are those that are installed
    of each package that is there more than once, the newest last; `older` are all but the newest, for whoever may
    change packages."""

    text: str
    versions: Dict[str, str]
    older: List[Row]


def unfinished(system: System) -> Optional[Unfinished]:
    """What is to be told of a loaded System; None where every transaction has come to its end."""
    root = system.settings.root
    if transaction_is_at_work(root):
        # It puts everything new in first.
        host.log(host.LEVEL_NOTICE, _("A transaction is at work: what it has not done yet is not told."))
        return None
    doubled = {(rows[0].name, rows[0].arch): rows for rows in system.duplicated()}
    entry = system.open_entry()
    if entry is None and not doubled:
        return None
    lines = _told(entry, system.installed()) if entry is not None else []
    if doubled:
        lines.append(
            _("Installed in more than one version, as a transaction leaves it that is cut off:")
            if entry is None
            else _("Installed in more than one version:")
        )
        lines += _shortened([f"{name}.{arch}: {_versions(found)}" for (name, arch), found in sorted(doubled.items())])
    versions: Dict[str, str] = {}
    for (name, _arch), found in sorted(doubled.items()):
        versions[name] = ", ".join(filter(None, (versions.get(name), _versions(found))))
    changeable = is_administrator() and unchangeable(root) is None
    older = [row for found in doubled.values() for row in found[:-1]] if changeable else []
    if entry is None and not older:
        # There is nothing to be done about it; the rows tell it.
        for line in lines:
            host.log(host.LEVEL_NOTICE, line)
        lines = []
    return Unfinished("\n".join(lines), versions, older)


def _versions(rows: List[Row]) -> str:
    return ", ".join(row.evr for row in rows)


def _told(entry: OpenEntry, installed: List[Row]) -> List[str]:
    lines = [
        _("The last transaction was cut off before its end: number {number}, of {time}, begun by {command}.").format(
            number=entry.number,
            time=_shown_time(entry.begun),
            command=entry.command.strip() or _("an unknown program"),
        )
    ]
    names = {name for name, _evr, _arch in entry.incoming | entry.outgoing}
    present = {(row.name, f"{row.epoch}:{row.version}-{row.release}", row.arch) for row in installed if row.name in names}
    for heading, packages in (
        (_("Still to be installed:"), entry.incoming - present),
        (_("Still to be removed:"), entry.outgoing & present),
    ):
        if packages:
            lines += [heading, *_shortened(sorted(map(_shown, packages)))]
    return lines


def _shown_time(seconds: Any) -> str:
    try:
        return time.strftime("%Y-%m-%d %H:%M", time.localtime(seconds))
    except (TypeError, ValueError, OverflowError, OSError):
        # A damaged history.
        return str(seconds)


def _shown(package: Tuple[str, str, str]) -> str:
    name, evr, arch = package
    return f"{name}-{evr[2:] if evr.startswith('0:') else evr}.{arch}"


def _shortened(lines: List[str]) -> List[str]:
    shown = [f"    {line}" for line in lines[:_FEW]]
    if len(lines) > _FEW:
        shown.append("    " + _("and {count} more").format(count=len(lines) - _FEW))
    return shown
