# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloads of an apply: the meter per file, failures by package, the cache."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Any, Callable, Dict, Iterable, List, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import BACKEND, DNF4, DNF5
from program import Program
from rpmestate import Estate
from web import Web

PACKAGES = ("battery-1.0", "lib-1.0", "lone-1.0")


@pytest.fixture
def served(estate: Estate, rpms: Catalogue, web: Web) -> Estate:
    estate.repository("base", rpms.some(*PACKAGES), baseurl=f"{web.url}/base")
    return estate


def install_all(program: Program) -> Any:
    found = program.collect()
    return found, lambda: found.yumio.apply(list(found.available), [], [])


def test_each_file_has_its_meter(served: Estate, rpms: Catalogue, program: Program, host: FakeHost) -> None:
    _, apply = install_all(program)
    apply()
    sizes = {rpms[key].name: rpms[key].stat().st_size for key in PACKAGES}
    told = host.meters()
    assert {name: size for name, size, _ in told} == sizes and len(told) == len(sizes)
    for name, size, values in told:
        assert values == sorted(values) and values[-1] == size
    assert len(served.installed()) == 3


def test_size_to_download_counts_what_the_cache_lacks(
    served: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    served.write_main_config(keepcache="1")
    served.install(rpms.some("desk-1.0"), ["--nodeps"])
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    served.rpm("--erase", "battery")
    found = program.collect()
    host.calls.clear()
    host.answer = 0
    found.yumio.apply(list(found.available), [], [])
    (size,) = [call[1] for call in host.named("reportDownloadSize")]
    assert size == sum(rpms[key].stat().st_size for key in ("lib-1.0", "lone-1.0"))


def test_cached_file_is_not_fetched_again(
    served: Estate, rpms: Catalogue, program: Program, host: FakeHost, web: Web
) -> None:
    served.write_main_config(keepcache="1")
    served.install(rpms.some("desk-1.0"), ["--nodeps"])
    found = program.collect()
    found.yumio.apply([found.offered("battery")], [], [])
    served.rpm("--erase", "battery")
    found = program.collect()
    web.forget_requests()
    host.calls.clear()
    found.yumio.apply([found.offered("battery")], [], [])
    assert web.requests() == [] and host.meters() == []
    assert served.installed() == {"battery-1.0-1.noarch", "desk-1.0-1.noarch"}


def test_downloaded_files_go_when_the_cache_is_not_kept(
    served: Estate, program: Program, host: FakeHost
) -> None:
    _, apply = install_all(program)
    apply()
    assert list((served.root / "var/cache/yum").glob("**/*.rpm")) == []


def test_failed_download_names_the_package(
    served: Estate, program: Program, host: FakeHost, web: Web
) -> None:
    web.lose("/base/lib-1.0-1.noarch.rpm")
    _, apply = install_all(program)
    with pytest.raises(program.errors.YumBaseError) as caught:
        apply()
    assert "lib-1.0-1.noarch" in str(caught.value)
    assert served.installed() == set()
    assert not host.named("tsInitCallback")


def test_apply_after_a_failed_download(served: Estate, program: Program, host: FakeHost, web: Web) -> None:
    web.lose("/base/lib-1.0-1.noarch.rpm")
    _, apply = install_all(program)
    with pytest.raises(program.errors.YumBaseError):
        apply()
    web.find_again()
    apply()
    assert len(served.installed()) == 3


def test_damaged_download_names_the_package(
    served: Estate, program: Program, host: FakeHost, web: Web
) -> None:
    web.page("/base/lone-1.0-1.noarch.rpm", b"no rpm" * 1000)
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError, match="lone-1.0-1.noarch"):
        found.yumio.apply([found.offered("lone")], [], [])


def test_newer_metadata_does_not_slip_in_behind_the_table(
    served: Estate, rpms: Catalogue, program: Program, host: FakeHost, web: Web
) -> None:
    found = program.collect()
    for file in (served.root / "var/cache/yum").glob("base-*/**/*"):
        os.utime(file, (0, 0))
    web.forget_requests()
    host.answer = 0
    found.yumio.apply([found.offered("lone")], [], [])
    assert web.requests() == []


def test_cause_and_address_of_a_failure_are_named_once(
    served: Estate, rpms: Catalogue, program: Program, host: FakeHost, web: Web
) -> None:
    found = program.collect()
    folder = served.repos_dir / "base"
    files = {rpm.name.split("-")[0]: rpm for rpm in folder.glob("*.rpm")}
    content = {name: rpm.read_bytes() for name, rpm in files.items()}
    for rpm in files.values():
        # The repository's files may be those of all tests.
        rpm.unlink()
    files["lib"].write_bytes(content["lib"][:1000])
    files["battery"].write_bytes(bytes(len(content["battery"])))
    causes = {
        "lone": f"Status code: 404 for {web.url}/base/lone-1.0-1.noarch.rpm",
        "lib": f"{web.url}/base/lib-1.0-1.noarch.rpm: ",
        "battery": f"{web.url}/base/battery-1.0-1.noarch.rpm: ",
    }
    for name, cause in causes.items():
        host.reset()
        with pytest.raises(program.errors.YumBaseError) as caught:
            found.yumio.apply([found.offered(name)], [], [])
        text = str(caught.value)
        assert f"{name}-1.0-1.noarch: " in text and text.count(cause) == 1, text
        assert host.text("log").count(cause) == 1
        assert "checksum" in text or name != "battery"


