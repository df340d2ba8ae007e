# SPDX-License-Identifier: GPL-2.0-or-later
"""What still works with what has been replaced: whether the system is to be started anew, and which processes.

Needs no collection. Looking changes nothing, and needs rights only for the processes of others.

The rules are the same with each library. The system is to be started anew where a package that provides one of the
names below, or that the administrator's list names, has been installed since its first process began: that is what the
command lines say, but that dnf 5's and older ones of dnf 4 don't heed what a package of another name provides. With dnf
5, behind a collection, an advisory of the repositories may want it, too. A process is to be restarted where a file that
it has mapped belongs to a package that has been installed since it began, as dnf 4's command line says; or where code
that it has mapped is gone from the system's own folders, which the kernel tells. (For dnf 5's command line a process is
outdated as soon as anything has been installed since that its program's package requires, used or not.)

The advice is a dictionary:

    running     bool, whether the managed system is the one that runs
    note        str, a sentence where it isn't, else ""
    since       int, when the system's first process began, in seconds since the epoch; 0 where nobody knows
    reboot      list of dict, by name, the packages for whose sake the system is to be started anew: name, version (str,
                "[epoch:]version-release") and installed (int, seconds since the epoch)
    processes   list of dict, by number: pid (int), user (int; None where nobody knows), userName, command (str), started
                (int, seconds since the epoch), unit (str, systemd's; "" for none), own (bool, whether the unit is one of
                the user's own systemd), files (list of dict, by path: path, package (str, "name-version-release.arch"; ""
                where none has it any more), gone (bool, whether the mapped file isn't there any more))
    units       list of dict, by name, of those processes: unit, own, user (str, the name of whose it is; "" for the
                system's), pids (list of int) and obstacle (str, a sentence why it is not to be restarted here, or "")
    unread      int, of how many processes nothing could be told, for lack of rights
"""

from __future__ import annotations

import contextlib
import os
import re
from typing import Any, Dict, Iterator, List, NamedTuple, Sequence, Set, Tuple, Union

import rpm

from .. import processes, stop
from ..database import point_rpm_at, unreadable
from ..errors import YumBaseError
from ..messages import rpms_words
from ..packages import shown_evr
from ..people import user_name
from ..root import files, within
from ..services import obstacle
from ..services import restarted as restarted
from ..text import valid
from ..texts import _

Told = Dict[str, Any]

_CORE = (
    "kernel",
    "kernel-core",
    "kernel-rt",
    "glibc",
    "linux-firmware",
    "systemd",
    "dbus",
    "dbus-broker",
    "dbus-daemon",
    "microcode_ctl",
)
"""What runs from the start to the end of a system, and can't be replaced in between."""
_GONE = " (deleted)"
_ON_ITS_WAY = re.compile(r";[0-9A-Fa-f]{8,}$")
"""What rpm appends to a file's name before it takes it away."""
_SYSTEMS_OWN = ("/usr/", "/lib/", "/lib64/", "/bin/", "/sbin/", "/opt/")
"""Elsewhere programs map code that they have just made, and take its file away at once."""
_UNIT = re.compile(r"\.(service|scope|socket|mount|swap)$")
_MANAGER = re.compile(r"^user@(\d+)\.service$")


class _Package(NamedTuple):
    label: str
    installed: int


class _Packages:
    """The rpm database of a root, as far as it is asked."""

    def __init__(self, root: str) -> None:
        self._transaction = rpm.TransactionSet(root)
        self._transaction.setVSFlags(rpm._RPMVSF_NODIGESTS | rpm._RPMVSF_NOSIGNATURES)
        self._owners: Dict[str, List[_Package]] = {}

    def close(self) -> None:
        self._transaction.closeDB()

    def matching(self, tag: str, text: Union[str, bytes]) -> Iterator[Any]:
        return iter(self._transaction.dbMatch(tag, text))

    def owners(self, path: str) -> List[_Package]:
        """Of a path of the managed system."""
        if path not in self._owners:
            self._owners[path] = [
                _Package(valid(header["nevra"]), int(header["installtime"] or 0))
                for header in self.matching("basenames", os.fsencode(path))
            ]
        return self._owners[path]


def advice(root: str, lists: Sequence[str], advised: Sequence[str] = (), proc: str = processes.PROC) -> Told:
    """`lists` are the folders with the administrator's lists (`backend.Library`), `advised` the names that advisories
    add (`backend.System`), `proc` is where processes are told of. YumBaseError, Stopped."""
    running = os.path.realpath(root) == "/"
    note = "" if running else _("{root} is not the system that runs: few programs, if any, use its files.").format(root=root)
    since = processes.system_started(proc)
    with _opened(root) as packages:
        reboot = _reboot(packages, {*_configured(root, lists), *advised}, since)
        found, unread = _outdated(packages, root, proc)
    return {
        "running": running,
        "note": note,
        "since": int(since),
        "reboot": reboot,
        "processes": found,
        "units": _units(found, running),
        "unread": unread,
    }


