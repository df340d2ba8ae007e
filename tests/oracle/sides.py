# SPDX-License-Identifier: GPL-2.0-or-later
"""The two sides of a comparison, each in a process of its own that knows nothing of the other.

The helper package begins as a copy of the process that looks after the cases. The process of an apply is the real one.
"""

from __future__ import annotations

import os
import sys
from pathlib import Path
from typing import Any, Dict, List, NamedTuple, Optional, Sequence, Set, Tuple

from case import Case, Row, Wish
from commands import COMMANDS

TOP = Path(__file__).resolve().parents[2]

# The helper package ------------------------------------------------------------------------------------------


class Read(NamedTuple):
    """What the table rests on: packages as the command line takes them, those that can be had with a repository."""

    installed: List[str]
    updates: List[str]
    available: List[str]
    rows: List[Row]


class Applied(NamedTuple):
    read: Read
    wish: Wish
    refused: str
    """Why not; empty where everything went as it should."""
    listed: Dict[str, List[str]]
    """What was told before the question."""


def nevra(package: Any) -> str:
    po = package.po
    return f"{po.name}-{po.epoch}:{po.version}-{po.release}.{po.arch}"


def helper_package(case: Case, root: Path, home: Path, wish: Optional[Wish] = None) -> Applied:
    """Collects, makes the marks of the case, applies. Marks can be given instead."""
    # A home that knows nothing of the estate: the database must be found without its help.
    os.environ.update(VEMROOT=str(root), HOME=str(home), XDG_CONFIG_HOME=f"{home}/.config")
    os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = f"unix:path={home}/no-bus"
    for folder in (TOP / "share/python", TOP / "tests/python"):
        sys.path.insert(0, str(folder))
    import fake_host
    from program import Program

    stdout = sys.stdout
    program = Program(TOP / "share/python/YumIO.py")
    found = program.collect()
    read = Read(
        [nevra(package) for package in found.installed],
        [f"{nevra(package)} {package.repoid}" for package in found.updates],
        [f"{nevra(package)} {package.repoid}" for package in found.available],
        _rows(found),
    )
    if wish is None:
        wish = case.marks(read.rows)
    rows = {row.name: row for row in read.rows}
    updates = [name for name in wish.updates if rows[name].there]
    # What replaces a package of another name has no installed version of its own.
    replacing = [name for name in wish.updates if not rows[name].there]
    installs = [found.offered(name) for name in wish.installs] + [found.update(name) for name in replacing]
    listed: Dict[str, List[str]] = {}

    def look(holder: Any) -> None:
        for name in ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved"):
            listed[name] = ["{0}-{2}:{3}-{4}.{1}".format(*member.pkgtup) for member in getattr(holder.tsInfo, name)]

    fake_host.HOST.reset()
    fake_host.HOST.on_list = look
    # As the command line, which is told to answer yes.
    fake_host.HOST.key_answer = lambda *_question: 1
    refused = ""
    if wish:
        try:
            pairs = [found.pair(name) for name in updates]
            found.yumio.apply(installs, pairs, [found.there(name) for name in wish.removes])
        except program.errors.YumBaseError as error:
            refused = str(error) or "refused"
    for call in fake_host.HOST.named("log", "errorlog", "stdoutWrite", "stderrWrite"):
        print(*call, file=stdout)
    program.end()
    return Applied(read, wish, refused, listed)


def _rows(found: Any) -> List[Row]:
    """The rows in an order of their own, merged by name as the engine does it."""
    newer: Dict[str, str] = {}
    there: Dict[str, str] = {}
    for packages, names in ((found.updates, newer), (found.available, newer), (found.installed, there)):
        for package in packages:
            names.setdefault(package.name, nevra(package))
    return [
        Row(name, state, newer.get(name, "") if state != "UpToDate" else "", there.get(name, ""))
        for name, state in sorted(found.merged().items())
    ]


# The command line --------------------------------------------------------------------------------------------


class Ran(NamedTuple):
    status: int
    words: str
    """All that was written."""


def planned(ran: Ran, *headings: str) -> Set[str]:
    """The packages below these headings of the table that stands before the question, each with whatever else the
    heading may say ("Installing weak dependencies")."""
    found: Set[str] = set()
    below = False
    for line in ran.words.splitlines():
        columns = line.split()
        if line.startswith("("):
            # A word on what would force it, still of the heading above.
            continue
        if not line.startswith(" "):
            below = line.startswith(headings)
        elif below and len(columns) >= 5:
            name, arch, evr = columns[:3]
            found.add(f"{name}-{evr if ':' in evr else f'0:{evr}'}.{arch}")
    return found


def command_line(case: Case, arguments: Sequence[str], root: Path, said: Path) -> Ran:
    """The command line with these arguments, on this root, that answers yes to whatever it asks."""
    # It looks below the root for its configuration and for the repositories', once they are there.
    words = ["--installroot", str(root), "--assumeyes", *case.options, *arguments]
    with open(said, "a", encoding="utf-8") as file:
        file.write(f"$ {COMMANDS.NAME} {' '.join(words)}\n")
    at = said.stat().st_size
    status = COMMANDS.run(words, said)
    return Ran(status, said.read_bytes()[at:].decode("utf-8", errors="replace"))


class Asked(NamedTuple):
    """How a wish is put to the command line."""

    insisting: bool = False
    """Updates by "install", which takes a version or fails, and not by "upgrade"."""
    options: Tuple[str, ...] = ()
    removals_only: bool = False
    once_more: bool = False
    """After a first time, which may have left keys behind."""
    from_cache: bool = False
    """After the repositories' metadata have been fetched."""


def carry_out(case: Case, applied: Applied, root: Path, said: Path, asked: Asked) -> Ran:
    """The same wish on the command line."""
    if asked.once_more:
        carry_out(case, applied, root, said, asked._replace(once_more=False))
    if asked.from_cache:
        command_line(case, [*asked.options, "makecache"], root, said)
    rows = {row.name: row for row in applied.read.rows}
    wish = Wish(removes=applied.wish.removes) if asked.removals_only else applied.wish
    # What replaces a package of another name is no newer version of anything, so that nothing could be upgraded to it.
    upgrades = [name for name in wish.updates if rows[name].there and not asked.insisting]
    installs = [name for name in (*wish.installs, *wish.updates) if name not in upgrades]
    lines = {
        "remove": [rows[name].there for name in wish.removes],
        "install": [rows[name].newer for name in installs],
        "upgrade": [rows[name].newer for name in upgrades],
    }
    commands = [[command, *packages] for command, packages in lines.items() if packages]
    words = commands[0] if len(commands) == 1 else COMMANDS.mixed(commands, said)
    return command_line(case, [*asked.options, *words], root, said)
