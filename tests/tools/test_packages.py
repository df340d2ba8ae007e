# SPDX-License-Identifier: GPL-2.0-or-later
"""How tools/packages.sh finds out what is missing and installs it."""
from __future__ import annotations

import os
from pathlib import Path

import pytest

from system import RPM_NAMES, SYSTEMS, System

EVERY_MAKE = pytest.mark.parametrize("enterprise", ["rhel", "rocky", "ol"], indirect=True)


@pytest.fixture
def debian(tmp_path: Path) -> System:
    # dnf can be had on a Debian, too.
    system = System(tmp_path, "debian", ["apt-cache", "apt-get", "dpkg-query", "sudo", "dnf", "rpm"])
    system.has("archive", "apt")
    return system


@pytest.fixture
def fedora(tmp_path: Path) -> System:
    # And apt on a Fedora.
    return System(tmp_path, "fedora", ["dnf", "rpm", "sudo", "apt-get", "dpkg-query"])


@pytest.fixture
def enterprise(request: pytest.FixtureRequest, tmp_path: Path) -> System:
    make = getattr(request, "param", "rhel")
    system = System(tmp_path, make, ["dnf", "rpm", "sudo"])
    system.has("repository.base", "enabled", "rudder-devel", "keel", "/usr/bin/pennant")
    rhel = f"codeready-builder-for-rhel-9-{os.uname().machine}"
    for wrong in ("crb-source", f"{rhel}-debug-rpms", f"{rhel}-source-rpms", f"{rhel}-eus-rpms", "epel-testing"):
        system.has(f"repository.{wrong}", "disabled")
    system.crb = {"rhel": f"{rhel}-rpms", "rocky": "crb", "ol": "ol9_codeready_builder"}[make]
    system.has(f"repository.{system.crb}", "disabled", "sculls")
    # Appears when its package is installed.
    system.has("hidden.epel", "enabled", "sail")
    return system


@pytest.mark.parametrize(
    "name, kind",
    [("debian", "debian"), ("ubuntu", "debian"), ("fedora", "fedora"), ("rhel", "el"), ("rocky", "el"), ("ol", "el"),
     ("other", "other")],
)
def test_the_system_itself_says_whose_packages_it_has(name: str, kind: str, tmp_path: Path) -> None:
    system = System(tmp_path, name, [])
    assert system.run("system_kind").split() == [kind]
    assert system.run("rpm_system && echo rpm || echo no").split() == ["rpm" if kind in {"fedora", "el"} else "no"]


def test_a_system_that_says_nothing_is_none_of_them(tmp_path: Path) -> None:
    system = System(tmp_path, "debian", ["apt-get", "dpkg-query"])
    system.release.unlink()
    assert system.run("system_kind").split() == ["other"]


def test_each_system_has_its_own_names(debian: System) -> None:
    def names(*words: str) -> list[str]:
        return debian.run(f'packages_of {words[0]} "{debian.list}" {" ".join(words[1:])}').split()

    assert names("debian") == ["anchor", "dinghy", "oars", "pennant", "rudder-dev", "sail"]
    assert names("debian", '"?"') == ["anchor"]
    assert names("fedora") == RPM_NAMES["fedora"]
    assert names("el") == RPM_NAMES["el"]
    assert names("el", "crb") == ["sculls"]
    assert names("el", "epel") == ["sail"]


def test_apt_installs_what_a_debian_lacks(debian: System) -> None:
    debian.has("installed", "sail", "oars")
    assert "Installing: dinghy pennant rudder-dev\n" in debian.install()
    # In this order, and nothing else.
    assert debian.calls() == [
        "apt-get -q update", "apt-get -q -y --no-install-recommends install dinghy pennant rudder-dev",
    ]
    assert debian.install() == ""
    assert len(debian.calls()) == 2


def test_what_not_every_debian_has_is_left_out_where_it_lacks(debian: System) -> None:
    note = debian.list.parent / "build/left-out"
    # Nothing else lacks, so nobody's password is asked for.
    debian.has("installed", "dinghy", "oars", "pennant", "rudder-dev", "sail")
    debian.has("user", "1000")
    assert debian.install() == (
        f"No repository has these, going on without: anchor. Remove {note} to have them looked for again.\n"
    )
    assert debian.calls() == []
    # Once told, it isn't looked for again.
    debian.has("archive", "apt", "anchor")
    assert debian.install() == ""
    note.unlink()
    assert debian.install() == "Installing: anchor\n"
    assert debian.calls("apt-get", "install anchor") and "anchor" in debian.installed()


