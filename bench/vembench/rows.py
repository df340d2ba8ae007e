# SPDX-License-Identifier: GPL-2.0-or-later
"""The rows of the report: what is measured, and what it may cost at most."""

from __future__ import annotations

from dataclasses import dataclass, replace
from typing import Optional

from vemyum.choice import DNF4, DNF5

from .samples import Samples


@dataclass(frozen=True)
class Row:
    """One promise. Its figure is the worst of the medians of all samples that count for it.

    `short` is its name in a plot. `peer` names dnf's samples that the figure is divided by. `aim` is the most
    that the figure may be, in `unit`; an aim of 0 means that there shall be none. With `rival`, it may also be that
    many times what the same took with the first library of the run.
    """

    id: str
    what: str
    short: str
    aim: float
    unit: str
    digits: int
    peer: Optional[str] = None
    rival: float = 0

    def figure(self, samples: Samples, dnf: Samples, first: Optional[Samples] = None) -> Optional["Figure"]:
        """None when it wasn't measured."""
        names = samples.names_of(self.id)
        if not names or (self.peer is not None and self.peer not in dnf):
            return None
        worst = max(names, key=samples.median)
        value = samples.median(worst)
        by = 1.0 if self.peer is None else dnf.median(self.peer)
        row = self
        if self.rival and first is not None and self.id in first:
            row = replace(self, aim=max(self.aim, round(self.rival * first.median(self.id) / by, self.digits)))
        return Figure(row, value / by, value, worst.partition("/")[2] if len(names) > 1 else "")

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


LISTING = {DNF4: "dnf -q list -C", DNF5: "dnf5 -q list -C"}

# With -C, dnf 5 fetches no package, not even from this machine. The metadata is never old enough to be fetched.
UPGRADE = {DNF4: "dnf -C -y upgrade", DNF5: "dnf5 -y upgrade"}

PEERS = {"seconds": LISTING, "mebibytes": LISTING, "upgrade": UPGRADE}
"""The command lines whose samples figures are divided by, each by library."""


def beside(peer: str, backend: str = DNF4) -> str:
    return f"of `{PEERS[peer][backend]}`"


ROWS = (
    Row("start", "exec to filled, sorted, enabled table", "start", 0.5, beside("seconds"), 2, "seconds"),
    Row("refresh", "Re&fresh", "refresh", 0.4, beside("seconds"), 2, "seconds"),
    Row("filter", "state filter, groups flag, expression; also with all selected", "filter", 50, "ms", 0),
    Row("typing", "longest freeze while the table follows the typing", "typing", 50, "ms", 0),
    Row("sort", "sort by any column", "sort", 80, "ms", 0),
    Row("resize", "Re&size: nine columns, all rows", "resize", 80, "ms", 0),
    Row("widths", "columns whose width is not that of a walk over all cells", "widths", 0, "", 0),
    Row("marks", "set marks on all or all out-of-date rows, &Clear Actions", "set and clear marks", 30, "ms", 0),
    Row("search", "search through all 23 fields, nothing matching", "search", 0.5, "s", 2),
    Row("first", "the first search: loads the extra data, and reads all fields of all rows", "first search", 6, "s", 1),
    Row("gap", "longest time without serving events: start and jobs", "longest freeze", 50, "ms", 0),
    Row("describe", "longest freeze at the first &Describe of a package of a repository", "first Describe", 50, "ms", 0),
    Row("history", "window of 10,000 transactions, to the latest one in full", "history", 0.5, "s", 2),
    Row("advisories", "window of 5,000 advisories, to the latest one in full", "advisories", 0.5, "s", 2),
    Row("stop", "Stop during a download from a server that is silent, to the ready window", "stop", 1, "s", 2),
    Row("memory", "peak memory after the first collection", "peak memory", 1.6, beside("mebibytes"), 2, "mebibytes"),
    Row("growth", "growth by a refresh, over 50 of them (the log keeps its 14 lines: 2 KiB)", "growth", 0, "", 0),
    Row("log", "longest freeze while 100,000 lines arrive in the log window", "log window", 50, "ms", 0),
    Row("apply", "apply of 2,000 updates: added to dnf's own work", "added to apply", 0.1, "of it", 2),
    Row("upgrade", "the same, from click to new table", "whole apply", 1.1, beside("upgrade"), 2, "upgrade"),
    Row("scale", "cost from 66,000 to 200,000 packages: power of the size", "power of the size", 1.1, "", 2),
)
IDS = tuple(row.id for row in ROWS)

OF_DNF5 = {
    "start": {"aim": 0.6, "rival": 1.1},
    "refresh": {"aim": 0.6, "rival": 1.1},
}
"""Where the promise is another one with dnf 5, whose command line is quicker than dnf 4's."""


def rows_of(backend: str) -> tuple[Row, ...]:
    """What the program promises with a package library."""
    if backend == DNF4:
        return ROWS
    return tuple(
        replace(
            row,
            what=f"{row.what}, with dnf 5",
            short=f"{row.short}, dnf 5",
            unit=beside(row.peer, backend) if row.peer else row.unit,
            **OF_DNF5.get(row.id, {}),  # type: ignore[arg-type]
        )
        for row in ROWS
    )
