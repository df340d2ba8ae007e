# SPDX-License-Identifier: GPL-2.0-or-later
"""What the benchmark makes of measured values: medians, ratios, the report's text, and well-formed plots."""

from __future__ import annotations

import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import pytest

TOP = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(TOP / "bench"), str(TOP / "estate"), str(TOP / "share/python")]

from vembench import plots, report  # noqa: E402
from vembench.report import Measured  # noqa: E402
from vembench.rows import ROWS, Figure, Row, rows_of  # noqa: E402
from vembench.running import BenchError, parsed  # noqa: E402
from vembench.samples import Samples, exponent, slope  # noqa: E402
from vembench.scenarios import add_growth, costs  # noqa: E402

SVG = "{http://www.w3.org/2000/svg}"
SORT = next(row for row in ROWS if row.id == "sort")
START = next(row for row in ROWS if row.id == "start")
GROWTH = next(row for row in ROWS if row.id == "growth")


def samples(**values: "list[float]") -> Samples:
    result = Samples()
    for name, measured in values.items():
        for value in measured:
            result.add(name.replace("__", "/"), value)
    return result


def figure_of(row: Row, ours: Samples, dnf: Samples = Samples()) -> Figure:
    figure = row.figure(ours, dnf)
    assert figure is not None
    return figure


def test_a_figure_is_the_worst_of_the_medians() -> None:
    figure = figure_of(SORT, samples(sort__Name=[10, 90, 20], sort__Size=[30, 31, 500], sorted__x=[999]))
    assert (figure.value, figure.worst) == (31, "Size")
    assert figure.share == pytest.approx(31 / 80)
    assert figure.kept


def test_a_figure_with_a_peer_is_a_ratio_of_medians() -> None:
    dnf = samples(seconds=[1.0, 2.0, 9.0])
    figure = figure_of(START, samples(start=[1.4, 1.5, 7.0]), dnf)
    assert figure.value == pytest.approx(0.75)
    assert figure.own == pytest.approx(1.5)
    assert figure.share == pytest.approx(1.5)
    assert not figure.kept
    assert START.figure(samples(start=[1.4]), Samples()) is None


def test_a_start_with_dnf_5_may_take_a_little_longer_than_with_dnf_4() -> None:
    row = next(row for row in rows_of("dnf5") if row.id == "start")
    ours, dnf = samples(start=[1.0]), samples(seconds=[1.25])
    alone, quick, slow = (row.figure(ours, dnf, samples(start=[one]) if one else None) for one in (0, 0.5, 1.0))
    assert alone is not None and quick is not None and slow is not None
    assert (alone.row.aim, quick.row.aim, slow.row.aim) == (0.6, 0.6, 0.88)
    assert alone.value == slow.value == 0.8 and slow.kept and not alone.kept
    assert slow.row.unit == "of `dnf5 -q list -C`"


def test_what_is_not_allowed_at_all_has_no_share() -> None:
    assert figure_of(GROWTH, samples(growth=[0.4])).kept
    missed = figure_of(GROWTH, samples(growth=[7.0]))
    assert not missed.kept
    assert missed.share is None


def test_growth_is_told_after_the_first_refreshes() -> None:
    def lines(memory: "list[int]") -> "list[dict[str, int]]":
        return [
            {"resident": 1, "allocated": value, "blocks": 300 - at, "descriptors": 20 + at}
            for at, value in enumerate(memory)
        ]

    ours = Samples()
    add_growth(lines([100 * turn for turn in range(10)] + [2000] * 40), ours)
    assert ours.median("growth/memory, KiB a refresh") == 0
    assert ours.median("growth/Python's blocks a refresh") == 0
    assert ours.median("growth/descriptors a refresh") == 1


def test_a_jump_is_no_slope_and_a_steady_growth_is() -> None:
    assert slope([5.0] * 20 + [90.0] * 3) == 0
    assert slope([3.0 * turn for turn in range(9)]) == 3
    assert slope([1.0]) == 0


def test_linear_costs_have_the_exponent_one() -> None:
    assert exponent((66_000, 1.0), (200_000, 200 / 66)) == pytest.approx(1)
    assert exponent((1_000, 1.0), (10_000, 100.0)) == pytest.approx(2)


def test_odd_lines_of_the_driver_are_refused() -> None:
    assert parsed('{"name": "start"}\n{"ms": 1.5}\n') == [{"name": "start"}, {"ms": 1.5}]
    for text in ("[1]\n", '{"ms": \n'):
        with pytest.raises(BenchError, match="something odd"):
            parsed(text)


