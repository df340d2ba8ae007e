# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf knows of the packages around one; see `backend.System`."""

from __future__ import annotations

from typing import Dict, List, Sequence, Tuple

import dnf.package
import dnf.sack
import hawkey


def wanting(sack: dnf.sack.Sack, rows: Sequence[dnf.package.Package], kind: str) -> List[dnf.package.Package]:
    condition = {kind: list(rows)}
    offered = sack.query().available().filter(latest_per_arch_by_priority=True, arch=sack.list_arches())
    return [*_all(sack).installed().filter(**condition), *offered.filter(**condition)]


class Needs:
    """Which installed packages want what an installed one satisfies. A query about packages goes through everything
    once for each of them."""

    def __init__(self, sack: dnf.sack.Sack, kind: str) -> None:
        installed = _all(sack).installed()
        satisfying: Dict[str, List[dnf.package.Package]] = {}
        self._wanting: Dict[dnf.package.Package, List[dnf.package.Package]] = {}
        for package in installed:
            for one in getattr(package, kind):
                word = str(one)
                if word not in satisfying:
                    # rpm's own abilities are no package's.
                    own = word.startswith("rpmlib(")
                    satisfying[word] = [] if own else list(installed.filter(provides=one))
                for other in satisfying[word]:
                    self._wanting.setdefault(other, []).append(package)

    def of(self, rows: Sequence[dnf.package.Package]) -> List[dnf.package.Package]:
        return list(dict.fromkeys(one for row in rows for one in self._wanting.get(row, ())))


def satisfying(
    sack: dnf.sack.Sack, row: dnf.package.Package, kind: str
) -> List[Tuple[str, List[dnf.package.Package]]]:
    everything = _shown(sack)
    return [(str(one), list(everything.filter(provides=one))) for one in getattr(row, kind)]


def versions_of(sack: dnf.sack.Sack, name: str) -> List[dnf.package.Package]:
    return list(_shown(sack).filter(name=name))


def _all(sack: dnf.sack.Sack) -> hawkey.Query:
    return sack.query(flags=hawkey.IGNORE_EXCLUDES)


def _shown(sack: dnf.sack.Sack) -> hawkey.Query:
    """What is there, excluded or not, and what is offered."""
    return _all(sack).installed().union(sack.query().available().filter(arch=sack.list_arches()))
