# SPDX-License-Identifier: GPL-2.0-or-later
"""What a transaction that was cut off has left: told by dnf's history and by the rpm database.

rpm puts the new version of a package in before it takes the old one out, and dnf closes the entry in its history
behind both. Whoever cuts that off leaves an open entry and packages that are there twice.
"""

from __future__ import annotations

import contextlib
import sqlite3
import time
from typing import Any, Dict, List, NamedTuple, Optional, Set, Tuple

import dnf.conf
import dnf.transaction
import hawkey
import libdnf.transaction as lt

from . import host
from .base import Base
from .database import transaction_is_at_work
from .history import open_history, system_history_path
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
    older: List[Any]


class _Entry(NamedTuple):
    """An open entry of the history: its head, and what was to go in and to go out, as name, "epoch:version-release" and
    architecture."""

    number: int
    begun: int
    command: str
    incoming: Set[Tuple[str, str, str]]
    outgoing: Set[Tuple[str, str, str]]


def unfinished(base: Base) -> Optional[Unfinished]:
    """What is to be told of the system of a loaded Base; None where every transaction has come to its end."""
    if transaction_is_at_work(base.conf.installroot):
        # It puts everything new in first.
        host.log(host.LEVEL_NOTICE, _("A transaction is at work: what it has not done yet is not told."))
        return None
    installed = base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
    doubled = _doubled(base, installed)
    entry = _open_entry(base.conf)
    if entry is None and not doubled:
        return None
    lines = _told(entry, installed) if entry is not None else []
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
    changeable = is_administrator() and unchangeable(base.conf.installroot) is None
    older = [package for found in doubled.values() for package in found[:-1]] if changeable else []
    if entry is None and not older:
        # There is nothing to be done about it; the rows tell it.
        for line in lines:
            host.log(host.LEVEL_NOTICE, line)
        lines = []
    return Unfinished("\n".join(lines), versions, older)


def _versions(packages: List[Any]) -> str:
    return ", ".join(package.evr for package in packages)


def _doubled(base: Base, installed: hawkey.Query) -> Dict[Tuple[str, str], List[Any]]:
    """By name and architecture, oldest first, as the command line tells duplicates: without those that are meant to be
    there several times."""
    found: Dict[Tuple[str, str], List[Any]] = {}
    for package in installed.duplicated().difference(base._get_installonly_query(installed)):
        found.setdefault((package.name, package.arch), []).append(package)
    return {key: sorted(packages) for key, packages in found.items() if len(packages) > 1}


def _open_entry(conf: dnf.conf.MainConf) -> Optional[_Entry]:
    """The last entry of the history if it has no end. The history is only looked at: dnf's own class would make one
    where there is none, and bring an old one up to date."""
    # Whoever wants to write into a history that cannot be read is told then.
    path = system_history_path(conf)
    with contextlib.suppress(sqlite3.Error), contextlib.closing(open_history(path, "ro")) as database:
        database.text_factory = lambda content: content.decode("utf-8", "replace")
        last = database.execute("select id, dt_begin, cmdline, state from trans order by id desc limit 1").fetchone()
        if last is None or last[3] != lt.TransactionState_UNKNOWN:
            return None
        incoming: Set[Tuple[str, str, str]] = set()
        outgoing: Set[Tuple[str, str, str]] = set()
        for name, epoch, version, release, arch, action in database.execute(
            "select name, epoch, version, release, arch, action from trans_item join rpm using (item_id) "
            "where trans_id = ?",
            last[:1],
        ):
            package = (name, f"{epoch}:{version}-{release}", arch)
            if action in dnf.transaction.FORWARD_ACTIONS:
                incoming.add(package)
            elif action in dnf.transaction.BACKWARD_ACTIONS:
                outgoing.add(package)
        return _Entry(last[0], last[1] or 0, last[2] or "", incoming, outgoing - incoming)
    return None


def _told(entry: _Entry, installed: hawkey.Query) -> List[str]:
    lines = [
        _("The last transaction was cut off before its end: number {number}, of {time}, begun by {command}.").format(
            number=entry.number,
            time=_shown_time(entry.begun),
            command=entry.command.strip() or _("an unknown program"),
        )
    ]
    names = {name for name, _evr, _arch in entry.incoming | entry.outgoing}
    present = {
        (package.name, f"{package.epoch}:{package.version}-{package.release}", package.arch)
        for package in installed.filter(name=list(names))
    }
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
