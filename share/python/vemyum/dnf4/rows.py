# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf tells of a package, in the forms of `backend`."""

from __future__ import annotations

from typing import List, Optional

import dnf.package

from ..backend import Dependency
from ..packages import dependency


def dependencies(package: dnf.package.Package, kind: str) -> List[Dependency]:
    return [dependency(str(one), one.name, one.relation, one.version) for one in getattr(package, kind)]


def checksum(package: dnf.package.Package) -> Optional[str]:
    found = package.chksum
    return None if found is None else str(found[1].hex())
