# SPDX-License-Identifier: GPL-2.0-or-later
"""What the table shows, held against what the command line's "list" tells of the same root."""

from __future__ import annotations

from pathlib import Path
from typing import Dict, List, Sequence, Set, Tuple

import rpm

from case import Case
from commands import COMMANDS
from sides import Read, command_line

_SECTIONS = {
    "installed packages": "installed",
    "available upgrades": "upgrades",
    "upgraded packages": "upgrades",
    "obsoleting packages": "obsoleting",
    "available packages": "available",
}
"""Headings of "list"; releases of it differ in capitals and words."""

Package = Tuple[str, str, str, str, str]
"""Name, epoch, version, release, architecture."""


Lists = Dict[str, Dict[Package, List[str]]]
"""By the names of `_SECTIONS`: the packages, and in which repositories each is."""


def told(case: Case, root: Path, said: Path, options: Sequence[str] = ()) -> Lists:
    """The lists of the command line."""
    # The cache is filled by the first command that needs it; all repositories are directories of this machine.
    commands = [["list", f"--{which}"] for which in ("installed", "upgrades", "obsoletes", "available")]
    runs = [command_line(case, [*options, *words], root, said) for words in COMMANDS.separate(commands, said)]
    lists: Lists = {name: {} for name in _SECTIONS.values()}
    section = ""
    words: List[str] = []
    for line in "\n".join(ran.words for ran in runs).splitlines():
        heading = line.strip().lower()
        if heading in _SECTIONS:
            section = _SECTIONS[heading]
        elif section == "obsoleting" and line.startswith(" "):
            # What the one above replaces.
            continue
        elif len(line.split()) == 3 and section and "." in line.split()[0]:
            words = line.split()
            lists[section].setdefault(_package(words[0], words[1]), []).append(words[2])
    return lists


def _package(name_arch: str, evr: str) -> Package:
    name, _, arch = name_arch.rpartition(".")
    epoch, _, rest = evr.rpartition(":")
    version, _, release = rest.rpartition("-")
    return (name, epoch or "0", version, release, arch)


def _split(nevra: str) -> Package:
    """The five parts of a package as the command line takes it, whatever follows behind a blank."""
    rest, _, arch = nevra.split()[0].rpartition(".")
    rest, _, release = rest.rpartition("-")
    name, _, version = rest.rpartition("-")
    epoch, _, version = version.partition(":")
    return (name, epoch, version, release, arch)


def _newest(packages: Set[Package]) -> Dict[Tuple[str, str], Package]:
    newest: Dict[Tuple[str, str], Package] = {}
    for package in packages:
        key = (package[0], package[4])
        if key not in newest or rpm.labelCompare(package[1:4], newest[key][1:4]) > 0:
            newest[key] = package
    return newest


def differences(case: Case, read: Read, there: List[str], lists: Lists) -> List[str]:
    """Lines that name what only the helper package (-) or only the command line (+) tells. `there` is what the rpm
    database holds."""
    lines: List[str] = []

    def hold(kind: str, ours: Set[Package], theirs: Set[Package]) -> None:
        lines.extend(f"-{kind} {_shown(package)}" for package in sorted(ours - theirs))
        lines.extend(f"+{kind} {_shown(package)}" for package in sorted(theirs - ours))

    installed = set(map(_split, read.installed))
    # The command line hides an installed package that is excluded, as if it weren't there; rpm knows of no excludes.
    hold("installed", installed, set(map(_split, there)))
    hold("installed", set(lists["installed"]), lists["installed"].keys() & installed)

    names = {package[0] for package in installed}
    ours = set(map(_split, read.updates))
    upgrades = {package for package in ours if package[0] in names}
    hold("update", upgrades, set(lists["upgrades"]))
    known = names | {package[0] for package in lists["upgrades"]}
    replacing = {package for package in lists["obsoleting"] if package[0] not in known}
    # The command line tells each version that replaces something, the table the newest one.
    expected = set(_newest(replacing).values()) if case.main.get("obsoletes") != "0" else set()
    hold("replacing", ours - upgrades, expected)

    newest = _newest(installed)
    available = set()
    for package in map(_split, read.available):
        same = newest.get((package[0], package[4]))
        # A command line may leave out what is installed in this version or in a newer one.
        if COMMANDS.LISTS_WHAT_IS_INSTALLED or same is None or rpm.labelCompare(package[1:4], same[1:4]) > 0:
            available.add(package)
    hold("available", available, set(lists["available"]))
    for listed, section in ((read.updates, "upgrades"), (read.available, "available")):
        repositories: Dict[Package, str] = {}
        for line in listed:
            # The engine takes the first of several.
            repositories.setdefault(_split(line), line.split()[1])
        for package, all_of_them in sorted(lists[section].items()):
            theirs = all_of_them[:1] if COMMANDS.FIRST_REPOSITORY_COUNTS else all_of_them
            ours_is = repositories.get(package, theirs[0])
            if ours_is not in theirs:
                lines += [f"-{section} {_shown(package)} {ours_is}", f"+{section} {_shown(package)} {theirs[0]}"]
    return lines


def _shown(package: Package) -> str:
    return "{0}-{1}:{2}-{3}.{4}".format(*package)
