# SPDX-License-Identifier: GPL-2.0-or-later
"""One case from its seed to its verdict."""

from __future__ import annotations

import os
import shutil
from pathlib import Path
from typing import Dict, List, NamedTuple, Sequence, Tuple

import rpm

import reading
from case import Case, name_of
from commands import COMMANDS
from pool import Pool
from processes import in_process
from rpmestate import Estate
from rules import Outcome, explanation, unexplained
from sides import Applied, Asked, Ran, carry_out, command_line, helper_package
from state import State, differences, state_of


class Verdict(NamedTuple):
    seed: int
    words: str
    """What differs without being meant to, or what went wrong with the case itself; empty for nothing."""
    rules: str
    """The rules that explain what differs; empty where nothing does."""
    kind: str
    """What the case was about, for the count at the end."""
    refused: str = ""
    """Why the helper package refused."""


def judge(seed: int, pool: Pool, directory: Path) -> Verdict:
    """Everything about a case happens below the directory, which is empty or missing."""
    case = Case(seed, pool)
    before, root = _image(case, directory)
    ours, theirs = (_copy(root, directory / side / "root") for side in ("vem", "dnf"))
    home = directory / "home"
    home.mkdir()
    applied: Applied = in_process(lambda: helper_package(case, ours, home), directory / "vem.log")

    def compare(options: Sequence[str]) -> List[str]:
        lists = reading.told(case, theirs, directory / "list.log", options)
        return reading.differences(case, applied.read, before["packages"], lists)

    def would(arguments: Sequence[str]) -> Ran:
        return command_line(case, arguments, _copy(root, directory / "asked/root"), directory / "asked.log")

    lines, reading_rules = unexplained(case, before, compare, would)
    found: Dict[str, List[str]] = {"reading": lines} if lines else {}
    kind = "/".join(name for name in ("installs", "updates", "removes") if getattr(applied.wish, name)) or "nothing"
    rules = ""
    if applied.wish:
        ran = carry_out(case, applied, theirs, directory / "dnf.log", Asked())
        outcome = _compare(case, applied, ran, before, state_of(ours), state_of(theirs))

        def again(asked: Asked) -> Outcome:
            place = _copy(root, directory / "again/root")
            ran = carry_out(case, applied, place, directory / "dnf.log", asked)
            return _compare(case, applied, ran, before, outcome.ours, state_of(place))

        if outcome.differences:
            rules, outcome = explanation(outcome, again)
        if outcome.differences and not rules:
            found.update(outcome.differences)
            kind += " DIFFERS"
        else:
            kind += " refused" if applied.refused else " done"
    rules = " + ".join([*filter(None, [rules]), *sorted(reading_rules)])
    if not found:
        return Verdict(seed, "", rules, kind, applied.refused)
    return Verdict(seed, _told(case, applied, found, directory), rules, kind)


def _copy(root: Path, place: Path) -> Path:
    shutil.rmtree(place, ignore_errors=True)
    shutil.copytree(root, place, symlinks=True)
    return place


def _image(case: Case, directory: Path) -> Tuple[State, Path]:
    """The root that both sides begin with, and what it holds."""
    directory.mkdir(parents=True, exist_ok=True)
    estate = Estate(directory / "image")
    root = estate.root
    old = directory / "old"
    case.write_old(old)
    if case.start or case.start_group:
        COMMANDS.begin(case.begins, root, old, directory / "start.log")
    there = state_of(root)["packages"]
    if case.forced_out and there:
        # As somebody does who knows better: what needs it stays behind.
        estate.rpm("--erase", "--nodeps", "--noscripts", _for_rpm(there[case.seed % len(there)]))
    names = set(map(name_of, there))
    forced = [case.pool.rpm(package) for package in case.forced_in if package.name not in names]
    if forced:
        estate.install(forced, ["--nodeps", "--noscripts", "--replacefiles"])
    for number in case.keys:
        estate.rpm("--import", case.pool.key(number))
    case.write(directory / "repositories", root)
    return state_of(root), root


def _for_rpm(nevra: str) -> str:
    """rpm wants no epoch."""
    name, _, rest = nevra.partition(":")
    return f"{name.rpartition('-')[0]}-{rest}"


def _compare(case: Case, applied: Applied, ran: Ran, before: State, ours: State, theirs: State) -> Outcome:
    found = {kind: differences(ours, theirs, kind) for kind in ours}
    words = ("refused" if applied.refused else "done", "refused" if ran.status else "done")
    found["outcome"] = [f"-{words[0]}", f"+{words[1]}"] if words[0] != words[1] else []
    if applied.refused and ran.status:
        causes = _cause(applied.refused), _cause(ran.words)
        found["cause"] = [f"-{causes[0]}", f"+{causes[1]}"] if causes[0] != causes[1] else []
    return Outcome(case, applied, ran, before, ours, theirs, {kind: lines for kind, lines in found.items() if lines})


_CAUSES = (
    # What the helper package's child says of a fault of its own is nothing that a command line could say.
    ("a fault", ("has died",)),
    ("signatures", (*COMMANDS.LACKS_SIGNATURE, "is not signed", "ublic key for")),
    ("rpm's test", ("Transaction test error", "conflicts between attempted installs", "conflicts with file from")),
    ("a scriptlet", ("scriptlet",)),
    ("the solver", COMMANDS.REFUSED_BY_SOLVER),
)


def _cause(words: str) -> str:
    """The kind of reason that is given: two that refuse are to refuse the same."""
    return next((cause for cause, signs in _CAUSES if any(sign in words for sign in signs)), "something else")


def _told(case: Case, applied: Applied, found: Dict[str, List[str]], directory: Path) -> str:
    lines = [f"seed {case.seed}: - is the helper package, + the command line"]
    for mark in ("installs", "updates", "removes"):
        if getattr(applied.wish, mark):
            lines.append(f"  {mark}: {' '.join(getattr(applied.wish, mark))}")
    lines.append(f"  main: {' '.join(f'{option}={value}' for option, value in case.main.items() if value)}")
    lines += [f"  locked: {line}" for line in case.locks]
    for repository in case.repositories:
        options = " ".join(f"{option}={value}" for option, value in repository.options.items())
        lines.append(f"  {repository.id}: {options}")
    for kind, some in found.items():
        lines += [f"  {kind}: {line}" for line in some]
    if applied.refused:
        lines += [f"  helper package: {line}" for line in applied.refused.splitlines()]
    said = directory / "dnf.log"
    if said.exists() and ("outcome" in found or "cause" in found):
        text = said.read_text(encoding="utf-8", errors="replace")
        lines += [f"  {COMMANDS.NAME}: {line}" for line in text.splitlines()[-12:]]
    return "\n".join(lines)


def prepare(home: Path) -> None:
    """This process's rpm, and that of its copies, looks for the database where the estates have it."""
    home.mkdir(parents=True, exist_ok=True)
    for place in (home / ".rpmmacros", home / ".config/rpm/macros"):
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_text("%_dbpath /var/lib/rpm\n", encoding="utf-8")
    os.environ.update(HOME=str(home), XDG_CONFIG_HOME=str(home / ".config"))
    rpm.reloadConfig()
