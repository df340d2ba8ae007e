# SPDX-License-Identifier: GPL-2.0-or-later
"""Package objects: every member that the engine reads."""

from __future__ import annotations

import time
from typing import Any, List, Tuple

import pytest
import rpm
from catalogue import Catalogue
from program import Program
from rpmestate import Estate, spec
from web import Web

KEYS = (
    "repoid summary description group vendor buildhost relativepath sourcerpm license packager url buildtime"
).split()


@pytest.fixture
def new(lamp: Tuple[Estate, Program]) -> Any:
    return lamp[1].collect().offered("lamp")


@pytest.fixture
def old(lamp: Tuple[Estate, Program]) -> Any:
    return lamp[1].collect().there("lamp")


def fields(package: Any) -> dict:
    values = {key: package.returnSimple(key) for key in KEYS}
    assert isinstance(values.pop("buildtime"), int)
    return values


def test_fields_of_an_available_package(new: Any) -> None:
    assert (new.name, new.arch, new.printVer()) == ("lamp", "noarch", "1.1-1")
    assert new.pkgtup == ("lamp", "noarch", "0", "1.1", "1")
    assert fields(new) == {
        "repoid": "base",
        "summary": "The lamp package",
        "description": "The lamp package.",
        "group": "Applications/Light",
        "vendor": "Estate Works",
        "buildhost": "builder.estate.example",
        "relativepath": "lamp-1.1-1.noarch.rpm",
        "sourcerpm": "lamp-1.1-1.src.rpm",
        "license": "MIT",
        "packager": "Ada Nilsson",
        "url": "http://lamp.example/",
    }


def test_fields_of_an_installed_package(old: Any) -> None:
    assert (old.name, old.arch, old.printVer()) == ("lamp", "noarch", "1.0-1")
    assert fields(old) == {
        "repoid": "installed",
        "summary": "The lamp package",
        "description": "The lamp package.",
        "group": "Unspecified",
        "vendor": None,
        "buildhost": "builder.estate.example",
        "relativepath": None,
        "sourcerpm": "lamp-1.0-1.src.rpm",
        "license": "MIT",
        "packager": None,
        "url": None,
    }


@pytest.mark.parametrize("which", ["new", "old"])
def test_unknown_field_is_a_key_error(which: str, request: pytest.FixtureRequest) -> None:
    with pytest.raises(KeyError):
        request.getfixturevalue(which).returnSimple("colour")


def test_size_is_that_of_the_file_or_of_what_is_installed(
    lamp: Tuple[Estate, Program], rpms: Catalogue
) -> None:
    found = lamp[1].collect()
    assert found.offered("lamp").size == rpms["lamp-1.1"].stat().st_size
    assert found.there("lamp").size == len("old\n")


def test_epoch_shows_in_the_version(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("clock-1.0"))
    clock = program.collect().offered("clock")
    assert clock.printVer() == "3:1.0-1"
    assert clock.pkgtup == ("clock", "noarch", "3", "1.0", "1")


def test_suite_is_told_by_its_group(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("desk-1.0"))
    assert program.collect().offered("desk").returnSimple("group") == "Suite"


def test_header_marks_the_installed_package(new: Any, old: Any) -> None:
    assert hasattr(old, "hdr") and not hasattr(new, "hdr")
    assert hasattr(new, "prco") and hasattr(new, "files") and hasattr(new, "changelog")


def test_header_by_tags(old: Any) -> None:
    header = old.hdr
    assert abs(header[rpm.RPMTAG_INSTALLTIME] - time.time()) < 600
    assert header[rpm.RPMTAG_BASENAMES] == ["shade"]
    assert header[rpm.RPMTAG_DIRNAMES] == ["/usr/share/lamp/"]
    assert header[rpm.RPMTAG_DIRINDEXES] in ([0], 0)
    assert header[rpm.RPMTAG_PREFIXES] in (None, [])
    assert header[rpm.RPMTAG_PROVIDENAME] == ["lamp"]
    assert header[rpm.RPMTAG_CHANGELOGTEXT] == ["- First light"]


