# SPDX-License-Identifier: GPL-2.0-or-later
"""Packages as the table reads them.

Tens of thousands are made and read in one go. The library's objects become rows by getting another class, whose
attributes are the library's functions themselves, without a Python function between. A row holds the Base that it is of:
the library ends the process when a package is asked for anything after its Base has gone.
"""

from __future__ import annotations

from typing import Any, Callable, Iterable, List, Optional

import libdnf5.rpm

from ..backend import Dependency
from ..packages import dependency
from ..text import valid
from .base import Base

_functions = libdnf5.rpm._rpm


def _text(function: Callable[[Any], str]) -> property:
    """Old headers hold bytes of any encoding."""
    return property(lambda row: valid(function(row)))


def _optional(function: Callable[[Any], str]) -> property:
    """None for what isn't stated, which is an empty text to the library."""
    return property(lambda row: valid(function(row)) or None)


class Row(libdnf5.rpm.Package):  # type: ignore[misc]
    """A package of a repository. See `backend.Row`; the attribute `base` holds the Base."""

    name = property(_functions.Package_get_name)
    arch = property(_functions.Package_get_arch)
    epoch = property(lambda row: int(_functions.Package_get_epoch(row) or 0))
    version = property(_functions.Package_get_version)
    release = property(_functions.Package_get_release)
    evr = property(_functions.Package_get_evr)
    size = property(_functions.Package_get_download_size)
    reponame = property(_functions.Package_get_repo_id)
    summary = _text(_functions.Package_get_summary)
    description = _text(_functions.Package_get_description)
    group = _text(_functions.Package_get_group)
    vendor = _optional(_functions.Package_get_vendor)
    sourcerpm = _optional(_functions.Package_get_sourcerpm)
    license = _optional(_functions.Package_get_license)
    packager = _optional(_functions.Package_get_packager)
    url = _optional(_functions.Package_get_url)
    buildtime = property(_functions.Package_get_build_time)
    location = _optional(_functions.Package_get_location)

    def __str__(self) -> str:
        return str(self.get_nevra())


class InstalledRow(Row):
    """A package of the rpm database."""

    size = property(_functions.Package_get_install_size)
    vendor = property(lambda row: _stated(_functions.Package_get_vendor(row)))
    location = None


def _stated(vendor: str) -> Optional[str]:
    # The library's word for a header without a vendor.
    return None if vendor in ("", "<NULL>") else valid(vendor)


def rows(packages: Iterable[Any], base: Base, kind: type = Row) -> List[Any]:
    """The packages of a query as rows."""
    found = list(packages)
    for package in found:
        package.__class__ = kind
        package.base = base
    return found


def dependencies(found: Iterable[Any]) -> List[Dependency]:
    return [
        dependency(str(reldep), reldep.get_name(), reldep.get_relation(), reldep.get_version()) for reldep in found
    ]


def checksum(row: Any) -> Optional[str]:
    found: str = row.get_checksum().get_checksum()
    return found.lower() or None
