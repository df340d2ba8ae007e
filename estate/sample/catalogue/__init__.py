# SPDX-License-Identifier: GPL-2.0-or-later
"""What the sample estate consists of: the packages of Fenmark, the system that an imaginary drainage
board keeps on the machines of its pumping stations, survey teams and offices.

A `Source` is what one source package is: its parts become binary packages, its updates become newer builds
of all its parts. Everything here is invented for this estate.
"""

from .model import Part, Source, Update
from .offices import OFFICES
from .system import SYSTEM
from .waterworks import WATERWORKS

SOURCES: tuple[Source, ...] = SYSTEM + WATERWORKS + OFFICES

__all__ = ["SOURCES", "Part", "Source", "Update"]