def test_fields_are_valid_whatever_the_bytes(estate: Estate, program: Program) -> None:
    text = spec("old", summary="M\u00f6bel", tags={"Vendor": "M\u00f6bel", "Packager": "M\u00f6bel"})
    source = estate.directory / "old.spec"
    source.write_bytes(text.encode("latin-1"))
    estate.install(estate.build([source], defines={"_invalid_encoding_terminates_build": "0"}))
    estate.repository("base", [])
    old = program.collect().there("old")
    # A package that cannot tell one of its texts so has no values of the shorter way, and fails nothing.
    plain = getattr(old, "plain", None)
    assert plain is None or plain[0] == "old"
    for key in ("vendor", "packager"):
        assert old.returnSimple(key) == "M\ufffdbel"


def test_header_texts_are_valid_whatever_the_bytes() -> None:
    from vemyum.headers import Header

    raw = {1: "caf\udce9", 2: ["a", "\udcc3\udca9t\udce9"], 3: 7, 4: None, 5: [1, 2], 6: []}
    header = Header(raw)  # type: ignore[arg-type]
    assert header[1] == "caf\ufffd"
    assert header[2] == ["a", "\u00e9t\ufffd"]
    assert [header[tag] for tag in (3, 4, 5, 6)] == [7, None, [1, 2], []]