def test_what_not_every_debian_has_is_installed_with_the_others_where_it_is(debian: System) -> None:
    debian.has("archive", "apt", "anchor")
    assert "Installing: anchor dinghy oars pennant rudder-dev sail\n" in debian.install()
    assert not (debian.list.parent / "build/left-out").exists()


def test_lists_are_fetched_where_there_are_none_before_anything_is_left_out(debian: System) -> None:
    debian.has("installed", "dinghy", "oars", "pennant", "rudder-dev", "sail")
    debian.has("archive")
    assert "going on without: anchor." in debian.install()
    assert debian.calls() == ["apt-get -q update"]


def test_a_failure_of_apt_is_told(debian: System) -> None:
    debian.has("fails", "update")
    assert "could not be renewed" in debian.install()
    debian.has("installed")
    debian.has("fails", "install")
    assert "apt-get could not install: dinghy oars pennant rudder-dev sail\n" in debian.install(status=1)


@pytest.mark.parametrize("command", ["dnf", "dnf5"])
@pytest.mark.parametrize("version, lenient", [("4.24.0", "--setopt=strict=0"),
                                              ("dnf5 version 5.4.1.0", "--skip-unavailable")])
def test_dnf_of_either_version_installs_what_a_fedora_lacks(
    command: str, version: str, lenient: str, tmp_path: Path
) -> None:
    fedora = System(tmp_path, "fedora", [command, "rpm"])
    fedora.has("version", version)
    fedora.has("repository.fedora", "enabled", *RPM_NAMES["fedora"])
    fedora.has("installed", "oars")
    assert fedora.install() == "Installing: keel pennant rudder-devel sail\n"
    (call,) = fedora.calls("install")
    assert call == f"{command} -y --setopt=install_weak_deps=False install {lenient} keel pennant rudder-devel sail"
    assert fedora.installed() == RPM_NAMES["fedora"]


def test_dnf_is_left_alone_where_nothing_lacks(fedora: System) -> None:
    fedora.has("installed", *RPM_NAMES["fedora"])
    assert fedora.install() == ""
    assert fedora.calls() == []


def test_what_no_repository_has_is_told_once(fedora: System) -> None:
    fedora.has("repository.fedora", "enabled", "keel", "oars", "pennant")
    words = fedora.install()
    note = fedora.list.parent / "build/left-out"
    assert f"going on without: rudder-devel sail. Remove {note} to" in words
    calls = fedora.calls()
    assert fedora.install() == ""
    assert fedora.calls() == calls
    # What else comes to lack is installed nevertheless, and nothing is enabled on a Fedora.
    fedora.has("installed", "keel", "oars")
    assert fedora.install() == "Installing: pennant\n"
    assert fedora.calls("repolist") == []
    note.unlink()
    assert "going on without: rudder-devel sail." in fedora.install()


def test_a_failure_of_dnf_is_told(fedora: System) -> None:
    fedora.has("fails", "install")
    assert f"{fedora.commands}/dnf could not install: keel oars pennant rudder-devel sail\n" in fedora.install(status=1)
    assert not (fedora.list.parent / "build/left-out").exists()


def test_whoever_is_not_root_installs_by_sudo(fedora: System) -> None:
    fedora.has("user", "1000")
    fedora.has("repository.fedora", "enabled", *RPM_NAMES["fedora"])
    fedora.install()
    assert fedora.calls("sudo", "dnf", "-y") and fedora.installed() == RPM_NAMES["fedora"]


@pytest.mark.parametrize("name", ["debian", "fedora"])
def test_neither_root_nor_sudo_is_told(name: str, tmp_path: Path) -> None:
    system = System(tmp_path, name, ["apt-get", "dpkg-query", "dnf", "rpm"])
    system.has("user", "1000")
    assert "neither root nor sudo is at hand to install them: " in system.install(status=1)
    assert system.calls() == []


@pytest.mark.parametrize("name, commands", [("other", ["dnf", "rpm", "apt-get", "dpkg-query"]), ("fedora", ["rpm"]),
                                            ("debian", ["dnf", "rpm"])])
def test_without_a_known_manager_all_is_left_to_the_user(name: str, commands: list[str], tmp_path: Path) -> None:
    system = System(tmp_path, name, commands)
    assert f"what {system.list} names has to be installed by hand. Going on without." in system.install()
    assert system.calls() == []


def test_crb_and_epel_are_left_alone_where_they_are_not_wanted(enterprise: System) -> None:
    enterprise.has("repository.base", "enabled", *RPM_NAMES["el"])
    assert "Enabling" not in enterprise.install()
    assert len(enterprise.calls("install")) == 1
    assert enterprise.calls("enablerepo") == enterprise.calls("repolist") == []


