# SPDX-License-Identifier: GPL-2.0-or-later
"""Package files from elsewhere: rows of the table like others, and what cannot be one."""

from __future__ import annotations

import subprocess
from pathlib import Path
from typing import Any, List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Collection, Program
from rpmestate import Estate, spec
from web import Web


def collect(program: Program, *words: Any) -> Tuple[Collection, List[Tuple[str, str, str]]]:
    """A collection with these files opened, and what the script says of each."""
    program.clear()
    yumio = program.start()
    yumio.setupRepos()
    opened = yumio.openPackageFiles([str(word) for word in words])
    program.collection = Collection(yumio)
    return program.collection, opened


def test_a_file_is_offered_in_the_place_of_what_a_repository_has_and_installed(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.install(rpms.some("twin-1.0"))
    estate.repository("base", rpms.some("lamp-1.1", "current-2.5", "battery-1.0"))
    file = rpms["lamp-1.0"]
    found, opened = collect(program, file)
    assert opened == [(str(file), "lamp", "")]
    lamp = found.offered("lamp")
    assert (lamp.repoid, lamp.printVer(), lamp.plain[0]) == ("files", "1.0-1", "lamp")
    assert [package.name for package in found.available].count("lamp") == 1
    assert lamp.returnSimple("repoid") == "files"
    assert lamp.returnFileEntries("file") == ["/usr/share/lamp/shade"]
    assert [entry[2] for entry in lamp.returnChangelog()] == ["- First light"]
    assert lamp.returnSimple("buildhost")
    assert lamp.localPkg() == str(file)
    assert lamp.size == file.stat().st_size
    host.calls.clear()
    found.yumio.apply([lamp, found.offered("battery")], [], [])
    assert "lamp-1.0-1.noarch" in estate.installed() and "battery-1.0-1.noarch" in estate.installed()
    assert not [name for _, name, _ in host.named("applyGrabMeterStart") if "lamp" in name]


@pytest.mark.parametrize("version, other", [("lib-2.0", "lib-1.0"), ("lib-1.0", "lib-2.0")])
def test_a_file_takes_the_place_of_another_version_newer_or_older(
    estate: Estate, rpms: Catalogue, program: Program, version: str, other: str
) -> None:
    estate.install(rpms.some(other))
    estate.repository("base", rpms.some("lib-2.0", "battery-1.0"))
    found, opened = collect(program, rpms[version])
    assert opened[0][1:] == ("lib", "")
    assert found.merged()["lib"] == "OutOfDate"
    assert (found.update("lib").repoid, found.update("lib").replaces) == ("files", [])
    found.yumio.apply([], [found.pair("lib")], [])
    assert estate.installed() == {f"{version}-1.noarch"}


def test_a_file_that_makes_another_package_obsolete_tells_which(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("battery-1.0"))
    found, _ = collect(program, rpms["newlamp-1.0"])
    assert [old.name for old in found.update("newlamp").replaces] == ["oldlamp"]
    found.yumio.apply([found.update("newlamp")], [], [])
    assert estate.installed() == {"newlamp-1.0-1.noarch"}


def test_what_cannot_be_installed_is_refused_with_its_reason(
    estate: Estate, rpms: Catalogue, program: Program, tmp_path: Path
) -> None:
    estate.install(rpms.some("battery-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    whole = rpms["lib-1.0"].read_bytes()
    cut, text = tmp_path / "cut.rpm", tmp_path / "text.rpm"
    cut.write_bytes(whole[:-40])
    text.write_text("no package")
    words = [rpms["battery-1.0"], cut, text, tmp_path / "none.rpm", rpms["lib-1.0"], rpms["lib-2.0"]]
    found, opened = collect(program, *words)
    assert [name for _word, name, _why in opened] == ["", "", "", "", "", "lib"]
    reasons = [why for _word, _name, why in opened]
    assert reasons[0] == f"{words[0]}: battery-1.0-1.noarch is already installed"
    assert reasons[1] == f"{cut}: this is no rpm package, or it is damaged"
    assert reasons[2] == f"{text}: this is no rpm package, or it is damaged"
    assert reasons[3].startswith(f"{tmp_path}/none.rpm: ") and "No such file" in reasons[3]
    assert reasons[4] == f"{words[4]}: another file of the package lib was opened later"
    assert found.offered("lib").printVer() == "2.0-1"


def test_source_and_packages_for_other_machines_are_refused(
    estate: Estate, rpms: Catalogue, program: Program, tmp_path: Path
) -> None:
    estate.install(rpms.some("battery-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    foreign = rpms.estate.build([spec("abroad", arch=None)], arch="aarch64")[0]
    described = tmp_path / "plan.spec"
    described.write_text(spec("plan"))
    subprocess.run(
        ["rpmbuild", "-bs", "--define", f"_topdir {tmp_path}", str(described)], check=True, capture_output=True
    )
    source = next((tmp_path / "SRPMS").iterdir())
    _found, opened = collect(program, foreign, source)
    assert [why for _word, _name, why in opened] == [
        f"{foreign}: this package is for other machines (aarch64)",
        f"{source}: this is a source package, which cannot be installed here",
    ]


def test_an_address_is_fetched_once_and_one_that_fails_is_told(
    estate: Estate, rpms: Catalogue, program: Program, web: Web
) -> None:
    estate.install(rpms.some("battery-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    web.page("/lib.rpm", rpms["lib-1.0"].read_bytes())
    address = f"{web.url}/lib.rpm"
    found, opened = collect(program, address, f"{web.url}/none.rpm")
    assert opened[0] == (address, "lib", "")
    assert opened[1][1] == "" and "404" in opened[1][2]
    web.lose("/lib.rpm")
    found, opened = collect(program, address)
    assert opened == [(address, "lib", "")]
    found.yumio.apply([found.offered("lib")], [], [])
    assert "lib-1.0-1.noarch" in estate.installed()


def test_where_local_files_want_a_signature_one_without_is_refused(
    estate: Estate, rpms: Catalogue, program: Program
) -> None:
    estate.write_main_config(localpkg_gpgcheck=1)
    estate.install(rpms.some("battery-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    found, _ = collect(program, rpms["lib-1.0"])
    with pytest.raises(program.errors.YumBaseError, match="gpgkey of repository files: none"):
        found.yumio.apply([found.offered("lib")], [], [])
    assert estate.installed() == {"battery-1.0-1.noarch"}
