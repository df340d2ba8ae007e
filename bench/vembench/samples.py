# SPDX-License-Identifier: GPL-2.0-or-later
"""Measured values by name. A name's first part, up to the slash, is the row that it counts for."""

from __future__ import annotations

import math
import statistics
from typing import Iterator, Sequence


class Samples:
    """What one build, or dnf, has been measured to need: several values for each name."""

    def __init__(self) -> None:
        self._values: dict[str, list[float]] = {}

    def add(self, name: str, value: float) -> None:
        self._values.setdefault(name, []).append(float(value))

    def __iter__(self) -> Iterator[str]:
        return iter(self._values)

    def __contains__(self, name: str) -> bool:
        return name in self._values

    def __len__(self) -> int:
        return len(self._values)

    def values(self, name: str) -> list[float]:
        return list(self._values[name])

    def median(self, name: str) -> float:
        return statistics.median(self._values[name])

    def names_of(self, row: str) -> list[str]:
        return [name for name in self._values if name.partition("/")[0] == row]


def slope(values: Sequence[float]) -> float:
    """By how much the values grow from one to the next: the median of the slopes between all pairs.

    A single jump doesn't count (Theil and Sen's estimate).
    """
    pairs = [
        (values[late] - values[early]) / (late - early)
        for early in range(len(values))
        for late in range(early + 1, len(values))
    ]
    return statistics.median(pairs) if pairs else 0.0


def exponent(smaller: tuple[float, float], larger: tuple[float, float]) -> float:
    """The power of the size by which the cost grows, from two points (size, cost): 1 is linear."""
    (size, cost), (more, dearer) = smaller, larger
    return math.log(dearer / cost) / math.log(more / size)
