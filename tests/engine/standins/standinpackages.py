# SPDX-License-Identifier: GPL-2.0-or-later
"""The packages, groups and repositories of the stand-in: a small wood, in the form of any release."""
from __future__ import annotations

from typing import Any

import rpm
from standin import Era

Evr = tuple[str, str, str]


class Header:
    """An rpm header: items by tag number, or by name as rpm's callback uses it."""

    def __init__(self, tags: dict[str, Any]) -> None:
        self.tags = tags

    def __getitem__(self, key: int | str) -> Any:
        if isinstance(key, str):
            return self.tags[key.upper()]
        for name, value in self.tags.items():
            if getattr(rpm, "RPMTAG_" + name) == key:
                return value
        return None


class Package:
    """A package as the library hands it over. What begins with "plain" is for the stand-in itself."""

    def __init__(
        self, era: Era, name: str, evr: Evr, arch: str, repo: str, size: int, **details: Any
    ) -> None:
        self.era = era
        self.plain_name = name
        self.plain_size = size
        self.pkgtup = tuple(era.text(part) for part in (name, arch, *evr))
        self.name = era.text(name)
        self.arch = era.text(arch)
        self.repoid = era.text(repo)
        self.local_pkg: str | None = details.get("local_pkg")
        self.local_hdr: str | None = details.get("local_hdr")
        self.simple: dict[str, Any] = {
            "repoid": era.text(repo),
            "summary": era.text(f"A tree called {name}\n"),
            "description": era.text(f"First line of {name}\n\nlast line\n\n"),
            "group": era.text(details.get("group", "Plants")),
            "buildhost": None,
            "packager": [],
            "license": era.text("GPLv2+"),
            "url": era.text(f"http://example.org/{name}"),
            "relativepath": era.text(self.file_name("rpm")),
            "sourcerpm": era.text(f"{name}-{evr[1]}-{evr[2]}.src.rpm"),
            "buildtime": "86400" if era.sizes == "text" else 86400,
        }
        self.size: Any = {
            "number": size,
            "text": str(size),
            "method": lambda: size,
            "text method": lambda: str(size),
        }[era.sizes]
        if repo == "installed":
            self.hdr = Header({"NAME": era.text(name), **details.get("tags", {})})
        else:
            self.add_repository_data()

    def add_repository_data(self) -> None:
        era = self.era
        prco: dict[str, Any] = {
            "provides": [(era.text(self.plain_name), "EQ", ("0", "1.0", "1"))],
            "requires": [
                (era.text("bark"), "GE", ("1", "3.2", "1")),
                (era.text("bough"), "LE", ("0", "2.0", None)),
                (era.text("acorn"), None, (None, None, None)),
            ],
            "conflicts": [],
            "obsoletes": [(era.text("weed"), "LT", (None, "4", None))],
        }
        if era.prco == "dictionary":
            self.prco: Any = prco
        else:
            self.prco = object()
            self.returnPrco = prco.__getitem__
        changes = [
            (172800, era.text("Ash <ash@example.org>"), era.text("- second")),
            (86400, era.text("Ash <ash@example.org>"), era.text("- first")),
        ]
        if era.changelog == "attribute":
            self.changelog: Any = changes
        else:
            self.changelog = object()
            self.returnChangelog = lambda: changes
        self.files = object()
        self.file_entries = [f"/usr/share/{self.plain_name}/b", f"/usr/share/{self.plain_name}/a"]

    def file_name(self, suffix: str) -> str:
        name, arch, _epoch, version, release = (
            part if isinstance(part, str) else part.decode() for part in self.pkgtup
        )
        return f"{name}-{version}-{release}.{arch}.{suffix}"

    def printVer(self) -> Any:
        _name, _arch, epoch, version, release = (
            part if isinstance(part, str) else part.decode() for part in self.pkgtup
        )
        return self.era.text(("" if epoch == "0" else epoch + ":") + f"{version}-{release}")

    def returnSimple(self, key: str) -> Any:
        return self.simple[key]

    def returnFileEntries(self, kind: str) -> list[Any]:
        return [self.era.text(entry) for entry in self.file_entries] if kind == "file" else []

    def localPkg(self) -> Any:
        return self.era.text(self.local_pkg)

    def localHdr(self) -> Any:
        return self.era.text(self.local_hdr)


class Group:
    """A group of the newer form."""

    def __init__(self, name: Any, visible: bool, installed: Any, members: dict[str, list[str]]) -> None:
        self.name = name
        self.user_visible = visible
        self.installed = installed
        self.mandatory_packages = dict.fromkeys(members["mandatory"], 1)
        self.default_packages = dict.fromkeys(members["default"], 1)
        self.optional_packages = dict.fromkeys(members["optional"], 1)
        self.conditional_packages = dict.fromkeys(members["conditional"], "elm")


