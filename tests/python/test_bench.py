# SPDX-License-Identifier: GPL-2.0-or-later
"""The large estate has the numbers asked for, and the benchmark measures what it says."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
TOP = HERE.parents[1]
sys.path[:0] = [str(HERE), str(TOP / "estate")]

from dnfreport import dnf_report  # noqa: E402
from rpmestate import Estate  # noqa: E402

NUMBERS = ["--packages=300", "--installed=40", "--updates=25"]

READY_PROGRAM = """#!/usr/bin/python3
import os, sys
assert os.environ["VEM_BENCH"] == "1" and os.path.isdir(os.environ["VEMROOT"])
block = bytearray(64 << 20)
print("vem: ready 275 rows", file=sys.stderr)
"""

SILENT_PROGRAM = """#!/usr/bin/python3
"""


@pytest.fixture(name="estate", scope="module")
def fixture_estate(tmp_path_factory: pytest.TempPathFactory) -> Estate:
    directory = tmp_path_factory.mktemp("bench") / "estate"
    subprocess.run([str(TOP / "bench/make_estate.py"), *NUMBERS, str(directory)], check=True)
    return Estate(directory)


def run_bench(estate: Estate, text: str) -> "subprocess.CompletedProcess[str]":
    program = estate.directory / "build/shell/vem"
    program.parent.mkdir(parents=True, exist_ok=True)
    program.write_text(text)
    program.chmod(0o755)
    results = estate.directory / "results.md"
    places = ["--program", str(program), "--estate", str(estate.directory), "--results", str(results)]
    return subprocess.run(
        [str(TOP / "bench/run"), "--runs=2", *NUMBERS, *places],
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        encoding="utf-8",
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


def test_reports_time_and_memory_as_ratios(estate: Estate) -> None:
    done = run_bench(estate, READY_PROGRAM)
    assert done.returncode == 0, done.stderr
    text = (estate.directory / "results.md").read_text(encoding="utf-8")
    assert text.strip() == done.stdout.strip().split("\n", 1)[1].strip()
    table = [line.split("|") for line in text.splitlines() if line.startswith("|")]
    rows = {cells[1].strip(): cells for cells in table}
    seconds = float(rows["wall clock, from exec"][3].split()[0])
    mebibytes = float(rows["peak memory"][3].split()[0])
    assert 0 < seconds < 60
    assert 64 < mebibytes < 128
    assert rows["lines listed, rows shown"][3].strip() == "275"


def test_a_program_without_the_mark_is_reported(estate: Estate) -> None:
    done = run_bench(estate, SILENT_PROGRAM)
    assert done.returncode == 1
    assert 'never said "vem: ready"' in done.stderr
