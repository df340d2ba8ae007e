# SPDX-License-Identifier: GPL-2.0-or-later
"""What a solved transaction consists of, in the lists that the engine shows for confirmation."""

from __future__ import annotations

from typing import Collection, Dict, List, Set, Tuple

import dnf.package

from .base import Base
from .packages import INSTALLED, PkgTup

LISTS = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")

Relation = Tuple["Member", str]


def pkgtup_of(package: dnf.package.Package) -> PkgTup:
    return (package.name, package.arch, str(package.epoch), package.version, package.release)


class Member:
    """One package of the transaction. `relatedto` holds pairs (member, "obsoletedby")."""

    def __init__(self, package: dnf.package.Package) -> None:
        # No reference to the package: it would keep the Base's memory as long as the lists live.
        self.name = package.name
        self.pkgtup = pkgtup_of(package)
        self.repoid = INSTALLED if package._from_system else package.reponame
        self.relatedto: List[Relation] = []

    def __repr__(self) -> str:
        return f"<Member {'-'.join(self.pkgtup)}>"


class Marks:
    """What the user asked for: new packages (installs and updates) and installed ones to remove."""

    def __init__(self) -> None:
        self.incoming: List[dnf.package.Package] = []
        self.removed: List[dnf.package.Package] = []

    def __bool__(self) -> bool:
        return bool(self.incoming or self.removed)

    def tuples(self) -> Set[PkgTup]:
        return {pkgtup_of(package) for package in (*self.incoming, *self.removed)}


class TransactionInfo:
    """`tsInfo`: seven lists of members, filled by `makelists`.

    The lists that begin with "dep" hold what the solver has added to the marks. Built from a Base whose
    goal is solved; the lists stay readable after the Base is closed.
    """

    def __init__(self, base: Base, marks: Marks, updatable: Collection[str]) -> None:
        self._goal = base.goal
        self._marked = marks.tuples()
        self._updatable = updatable
        self._made = False
        self.updated: List[Member] = []
        self.installed: List[Member] = []
        self.removed: List[Member] = []
        self.obsoleted: List[Member] = []
        self.depupdated: List[Member] = []
        self.depinstalled: List[Member] = []
        self.depremoved: List[Member] = []

    def makelists(self) -> None:
        """Fills the lists, once."""
        if self._made:
            return
        self._made = True
        obsoleted = {pkgtup_of(package) for package in self._goal.list_obsoleted()}
        obsoleters: Dict[PkgTup, Member] = {}
        for package, upgrade in self.incoming():
            member = Member(package)
            self._list_for(member, upgrade).append(member)
            for old in self._goal.obsoleted_by_package(package):
                if old.name != package.name and pkgtup_of(old) in obsoleted:
                    obsoleters[pkgtup_of(old)] = member
        for package in self._goal.list_obsoleted():
            member = Member(package)
            if member.pkgtup in obsoleters:
                member.relatedto.append((obsoleters[member.pkgtup], "obsoletedby"))
                self.obsoleted.append(member)
        for package in self._goal.list_erasures() + self._downgraded():
            member = Member(package)
            (self.removed if member.pkgtup in self._marked else self.depremoved).append(member)
        for name in LISTS:
            getattr(self, name).sort(key=lambda member: member.pkgtup)
        self._goal = None

    def _downgraded(self) -> List[dnf.package.Package]:
        """Installed packages that give way to older ones. The lists have no words for that, so that the
        user reads of a removal beside the installation."""
        return [
            old
            for package in self._goal.list_downgrades()
            for old in self._goal.obsoleted_by_package(package)
            if old.name == package.name
        ]

    def incoming(self) -> List[Tuple[dnf.package.Package, bool]]:
        """All packages that go in, each with whether it is a newer version of an installed one."""
        goal = self._goal
        upgrades = [(package, True) for package in goal.list_upgrades()]
        others = [*goal.list_installs(), *goal.list_downgrades(), *goal.list_reinstalls()]
        return upgrades + [(package, False) for package in others]

    def _list_for(self, member: Member, upgrade: bool) -> List[Member]:
        asked = member.pkgtup in self._marked
        # The engine expects an updated package to be one that its table shows as updatable.
        if upgrade and member.name in self._updatable:
            return self.updated if asked else self.depupdated
        return self.installed if asked else self.depinstalled
