# SPDX-License-Identifier: GPL-2.0-or-later
"""The rows of the report: what is measured, and what it may cost at most."""

from __future__ import annotations

from dataclasses import dataclass
from typing import Optional

from .samples import Samples


@dataclass(frozen=True)
class Row:
    """One promise. Its figure is the worst of the medians of all samples that count for it.

    `short` is its name in a plot. `peer` names dnf's samples that the figure is divided by. `aim` is the most
    that the figure may be, in `unit`; an aim of 0 means that there shall be none.
    """

    id: str
    what: str
    short: str
    aim: float
    unit: str
    digits: int
    peer: Optional[str] = None

    def figure(self, samples: Samples, dnf: Samples) -> Optional["Figure"]:
        """None when it wasn't measured."""
        names = samples.names_of(self.id)
        if not names or (self.peer is not None and self.peer not in dnf):
            return None
        worst = max(names, key=samples.median)
        value = samples.median(worst)
        own = value
        if self.peer is not None:
            value /= dnf.median(self.peer)
        return Figure(self, value, own, worst.partition("/")[2] if len(names) > 1 else "")

    def said(self, value: float) -> str:
        return f"{value:.{self.digits}f} {self.unit}".strip()

    @property
    def aim_said(self) -> str:
        return "none" if self.aim == 0 else f"at most {self.aim:g} {self.unit}".strip()


@dataclass(frozen=True)
class Figure:
    """What came out: `value` is what the aim is about, `own` the same before it was divided by dnf's."""

    row: Row
    value: float
    own: float
    worst: str

    @property
    def share(self) -> Optional[float]:
        """How much of what is allowed has been used, 1 being all of it; None where nothing is allowed."""
        return None if self.row.aim == 0 else self.value / self.row.aim

    @property
    def kept(self) -> bool:
        # What is told as nothing is nothing: half a kibibyte a refresh is noise.
        return round(self.value, self.row.digits) <= self.row.aim

    @property
    def said(self) -> str:
        return self.row.said(self.value) + (f" ({self.worst})" if self.worst else "")


LISTING = "of `dnf -q list -C`"

UPGRADE = "of `dnf -C -y upgrade`"

ROWS = (
    Row("start", "exec to filled, sorted, enabled table", "start", 0.5, LISTING, 2, "seconds"),
    Row("refresh", "Re&fresh", "refresh", 0.4, LISTING, 2, "seconds"),
    Row("filter", "state filter, groups flag, expression; also with all selected", "filter", 50, "ms", 0),
    Row("sort", "sort by any column", "sort", 80, "ms", 0),
    Row("resize", "Re&size: nine columns, all rows", "resize", 80, "ms", 0),
    Row("widths", "columns whose width is not that of a walk over all cells", "widths", 0, "", 0),
    Row("marks", "set marks on all or all out-of-date rows, &Clear Actions", "set and clear marks", 30, "ms", 0),
    Row("search", "search through all 23 fields, nothing matching", "search", 3, "s", 2),
    Row("gap", "longest time without serving events: start and jobs", "longest freeze", 50, "ms", 0),
    Row("describe", "longest freeze at the first &Describe of a package of a repository", "first Describe", 50, "ms", 0),
    Row("memory", "peak memory after the first collection", "peak memory", 1.6, LISTING, 2, "mebibytes"),
    Row("growth", "growth by a refresh, over 50 of them (the log keeps its 14 lines: 2 KiB)", "growth", 0, "", 0),
    Row("log", "longest freeze while 100,000 lines arrive in the log window", "log window", 50, "ms", 0),
    Row("apply", "apply of 2,000 updates: added to dnf's own work", "added to apply", 0.1, "of it", 2),
    Row("upgrade", "the same, from click to new table", "whole apply", 1.1, UPGRADE, 2, "upgrade"),
    Row("scale", "cost from 66,000 to 200,000 packages: power of the size", "power of the size", 1.1, "", 2),
)
IDS = tuple(row.id for row in ROWS)
