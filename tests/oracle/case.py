# SPDX-License-Identifier: GPL-2.0-or-later
"""What a seed stands for: an estate of packages from the pool, the state that it begins in, and marks in the table."""

from __future__ import annotations

import dataclasses
from pathlib import Path
from typing import Dict, List, NamedTuple, Optional, Sequence, Set, Tuple

from commands import COMMANDS, Lock, Start
from dice import Dice
from pool import CORES, NAMES, SECOND, Entry, Package, Pool, write_repository
from sections import write_section

MOST, MOST_NAMES = 34, 22
"""Packages in the repositories of an estate, and how many names they have together with what is installed."""


class Row(NamedTuple):
    """A row of the table: how the engine merges what was collected. Packages as the command line takes them."""

    name: str
    state: str
    newer: str
    """What an update or an installation brings; empty for none."""
    there: str
    """What is installed; empty for nothing."""


@dataclasses.dataclass
class Wish:
    """Marks, each the name of a row."""

    installs: List[str] = dataclasses.field(default_factory=list)
    updates: List[str] = dataclasses.field(default_factory=list)
    removes: List[str] = dataclasses.field(default_factory=list)

    def __bool__(self) -> bool:
        return bool(self.installs or self.updates or self.removes)


@dataclasses.dataclass
class Repository:
    id: str
    packages: List[Package]
    options: Dict[str, str]

    @property
    def enabled(self) -> bool:
        return self.options["enabled"] == "1"


