# SPDX-License-Identifier: GPL-2.0-or-later
"""The repositories' group files ("comps"), read with Python's own XML parser.

dnf's library for them ends the process on what a file may well hold: on an empty <uservisible> in some releases, on
any iteration over its groups in others. What is made of the elements here, and of groups that stand in several files,
is what that library makes of them where it works.

The form: <comps> holds <group> with <id>, <name> and <description> (again with xml:lang for translations),
<uservisible>, <display_order> and <packagelist> of <packagereq type="mandatory|default|optional|conditional"
requires="PACKAGE">NAME</packagereq>. An attribute `arch` counts for nothing, as on dnf's command line.
"""

from __future__ import annotations

import copy
import itertools
import locale
import re
import sys
from dataclasses import dataclass, field
from typing import Dict, Iterable, Iterator, List, NamedTuple, Optional
from xml.etree import ElementTree

from .text import valid
from .texts import _

MANDATORY, DEFAULT, OPTIONAL, CONDITIONAL = "mandatory", "default", "optional", "conditional"
_LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
_WHOLE = re.compile(r"[+-]?[0-9]{1,9}")


class CompsError(ValueError):
    """A group file that is no well-formed XML, or holds something other than groups; says where and why."""


class Member(NamedTuple):
    """A package of a group; `requires` is the package on which a conditional one rests."""

    name: str
    kind: str
    requires: str


@dataclass
class CompsGroup:
    """One group as the files tell it. Texts are by language, "" being the one for everybody."""

    id: str
    names: Dict[str, str] = field(default_factory=dict)
    descriptions: Dict[str, str] = field(default_factory=dict)
    visible: bool = True
    order: int = sys.maxsize
    members: List[Member] = field(default_factory=list)

    def take(self, element: ElementTree.Element) -> None:
        """Joins what one more file says of the group: that counts."""
        self.names = {**self.names, **_by_language(element.findall("name"))}
        self.descriptions = {**self.descriptions, **_by_language(element.findall("description"))}
        for tag in element.findall("uservisible"):
            self.visible = _text(tag).lower() not in ("false", "0")
        for tag in element.findall("display_order"):
            if _WHOLE.fullmatch(_text(tag)):
                self.order = int(_text(tag))
        self.members = _joined(self.members, [_member(tag) for tag in element.iterfind("packagelist/packagereq")])

    def of_kind(self, kind: str) -> List[Member]:
        return [member for member in self.members if member.kind == kind]


class Comps:
    """The groups of several files. One thread at a time."""

    def __init__(self) -> None:
        self._groups: Dict[str, CompsGroup] = {}

    def add(self, content: Iterable[bytes]) -> None:
        """Takes in one file, given in pieces. A group that is there already is joined: what the later file says
        of it counts. Raises CompsError, and what the pieces raise; nothing is taken in then."""
        groups = {id: copy.copy(group) for id, group in self._groups.items()}
        for element in _parsed(content):
            id = _text(element.find("id"))
            groups.setdefault(id, CompsGroup(id)).take(element)
        self._groups = groups

    @property
    def groups(self) -> List[CompsGroup]:
        """In the order in which the files want them shown; those that don't say it come last."""
        return sorted(self._groups.values(), key=lambda group: group.order)


def _parsed(content: Iterable[bytes]) -> Iterator[ElementTree.Element]:
    """Each group of a file, gone when the next one is asked for: all of them at once take ten times what the file does."""
    parser = ElementTree.XMLPullParser(("start", "end"))
    above: List[ElementTree.Element] = []
    try:
        for piece in itertools.chain(content, (None,)):
            if piece is None:
                parser.close()
            else:
                parser.feed(piece)
            for event, element in parser.read_events():
                if event == "start":
                    above.append(element)
                    if element is above[0] and element.tag != "comps":
                        raise CompsError(_("it holds {element}, not comps").format(element=f"<{element.tag}>"))
                    continue
                above.pop()
                if len(above) == 1:
                    if element.tag == "group":
                        yield element
                    above[0].clear()
    except (ElementTree.ParseError, LookupError, ValueError) as error:
        # The latter two are Python's words for an encoding that it doesn't know.
        raise CompsError(str(error)) from error


def _joined(old: List[Member], new: List[Member]) -> List[Member]:
    """Members of two files: what the new one says first of a package replaces what the old one says of it."""
    if not old:
        return new
    said: Dict[str, Member] = {}
    for member in new:
        said.setdefault(member.name, member)
    replaced = [said.pop(member.name, member) for member in old]
    return [*replaced, *said.values()]


def _member(element: ElementTree.Element) -> Member:
    return Member(_text(element), sys.intern(element.get("type", MANDATORY)), valid(element.get("requires", "")).strip())


def _text(element: Optional[ElementTree.Element]) -> str:
    """What an element holds, without the line feeds and blanks of a laid out file."""
    return "" if element is None else valid(element.text or "").strip()


def _by_language(elements: Iterable[ElementTree.Element]) -> Dict[str, str]:
    return {element.get(_LANGUAGE, ""): _text(element) for element in elements}


def in_the_users_language(texts: Dict[str, str]) -> str:
    """The text in the language of the messages, else the one for everybody."""
    return next((texts[name] for name in _languages() if name in texts), texts.get("", ""))


def _languages() -> Iterable[str]:
    """By what names a text in the user's language may go, the closest first."""
    spelled, _at, modifier = locale.setlocale(locale.LC_MESSAGES).partition("@")
    base = spelled.partition(".")[0]
    for name in dict.fromkeys((base, base.partition("_")[0])):
        if modifier:
            yield f"{name}@{modifier}"
        yield name
