#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Makes the sample estate: a system below a directory, and the repositories that it is fed from.

    make_sample.py DIRECTORY            makes it anew
    make_sample.py --keep DIRECTORY     does nothing if a complete one is there already

The system is <DIRECTORY>/root, to be named by VEMROOT. Repositories: base, updates and extras, and preview,
which is disabled. Their addresses name the directory, so an estate that was moved counts as incomplete.
"""

from __future__ import annotations

import argparse
import shutil
import sys
import time
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.dont_write_bytecode = True
sys.path[:0] = [str(HERE.parent), str(HERE)]

from catalogue import SOURCES  # noqa: E402
from rpmestate import Estate, EstateError  # noqa: E402
from specwriter import Build, Quarry, builds, spec_text  # noqa: E402

STAMP = "complete"
"""Written last; holds the directory's own path."""

REPOSITORIES = {
    "base": "Fenmark $releasever - Base",
    "updates": "Fenmark $releasever - Updates",
    "extras": "Fenmark $releasever - Extras from the Stations",
    "preview": "Fenmark $releasever - Preview of the Next Release",
}
DISABLED = "preview"

DEFINES = {
    # Packages carry the date of their newest changelog entry, as in an estate that has grown.
    "source_date_epoch_from_changelog": "1",
    "use_source_date_epoch_as_buildtime": "1",
    "clamp_mtime_to_source_date_epoch": "1",
    "_buildhost": "lockkeeper.fenmark.example",
}


def is_complete(directory: Path) -> bool:
    try:
        return (directory / STAMP).read_text(encoding="utf-8") == str(directory)
    except OSError:
        return False


def remove_old(directory: Path) -> None:
    """Removes an earlier estate; a directory that isn't one is refused."""
    if not directory.exists() or not any(directory.iterdir()):
        return
    if not (directory / "root/etc/yum.repos.d").is_dir():
        raise EstateError(f"{directory} is not empty and holds no estate: left alone.")
    shutil.rmtree(directory)


def make(directory: Path) -> Estate:
    remove_old(directory)
    estate = Estate(directory)
    by_repository: dict[str, list[Path]] = {name: [] for name in REPOSITORIES}
    to_install: list[Path] = []
    installed_names = {part.name for source in SOURCES for part in source.parts if part.installed}

    quarry = Quarry()
    trees = estate.directory / "trees"
    plan: list[tuple[Build, bool]] = []
    for source in SOURCES:
        for build in builds(source):
            plan.append((build, False))
            if source.also_i686:
                plan.append((build, True))
    for i686 in (False, True):
        chosen = [build for build, wants_i686 in plan if wants_i686 == i686]
        specs = [spec_text(build, quarry, trees / f"{i686}-{n}", i686) for n, build in enumerate(chosen)]
        for build, rpms in zip(chosen, estate.build_each(specs, "i686" if i686 else "x86_64", DEFINES)):
            by_repository[build.repository] += rpms
            if not build.is_update and not i686:
                to_install += [rpm for rpm in rpms if _name(rpm) in installed_names]
    shutil.rmtree(trees)

    shell_old, shell_new = (_shell(estate, version) for version in ("1.4", "1.5"))
    by_repository["base"].append(shell_old)
    by_repository["updates"].append(shell_new)
    # It replaces a package of another name. Such an update can be marked but is refused at the apply: not what whoever
    # begins by updating everything should meet.
    by_repository[DISABLED] += estate.build(HERE / "specs/tideledger.spec", "x86_64", DEFINES)

    comps = (HERE / "comps.xml").read_text(encoding="utf-8")
    updateinfo = (HERE / "updateinfo.xml").read_text(encoding="utf-8")
    for repository, name in REPOSITORIES.items():
        estate.repository(
            repository,
            by_repository[repository],
            name=name,
            enabled=repository != DISABLED,
            comps=comps if repository == "base" else None,
            updateinfo=updateinfo if repository == "updates" else None,
        )
    shutil.rmtree(estate.build_dir)
    estate.write_main_config(keepcache="0", installonly_limit="3", best="0")
    # Where a repository that is added in the editor goes, as an installed program finds it.
    (estate.root / "etc/yum/repos.d").mkdir(parents=True)
    in_repository = {rpm.name: estate.repos_dir / "base" / rpm.name for rpm in [shell_old, *to_install]}
    estate.install(list(in_repository.values()))
    (directory / STAMP).write_text(str(directory), encoding="utf-8")
    return estate


def _shell(estate: Estate, version: str) -> Path:
    busybox = shutil.which("busybox", path="/bin:/usr/bin:/usr/local/bin:/usr/sbin:/sbin")
    if busybox is None:
        raise EstateError("busybox is missing (packages.list names what holds it).")
    defines = {**DEFINES, "shell_version": version, "busybox": busybox}
    (rpm,) = estate.build(HERE / "specs/fen-shell.spec", "x86_64", defines)
    return rpm


def _name(rpm: Path) -> str:
    return rpm.name.rsplit("-", 2)[0]


def main() -> int:
    parser = argparse.ArgumentParser(description="Makes the sample estate.")
    parser.add_argument("--keep", action="store_true", help="do nothing if a complete estate is there")
    parser.add_argument("directory", type=Path)
    arguments = parser.parse_args()
    directory = arguments.directory.resolve()
    if arguments.keep and is_complete(directory):
        return 0
    start = time.monotonic()
    try:
        estate = make(directory)
    except (EstateError, OSError) as error:
        print(f"make_sample.py: {error}", file=sys.stderr)
        return 1
    count = len(estate.installed())
    print(f"Sample estate: {count} packages installed below {estate.root} ({time.monotonic() - start:.0f} s)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
