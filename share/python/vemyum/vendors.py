# SPDX-License-Identifier: GPL-2.0-or-later
"""Updates that a solver refuses, since a package's vendor may not change: the libraries' queries don't ask for that."""

from __future__ import annotations

from typing import Any, Callable, Dict, Iterable, List

from . import versions
from .packages import stated_vendor


def by_name(packages: Iterable[Any]) -> Dict[str, List[Any]]:
    found: Dict[str, List[Any]] = {}
    for package in packages:
        found.setdefault(package.name, []).append(package)
    return found


def refused(
    newer: Iterable[Any],
    replacing: Iterable[Any],
    installed: Dict[str, List[Any]],
    replaced: Callable[[Any, Dict[str, List[Any]]], List[Any]],
) -> List[Any]:
    """Of newer versions of installed packages, which are given by their names, those that none of these lets in; of
    packages that replace others those that one of these keeps out."""
    without = [
        package
        for package in newer
        if not any(_same_vendor(package, old) and _updates(package, old) for old in installed.get(package.name, []))
    ]
    return without + [
        package
        for package in replacing
        if not all(_same_vendor(package, old) for old in replaced(package, installed))
    ]


def _same_vendor(package: Any, other: Any) -> bool:
    return (stated_vendor(package) or "") == (stated_vendor(other) or "")


def _updates(package: Any, installed: Any) -> bool:
    """Whether a package of the same name is to take the place of an installed one."""
    fits = package.arch == installed.arch or "noarch" in (package.arch, installed.arch)
    return fits and versions.compare(package, installed) > 0
