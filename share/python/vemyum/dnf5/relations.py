# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library knows of the packages around one; see `backend.System`."""

from __future__ import annotations

from typing import Any, Iterable, List, Sequence, Tuple

import libdnf5.rpm

from ..text import valid
from .base import Base
from .lists import fitting, package_set
from .rows import InstalledRow, Row, rows

_SYSTEM = "@System"


class Relations:
    """Of a loaded Base."""

    def __init__(self, base: Base, installed: List[Any]) -> None:
        """`installed` are all that are there, excluded or not."""
        self._base = base
        self._installed = installed

    def wanting(self, those: Sequence[Row], kind: str, installed_only: bool) -> List[Row]:
        query = self._everything()
        if installed_only:
            query.filter_installed()
        getattr(query, f"filter_{kind}")(package_set(self._base, those))
        if not installed_only:
            newest = self._offered()
            newest.filter_priority()
            newest.filter_latest_evr()
            newest.update(package_set(self._base, self._installed))
            query.intersection(newest)
        return self._rows(query)

    def satisfying(self, row: Row, kind: str) -> List[Tuple[str, List[Row]]]:
        found = []
        for one in getattr(row, f"get_{kind}")():
            wanted = libdnf5.rpm.ReldepList(self._base.library)
            wanted.add(one)
            query = self._everything()
            query.filter_provides(wanted)
            found.append((valid(str(one)), self._rows(query)))
        return found

    def versions(self, name: str) -> List[Row]:
        query = self._everything()
        query.filter_name([name])
        return self._rows(query)

    def _everything(self) -> libdnf5.rpm.PackageQuery:
        """What is there, excluded or not, and what is offered to this machine."""
        query = self._offered()
        query.update(package_set(self._base, self._installed))
        return query

    def _offered(self) -> libdnf5.rpm.PackageQuery:
        query = libdnf5.rpm.PackageQuery(self._base.library)
        query.filter_available()
        query.filter_arch(fitting())
        return query

    def _rows(self, query: Iterable[Any]) -> List[Row]:
        found = rows(query, self._base)
        return [InstalledRow(row.this, row.holder) if row.reponame == _SYSTEM else row for row in found]
