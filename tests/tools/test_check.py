# SPDX-License-Identifier: GPL-2.0-or-later
"""What ./check makes of the packages where a Debian package, or a manual, can't be made: nothing is built here."""
from __future__ import annotations

import shutil
from pathlib import Path

import pytest

from system import HOUSE, RPM_NAMES, System

COMMANDS = {
    "debian": ["apt-cache", "apt-get", "dpkg-query"],
    "fedora": ["dnf", "rpm"],
}
MANUAL_TOOLS = ["rubygem-asciidoctor", "rubygem-asciidoctor-pdf"]
NO_DEBIAN = "Left out: the Debian package"
NO_MANUALS = "Left out: the manuals"


def check(system: System, stage: str, *commands: Path) -> tuple[str, str]:
    """What ./check said to the stage, and how it called these commands, which do nothing."""
    top = system.list.parent / "house"
    for name in ("check", "tools/packages.sh", "tools/privileges.sh"):
        (top / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(HOUSE / name, top / name)
    shutil.copy(system.list, top / "packages.list")
    called = top / "called"
    called.write_text("")
    for command in commands:
        path = top / command
        path.parent.mkdir(exist_ok=True)
        path.write_text(f'#!{system.commands}/bash\necho "${{0##*/}} $*" >>"{called}"\n')
        path.chmod(0o755)
    words = system.bash(str(top / "check"), f"--{stage}")
    assert words.endswith(f"check: all passed ({stage})\n")
    return words, called.read_text().replace(str(top), "TOP")


def check_packages(system: System) -> tuple[str, str]:
    """What ./check --packages said, and the commands that it called to build and test them."""
    names = ("packaging/build-rpm", "packaging/build-deb", "tools/on-virtual-display")
    words, called = check(system, "packages", *map(Path, names))
    return words, called.replace("TOP/build/packages", "OUT")


TESTS = "on-virtual-display /usr/bin/python3 -B -m pytest -p no:cacheprovider -q tests/packaging\n"


def test_a_debian_makes_both_packages(tmp_path: Path) -> None:
    words, called = check_packages(System(tmp_path, "debian", COMMANDS["debian"]))
    assert called == f"build-rpm OUT --nodeps\nbuild-deb OUT\n{TESTS}"
    assert "Left out" not in words


@pytest.mark.parametrize("manuals", [True, False])
def test_an_rpm_system_makes_the_rpm_alone(manuals: bool, tmp_path: Path) -> None:
    fedora = System(tmp_path, "fedora", COMMANDS["fedora"])
    fedora.has("installed", *RPM_NAMES["fedora"], *(MANUAL_TOOLS if manuals else []))
    words, called = check_packages(fedora)
    # What the rpm is built with is looked up in rpm's database, which holds it here.
    assert called == f"build-rpm OUT{'' if manuals else ' --without manuals'}\n{TESTS}"
    assert NO_DEBIAN in words
    assert (NO_MANUALS in words) != manuals


def test_slow_faults_are_left_to_a_stage_of_their_own(tmp_path: Path) -> None:
    system = System(tmp_path, "debian", COMMANDS["debian"])
    _, called = check(system, "faults", system.commands / "cmake", system.commands / "ctest")
    assert called.splitlines()[-1] == (
        "ctest --preset asan --parallel 2 --output-on-failure --build-config Faults --label-regex ^slow$"
    )


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
