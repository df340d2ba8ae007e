# SPDX-License-Identifier: GPL-2.0-or-later
"""The packages that the made-up estates are dealt from, built once and kept.

They are made up themselves, from a seed of their own: names in an order, each with one to four versions, which need,
recommend, replace and exclude each other in every way that rpm knows. Each lies there twice, unsigned and (mostly)
signed, together with its part of a repository's metadata.
"""

from __future__ import annotations

import fcntl
import gzip
import hashlib
import json
import os
import re
import shutil
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import Dict, List, NamedTuple, Optional, Sequence, Tuple

from dice import Dice
from keys import Key
from rpmestate import BUILD_JOBS, Estate, run, spec

NATIVE, SECOND = "x86_64", "i686"

NAMES = (
    "acorn amber anchor apron basin beacon birch brook cabin candle cedar cinder clover copper coral crane dapple "
    "ember fable fennel ferry flint garnet harbor hazel heron island juniper kettle ladder lantern maple meadow nettle "
    "orchid pebble quarry raven saddle thistle"
).split()
CORES = ("core", "core-parts")
"""Packages of which several versions are installed side by side; the second one needs the first's own version."""

LADDER = (
    (0, "1.0", "1"),
    (0, "1.0", "2"),
    (0, "1.2", "1"),
    (0, "2.0~rc1", "1"),
    (0, "2.0", "1"),
    (0, "2.1^git3", "1"),
    (1, "0.9", "1"),
)
"""Epoch, version and release, rising."""

ABILITIES = tuple(f"ability-{letter}" for letter in "abcdefgh")
RIVALS = (NAMES[33], NAMES[35])
"""Two packages with one file that differs."""
STUMBLING = {NAMES[38]: "pre", NAMES[36]: "post", NAMES[34]: "preun"}
"""Packages whose newest version has a scriptlet that fails. Few others need them."""


class Package(NamedTuple):
    """A package of the pool. `step` is its place on the ladder; `needs` and `mentions` are names and abilities: of what
    it requires, and of whatever else it speaks of."""

    name: str
    epoch: int
    version: str
    release: str
    arch: str
    step: int
    vendor: str
    needs: Tuple[str, ...]
    mentions: Tuple[str, ...]
    provides: Tuple[str, ...]
    text: str

    @property
    def file(self) -> str:
        return f"{self.name}-{self.version}-{self.release}.{self.arch}.rpm"

    @property
    def nevra(self) -> str:
        """As the command line takes it."""
        return f"{self.name}-{self.epoch}:{self.version}-{self.release}.{self.arch}"


def _evr(step: Tuple[int, str, str], dice: Dice) -> str:
    epoch, version, release = step
    text = version if dice.chance(0.7) else f"{version}-{release}"
    return f"{epoch}:{text}" if epoch else text


class _Relations:
    """What one version of a package asks of others."""

    def __init__(self, dice: Dice, at: int, ladders: Sequence[Sequence[Tuple[int, str, str]]]) -> None:
        self._dice = dice
        self._at = at
        self._ladders = ladders

    def _other(self) -> int:
        # Mostly one that stands before, so that there are few circles.
        below = self._at if self._at and self._dice.chance(0.85) else len(NAMES)
        other = self._dice.number(below)
        return other if other != self._at else (other + 1) % len(NAMES)

    def name(self) -> str:
        return NAMES[self._other()]

    def versioned(self, operators: Sequence[str] = (">=", ">=", ">=", "=", "<", "<=", ">")) -> str:
        other = self._other()
        # What asks for an older one at least can be had more often.
        ladder = self._ladders[other]
        step = ladder[self._dice.number(self._dice.between(1, len(ladder)))]
        return f"{NAMES[other]} {self._dice.one(operators)} {_evr(step, self._dice)}"

    def rich(self, conditions: bool = True) -> str:
        """Without conditions it can stand where the other package is the one that asks."""
        shapes = ["({0} or {1})", "({0} and {1})"]
        shapes += ["({0} if {1})", "({0} if {1} else {2})", "({3} if {1})"] if conditions else ["({3} and {1})"]
        return self._dice.one(shapes).format(self.name(), self.name(), self.name(), self.versioned((">=",)))

    def need(self) -> str:
        kind = self._dice.weighed(("name", "versioned", "ability", "file", "rich"), (45, 25, 12, 5, 13))
        if kind == "name":
            return self.name()
        if kind == "versioned":
            return self.versioned((">=", ">=", ">=", ">=", ">=", "<", "<=", "=", ">="))
        if kind == "ability":
            ability = self._dice.one(ABILITIES)
            return ability if self._dice.chance(0.6) else f"{ability} >= {self._dice.between(1, 3)}"
        if kind == "file":
            return f"/usr/share/{self.name()}/data"
        return self.rich()