class GroupInfo:
    """All groups in one object, the older form."""

    def __init__(self, era: Era, groups: dict[str, dict[str, Any]]) -> None:
        texts = {name: [era.text(item) for item in group["mandatory"]] for name, group in groups.items()}
        self.visible_groups = [era.text(name) for name, group in groups.items() if group["visible"]]
        self.group_installed = {name: group["installed"] for name, group in groups.items()}
        self.sub_groups = {name: group["groups"] for name, group in groups.items()}
        self.default_metapkgs = {name: ["meta-" + name] for name in groups}
        self.optional_metapkgs: dict[str, list[str]] = {name: [] for name in groups}
        self.mandatory_pkgs = texts
        self.default_pkgs = {name: group["default"] for name, group in groups.items()}
        self.optional_pkgs = {name: group["optional"] for name, group in groups.items()}

    def requiredPkgs(self, name: str) -> list[str]:
        return self.mandatory_pkgs[name] + self.default_pkgs[name]

    def pkgTree(self, name: str) -> list[str]:
        return self.requiredPkgs(name) + self.optional_pkgs[name]


class Repo:
    def __init__(self, enabled: int) -> None:
        self.enabled = enabled


class World:
    """What there is to collect. Members are changed by tests."""

    def __init__(self, era: Era) -> None:
        def package(
            name: str, evr: Evr, repo: str, size: int, arch: str = "noarch", **details: Any
        ) -> Package:
            details.setdefault("local_hdr", None if era.headers else __file__)
            return Package(era, name, evr, arch, repo, size, **details)

        self.repos = {"base": Repo(1), "updates": Repo(1), "testing": Repo(0)}
        self.updates = [
            package("alder", ("0", "2.0", "1"), "updates", 200000, "x86_64", local_pkg=__file__),
            package("alder", ("0", "1.9", "1"), "updates", 190000, "x86_64"),
            package("dogwood", ("0", "5.0", "1"), "updates", 15000),
        ]
        self.installed = [
            package("alder", ("0", "1.0", "1"), "installed", 100000, "x86_64", tags=self.alder_tags()),
            package("alder", ("0", "0.9", "1"), "installed", 90000, "x86_64"),
            package("birch", ("1", "3.1", "2"), "installed", 60000, tags=self.birch_tags()),
            package("birch", ("1", "3.0", "1"), "installed", 50000),
            package("cedar", ("0", "1.0", "1"), "installed", 30000),
        ]
        self.available = [
            package("alder", ("0", "1.5", "1"), "base", 150000, "x86_64"),
            package("birch", ("1", "2.0", "1"), "base", 40000),
            package("elm", ("0", "1.0", "1"), "base", 500, local_hdr=__file__),
            package("fir", ("2", "1.5", "3.1"), "base", 70000, group="Suite"),
            package("hazel", ("00", "4", "2"), "base", 50000),
            package("ivy", ("0", "1.0", "1"), "base", 20000),
        ]
        self.groups: dict[str, dict[str, Any]] = {
            "Trees": self.group(
                True, mandatory=["alder"], default=["birch"], optional=["elm"], conditional=["fir"]
            ),
            "Shrubs": self.group(False, mandatory=["hazel"], default=["elm"], optional=["bracken"]),
            "Stones": self.group(True, mandatory=["birch", "pebble"], default=["alder"]),
            "Hidden": self.group(True, visible=False),
            "Garden": self.group(True, groups=["Shrubs", "Nowhere", "Trees"]),
        }

    @staticmethod
    def group(installed: bool, visible: bool = True, **members: list[str]) -> dict[str, Any]:
        lists = ("mandatory", "default", "optional", "conditional", "groups")
        return {"installed": installed, "visible": visible, **{name: members.get(name, []) for name in lists}}

    @staticmethod
    def alder_tags() -> dict[str, Any]:
        return {
            "INSTALLTIME": 86400,
            "PREFIXES": ["/usr", "/opt"],
            "PROVIDENAME": ["alder", "wood", "tree"],
            "PROVIDEFLAGS": [8, 12, 0],
            "PROVIDEVERSION": ["1.0-1", "3", ""],
            "REQUIRENAME": ["bark", "acorn"],
            "REQUIREFLAGS": [10, 16777226],
            "REQUIREVERSION": ["2:1.0", "5"],
            "BASENAMES": ["b", "a", "a"],
            "DIRNAMES": ["/usr/bin/", "/etc/"],
            "DIRINDEXES": [0, 1, 1],
            "CHANGELOGNAME": ["Oak <oak@example.org>", "Ash <ash@example.org>"],
            "CHANGELOGTIME": [172800, 86400],
            "CHANGELOGTEXT": ["- newer", "- older"],
        }

    @staticmethod
    def birch_tags() -> dict[str, Any]:
        """A package of one file and one change, where rpm gives bare numbers."""
        return {
            "BASENAMES": ["birch"],
            "DIRNAMES": ["/usr/bin/"],
            "DIRINDEXES": 0,
            "CHANGELOGNAME": ["Ash <ash@example.org>"],
            "CHANGELOGTIME": 86400,
            "CHANGELOGTEXT": ["- only"],
        }

    def find(self, kind: str, name: str) -> Package:
        """The first package of `name` in "updates", "installed" or "available"."""
        return next(package for package in getattr(self, kind) if package.plain_name == name)