@EVERY_MAKE
def test_crb_is_told_and_used_where_it_is_wanted(enterprise: System) -> None:
    enterprise.has("repository.base", "enabled", *(name for name in RPM_NAMES["el"] if name != "sculls"))
    words = enterprise.install()
    assert f"Enabling the repository {enterprise.crb} for this installation" in words
    assert words.index("Enabling") < words.index("Installing: sculls\n")
    last = enterprise.calls("install")[-1]
    assert f"--enablerepo={enterprise.crb} " in last and last.endswith(" sculls")
    assert not enterprise.calls("epel") and "EPEL" not in words
    assert enterprise.installed() == RPM_NAMES["el"]


@EVERY_MAKE
def test_epel_is_told_and_added_where_it_is_wanted(enterprise: System) -> None:
    words = enterprise.install()
    told = "Enabling EPEL (Extra Packages for Enterprise Linux) on this system, by its package epel-release, since"
    assert words.index(f"{told} it may have these: sail\n") < words.rindex("Installing: sail\n")
    # The system's own repositories don't have the package here.
    release = "10" if "rocky" in enterprise.release.read_text() else "9"
    added = [call.split()[-1] for call in enterprise.calls("epel-release")]
    assert added == [
        "epel-release", f"https://dl.fedoraproject.org/pub/epel/epel-release-latest-{release}.noarch.rpm",
    ]
    assert f"--enablerepo={enterprise.crb} --enablerepo=epel install" in enterprise.calls("install")[-1]
    assert enterprise.installed() == sorted(["epel-release", *RPM_NAMES["el"]])


def test_epel_comes_from_the_systems_own_repositories_where_they_have_it(enterprise: System) -> None:
    enterprise.has("repository.extras", "enabled", "epel-release")
    enterprise.install()
    assert [call.split()[-1] for call in enterprise.calls("epel-release")] == ["epel-release"]
    assert enterprise.installed() == sorted(["epel-release", *RPM_NAMES["el"]])


@pytest.mark.parametrize("name", ["epel", "ol9_developer_EPEL"])
def test_an_epel_that_is_only_switched_off_is_used(name: str, enterprise: System) -> None:
    enterprise.has(f"repository.{name}", "disabled", "sail")
    assert f"Enabling the repository {name} for this installation" in enterprise.install()
    assert not enterprise.calls("epel-release")
    assert enterprise.installed() == RPM_NAMES["el"]


def test_epel_is_left_alone_where_crb_has_what_may_lie_in_either(enterprise: System) -> None:
    enterprise.has(f"repository.{enterprise.crb}", "disabled", "sail")
    enterprise.has("installed", "sculls")
    assert "EPEL" not in enterprise.install()
    assert enterprise.installed() == RPM_NAMES["el"]
    # Nor is it asked for what may lie in CRB only.
    enterprise.has("installed")
    words = enterprise.install()
    assert "EPEL" not in words and "going on without: sculls." in words
    assert not enterprise.calls("epel")


def test_an_epel_that_is_on_is_not_enabled_again(enterprise: System) -> None:
    enterprise.has("repository.epel", "enabled")
    words = enterprise.install()
    assert "EPEL" not in words and "going on without: sail." in words
    assert not enterprise.calls("epel-release") and not enterprise.calls("--enablerepo=epel")


def test_epel_that_cannot_be_had_is_told(enterprise: System) -> None:
    (enterprise.state / "hidden.epel").unlink()
    enterprise.has("fails", "epel-release", "https://dl.fedoraproject.org/pub/epel/epel-release-latest-9.noarch.rpm",
                   "https://dl.fedoraproject.org/pub/epel/epel-release-latest-10.noarch.rpm")
    words = enterprise.install()
    assert "EPEL could not be enabled.\n" in words
    assert "going on without: sail." in words
    assert enterprise.installed() == sorted(set(RPM_NAMES["el"]) - {"sail"})


def test_the_manuals_lack_where_an_rpm_system_has_not_both_tools(fedora: System) -> None:
    def lack() -> bool:
        return fedora.run("manuals_lack && echo lack || echo made").split() == ["lack"]

    fedora.has("installed", "rubygem-asciidoctor")
    assert lack()
    fedora.has("installed", "rubygem-asciidoctor", "rubygem-asciidoctor-pdf")
    assert not lack()
    # A Debian has them; there their lack is a failure, and rpm isn't asked.
    fedora.has("installed")
    fedora.release.write_text(SYSTEMS["debian"])
    assert not lack()


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
