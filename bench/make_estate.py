#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Makes a large estate to measure on: N packages in repository metadata, a part of them installed.

    make_estate.py [--packages N] [--installed N] [--updates N] [--real-updates] DIRECTORY

The metadata are written straight as XML: there are no rpms behind them, so packages can be listed, searched
and solved for, not downloaded. With --real-updates, there are (empty) rpms behind the updates, which can be
installed. The installed packages are real entries of a real rpm database. The same numbers always give the
same estate; one that is complete is kept.
"""

from __future__ import annotations

import argparse
import dataclasses
import gzip
import hashlib
import itertools
import random
import shutil
import sys
import time
from dataclasses import dataclass
from pathlib import Path
from typing import Iterable, Iterator, Sequence
from xml.sax.saxutils import escape

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "estate"))

from rpmestate import Estate, EstateError  # noqa: E402

STAMP = "complete"
FORMAT = 1
"""To be raised when the same numbers begin to mean another estate."""
INSTALL_AT_ONCE = 400
GROUPS = 150

FIRST = (
    "alder ash beck birch brine bracken clay cove curlew dune eel elm fen fern flint ford frost gorse gull"
).split()
SECOND = (
    "bank bark bell bridge broad brook field gate grove haven hill hook ing ley marsh mere mill pool wick"
).split()
THIRD = "core data draw graph hub kit log map net note pack plan port scan shell sync tool view work".split()
PARTS = ("", "-libs", "-devel", "-common", "-doc", "-tools", "-lang", "-data", "-tests", "-plugins")
SECTIONS = (
    "System/Base",
    "System/Libraries",
    "Development/Libraries",
    "Applications/Engineering",
    "Documentation",
)
SENTENCES = (
    "Reads and writes the formats that neighbouring programs use.",
    "It starts without a configuration and says what it has assumed.",
    "Long series are kept on disk and read piece by piece.",
    "The command line and the library give the same results to the last digit.",
    "Messages exist in eleven languages; the rest falls back to English.",
    "Rewritten twice, since the first rewriting was in a hurry.",
    "Needs no daemon, no database and no network.",
)


@dataclass(frozen=True)
class Package:
    """What the metadata say about one package. `pkgid` stands for the checksum of an rpm that isn't there."""

    name: str
    arch: str
    version: str
    release: str
    epoch: int
    summary: str
    description: str
    section: str
    size: int
    requires: tuple[str, ...]
    files: tuple[str, ...]
    build_time: int

    @property
    def pkgid(self) -> str:
        label = f"{self.name}-{self.epoch}:{self.version}-{self.release}.{self.arch}"
        return hashlib.sha256(label.encode()).hexdigest()

    @property
    def location(self) -> str:
        return f"Packages/{self.name[0]}/{self.name}-{self.version}-{self.release}.{self.arch}.rpm"


def names() -> Iterator[str]:
    """Package names without end, none twice, families together."""
    for number in itertools.count():
        mark = "" if number == 0 else str(number + 1)
        families = [a + b + "-" + c + mark for a in FIRST for b in SECOND for c in THIRD]
        # Families that follow each other shall not share their first letters, as in a real order of growth.
        random.Random(number).shuffle(families)
        for family in families:
            for part in PARTS:
                yield family + part


def packages(count: int) -> list[Package]:
    """`count` packages. Each requires only packages before it, so any first part of the list is closed."""
    chance = random.Random("packages")
    result: list[Package] = []
    for name in itertools.islice(names(), count):
        requires = {chance.choice(result).name for _ in range(chance.randint(0, 5))} if result else set()
        arch = "noarch" if name.endswith(("-doc", "-data", "-common", "-lang")) else "x86_64"
        folder = f"/usr/share/{name}"
        files = [f"/usr/bin/{name}", f"/etc/{name}.conf"] if "-" not in name[-7:] else []
        files += [f"{folder}/{number:03d}.dat" for number in range(chance.randint(2, 14))]
        result.append(
            Package(
                name=name,
                arch=arch,
                version=f"{chance.randint(0, 12)}.{chance.randint(0, 30)}.{chance.randint(0, 9)}",
                release=f"{chance.randint(1, 9)}.bm1",
                epoch=1 if chance.random() < 0.04 else 0,
                summary=f"The {name.replace('-', ' ')} of the great measuring estate",
                description=" ".join(chance.sample(SENTENCES, chance.randint(1, 5))),
                section=chance.choice(SECTIONS),
                size=int(chance.lognormvariate(11.5, 1.8)) + 1000,
                requires=tuple(sorted(requires)),
                files=tuple(files),
                build_time=1_700_000_000 + chance.randrange(40_000_000),
            )
        )
    return result


