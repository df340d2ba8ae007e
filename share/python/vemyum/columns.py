# SPDX-License-Identifier: GPL-2.0-or-later
"""What the table can show of all packages at a time, beside what it reads of each row."""

from __future__ import annotations

from collections import defaultdict
from typing import Any, DefaultDict, Dict, List, Optional, Sequence, Tuple

from . import versions
from .backend import Advised, Reason, System
from .matters import advisories
from .packages import InstalledPackage, Package
from .text import valid
from .texts import _


def told(kind: str, packages: Sequence[Package], system: System) -> List[Any]:
    """One value for each package: "installedSize" in bytes; "reason", why it is installed, in a word; "advisory", the
    identifiers of what an update carries out; "advisories", the same as `_summaries` has them, None for none. KeyError for
    another kind."""
    return _KINDS[kind](packages, system)


def _installed_sizes(packages: Sequence[Package], system: System) -> List[int]:
    return [package.po.installsize for package in packages]


def _reasons(packages: Sequence[Package], system: System) -> List[str]:
    words: Dict[Reason, str] = {
        Reason.USER: _("user"),
        Reason.GROUP: _("group"),
        Reason.DEPENDENCY: _("dependency"),
        Reason.WEAK: _("weak dependency"),
        Reason.UNKNOWN: "",
    }
    by_arch: Dict[Tuple[str, str], str] = {}
    by_name: Dict[str, str] = {}
    for row, reason in system.reasons():
        by_arch[row.name, row.arch] = by_name[row.name] = words[reason]
    # An update may come for another architecture.
    return [by_arch.get((package.name, package.arch)) or by_name.get(package.name, "") for package in packages]


def _advised(packages: Sequence[Package], system: System) -> List[List[str]]:
    """The identifiers of what each carries out, in their order."""
    advised: DefaultDict[Tuple[str, str], List[Advised]] = defaultdict(list)
    for one in system.advised():
        advised[one.name, one.arch].append(one)

    def of(package: Package) -> List[str]:
        # What stands for an installed package brings nothing; a newer one than the row's comes with another update.
        if isinstance(package, InstalledPackage):
            return []
        these = advised.get((package.name, package.arch), ())
        return sorted({one.advisory for one in these if versions.compare(one, package.po) <= 0})

    return [of(package) for package in packages]


def _identifiers(packages: Sequence[Package], system: System) -> List[str]:
    return [", ".join(carried) for carried in _advised(packages, system)]


def _summaries(packages: Sequence[Package], system: System) -> List[Optional[Dict[str, Any]]]:
    """Of each a dictionary: "type" and "severity" (str) of its gravest advisory, "identifiers" and "cves" (list of
    str), the gravest advisory first."""
    known = {one.id: one for one in system.advisories()}

    def of(carried: List[str]) -> Optional[Dict[str, Any]]:
        these = sorted((known[id] for id in carried if id in known), key=advisories.gravest_first)
        if not these:
            return None
        return {
            "type": advisories.kind(these[0]),
            "severity": valid(these[0].severity),
            "identifiers": [valid(one.id) for one in these],
            "cves": list(dict.fromkeys(cve for one in these for cve in advisories.cves(one))),
        }

    return [of(carried) for carried in _advised(packages, system)]


_KINDS = {
    "installedSize": _installed_sizes,
    "reason": _reasons,
    "advisory": _identifiers,
    "advisories": _summaries,
}
