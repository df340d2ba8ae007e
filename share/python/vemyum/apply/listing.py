# SPDX-License-Identifier: GPL-2.0-or-later
"""The planned transaction as the engine lists it for confirmation, and as the solver's lines tell it."""

from __future__ import annotations

from typing import Collection, List, Sequence, Tuple

from ..lists import Collector
from ..packages import INSTALLED, PkgTup
from .messages import INSTALL, OBSOLETED, REMOVE, REPLACED, UPGRADE, Change

LISTS = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")

Relation = Tuple["Member", str]


class Member:
    """One package of the transaction. `relatedto` holds pairs (member, "obsoletedby")."""

    def __init__(self, change: Change) -> None:
        self.name = change.name
        self.pkgtup: PkgTup = (change.name, change.arch, change.epoch, change.version, change.release)
        self.repoid = change.repository if change.kind in (INSTALL, UPGRADE) else INSTALLED
        self.relatedto: List[Relation] = []

    def __repr__(self) -> str:
        return f"<Member {'-'.join(self.pkgtup)}>"


class TransactionInfo:
    """`tsInfo`: seven lists of members. Those that begin with "dep" hold what the solver has added to the marks."""

    def __init__(self, changes: List[Change], updatable: Collection[str], streams: Sequence[str] = ()) -> None:
        """`updatable` are the names that the engine's table shows as such; `streams` what is enabled of modules."""
        self.enabledStreams = list(streams)
        self.updated: List[Member] = []
        self.installed: List[Member] = []
        self.removed: List[Member] = []
        self.obsoleted: List[Member] = []
        self.depupdated: List[Member] = []
        self.depinstalled: List[Member] = []
        self.depremoved: List[Member] = []
        members = [Member(change) for change in changes]
        for change, member in zip(changes, members):
            if change.kind == OBSOLETED:
                if 0 <= change.replaced_by < len(members):
                    member.relatedto.append((members[change.replaced_by], "obsoletedby"))
                self.obsoleted.append(member)
            elif change.kind in (REMOVE, REPLACED):
                # The lists have no words for a version that gives way to an older one, or in two architectures to one
                # for all, so that the user reads of a removal beside what comes in.
                (self.removed if change.asked else self.depremoved).append(member)
            elif change.kind == UPGRADE and change.name in updatable:
                # The engine expects an updated package to be one that its table shows as updatable.
                (self.updated if change.asked else self.depupdated).append(member)
            else:
                (self.installed if change.asked else self.depinstalled).append(member)
        for name in LISTS:
            getattr(self, name).sort(key=lambda member: member.pkgtup)

    def makelists(self) -> None:
        """The lists are there from the beginning."""


def solver_lines(changes: List[Change], collector: Collector) -> List[str]:
    """One line for each package that the solver has added.

    The engine looks every name up in its table, and one that is up to date there, or not there at all,
    must not be told: another architecture of an installed package, for instance.
    """
    lines = []
    for change in changes:
        if change.asked:
            continue
        name, version = change.name, _evr(change)
        if change.kind == REMOVE:
            lines.append(f"{name} {version} marked as erase, to resolve dependencies")
        elif change.kind not in (INSTALL, UPGRADE):
            continue
        elif name in collector.updatable:
            if change.kind == UPGRADE:
                lines.append(f"Updating {name} to {version}, to resolve dependencies")
            else:
                lines.append(f"Marking {name} {version} as update to resolve dependencies")
        elif name in collector.available_names and name not in collector.installed_names:
            lines.append(f"Marking {name} {version} as install, to resolve dependencies")
    return lines


def _evr(change: Change) -> str:
    epoch = "" if change.epoch == "0" else f"{change.epoch}:"
    return f"{epoch}{change.version}-{change.release}"