def measured() -> Samples:
    every = samples(
        start=[0.6], refresh=[0.3], memory=[150], search=[2], resize=[70], widths=[0], log=[20], apply=[0.05]
    )
    for name in ("filter/View All", "sort/Name", "marks/Clear Actions", "gap/start", "scale/sort & filter"):
        every.add(name, 10)
    every.add("growth/memory", 12)
    return every


def test_the_report_tells_figure_aim_and_share() -> None:
    dnf = samples(seconds=[1.2], mebibytes=[100.0], lines=[7])
    wanted = [row.id for row in ROWS]
    scale = {"start": {1_000: 0.1, 10_000: 0.2}}
    text = report.report([Measured("dnf4", measured(), dnf)], wanted, 66_000, 5, scale)
    lines = text.splitlines()
    assert "| sort by any column | 10 ms | at most 80 ms | 0.12 |" in lines
    assert f"| {START.what} | 0.50 of `dnf -q list -C` | at most 0.5 of `dnf -q list -C` | 1.00 |" in lines
    assert f"| {GROWTH.what} | 12 | none | **missed** |" in lines
    assert "| start | 0.100 s | 0.200 s |" in lines
    tables = [line for line in lines if line.startswith("|")]
    assert all(line.endswith("|") for line in tables)


def test_a_second_library_has_rows_and_figures_of_its_own() -> None:
    ours, dnf = measured(), samples(seconds=[1.2], mebibytes=[100.0])
    second = Measured("dnf5", samples(start=[0.5], gap=[20]), samples(seconds=[1.0]), ours)
    text = report.report([Measured("dnf4", ours, dnf), second], [row.id for row in ROWS], 66_000, 5, {})
    lines = text.splitlines()
    assert f"| {START.what} | 0.50 of `dnf -q list -C` | at most 0.5 of `dnf -q list -C` | 1.00 |" in lines
    theirs = f"| {START.what}, with dnf 5 | 0.50 of `dnf5 -q list -C` | at most 0.66 of `dnf5 -q list -C` | 0.76 |"
    assert theirs in lines
    assert "sort by any column, with dnf 5" not in text
    assert lines.index("## Single figures with dnf 4") < lines.index("## Single figures with dnf 5")
    assert "| `dnf5 -q list -C` | 1.00 s |" in lines


def test_only_what_was_asked_for_is_reported() -> None:
    text = report.report([Measured("dnf4", measured(), Samples())], ["sort"], 66_000, 5, {})
    assert "sort by any column" in text
    assert "Clear Actions" not in text


def test_two_builds_are_told_as_a_ratio() -> None:
    ours, theirs = samples(sort__Name=[10.0]), samples(sort__Name=[40.0], sort__Size=[30.0])
    theirs.add("sort/Name", 20)
    both = (Measured("dnf4", ours, Samples()), Measured("dnf4", theirs, Samples()))
    text = report.pair_report(both, ("a/vem", "b/vem"), ["sort"], 3)
    lines = text.splitlines()
    assert "| sort by any column | at most 80 ms | 10 ms | 30 ms (Name) | 0.33 |" in lines
    assert "| sort: Name | 10.00 | 30.00 | 10.00 | 20.00 | 0.50 |" in lines


def test_plots_are_well_formed_and_show_every_row() -> None:
    figures = report.figures(measured(), samples(seconds=[1.2], mebibytes=[100.0]), [row.id for row in ROWS])
    root = ElementTree.fromstring(plots.shares(figures))
    bars = [item for item in root.iter(SVG + "rect") if item.get("class") in ("kept", "missed")]
    shown = [figure for figure in figures if figure.share is not None]
    assert len(bars) == len(shown) > 8
    assert [bar.get("class") for bar in bars] == ["kept" if figure.kept else "missed" for figure in shown]


def test_a_very_long_bar_stays_on_the_picture() -> None:
    root = ElementTree.fromstring(plots.shares([figure_of(SORT, samples(sort=[80_000.0]))]))
    width = float(root.get("width", "0"))
    for bar in root.iter(SVG + "rect"):
        assert float(bar.get("x", "0")) + float(bar.get("width", "0")) <= width


def test_the_plot_of_the_sizes_has_a_line_for_each_scenario() -> None:
    times = {"start": {1_000: 0.1, 200_000: 3.0}, "a < b & c": {1_000: 0.001, 200_000: 0.004}}
    root = ElementTree.fromstring(plots.scale(times))
    assert len(list(root.iter(SVG + "polyline"))) == 2
    texts = [item.text for item in root.iter(SVG + "text")]
    assert "a < b & c" in texts
    assert "200,000" in texts


def test_costs_are_the_worst_of_their_kind_in_seconds() -> None:
    found = costs(measured())
    assert found["worst sort"] == 0.01
    assert found["start"] == 0.6
