# SPDX-License-Identifier: GPL-2.0-or-later
"""What is told of each package before the user is asked: which version takes which one's place, and why."""

from __future__ import annotations

from typing import Any, Dict, List, NamedTuple, Optional, Sequence, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Collection, Program
from rpmestate import Estate, install_options, spec
from vemyum.apply import details, newer
from vemyum.apply.messages import Detail
from vemyum.apply.solving import Incoming, Solution


class Row(NamedTuple):
    """As the engine gets it."""

    action: str
    name: str
    arch: str
    old: str
    new: str
    repository: str
    size: int
    why: str
    whom: List[str]
    more: int
    replaces: List[str]
    warnings: List[str]


def told(host: FakeHost) -> List[Row]:
    assert host.details is not None
    return [Row(*row) for row in host.details[0]]


def short(host: FakeHost) -> Dict[str, str]:
    """By name: what happens and why, in words."""
    found = {}
    for row in told(host):
        versions = " -> ".join(filter(None, (row.old, row.new)))
        others = f" ({', '.join(row.whom)})" if row.whom else ""
        replaces = f", replaces {', '.join(row.replaces)}" if row.replaces else ""
        found[row.name] = f"{row.action} {versions} {row.repository}: {row.why}{others}{replaces}"
    return found


def mark(
    found: Collection, installs: Sequence[str] = (), updates: Sequence[str] = (), removes: Sequence[str] = ()
) -> None:
    """Applies, and the user doesn't agree."""
    found.yumio.apply(
        [found.offered(name) for name in installs],
        [found.pair(name) for name in updates],
        [found.there(name) for name in removes],
    )


@pytest.fixture
def refusing(host: FakeHost) -> FakeHost:
    host.answer = 0
    return host