def newer(package: Package) -> Package:
    major, minor, patch = package.version.split(".")
    version = f"{major}.{int(minor) + 1}.{patch}"
    return dataclasses.replace(package, version=version, build_time=package.build_time + 86400)


# Metadata ------------------------------------------------------------------------------------------------


def primary(items: Sequence[Package]) -> Iterator[str]:
    yield (
        '<metadata xmlns="http://linux.duke.edu/metadata/common" '
        f'xmlns:rpm="http://linux.duke.edu/metadata/rpm" packages="{len(items)}">\n'
    )
    for p in items:
        own = f'<rpm:entry name="{p.name}" flags="EQ" epoch="{p.epoch}" ver="{p.version}" rel="{p.release}"/>'
        needs = "".join(f'<rpm:entry name="{name}"/>' for name in p.requires)
        main_files = [path for path in p.files if path.startswith(("/etc/", "/usr/bin/"))]
        listed = "".join(f"<file>{path}</file>" for path in main_files)
        yield (
            f'<package type="rpm"><name>{p.name}</name><arch>{p.arch}</arch>'
            f'<version epoch="{p.epoch}" ver="{p.version}" rel="{p.release}"/>'
            f'<checksum type="sha256" pkgid="YES">{p.pkgid}</checksum>'
            f"<summary>{escape(p.summary)}</summary><description>{escape(p.description)}</description>"
            "<packager>Measuring Office &lt;office@estate.example&gt;</packager>"
            "<url>https://estate.example/</url>"
            f'<time file="{p.build_time}" build="{p.build_time}"/>'
            f'<size package="{p.size}" installed="{p.size * 3}" archive="{p.size * 3 + 900}"/>'
            f'<location href="{p.location}"/><format><rpm:license>MIT</rpm:license>'
            f"<rpm:vendor>Measuring Office</rpm:vendor><rpm:group>{p.section}</rpm:group>"
            f"<rpm:buildhost>builder.estate.example</rpm:buildhost>"
            f"<rpm:sourcerpm>{p.name}-{p.version}-{p.release}.src.rpm</rpm:sourcerpm>"
            f'<rpm:header-range start="4504" end="9000"/><rpm:provides>{own}</rpm:provides>'
            f"<rpm:requires>{needs}</rpm:requires>{listed}</format></package>\n"
        )
    yield "</metadata>\n"


def _package_head(p: Package) -> str:
    return (
        f'<package pkgid="{p.pkgid}" name="{p.name}" arch="{p.arch}">'
        f'<version epoch="{p.epoch}" ver="{p.version}" rel="{p.release}"/>'
    )


def filelists(items: Sequence[Package]) -> Iterator[str]:
    yield f'<filelists xmlns="http://linux.duke.edu/metadata/filelists" packages="{len(items)}">\n'
    for p in items:
        yield _package_head(p) + "".join(f"<file>{path}</file>" for path in p.files) + "</package>\n"
    yield "</filelists>\n"


def other(items: Sequence[Package]) -> Iterator[str]:
    yield f'<otherdata xmlns="http://linux.duke.edu/metadata/other" packages="{len(items)}">\n'
    for p in items:
        author = f"Measuring Office &lt;office@estate.example&gt; - {p.version}-{p.release}"
        entries = ""
        for age in (2, 1, 0):
            date = p.build_time - age * 5_000_000
            entries += f'<changelog author="{author}" date="{date}">- {SENTENCES[age]}</changelog>'
        yield _package_head(p) + entries + "</package>\n"
    yield "</otherdata>\n"