def test_part_of_a_file_is_still_to_be_downloaded(
    served: Estate, program: Program, host: FakeHost
) -> None:
    found = program.collect()
    lone = found.offered("lone")
    place = Path(lone.localPkg())
    place.parent.mkdir(parents=True, exist_ok=True)
    place.write_bytes(b"the beginning")
    found.yumio.apply([lone], [], [])
    assert host.named("reportDownloadSize") == [("reportDownloadSize", lone.size)]
    assert "lone-1.0-1.noarch" in served.installed()


# dnf 5 knows no deltas.
@pytest.mark.dnf4
def test_no_section_asks_for_deltas(served: Estate, program: Program) -> None:
    served.write_repo_file("base", extra={"deltarpm": "1"})
    yumio = program.start()
    assert [repo.deltarpm for repo in yumio._session._system._base.repos.values()] == [False]


@pytest.mark.parametrize(("blocks", "told"), [(1, True), (1 << 20, False)])
def test_full_disk_is_told_beside_the_cause(
    served: Estate, program: Program, host: FakeHost, web: Web, in_child: Callable[[str], None], blocks: int, told: bool
) -> None:
    web.page("/base/lone-1.0-1.noarch.rpm", b"the beginning")
    in_child(
        "import os, types\n"
        f"os.statvfs = lambda _: types.SimpleNamespace(f_bavail={blocks}, f_frsize=4096, f_flag=0)"
    )
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError) as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    (packages,) = (served.root / "var/cache/yum").glob("base-*/packages")
    assert (f"\nOnly 4 KiB are free in /{packages.relative_to(served.root)}." in str(caught.value)) is told


# The meter alone --------------------------------------------------------------------------------------


class Payload:
    def __init__(self, name: str, size: int) -> None:
        self.name = name
        self.download_size = size

    def __str__(self) -> str:
        return self.name

    # As dnf 5 asks a package.

    def get_location(self) -> str:
        return self.name

    get_nevra = get_repo_id = get_location

    def get_download_size(self) -> int:
        return self.download_size


GOOD, FAILED, FAILED_MIRROR = "good", "failed", "failed mirror"

def run_meter(host: FakeHost, *steps: Tuple[str, Any]) -> List[Tuple[str, int, List[int]]]:
    """A number is what there is of a file by then."""
    {DNF4: move_files_of_dnf_4, DNF5: move_files_of_dnf_5}[BACKEND](steps)
    return host.meters()


def move_files_of_dnf_4(steps: Iterable[Tuple[str, Any]]) -> None:
    import dnf.callback as ends
    from vemyum.dnf4.download import DownloadMeter

    codes = {GOOD: None, FAILED: ends.STATUS_FAILED, FAILED_MIRROR: ends.STATUS_MIRROR}
    payloads: Dict[str, Payload] = {name: Payload(name, 100) for name in "abc"}
    meter = DownloadMeter()
    meter.start(3, 300)
    for name, step in steps:
        if isinstance(step, float):
            meter.progress(payloads[name], step)
        else:
            meter.end(payloads[name], codes[step], "")
    meter.finish()


def move_files_of_dnf_5(steps: Iterable[Tuple[str, Any]]) -> None:
    from libdnf5.repo import DownloadCallbacks as Ends
    from vemyum.dnf5.download import DownloadMeter

    codes = {GOOD: Ends.TransferStatus_SUCCESSFUL, FAILED: Ends.TransferStatus_ERROR}
    meter = DownloadMeter([Payload(name, 100) for name in "abc"])
    for name, step in steps:
        place = "abc".index(name) + 1
        if isinstance(step, float):
            meter.progress(place, 100, int(step))
        elif step == FAILED_MIRROR:
            meter.mirror_failed(place, "gone", "http://mirror")
        else:
            meter.end(place, codes[step], "")
    meter.finish()


def test_files_fetched_side_by_side_are_told_one_after_the_other(program: Program, host: FakeHost) -> None:
    begun = ("a", 10.0), ("b", 20.0), ("a", 50.0), ("c", 5.0)
    told = run_meter(host, *begun, ("b", GOOD), ("a", GOOD), ("c", 60.0), ("c", GOOD))
    assert told == [("a", 100, [10, 50, 100, 100]), ("b", 100, [100, 100]), ("c", 100, [5, 60, 100, 100])]


def test_failed_file_ends_where_it_stood(program: Program, host: FakeHost) -> None:
    told = run_meter(host, ("a", 10.0), ("b", 20.0), ("a", FAILED))
    assert told == [("a", 100, [10, 10, 10]), ("b", 100, [20, 20])]


def test_failed_mirror_is_no_end(program: Program, host: FakeHost) -> None:
    told = run_meter(host, ("a", 10.0), ("a", FAILED_MIRROR), ("a", 40.0), ("a", GOOD))
    assert told == [("a", 100, [10, 40, 100, 100])]
