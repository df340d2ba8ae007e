# SPDX-License-Identifier: GPL-2.0-or-later
"""What the table can show of all packages at a time, beside what it reads of each row."""

from __future__ import annotations

from collections import defaultdict
from typing import Any, Callable, DefaultDict, Dict, List, Optional, Sequence, Tuple, Union

from . import versions
from .backend import Advised, Reason, System
from .matters import advisories
from .packages import InstalledPackage, Package
from .text import valid
from .texts import _


def told(kind: str, packages: Sequence[Package], system: System) -> Optional[Sequence[Any]]:
    """One value for each package: "installedSize" in bytes; "reason", why it is installed, in a word; "advisory", what
    an update carries out, as `_advisories` tells it. None where nothing can be known of any. KeyError for another kind."""
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


def _advisories(packages: Sequence[Package], system: System) -> Optional[List[Union[str, Tuple[str, int, str]]]]:
    """Of each (text, gravity, CVEs): its gravest advisory in a word and all identifiers, the gravest one's first; 0 for
    what is not about security, 1 where nobody says how grave it is, to 5; the CVEs in a line. "" for none. None altogether
    where no repository's metadata tells of advisories."""
    if not system.has_advisories():
        return None
    advised = _advised(packages, system)
    known = {one.id: one for one in system.advisories()} if any(advised) else {}

    def of(carried: List[str]) -> Union[str, Tuple[str, int, str]]:
        these = sorted((known[id] for id in carried if id in known), key=advisories.gravest_first)
        if not these:
            return ""
        identifiers = ", ".join(valid(one.id) for one in these)
        word = advisories.word(these[0])
        cves = dict.fromkeys(cve for one in these for cve in advisories.cves(one))
        text = f"{word}: {identifiers}" if word else identifiers
        return text, advisories.gravity(these[0]), ", ".join(cves)

    return [of(carried) for carried in advised]


_KINDS: Dict[str, Callable[[Sequence[Package], System], Optional[Sequence[Any]]]] = {
    "installedSize": _installed_sizes,
    "reason": _reasons,
    "advisory": _advisories,
}
