# SPDX-License-Identifier: GPL-2.0-or-later
"""What the stand-in does in apply(): solving, listing, asking, fetching, running; in any release's form."""
from __future__ import annotations

import types
from typing import Any

import yumIOC
from standin import Era, note
from standinpackages import Header, Package, World

Pairs = list[list[Package]]

# rpm's callbacks.
INST_PROGRESS, INST_START, INST_OPEN, INST_CLOSE = 1, 2, 4, 8
TRANS_PROGRESS, TRANS_START, TRANS_STOP = 16, 32, 64
UNINST_PROGRESS, UNINST_START, UNINST_STOP = 128, 256, 512
# yum's transaction events.
TS_UPDATE, TS_INSTALL, TS_TRUEINSTALL, TS_ERASE = 10, 20, 30, 40
TS_OBSOLETED, TS_OBSOLETING, TS_UPDATED = 50, 60, 90


class Member:
    """A member of a transaction."""

    def __init__(self, package: Package, relatedto: list[tuple[Any, Any]] | None = None) -> None:
        self.package = package
        self.pkgtup = package.pkgtup
        self.repoid = package.repoid
        self.relatedto = relatedto or []


class TsInfo:
    """The lists of a solved transaction; which of the two forms holds them depends on the release."""

    names = ("updated", "installed", "removed", "obsoleted", "depupdated", "depinstalled", "depremoved")

    def __init__(self, era: Era, **lists: list[Member]) -> None:
        self.era = era
        self.plain_lists = {name: lists.get(name, []) for name in self.names}
        if "enabledStreams" in lists:
            self.enabledStreams = lists["enabledStreams"]

    def makelists(self) -> Any:
        if self.era.lists == "tuple":
            return tuple(self.plain_lists.values())
        for name, members in self.plain_lists.items():
            setattr(self, name, members)
        return None