def test_marks_and_what_they_require(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0", "tool-1.0", "desk-1.0"))
    mark(program.collect(), installs=["app", "tool"])
    assert short(refusing) == {
        "app": "install 1.0-1 base: marked",
        "tool": "install 1.0-1 base: marked",
        "lib": "install 1.0-1 base: required (app, tool)",
    }
    sizes = {row.name: row.size for row in told(refusing)}
    assert refusing.details is not None
    assert min(sizes.values()) > 0 and refusing.details[1] == sum(sizes.values())
    assert refusing.named("listTransaction", "userconfirm")[0][0] == "listTransaction"


def test_update_that_an_update_requires(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.install(rpms.some("lib-1.0", "tool-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "tool-2.0"))
    mark(program.collect(), updates=["tool"])
    assert short(refusing) == {
        "tool": "upgrade 1.0-1 -> 2.0-1 base: marked",
        "lib": "upgrade 1.0-1 -> 2.0-1 base: required (tool)",
    }
    assert [row.warnings for row in told(refusing)] == [["unchecked"], ["unchecked"]]


def test_what_needs_it_goes_along_and_stands_first(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.install(rpms.some("lib-1.0", "app-1.0", "lone-1.0"))
    mark(program.collect(), removes=["lib"])
    assert short(refusing) == {
        "app": "remove 1.0-1 @System: needs (lib)",
        "lib": "remove 1.0-1 @System: marked",
    }
    first, second = told(refusing)
    assert (first.name, first.warnings, second.warnings) == ("app", ["unmarked"], [])
    assert refusing.details is not None and refusing.details[1] == 0


def test_dependency_that_nothing_needs_any_more(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.repository("base", rpms.some("lib-1.0", "app-1.0"))
    refusing.answer = 1
    mark(program.collect(), installs=["app"])
    refusing.answer = 0
    mark(program.collect(), removes=["app"])
    assert short(refusing)["lib"] == "remove 1.0-1 @System: unneeded"


def test_version_beyond_the_limit_goes_without_a_warning(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.write_main_config(installonly_limit="2")
    estate.rpm("-i", *install_options(), *rpms.some("core-1.0", "core-2.0"))
    estate.repository("base", rpms.some("core-3.0"))
    mark(program.collect(), updates=["core"])
    assert [(row.action, row.old, row.new, row.why, row.warnings) for row in told(refusing)] == [
        ("remove", "1.0-1", "", "surplus", []),
        ("install", "", "3.0-1", "marked", ["unchecked"]),
    ]


def test_one_takes_anothers_place(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    found = program.collect()
    found.yumio.apply([found.update("newlamp")], [], [])
    assert short(refusing) == {
        "oldlamp": "obsoleted 1.0-1 @System: supplanted (newlamp)",
        "newlamp": "install 1.0-1 base: marked, replaces oldlamp",
    }


def test_older_version_is_a_downgrade_and_stands_first(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    """The list has no words for it and tells of a removal beside an installation."""
    (pinned,) = estate.build(spec("pinned", "1.0", requires=["lib = 1.0"]))
    estate.install(rpms.some("lib-2.0"))
    estate.repository("base", [*rpms.some("lib-1.0"), pinned])
    mark(program.collect(), installs=["pinned"])
    assert short(refusing) == {
        "lib": "downgrade 2.0-1 -> 1.0-1 base: required (pinned)",
        "pinned": "install 1.0-1 base: marked",
    }
    assert told(refusing)[0].name == "lib" and "older" in told(refusing)[0].warnings


def test_package_of_a_file_and_of_a_rich_dependency(
    estate: Estate, program: Program, refusing: FakeHost
) -> None:
    rpms = estate.build([
        spec("reader", requires=["/usr/bin/lens", "(wick(x) or oil)"]),
        spec("glass", files={"/usr/bin/lens": "lens"}),
        spec("candle", provides=["wick(x)"]),
    ])
    estate.repository("base", rpms)
    mark(program.collect(), installs=["reader"])
    assert short(refusing)["glass"] == "install 1.0-1 base: required (reader)"
    assert short(refusing)["candle"] == "install 1.0-1 base: required (reader)"


def test_recommended_and_lockstep_packages(estate: Estate, program: Program, refusing: FakeHost) -> None:
    old = estate.build([spec("pump", "1"), spec("pump-doc", "1", requires=["pump = 1"])])
    new = estate.build(
        [spec("pump", "2", tags={"Recommends": "valve"}), spec("pump-doc", "2", requires=["pump = 2"]), spec("valve")]
    )
    estate.install(old)
    estate.repository("base", new)
    mark(program.collect(), updates=["pump"])
    assert short(refusing) == {
        "pump": "upgrade 1-1 -> 2-1 base: marked",
        "pump-doc": "upgrade 1-1 -> 2-1 base: together (pump)",
        "valve": "install 1.0-1 base: recommended (pump)",
    }


def test_growth_is_what_comes_less_what_goes(
    estate: Estate, program: Program, refusing: FakeHost
) -> None:
    small, large = (estate.build(spec("box", version, files={"/usr/share/box": "x" * size}))[0]
                    for version, size in (("1", 1000), ("2", 51000)))
    estate.install([small])
    estate.repository("base", [large])
    mark(program.collect(), updates=["box"])
    assert refusing.details is not None and refusing.details[2] == 50000


def test_only_repositories_that_ask_for_no_signature_are_warned_of(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.repository("base", rpms.some("lone-1.0"), extra={"gpgcheck": "1"})
    estate.repository("free", rpms.some("battery-1.0"))
    mark(program.collect(), installs=["lone", "battery"])
    assert {row.name: row.warnings for row in told(refusing)} == {"lone": [], "battery": ["unchecked"]}


def test_protected_package_that_is_replaced_is_told(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.write_main_config(protected_packages="oldlamp")
    estate.install(rpms.some("oldlamp-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0"))
    found = program.collect()
    try:
        found.yumio.apply([found.update("newlamp")], [], [])
    except program.errors.YumBaseError as error:
        assert "protected" in str(error)
    else:
        assert {row.name: row.warnings for row in told(refusing)}["oldlamp"] == ["protected"]


def test_host_without_the_function_is_asked_all_the_same(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.delattr(FakeHost, "transactionDetails")
    estate.repository("base", rpms.some("lone-1.0"))
    mark(program.collect(), installs=["lone"])
    assert host.named("userconfirm") and estate.installed() == {"lone-1.0-1.noarch"}


# What has changed ------------------------------------------------------------------------------------------


def test_newer_entries_of_the_changelog_are_told_while_the_user_is_asked(
    estate: Estate, rpms: Catalogue, program: Program, refusing: FakeHost
) -> None:
    estate.install(rpms.some("lamp-1.0"))
    estate.repository("base", rpms.some("lamp-1.1", "current-2.5", "battery-1.0"))
    found = program.collect()
    answers: List[Tuple[List[str], List[str]]] = []

    def ask() -> None:
        assert refusing.details is not None
        before = refusing.details[3]()
        found.yumio.collectOtherData()
        answers.append((before, refusing.details[3]()))

    refusing.on_confirm = ask
    mark(found, updates=["lamp"])
    refusing.on_confirm = None
    ((before, after),) = answers
    names = [row.name for row in told(refusing)]
    assert set(before) == {""}
    changes = dict(zip(names, after))
    assert changes.pop("lamp") == "2024-03-05 Ada Nilsson <ada@estate.example> - 1.1-1\n- Brighter"
    assert set(changes.values()) == {""}


def entries(*days: int) -> List[Tuple[int, str, str]]:
    return [(day * 86400, "A. Author", f"- day {day}") for day in days]


@pytest.mark.parametrize(
    ("offered", "known", "newer_days"),
    [
        (entries(9, 8, 7), entries(7, 6), [9, 8]),
        (entries(9, 8), entries(9, 8), []),
        (entries(9, 8), entries(5), [9, 8]),
        (entries(9, 8), [], [9, 8]),
        # An entry of the same day that isn't known.
        ([(7 * 86400, "B", "- other"), *entries(7)], entries(7), [7]),
        # One that was put right behind.
        ([*entries(9), (7 * 86400, "A", "- day seven"), *entries(6)], entries(8, 7, 6), [9]),
    ],
)
def test_newer_is_what_stands_before_all_that_is_known(
    offered: List[Any], known: List[Any], newer_days: List[int]
) -> None:
    assert [entry[0] // 86400 for entry in newer._newer(offered, known)] == newer_days


def test_changes_have_bounds(estate: Estate) -> None:
    long = [(day, "A", "- " + "x" * 900) for day in range(50, 0, -1)]
    rows = [
        Detail("upgrade", f"p{number}", "noarch", "1-1", "2-1", "base", 1, "marked", [], 0, [], [], "c")
        for number in range(400)
    ]
    texts = newer.newer_changes(rows, str(estate.root), lambda repository, checksum: long)
    assert {len(text) for text in texts[:200]} == {4096}
    assert sum(map(len, texts)) == 1 << 20 and texts[-1] == ""


# By made-up packages ---------------------------------------------------------------------------------------


class Package(NamedTuple):
    name: str
    version: str = "1"
    arch: str = "noarch"
    provides: Sequence[str] = ()
    requires: Sequence[str] = ()
    reponame: str = "base"
    epoch: int = 0
    release: str = "1"
    size: int = 10

    @property
    def evr(self) -> str:
        return f"{self.version}-{self.release}"


class Facts:
    native = "x86_64"
    root = "/"

    def __init__(self, protected: Sequence[str] = ()) -> None:
        self._protected = protected

    def dependencies(self, package: Package, kind: str) -> List[Any]:
        found = {"provides": (package.name, *package.provides), "requires": package.requires}.get(kind, ())
        return [(name, None, (None, None, None)) for name in found]

    def files(self, package: Package) -> List[str]:
        return []

    def installed_size(self, package: Package) -> int:
        return 100

    def checksum(self, package: Package) -> Optional[str]:
        return None

    def protected(self) -> Sequence[str]:
        return self._protected

    def asks_for_signature(self, package: Package) -> bool:
        return True


def test_running_kernel_and_protected_packages_are_told(monkeypatch: pytest.MonkeyPatch) -> None:
    monkeypatch.setattr(details, "running_kernel", lambda root: ("kernel", "noarch", "0", "1", "1"))
    solution = Solution([], [Package("kernel"), Package("boot"), Package("lamp")], set(), [])
    marked = {("kernel", "noarch", "0", "1", "1"), ("lamp", "noarch", "0", "1", "1")}
    rows = details.details(Facts(["boot"]), marked, solution).rows
    assert {row.name: row.warnings for row in rows} == {
        "kernel": ["running"],
        "boot": ["protected", "unmarked"],
        "lamp": [],
    }
    assert rows[-1].name == "lamp"


def test_only_some_of_many_names_are_told() -> None:
    users = [Incoming(Package(f"user{number:02}", requires=["lib"]), "install", []) for number in range(30)]
    solution = Solution([*users, Incoming(Package("lib"), "install", [])], [], set(), [])
    marked = {(one.package.name, "noarch", "0", "1", "1") for one in users}
    (lib,) = [row for row in details.details(Facts(), marked, solution).rows if row.name == "lib"]
    assert (lib.whom, lib.more) == ([f"user{number:02}" for number in range(5)], 25)


def test_version_in_another_architecture_that_gives_way_has_a_row_of_its_own() -> None:
    new = Package("panel", "2")
    olds = [Package("panel", "1", "x86_64"), Package("panel", "1", "i686")]
    rows = details.details(Facts(), set(), Solution([Incoming(new, "upgrade", olds)], [], set(), [])).rows
    assert [(row.action, row.arch, row.old, row.new, row.why) for row in rows] == [
        ("remove", "i686", "1-1", "", "supplanted"),
        ("upgrade", "noarch", "1-1", "2-1", "solver"),
    ]
    assert details.details(Facts(), set(), Solution([Incoming(new, "upgrade", olds)], [], set(), [])).growth == -100


def test_thousands_of_packages_take_no_time_to_explain() -> None:
    """Each requires its neighbours: no step may walk over all for each."""
    packages = [
        Package(f"p{at}", provides=[f"cap{at}-{one}" for one in range(20)], requires=[f"cap{at + 1}-{one}" for one in range(20)])
        for at in range(3000)
    ]
    solution = Solution([Incoming(one, "install", []) for one in packages], [], set(), [])
    asked: List[str] = []

    class Counting(Facts):
        def dependencies(self, package: Package, kind: str) -> List[Any]:
            asked.append(package.name)
            return super().dependencies(package, kind)

    rows = details.details(Counting(), set(), solution).rows
    assert {row.name: row.whom for row in rows}["p7"] == ["p6"]
    assert len(asked) < 10 * len(packages)
