# SPDX-License-Identifier: GPL-2.0-or-later
"""The sample estate holds something of everything that the program can show."""

from __future__ import annotations

import re
import subprocess
import sys
from pathlib import Path
from typing import Any
from xml.etree import ElementTree

import pytest

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "estate")]

from dnfreport import dnf_report  # noqa: E402
from rpmestate import Estate  # noqa: E402

MAKE_SAMPLE = HERE.parents[1] / "estate/sample/make_sample.py"


def make_sample(*arguments: str) -> "subprocess.CompletedProcess[str]":
    return subprocess.run(
        ["/usr/bin/python3", str(MAKE_SAMPLE), *arguments],
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        encoding="utf-8",
    )


@pytest.fixture(name="sample", scope="module")
def fixture_sample(tmp_path_factory: pytest.TempPathFactory) -> Estate:
    directory = tmp_path_factory.mktemp("sample") / "estate"
    done = make_sample(str(directory))
    assert done.returncode == 0, done.stderr
    return Estate(directory)


@pytest.fixture(name="report", scope="module")
def fixture_report(sample: Estate) -> dict[str, Any]:
    return dnf_report(sample)


def test_has_as_many_packages_as_a_small_machine(report: dict[str, Any]) -> None:
    assert 55 <= len(report["installed"]) <= 65
    assert 22 <= len(report["upgrades"]) <= 30
    assert 35 <= len(report["available"]) <= 45


def test_has_three_enabled_repositories_and_a_disabled_one(report: dict[str, Any]) -> None:
    repositories = report["repositories"]
    assert {name: enabled for name, (_, enabled) in repositories.items()} == {
        "base": True,
        "updates": True,
        "extras": True,
        "preview": False,
    }
    assert repositories["base"][0] == "Fenmark 4 - Base"


def test_has_the_folder_for_repositories_that_are_added(sample: Estate) -> None:
    assert (sample.root / "etc/yum/repos.d").is_dir()


def test_has_epochs_and_architectures(report: dict[str, Any]) -> None:
    assert "libtide-2:3.4-1.x86_64" in report["installed"]
    assert "libtide-2:3.5-1.x86_64" in report["upgrades"]
    assert report["arches"] == ["i686", "noarch", "x86_64"]


def test_the_only_obsoleting_package_is_in_the_disabled_repository(sample: Estate, report: dict[str, Any]) -> None:
    assert report["obsoleters"] == []
    assert (sample.repos_dir / "preview/tideledger-2.0-2.x86_64.rpm").exists()
    assert "tidebook-1.8.3-6.x86_64" in report["installed"]


def test_has_suites_and_visible_and_hidden_groups(report: dict[str, Any]) -> None:
    assert report["suites"] == ["board-office", "control-room", "field-station"]
    assert [name for name, visible in report["groups"].items() if not visible] == ["Core"]
    assert len(report["groups"]) >= 5


def test_names_are_written_with_their_own_letters(report: dict[str, Any]) -> None:
    assert any("Żurawska" in packager for packager in report["packagers"])
    assert any("李文渊" in packager for packager in report["packagers"])


def test_sizes_differ_like_those_of_real_packages(report: dict[str, Any]) -> None:
    sizes = report["sizes"].values()
    assert min(sizes) < 10_000
    assert max(sizes) > 5_000_000


def test_a_suite_pulls_in_its_members(sample: Estate) -> None:
    resolved = dnf_report(sample, install=["field-station"])["resolved"]
    assert "theodolite-4.4-1.x86_64" in resolved
    assert "stormcast-data-1.0.2-1.noarch" in resolved


def test_one_package_needs_the_disabled_repository(sample: Estate) -> None:
    assert "libpointcloud >= 3" in dnf_report(sample, install=["dykemap-lidar"])["problem"]


def test_keep_leaves_a_complete_estate_as_it_is(sample: Estate) -> None:
    sample.rpm("--erase", "levelbook")
    without = sample.installed()
    done = make_sample("--keep", str(sample.directory))
    assert (done.returncode, done.stdout) == (0, "")
    assert sample.installed() == without


def test_a_foreign_directory_is_left_alone(tmp_path: Path) -> None:
    (tmp_path / "letters").mkdir()
    done = make_sample(str(tmp_path))
    assert done.returncode == 1
    assert "left alone" in done.stderr
    assert [path.name for path in tmp_path.iterdir()] == ["letters"]


def test_updates_bring_output_of_lua_and_shell_scriptlets(sample: Estate) -> None:
    updates = sample.repos_dir / "updates"
    rpms = [rpm for name in ("sundial", "quayside") for rpm in updates.glob(f"{name}-[0-9]*.rpm")]
    output = sample.install(rpms)
    assert "sundial: clock source" in output
    assert "handing the clock back" not in output
    assert "quayside: pages are served" in output


def test_has_advisories_of_every_kind_and_severity_about_its_updates(sample: Estate) -> None:
    text = (MAKE_SAMPLE.parent / "updateinfo.xml").read_text(encoding="utf-8")
    there = {update.get("type") for update in ElementTree.fromstring(text)}
    assert there == {"security", "bugfix", "enhancement"}
    offered = {rpm.name for name in ("base", "updates") for rpm in (sample.repos_dir / name).glob("*.rpm")}
    assert offered.issuperset(re.findall("<filename>(.*)</filename>", text))
    assert list((sample.repos_dir / "updates/repodata").glob("*updateinfo.xml*"))
