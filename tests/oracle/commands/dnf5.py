# SPDX-License-Identifier: GPL-2.0-or-later
"""`dnf5`, the command line of dnf 5: a program that starts at once."""

from __future__ import annotations

import os
import subprocess
import tomllib
from pathlib import Path
from typing import Any, Dict, Iterator, List, Sequence, Set, Tuple

from processes import SECONDS

from . import Lock, Start

_STATE = "usr/lib/sysimage/libdnf5"

NAME = "dnf5"
KEPT_APART = ("var/lib/dnf", "usr/lib/sysimage")
LACKS_SIGNATURE = ("Signature verification failed", "OpenPGP check for package")
REFUSED_BY_SOLVER = ("Failed to resolve the transaction", "Problem")
WITHOUT_EXCLUDES = ("--setopt=disable_excludes=main",)
LISTS_WHAT_IS_INSTALLED = True
FIRST_REPOSITORY_COUNTS = False
"""They come in no order; what is known of the packages of a transaction tells where they came from."""


def can_lock() -> bool:
    return True


def lock(locks: Sequence[Lock], root: Path, directory: Path, main: Dict[str, str]) -> List[str]:
    lines = ['version = "1.0"']
    for one in locks:
        lines += ["", "[[packages]]", f'name = "{one.name}"', "", "[[packages.conditions]]", 'key = "evr"']
        lines += [f'comparator = "{"!=" if one.never else "="}"', f'value = "{one.evr}"']
    _write(root / "etc/dnf/versionlock.toml", lines)
    return []


def enable(streams: Dict[str, str], root: Path) -> None:
    lines = ['version = "1.0"', "", "[modules]"]
    for module, stream in streams.items():
        lines.append(f'{module} = {{enabled_stream = "{stream}", installed_profiles = [], state = "Enabled"}}')
    if streams:
        _write(root / _STATE / "modules.toml", lines)


def _write(path: Path, lines: Sequence[str]) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")


def begin(start: Start, root: Path, repository: Path, said: Path) -> None:
    empty = repository.parent / "old.conf"
    empty.write_text("[main]\n", encoding="utf-8")
    cache = repository.parent / "old-cache"
    words = ["--installroot", str(root), "--assumeyes", "--config", str(empty), "--no-plugins", "--no-gpgchecks"]
    words += [f"--repofrompath=old,{repository.as_uri()}", "--repo=old", "--no-best", f"--setopt=cachedir={cache}"]
    words += [f"--setopt=system_cachedir={cache}", f"--setopt=install_weak_deps={int(start.weak)}"]
    words += ["--setopt=installonly_limit=0", "--setopt=protected_packages="]
    if start.wanted:
        run([*words, "install", "--skip-broken", "--skip-unavailable", *start.wanted], said)
    if start.group:
        run([*words, "group", "install", "--skip-broken", "--skip-unavailable", start.group], said)


def run(words: Sequence[str], said: Path) -> int:
    with open(said, "a", encoding="utf-8") as file:
        return subprocess.run(
            ["dnf5", *words], cwd="/", stdin=subprocess.DEVNULL, stdout=file, stderr=file, timeout=SECONDS, check=False
        ).returncode


def mixed(commands: Sequence[Sequence[str]], said: Path) -> List[str]:
    # Without erasing, what needs a package that is to go would keep it.
    words = ["do", "--allowerasing"] if any(command[0] == "remove" for command in commands) else ["do"]
    for command, *packages in commands:
        words += [f"--action={command}", *packages]
    return words


def separate(commands: Sequence[Sequence[str]], said: Path) -> List[List[str]]:
    return [list(command) for command in commands]


def reasons(root: Path, present: Set[Tuple[str, str]]) -> List[str]:
    return [
        f"{what} {name} {sorted(told.items())}"
        for what in ("packages", "nevras", "groups", "environments")
        for name, told in sorted(_stored(root, what))
    ]


def streams(root: Path) -> List[str]:
    return [f"{name} {sorted(told.items())}" for name, told in sorted(_stored(root, "modules"))]


def _stored(root: Path, what: str) -> Iterator[Tuple[str, Dict[str, Any]]]:
    path = root / _STATE / f"{what}.toml"
    if os.path.exists(path):
        yield from tomllib.loads(path.read_text(encoding="utf-8")).get(what, {}).items()
