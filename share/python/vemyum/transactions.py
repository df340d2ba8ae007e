# SPDX-License-Identifier: GPL-2.0-or-later
"""What a library's history of transactions tells, read from its database itself: that needs no rights, and changes
nothing.

The libraries' own classes would make a database where there is none, bring an old one up to date, and tell a user that
there was nothing.
"""

from __future__ import annotations

import contextlib
import os
import sqlite3
from typing import Any, Callable, Dict, Iterator, List, Mapping, NamedTuple, Optional, Sequence, Tuple, Union

from . import stop
from .apply.messages import DOWNGRADE, INSTALL, OBSOLETED, REINSTALL, REMOVE, REPLACED, UPGRADE
from .backend import OpenEntry, PkgTup, PutIn
from .errors import YumBaseError
from .history import readable
from .packages import shown_evr, whole_evr
from .root import as_configured
from .text import valid
from .texts import _

REASON = "reason"
"""What was done about a package, beside the words of an apply: only why it is installed has changed."""
INCOMING = (INSTALL, UPGRADE, DOWNGRADE, REINSTALL)
OUTGOING = (REMOVE, OBSOLETED, REPLACED)

DONE, FAILED, OPEN = "done", "failed", "open"
"""How a transaction or its part ended; OPEN where no end was noted."""

_STEPS = 100000
"""Of SQLite's, a few milliseconds: so often it is asked whether the user wants to stop."""
_PATIENCE = 1.0
"""Seconds that somebody may keep the database for himself."""

_Code = Union[int, str]


class Layout(NamedTuple):
    """How a library writes it down. The mappings tell its codes; one that isn't among them is something new."""

    heads: str
    """Asks for number, beginning, end, user, command, comment and state of transactions."""
    packages: str
    """Asks for number of the transaction, name, epoch, version, release, architecture, action, reason, repository and
    state of their packages, of which `trans_id`, `package` and `architecture` can be limited."""
    counts: str
    """Asks for number of the transaction, action and count of everything, by the two."""
    groups: str
    """Asks for number of the transaction, id, name, action, and whether it is an environment, of the groups in them."""
    output: str
    """Asks, for a number, for the descriptor and the lines of what scriptlets wrote; empty if nobody keeps that."""
    known: str
    """Asks for item, name, epoch, version, release and architecture of each package that was ever in one."""
    results: Mapping[_Code, str]
    """By the state of a transaction: DONE, FAILED or OPEN."""
    actions: Mapping[_Code, str]
    reasons: Mapping[_Code, str]
    states: Mapping[_Code, str]


class Head(NamedTuple):
    """A transaction. Times are seconds since the epoch, 0 where there is none."""

    number: int
    begun: int
    ended: int
    user: Optional[int]
    """Who it was by number; -1 or 4294967295 for somebody who has never logged in."""
    command: str
    comment: str
    result: str


class Item(NamedTuple):
    """A package as a transaction names it: what replaces another one, and what is replaced, are two."""

    number: int
    name: str
    evr: str
    """"epoch:version-release"."""
    arch: str
    action: str
    """One of INCOMING, OUTGOING, or REASON."""
    reason: str
    repository: str
    state: str

    def pkgtup(self) -> PkgTup:
        return (self.name, self.arch, *whole_evr(self.evr))


class PastGroup(NamedTuple):
    id: str
    name: str
    action: str
    environment: bool


