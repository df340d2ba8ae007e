# SPDX-License-Identifier: GPL-2.0-or-later
"""What the description of one package tells of others."""

from __future__ import annotations

import time
from typing import Any, List, Mapping

import pytest
from advisories import advise
from catalogue import Catalogue
from program import Program
from rpmestate import Estate, spec


def lines(program: Program, kind: str, package: Any, most: int = 100) -> List[str]:
    """The answer's lines, links in brackets."""
    found, count = program.yumio.relations(kind, package, most)
    assert len(found) == min(count, most)
    return ["".join(f"[{piece[0]}]" if isinstance(piece, tuple) else piece for piece in line) for line in found]


@pytest.fixture(scope="session")
def sails(rpms: Catalogue) -> Mapping[str, Any]:
    """boat requires rope and sail, and recommends flag; sail requires cloth."""
    specs = {
        "boat": spec("boat", requires=("rope >= 1", "sail", "/usr/share/anchor"), tags={"Recommends": "flag"}),
        "rope-1": spec("rope", "1.0"),
        "rope-2": spec("rope", "2.0"),
        "sail": spec("sail", requires=("cloth", "sail"), files={"/usr/share/sail": "s"}),
        "cloth": spec("cloth"),
        "linen": spec("linen", provides=("cloth",)),
        "flag": spec("flag", requires=("pole",)),
        "pole": spec("pole"),
        "anchor": spec("anchor", files={"/usr/share/anchor": "a"}),
        "raft": spec("raft", requires=("rope = 1.0",)),
    }
    return dict(zip(specs, rpms.estate.build(list(specs.values()))))


@pytest.fixture
def fleet(estate: Estate, sails: Mapping[str, Any], program: Program) -> Program:
    """boat is installed by this program, with all that it wants; a newer rope and others are offered."""
    first = estate.repository("base", [sails[name] for name in sails if name != "rope-2"])
    found = program.collect()
    found.yumio.apply([found.offered("boat")], [], [])
    estate.repository("more", [sails["rope-2"]])
    assert first
    program.collect()
    return program


def test_who_requires_a_package_is_told_installed_ones_first(fleet: Program) -> None:
    rope = fleet.collection.there("rope")
    assert lines(fleet, "requiredBy", rope) == ["[boat-1.0-1.noarch] (installed)", "[raft-1.0-1.noarch] (base)"]
    # The newer one isn't what the raft wants.
    assert lines(fleet, "requiredBy", fleet.collection.update("rope")) == ["[boat-1.0-1.noarch] (installed)"]
    assert lines(fleet, "requiredBy", fleet.collection.there("boat")) == []
    # A file that it wants.
    assert lines(fleet, "requiredBy", fleet.collection.there("anchor")) == ["[boat-1.0-1.noarch] (installed)"]


def test_who_recommends_a_package_is_told(fleet: Program) -> None:
    assert lines(fleet, "recommendedBy", fleet.collection.there("flag")) == ["[boat-1.0-1.noarch] (installed)"]
    assert lines(fleet, "recommendedBy", fleet.collection.there("rope")) == []


def test_a_long_answer_has_a_bounded_first_part_and_the_count_of_all(fleet: Program) -> None:
    found, count = fleet.yumio.relations("requiredBy", fleet.collection.there("rope"), 1)
    assert (len(found), count) == (1, 2)


def test_what_satisfies_each_requirement_is_told(fleet: Program) -> None:
    assert lines(fleet, "satisfiedBy", fleet.collection.there("boat")) == [
        "/usr/share/anchor: [anchor-1.0-1.noarch] (installed)",
        "rope >= 1: [rope-1.0-1.noarch] (installed)",
        "sail: [sail-1.0-1.noarch] (installed)",
    ]
    assert lines(fleet, "satisfiedBy", fleet.collection.there("sail"))[1] == "sail: the package itself"
    assert lines(fleet, "satisfiedBy", fleet.collection.offered("raft")) == [
        "rope = 1.0: [rope-1.0-1.noarch] (installed)"
    ]


def test_what_is_offered_satisfies_where_nothing_is_installed(
    estate: Estate, sails: Mapping[str, Any], program: Program
) -> None:
    estate.install([])
    estate.repository("base", [sails[name] for name in ("boat", "rope-1", "rope-2", "cloth", "linen", "sail")])
    found = program.collect()
    assert lines(program, "satisfiedBy", found.offered("boat")) == [
        "/usr/share/anchor: nothing that is installed or offered",
        "rope >= 1: [rope-2.0-1.noarch] (base)",
        "sail: [sail-1.0-1.noarch] (base)",
    ]
    assert lines(program, "satisfiedBy", found.offered("sail"))[0] == (
        "cloth: [cloth-1.0-1.noarch] (base), [linen-1.0-1.noarch] (base)"
    )


