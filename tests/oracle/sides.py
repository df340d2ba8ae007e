# SPDX-License-Identifier: GPL-2.0-or-later
"""The two sides of a comparison, each in a process of its own that knows nothing of the other.

Both begin as copies of the process that looks after the cases, which has loaded dnf but never used it: to start dnf
from nothing would take longer than what it does on an estate of this size. The process of an apply is the real one.
"""

from __future__ import annotations

import contextlib
import os
import pickle
import signal
import sys
import traceback
from pathlib import Path
from typing import Any, Callable, Dict, List, NamedTuple, Optional, Sequence, Set, Tuple

import dnf
import dnf.cli.main
import dnf.exceptions
import dnf.util
import libdnf.transaction

from case import Case, Row, Wish

TOP = Path(__file__).resolve().parents[2]
SECONDS = 120
"""Longer than any of it takes, on any machine."""


def in_process(work: Callable[[], Any], said: Path) -> Any:
    """What `work` gives in a process of its own, whose output goes into the file. RuntimeError where it fails."""
    answer = said.with_suffix(".answer")
    child = os.fork()
    if child == 0:
        _serve(work, said, answer)
    _, status = os.waitpid(child, 0)
    if status != 0:
        raise RuntimeError(f"status {status}:\n{said.read_text(encoding='utf-8', errors='replace')}")
    result = pickle.loads(answer.read_bytes())
    answer.unlink()
    return result


def _serve(work: Callable[[], Any], said: Path, answer: Path) -> None:
    try:
        signal.alarm(SECONDS)
        output = os.open(said, os.O_WRONLY | os.O_CREAT | os.O_APPEND, 0o644)
        nothing = os.open(os.devnull, os.O_RDONLY)
        os.dup2(nothing, 0)
        os.dup2(output, 1)
        os.dup2(output, 2)
        os.chdir("/")
        # The streams of the other process may hold what it has not written yet.
        sys.stdout = open(1, "w", encoding="utf-8", closefd=False)
        sys.stderr = open(2, "w", encoding="utf-8", closefd=False)
        answer.write_bytes(pickle.dumps(work()))
        status = 0
    except BaseException:  # noqa: BLE001 - told by the status
        traceback.print_exc()
        status = 1
    for stream in (sys.stdout, sys.stderr):
        try:
            stream.flush()
        except Exception:  # noqa: BLE001 - the helper package's streams are nowhere any more
            pass
    os._exit(status)


# The state that both begin with ------------------------------------------------------------------------------


def begin(case: Case, root: Path, repository: Path) -> None:
    """Installs what the case begins with, reasons included. Where that cannot be, there is less, or nothing."""
    conf = dnf.conf.Conf()
    conf.installroot = str(root)
    for option in ("cachedir", "logdir", "persistdir"):
        conf.prepend_installroot(option)
    conf.substitutions["releasever"] = ""
    conf.install_weak_deps = case.weak_at_start
    conf.installonly_limit = 0
    conf.cachedir = str(repository.parent / "old-cache")
    for directory in (conf.cachedir, conf.logdir, conf.persistdir):
        dnf.util.ensure_dir(directory)
    with dnf.Base(conf) as base:
        base.repos.add_new_repo("old", conf, baseurl=[repository.as_uri()])
        base.fill_sack()
        group = case.groups[sorted(case.groups)[0]] if case.start_group else []
        members = [name for name, kind in group if kind != "optional"]
        for wanted in (*case.start, *members):
            with contextlib.suppress(dnf.exceptions.MarkingError):
                base.install(wanted, strict=False)
        try:
            if base.resolve():
                for item in base.transaction:
                    if item.pkg.name in members:
                        # As an installation of the group, without the library that reads groups: some releases of it
                        # end the process.
                        item.reason = libdnf.transaction.TransactionItemReason_GROUP
                base.download_packages(list(base.transaction.install_set))
                base.do_transaction()
        except dnf.exceptions.Error as error:
            print(error)


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
        if not line.startswith(" "):
            below = line.startswith(headings)
        elif below and len(columns) >= 5:
            name, arch, evr = columns[:3]
            found.add(f"{name}-{evr if ':' in evr else f'0:{evr}'}.{arch}")
    return found


def command_line(
    case: Case, arguments: Sequence[str], root: Path, said: Path, script: Sequence[str] = ()
) -> Ran:
    """`dnf` with these arguments, on this root, that answers yes to whatever it asks. A script goes to `dnf shell`."""
    # dnf looks below the root for its configuration and for the repositories', once they are there.
    words = ["--installroot", str(root), "--assumeyes", *case.options, *arguments]
    if script:
        path = said.with_suffix(".script")
        path.write_text("".join(f"{line}\n" for line in script), encoding="utf-8")
        words += ["shell", str(path)]
    with open(said, "a", encoding="utf-8") as file:
        file.write(f"$ dnf {' '.join(words)}\n" + "".join(f"> {line}\n" for line in script))
    at = said.stat().st_size
    status = in_process(lambda: _main(words), said)
    return Ran(status, said.read_bytes()[at:].decode("utf-8", errors="replace"))


def _main(words: List[str]) -> int:
    try:
        return int(dnf.cli.main.main(words))
    except SystemExit as end:
        return int(end.code or 0)


class Asked(NamedTuple):
    """How a wish is put to the command line."""

    insisting: bool = False
    """Updates by "install", which takes a version or fails, and not by "upgrade"."""
    options: Tuple[str, ...] = ()
    removals_only: bool = False
    once_more: bool = False
    """After a first time, which may have left keys behind."""


def carry_out(case: Case, applied: Applied, root: Path, said: Path, asked: Asked) -> Ran:
    """The same wish on the command line."""
    if asked.once_more:
        carry_out(case, applied, root, said, asked._replace(once_more=False))
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
    if len(commands) == 1:
        return command_line(case, [*asked.options, *commands[0]], root, said)
    # Without "run": the shell runs what is marked at the end of its script, too, and tells by its status how it went.
    return command_line(case, asked.options, root, said, [" ".join(command) for command in commands])
