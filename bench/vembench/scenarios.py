# SPDX-License-Identifier: GPL-2.0-or-later
"""What is done in the program while it is measured, and which values that gives."""

from __future__ import annotations

import contextlib
import json
import os
import shutil
import socket
import sqlite3
import tempfile
from pathlib import Path
from typing import Any, Sequence

from rpmestate import Estate, add_updateinfo, run, spec

from .rows import UPGRADE
from .running import BenchError, Build, Ground, Line, Step
from .samples import Samples, slope

COLUMNS = ("Action", "State", "Kind", "Name", "Version", "Repository", "Architecture", "Size", "Build Time")
STATES = ("View Removable", "View Installable", "View Updatable", "View All")
EXPRESSIONS = (
    # Names of the estate begin with one of 20 words, then one of 19 others.
    ("alder(bank|bark|bell|bridge)-", "1 %"),
    ("(alder|ash|beck|birch|brine|bracken|clay|cove|curlew|dune)[a-z]+-", "50 %"),
    ("[a-z]-[a-z]", "100 %"),
)
NOTHING = "no such words anywhere"
REFRESHES = 50
TRANSACTIONS = 10_000
ADVISORIES = 5_000
SETTLING_REFRESHES = 10
LOG_LINES = 100_000
IN_MEMORY = "/dev/shm" if os.access("/dev/shm", os.W_OK) else None
"""For the roots of the applies: waiting for a disk would hide what is measured."""

EVERYTHING: tuple[Step, ...] = (
    {"do": "choose", "value": ["View", "View All"]},
    {"do": "check", "value": ["Include Groups", True]},
)
"""Brings all rows into the table."""


