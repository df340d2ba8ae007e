# SPDX-License-Identifier: GPL-2.0-or-later
"""Groups of packages from the repositories' group files."""

from __future__ import annotations

import locale

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Collection, Program
from rpmestate import Estate


def comps(*groups: str) -> str:
    return f'<?xml version="1.0" encoding="UTF-8"?>\n<comps>{"".join(groups)}</comps>\n'


def group(id: str, name: str = "", visible: bool = True, **members: str) -> str:
    """`members` maps a kind to names parted by blanks; a condition stands behind a "?"."""
    lines = []
    for kind, names in members.items():
        for member in names.split():
            name_, _, condition = member.partition("?")
            requires = f' requires="{condition}"' if condition else ""
            type_ = "" if kind == "untyped" else f' type="{kind}"'
            lines.append(f"<packagereq{type_}{requires}>{name_}</packagereq>")
    return (
        f"<group><id>{id}</id><name>{name}</name><description/>"
        f"<uservisible>{str(visible).lower()}</uservisible>"
        f"<packagelist>{''.join(lines)}</packagelist></group>"
    )


@pytest.fixture
def found(estate: Estate, rpms: Catalogue, program: Program) -> Collection:
    estate.install(rpms.some("lib-1.0", "lone-1.0"))
    estate.repository(
        "base",
        rpms.some("battery-1.0"),
        comps=comps(
            group("all-there", "All there", mandatory="lib lone", optional="battery"),
            group("part-there", "Part there", mandatory="lib battery", default="lone"),
            group("loose", "Loose", default="battery", optional="lone"),
            group("loose-absent", "Loose absent", optional="battery"),
            group("conditional", "Conditional", conditional="battery?lib lone?lib"),
            group("untyped", "Untyped", untyped="battery"),
            group("hidden", "Hidden", visible=False, mandatory="lib"),
            group("empty", "Empty"),
            group("nameless", mandatory="lib"),
        ),
    )
    return program.collect()


def test_members_by_kind(found: Collection) -> None:
    part = found.group("Part there")
    assert list(part.mandatory_packages) == ["lib", "battery"]
    assert list(part.default_packages) == ["lone"]
    assert part.optional_packages == part.conditional_packages == {}
    assert found.group("Conditional").conditional_packages == {"battery": "lib", "lone": "lib"}
    assert list(found.group("Untyped").mandatory_packages) == ["battery"]
    for one in found.groups:
        for kind in ("mandatory", "default", "optional", "conditional"):
            assert type(getattr(one, f"{kind}_packages")) is dict


@pytest.mark.parametrize(
    ("name", "installed"),
    [
        ("All there", True),
        ("Part there", False),
        ("Loose", True),
        ("Loose absent", False),
        ("Conditional", True),
        ("Untyped", False),
        ("Empty", False),
    ],
)
def test_installed_by_the_classic_rule(found: Collection, name: str, installed: bool) -> None:
    assert found.group(name).installed is installed


def test_hidden_group_is_told_as_hidden(found: Collection) -> None:
    assert found.group("Hidden").user_visible is False
    assert found.group("All there").user_visible is True


def test_group_without_name_goes_by_its_id(found: Collection) -> None:
    assert found.group("nameless").installed


def test_no_groups_are_told_by_the_words_that_the_engine_knows(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("lib-1.0"))
    found = program.collect()
    assert "No Groups Available" in found.groups_text
    assert found.groups == []
    with pytest.raises(program.errors.GroupsError):
        found.yumio.setupTsGroup()


def test_groups_of_two_repositories_come_together(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lib-1.0"), comps=comps(group("one", "One", mandatory="lib")))
    estate.repository("extras", rpms.some("lone-1.0"), comps=comps(group("two", "Two", mandatory="lone")))
    assert {one.name for one in program.collect().groups} == {"One", "Two"}


def test_damaged_group_file_is_told_and_the_rest_goes_on(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.repository("base", rpms.some("lib-1.0"), comps="<comps><group>")
    found = program.collect()
    assert found.groups == []
    assert "base" in host.text("errorlog")
    assert found.merged() == {"lib": "Available"}


def test_translated_name(estate: Estate, rpms: Catalogue, program: Program) -> None:
    text = comps(group("light", "Light", mandatory="lib")).replace(
        "</name>", '</name><name xml:lang="de">Licht \u2014 Leuchten</name>'
    )
    estate.repository("base", rpms.some("lib-1.0"), comps=text)
    (one,) = program.collect().groups
    assert one.name in ("Light", "Licht \u2014 Leuchten")


def test_the_description_is_told_in_the_users_language(
    estate: Estate, rpms: Catalogue, program: Program, monkeypatch: pytest.MonkeyPatch
) -> None:
    text = comps(group("light", "Light", mandatory="lib")).replace(
        "<description/>", '<description>All that shines</description><description xml:lang="de">Was leuchtet</description>'
    )
    estate.repository("base", rpms.some("lib-1.0"), comps=text)
    (one,) = program.collect().groups
    assert one.description == "All that shines"
    monkeypatch.setattr(locale, "setlocale", lambda category: {locale.LC_MESSAGES: "de_AT.UTF-8"}[category])
    (one,) = program.collect().groups
    assert one.description == "Was leuchtet"


def test_members_without_a_name_are_no_packages(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install(rpms.some("lib-1.0"))
    members = (
        "<packagereq type='mandatory'/><packagereq type='mandatory'>  </packagereq>"
        "<packagereq type='mandatory'>\n lib\n</packagereq><packagereq type='optional'/>"
        "<packagereq type='conditional' requires='lib'/>"
    )
    text = comps(group("gaps", "\n Gaps ").replace("<packagelist>", f"<packagelist>{members}"))
    estate.repository("base", rpms.some("lone-1.0"), comps=text)
    (one,) = program.collect().groups
    assert one.name == "Gaps"
    assert one.mandatory_packages == {"lib": "lib"}
    assert one.optional_packages == one.conditional_packages == {}
    assert one.installed


def test_groups_that_name_themselves_or_nothing_that_is_known(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    text = comps(group("mirror", "Mirror", mandatory="Mirror mirror"), group("far", "Far", default="nowhere"))
    estate.repository("base", rpms.some("lib-1.0"), comps=text)
    found = program.collect()
    assert {one.name: one.installed for one in found.groups} == {"Mirror": False, "Far": False}
    assert found.merged() == {"lib": "Available"}


def test_group_without_list_id_and_name_is_not_shown(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    text = comps("<group><uservisible>true</uservisible></group>", "<group><id>bare</id></group>")
    estate.repository("base", rpms.some("lib-1.0"), comps=text)
    (one,) = program.collect().groups
    assert (one.groupid, one.name, one.mandatory_packages) == ("bare", "bare", {})
