# SPDX-License-Identifier: GPL-2.0-or-later
"""The rpm in a root of its own: rpm checks its dependencies, and it leaves nothing behind.

Small stand-ins carry the names that Fedora's packages have, provide the libraries that those hold, and own the
folders that the package puts files into.
"""
from __future__ import annotations

import os
import re
import shutil
import subprocess
from dataclasses import dataclass
from pathlib import Path
from typing import Sequence

import pytest

from conftest import WITH_MANUALS
from contents import output_of, rpm_query
from program import Program
from rpmestate import Estate, EstateError, spec

CACHE = "var/cache/yum"


@dataclass(frozen=True)
class StandIn:
    version: str = "1.0"
    provides: str = "(?!)"  # which requirements of the package, beside its name
    folders: Sequence[str] = ()


STAND_INS = {
    "bash": StandIn(provides=r"/bin/sh"),
    "filesystem": StandIn(
        folders=("/usr/bin", "/usr/share/applications", "/usr/share/doc", "/usr/share/licenses", "/usr/share/metainfo",
                 "/usr/share/man/man8", "/var/cache"),
    ),
    "glibc": StandIn("2.36", r"(libc|libm|ld-linux.*)\.so.*|rtld\(.*"),
    "hicolor-icon-theme": StandIn(folders=("/usr/share/icons/hicolor/scalable/apps",)),
    "libgcc": StandIn(provides=r"libgcc_s\.so.*"),
    "libstdc++": StandIn(provides=r"libstdc\+\+\.so.*"),
    "polkit": StandIn(folders=("/usr/share/polkit-1/actions",)),
    "python3": StandIn("3.11"),
    "python3-dnf": StandIn("4.14.0"),
    "python3-libs": StandIn("3.11", r"libpython3\..*"),
    "python3-rpm": StandIn("4.18"),
    "qt6-qtbase": StandIn("6.4.2", r"libQt6(Core|DBus)\.so.*"),
    "qt6-qtbase-gui": StandIn("6.4.2", r"libQt6(Gui|Widgets)\.so.*"),
    "rpm": StandIn("4.18"),
    "systemd": StandIn(folders=("/usr/lib/tmpfiles.d",)),
}


def text_of(name: str, required: Sequence[str]) -> str:
    stand_in = STAND_INS[name]
    provides = [requirement for requirement in required if re.fullmatch(stand_in.provides, requirement)]
    text = spec(name, stand_in.version, provides=provides)
    if stand_in.folders:
        parents = {str(up) for folder in stand_in.folders for up in Path(folder).parents}
        owned = sorted((parents | set(stand_in.folders)) - {"/"})
        made, listed = ([f"{word}{up}\n" for up in owned] for word in ("mkdir -p %{buildroot}", "%dir "))
        text = text.replace("%install\n", "".join(["%install\n", *made]))
        text = text.replace("%files\n", "".join(["%files\n", *listed]))
    return text


@pytest.fixture(scope="module")
def stand_ins(rpm_file: Path, tmp_path_factory: pytest.TempPathFactory) -> dict[str, Path]:
    required = [name for (name,) in rpm_query(rpm_file, "%{REQUIRENAME}")]
    built = Estate(tmp_path_factory.mktemp("stand-ins")).build([text_of(name, required) for name in STAND_INS])
    return dict(zip(STAND_INS, built))


@pytest.fixture(scope="module")
def bare(stand_ins: dict[str, Path], tmp_path_factory: pytest.TempPathFactory) -> Estate:
    """Everything that the package needs is installed, the package isn't."""
    estate = Estate(tmp_path_factory.mktemp("bare"))
    estate.write_main_config()
    estate.install(list(stand_ins.values()))
    return estate


@pytest.fixture
def system(bare: Estate, tmp_path: Path) -> Estate:
    """A copy of that for one test."""
    own = Estate(tmp_path / "system")
    shutil.rmtree(own.root)
    shutil.copytree(bare.root, own.root, symlinks=True)
    return own


def files_of(estate: Estate) -> set[str]:
    """Every path of the root but the rpm database's own."""
    found = (path.relative_to(estate.root) for path in estate.root.rglob("*"))
    return {str(path) for path in found if not str(path).startswith("var/lib/rpm/")}


def test_every_requirement_is_provided_by_a_package_that_fedora_has(system: Estate, rpm_file: Path) -> None:
    system.install([rpm_file])
    assert "vem-1.7.2-1.x86_64" in {package for package in system.installed() if package.startswith("vem-")}
    assert system.rpm("--verify", "vem") == ""