def test_header_of_a_package_that_is_gone(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    old = program.collect().there("lamp")
    estate.rpm("--erase", "lamp")
    assert not hasattr(old, "hdr")
    assert old.returnSimple("buildhost") is None


def test_dependencies(new: Any) -> None:
    assert sorted(new.returnPrco("provides")) == [
        ("lamp", "EQ", ("0", "1.1", "1")),
        ("light", "EQ", ("2", "3.0", "1")),
        ("shine", None, (None, None, None)),
    ]
    assert sorted(new.returnPrco("requires")) == [
        ("(socket or battery)", None, (None, None, None)),
        ("current", "GE", ("1", "2.0", None)),
        ("wire", None, (None, None, None)),
    ]
    assert new.returnPrco("conflicts") == [("darkness", "LT", ("0", "3", None))]
    assert new.returnPrco("obsoletes") == new.prco["obsoletes"] == []
    with pytest.raises(KeyError):
        new.returnPrco("suggests")


def test_obsoletes(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("newlamp-1.0"))
    newlamp = program.collect().offered("newlamp")
    assert newlamp.returnPrco("obsoletes") == [("oldlamp", "LT", ("0", "2", None))]


@pytest.mark.parametrize(
    ("text", "evr"),
    [
        ("1", ("0", "1", None)),
        ("1.2-3", ("0", "1.2", "3")),
        ("4:1.2-3", ("4", "1.2", "3")),
        ("4:1", ("4", "1", None)),
    ],
)
def test_versions_are_split(text: str, evr: Tuple[str, str, str]) -> None:
    from vemyum.packages import split_evr

    assert split_evr(text) == evr


def test_files_of_an_available_package_are_files_only(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.repository("base", rpms.some("shell-1.0", "lamp-1.1"))
    found = program.collect()
    found.yumio.collectFileLists()
    assert sorted(found.offered("lamp").returnFileEntries("file")) == [
        "/etc/lamp.conf",
        "/usr/share/lamp/bulb",
        "/usr/share/lamp/shade",
    ]
    assert found.offered("lamp").returnFileEntries("dir") == []


# Those of dnf 5 hold their Base by one: see tests/dnf5/test_rows.py.
@pytest.mark.dnf4
def test_packages_of_the_table_have_no_dictionary_and_know_their_repository(
    lamp: Tuple[Estate, Program],
) -> None:
    found = lamp[1].collect()
    for package in (found.offered("lamp"), found.there("lamp")):
        # In 66,000 rows a dictionary each would be 22 MB.
        assert not vars(package.po)
        assert package.po.base is found.yumio._session.system._base
    offered = found.offered("lamp").po
    assert offered.repo is found.yumio._session.system._base.repos[offered.reponame]


def test_shorter_way_to_the_values_tells_the_same(lamp: Tuple[Estate, Program]) -> None:
    found = lamp[1].collect()
    for package in (found.offered("lamp"), found.there("lamp")):
        own = (package.name, package.arch, package.printVer(), package.size)
        fields = map(package.returnSimple, ("group", "summary", "buildtime", "repoid"))
        assert package.plain == (*own, *fields)
        assert package.repoid == package.returnSimple("repoid")


def test_offered_packages_come_with_their_values(lamp: Tuple[Estate, Program]) -> None:
    offered = lamp[1].collect().yumio.collectAll().available
    pairs = list(offered.withPlain())
    assert [package.name for package, _plain in pairs] == [package.name for package in offered]
    assert pairs and all(plain == package.plain for package, plain in pairs)


def test_lists_are_read_when_they_are_used_and_not_before(lamp: Tuple[Estate, Program], monkeypatch: Any) -> None:
    from vemyum.details import PackageDetails

    found = lamp[1].collect()
    found.yumio.collectFileLists()
    read: List[str] = []
    files = PackageDetails.files
    monkeypatch.setattr(PackageDetails, "files", lambda *args: read.append("files") or files(*args))
    changelog = PackageDetails.changelog
    monkeypatch.setattr(PackageDetails, "changelog", lambda *args: read.append("changelog") or changelog(*args))
    package = found.offered("lamp")
    listed, changes = package.files, package.changelog
    assert read == []
    assert sorted(listed) == ["/etc/lamp.conf", "/usr/share/lamp/bulb", "/usr/share/lamp/shade"]
    assert list(changes) == [] and read == ["files", "changelog"]


def test_directories_are_no_files() -> None:
    from vemyum.details import PackageDetails
    from vemyum.packages import AvailablePackage

    class System:
        @staticmethod
        def files(_row: Any) -> List[str]:
            return ["/a", "/a/b", "/a/b/c", "/d"]

    class Row:
        reponame = "base"

    package = AvailablePackage(Row(), PackageDetails(System()))  # type: ignore[arg-type]
    assert package.returnFileEntries("file") == ["/a/b/c", "/d"]


def test_changelog_comes_with_the_extra_data(lamp: Tuple[Estate, Program]) -> None:
    found = lamp[1].collect()
    package = found.offered("lamp")
    assert package.returnChangelog() == []
    found.yumio.collectOtherData()
    entries = package.returnChangelog()
    assert list(package.changelog) == entries
    days = [(time.strftime("%Y-%m-%d", time.localtime(when)), author, text) for when, author, text in entries]
    assert days == [
        ("2024-03-05", "Ada Nilsson <ada@estate.example> - 1.1-1", "- Brighter"),
        ("2024-01-08", "J\u00f6rg M\u00fcller <jm@estate.example> - 1.0-1", "- First light"),
    ]


def test_package_without_changelog_has_none(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lib-1.0"))
    found = program.collect()
    found.yumio.collectOtherData()
    assert found.offered("lib").returnChangelog() == []


def test_local_file_of_a_repository_on_this_machine(lamp: Tuple[Estate, Program]) -> None:
    estate, program = lamp
    found = program.collect()
    assert found.offered("lamp").localPkg() == str(estate.repos_dir / "base/lamp-1.1-1.noarch.rpm")
    assert found.there("lamp").localPkg() is None


def test_local_file_of_a_remote_repository_is_in_the_cache(
    estate: Estate, rpms: Catalogue, web: Web, program: Program
) -> None:
    estate.repository("base", rpms.some("lamp-1.1"), baseurl=f"{web.url}/base")
    path = program.collect().offered("lamp").localPkg()
    assert path.startswith(str(estate.root / "var/cache/yum/base-"))
    assert path.endswith("/lamp-1.1-1.noarch.rpm")


def test_header_data_is_on_disk_already(lamp: Tuple[Estate, Program]) -> None:
    import os

    found = lamp[1].collect()
    assert os.path.isfile(found.offered("lamp").localHdr())
    assert found.there("lamp").localHdr() is None


def test_packages_outlive_their_session(lamp: Tuple[Estate, Program]) -> None:
    program = lamp[1]
    found = program.collect()
    new, old = found.offered("lamp"), found.there("lamp")
    found.yumio = program.yumio = None
    assert (new.name, new.printVer(), new.returnSimple("summary")) == ("lamp", "1.1-1", "The lamp package")
    assert old.returnSimple("repoid") == "installed"
    assert (new.localPkg(), new.localHdr(), new.returnChangelog()) == (None, None, [])
    new.returnSimple("buildhost")


def test_texts_of_any_kind_become_valid() -> None:
    from vemyum.text import valid

    assert valid("plain") == "plain"
    assert valid("\u6728") == "\u6728"
    assert valid(b"caf\xe9") == "caf\ufffd"
    assert valid("caf\udce9") == "caf\ufffd"
    assert valid("\udcc3\udca9") == "\u00e9"
    assert valid("\ud800 and \udce9").encode("utf-8")
    assert valid("a\0b") == "a\ufffdb"
    assert valid(7) == "7"
