# SPDX-License-Identifier: GPL-2.0-or-later
"""What is told of advisories, and which updates fix what is not safe. The command line says the same."""

from __future__ import annotations

import json
import re
from typing import Any, Dict, Set

import pytest
from advisories import advise
from catalogue import Catalogue
from commandline import command_line
from libraries import by_library
from program import Program
from rpmestate import Estate, add_updateinfo, spec

UPDATEINFO = """\
<?xml version="1.0" encoding="UTF-8"?>
<updates>
  <update from="estate" status="final" type="security" version="1">
    <id>S-2</id><title>Lamp two</title><issued date="2024-03-05 12:00:00"/><severity>Moderate</severity>
    <description>More light.</description>
    <references>
      <reference href="https://estate.test/c" id="CVE-2024-1" type="cve" title="Dark"/>
      <reference href="https://estate.test/b" id="77" type="bugzilla" title="Bug"/>
    </references>
    <pkglist><collection><name>base</name>
      <package name="lamp" epoch="0" version="2.0" release="1" arch="noarch"><filename>l</filename></package>
      <package name="absent" epoch="0" version="2.0" release="1" arch="noarch"><filename>a</filename></package>
    </collection></pkglist>
  </update>
  <update from="estate" status="final" type="security" version="1">
    <id>S-3</id><title>Lamp three</title><issued date="2024-03-06 12:00:00"/><severity>Critical</severity>
    <description>Still more.</description>
    <pkglist><collection><name>base</name>
      <package name="lamp" epoch="0" version="3.0" release="1" arch="noarch"><filename>l</filename></package>
    </collection></pkglist>
  </update>
  <update from="estate" status="final" type="bugfix" version="1">
    <id>B-4</id><title>Lamp four</title><issued date="2024-03-07 12:00:00"/><description>x</description>
    <pkglist><collection><name>base</name>
      <package name="lamp" epoch="0" version="4.0" release="1" arch="noarch"><filename>l</filename></package>
    </collection></pkglist>
  </update>
  <update from="estate" status="final" type="security" version="1">
    <id>S-1</id><title>Done</title><issued date="2024-03-01 12:00:00"/><severity>Low</severity><description>x</description>
    <pkglist><collection><name>base</name>
      <package name="lamp" epoch="0" version="0.5" release="1" arch="noarch"><filename>l</filename></package>
    </collection></pkglist>
  </update>
  <update from="estate" status="final" type="security" version="1">
    <id>S-9</id><title>Elsewhere</title><issued date="garbage"/><description>x</description>
    <pkglist><collection><name>base</name>
      <package name="lamp" epoch="0" version="9.0" release="1" arch="noarch"><filename>l</filename></package>
    </collection></pkglist>
  </update>
  <update from="estate" status="final" type="security" version="1">
    <id>S-0</id><title>Others</title><issued date="2024-03-05 12:00:00"/><description>x</description>
    <pkglist><collection><name>base</name>
      <package name="absent" epoch="0" version="2.0" release="1" arch="noarch"><filename>a</filename></package>
    </collection></pkglist>
  </update>
</updates>
"""


NOWHERE = UPDATEINFO[UPDATEINFO.rindex("  <update ", 0, UPDATEINFO.index("<id>S-9<")) :].partition("</update>\n")[0]
"""The advisory of a version that no repository has."""


@pytest.fixture
def lamps(estate: Estate, program: Program) -> Program:
    """lamp 1.0 is there; 2.0 and 3.0 are security fixes, 4.0 a bugfix; 9.0 is nowhere."""
    return shine(estate, program, UPDATEINFO)


def shine(estate: Estate, program: Program, text: str) -> Program:
    built = estate.build([spec("lamp", f"{number}.0") for number in range(1, 5)])
    estate.install([built[0]])
    add_updateinfo(estate.repository("base", built), text)
    program.collect()
    return program


def listed(program: Program) -> Dict[str, Any]:
    return {one["identifier"]: one for one in program.yumio.advisoryList()}


def counted(estate: Estate) -> Set[str]:
    """The identifiers that the command line lists as available."""
    return set(re.findall(r"^[SBA]-\d\b", command_line(estate, *by_library(("updateinfo",), ("advisory",)), "list"), re.M))


def test_advisories_about_what_is_installed_are_listed_the_latest_first(lamps: Program) -> None:
    found = lamps.yumio.advisoryList()
    json.dumps(found)
    assert [one["identifier"] for one in found] == ["B-4", "S-3", "S-2", "S-1", "S-9"]
    assert found[2] == {
        "identifier": "S-2", "type": "security", "severity": "Moderate", "title": "Lamp two", "issued": 1709640000,
        "count": 2, "cves": ["CVE-2024-1"], "open": True,
    }