def comps(items: Sequence[Package]) -> Iterator[str]:
    chance = random.Random("groups")
    yield "<comps>\n"
    for number in range(min(GROUPS, len(items))):
        members = chance.sample(items, min(40, len(items)))
        kinds = ("mandatory", "default", "optional")
        listed = ""
        for place, member in enumerate(members):
            listed += f'<packagereq type="{kinds[place % 3]}">{member.name}</packagereq>'
        title = f"{FIRST[number % len(FIRST)]} {THIRD[number % len(THIRD)]} {number}".title()
        yield (
            f"<group><id>group-{number}</id><name>{title}</name>"
            f"<description>{SENTENCES[number % 7]}</description><uservisible>true</uservisible>"
            f"<packagelist>{listed}</packagelist></group>\n"
        )
    yield "</comps>\n"


def write_repository(directory: Path, items: Sequence[Package], groups: bool) -> None:
    data = directory / "repodata"
    data.mkdir(parents=True)
    records = [
        _write_metadata(data, "primary", primary(items)),
        _write_metadata(data, "filelists", filelists(items)),
        _write_metadata(data, "other", other(items)),
    ]
    if groups:
        records.append(_write_metadata(data, "group_gz", comps(items)))
    head = '<?xml version="1.0" encoding="UTF-8"?>\n<repomd xmlns="http://linux.duke.edu/metadata/repo">\n'
    text = head + "<revision>1</revision>\n" + "".join(records) + "</repomd>\n"
    (data / "repomd.xml").write_text(text, encoding="utf-8")


def _write_metadata(directory: Path, kind: str, pieces: Iterable[str]) -> str:
    """Writes one gzipped file and gives its record for repomd.xml."""
    path = directory / f"{kind}.xml.gz"
    inner = hashlib.sha256()
    size = 0
    with path.open("wb") as raw, gzip.GzipFile(fileobj=raw, mode="wb", compresslevel=6, mtime=0) as packed:
        for piece in itertools.chain(['<?xml version="1.0" encoding="UTF-8"?>\n'], pieces):
            block = piece.encode("utf-8")
            inner.update(block)
            size += len(block)
            packed.write(block)
    checksum = hashlib.sha256(path.read_bytes()).hexdigest()
    return (
        f'<data type="{kind}"><checksum type="sha256">{checksum}</checksum>'
        f'<open-checksum type="sha256">{inner.hexdigest()}</open-checksum>'
        f'<location href="repodata/{path.name}"/><timestamp>1700000000</timestamp>'
        f"<size>{path.stat().st_size}</size><open-size>{size}</open-size></data>\n"
    )


# The rpm database ----------------------------------------------------------------------------------------


def database_spec(items: Sequence[Package], number: int, tree: Path) -> str:
    """One spec file with a subpackage for each item: a build of many is far faster than many builds."""
    lines = [f"Name: measuring-estate-{number}", "Version: 1", "Release: 1", "License: MIT"]
    lines += ["Summary: Carrier of many packages", "%description", "Not a package by itself."]
    tree.mkdir(parents=True, exist_ok=True)
    lines += ["%install", f'cp -a "{tree}/." %{{buildroot}}']
    for p in items:
        lines += [f"%package -n {p.name}", f"Version: {p.version}", f"Release: {p.release}"]
        if p.epoch:
            lines.append(f"Epoch: {p.epoch}")
        if p.arch == "noarch":
            lines.append("BuildArch: noarch")
        lines += [f"Summary: {p.summary}", f"Group: {p.section}", "AutoReqProv: no"]
        lines += [f"Requires: {name}" for name in p.requires]
        lines += [f"%description -n {p.name}", p.description, f"%files -n {p.name}", *p.files]
        for path in p.files:
            target = tree / path.lstrip("/")
            target.parent.mkdir(parents=True, exist_ok=True)
            target.touch()
    changes = "\n".join(f"- {sentence}" for sentence in SENTENCES)
    lines += ["%changelog", f"* Mon Jan 13 2025 Measuring Office <office@estate.example> - 1-1\n{changes}"]
    return "\n".join(lines) + "\n"


