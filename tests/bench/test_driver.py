# SPDX-License-Identifier: GPL-2.0-or-later
"""The benchmark's scenarios find what they press in the program's window, and give the values they promise.

VEM_PROGRAM names the binary, VEM_BENCH_DRIVER the driver.
"""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

import pytest

TOP = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(TOP / "bench"), str(TOP / "estate"), str(TOP / "share/python")]

from rpmestate import Estate  # noqa: E402
from vembench import scenarios  # noqa: E402
from vembench.running import BenchError, Build, Ground, backends, display  # noqa: E402
from vembench.samples import Samples  # noqa: E402

BUILD = Build(Path(os.environ["VEM_PROGRAM"]))


def made(directory: Path, *options: str) -> Estate:
    numbers = ["--packages=300", "--installed=40", "--updates=25"]
    subprocess.run([str(TOP / "bench/make_estate.py"), *numbers, *options, str(directory)], check=True)
    return Estate(directory)


@pytest.fixture(scope="module")
def estate(tmp_path_factory: pytest.TempPathFactory) -> Estate:
    return made(tmp_path_factory.mktemp("bench") / "estate")


@pytest.fixture(params=backends())
def ground(tmp_path: Path, request: pytest.FixtureRequest) -> Ground:
    (tmp_path / "home").mkdir()
    with display() as shown:
        return Ground(Path(os.environ["VEM_BENCH_DRIVER"]), tmp_path / "home", shown, request.param)


def test_a_start_and_a_refresh_are_measured_beside_dnf(ground: Ground, estate: Estate) -> None:
    ours, dnf = Samples(), Samples()
    ground.dnf(estate, "makecache")
    scenarios.listing(ground, estate, dnf)
    scenarios.start(ground, BUILD, estate, ours)
    # dnf lists updates apart from what is installed; the table has one row for a name, and the groups.
    assert dnf.median("lines") >= 300
    assert ours.median("entries") == 275 + 150
    assert 0 < ours.median("refresh") < 60
    assert 0 < ours.median("start") < 60
    assert 10 < ours.median("memory") < 1000
    for name in ("gap/start", "gap/refresh"):
        assert 0 < ours.median(name) < 60_000


def test_every_filter_column_and_button_is_measured(ground: Ground, estate: Estate) -> None:
    ours = Samples()
    scenarios.table(ground, BUILD, estate, ours, walk=True)
    assert len(ours.names_of("filter")) == 2 * (len(scenarios.STATES) + 2 + 2 * len(scenarios.EXPRESSIONS))
    assert len(ours.names_of("typing")) == 2 * len(scenarios.EXPRESSIONS)
    assert len(ours.names_of("sort")) == 2 * 9
    assert len(ours.names_of("marks")) == 3
    assert ours.median("resize/after a refresh") > 0
    assert ours.median("widths") == 0


def test_a_search_loads_the_extra_data_before_it_is_measured(ground: Ground, estate: Estate) -> None:
    ours = Samples()
    scenarios.search(ground, BUILD, estate, ours)
    assert ours.median("search") > 0
    assert len(ours.names_of("gap")) == 2


def test_descriptions_are_measured(ground: Ground, estate: Estate) -> None:
    ours = Samples()
    scenarios.describe(ground, BUILD, estate, ours)
    assert len(ours.names_of("describe")) == 3
    assert all(ours.median(name) > 0 for name in ours.names_of("describe"))


def test_a_stop_is_measured(ground: Ground, estate: Estate) -> None:
    ours = Samples()
    scenarios.stop(ground, BUILD, estate, ours)
    assert ours.median("stop") > 0


def test_lines_reach_the_log_window(ground: Ground, estate: Estate, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(scenarios, "LOG_LINES", 500)
    ours = Samples()
    scenarios.log(ground, BUILD, estate, ours)
    assert ours.median("log") > 0


def test_growth_is_measured(ground: Ground, estate: Estate, monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(scenarios, "REFRESHES", 4)
    monkeypatch.setattr(scenarios, "SETTLING_REFRESHES", 1)
    ours = Samples()
    scenarios.growth(ground, BUILD, estate, ours)
    assert len(ours.names_of("growth")) == 3
    assert ours.median("growth/descriptors a refresh") == 0


def test_an_apply_is_divided_between_dnf_and_the_rest(ground: Ground, tmp_path: Path) -> None:
    real = made(tmp_path / "real", "--real-updates")
    ours, dnf = Samples(), Samples()
    ground.dnf(real, "makecache")
    scenarios.upgrade(ground, real, dnf)
    before = real.installed()
    scenarios.apply(ground, BUILD, real, ours)
    assert real.installed() == before
    parts = ("dnf's own work for the program", "its start, listing, checks, feedback")
    told = [ours.median(f"apply seconds/{part}") for part in parts]
    assert all(seconds > 0 for seconds in told)
    assert sum(told) < ours.median("upgrade")
    assert ours.median("apply seconds/click to question") < ours.median("upgrade")
    assert dnf.median("upgrade") > 0


@pytest.mark.parametrize(
    ("step", "text"),
    (
        ({"do": "press", "value": "Polish"}, 'no enabled button "Polish"'),
        ({"do": "press", "value": "Apply Actions"}, 'no enabled button "Apply Actions"'),
        ({"do": "choose", "value": ["View", "View Nothing"]}, 'no "View Nothing" in "View"'),
        ({"do": "menu", "value": "About"}, "Verified Estate Manager"),
        ({"do": "sing"}, 'unknown step "sing"'),
    ),
)
def test_what_a_step_cannot_do_ends_the_run(
    ground: Ground, estate: Estate, step: "dict[str, object]", text: str
) -> None:
    with pytest.raises(BenchError, match=text):
        ground.program(BUILD, estate, [step])