def _words(dependencies: Sequence[str]) -> Tuple[str, ...]:
    """The names and abilities in these dependencies."""
    words = re.findall(r"[a-z][a-z-]*", " ".join(dependencies).replace("/usr/share/", "").replace("/data", ""))
    return tuple(dict.fromkeys(word for word in words if word in NAMES or word in ABILITIES or word in CORES))


def _architectures(dice: Dice, steps: int) -> List[Tuple[str, ...]]:
    """Those of each version; the last one may differ."""
    kinds = (("noarch",), (NATIVE,), (NATIVE, SECOND))
    usual = dice.weighed(kinds, (50, 25, 25))
    found = [usual] * steps
    if steps > 1 and dice.chance(0.25):
        found[-1] = dice.one(kinds)
    return found


def packages() -> List[Package]:
    """All of them, the same ones each time."""
    dice = Dice("packages")
    ladders = []
    for _ in NAMES:
        steps = sorted(dice.some(range(len(LADDER)), dice.weighed((1, 2, 3, 4), (1, 3, 4, 2))))
        ladders.append([LADDER[step] for step in steps])
    made = [package for at in range(len(NAMES)) for package in _of_name(dice, at, ladders)]
    return made + [_core(name, step) for step in range(5) for name in CORES]


def _of_name(dice: Dice, at: int, ladders: Sequence[Sequence[Tuple[int, str, str]]]) -> List[Package]:
    """All versions of a name, for all of their architectures."""
    name, ladder = NAMES[at], ladders[at]
    architectures = _architectures(dice, len(ladder))
    relations = _Relations(dice, at, ladders)
    # The first few need nothing.
    usual = [relations.need() for _ in range(dice.weighed((0, 1, 2, 3), (25, 40, 25, 10)))] if at > 3 else []
    abilities = [ABILITIES[at]] if at < len(ABILITIES) else dice.some(ABILITIES, 1) if dice.chance(0.3) else []
    made: List[Package] = []
    for number, (step, archs) in enumerate(zip(ladder, architectures)):
        last = number == len(ladder) - 1
        requires = [one for one in usual if dice.chance(0.85)]
        if at > 3 and dice.chance(0.25):
            requires.append(relations.need())
        provides = [f"{ability} = {number + 1}" if dice.chance(0.6) else ability for ability in abilities]
        conflicts = [dice.one((relations.name, relations.versioned))()] if dice.chance(0.07) else []
        obsoletes: List[str] = []
        if dice.chance(0.14 if last else 0.03):
            obsoletes.append(relations.name() if dice.chance(0.4) else relations.versioned(("<", "<=")))
            if dice.chance(0.5):
                provides.append(f"{obsoletes[0].split()[0]} = {step[1]}")
        vendor = dice.weighed(("North Works", "South Works"), (85, 15))
        weak: Dict[str, str] = {}
        for tag, chance in (("Recommends", 0.15), ("Suggests", 0.05), ("Supplements", 0.08), ("Enhances", 0.03)):
            if dice.chance(chance):
                conditions = tag in ("Recommends", "Suggests")
                weak[tag] = relations.rich(conditions) if dice.chance(0.25) else relations.name()
        files = {f"/usr/share/{name}/data": f"{name} {step[0]}:{step[1]}-{step[2]}"}
        if name in RIVALS and last:
            files["/usr/share/rivals"] = name
        scriptlets = {f"{STUMBLING[name]} -p <lua>": 'error("stumbled")'} if name in STUMBLING and last else {}
        needs, mentions = _words(requires), _words([*obsoletes, *conflicts, *weak.values()])
        offers = tuple(word for word in _words(provides) if word in ABILITIES)
        for arch in archs:
            text = spec(
                name,
                step[1],
                step[2],
                epoch=step[0] or None,
                arch="noarch" if arch == "noarch" else None,
                requires=requires,
                provides=provides,
                conflicts=conflicts,
                obsoletes=obsoletes,
                files={**files, **({f"/usr/lib/{name}-{arch}": arch} if arch != "noarch" else {})},
                scriptlets=scriptlets,
                tags={"Vendor": vendor, **weak},
            )
            made.append(Package(name, *step, arch, LADDER.index(step), vendor, needs, mentions, offers, text))
    return made


