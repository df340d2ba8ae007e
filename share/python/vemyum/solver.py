# SPDX-License-Identifier: GPL-2.0-or-later
"""Solving: the marks become a transaction, and the engine hears what was added to them."""

from __future__ import annotations

from typing import Any, List, Sequence

import dnf.package
import hawkey

from . import host
from .base import Base
from .errors import YumBaseError
from .lists import Collector
from .packages import Package
from .transaction import Marks, TransactionInfo, pkgtup_of

_GONE = "{} is no longer {}. Please refresh the list of packages."


def mark(base: Base, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> Marks:
    """Marks the engine's packages in a loaded Base.

    Raises YumBaseError for a package that isn't there any more, or that cannot be marked.
    """
    marks = Marks()
    for wanted in (*installs, *(pair[0] for pair in updates)):
        package = _available(base, wanted)
        # Also for updates: dnf's own "upgrade" gives way silently where dependencies are in the way.
        base.package_install(package)
        marks.incoming.append(package)
    for unwanted in removes:
        package = _installed(base, unwanted)
        base.package_remove(package)
        marks.removed.append(package)
    return marks


def _available(base: Base, wanted: Package) -> dnf.package.Package:
    query = base.sack.query().available().filter(reponame=wanted.po.reponame)
    return _one(query, wanted, f"in the repository {wanted.po.reponame}")


def _installed(base: Base, wanted: Package) -> dnf.package.Package:
    return _one(base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed(), wanted, "installed")


def _one(query: Any, wanted: Package, where: str) -> dnf.package.Package:
    found = list(query.filter(name=wanted.name, arch=wanted.arch, evr=wanted.printVer()))
    if not found:
        raise YumBaseError(_GONE.format(wanted, where))
    return found[0]


def solve(base: Base, marks: Marks, collector: Collector) -> TransactionInfo:
    """Solves the marked Base and tells the engine what came in addition.

    YumBaseError has the solver's problems as its text.
    """
    host.solver_check()
    if not base.resolve(allow_erasing=bool(marks.removed)):
        raise YumBaseError("Nothing to do: the system is already as it was asked to be.")
    info = TransactionInfo(base, marks, collector.updatable)
    _require_marks(info, base, marks)
    lines = _lines(info, base, marks, collector)
    if lines:
        for line in lines:
            host.log(host.LEVEL_INFO, f"TSINFO: {line}")
        host.solver_restart()
        host.solver_check()
    return info


def _require_marks(info: TransactionInfo, base: Base, marks: Marks) -> None:
    happens = {pkgtup_of(package) for package, _ in info.incoming()}
    for package in base.goal.list_erasures() + base.goal.list_obsoleted():
        happens.add(pkgtup_of(package))
    marked = marks.incoming + marks.removed
    left_out = [str(package) for package in marked if pkgtup_of(package) not in happens]
    if left_out:
        raise YumBaseError(
            f"Nothing is to be done about {', '.join(left_out)}. Please refresh the list of packages."
        )


def _lines(info: TransactionInfo, base: Base, marks: Marks, collector: Collector) -> List[str]:
    """One line for each package that the solver added.

    The engine looks every name up in its table, and one that is up to date there, or not there at all,
    must not be told: another architecture of an installed package, for instance.
    """
    marked = marks.tuples()
    lines = []
    for package, upgrade in info.incoming():
        if pkgtup_of(package) in marked:
            continue
        name, version = package.name, package.evr
        if name in collector.updatable:
            if upgrade:
                lines.append(f"Updating {name} to {version}, to resolve dependencies")
            else:
                lines.append(f"Marking {name} {version} as update to resolve dependencies")
        elif name in collector.available_names and name not in collector.installed_names:
            lines.append(f"Marking {name} {version} as install, to resolve dependencies")
    for package in base.goal.list_erasures():
        if pkgtup_of(package) not in marked:
            lines.append(f"{package.name} {package.evr} marked as erase, to resolve dependencies")
    return lines