def test_the_stand_ins_are_called_as_in_the_list_of_packages() -> None:
    script = 'source "$0/tools/packages.sh"; packages_of fedora "$0/packages.list"'
    listed = set(output_of(["bash", "-c", script, Path(__file__).resolve().parents[2]]).split())
    assert listed & set(STAND_INS) == {"python3-dnf", "python3-rpm", "systemd"}
    # What the list has for building brings what is there for running.
    developed = {name.removesuffix("-devel") for name in listed if name.endswith("-devel")}
    assert developed & set(STAND_INS) == {"python3", "qt6-qtbase"}


def test_no_requirement_may_lack(system: Estate, rpm_file: Path) -> None:
    system.install([rpm_file])
    for name, stand_in in STAND_INS.items():
        # Those two are needed by what they hold only.
        if name in {"filesystem", "systemd"}:
            continue
        with pytest.raises(EstateError, match=rf"is needed by \(installed\) vem-1\.7\.2"):
            system.rpm("--erase", "--test", name)


def test_either_package_library_is_enough(system: Estate, rpm_file: Path) -> None:
    system.install([rpm_file])
    system.install(system.build(spec("python3-libdnf5", "5.2.0")))
    system.rpm("--erase", "python3-dnf")
    with pytest.raises(EstateError, match=r"is needed by \(installed\) vem-1\.7\.2"):
        system.rpm("--erase", "--test", "python3-libdnf5")


def test_erasing_leaves_nothing(system: Estate, rpm_file: Path) -> None:
    before = files_of(system)
    system.install([rpm_file])
    assert ("usr/share/doc/vem-1.7.2/html/index.html" in files_of(system)) == WITH_MANUALS
    system.rpm("--erase", "vem")
    assert files_of(system) - before == set()
    assert before - files_of(system) == set()


def test_an_update_leaves_nothing_of_what_was_there_before(system: Estate, rpm_file: Path) -> None:
    old_files = {f"/usr/share/vem/{name}": "old" for name in ("python/vemyum/old.py", "icons/old.png", "launch")}
    (old,) = system.build(spec("vem", "1.7.1", files=old_files, arch=None))
    system.install([old])
    system.install([rpm_file])
    assert {package for package in system.installed() if package.startswith("vem-")} == {"vem-1.7.2-1.x86_64"}
    assert system.rpm("--verify", "vem") == ""
    assert not [path for path in files_of(system) if "old" in path]


def test_the_link_to_dnfs_cache_goes_with_the_last_version_only(system: Estate, rpm_file: Path) -> None:
    system.install([rpm_file])
    link = system.root / CACHE
    link.symlink_to("dnf")
    system.install([rpm_file], ["--replacepkgs"])
    assert os.readlink(link) == "dnf"
    system.rpm("--erase", "vem")
    assert not link.is_symlink()


@pytest.mark.parametrize("kind", ["folder", "link to elsewhere"])
def test_a_cache_of_the_administrators_own_stays(kind: str, system: Estate, rpm_file: Path) -> None:
    system.install([rpm_file])
    cache = system.root / CACHE
    if kind == "folder":
        cache.mkdir()
        (cache / "kept").write_text("")
    else:
        cache.symlink_to("/srv/cache")
    system.rpm("--erase", "vem")
    assert (cache / "kept").exists() if kind == "folder" else os.readlink(cache) == "/srv/cache"


def test_the_installed_program_shows_its_system_and_leaves_no_file_that_nobody_owns(
    system: Estate, rpm_file: Path, tmp_path: Path
) -> None:
    (update,) = system.build(spec("polkit", "2.0"))
    system.repository("news", [update])
    system.install([rpm_file])
    share = system.root / "usr/share/vem"
    # As an administrator's session is, whatever holds for the tests.
    environment = {"PYTHONDONTWRITEBYTECODE": ""}
    with Program(
        system.root / "usr/bin/vem", system.root, share, tmp_path / "vem.log", environment=environment
    ) as program:
        program.wait_ready()
        assert program.names() == ["polkit"]
        program.choose("View Removable")
        assert program.names() == sorted([*STAND_INS, "vem"])
        if "VEM_SHOTS" in os.environ:
            subprocess.run(["import", "-window", "root", Path(os.environ["VEM_SHOTS"]) / "rpm.png"], check=True)
    owned = set(system.rpm("--query", "--all", "--list").splitlines())
    there = {f"/{path}" for path in files_of(system) if path.startswith("usr/")}
    assert there - owned == set()


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
