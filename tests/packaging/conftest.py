# SPDX-License-Identifier: GPL-2.0-or-later
"""What the tests of the built packages share. VEM_PACKAGES names the folder that packaging/build-rpm and build-deb
have filled; VEM_SHOTS, if set, a folder for screenshots.

On an rpm system there is no Debian package, and where no package has what makes the manuals, none has them. Nowhere
else are its tests left out.
"""
from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path
from typing import Iterator

import pytest

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent / "e2e"), str(HERE.parents[1] / "estate")]

from contents import Package, deb_contents, rpm_contents  # noqa: E402

PACKAGES = Path(os.environ["VEM_PACKAGES"])


def system_says(question: str) -> bool:
    """The answer of a function of tools/packages.sh."""
    script = HERE.parents[1] / "tools/packages.sh"
    return subprocess.run(["bash", "-c", f'. "$0" && {question}', script], check=False).returncode == 0


DEBIAN_PACKAGE = not system_says("rpm_system")
WITH_MANUALS = not system_says("manuals_lack")


def the_one(pattern: str) -> Path:
    (found,) = PACKAGES.glob(pattern)
    return found


@pytest.fixture(scope="session", autouse=True)
def home(tmp_path_factory: pytest.TempPathFactory) -> Iterator[None]:
    """A home directory of the tests' own: Debian's rpm makes a database there whatever it is asked."""
    with pytest.MonkeyPatch.context() as patch:
        patch.setenv("HOME", str(tmp_path_factory.mktemp("home")))
        yield


@pytest.fixture(scope="session")
def rpm_file() -> Path:
    # Beside it lie the sources and, where rpmbuild takes them apart, debuginfo and debugsource.
    (found,) = (path for path in PACKAGES.glob("vem-[0-9]*.rpm") if not path.name.endswith(".src.rpm"))
    return found


@pytest.fixture(scope="session")
def source_rpm() -> Path:
    return the_one("vem-*.src.rpm")


@pytest.fixture(scope="session")
def deb_file() -> Path:
    if not DEBIAN_PACKAGE:
        pytest.skip("an rpm system builds no Debian package")
    return the_one("vem_*.deb")


@pytest.fixture(scope="session")
def rpm_package(rpm_file: Path, tmp_path_factory: pytest.TempPathFactory) -> Package:
    return rpm_contents(rpm_file, tmp_path_factory.mktemp("rpm"))


@pytest.fixture(scope="session")
def deb_package(deb_file: Path, tmp_path_factory: pytest.TempPathFactory) -> Package:
    unpacked = tmp_path_factory.mktemp("deb")
    subprocess.run(["dpkg-deb", "--extract", deb_file, unpacked], check=True)
    return deb_contents(deb_file, unpacked)


@pytest.fixture(params=["rpm", "deb"])
def package(request: pytest.FixtureRequest) -> Package:
    return request.getfixturevalue(f"{request.param}_package")
