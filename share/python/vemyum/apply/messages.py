# SPDX-License-Identifier: GPL-2.0-or-later
"""What the two processes of an apply say to each other.

Each message is one line, a JSON object of the fields of one of the classes below and "is", the name of the class.
The child begins with `Hello`, the parent answers with `Request`. Then the child talks, up to `Ended`; the parent only
gives the `Answer` to `Plan` and to each `KeyWanted`, and says `Leave` in the end, or earlier to end what has not
begun. Texts may hold what is no valid Unicode, as file names do.
"""

from __future__ import annotations

import dataclasses
import functools
import json
import typing
from typing import Any, Dict, List, Type, Union

from ..sections import RepositorySection

PROTOCOL = 5
"""Raised whenever a message changes its form: child and parent are always of one version, or don't work together."""


class ProtocolError(Exception):
    """A line that is none of the messages. The text quotes it."""


# From the parent ---------------------------------------------------------------------------------------------


SYSTEM = "@System"
"""Stands for a repository where a package is installed."""


@dataclasses.dataclass(frozen=True)
class Wish:
    """A package that is marked. `repository` is SYSTEM for one that is to go; `evr` is "[epoch:]version-release"."""

    repository: str
    name: str
    arch: str
    evr: str


UNDO, REDO, ROLL_BACK = "undo", "redo", "rollback"
"""What can be done about the history: the opposite of a transaction; the same once more; the opposite of all that came
behind it."""


@dataclasses.dataclass(frozen=True)
class Past:
    """A wish about the transaction of that number. `without` tells to go on without what cannot be done."""

    kind: str
    number: int
    without: bool


@dataclasses.dataclass(frozen=True)
class Request:
    """What is to be done. `past` has one wish about the history, and then nothing is marked, or none. `repositories` are those that the list of packages rests on; `files` are the paths of the
    incoming packages that no repository has; `installed` is how many
    packages the system has by all that the parent knows, 0 where it knows nothing; `main_file` is the main
    configuration file that the list rests on, empty for none; `command` is the program's command line and `comment`
    what is marked, both for the history."""

    protocol: int
    repositories: List[RepositorySection]
    incoming: List[Wish]
    files: List[str]
    removes: List[Wish]
    past: List[Past]
    installed: int
    main_file: str
    command: str
    comment: str


@dataclasses.dataclass(frozen=True)
class Answer:
    """Whether the user agrees to the plan, or to the key."""

    confirmed: bool


@dataclasses.dataclass(frozen=True)
class Leave:
    """The parent has heard `Ended`, or else something over which it gives up: what has not begun ends then. A parent
    that is gone without having heard the end knows nothing of it."""

    heard: bool


# From the child ----------------------------------------------------------------------------------------------


@dataclasses.dataclass(frozen=True)
class Hello:
    protocol: int


@dataclasses.dataclass(frozen=True)
class Log:
    """A line for the log, at one of the levels of `host`."""

    level: int
    text: str


@dataclasses.dataclass(frozen=True)
class WarningLog:
    level: int
    text: str


@dataclasses.dataclass(frozen=True)
class ErrorLog:
    level: int
    text: str


@dataclasses.dataclass(frozen=True)
class Output:
    """What Python or a scriptlet wrote to its standard output, in pieces of any length."""

    text: str


@dataclasses.dataclass(frozen=True)
class ErrorOutput:
    text: str


@dataclasses.dataclass(frozen=True)
class Solving:
    """The solver begins."""


@dataclasses.dataclass(frozen=True)
class Obstacles:
    """What cannot be done of a wish about the history, a sentence for each package or group. Nothing is done then."""

    texts: List[str]


INSTALL, UPGRADE, OBSOLETED, REMOVE, REPLACED = "install", "upgrade", "obsoleted", "remove", "replaced"
"""Kinds of changes: a package goes in; goes in as a newer version of an installed one; gives way to one of another
name; goes; gives way to another version of its own that isn't an update of this very package."""


@dataclasses.dataclass(frozen=True)
class Change:
    """One package of the transaction. `asked` is False for what the solver has added. `replaced_by` is the place, in
    the list of changes, of the package that makes this one obsolete, -1 for none."""

    kind: str
    asked: bool
    name: str
    arch: str
    epoch: str
    version: str
    release: str
    repository: str
    replaced_by: int


DOWNGRADE, REINSTALL = "downgrade", "reinstall"
"""What details tell beside INSTALL, UPGRADE, OBSOLETED and REMOVE."""

MARKED, REQUIRED, RECOMMENDED, TOGETHER = "marked", "required", "recommended", "together"
"""Why a package comes in: the user wants it; another one that comes in requires it, or only recommends it; it needs
another one that comes in."""
NEEDS, SUPPLANTED, UNNEEDED, SURPLUS, SOLVER = "needs", "supplanted", "unneeded", "surplus", "solver"
"""Why a package goes: it is marked, or needs what goes; gives way to one that comes in; nothing needs it any more; a
newer version comes in beside it, and only so many are kept; for either direction, the solver alone knows."""

UNMARKED, PROTECTED, RUNNING, OLDER, UNCHECKED = "unmarked", "protected", "running", "older", "unchecked"
"""What a user may not expect: a package goes that isn't marked; a protected one does; so does the running kernel; an
older version comes in; nobody asks for the signature of what comes in."""


