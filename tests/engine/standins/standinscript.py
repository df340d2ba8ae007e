# SPDX-License-Identifier: GPL-2.0-or-later
"""The class YumIO of the stand-in: what the program calls."""
from __future__ import annotations

import types
from typing import Any

import standin
import standinpackages
import standintransaction
import yumIOC
from standin import note


class Repos:
    """yumIO.repos."""

    def __init__(self) -> None:
        self.repos = standin.world.repos

    def enableRepo(self, name: str) -> None:
        note(f"enableRepo({name})")
        self.repos[name].enabled = 1

    def disableRepo(self, name: str) -> None:
        note(f"disableRepo({name})")
        self.repos[name].enabled = 0


class YumIO:
    def __init__(self) -> None:
        note("YumIO()")
        self.repos: Any = Repos()
        self.conf = types.SimpleNamespace(yumvar={"basearch": "x86_64"})

    def lock(self) -> None:
        note("lock")

    def unlock(self) -> None:
        note("unlock")

    def setupRepos(self) -> None:
        note("setupRepos")
        read_repositories()

    def setupTs(self) -> None:
        note("setupTs")

    def collectUpdates(self) -> Any:
        note("collectUpdates")
        return iter(standin.world.updates)

    def collectAll(self) -> Any:
        note("collectAll")
        return types.SimpleNamespace(installed=standin.world.installed, available=standin.world.available)

    def setupTsGroup(self) -> None:
        note("setupTsGroup")

    def collectGroupInfo(self) -> Any:
        note("collectGroupInfo")
        era, groups = standin.era, standin.world.groups
        if era.groups == "by name":
            return standinpackages.GroupInfo(era, groups)
        return [
            standinpackages.Group(era.text(name), group["visible"], group["installed"], group)
            for name, group in groups.items()
        ]

    def collectFileLists(self) -> bool:
        note("collectFileLists")
        read_repositories()
        return True

    def collectOtherData(self) -> bool:
        note("collectOtherData")
        read_repositories()
        return True

    def apply(self, installs: list[Any], updates: list[Any], removes: list[Any]) -> None:
        note("apply")
        standintransaction.Transaction(standin.era, standin.world, installs, updates, removes).run()

    def flush(self) -> None:
        note("flush")

    def cleanHeaders(self) -> tuple[int, list[str]]:
        note("cleanHeaders")
        return 0, ["0 headers removed"]

    def cleanPackages(self) -> tuple[int, list[str]]:
        note("cleanPackages")
        return 0, []

    def cleanMetadata(self) -> tuple[int, list[str]]:
        note("cleanMetadata")
        return 0, []

    def cleanPickles(self) -> tuple[int, list[str]]:
        note("cleanPickles")
        if not standin.era.pickles:
            raise AttributeError("this release has no pickled cache")
        return 0, []

    def usesPresto(self) -> bool:
        note("usesPresto")
        return standin.era.presto


def read_repositories() -> None:
    """Reports the reading of the enabled repositories, in the release's order."""
    names = [name for name, repo in standin.world.repos.items() if getattr(repo, "enabled", 0)]
    if standin.era.one_pass:
        for name in names:
            fetch_index(name)
            fetch_and_parse(name)
        return
    for name in names:
        fetch_index(name)
    for name in names:
        fetch_and_parse(name)


def fetch(path: str, size: int | None) -> None:
    yumIOC.collectGrabMeterStart(path, "http://example.org/" + path, "", size, None)
    if size is not None:
        yumIOC.collectGrabMeterUpdate(size // 2)
        yumIOC.collectGrabMeterUpdate(size)
    yumIOC.collectGrabMeterEnd(size or 0)


def fetch_index(repo: str) -> None:
    fetch(f"/var/cache/yum/{repo}/metalink.xml.tmp", None)
    fetch(f"/var/cache/yum/{repo}/repomd.xml", 3000)


def fetch_and_parse(repo: str) -> None:
    fetch(f"/var/cache/yum/{repo}/primary.xml.gz", 40000)
    for done in (1, 50, 100):
        yumIOC.collectProgress(done, 100, standin.era.text(repo))
    if standin.era.sqlite:
        # What was converted needs no further parsing.
        yumIOC.collectProgress(-1, -1, standin.era.text(repo))
