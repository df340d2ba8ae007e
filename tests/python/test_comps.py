# SPDX-License-Identifier: GPL-2.0-or-later
"""Group files: what is read of one, and what becomes of groups that stand in several."""

from __future__ import annotations

import locale
import sys
from typing import List

import pytest
from vemyum.comps import Comps, CompsError, CompsGroup, Member, in_the_users_language


def read(*files: str) -> List[CompsGroup]:
    comps = Comps()
    for text in files:
        comps.add([f"<comps>{text}</comps>".encode()])
    return comps.groups


def only(*files: str) -> CompsGroup:
    (group,) = read(*files)
    return group


def group(id: str = "g", *elements: str, members: str = "") -> str:
    return f"<group><id>{id}</id>{''.join(elements)}<packagelist>{members}</packagelist></group>"


def req(name: str, kind: str = "mandatory") -> str:
    return f'<packagereq type="{kind}">{name}</packagereq>'


def pairs(group: CompsGroup) -> List[tuple[str, str]]:
    return [(member.name, member.kind) for member in group.members]


def test_a_later_file_replaces_what_an_earlier_one_says_of_the_same_group() -> None:
    first = group("g", "<name>A</name>", '<name xml:lang="de">A-de</name>', "<description>d</description>",
                  "<display_order>5</display_order>", members=req("one") + req("two", "default"))
    second = group("g", "<name>B</name>", "<uservisible>false</uservisible>",
                   members=req("one", "optional") + req("three", "optional") + req("one", "default"))
    both = only(first, second)
    assert both.names == {"": "B", "de": "A-de"}
    assert both.descriptions == {"": "d"}
    assert (both.visible, both.order) == (False, 5)
    assert pairs(both) == [("one", "optional"), ("two", "default"), ("three", "optional")]
    assert pairs(only(second, first)) == [
        ("one", "mandatory"), ("three", "optional"), ("one", "default"), ("two", "default")
    ]


def test_a_group_twice_in_one_file_is_one() -> None:
    twice = group(members=req("one")) + group(members=req("two"))
    assert pairs(only(twice)) == [("one", "mandatory"), ("two", "mandatory")]


@pytest.mark.parametrize(
    ("words", "visible"),
    [("true", True), ("TRUE", True), ("1", True), ("", True), ("no", True),
     ("false", False), (" False\n", False), ("0", False)],
)
def test_only_false_hides_a_group(words: str, visible: bool) -> None:
    assert only(group("g", f"<uservisible>{words}</uservisible>")).visible is visible
    assert only(group()).visible


def test_order_is_what_the_files_say_and_without_a_word_last() -> None:
    texts = [group("none"), group("late", "<display_order>20</display_order>"),
             group("huge", f"<display_order>{'9' * 5000}</display_order>"),
             group("odd", "<display_order>soon</display_order>"), group("early", "<display_order> 3 </display_order>")]
    groups = read("".join(texts))
    assert [one.id for one in groups] == ["early", "late", "none", "huge", "odd"]
    assert groups[-1].order == sys.maxsize


def test_what_is_for_another_architecture_is_shown_as_the_command_line_shows_it() -> None:
    foreign = '<group arch="s390x"><id>far</id></group>' + group(members='<packagereq arch="s390x">far</packagereq>')
    assert [(one.id, pairs(one)) for one in read(foreign)] == [("far", []), ("g", [("far", "mandatory")])]


def test_kinds_and_conditions() -> None:
    members = '<packagereq>plain</packagereq><packagereq type="conditional" requires=" base ">rest</packagereq>'
    both = only(group(members=members + req("strange", "unheard-of")))
    assert both.of_kind("mandatory") == [Member("plain", "mandatory", "")]
    assert both.of_kind("conditional") == [Member("rest", "conditional", "base")]
    assert both.of_kind("default") == both.of_kind("optional") == []


def test_texts_keep_entities_and_other_scripts() -> None:
    named = only(group("g", "<name>Light &amp; lamps \u2014 \u706f</name>", "<description>\n a\n b </description>"))
    assert named.names[""] == "Light & lamps \u2014 \u706f"
    assert named.descriptions[""] == "a\n b"


def test_declaration_mark_and_other_encodings() -> None:
    comps = Comps()
    comps.add(['<?xml version="1.0" encoding="iso-8859-1"?><comps><group><id>\u00e4</id></group></comps>'.encode("latin-1")])
    comps.add([b"\xef\xbb\xbf<!DOCTYPE comps PUBLIC '-//X//DTD Comps//EN' 'comps.dtd'><comps>",
               b"<group><id>m", b"</id></group></comps>"])
    assert [one.id for one in comps.groups] == ["\u00e4", "m"]


@pytest.mark.parametrize(
    "content",
    [b"", b"<comps><group>", b"<comps><group><id>x</grup></comps>", b"<comps>\xff</comps>", b"\0\0\0", b"(\xb5/\xfd",
     b"<html><body/></html>",
     b'<?xml version="1.0" encoding="nonsense"?><comps/>', b'<?xml version="1.0" encoding="utf-7"?><comps/>'],
)
def test_what_is_no_group_file_is_told_and_leaves_the_others_as_they_are(content: bytes) -> None:
    comps = Comps()
    comps.add([f"<comps>{group(members=req('one'))}</comps>".encode()])
    with pytest.raises(CompsError, match="."):
        comps.add([content])
    assert [pairs(one) for one in comps.groups] == [[("one", "mandatory")]]


def test_nothing_is_taken_from_a_file_that_is_damaged_behind_a_group() -> None:
    comps = Comps()
    comps.add([f"<comps>{group('g', '<name>A</name>', members=req('one'))}</comps>".encode()])
    text = f"<comps>{group('g', '<name>B</name>', members=req('two'))}{group('new')}<group>".encode()
    with pytest.raises(CompsError):
        comps.add(text[at : at + 7] for at in range(0, len(text), 7))
    assert [(one.id, one.names, pairs(one)) for one in comps.groups] == [("g", {"": "A"}, [("one", "mandatory")])]


def test_a_group_in_a_group_is_none() -> None:
    assert [one.id for one in read("<environment><group><id>far</id></group></environment>" + group())] == ["g"]


def test_a_fault_while_reading_comes_through() -> None:
    def broken():  # type: ignore[no-untyped-def]
        yield b"<comps>"
        raise OSError("the disk is gone")

    with pytest.raises(OSError, match="the disk is gone"):
        Comps().add(broken())


@pytest.mark.parametrize(
    ("language", "text"),
    [("de_DE.UTF-8", "Licht"), ("de_AT.UTF-8", "Beleuchtung"), ("fr_FR", "Light"), ("C", "Light"),
     ("ca_ES.UTF-8@valencia", "Llum v"), ("ca_ES", "Llum")],
)
def test_names_are_told_in_the_language_of_the_messages(
    language: str, text: str, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(locale, "setlocale", lambda category: {locale.LC_MESSAGES: language}[category])
    names = {"": "Light", "de": "Licht", "de_AT": "Beleuchtung", "ca": "Llum", "ca@valencia": "Llum v"}
    assert in_the_users_language(names) == text


def test_no_text_at_all_is_empty() -> None:
    assert in_the_users_language({}) == ""