def _core(name: str, step: int) -> Package:
    epoch, version, release = LADDER[step]
    needs = ("core",) if name != "core" else ()
    text = spec(
        name,
        version,
        release,
        arch=None,
        provides=("installonlypkg(kernel)",),
        requires=[f"{need} = {version}-{release}" for need in needs],
        tags={"Vendor": "North Works"},
        files={f"/boot/{name}-{version}-{release}": version},
    )
    return Package(name, epoch, version, release, NATIVE, step, "North Works", needs, (), (), text)


class Entry(NamedTuple):
    """A package's parts of the metadata, and where its file is below the pool's directory."""

    location: str
    primary: str
    filelists: str


class Pool:
    """The built packages. `plain` and `signed` tell each one's metadata by its nevra."""

    def __init__(self, directory: Path) -> None:
        self.directory = directory
        self.packages = packages()
        index = json.loads((directory / "index.json").read_text(encoding="utf-8"))
        self.plain = {nevra: Entry(*entry) for nevra, entry in index["plain"].items()}
        self.signed = {nevra: Entry(*entry) for nevra, entry in index["signed"].items()}

    def key(self, number: int) -> Path:
        """The public part of a key: most packages are signed by the first, some by the second."""
        return self.directory / f"key-{number}.asc"

    def rpm(self, package: Package) -> Path:
        return self.directory / self.plain[package.nevra].location


def open_pool(cache: Path) -> Pool:
    """The pool of this source, built if it isn't there yet. Two may ask for it at once."""
    here = Path(__file__).resolve()
    sources = (here, here.with_name("dice.py"), here.parents[2] / "estate/rpmestate.py")
    mark = hashlib.sha256(b"".join(source.read_bytes() for source in sources)).hexdigest()[:16]
    cache.mkdir(parents=True, exist_ok=True)
    directory = cache / f"pool-{mark}"
    with open(cache / "lock", "w", encoding="ascii") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not (directory / "index.json").exists():
            for old in cache.glob("pool-*"):
                shutil.rmtree(old, ignore_errors=True)
            with tempfile.TemporaryDirectory(prefix="vem-oracle-") as scratch:
                _build(directory, Path(scratch))
    return Pool(directory)


def _build(directory: Path, scratch: Path) -> None:
    estate = Estate(scratch)
    found = packages()
    plain, signed = directory / "plain", directory / "signed"
    for folder in (plain, signed):
        folder.mkdir(parents=True)
    # One moment for all, so that a package is the same whenever it is built.
    defines = {"use_source_date_epoch_as_buildtime": "1", "clamp_mtime_to_source_date_epoch": "1"}
    os.environ["SOURCE_DATE_EPOCH"] = "1700000000"
    for arch in (NATIVE, SECOND):
        some = [package for package in found if (package.arch == SECOND) == (arch == SECOND)]
        for package, rpm in zip(some, estate.build([package.text for package in some], arch=arch, defines=defines)):
            assert rpm.name == package.file, rpm
            shutil.move(str(rpm), str(plain / rpm.name))
    with Key() as first, Key() as second:
        for number, key in enumerate((first, second), 1):
            shutil.copy2(key.public, directory / f"key-{number}.asc")

        def sign(numbered: Tuple[int, Package]) -> None:
            number, package = numbered
            if number % 13 == 12:
                shutil.copy2(plain / package.file, signed)
            else:
                (second if number % 11 == 10 else first).sign(plain / package.file, signed)

        with ThreadPoolExecutor(BUILD_JOBS) as pool:
            list(pool.map(sign, enumerate(found)))
    index = {folder.name: _index(directory, folder, found) for folder in (plain, signed)}
    # Last: what is there is complete.
    (directory / "index.json").write_text(json.dumps(index), encoding="utf-8")


