# SPDX-License-Identifier: GPL-2.0-or-later
"""The plots as SVG, readable on a light and on a dark page: they bring their own ground."""

from __future__ import annotations

import math
from typing import Callable, Iterable, Sequence
from xml.sax.saxutils import escape

from .report import Times
from .rows import Figure

STYLE = """\
text { font: 13px sans-serif; fill: #24292f; }
.title { font-size: 15px; font-weight: bold; }
.quiet { fill: #57606a; }
.right { text-anchor: end; }
.middle { text-anchor: middle; }
.ground { fill: #ffffff; stroke: #d0d7de; }
.grid { stroke: #d8dee4; }
.aim { stroke: #24292f; stroke-dasharray: 5 3; }
.kept { fill: #2c7fb8; }
.missed { fill: #d95f0e; }
.linear { stroke: #8c959f; stroke-dasharray: 2 3; }
.line { fill: none; stroke-width: 2; }
@media (prefers-color-scheme: dark) {
text { fill: #e6edf3; }
.quiet { fill: #9198a1; }
.ground { fill: #0d1117; stroke: #3d444d; }
.grid { stroke: #2a313c; }
.aim { stroke: #e6edf3; }
.kept { fill: #58a6d6; }
.missed { fill: #f0883e; }
.linear { stroke: #7d8590; }
}
"""
COLOURS = ("#2c7fb8", "#d95f0e", "#31a354", "#9e6ebd", "#c2a000", "#1b9e9e", "#d6508b")
"""Of lines: strong enough on white and on black."""
CHARACTER_WIDTH = 7.5


def _document(width: int, height: int, title: str, parts: Iterable[str]) -> str:
    size = f'viewBox="0 0 {width} {height}" width="{width}" height="{height}"'
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" {size} role="img" aria-label="{escape(title)}">']
    lines += ["<!-- SPDX-License-Identifier: GPL-2.0-or-later -->", f"<style>\n{STYLE}</style>"]
    lines += [f'<rect class="ground" x="0.5" y="0.5" width="{width - 1}" height="{height - 1}" rx="6"/>']
    lines += [_text(20, 28, title, "title"), *parts, "</svg>", ""]
    return "\n".join(lines)


def _text(x: float, y: float, text: str, kinds: str = "") -> str:
    return f'<text x="{x:.1f}" y="{y:.1f}" class="{kinds}">{escape(text)}</text>'


def _line(x1: float, y1: float, x2: float, y2: float, kind: str) -> str:
    return f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" class="{kind}"/>'


def shares(measured: Sequence[Figure]) -> str:
    """A bar for each row: how much of what it may cost it does cost."""
    shown = [figure for figure in measured if figure.share is not None]
    left, right, top, step = 220, 270, 72, 26
    width, bottom = 860, top + step * len(shown)
    reach = max([1.25, *(min(figure.share or 0, 3.0) for figure in shown)])
    scale = (width - left - right) / reach
    parts = [_text(20, 46, "orange: more than the aim, the dashed line", "quiet")]
    for tick in range(math.floor(reach) + 1):
        parts.append(_text(left + tick * scale, top - 12, f"{tick}", "middle quiet"))
        if tick != 1:
            parts.append(_line(left + tick * scale, top - 6, left + tick * scale, bottom, "grid"))
    for number, figure in enumerate(shown):
        length = max(1.0, min(figure.share or 0.0, reach) * scale)
        y = top + number * step + 4
        kind = "kept" if figure.kept else "missed"
        parts.append(_text(left - 10, y + 13, figure.row.short, "right"))
        shape = f'x="{left}" y="{y}" width="{length:.1f}" height="{step - 8}" rx="2"'
        parts.append(f'<rect class="{kind}" {shape}/>')
        value = _value(figure, reach)
        # Beyond the line of the aim where it would lie across it.
        across = length < scale < length + 12 + CHARACTER_WIDTH * len(value)
        parts.append(_text(left + (scale if across else length) + 8, y + 13, value))
    parts.append(_line(left + scale, top - 6, left + scale, bottom, "aim"))
    return _document(width, bottom + 20, "Measured cost as a share of what is allowed", parts)


def _value(figure: Figure, reach: float) -> str:
    # What is compared with another program has no unit, and its words are too long for a bar.
    unit = "" if figure.row.peer else f" {figure.row.unit}".rstrip()
    text = f"{figure.value:.{figure.row.digits}f}{unit} (aim {figure.row.aim:g})"
    share = figure.share or 0.0
    return f"{text}: {share:.0f} times" if share > reach else text


def scale(times: Times) -> str:
    """Seconds over the number of packages, both logarithmic: what is linear runs beside the dotted lines."""
    title = "Cost from 1,000 to 200,000 packages"
    sizes = sorted({size for costs in times.values() for size in costs})
    every = [seconds for costs in times.values() for seconds in costs.values()]
    low, high = math.floor(math.log10(min(every))), math.ceil(math.log10(max(every)))
    left, right, top, bottom, width = 80, 190, 60, 440, 860
    first, last = math.log10(sizes[0]), math.log10(sizes[-1])

    def x_of(size: float) -> float:
        return left + (math.log10(size) - first) / (last - first) * (width - left - right)

    def y_of(seconds: float) -> float:
        return bottom - (math.log10(seconds) - low) / (high - low) * (bottom - top)

    parts = []
    for size in sizes:
        parts.append(_line(x_of(size), top, x_of(size), bottom, "grid"))
        parts.append(_text(x_of(size), bottom + 20, f"{size:,}", "middle quiet"))
    for power in range(low, high + 1):
        parts.append(_line(left, y_of(10.0**power), width - right, y_of(10.0**power), "grid"))
        label = f"{10.0**power:g} s" if power >= 0 else f"{10.0 ** (power + 3):g} ms"
        parts.append(_text(left - 8, y_of(10.0**power) + 4, label, "right quiet"))
        # From each power of ten, what grows like the size.
        growth = min(last - first, high - power)
        if growth > 0:
            end = 10.0 ** (first + growth)
            parts.append(_line(left, y_of(10.0**power), x_of(end), y_of(10.0 ** (power + growth)), "linear"))
    parts += _curves(times, x_of, y_of, width - right + 10)
    parts.append(_text(20, 46, "dotted: exactly linear", "quiet"))
    return _document(width, bottom + 40, title, parts)


def _curves(
    times: Times, x_of: Callable[[float], float], y_of: Callable[[float], float], label_x: float
) -> list[str]:
    parts = []
    ends = []
    for number, (what, costs) in enumerate(times.items()):
        colour = COLOURS[number % len(COLOURS)]
        points = " ".join(f"{x_of(size):.1f},{y_of(costs[size]):.1f}" for size in sorted(costs))
        parts.append(f'<polyline class="line" stroke="{colour}" points="{points}"/>')
        for size, seconds in costs.items():
            parts.append(f'<circle cx="{x_of(size):.1f}" cy="{y_of(seconds):.1f}" r="3.5" fill="{colour}"/>')
        ends.append((y_of(costs[max(costs)]), what, colour))
    lowest = -math.inf
    for y, what, colour in sorted(ends):
        # Labels of lines that end side by side must not lie on each other.
        lowest = max(y, lowest + 18)
        parts.append(f'<rect x="{label_x}" y="{lowest - 5:.1f}" width="10" height="10" fill="{colour}"/>')
        parts.append(_text(label_x + 16, lowest + 4, what))
    return parts
