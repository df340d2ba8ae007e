# SPDX-License-Identifier: GPL-2.0-or-later
"""The shape of the catalogue, and the names that its tables share."""

from __future__ import annotations

from dataclasses import dataclass, field
from typing import Mapping, Optional

JORGEN = "Jørgen Østvik <jorgen.ostvik@fenmark.example>"
AGNIESZKA = "Agnieszka Żurawska <a.zurawska@fenmark.example>"
MAEL = "Maël Guérinot <mael@fenmark.example>"
ODON = "Ödön Kőszegvári <odon.k@fenmark.example>"
THORA = "Þóra Hallsdóttir <thora@fenmark.example>"
RENATE = "Renate Vogelsang <r.vogelsang@fenmark.example>"
TAMSIN = "Tamsin Polkinghorne <tamsin@fenmark.example>"
WENYUAN = "Li Wenyuan (李文渊) <wenyuan@fenmark.example>"

BASE = "System/Base"
DAEMONS = "System/Daemons"
LIBRARIES = "System/Libraries"
FONTS = "System/Fonts"
TONGUES = "System/Languages"
STATION = "Applications/Pumping Station"
WATER = "Applications/Hydrology"
MAPS = "Applications/Survey and Maps"
OFFICE = "Applications/Office"
DEVELOPMENT = "Development/Libraries"
DOCUMENTATION = "Documentation"


@dataclass(frozen=True)
class Part:
    """A binary package. `kind` decides what files it has; `kb` is their size, roughly."""

    name: str
    kind: str
    kb: int
    summary: str
    text: str
    installed: bool = True
    group: Optional[str] = None
    arch: Optional[str] = None
    requires: tuple[str, ...] = ()
    provides: tuple[str, ...] = ()
    conflicts: tuple[str, ...] = ()
    scriptlets: Mapping[str, str] = field(default_factory=dict)
    files: Mapping[str, str] = field(default_factory=dict)
    """Files with a text of their own; @VERSION@ stands for the version of the build."""


@dataclass(frozen=True)
class Update:
    """A newer build of a source package, and the repository that has it."""

    evr: str
    change: str
    repository: str = "updates"


@dataclass(frozen=True)
class Source:
    """A source package. `family` is a paragraph that closes the description of each of its parts."""

    name: str
    version: str
    release: int
    packager: str
    group: str
    parts: tuple[Part, ...]
    family: str = ""
    updates: tuple[Update, ...] = ()
    epoch: Optional[int] = None
    license: str = "GPL-2.0-or-later"
    arch: str = "x86_64"
    repository: str = "base"
    also_i686: bool = False


def said(line: str) -> dict[str, str]:
    """A scriptlet that needs no shell and says one line after installation."""
    return {"post -p <lua>": f'print("{line}")'}