def test_why_a_package_is_installed_leads_up_to_what_somebody_asked_for(fleet: Program) -> None:
    day = time.strftime("%Y-%m-%d")
    boat = lines(fleet, "why", fleet.collection.there("boat"))
    assert boat[0] == "The user asked for it."
    assert boat[1].startswith(f"Installed by transaction 1, {day} ")
    assert len(boat) == 2
    cloth = lines(fleet, "why", fleet.collection.there("cloth"))
    assert cloth[0] == "Other packages require it."
    assert cloth[2:] == [
        "[boat-1.0-1.noarch] (installed): The user asked for it.",
        "requires sail: [sail-1.0-1.noarch] (installed)",
        "requires cloth: [cloth-1.0-1.noarch] (installed)",
    ]
    pole = lines(fleet, "why", fleet.collection.there("pole"))
    assert pole[2:] == [
        "[boat-1.0-1.noarch] (installed): The user asked for it.",
        "recommends flag: [flag-1.0-1.noarch] (installed)",
        "requires pole: [pole-1.0-1.noarch] (installed)",
    ]
    assert lines(fleet, "why", fleet.collection.there("flag"))[0] == "Other packages recommend it."


def test_an_update_tells_why_the_version_before_it_is_there_and_then_both_transactions(fleet: Program) -> None:
    found = fleet.collection
    assert lines(fleet, "why", found.update("rope"))[0] == "Other packages require it."
    fleet.yumio.apply([], [found.pair("rope")], [])
    fleet.collect()
    rope = lines(fleet, "why", fleet.collection.there("rope"))
    assert rope[1].startswith("Installed by transaction 1, ")
    assert rope[2].startswith("This version came with transaction 2, ")
    assert rope[-1] == "requires rope >= 1: [rope-2.0-1.noarch] (installed)"


def test_a_package_that_rpm_alone_knows_of_tells_that_nobody_knows(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install([rpms["lone-1.0"]])
    found = program.collect()
    told = lines(program, "why", found.there("lone"))
    assert "The history of transactions doesn't tell when it came." in told


def test_a_package_that_is_not_installed_has_no_reason(fleet: Program) -> None:
    assert lines(fleet, "why", fleet.collection.offered("raft")) == ["It is not installed."]


def test_who_did_it_is_named_where_that_is_known(fleet: Program, estate: Estate) -> None:
    import sqlite3

    from libraries import HISTORY

    with sqlite3.connect(estate.root / HISTORY) as database:
        database.execute("update trans set user_id = 0")
    database.close()
    assert ", by root" in lines(fleet, "why", fleet.collection.there("boat"))[1]


def test_advisories_are_told_with_type_and_date_and_whether_they_are_installed(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install([rpms["lib-1.0"]])
    repository = estate.repository("base", rpms.some("lib-2.0", "tool-2.0"))
    advise(repository, ("A-1", "lib", "0.9"), ("A-2", "lib", "2.0"), ("A-3", "tool", "2.0"))
    found = program.collect()
    expected = [
        "A-1 (security, Important), A-1, 2024-03-05, installed",
        "A-2 (security, Important), A-2, 2024-03-05, not installed",
    ]
    assert lines(program, "advisories", found.update("lib")) == expected
    assert lines(program, "advisories", found.there("lib")) == expected
    assert lines(program, "advisories", found.offered("tool")) == [
        "A-3 (security, Important), A-3, 2024-03-05, not installed"
    ]


def test_all_versions_are_told_with_their_repositories(fleet: Program) -> None:
    found = fleet.collection
    assert lines(fleet, "versions", found.update("rope")) == [
        "2.0-1.noarch (more)", "[1.0-1.noarch (installed)]", "[1.0-1.noarch (base)]",
    ]
    assert lines(fleet, "versions", found.there("boat")) == [
        "1.0-1.noarch (installed)", "[1.0-1.noarch (base)]",
    ]


def test_a_link_is_a_package_with_its_state(fleet: Program) -> None:
    found, _count = fleet.yumio.relations("versions", fleet.collection.there("rope"), 10)
    links = [piece for line in found for piece in line if isinstance(piece, tuple)]
    assert [(link[1].repoid, link[1].printVer(), link[2]) for link in links] == [
        ("more", "2.0-1", "update"), ("base", "1.0-1", "available"),
    ]


def test_nothing_is_told_before_a_collection(fleet: Program) -> None:
    package = fleet.collection.there("rope")
    fleet.start()
    with pytest.raises(fleet.errors.YumBaseError):
        fleet.yumio.relations("versions", package, 10)