class Transaction:
    """One apply. The solver adds ivy, and elm obsoletes birch, whenever elm is installed."""

    def __init__(
        self, era: Era, world: World, installs: list[Package], updates: Pairs, removes: list[Package]
    ) -> None:
        self.era = era
        self.installs = sorted(installs, key=lambda package: package.plain_name)
        self.updates = updates
        self.removes = removes
        brings_more = any(package.plain_name == "elm" for package in self.installs)
        self.dependencies = [world.find("available", "ivy")] if brings_more else []
        self.obsoleted = [world.find("installed", "birch")] if brings_more else []
        note("installs " + ", ".join(package.file_name("rpm") for package in self.installs))
        pairs = (f"{new.file_name('rpm')} <- {old.file_name('rpm')}" for new, old in updates)
        note("updates " + ", ".join(pairs))
        note("removes " + ", ".join(package.file_name("rpm") for package in removes))

    def run(self) -> None:
        self.solve()
        holder = types.SimpleNamespace(tsInfo=self.ts_info())
        yumIOC.listTransaction(holder)
        yumIOC.reportDownloadSize(self.to_fetch())
        answer = yumIOC.userconfirm()
        note(f"userconfirm: {answer}")
        if answer != 1:
            return
        self.download()
        self.run_rpm()
        note(f"postTransactionOutput: {yumIOC.postTransactionOutput(holder)!r}")

    def solve(self) -> None:
        yumIOC.dsTsCheck()
        for package in self.dependencies:
            yumIOC.log(2, f"TSINFO: Marking {package.plain_name} as install for elm")
        if self.era.headers:
            for package in self.installs + self.dependencies:
                if package.local_hdr is None:
                    self.fetch(package, "hdr", 3000)
        yumIOC.dsRestartLoop()
        yumIOC.dsTsCheck()
        yumIOC.log(2, "TSINFO: cedar marked as erase")

    def ts_info(self) -> TsInfo:
        def member(package: Package) -> Member:
            return Member(package)

        lists = {
            "installed": [member(package) for package in self.installs],
            "updated": [member(new) for new, _old in self.updates],
            "removed": [member(package) for package in self.removes],
            "depinstalled": [member(package) for package in self.dependencies],
        }
        by = next((one for one in lists["installed"] if one.package.plain_name == "elm"), None)
        related = by and (by if self.era.obsoleting == "member" else by.pkgtup)
        relations = [(None, self.era.text("obsoletes")), (related, self.era.text("obsoletedby"))]
        lists["obsoleted"] = [Member(package, relations) for package in self.obsoleted]
        return TsInfo(self.era, **lists)

    def to_fetch(self) -> list[Package]:
        new = [new for new, _old in self.updates] + self.installs + self.dependencies
        return [package for package in new if package.local_pkg is None]

    def fetch(self, package: Package, suffix: str, size: int) -> None:
        url = "http://example.org/buffet?login=me&key=k&path=" if suffix == "rpm" else "/var/cache/"
        url += package.file_name(suffix)
        yumIOC.applyGrabMeterStart(self.era.text(url), None, None, size, self.era.text(package.plain_name))
        yumIOC.applyGrabMeterUpdate(size // 2)
        yumIOC.applyGrabMeterUpdate(size)
        yumIOC.applyGrabMeterEnd(size)

    def download(self) -> None:
        for package in self.to_fetch():
            self.fetch(package, "rpm", package.plain_size)
        if self.era.rebuilds:
            yumIOC.applyGrabMeterStart(None, None, None, 3, "<delta rebuild>")
            yumIOC.applyGrabMeterUpdate(3)

    def run_rpm(self) -> None:
        yumIOC.tsInitCallback(0)
        if self.era.test_progress:
            self.prepare()
        yumIOC.tsInitCallback(1)
        if self.era.events:
            self.report_events()
        else:
            self.prepare()
            self.report_callbacks()

    @staticmethod
    def prepare() -> None:
        yumIOC.tsCallback(TRANS_START, 0, 6, None, None)
        yumIOC.tsCallback(TRANS_PROGRESS, 3, 6, None, None)
        yumIOC.tsCallback(TRANS_STOP, 6, 6, None, None)

    def put_in(self) -> list[tuple[Package, int]]:
        def code(package: Package) -> int:
            return TS_OBSOLETING if self.obsoleted and package.plain_name == "elm" else TS_INSTALL

        return (
            [(package, TS_TRUEINSTALL) for package in self.dependencies]
            + [(package, code(package)) for package in self.installs]
            + [(new, TS_UPDATE) for new, _old in self.updates]
        )

    def taken_out(self) -> list[tuple[Package, int]]:
        return (
            [(package, TS_ERASE) for package in self.removes]
            + [(old, TS_UPDATED) for _new, old in self.updates]
            + [(package, TS_OBSOLETED) for package in self.obsoleted]
        )

    def report_callbacks(self) -> None:
        for package, _code in self.put_in():
            key = (Header({"NAME": package.name}), "/a/path")
            size = package.plain_size
            yumIOC.tsCallback(INST_OPEN, 0, 0, key, None)
            yumIOC.tsCallback(INST_START, 0, size, key, None)
            yumIOC.tsCallback(INST_PROGRESS, size // 2, size, key, None)
            yumIOC.tsCallback(INST_PROGRESS, size, size, key, None)
            yumIOC.tsCallback(INST_CLOSE, 0, 0, key, None)
        for package, _code in self.taken_out():
            yumIOC.tsCallback(UNINST_START, 0, 9, package.name, None)
            yumIOC.tsCallback(UNINST_PROGRESS, 4, 9, package.name, None)
            yumIOC.tsCallback(UNINST_STOP, 0, 9, package.name, None)

    def report_events(self) -> None:
        steps = self.put_in() + self.taken_out()
        for number, (package, code) in enumerate(steps, start=1):
            subject = package if number <= len(self.put_in()) else package.name
            for done in (1, package.plain_size // 2, package.plain_size):
                yumIOC.tsEvent(subject, code, done, package.plain_size, number, len(steps))
