# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf knows of advisories; see `backend.System`."""

from __future__ import annotations

from typing import Dict, List, Optional

import dnf.package
import dnf.sack
import hawkey

from ..backend import Advice, Advisory, AdvisoryPackage, Reference
from ..packages import whole_evr
from ..text import valid

_KINDS = {
    hawkey.ADVISORY_SECURITY: "security",
    hawkey.ADVISORY_BUGFIX: "bugfix",
    hawkey.ADVISORY_ENHANCEMENT: "enhancement",
    hawkey.ADVISORY_NEWPACKAGE: "newpackage",
}
_REFERENCES = {hawkey.REFERENCE_BUGZILLA: "bugzilla", hawkey.REFERENCE_CVE: "cve", hawkey.REFERENCE_VENDOR: "vendor"}
_ANY = hawkey.LT | hawkey.EQ | hawkey.GT


def advisories(sack: dnf.sack.Sack, id: Optional[str]) -> List[Advisory]:
    opened = {(one.get_advisory(sack).id, _package(one)) for one in _considered(sack).get_advisory_pkgs(hawkey.GT)}
    found: Dict[str, Advisory] = {}
    present = sack.query(flags=hawkey.IGNORE_EXCLUDES).installed()
    seen = set()
    for concerned in present.get_advisory_pkgs(_ANY):
        advisory = concerned.get_advisory(sack)
        if id is not None and advisory.id != id:
            continue
        known = advisory.id in found
        packages = found[advisory.id].packages if known else []
        every = () if known else advisory.packages
        if not known:
            found[advisory.id] = Advisory(
                advisory.id,
                _KINDS.get(advisory.type, ""),
                advisory.severity or "",
                advisory.title or "",
                _issued(advisory),
                advisory.description or "",
                [
                    Reference(_REFERENCES.get(one.type, ""), valid(one.id or ""), valid(one.title or ""), valid(one.url or ""))
                    for one in advisory.references
                ],
                len(every),
                packages,
            )
        # Repositories may each have an advisory of that name: what concerns the system counts of each.
        for one in (concerned, *(every if id is not None else ())):
            package = _package(one)
            if (advisory.id, package) not in seen:
                seen.add((advisory.id, package))
                packages.append(package._replace(open=(advisory.id, package) in opened))
    return list(found.values())


def advice(sack: dnf.sack.Sack, row: dnf.package.Package) -> List[Advice]:
    about = sack.query(flags=hawkey.IGNORE_EXCLUDES).filter(name=row.name, arch=row.arch)
    found = []
    for one in about.get_advisory_pkgs(_ANY):
        advisory = one.get_advisory(sack)
        kind, severity = _KINDS.get(advisory.type, ""), advisory.severity or ""
        found.append(
            Advice(advisory.id, kind, severity, advisory.title or "", _issued(advisory), *whole_evr(one.evr))
        )
    return found


def _considered(sack: dnf.sack.Sack) -> hawkey.Query:
    """The installed packages for which the command line counts newer versions as open: the latest of each name and
    architecture, and those of the running kernel."""
    considered = sack.query().installed().latest(1)
    kernel = sack.get_running_kernel()
    if kernel:
        considered = considered.union(sack.query().filter(sourcerpm=kernel.sourcerpm).installed())
    return considered


def _package(one: hawkey.AdvisoryPkg) -> AdvisoryPackage:
    return AdvisoryPackage(one.name, one.arch, *whole_evr(one.evr), False)


def _issued(advisory: hawkey.Advisory) -> int:
    # The library tells the date of the last change, and of the issue where there was none.
    return int(advisory.updated.timestamp()) if advisory.updated else 0
