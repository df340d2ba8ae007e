# SPDX-License-Identifier: GPL-2.0-or-later
"""Which of the package libraries does the work. Nothing of either is imported here.

There are dnf 4's and dnf 5's, and a process uses one of them, from its first import to its end. In this order:

    VEMBACKEND             of the environment
    backend=               in the file /etc/vem/vem.conf of the managed system, whose packages and history it is about
    what that system uses  by its own command, or by the state that a library has left there
    what is there          to be imported on this machine

The process that applies changes is told by the one that starts it (`settle`) and never chooses.
"""

from __future__ import annotations

import contextlib
import importlib.util
import os
from typing import NamedTuple, Optional, Tuple

from .root import below, managed_root
from .texts import _

DNF4, DNF5 = BACKENDS = ("dnf4", "dnf5")

VARIABLE = "VEMBACKEND"
FILE = "/etc/vem/vem.conf"
OPTION = "backend"

MODULES = {DNF4: "dnf", DNF5: "libdnf5"}
"""What is imported of each."""
PACKAGES = {DNF4: "python3-dnf", DNF5: "python3-libdnf5"}
"""Where these are, on every kind of system."""
NAMES = {DNF4: "dnf 4", DNF5: "dnf 5"}

_COMMANDS = ("/usr/bin/dnf", "/usr/bin/yum")
_STATE_OF_DNF5 = "/usr/lib/sysimage/libdnf5"
_HISTORY_OF_DNF4 = "/var/lib/dnf/history.sqlite"


class Unusable(Exception):
    """No library can be used, for the reason that the text tells in one sentence."""


class Choice(NamedTuple):
    backend: str
    doubt: str
    """What speaks against it, in a sentence; empty for nothing."""


_chosen: Optional[Choice] = None


def chosen() -> Choice:
    """The choice of this process; made by the first call, or before that by `settle`. Unusable, also when it has been
    before: what lacks may have been installed meanwhile."""
    global _chosen
    if _chosen is None:
        _chosen = choose(managed_root())
    return _chosen


def settle(backend: str) -> None:
    """Somebody else has chosen for this process."""
    global _chosen
    _chosen = Choice(backend, "")


def choose(root: str) -> Choice:
    """The choice for the system below this root. Unusable."""
    named = _named_by_environment() or _named_by_file(root)
    if named is not None:
        if not can_be_imported(named):
            raise Unusable(
                _("The library of {name} is missing: please install the package {package}.").format(
                    name=NAMES[named], package=PACKAGES[named]
                )
            )
        return Choice(named, "")
    wanted = _wanted(root)
    if can_be_imported(wanted):
        return Choice(wanted, "")
    other = DNF4 if wanted == DNF5 else DNF5
    if not can_be_imported(other):
        raise Unusable(
            _("There is no library to manage packages with: please install the package {package} or {other}.").format(
                package=PACKAGES[wanted], other=PACKAGES[other]
            )
        )
    return Choice(other, _doubt(other) if used_by(root) == wanted else "")


def _doubt(backend: str) -> str:
    used = DNF4 if backend == DNF5 else DNF5
    return _(
        "This system uses {used}, whose library is missing, and {name} does the work, with a history of its own: to "
        "change that, install the package {package}."
    ).format(used=NAMES[used], name=NAMES[backend], package=PACKAGES[used])


def _wanted(root: str) -> str:
    """The one to take where nobody has named one."""
    # A system that has neither yet gets what this machine has.
    return used_by(root) or used_by("/") or DNF4


def used_by(root: str) -> Optional[str]:
    """The one that the system below this root uses itself; None where nothing tells."""
    for path in _COMMANDS:
        place = _place(root, path)
        if os.path.exists(place):
            return DNF5 if os.path.basename(os.path.realpath(place)) == "dnf5" else DNF4
    if os.path.exists(_place(root, _HISTORY_OF_DNF4)):
        return DNF4
    return DNF5 if os.path.exists(_place(root, _STATE_OF_DNF5)) else None


def _place(root: str, path: str) -> str:
    """Where the path leads; empty where it goes round in circles."""
    with contextlib.suppress(OSError):
        return below(root, path)
    return ""


def can_be_imported(backend: str) -> bool:
    """Whether this machine has it; it isn't imported for that."""
    module = importlib.util.find_spec(MODULES[backend])
    # A folder that a removed package has left is no module, though it can be imported.
    return module is not None and module.origin is not None


def present() -> Tuple[str, ...]:
    """Those that this machine has, the older one first."""
    return tuple(filter(can_be_imported, BACKENDS))


def _named_by_environment() -> Optional[str]:
    return _named(VARIABLE, os.environ.get(VARIABLE, ""))


def _named_by_file(root: str) -> Optional[str]:
    """The last line that names one counts. Unusable for a file that cannot be read, too."""
    named = None
    try:
        path = below(root, FILE)
        if not os.path.exists(path):
            return None
        if not os.path.isfile(path):
            # To open a pipe would wait for ever.
            raise Unusable(_("{file} is not a regular file").format(file=FILE))
        with open(path, encoding="utf-8-sig", errors="replace") as file:
            for number, line in enumerate(file, 1):
                option, _equals, value = line.partition("#")[0].partition(";")[0].partition("=")
                if option.strip().lower() == OPTION:
                    named = _named(_("{file}, line {line}").format(file=FILE, line=number), value.strip()) or named
    except OSError as error:
        raise Unusable(f"{FILE}: {error.strerror}") from error
    return named


def _named(place: str, value: str) -> Optional[str]:
    """None for an empty value."""
    if value and value not in BACKENDS:
        raise Unusable(
            _('{place}: "{value}" is none of the package libraries that can be named, dnf4 and dnf5.').format(
                place=place, value=value
            )
        )
    return value or None