@contextlib.contextmanager
def _opened(root: str) -> Iterator[_Packages]:
    """YumBaseError for a database that cannot be read."""
    with rpms_words() as said:
        try:
            point_rpm_at(root)
            packages = _Packages(root)
            try:
                yield packages
            finally:
                packages.close()
        except rpm.error as error:
            raise unreadable(root, error, said()) from error


# The system -----------------------------------------------------------------------------------------------------


def _reboot(packages: _Packages, names: Set[str], since: float) -> List[Told]:
    found: Dict[Tuple[str, str], int] = {}
    wanted = [("providename", name) for name in _CORE]
    wanted += [("name", name) for name in sorted(names)]
    for tag, text in wanted:
        for header in packages.matching(tag, text):
            installed = int(header["installtime"] or 0)
            if installed > since:
                evr = f"{header['epoch'] or 0}:{header['version']}-{header['release']}"
                found[valid(header["name"]), shown_evr(valid(evr))] = installed
    return [
        {"name": name, "version": version, "installed": installed}
        for (name, version), installed in sorted(found.items())
    ]


def _configured(root: str, lists: Sequence[str]) -> Set[str]:
    """The names of packages in the administrator's lists."""
    places: Dict[str, str] = {}
    for folder in lists:
        for path, place in files(root, folder, "*.conf"):
            places.setdefault(os.path.basename(path), place)
    names: Set[str] = set()
    for place in places.values():
        # It may be gone, or closed to this user.
        with contextlib.suppress(OSError), open(place, encoding="utf-8", errors="replace") as file:
            names.update(line.strip() for line in file)
    return {name for name in names if name and not name.startswith("#") and "\0" not in name}


# Processes ------------------------------------------------------------------------------------------------------


def _outdated(packages: _Packages, root: str, proc: str) -> Tuple[List[Told], int]:
    found: List[Told] = []
    unread = 0
    for pid in processes.numbers(proc):
        stop.check()
        try:
            mapped = _mapped(pid, root, proc)
        except PermissionError:
            unread += not processes.is_of_kernel(pid, proc)
            continue
        except OSError:
            # It has come to its end meanwhile.
            continue
        began = processes.started(pid, proc) if mapped else None
        replaced = [] if began is None else _replaced(packages, mapped, began)
        if began is None or not replaced:
            continue
        user = processes.user(pid, proc)
        unit, own = _unit(processes.control_group(pid, proc))
        found.append(
            {
                "pid": pid,
                "user": user,
                "userName": valid(user_name(user)),
                "command": valid(processes.command_line(pid, proc) or processes.name(pid, proc)),
                "started": int(began),
                "unit": valid(unit),
                "own": own,
                "files": replaced,
            }
        )
    return found, unread


def _mapped(pid: int, root: str, proc: str) -> Dict[str, Tuple[bool, bool]]:
    """The files of the managed system that a process has mapped, by their paths there: whether the file is gone, and
    whether such a one is code. OSError."""
    found: Dict[str, Tuple[bool, bool]] = {}
    with open(f"{proc}/{pid}/maps", "rb") as maps:
        for line in maps:
            fields = line.rstrip(b"\n").split(None, 5)
            if len(fields) < 6 or not fields[5].startswith(b"/"):
                continue
            path = os.fsdecode(fields[5].replace(rb"\012", b"\n"))
            gone = path.endswith(_GONE)
            if gone:
                path = _ON_ITS_WAY.sub("", path[: -len(_GONE)])
            if root != "/":
                if not path.startswith(root + "/"):
                    continue
                path = within(root, path)
            before = found.get(path, (False, False))
            found[path] = (before[0] or gone, before[1] or (gone and b"x" in fields[1]))
    return found


def _replaced(packages: _Packages, mapped: Dict[str, Tuple[bool, bool]], began: float) -> List[Told]:
    found = []
    for path, (gone, code) in sorted(mapped.items()):
        owners = packages.owners(path)
        newest = max(owners, key=lambda owner: owner.installed, default=None)
        if not (newest is not None and newest.installed > began) and not (code and path.startswith(_SYSTEMS_OWN)):
            continue
        found.append({"path": valid(path), "package": "" if newest is None else newest.label, "gone": gone})
    return found


# Units ----------------------------------------------------------------------------------------------------------


def _unit(group: str) -> Tuple[str, bool]:
    """The unit of a control group, and whether it is one of a user's own systemd; empty for none."""
    # systemd puts a line before names that would mean something else there.
    units = [part[part.startswith("_") :] for part in group.split("/") if _UNIT.search(part)]
    if not units:
        return "", False
    inner = [unit for unit in units[1:] if unit != "init.scope"]
    if _MANAGER.match(units[0]) and inner:
        return inner[0], True
    return units[0], False


def _units(found: List[Told], running: bool) -> List[Told]:
    units: Dict[Tuple[str, bool, str], List[int]] = {}
    for process in found:
        if process["unit"]:
            user = process["userName"] if process["own"] else ""
            units.setdefault((process["unit"], process["own"], user), []).append(process["pid"])
    return [
        {"unit": unit, "own": own, "user": user, "pids": pids, "obstacle": obstacle(unit, own, running)}
        for (unit, own, user), pids in sorted(units.items())
    ]
