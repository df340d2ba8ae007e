# SPDX-License-Identifier: GPL-2.0-or-later
"""The report as Markdown."""

from __future__ import annotations

import contextlib
import os
import platform
from pathlib import Path
from typing import Iterable, Mapping, NamedTuple, Optional, Sequence

from vemyum.choice import DNF4, NAMES

from .rows import LISTING, UPGRADE, Figure, Row, rows_of
from .samples import Samples

Times = Mapping[str, Mapping[int, float]]
"""By scenario and number of packages: seconds."""


class Measured(NamedTuple):
    """What has been measured with a package library: the program, and the library's own command line."""

    backend: str
    samples: Samples
    dnf: Samples
    first: Optional[Samples] = None
    """The program's with the first library of the run, where this is another one."""

    def figures(self, wanted: Iterable[str]) -> list[Figure]:
        return figures(self.samples, self.dnf, wanted, self.backend, self.first)


def machine() -> str:
    words = [f"{os.cpu_count()} processors", platform.machine(), f"Python {platform.python_version()}"]
    with contextlib.suppress(OSError):
        for line in Path("/proc/cpuinfo").read_text().splitlines():
            if line.startswith("model name"):
                words.insert(0, line.partition(":")[2].strip())
                break
    return ", ".join(words)


def figures(
    samples: Samples, dnf: Samples, wanted: Iterable[str], backend: str = DNF4, first: Optional[Samples] = None
) -> list[Figure]:
    found = [row.figure(samples, dnf, first) for row in rows_of(backend) if row.id in set(wanted)]
    return [figure for figure in found if figure is not None]


def table(head: Sequence[str], align: str, rows: Iterable[Sequence[str]]) -> list[str]:
    """`align` has one letter for each column, l or r."""
    rule = "|".join("---:" if letter == "r" else "---" for letter in align)
    return [f"| {' | '.join(head)} |", f"|{rule}|", *(f"| {' | '.join(row)} |" for row in rows)]


def _share(figure: Figure) -> str:
    if figure.share is None:
        return "kept" if figure.kept else "**missed**"
    text = f"{figure.share:.2f}"
    return text if figure.kept else f"**{text}**"


def main_table(measured: Sequence[Figure]) -> list[str]:
    rows = [(f.row.what, f.said, f.row.aim_said, _share(f)) for f in measured]
    return table(("what", "measured", "aim", "share of the aim"), "lrrr", rows)


def pair_table(ours: Sequence[Figure], theirs: Sequence[Figure], names: tuple[str, str]) -> list[str]:
    """Two builds side by side; the last column is the first one's figure by the second one's."""
    others = {figure.row.id: figure for figure in theirs}
    rows = []
    for figure in ours:
        other = others.get(figure.row.id)
        ratio = f"{figure.own / other.own:.2f}" if other and other.own else ""
        rows.append((figure.row.what, figure.row.aim_said, figure.said, other.said if other else "", ratio))
    return table(("what", "aim", *names, "first / second"), "lrrrr", rows)


def single_table(samples: Samples, rows: Iterable[Row]) -> list[str]:
    """Median, least and most of each thing that was measured."""
    lines = []
    for name in _names(samples, rows):
        values = samples.values(name)
        numbers = (samples.median(name), min(values), max(values))
        lines.append([name.replace("/", ": ", 1), *(f"{number:.2f}" for number in numbers)])
    return table(("what", "median", "least", "most"), "lrrr", lines)


def single_pairs(ours: Samples, theirs: Samples, rows: Iterable[Row]) -> list[str]:
    """Medians of two builds, and the least that each has needed, which a busy machine disturbs less."""
    lines = []
    for name in _names(ours, rows):
        if name in theirs:
            least = (min(ours.values(name)), min(theirs.values(name)))
            cells = [f"{number:.2f}" for number in (ours.median(name), theirs.median(name), *least)]
            ratio = f"{least[0] / least[1]:.2f}" if least[1] else ""
            lines.append([name.replace("/", ": ", 1), *cells, ratio])
    head = ("what", "first", "second", "least of first", "of second", "ratio of least")
    return table(head, "lrrrrr", lines)


def _names(samples: Samples, rows: Iterable[Row]) -> list[str]:
    return [name for row in rows for name in samples.names_of(row.id)]


def scale_table(times: Times) -> list[str]:
    sizes = sorted({size for costs in times.values() for size in costs})
    rows = [
        (what, *(f"{costs[size]:.3f} s" if size in costs else "" for size in sizes))
        for what, costs in times.items()
    ]
    return table(("packages", *(f"{size:,}" for size in sizes)), "l" + "r" * len(sizes), rows)


def report(measured: Sequence[Measured], wanted: Sequence[str], packages: int, runs: int, scale: Times) -> str:
    lines = [f"# What VEM costs on {packages:,} packages", ""]
    lines += [f"Warm caches, medians of {runs} runs (of slow ones fewer), in turns with dnf's."]
    lines += [f"Machine: {machine()}. Written by `bench/run`.", ""]
    lines += main_table([figure for one in measured for figure in one.figures(wanted)])
    lines += ["", "A row's figure is its worst case, which stands in brackets.", ""]
    for one in measured:
        with_which = f" with {NAMES[one.backend]}" if len(measured) > 1 else ""
        lines += [f"## Single figures{with_which}", ""]
        lines += ["In the units of the table above; start, refresh and upgrade in seconds, memory in MiB."]
        lines += ["", *single_table(one.samples, (row for row in rows_of(one.backend) if row.id in wanted)), ""]
        lines += peers(one)
    if scale:
        lines += ["## Other sizes", "", *scale_table(scale), ""]
    return "\n".join(lines)


def peers(measured: Measured) -> list[str]:
    """What stands beside the rows: dnf's own figures, and where an apply's time goes."""
    backend, samples, dnf, _first = measured
    rows = []
    for name, what, unit in (
        ("seconds", f"`{LISTING[backend]}`", "s"),
        ("mebibytes", "its peak memory", "MiB"),
        ("lines", "lines that it lists", ""),
        ("upgrade", f"`{UPGRADE[backend]}`, the same 2,000 updates", "s"),
    ):
        if name in dnf:
            rows.append((what, f"{dnf.median(name):.{2 if unit == 's' else 0}f} {unit}".strip()))
    if "entries" in samples:
        rows.append(("rows of VEM's table", f"{samples.median('entries'):.0f}"))
    for name in samples.names_of("apply seconds"):
        rows.append((f"apply: {name.partition('/')[2]}", f"{samples.median(name):.2f} s"))
    if "log seconds" in samples:
        rows.append(("a refresh during which 100,000 lines arrive", f"{samples.median('log seconds'):.2f} s"))
    return ["## Beside it", "", *table(("what", ""), "lr", rows), ""] if rows else []


def pair_report(both: tuple[Measured, Measured], names: tuple[str, str], wanted: Sequence[str], runs: int) -> str:
    first, second = (one.figures(wanted) for one in both)
    lines = [f"# {names[0]} beside {names[1]}", ""]
    lines += [f"Medians of {runs} alternating runs. Machine: {machine()}."]
    lines += ["", *pair_table(first, second, ("first", "second")), "", "## Single figures", ""]
    shown = (row for row in rows_of(both[0].backend) if row.id in wanted)
    lines += [*single_pairs(both[0].samples, both[1].samples, shown), ""]
    return "\n".join(lines)