def _index(directory: Path, folder: Path, found: Sequence[Package]) -> Dict[str, Entry]:
    run(["createrepo_c", "--quiet", "--simple-md-filenames", "--no-database", "--general-compress-type=gz", folder])
    files = {kind: folder / f"repodata/{kind}.xml.gz" for kind in ("primary", "filelists")}
    texts = {kind: gzip.decompress(file.read_bytes()).decode("utf-8") for kind, file in files.items()}
    shutil.rmtree(folder / "repodata")
    parts = {kind: re.findall(r"<package .*?</package>", text, re.S) for kind, text in texts.items()}
    lists = {_attribute(part, "pkgid"): part for part in parts["filelists"]}
    by_file: Dict[str, Tuple[str, str]] = {}
    for part in parts["primary"]:
        name = _attribute(part, "href")
        checksum = re.search(r"<checksum[^>]*>([0-9a-f]+)<", part)
        assert checksum is not None
        placed = part.replace(f'href="{name}"', f'href="{folder.name}/{name}"')
        by_file[name] = (placed, lists[checksum.group(1)])
    return {package.nevra: Entry(f"{folder.name}/{package.file}", *by_file[package.file]) for package in found}


def _attribute(text: str, name: str) -> str:
    match = re.search(rf'\b{name}="([^"]*)"', text)
    assert match is not None
    return match.group(1)


_HEAD = '<?xml version="1.0" encoding="UTF-8"?>\n'
_SPACE = "http://linux.duke.edu/metadata"
_NAMESPACES = {
    "primary": ("metadata", f'xmlns="{_SPACE}/common" xmlns:rpm="{_SPACE}/rpm"'),
    "filelists": ("filelists", f'xmlns="{_SPACE}/filelists"'),
}


def write_repository(
    pool: Pool, directory: Path, entries: Sequence[Entry], comps: Optional[str] = None, modules: Optional[str] = None
) -> None:
    """A repository of these packages, whose files stay where they are."""
    data = directory / "repodata"
    data.mkdir(parents=True)
    for folder in ("plain", "signed"):
        (directory / folder).symlink_to(pool.directory / folder)
    contents = {}
    for kind, (root, namespaces) in _NAMESPACES.items():
        parts = "\n".join(getattr(entry, kind) for entry in entries)
        contents[kind] = f'{_HEAD}<{root} {namespaces} packages="{len(entries)}">\n{parts}\n</{root}>\n'
    for kind, text in (("group", comps), ("modules", modules)):
        if text is not None:
            contents[kind] = text
    described = []
    for kind, text in contents.items():
        raw = text.encode("utf-8")
        name = f"{kind}.{'yaml' if kind == 'modules' else 'xml'}"
        (data / name).write_bytes(raw)
        checksum = hashlib.sha256(raw).hexdigest()
        described.append(
            f'<data type="{kind}"><checksum type="sha256">{checksum}</checksum><open-checksum type="sha256">{checksum}'
            f'</open-checksum><location href="repodata/{name}"/><timestamp>1700000000</timestamp>'
            f"<size>{len(raw)}</size><open-size>{len(raw)}</open-size></data>"
        )
    repomd = "\n".join([f'<repomd xmlns="{_SPACE}/repo"><revision>1</revision>', *described, "</repomd>", ""])
    (data / "repomd.xml").write_text(_HEAD + repomd, encoding="utf-8")