class Records:
    """The history of one managed system. `path` is where its database is, or would be."""

    def __init__(self, path: str, layout: Layout) -> None:
        self.path = path
        self._layout = layout

    @contextlib.contextmanager
    def reading(self) -> Iterator["Reader"]:
        """Lets a block read. YumBaseError for what can't be read, also in the block; Stopped."""
        try:
            if os.path.lexists(self.path):
                # SQLite has one sentence for all that keeps it from opening a file.
                with open(self.path, "rb"):
                    pass
            with contextlib.closing(self._opened()) as database:
                database.text_factory = valid
                database.set_progress_handler(stop.wanted, _STEPS)
                database.execute(f"pragma busy_timeout = {int(_PATIENCE * 1000)}")
                yield Reader(database, self._layout)
        except (sqlite3.Error, OSError) as error:
            stop.check()
            cause = error.strerror if isinstance(error, OSError) and error.strerror else str(error)
            text = _("The history of transactions, {file}, cannot be read: {fault}")
            raise YumBaseError(text.format(file=as_configured(self.path), fault=valid(cause))) from error

    def _opened(self) -> sqlite3.Connection:
        if os.path.lexists(self.path):
            return readable(self.path)
        # Nothing was ever done.
        return sqlite3.connect(":memory:")

    def open_entry(self) -> Optional[OpenEntry]:
        """See `backend.System`."""
        with contextlib.suppress(YumBaseError), self.reading() as reader:
            last = reader.last()
            if last is not None and last.result == OPEN:
                items = reader.items(last.number)
                incoming = {(one.name, one.evr, one.arch) for one in items if one.action in INCOMING}
                outgoing = {(one.name, one.evr, one.arch) for one in items if one.action in OUTGOING}
                return OpenEntry(last.number, last.begun, last.command, incoming, outgoing - incoming)
        return None

    def put_in(self, name: str, arch: str) -> List[PutIn]:
        """See `backend.System`."""
        with contextlib.suppress(YumBaseError), self.reading() as reader:
            found = []
            for one in reader.of_package(name, arch):
                head = reader.head(one.number) if one.action in INCOMING else None
                if head is not None:
                    first = one.action == INSTALL
                    found.append(PutIn(head.number, head.begun, head.user, head.command, one.evr, first))
            return found
        return []


class Reader:
    """Of an open database; one that was never made is like one without transactions. sqlite3.Error."""

    def __init__(self, database: sqlite3.Connection, layout: Layout) -> None:
        self._database = database
        self._layout = layout
        self._empty = database.execute("pragma database_list").fetchone()[2] == ""

    def _rows(self, statement: str, arguments: Sequence[Any] = ()) -> List[Tuple[Any, ...]]:
        return [] if self._empty else self._database.execute(statement, arguments).fetchall()

    def heads(self) -> List[Head]:
        """All, the latest first."""
        return list(map(self._head, self._rows(self._layout.heads + " order by trans.id desc")))

    def head(self, number: int) -> Optional[Head]:
        rows = self._rows(self._layout.heads + " where trans.id = ?", (number,))
        return self._head(rows[0]) if rows else None

    def last(self) -> Optional[Head]:
        rows = self._rows(self._layout.heads + " order by trans.id desc limit 1")
        return self._head(rows[0]) if rows else None

    def _head(self, row: Tuple[Any, ...]) -> Head:
        number, begun, ended, user, command, comment, state = row
        result = self._layout.results.get(state, FAILED)
        return Head(
            number,
            _whole(begun),
            _whole(ended),
            user if isinstance(user, int) else None,
            str(command or ""),
            str(comment or ""),
            result,
        )

    def counts(self) -> Dict[int, Dict[str, int]]:
        """By the number of each transaction and what is done: how many packages; by "groups" how many groups."""
        found: Dict[int, Dict[str, int]] = {}
        for number, code, count in self._rows(self._layout.counts):
            action = self._layout.actions.get(code, "")
            of = found.setdefault(number, {})
            of[action] = of.get(action, 0) + count
        groups: Dict[int, int] = {}
        for number, group in self.groups():
            of = found[number]
            of[group.action] = of.get(group.action, 0) - 1
            groups[number] = groups.get(number, 0) + 1
        for number, of in found.items():
            self._count_replaced(number, of)
        for number, count in groups.items():
            found[number]["groups"] = count
        return found

    def _count_replaced(self, number: int, of: Dict[str, int]) -> None:
        """Takes out what gives way to its own namesakes, who are counted."""
        replaced = of.pop(REPLACED, 0)
        if replaced > sum(of.get(action, 0) for action in (UPGRADE, DOWNGRADE, REINSTALL)):
            of[OBSOLETED] = sum(one.action == OBSOLETED for one in self.items(number))
        for action in [action for action, count in of.items() if not action or count <= 0]:
            del of[action]

    def items(self, number: int) -> List[Item]:
        """The packages of a transaction, in its order."""
        rows = self._rows(self._layout.packages + " where trans_id = ? order by trans_item.id", (number,))
        found = list(map(self._item, rows))
        names = {one.name for one in found if one.action in INCOMING}
        # One of the libraries has one word for both.
        return [
            one._replace(action=OBSOLETED) if one.action == REPLACED and one.name not in names else one for one in found
        ]

    def of_package(self, name: str, arch: str) -> List[Item]:
        """What was done about a package, the latest first."""
        limit = " where package = ? and architecture = ? order by trans_id desc, trans_item.id desc"
        return list(map(self._item, self._rows(self._layout.packages + limit, (name, arch))))

    def _item(self, row: Tuple[Any, ...]) -> Item:
        number, name, epoch, version, release, arch, action, reason, repository, state = row
        layout = self._layout
        return Item(
            number,
            str(name),
            f"{epoch or 0}:{version}-{release}",
            str(arch),
            layout.actions.get(action, ""),
            layout.reasons.get(reason, "unknown"),
            str(repository or ""),
            layout.states.get(state, OPEN),
        )

    def groups(self, number: Optional[int] = None) -> List[Tuple[int, PastGroup]]:
        """Of one transaction, or of all, each with its number."""
        limit, arguments = ("", ()) if number is None else (" where trans_id = ?", (number,))
        return [
            (transaction, PastGroup(str(id), str(name or id), self._layout.actions.get(action, ""), bool(environment)))
            for transaction, id, name, action, environment in self._rows(
                f"select * from ({self._layout.groups}){limit} order by 1, 5, 2", arguments
            )
        ]

    def output(self, number: int) -> Optional[List[Tuple[int, str]]]:
        """What its scriptlets wrote: descriptors, 1 or 2, and lines. None where nobody keeps that."""
        if not self._layout.output:
            return None
        return [(_whole(descriptor), str(line)) for descriptor, line in self._rows(self._layout.output, (number,))]

    def concerning(self, wanted: Callable[[str], bool]) -> List[int]:
        """The numbers of the transactions, the latest first, with a package for which that is true, given its name,
        version and architecture as "name-[epoch:]version-release.arch"."""
        items = [
            item
            for item, name, epoch, version, release, arch in self._rows(self._layout.known)
            if wanted(f"{name}-{shown_evr(f'{epoch or 0}:{version}-{release}')}.{arch}")
        ]
        found = set()
        for begin in range(0, len(items), 500):
            some = items[begin : begin + 500]
            marks = ",".join("?" * len(some))
            rows = self._rows(f"select distinct trans_id from trans_item where item_id in ({marks})", some)
            found.update(number for (number,) in rows)
        return sorted(found, reverse=True)


