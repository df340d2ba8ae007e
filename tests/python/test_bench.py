# SPDX-License-Identifier: GPL-2.0-or-later
"""The large estate has the numbers asked for, and the benchmark measures what it says."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
TOP = HERE.parents[1]
sys.path[:0] = [str(HERE), str(TOP / "estate")]

from dnfreport import dnf_report  # noqa: E402
from libraries import BACKEND, by_library  # noqa: E402
from rpmestate import Estate  # noqa: E402

NUMBERS = ["--packages=300", "--installed=40", "--updates=25"]

PROGRAM = """#!/usr/bin/python3
import json, os, time
assert os.path.isdir(os.environ["VEMROOT"]) and os.environ["LD_PRELOAD"].endswith("/driver.so")
with open(os.environ["VEM_BENCH_STEPS"]) as file:
    steps = json.load(file)
first = {"name": "start", "at": time.monotonic(), "gap": 1.5, "peak": 66 * 1024, "entries": 275}
lines = [first] + [{**step, "ms": 250, "gap": 2.5} for step in steps]
with open(os.environ["VEM_BENCH_OUTPUT"], "w") as file:
    file.writelines(json.dumps(line) + "\\n" for line in lines)
"""

FAULTY_PROGRAM = """#!/usr/bin/python3
import os
with open(os.environ["VEM_BENCH_OUTPUT"], "w") as file:
    print('{"error": "no enabled button \\\\"Refresh\\\\""}', file=file)
raise SystemExit(3)
"""

SILENT_PROGRAM = """#!/usr/bin/python3
print("an older one")
"""


@pytest.fixture(name="estate", scope="module")
def fixture_estate(tmp_path_factory: pytest.TempPathFactory) -> Estate:
    directory = tmp_path_factory.mktemp("bench") / "estate"
    subprocess.run([str(TOP / "bench/make_estate.py"), *NUMBERS, str(directory)], check=True)
    return Estate(directory)


def run_bench(estate: Estate, text: str, *more: str) -> "subprocess.CompletedProcess[str]":
    program = estate.directory / "build/shell/vem"
    program.parent.mkdir(parents=True, exist_ok=True)
    program.write_text(text)
    program.chmod(0o755)
    (estate.directory / "driver.so").touch()
    places = ["--program", str(program), "--driver", str(estate.directory / "driver.so")]
    places += ["--estate", str(estate.directory)]
    rows = ["--only", "start", "refresh", "memory", *more]
    return subprocess.run(
        [str(TOP / "bench/run"), "--runs=2", *NUMBERS, *places, *rows],
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        encoding="utf-8",
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
    )


def test_has_the_numbers_that_were_asked_for(estate: Estate) -> None:
    report = dnf_report(estate)
    assert len(report["installed"]) == 40
    assert len(report["upgrades"]) == 25
    assert len(report["available"]) == 300 - 25 - 40
    assert len(report["groups"]) == 150


def test_installed_packages_have_what_they_require(estate: Estate) -> None:
    assert estate.rpm("--verify", "--all", "--nofiles", "--noscripts") == ""


def test_a_complete_estate_is_kept(estate: Estate) -> None:
    before = (estate.root / "var/lib/rpm/rpmdb.sqlite").stat().st_ino
    subprocess.run([str(TOP / "bench/make_estate.py"), *NUMBERS, str(estate.directory)], check=True)
    assert (estate.root / "var/lib/rpm/rpmdb.sqlite").stat().st_ino == before


def test_updates_can_be_installed_where_that_was_asked_for(tmp_path: Path) -> None:
    command = [str(TOP / "bench/make_estate.py"), "--packages=60", "--installed=20", "--updates=15"]
    subprocess.run([*command, "--real-updates", str(tmp_path / "estate")], check=True)
    estate = Estate(tmp_path / "estate")
    rpms = sorted((estate.repos_dir / "updates").glob("*.rpm"))
    assert len(rpms) == 15
    estate.install(rpms)
    assert len(estate.installed()) == 20
    assert dnf_report(estate)["upgrades"] == []


def test_reports_ratios_to_dnf_and_writes_them_where_it_is_told(estate: Estate, tmp_path: Path) -> None:
    done = run_bench(estate, PROGRAM, "--backends", BACKEND, "--results", str(tmp_path))
    assert done.returncode == 0, done.stderr
    text = (tmp_path / "results.md").read_text(encoding="utf-8")
    assert text.strip() == done.stdout.strip()
    table = [line.split("|") for line in text.splitlines() if line.startswith("|")]
    rows = {cells[1].strip(): [cell.strip() for cell in cells] for cells in table}
    mark = by_library("", ", with dnf 5")
    dnf_seconds = float(rows[by_library("`dnf -q list -C`", "`dnf5 -q list -C`")][2].split()[0])
    dnf_mebibytes = float(rows["its peak memory"][2].split()[0])
    assert float(rows["refresh"][2]) == 0.25
    ratio = float(rows["Re&fresh" + mark][2].split()[0])
    # Both are rounded, and a quick command line takes few hundredths of a second.
    assert dnf_seconds == pytest.approx(0.25 / ratio, abs=0.0051 * (1 + dnf_seconds / ratio))
    ratio = float(rows["peak memory after the first collection" + mark][2].split()[0])
    assert ratio == pytest.approx(66 / dnf_mebibytes, rel=0.02, abs=0.02)
    assert 0 < float(rows["start"][2]) < 60
    assert (tmp_path / "results.svg").read_text(encoding="utf-8").startswith("<svg")


def test_two_programs_take_turns(estate: Estate) -> None:
    done = run_bench(estate, PROGRAM, "--against", str(estate.directory / "build/shell/vem"))
    assert done.returncode == 0, done.stderr
    (row,) = [line.split("|") for line in done.stdout.splitlines() if line.startswith("| Re&fresh")]
    assert row[-2].strip() == "1.00"


def test_what_went_wrong_in_the_program_is_reported(estate: Estate) -> None:
    done = run_bench(estate, FAULTY_PROGRAM)
    assert done.returncode == 1
    assert 'no enabled button "Refresh"' in done.stderr


def test_a_scenario_that_fails_leaves_the_others_their_values(estate: Estate) -> None:
    refusal = 'if "View" in str(steps):\n    raise SystemExit("no view")\n'
    failing = PROGRAM.replace("first = ", refusal + "first = ")
    done = run_bench(estate, failing, "sort")
    assert done.returncode == 0, done.stderr
    assert "| refresh | 0.25 |" in done.stdout
    assert "Not measured: " in done.stdout
    assert "no view" in done.stdout


def test_a_program_that_does_no_steps_is_reported(estate: Estate) -> None:
    done = run_bench(estate, SILENT_PROGRAM)
    assert done.returncode == 1
    assert "0 lines for 0 steps" in done.stderr
    assert "an older one" in done.stderr
