# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf tells of a package, in the forms of `backend`."""

from __future__ import annotations

from typing import Iterator, List, Optional, Tuple

import dnf.package

from ..backend import Dependency, Plain
from ..packages import dependency, plain


class Offered(List[dnf.package.Package]):
    """See `backend.Offer`."""

    def with_plain(self) -> Iterator[Tuple[dnf.package.Package, Optional[Plain]]]:
        return zip(self, map(plain, self))


def dependencies(package: dnf.package.Package, kind: str) -> List[Dependency]:
    return [dependency(str(one), one.name, one.relation, one.version) for one in getattr(package, kind)]


def checksum(package: dnf.package.Package) -> Optional[str]:
    found = package.chksum
    return None if found is None else str(found[1].hex())