@dataclasses.dataclass(frozen=True)
class Detail:
    """One package of the transaction, with its older version if it takes the place of one. `old` and `new` are
    "[epoch:]version-release", empty where there is none. `size` is what is to be downloaded, of a package that goes what
    it takes. `whom` are the names that `why` speaks of, `more` how many others there are; `replaces` the packages of
    other names that give way to it. `checksum` is that of a package that comes in."""

    action: str
    name: str
    arch: str
    old: str
    new: str
    repository: str
    size: int
    why: str
    whom: List[str]
    more: int
    replaces: List[str]
    warnings: List[str]
    checksum: str


@dataclasses.dataclass(frozen=True)
class Plan:
    """The solved transaction, the module streams that it enables, each as "name:stream", the sizes in bytes of the
    files that are still to be fetched, what is told of each package, and how many bytes more the packages take on the
    disk behind it. Wants an answer."""

    changes: List[Change]
    streams: List[str]
    downloads: List[int]
    details: List[Detail]
    growth: int


@dataclasses.dataclass(frozen=True)
class KeyWanted:
    """A key that is missing, with the arguments of `host.confirm_key`. Wants an answer."""

    location: str
    repository: str
    packages: str
    user_id: str
    fingerprint: str
    key_id: str
    created: int
    expires: int
    verified: bool


@dataclasses.dataclass(frozen=True)
class FileStarted:
    """A download begins: file name or address, bytes."""

    name: str
    size: int


@dataclasses.dataclass(frozen=True)
class FileProgress:
    """Bytes of the file that began last."""

    done: int


@dataclasses.dataclass(frozen=True)
class FileEnded:
    done: int


@dataclasses.dataclass(frozen=True)
class TransactionStarts:
    """The test transaction begins, or the real one: from there on nothing stops the child."""

    real: bool


@dataclasses.dataclass(frozen=True)
class Event:
    """How far one element of the transaction is. `code` is one of yum's (`display`), `ordinal` counts the elements
    from 1, `count` is how many there are."""

    name: str
    code: int
    done: int
    total: int
    ordinal: int
    count: int


@dataclasses.dataclass(frozen=True)
class Script:
    """A scriptlet of the package of this name begins to run."""

    name: str


@dataclasses.dataclass(frozen=True)
class Begun:
    """First in the journal: the process that works, by its number and its start as `processes.start_of` tells it,
    the number of the program that started it, and what it works on."""

    protocol: int
    pid: int
    start: int
    program: int
    changes: List[Change]


DONE, REFUSED, FAILED, BROKEN_PIPE, INTERNAL = "done", "refused", "failed", "broken pipe", "internal"
"""Outcomes: all is done; the user didn't agree; `text` says why not; the same of a broken pipe; `text` is the
traceback of a fault of the program itself."""


@dataclasses.dataclass(frozen=True)
class Ended:
    """The last message. `installed` is how many packages the system has now, -1 where that wasn't looked at."""

    outcome: str
    text: str
    installed: int


Message = Union[
    Request,
    Answer,
    Leave,
    Hello,
    Log,
    WarningLog,
    ErrorLog,
    Output,
    ErrorOutput,
    Solving,
    Obstacles,
    Plan,
    KeyWanted,
    FileStarted,
    FileProgress,
    FileEnded,
    TransactionStarts,
    Event,
    Script,
    Begun,
    Ended,
]

_encode = json.JSONEncoder(separators=(",", ":"), default=vars).encode
_KINDS: Dict[str, Type[Any]] = {kind.__name__: kind for kind in typing.get_args(Message)}


def to_line(message: Message) -> bytes:
    """The message as a line, ASCII alone."""
    # Not dataclasses.asdict, which copies everything first: there are ten messages for each package.
    return _encode({"is": type(message).__name__, **vars(message)}).encode("ascii") + b"\n"


def from_line(line: bytes) -> Message:
    """The message of a line. ProtocolError for anything but a whole line with exactly one message's fields."""
    try:
        if not line.endswith(b"\n"):
            raise ValueError
        fields = json.loads(line)
        kind = _KINDS[fields.pop("is")]
        message: Message = _build(kind, fields)
        return message
    except (ValueError, KeyError, TypeError, AttributeError, RecursionError):
        raise ProtocolError(repr(line[:200])[1:]) from None


@functools.lru_cache(maxsize=None)
def _fields(kind: Type[Any]) -> Dict[str, Any]:
    return typing.get_type_hints(kind)


def _build(kind: Type[Any], fields: Any) -> Any:
    types = _fields(kind)
    if not isinstance(fields, dict) or fields.keys() != types.keys():
        raise TypeError
    return kind(**{name: _value(wanted, fields[name]) for name, wanted in types.items()})


def _value(wanted: Any, value: Any) -> Any:
    """`value` if it is of that type, with the objects in it built. TypeError."""
    origin = typing.get_origin(wanted)
    if origin is list and isinstance(value, list):
        (inner,) = typing.get_args(wanted)
        return [_value(inner, one) for one in value]
    if origin is dict and isinstance(value, dict):
        _key, inner = typing.get_args(wanted)
        return {key: _value(inner, one) for key, one in value.items()}
    if dataclasses.is_dataclass(wanted):
        return _build(wanted, value)
    if type(value) is not wanted:
        raise TypeError
    return value