class Change(NamedTuple):
    """What a transaction did about a package: `old` and `new` are "[epoch:]version-release", empty where there is
    none. REPLACED stands for a version that gave way to one that stands in another line: of another architecture."""

    name: str
    arch: str
    old: str
    new: str
    action: str
    reason: str
    repository: str
    state: str


def changes(items: Sequence[Item]) -> List[Change]:
    """One for each package: what comes in together with what it takes the place of."""
    replaced = [one for one in items if one.action == REPLACED]
    taken = set()

    def old_of(new: Item) -> str:
        for same_arch in (True, False):
            for place, old in enumerate(replaced):
                if place not in taken and old.name == new.name and (old.arch == new.arch or not same_arch):
                    taken.add(place)
                    return old.evr
        return ""

    # Those of the same architecture find each other first.
    paired = {}
    order = sorted(
        (one for one in items if one.action in (UPGRADE, DOWNGRADE, REINSTALL)),
        key=lambda new: not any(old.name == new.name and old.arch == new.arch for old in replaced),
    )
    for one in order:
        paired[id(one)] = old_of(one)
    left = {id(old) for place, old in enumerate(replaced) if place not in taken}
    found = []
    for one in items:
        if one.action == REPLACED and id(one) not in left:
            continue
        new = one.evr if one.action in (*INCOMING, REASON) else ""
        old = paired.get(id(one), "" if new and one.action != REASON else one.evr)
        versions = (shown_evr(old), shown_evr(new))
        found.append(Change(one.name, one.arch, *versions, one.action, one.reason, one.repository, one.state))
    return found


def _whole(number: Any) -> int:
    """A damaged database may hold anything."""
    return number if isinstance(number, int) else 0
