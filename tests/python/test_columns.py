# SPDX-License-Identifier: GPL-2.0-or-later
"""What the table can show of all packages at a time."""

from __future__ import annotations

import time
from typing import Any, Dict, Iterable, Tuple

import pytest
from advisories import advise
from catalogue import Catalogue
from program import Program
from rpmestate import Estate, spec


def told(program: Program, kind: str, packages: Iterable[Any]) -> Dict[str, Any]:
    those = list(packages)
    return dict(zip((package.name for package in those), program.yumio.rowDetails(kind, those)))


def test_the_size_on_the_disk_is_told_of_what_is_installed_and_of_what_is_offered(
    estate: Estate, program: Program
) -> None:
    old, new = estate.build(
        [
            spec("blob", "1.0", files={"/usr/share/blob": "x" * 1000}),
            spec("blob", "2.0", files={"/usr/share/blob": "x" * 3000}),
        ]
    )
    estate.install([old])
    estate.repository("base", [new])
    found = program.collect()
    # Each file ends with a line feed.
    assert program.yumio.rowDetails("installedSize", [found.there("blob"), found.update("blob")]) == [1001, 3001]


def test_who_wanted_a_package_is_told(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install([rpms["lone-1.0"]])
    estate.repository("base", rpms.some("app-1.0", "lib-1.0", "battery-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    found = program.collect()
    reasons = told(program, "reason", [*found.installed, found.offered("battery")])
    # rpm alone tells nobody why; what a library makes of that is its own matter.
    assert reasons.pop("lone") in ("", "user")
    assert reasons == {"app": "user", "lib": "dependency", "battery": ""}


def test_an_update_has_the_reason_of_what_it_updates(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0"))
    found = program.collect()
    found.yumio.apply([found.offered("app")], [], [])
    estate.repository("more", rpms.some("lib-2.0"))
    found = program.collect()
    assert told(program, "reason", [found.update("lib")]) == {"lib": "dependency"}


def test_an_update_tells_the_advisories_that_it_carries_out(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("lib-1.0", "tool-1.0", "battery-1.0"))
    repository = estate.repository("base", rpms.some("lib-2.0", "tool-2.0", "clock-1.0"))
    advise(
        repository,
        ("A-2", "lib", "2.0"),
        # On the way to the version that is there.
        ("A-1", "lib", "1.5"),
        ("A-0", "lib", "0.9"),
        # Beyond it.
        ("A-3", "lib", "3.0"),
        ("A-4", "battery", "2.0"),
        ("A-5", "clock", "1.0"),
    )
    found = program.collect()
    packages = [found.update("lib"), found.update("tool"), found.there("battery"), found.offered("clock")]
    assert told(program, "advisory", packages) == {
        "lib": ("Important: A-1, A-2", 4, ""),
        "tool": "",
        "battery": "",
        "clock": "",
    }


def test_repositories_without_advisories_tell_none(lamp: Tuple[Estate, Program]) -> None:
    _, program = lamp
    found = program.collect()
    assert program.yumio.rowDetails("advisory", [found.update("lamp")]) is None


def test_nothing_is_told_before_a_collection(lamp: Tuple[Estate, Program]) -> None:
    _, program = lamp
    found = program.collect()
    package = found.update("lamp")
    program.start()
    with pytest.raises(program.errors.YumBaseError):
        program.yumio.rowDetails("reason", [package])


def test_repositories_tell_when_they_were_found_to_be_current(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", [rpms["lone-1.0"]])
    estate.repository("spare", [rpms["battery-1.0"]], extra={"enabled": "0"})
    before = int(time.time())
    times = program.collect().yumio.repositoryTimes()
    assert list(times) == ["base"]
    assert before <= times["base"] <= time.time()