def start(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    """exec to table, memory after it, and one refresh."""
    first, refresh = ground.program(build, estate, [{"do": "press", "value": "Refresh"}])
    samples.add("start", first["seconds"])
    samples.add("memory", first["peak"] / 1024)
    samples.add("entries", first["entries"])
    samples.add("gap/start", first["gap"])
    samples.add("refresh", refresh["ms"] / 1000)
    samples.add("gap/refresh", refresh["gap"])


def listing(ground: Ground, estate: Estate, samples: Samples) -> None:
    """What start, refresh and memory are compared with."""
    run = ground.dnf(estate, "list", "-C")
    samples.add("seconds", run.seconds)
    samples.add("mebibytes", run.mebibytes)
    samples.add("lines", run.lines)


def filter_steps() -> list[Step]:
    steps: list[Step] = []
    for selected in (False, True):
        mark = ", all rows selected" if selected else ""
        # What was selected is gone after each change.
        select: list[Step] = [{"do": "select", "value": True}] if selected else []
        for state in STATES:
            steps += select
            steps.append({"do": "choose", "value": ["View", state], "name": f"filter/{state}{mark}"})
        for on in (False, True):
            steps += select
            name = f"filter/groups {'on' if on else 'off'}{mark}"
            steps.append({"do": "check", "value": ["Include Groups", on], "name": name})
        for expression, share in EXPRESSIONS:
            steps.append({"do": "type", "value": expression})
            steps += select
            name = f"filter/expression that keeps {share}{mark}"
            steps.append({"do": "press", "value": "Filter", "name": name})
            steps.append({"do": "type", "value": ".*"})
            steps += select
            name = f"filter/no expression after {share}{mark}"
            steps.append({"do": "press", "value": "Filter", "name": name})
    return steps


def typing_steps() -> list[Step]:
    """What counts is how long the window stands still while the table follows."""
    steps: list[Step] = []
    for expression, share in EXPRESSIONS:
        steps.append({"do": "write", "value": expression, "name": f"typing/expression that keeps {share}"})
        steps.append({"do": "write", "value": ".*", "name": f"typing/no expression after {share}"})
    return steps


def sort_steps() -> list[Step]:
    steps: list[Step] = []
    for number, title in enumerate(COLUMNS):
        steps.append({"do": "reveal", "value": number})
        for turn in ("first", "second"):
            steps.append({"do": "header", "value": number, "name": f"sort/{title}, {turn} click"})
    return steps


def table(ground: Ground, build: Build, estate: Estate, samples: Samples, walk: bool = False) -> None:
    """Everything that a click in the table's surroundings does without a job, over all rows.

    `walk` also compares the column widths with those of a walk over all cells, which takes seconds.
    """
    steps: list[Step] = [*EVERYTHING, *filter_steps(), *typing_steps(), *sort_steps()]
    # The rows that are there have been measured at the start, those of a refresh have not.
    steps.append({"do": "press", "value": "Resize", "name": "resize/again"})
    steps.append({"do": "press", "value": "Refresh"})
    steps.append({"do": "press", "value": "Resize", "name": "resize/after a refresh"})
    if walk:
        steps.append({"do": "walk"})
    steps.append({"do": "select", "value": True})
    for button in ("Set Install/Update of Selected", "Clear Actions", "Set Update of All Out-of-Date"):
        steps.append({"do": "press", "value": button, "name": f"marks/{button}"})
    steps.append({"do": "press", "value": "Clear Actions"})
    for line in ground.program(build, estate, steps)[1:]:
        if "name" in line:
            samples.add(line["name"], line["gap" if line["do"] == "write" else "ms"])
        if line.get("do") == "walk":
            differ = [a != b for a, b in zip(line["widths"], line["walked"])]
            samples.add("widths", sum(differ))


def search(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    steps: list[Step] = [
        # Loads the extra data and reads all rows, of which few are to be searched.
        {"do": "choose", "value": ["View", "View Updatable"]},
        {"do": "choose", "value": ["Filter or Search", "Search"]},
        {"do": "type", "value": f"{NOTHING} (1)"},
        {"do": "press", "value": "Search", "name": "load"},
        {"do": "type", "value": ".*"},
        {"do": "press", "value": "Search"},
        *EVERYTHING,
        {"do": "type", "value": f"{NOTHING} (2)"},
        {"do": "press", "value": "Search", "name": "search"},
    ]
    for line in ground.program(build, estate, steps)[1:]:
        if line.get("name") == "search":
            if line["rows"] != 0:
                raise BenchError(f"The search found {line['rows']} rows, it should find none.")
            samples.add("search", line["ms"] / 1000)
            samples.add("gap/search", line["gap"])
        elif line.get("name") == "load":
            samples.add("first", line["ms"] / 1000)
            samples.add("gap/loading of the extra data", line["gap"])


def describe(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    """The first question about a package of a repository, also after a refresh, which forgets what was read."""
    steps: list[Step] = [
        {"do": "choose", "value": ["View", "View Installable"]},
        {"do": "describe", "value": 0, "name": "describe/after the start"},
        {"do": "describe", "value": 1, "name": "describe/again"},
        {"do": "press", "value": "Refresh"},
        {"do": "describe", "value": 0, "name": "describe/after a refresh"},
    ]
    for line in ground.program(build, estate, steps)[1:]:
        if "name" in line:
            samples.add(line["name"], line["gap"])


def small_system(directory: Path, server: str, **options: str) -> Estate:
    """One installed package, and an update of it."""
    estate = Estate(directory)
    old, new = estate.build([spec("still-water", "1"), spec("still-water", "2")])
    estate.write_main_config(**options)
    repository = estate.repository("dock", [new])
    if server:
        run(["createrepo_c", "--quiet", "--baseurl", server, repository])
    estate.install([old])
    return estate


def history(ground: Ground, build: Build, _estate: Estate, samples: Samples) -> None:
    """On a system of its own, where the same update has been made again and again."""
    with tempfile.TemporaryDirectory(dir=IN_MEMORY) as directory:
        estate = small_system(Path(directory), "")
        ground.dnf(estate, "makecache")
        ground.dnf(estate, *UPGRADE[ground.backend].split()[1:])
        (database,) = estate.root.rglob("*history.sqlite")
        repeat_transaction(database, TRANSACTIONS)
        steps: list[Step] = [{"do": "menu", "value": "History", "name": "history", "table": "History"}]
        line = ground.program(build, estate, steps)[-1]
    if line["listed"] != TRANSACTIONS:
        raise BenchError(f"{line['listed']} transactions are listed, it should be {TRANSACTIONS}.")
    samples.add("history", line["ms"] / 1000)
    samples.add("gap/history", line["gap"])


def advisories(ground: Ground, build: Build, _estate: Estate, samples: Samples) -> None:
    """On a system of its own, about whose one installed package there are all of them."""
    with tempfile.TemporaryDirectory(dir=IN_MEMORY) as directory:
        estate = small_system(Path(directory), "")
        add_updateinfo(estate.repos_dir / "dock", updateinfo(ADVISORIES))
        steps: list[Step] = [{"do": "menu", "value": "Advisories", "name": "advisories", "table": "Advisories"}]
        line = ground.program(build, estate, steps)[-1]
    if line["listed"] != ADVISORIES:
        raise BenchError(f"{line['listed']} advisories are listed, it should be {ADVISORIES}.")
    samples.add("advisories", line["ms"] / 1000)
    samples.add("gap/advisories", line["gap"])


def updateinfo(count: int) -> str:
    """So many advisories about the update of `small_system`, each of which names it."""
    package = (
        '<pkglist><collection><name>dock</name><package name="still-water" epoch="0" version="2" release="1"'
        ' arch="noarch"><filename>still-water-2-1.noarch.rpm</filename></package></collection></pkglist>'
    )
    each = (
        '<update from="bench" status="final" type="security" version="1"><id>BENCH-{0}</id><title>Advisory {0}</title>'
        '<issued date="2024-03-05 12:00:00"/><severity>Important</severity><description>Of {0}.</description>'
        '<references><reference href="https://bench.example/{0}" id="CVE-2024-{0}" title="" type="cve"/></references>'
        "{1}</update>"
    )
    return f"<updates>{''.join(each.format(number, package) for number in range(1, count + 1))}</updates>"


def repeat_transaction(database: Path, times: int) -> None:
    """Makes of a history's one transaction so many, each with the same packages."""
    counted = (
        "WITH RECURSIVE counted(number) AS"
        f" (SELECT 2 UNION ALL SELECT number + 1 FROM counted WHERE number < {times}) "
    )
    with contextlib.closing(sqlite3.connect(database)) as connection, connection:
        for table, key in (("trans", "id"), ("trans_item", "trans_id")):
            names = [row[1] for row in connection.execute(f"PRAGMA table_info({table})")]
            others = ", ".join(name for name in names if name not in ("id", key))
            connection.execute(
                f"{counted}INSERT INTO {table} ({key}, {others}) SELECT number, {others} FROM counted, {table}"
                f" WHERE {table}.{key} = 1"
            )


def stop(ground: Ground, build: Build, _estate: Estate, samples: Samples) -> None:
    """On a system of its own: one update, from a server that accepts connections and never says a word."""
    with tempfile.TemporaryDirectory() as directory, socket.socket() as server:
        server.bind(("127.0.0.1", 0))
        server.listen()
        estate = small_system(Path(directory), f"http://127.0.0.1:{server.getsockname()[1]}/", timeout="600")
        steps: list[Step] = [
            {"do": "press", "value": "Set Update of All Out-of-Date"},
            {"do": "stop", "value": "Apply Actions", "name": "stop"},
        ]
        line = ground.program(build, estate, steps)[-1]
    if line["rows"] != 1:
        raise BenchError(f"{line['rows']} rows are left behind the stop, it should be one.")
    samples.add("stop", line["ms"] / 1000)


def growth(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    steps: list[Step] = [{"do": "press", "value": "Refresh"}] * REFRESHES
    lines = ground.program(build, estate, steps)[1:]
    add_growth(lines, samples)


def add_growth(lines: Sequence[Line], samples: Samples) -> None:
    """The first refreshes fill caches; from then on nothing may grow but the log, which keeps all its lines."""
    settled = lines[SETTLING_REFRESHES:]
    # What is resident tells less: the allocators take and give back megabytes at a time.
    for what, name in (
        ("allocated", "memory, KiB a refresh"),
        ("blocks", "Python's blocks a refresh"),
        ("descriptors", "descriptors a refresh"),
    ):
        samples.add(f"growth/{name}", max(0.0, slope([line[what] for line in settled])))


def log(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    steps: list[Step] = [
        {"do": "menu", "value": "Log"},
        {"do": "press", "value": "Refresh", "name": "log"},
    ]
    lines = ground.program(build, estate, steps, {"VEM_BENCH_LINES": str(LOG_LINES)})
    samples.add("log", lines[-1]["gap"])
    samples.add("log seconds", lines[-1]["ms"] / 1000)


def apply(ground: Ground, build: Build, estate: Estate, samples: Samples) -> None:
    """All updates of a copy of the estate. `estate` stays as it is."""
    with tempfile.TemporaryDirectory(dir=IN_MEMORY) as directory:
        place = Path(directory)
        copy = copied(estate, place / "estate")
        steps: list[Step] = [
            {"do": "press", "value": "Set Update of All Out-of-Date"},
            {"do": "press", "value": "Apply Actions", "name": "apply"},
        ]
        lines = ground.program(build, copy, steps, {"VEM_BENCH_TIMES": str(place / "times")})
        times: dict[str, Any] = json.loads((place / "times").read_text(encoding="utf-8"))
    if lines[-1]["rows"] != 0:
        raise BenchError(f"{lines[-1]['rows']} packages were not updated.")
    samples.add("apply", times["rest"] / times["dnf"])
    samples.add("apply seconds/dnf's own work for the program", times["dnf"])
    samples.add("apply seconds/its start, listing, checks, feedback", times["rest"])
    samples.add("apply seconds/click to question", lines[-1]["asked"] / 1000)
    samples.add("upgrade", lines[-1]["ms"] / 1000)
    samples.add("gap/apply", lines[-1]["gap"])


def upgrade(ground: Ground, estate: Estate, samples: Samples) -> None:
    """The same transaction by dnf, on a copy of its own."""
    with tempfile.TemporaryDirectory(dir=IN_MEMORY) as directory:
        copy = copied(estate, Path(directory) / "estate")
        samples.add("upgrade", ground.dnf(copy, *UPGRADE[ground.backend].split()[1:]).seconds)


def copied(estate: Estate, directory: Path) -> Estate:
    """An estate with a copy of the root, and with the same repositories."""
    shutil.copytree(estate.root, directory / "root", symlinks=True)
    return Estate(directory)


def costs(samples: Samples) -> dict[str, float]:
    """Seconds of what is compared between estates of several sizes, as far as it was measured."""
    result = {}
    for row, what, unit in (
        ("start", "start", 1),
        ("refresh", "refresh", 1),
        ("filter", "worst filter", 1000),
        ("sort", "worst sort", 1000),
        ("marks", "all marks", 1000),
        ("resize", "resize", 1000),
        ("search", "search", 1),
    ):
        names = samples.names_of(row)
        if names:
            result[what] = max(samples.median(name) for name in names) / unit
    return result