def test_what_is_open_is_what_the_command_line_counts(lamps: Program, estate: Estate) -> None:
    opened = {id for id, one in listed(lamps).items() if one["open"]}
    assert opened == counted(estate) == {"S-2", "S-3", "B-4", "S-9"}


def test_an_advisory_is_told_in_full(lamps: Program) -> None:
    whole = lamps.yumio.advisoryOf("S-2")
    json.dumps(whole)
    assert whole["text"] == "More light."
    assert {"type": "cve", "id": "CVE-2024-1", "title": "Dark", "address": "https://estate.test/c"} in whole["references"]
    assert {"type": "bugzilla", "id": "77", "title": "Bug", "address": "https://estate.test/b"} in whole["references"]
    assert whole["packages"] == [
        {"name": "absent", "arch": "noarch", "version": "2.0-1", "installed": "", "open": False},
        {"name": "lamp", "arch": "noarch", "version": "2.0-1", "installed": "1.0-1", "open": True},
    ]


def test_one_that_is_about_nothing_installed_is_not_there(lamps: Program) -> None:
    for identifier in ("S-0", "nonsense", ""):
        with pytest.raises(lamps.errors.YumBaseError):
            lamps.yumio.advisoryOf(identifier)


TOLD = {"name": "lamp", "arch": "noarch", "old": "1.0-1", "repository": "base", "identifiers": ["S-2", "S-3"]}


def test_the_smallest_security_update_is_the_one_that_the_command_line_chooses(
    estate: Estate, program: Program
) -> None:
    shine(estate, program, UPDATEINFO.replace(f"{NOWHERE}</update>\n", ""))
    assert "S-9" not in listed(program)
    assert program.yumio.securityUpdates(False) == [{**TOLD, "new": "3.0-1"}]
    program.end()
    command_line(estate, *by_library(("upgrade-minimal",), ("upgrade", "--minimal")), "--security", "--nogpgcheck")
    assert estate.installed() == {"lamp-3.0-1.noarch"}


def test_the_newest_update_may_come_behind_the_fix(lamps: Program) -> None:
    assert lamps.yumio.securityUpdates(True) == [{**TOLD, "new": "4.0-1"}]


def test_an_advisory_of_a_version_that_nobody_offers_hides_no_fix(lamps: Program) -> None:
    assert lamps.yumio.securityUpdates(False) == [{**TOLD, "new": "3.0-1"}]


def test_a_row_tells_its_gravest_advisory_and_all_cves(lamps: Program) -> None:
    found = lamps.collect()
    packages = [found.update("lamp"), found.there("lamp")]
    assert lamps.yumio.rowDetails("advisory", packages) == [("Critical: S-3, S-2, B-4", 5, "CVE-2024-1"), ""]


def test_metadata_without_advisories_is_told_apart(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install([rpms["lib-1.0"]])
    estate.repository("base", [rpms["lib-2.0"]])
    assert program.collect().yumio.advisoryList() is None
    assert program.yumio.securityUpdates(False) == []


def test_advisories_about_others_alone_leave_an_empty_list(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.install([rpms["lib-1.0"]])
    advise(estate.repository("base", [rpms["lib-2.0"]]), ("A-1", "tool", "2.0"))
    assert program.collect().yumio.advisoryList() == []


def test_nothing_is_told_before_a_collection(program: Program) -> None:
    program.start()
    with pytest.raises(program.errors.YumBaseError):
        program.yumio.advisoryList()


def test_an_advisory_that_says_hardly_anything_is_told_as_far_as_it_goes(estate: Estate, program: Program) -> None:
    bare = """
  <update type="weird"><id>A-7</id>
    <pkglist><collection>
      <package name="lamp" epoch="0" version="2.0" release="1" arch="noarch"><filename>l</filename></package>
    </collection></pkglist>
  </update>
  <update type="security"><id>A-8</id></update>
</updates>
"""
    shine(estate, program, UPDATEINFO.replace("\n</updates>\n", bare))
    found = listed(program)
    assert "A-8" not in found
    assert found["A-7"] == {
        "identifier": "A-7", "type": "other", "severity": "", "title": "", "issued": 0, "count": 1, "cves": [], "open": True,
    }
    assert program.yumio.advisoryOf("A-7")["references"] == []
