# SPDX-License-Identifier: GPL-2.0-or-later
"""Chance that is the same for the same seed on every system."""

from __future__ import annotations

import random
from typing import List, Sequence, TypeVar

T = TypeVar("T")


class Dice:
    """Rests on `random.random` alone: no version of Python changes its numbers, as it may those of `choice`."""

    def __init__(self, seed: str) -> None:
        self._random = random.Random(seed)

    def number(self, count: int) -> int:
        """One of 0 … count - 1."""
        return int(self._random.random() * count)

    def between(self, least: int, most: int) -> int:
        return least + self.number(most - least + 1)

    def chance(self, probability: float) -> bool:
        return self._random.random() < probability

    def one(self, things: Sequence[T]) -> T:
        return things[self.number(len(things))]

    def weighed(self, things: Sequence[T], weights: Sequence[int]) -> T:
        at = self.number(sum(weights))
        for thing, weight in zip(things, weights):
            at -= weight
            if at < 0:
                return thing
        raise AssertionError("no weight")

    def some(self, things: Sequence[T], count: int) -> List[T]:
        """Different ones, as many at most."""
        left = list(things)
        return [left.pop(self.number(len(left))) for _ in range(min(count, len(left)))]
