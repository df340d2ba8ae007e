# SPDX-License-Identifier: GPL-2.0-or-later
"""What is each command line's own: a module each, of which `COMMANDS` is the one of the library that is tested.

VEMBACKEND names that library. The helper package is then told the same by the same variable.
"""

from __future__ import annotations

import importlib
import os
from pathlib import Path
from typing import Dict, List, NamedTuple, Protocol, Sequence, Set, Tuple, cast

from pool import Package
from vemyum import choice

BACKEND = os.environ.get(choice.VARIABLE) or next(iter(choice.present()), choice.DNF4)
os.environ[choice.VARIABLE] = BACKEND


class Lock(NamedTuple):
    """A name is held at one version, or one version of it is never to come."""

    name: str
    epoch: int
    version: str
    release: str
    never: bool

    @property
    def evr(self) -> str:
        return f"{self.epoch}:{self.version}-{self.release}"

    def allows(self, package: Package) -> bool:
        same = (package.epoch, package.version, package.release) == (self.epoch, self.version, self.release)
        return package.name == self.name and same != self.never

    def __str__(self) -> str:
        return f"{'!' if self.never else ''}{self.name}-{self.evr}.*"


class Start(NamedTuple):
    """What a system begins with."""

    wanted: Sequence[str]
    """What is asked for by hand."""
    group: str
    """A group that is installed; empty for none."""
    members: Sequence[str]
    """What comes with the group."""
    weak: bool
    """Whether weak dependencies come along."""


class Commands(Protocol):
    """What a module here has."""

    NAME: str
    KEPT_APART: Sequence[str]
    """Folders below the root that the command line writes for itself."""
    LACKS_SIGNATURE: Sequence[str]
    """Words for a package that isn't signed, or whose key is missing."""
    REFUSED_BY_SOLVER: Sequence[str]
    WITHOUT_EXCLUDES: Sequence[str]
    """Options by which what the main configuration excludes is there."""
    LISTS_WHAT_IS_INSTALLED: bool
    """Whether "list --available" tells a version that is installed, too, or an older one."""
    FIRST_REPOSITORY_COUNTS: bool
    """Whether "list" tells of a package in several repositories first where it would be taken from."""

    def can_lock(self) -> bool:
        """Whether versions can be locked on this machine."""

    def lock(self, locks: Sequence[Lock], root: Path, directory: Path, main: Dict[str, str]) -> List[str]:
        """Locks versions below the root; gives options that the command line then needs, and adds what the main
        configuration does. The directory is free for what has to be kept."""

    def enable(self, streams: Dict[str, str], root: Path) -> None:
        """Switches on streams of modules below the root."""

    def begin(self, start: Start, root: Path, repository: Path, said: Path) -> None:
        """Installs what a system begins with, reasons included. Where that cannot be, there is less, or nothing."""

    def run(self, words: Sequence[str], said: Path) -> int:
        """The command line with these words; what it says goes into the file. Gives its status."""

    def mixed(self, commands: Sequence[Sequence[str]], said: Path) -> List[str]:
        """The words by which several commands are carried out in one transaction. `said` as for `run`."""

    def separate(self, commands: Sequence[Sequence[str]], said: Path) -> List[List[str]]:
        """The words by which several commands are carried out one after the other, in one process if possible."""

    def reasons(self, root: Path, present: Set[Tuple[str, str]]) -> List[str]:
        """What is known of packages beside the rpm database; `present` are names and architectures."""

    def streams(self, root: Path) -> List[str]:
        """Which streams of modules are switched on."""


COMMANDS = cast(Commands, importlib.import_module(f"commands.{BACKEND}"))
