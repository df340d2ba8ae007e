# SPDX-License-Identifier: GPL-2.0-or-later
"""Solving: the marks become a transaction, and the engine hears what was added to them."""

from __future__ import annotations

from typing import Any, Dict, List, Sequence, Tuple

import dnf.package
import hawkey

from . import host
from .base import Base
from .errors import YumBaseError
from .lists import Collector
from .packages import Package
from .texts import _
from .transaction import Marks, TransactionInfo, pkgtup_of

_NOT_OFFERED = _("{package} is no longer in the repository {repository}. Please refresh the list of packages.")
_NOT_INSTALLED = _("{package} is no longer installed. Please refresh the list of packages.")


def mark(base: Base, installs: Sequence[Any], updates: Sequence[Any], removes: Sequence[Any]) -> Marks:
    """Marks the engine's packages in a loaded Base.

    Raises YumBaseError for a package that isn't there any more, or that cannot be marked.
    """
    marks = Marks()
    incoming = [*installs, *(pair[0] for pair in updates)]
    available = _of_names(base.sack.query().available(), incoming)
    for wanted in incoming:
        package = available.get((wanted.po.reponame, *_identity(wanted.po)))
        if package is None:
            raise YumBaseError(_NOT_OFFERED.format(package=wanted, repository=wanted.po.reponame))
        # Also for updates: dnf's own "upgrade" gives way silently where dependencies are in the way.
        base.package_install(package)
        marks.incoming.append(package)
    installed = _of_names(base.sack.query(flags=hawkey.IGNORE_EXCLUDES).installed(), removes)
    for unwanted in removes:
        package = installed.get((hawkey.SYSTEM_REPO_NAME, *_identity(unwanted.po)))
        if package is None:
            raise YumBaseError(_NOT_INSTALLED.format(package=unwanted))
        base.package_remove(package)
        marks.removed.append(package)
    return marks


def _of_names(query: Any, wanted: Sequence[Package]) -> Dict[Tuple[str, ...], dnf.package.Package]:
    """The packages of a query that have one of the names, by repository, name, architecture and version.

    One query for all: each walks over all packages there are.
    """
    found: Dict[Tuple[str, ...], dnf.package.Package] = {}
    for package in query.filter(name=[one.name for one in wanted]):
        found.setdefault((package.reponame, *_identity(package)), package)
    return found


def _identity(package: dnf.package.Package) -> Tuple[str, str, str]:
    return (package.name, package.arch, package.evr)


def solve(base: Base, marks: Marks, collector: Collector) -> TransactionInfo:
    """Solves the marked Base and tells the engine what came in addition.

    YumBaseError has the solver's problems as its text.
    """
    host.solver_check()
    if not base.resolve(allow_erasing=bool(marks.removed)):
        raise YumBaseError(_("Nothing to do: the system is already as it was asked to be."))
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
            _("Nothing is to be done about {packages}. Please refresh the list of packages.").format(
                packages=", ".join(left_out)
            )
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