class Case:
    """Everything about a seed; the same each time."""

    def __init__(self, seed: int, pool: Pool) -> None:
        self.seed = seed
        self.pool = pool
        dice = Dice(f"estate {seed}")
        self.names = self._names(dice)
        self.signed = dice.chance(0.25)
        self.main = self._main(dice)
        by_name = {name: [one for one in pool.packages if one.name == name] for name in self.names}
        self.old: List[Package] = []
        self.repositories = self._repositories(dice, by_name)
        self.start: List[str] = self._start(dice, by_name)
        self.groups: Dict[str, List[Tuple[str, str]]] = self._groups(dice)
        self.start_group = bool(self.groups) and dice.chance(0.5)
        self.modules: Optional[str] = None
        self.streams: Dict[str, str] = {}
        self._modules(dice)
        self.weak_at_start = dice.chance(0.8)
        self.forced_out = dice.chance(0.07)
        self.forced_in = [dice.one(pool.packages)] if dice.chance(0.1) else []
        self.keys: List[int] = []
        """Those that the rpm database holds."""
        if self.signed:
            self._check(Dice(f"keys {seed}"))
        self.locks = self._locks(Dice(f"locks {seed}")) if COMMANDS.can_lock() else []
        self.options: List[str] = []
        """What the command line has to be told in addition, once the case is written."""
        self._dice = Dice(f"marks {seed}")

    def _check(self, dice: Dice) -> None:
        """Has the repositories' packages checked, and lets the rpm database know of some of the keys."""
        for repository in self.repositories:
            repository.options["gpgcheck"] = "1"
            # Whose keys are told can be asked for them.
            if dice.chance(0.8):
                told = dice.one(((1, 2), (1,), (2, 1)))
                repository.options["gpgkey"] = " ".join(self.pool.key(number).as_uri() for number in told)
        self.keys = dice.one(([1, 2], [1], []))

    # Packages ----------------------------------------------------------------------------------------

    def _names(self, dice: Dice) -> List[str]:
        """Some, nearly all of what they need, and much of what else they speak of."""
        offers: Dict[str, List[str]] = {}
        words: Dict[str, Dict[str, float]] = {}
        for package in self.pool.packages:
            offers.setdefault(package.name, [package.name])
            for ability in package.provides:
                offers.setdefault(ability, []).append(package.name)
            of_name = words.setdefault(package.name, {})
            for word in package.mentions:
                of_name.setdefault(word, 0.5)
            for word in package.needs:
                of_name[word] = 0.98
        ahead = dice.some(NAMES, dice.between(2, 5))
        if dice.chance(0.2):
            ahead.append(CORES[1])
        found: List[str] = []
        while ahead and len(found) < MOST_NAMES:
            # What is needed by what is there comes before anything new.
            name = ahead.pop()
            if name in found:
                continue
            found.append(name)
            for word, probability in words[name].items():
                if word in offers and dice.chance(probability):
                    ahead.append(dice.one(offers[word]))
        return found

    def _repositories(self, dice: Dice, by_name: Dict[str, List[Package]]) -> List[Repository]:
        count = dice.weighed((1, 2, 3), (40, 35, 25))
        found = [Repository(id, [], {}) for id in ("alpha", "beta", "gamma")[:count]]
        kept: List[Package] = []
        for packages in by_name.values():
            steps = sorted({package.step for package in packages})
            cut = steps[dice.number(len(steps))]
            for package in packages:
                if package.step <= cut:
                    self.old.append(package)
                # What is installed need not be in any repository any more.
                if dice.chance(0.95 if package.step >= cut else 0.5):
                    kept.append(package)
        while len(kept) > MOST:
            # Older ones first.
            kept.remove(min(dice.some(kept, 3), key=lambda package: package.step))
        for package in sorted(kept, key=lambda one: one.nevra):
            first = dice.number(count)
            places = {first, dice.number(count)} if dice.chance(0.2) else {first}
            for place in sorted(places):
                found[place].packages.append(package)
        for repository in found:
            options = repository.options
            if dice.chance(0.25):
                options["priority"] = dice.one(("10", "50", "98", "120"))
            if dice.chance(0.15):
                options["cost"] = dice.one(("100", "500", "2000"))
            if dice.chance(0.12):
                options["excludepkgs"] = self._some_names(dice)
            if dice.chance(0.04):
                options["includepkgs"] = " ".join(dice.some(self.names, len(self.names) * 2 // 3))
            options["enabled"] = "0" if count > 1 and dice.chance(0.1) else "1"
        if not any(repository.enabled for repository in found):
            found[0].options["enabled"] = "1"
        return found

    def _some_names(self, dice: Dice) -> str:
        names = dice.some(self.names, dice.between(1, 2))
        return " ".join(name if dice.chance(0.7) else f"{name[:3]}*" for name in names)

    def _main(self, dice: Dice) -> Dict[str, str]:
        main = {
            "gpgcheck": "0",
            # The command line would ask this machine's files for more.
            "protected_packages": " ".join(dice.some(self.names, 1)) if dice.chance(0.2) else "",
            "best": "1" if dice.chance(0.4) else "0",
            "installonly_limit": dice.one(("2", "3", "0")),
        }
        for option, value, probability in (
            ("clean_requirements_on_remove", "0", 0.2),
            ("install_weak_deps", "0", 0.15),
            ("obsoletes", "0", 0.1),
            ("allow_vendor_change", "0", 0.1),
            ("exclude_from_weak_autodetect", "0", 0.05),
            ("multilib_policy", "all", 0.1),
            ("tsflags", "nodocs", 0.05),
        ):
            if dice.chance(probability):
                main[option] = value
        if dice.chance(0.15):
            main["excludepkgs"] = self._some_names(dice)
        if dice.chance(0.05):
            main["exclude_from_weak"] = " ".join(dice.some(self.names, 1))
        return main

    def _start(self, dice: Dice, by_name: Dict[str, List[Package]]) -> List[str]:
        """What is asked for to be installed at the beginning, as the command line takes it."""
        wanted: List[str] = []
        for name in dice.some(self.names, dice.between(1, 9)):
            old = [package for package in self.old if package.name == name]
            if name in CORES:
                wanted += [package.nevra for package in dice.some(old, 2)]
            elif dice.chance(0.7):
                wanted.append(name)
            else:
                wanted.append(dice.one(old).nevra)
            if any(package.arch == SECOND for package in old) and dice.chance(0.4):
                wanted.append(f"{name}.{SECOND}")
        return wanted

    def _groups(self, dice: Dice) -> Dict[str, List[Tuple[str, str]]]:
        """Groups by their id: pairs of a name and its kind."""
        if not dice.chance(0.25):
            return {}
        kinds = ("mandatory", "default", "optional")
        return {
            id: [(name, dice.one(kinds)) for name in dice.some(self.names, dice.between(1, 4))]
            for id in ("tools", "games")[: dice.between(1, 2)]
        }

    def _modules(self, dice: Dice) -> None:
        """One module in the first repository, of two streams, to which some of the packages belong."""
        if not dice.chance(0.15):
            return
        packages = self.repositories[0].packages
        name = dice.one(self.names)
        members = [package for package in packages if package.name == name]
        members += [package for package in packages if package.name != name and dice.chance(0.15)]
        streams: Dict[str, List[Package]] = {"old": [], "new": []}
        for package in members:
            streams["old" if package.step < 3 else "new"].append(package)
        documents = [_stream_text(name, stream, some) for stream, some in streams.items()]
        if dice.chance(0.5):
            default = dice.one(("old", "new"))
            documents.append(
                f"---\ndocument: modulemd-defaults\nversion: 1\ndata:\n  module: {name}\n  stream: {default}\n"
                f"  profiles:\n    {default}: []\n...\n"
            )
        self.modules = "".join(documents)
        if dice.chance(0.5):
            self.streams = {name: dice.one(("old", "new"))}

    def _locks(self, dice: Dice) -> List[Lock]:
        if not dice.chance(0.15):
            return []
        known = [package for package in self.pool.packages if package.name in self.names]
        locked = dice.some(known, dice.between(1, 3))
        return [Lock(one.name, one.epoch, one.version, one.release, not dice.chance(0.75)) for one in locked]

    # What it is on the disk ---------------------------------------------------------------------------

    def write(self, directory: Path, root: Path) -> None:
        """The repositories below `directory`, the configuration below `root`."""
        entries = self.pool.signed if self.signed else self.pool.plain
        for number, repository in enumerate(self.repositories):
            place = directory / repository.id
            first = number == 0
            comps = _comps(self.groups) if first and self.groups else None
            modules = self.modules if first else None
            write_repository(self.pool, place, [entries[one.nevra] for one in repository.packages], comps, modules)
            options = {"name": repository.id, "baseurl": place.as_uri(), **repository.options}
            write_section(root / f"etc/yum.repos.d/{repository.id}.repo", repository.id, options)
        main = {**self.main, "plugins": "0"}
        if self.locks:
            self.options = COMMANDS.lock(self.locks, root, directory, main)
        write_section(root / "etc/dnf/dnf.conf", "main", main)
        COMMANDS.enable(self.streams, root)

    @property
    def begins(self) -> Start:
        """What is installed at the beginning."""
        group = sorted(self.groups)[0] if self.start_group else ""
        members = [name for name, kind in self.groups[group] if kind != "optional"] if group else []
        return Start(self.start, group, members, self.weak_at_start)

    def write_old(self, directory: Path) -> None:
        """The repository that the start comes from."""
        entries: List[Entry] = [self.pool.plain[package.nevra] for package in self.old]
        write_repository(self.pool, directory, entries, _comps(self.groups) if self.groups else None)

    # Marks ---------------------------------------------------------------------------------------------

    def marks(self, rows: Sequence[Row]) -> Wish:
        """Marks that this table offers; none where it offers nothing."""
        dice = self._dice
        updates = [row.name for row in rows if row.state == "OutOfDate"]
        there = [row.name for row in rows if row.there]
        installs = [row.name for row in rows if row.state == "Available"]
        offered = (there, installs, updates, updates, there)
        weights = [weight if some else 0 for weight, some in zip((28, 25, 14, 11, 22), offered)]
        if not any(weights):
            return Wish()
        kind = dice.weighed(("remove", "install", "update", "all", "mixed"), weights)
        few = dice.weighed((1, 2, 3, 4), (50, 25, 15, 10))
        if kind == "remove":
            return Wish(removes=dice.some(there, few))
        if kind == "install":
            return Wish(installs=dice.some(installs, few))
        if kind == "update":
            return Wish(updates=dice.some(updates, few))
        if kind == "all":
            return Wish(updates=updates)
        wish = Wish(installs=dice.some(installs, dice.number(3)), updates=dice.some(updates, dice.number(3)))
        marked: Set[str] = {*wish.updates}
        wish.removes = dice.some([name for name in there if name not in marked], dice.between(1, 2))
        return wish


def name_of(nevra: str) -> str:
    return nevra.rpartition("-")[0].rpartition("-")[0]


def _comps(groups: Dict[str, List[Tuple[str, str]]]) -> str:
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<comps>"]
    for id, members in groups.items():
        lines += [f"<group><id>{id}</id><name>{id.title()}</name><description>{id}</description>"]
        lines += ["<default>true</default><uservisible>true</uservisible><packagelist>"]
        lines += [f'<packagereq type="{kind}">{name}</packagereq>' for name, kind in members]
        lines += ["</packagelist></group>"]
    return "\n".join([*lines, "</comps>", ""])


def _stream_text(name: str, stream: str, packages: Sequence[Package]) -> str:
    lines = ["---", "document: modulemd", "version: 2", "data:", f"  name: {name}", f'  stream: "{stream}"']
    lines += ["  version: 1", "  context: c0ffee42", "  arch: x86_64", f"  summary: {name}", f"  description: {name}"]
    lines += ["  license:", "    module: [MIT]"]
    if packages:
        lines += ["  artifacts:", "    rpms:"]
        lines += [f"    - {package.nevra}" for package in packages]
    return "\n".join([*lines, "...", ""])
