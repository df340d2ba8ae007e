# SPDX-License-Identifier: GPL-2.0-or-later
"""The advisories about what is installed, for whoever looks at them, and the updates that fix what is not safe.

Rests on a collection; changes nothing. An advisory is a dictionary:

    identifier  str
    type        str: "security", "bugfix", "enhancement", "newpackage" or "other"
    severity    str, as the repository words it; "" where it doesn't
    title       str
    issued      int, seconds since the epoch; 0 where nobody knows
    count       int, how many versions of packages it names
    cves        list of str
    open        bool, whether the command line counts it as available: it names a newer version of what is installed

In full it has also:

    text        str
    references  list of dict: type (str: "cve", "bugzilla", "vendor" or another), id, title, address (str)
    packages    list of dict, by name: name, arch, version (str, "[epoch:]version-release"), installed (str, the latest
                that is installed of it, likewise, "" for none), open (bool, as above)

An update is a dictionary: name, arch, old, new (str, as above), repository (str) and identifiers (list of str, of the
security advisories that it carries out).
"""

from __future__ import annotations

import functools
from typing import Any, Dict, List, Optional, Tuple

from .. import stop, versions
from ..backend import Advisory, Row, System
from ..errors import YumBaseError
from ..packages import shown_evr
from ..text import valid
from ..texts import _

Told = Dict[str, Any]

SECURITY = "security"
_KINDS = (SECURITY, "bugfix", "enhancement", "newpackage")
_SEVERITIES = ("critical", "important", "moderate", "low")
_SYSTEM = "@System"


def listed(system: System) -> Optional[List[Told]]:
    """All that name what is installed, the latest first; None where no repository's metadata tells of advisories.
    Stopped."""
    if not system.has_advisories():
        return None
    found = sorted(system.advisories(), key=lambda one: (-one.issued, one.id))
    stop.check()
    return [_head(one) for one in found]


def told(system: System, identifier: str) -> Told:
    """One in full. YumBaseError where there is no such one."""
    for one in system.advisories(identifier):
        there = _latest(system)
        whole = _head(one)
        whole["text"] = valid(one.text)
        whole["references"] = [
            {"type": each.kind, "id": each.id, "title": each.title, "address": each.address} for each in one.references
        ]
        whole["packages"] = [
            {
                "name": package.name,
                "arch": package.arch,
                "version": _version(package),
                "installed": _version(there.get((package.name, package.arch))),
                "open": package.open,
            }
            for package in sorted(one.packages)
        ]
        return whole
    raise YumBaseError(_("No advisory {identifier} is about an installed package.").format(identifier=identifier))


def security_updates(system: System, newest: bool) -> List[Told]:
    """For each installed package of which a repository offers a version that a security advisory names: the newest
    such version, which is what the command line's smallest upgrade takes, or with `newest` the newest on offer. Stopped.

    One of the command lines takes none at all where the latest advisory names a version that nobody offers.
    """
    there = _latest(system)
    wanted: Dict[Tuple[str, str], Dict[Tuple[str, str, str], List[str]]] = {}
    for one in system.advisories():
        for package in one.packages if one.kind == SECURITY else ():
            if package.open:
                evrs = wanted.setdefault((package.name, package.arch), {})
                evrs.setdefault(_evr(package), []).append(valid(one.id))
    found = []
    for (name, arch), evrs in sorted(wanted.items()):
        stop.check()
        present = there.get((name, arch))
        offered = [row for row in system.versions(name) if row.arch == arch and row.reponame != _SYSTEM]
        fixes = [row for row in offered if _evr(row) in evrs]
        if present is None or not fixes:
            continue
        best = max(offered if newest else fixes, key=_ORDER)
        carried = {id for row in fixes if versions.compare(row, best) <= 0 for id in evrs[_evr(row)]}
        found.append(
            {
                "name": name,
                "arch": arch,
                "old": _version(present),
                "new": _version(best),
                "repository": valid(best.reponame),
                "identifiers": sorted(carried),
            }
        )
    return found


def kind(one: Advisory) -> str:
    return one.kind if one.kind in _KINDS else "other"


def cves(one: Advisory) -> List[str]:
    return [each.id for each in one.references if each.kind == "cve"]


def gravest_first(one: Advisory) -> Tuple[int, int, str]:
    """For sorting: security first, and there by severity."""
    severity = one.severity.lower()
    return (
        _KINDS.index(one.kind) if one.kind in _KINDS else len(_KINDS),
        _SEVERITIES.index(severity) if severity in _SEVERITIES else len(_SEVERITIES),
        one.id,
    )


def gravity(one: Advisory) -> int:
    """0 for what is not about security, 1 for an unknown severity, and then the more the graver."""
    severity = one.severity.lower()
    if one.kind != SECURITY:
        return 0
    return 1 + (len(_SEVERITIES) - _SEVERITIES.index(severity) if severity in _SEVERITIES else 0)


def word(one: Advisory) -> str:
    """For the user: how grave it is, if that is known of something about security, else what it is about; "" where that
    isn't known either."""
    of_kind = {
        SECURITY: _("Security"),
        "bugfix": _("Bug fix"),
        "enhancement": _("Enhancement"),
        "newpackage": _("New package"),
    }
    by_gravity = {2: _("Low"), 3: _("Moderate"), 4: _("Important"), 5: _("Critical")}
    return by_gravity.get(gravity(one)) or of_kind.get(one.kind, "")


_ORDER = functools.cmp_to_key(versions.compare)


def _head(one: Advisory) -> Told:
    return {
        "identifier": valid(one.id),
        "type": kind(one),
        "severity": valid(one.severity),
        "title": valid(one.title),
        "issued": one.issued,
        "count": one.count,
        "cves": cves(one),
        "open": any(package.open for package in one.packages),
    }


def _latest(system: System) -> Dict[Tuple[str, str], Row]:
    found: Dict[Tuple[str, str], Row] = {}
    for row in system.installed():
        known = found.get((row.name, row.arch))
        if known is None or versions.compare(row, known) > 0:
            found[row.name, row.arch] = row
    return found


def _evr(one: Any) -> Tuple[str, str, str]:
    return str(one.epoch or 0), one.version, one.release


def _version(one: Any) -> str:
    return "" if one is None else shown_evr("{}:{}-{}".format(*_evr(one)))