def build(estate: Estate, items: Sequence[Package]) -> list[Path]:
    trees = estate.directory / "trees"
    halves = (items[0::2], items[1::2])
    specs = [database_spec(half, number, trees / str(number)) for number, half in enumerate(halves)]
    rpms = estate.build(specs, "x86_64")
    shutil.rmtree(trees)
    return rpms


def fill_database(estate: Estate, items: Sequence[Package]) -> None:
    rpms = build(estate, items)
    options = ["--justdb", "--nodeps", "--noscripts", "--nosignature", "--nodigest"]
    for start in range(0, len(rpms), INSTALL_AT_ONCE):
        estate.install(rpms[start : start + INSTALL_AT_ONCE], options)


@dataclass(frozen=True)
class Numbers:
    packages: int
    installed: int
    updates: int
    real_updates: bool = False

    def valid(self) -> bool:
        return 0 <= self.updates <= self.installed <= self.packages - self.updates


def make(directory: Path, numbers: Numbers) -> Estate:
    """Makes the estate, or opens the one of these numbers that is there."""
    directory = directory.resolve()
    mark = f"{directory} {numbers} format {FORMAT}"
    stamp = directory / STAMP
    if stamp.exists() and stamp.read_text(encoding="utf-8") == mark:
        return Estate(directory)
    if directory.exists() and any(directory.iterdir()):
        if not (directory / "root/etc/yum.repos.d").is_dir():
            raise EstateError(f"{directory} is not empty and holds no estate: left alone.")
        shutil.rmtree(directory)
    estate = Estate(directory)
    base = packages(numbers.packages - numbers.updates)
    installed = base[: numbers.installed]
    updates = [newer(p) for p in base[: numbers.updates]]
    # An update of a group would install what the group has beyond the installed packages.
    write_repository(estate.repos_dir / "base", base, groups=not numbers.real_updates)
    if numbers.real_updates:
        installed = [dataclasses.replace(p, files=()) for p in installed]
        rpms = build(estate, [dataclasses.replace(p, files=()) for p in updates])
        estate.repository("updates", rpms, name="Measuring estate, updates")
    else:
        write_repository(estate.repos_dir / "updates", updates, groups=False)
        estate.write_repo_file("updates", "Measuring estate, updates")
    estate.write_main_config()
    estate.write_repo_file("base", "Measuring estate")
    fill_database(estate, installed)
    shutil.rmtree(estate.build_dir)
    stamp.write_text(mark, encoding="utf-8")
    return estate


def main() -> int:
    parser = argparse.ArgumentParser(description="Makes a large estate to measure on.")
    parser.add_argument("--packages", type=int, default=66_000, help="packages in all repositories")
    parser.add_argument("--installed", type=int, default=2_300, help="installed packages")
    parser.add_argument("--updates", type=int, default=1_900, help="installed packages that have an update")
    parser.add_argument("--real-updates", action="store_true", help="the updates can be installed")
    parser.add_argument("directory", type=Path)
    arguments = parser.parse_args()
    numbers = Numbers(arguments.packages, arguments.installed, arguments.updates, arguments.real_updates)
    if not numbers.valid():
        parser.error("numbers must hold: updates <= installed <= packages - updates")
    start = time.monotonic()
    try:
        estate = make(arguments.directory, numbers)
    except (EstateError, OSError) as error:
        print(f"make_estate.py: {error}", file=sys.stderr)
        return 1
    print(f"Estate of {numbers.packages} packages: {estate.root} ({time.monotonic() - start:.0f} s)")
    return 0


if __name__ == "__main__":
    sys.exit(main())
