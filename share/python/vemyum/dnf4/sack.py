# SPDX-License-Identifier: GPL-2.0-or-later
"""A sack whose packages cost little: the table keeps tens of thousands of them."""

from __future__ import annotations

import contextlib
from typing import Any, Iterator

import dnf
import dnf.sack
import hawkey


class LightSack(dnf.sack.Sack):
    """A sack whose packages have no dictionary of their own.

    dnf gives each package four attributes, of which three are never set in a sack that is only read and the
    fourth is the same for all. A class that has them saves some 340 bytes a package, and most of the time
    that it takes to list packages.
    """

    def __init__(self, *args: Any, pkgcls: type, pkginitval: dnf.Base, **options: Any) -> None:
        # dnf's own constructor finds its class by a name that means this one meanwhile, and only passes on.
        hawkey.Sack.__init__(self, *args, pkgcls=_package_class(pkgcls, pkginitval), pkginitval=pkginitval, **options)


@contextlib.contextmanager
def light_packages() -> Iterator[None]:
    """Lets a Base that fills its sack in this block make a light one."""
    original = dnf.sack.Sack
    dnf.sack.Sack = LightSack
    try:
        yield
    finally:
        dnf.sack.Sack = original


def _package_class(kind: type, base: dnf.Base) -> type:
    construct = hawkey.Package.__init__

    def init(package: hawkey.Package, place: Any, _: dnf.Base) -> None:
        construct(package, place)

    attributes = {
        "__doc__": "A package of one Base.",
        "__init__": init,
        "base": base,
        "_priv_chksum": None,
        "_priv_size": None,
        "_repo": None,
    }
    return type("Package", (kind,), attributes)
