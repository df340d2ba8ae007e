# SPDX-License-Identifier: GPL-2.0-or-later
"""Packages that don't come, or not as they were announced: what is told, and what is left."""
from __future__ import annotations

import os
import re
import signal
from pathlib import Path
from tempfile import mkdtemp
from typing import Callable, Iterator

import pytest

from desk import AFTER, BEFORE, Desk, Disk, assert_told
from keys import Key
from libraries import by_library
from program import wait_for
from rpmestate import Estate
from web import Web

Serve = Callable[[Estate], Web]

LAMP = "/harbour/fleet-lamp-1.1-1.noarch.rpm"


@pytest.fixture
def web(desk: Desk, fleet: Estate, serve: Serve) -> Web:
    """Gives the desk's repository."""
    web = serve(fleet)
    desk.site.write_repo_file("harbour", baseurl=f"{web.url}/harbour")
    return web


def apply_well(desk: Desk) -> None:
    """Presses Apply for what is marked, and waits for the good end."""
    desk.apply()
    desk.untold()


def path_of(fleet: Estate, name: str) -> str:
    """Of an offered package, as the server knows it."""
    (rpm,) = (fleet.repos_dir / "harbour").glob(f"{name}-*.rpm")
    return f"/harbour/{rpm.name}"


def test_packages_that_do_not_come_as_announced(desk: Desk, fleet: Estate, web: Web) -> None:
    oil, wick, bellows = (path_of(fleet, f"fleet-{name}") for name in ("oil", "wick", "bellows"))
    present = set(BEFORE)

    def fails(path: str, *words: str) -> None:
        """The package can't be had, which is told with the address and these words of the library. Once the server
        is mended it goes in: the mark is still there."""
        package = Path(path).name.removesuffix(".rpm")
        desk.mark(package.rsplit("-", 2)[0])
        desk.apply()
        told = desk.told()
        cause = re.compile(f"{package}: .*{web.url}{path}")
        assert_told(told, "Unable to download packages:", cause, "Error applying changes")
        for word in words:
            assert word in told
        desk.sound(*present)
        web.find_again()
        apply_well(desk)
        present.add(package)

    web.cut(1000, oil)
    fails(oil)
    web.lie(bytes((fleet.repos_dir / wick[1:]).stat().st_size), wick)
    fails(wick, "checksum")
    web.lose(bellows)
    fails(bellows, "404")
    web.redirect(LAMP, LAMP)
    fails(LAMP, "redirects")
    present.remove("fleet-lamp-1.0-1.noarch")
    desk.sound(*present)


@pytest.fixture(scope="module")
def keys() -> Iterator[tuple[Key, Key]]:
    with Key() as one, Key() as other:
        yield one, other


def test_packages_without_a_good_signature(
    desk: Desk, fleet: Estate, keys: tuple[Key, Key], tmp_path: Path
) -> None:
    ours, foreign = keys
    location = ours.public.as_uri()
    plain = fleet.repos_dir / path_of(fleet, "fleet-oil")[1:]
    by_us, by_others = (key.sign(plain, Path(mkdtemp(dir=tmp_path))) for key in keys)

    def offer(rpm: Path) -> None:
        desk.site.repository("harbour", [rpm], extra={"gpgcheck": "1", "gpgkey": location})
        desk.expire_metadata()
        desk.refresh()
        desk.untold()
        desk.mark("fleet-oil")

    def refused(cause: str, key: str, *found: str) -> None:
        assert_told(
            desk.told(),
            re.compile(f"Package fleet-oil-1.0-1.noarch: .*{cause}"),
            re.compile(f"    key: .*{key}"),
            f"    gpgkey of repository harbour: {location}",
            *(f"    {location}: {line}" for line in found),
            "Nothing was installed.",
            "Error applying changes",
        )
        desk.sound(*BEFORE)

    desk.ready()
    offer(plain)
    desk.apply()
    refused("is not signed", "not signed")
    offer(by_us)
    desk.apply()
    desk.program.press("Cancel", desk.program.window("Import Key"))
    refused("not installed", ours.id.lower(), f"the key {ours.fingerprint} was not agreed to")
    desk.site.rpm("--import", ours.public)
    offer(by_others)
    desk.apply()
    refused("not installed", foreign.id.lower(), f"the key {ours.fingerprint} is not the one")
    offer(by_us)
    apply_well(desk)
    desk.sound("fleet-oil-1.0-1.noarch", *BEFORE)


def test_a_package_that_was_damaged_before_it_was_announced(desk: Desk, fleet: Estate, tmp_path: Path) -> None:
    """Its checksum is right; rpm alone sees that the content isn't what was packed."""
    good = fleet.repos_dir / path_of(fleet, "fleet-oil")[1:]
    bad = tmp_path / good.name
    content = bytearray(good.read_bytes())
    content[-20] ^= 0xFF
    bad.write_bytes(content)
    desk.site.repository("harbour", [bad])
    desk.mark("fleet-oil")
    desk.apply()
    assert_told(desk.told(), re.compile("fleet-oil-1.0-1.noarch"), "Error applying changes")
    desk.sound(*BEFORE)
    # Where signatures are asked for, that is seen before rpm is.
    file = desk.site.repository("harbour", [bad], extra={"gpgcheck": "1"}) / bad.name
    # dnf 5 copies it into its cache first.
    cache = desk.site.root / "var/cache/yum"
    place = by_library(str(file), rf"{cache}/harbour-\w+/packages/{file.name}")
    desk.expire_metadata()
    desk.refresh()
    desk.untold()
    desk.mark("fleet-oil")
    desk.apply()
    assert_told(
        desk.told(),
        re.compile(f"Package fleet-oil-1.0-1.noarch is damaged: {place}"),
        re.compile("digest: BAD"),
        "Nothing was installed.",
        "Error applying changes",
    )
    desk.sound(*BEFORE)
    desk.site.repository("harbour", [good])
    desk.expire_metadata()
    desk.refresh()
    desk.untold()
    desk.mark("fleet-oil")
    apply_well(desk)
    desk.sound("fleet-oil-1.0-1.noarch", *BEFORE)


def begin_download(desk: Desk, web: Web) -> None:
    """Applies the lamp, of which the beginning comes and no more."""
    desk.mark("fleet-lamp")
    web.stall(1000, LAMP)
    desk.apply()
    wait_for(lambda: LAMP in web.requests(), "the download")


def test_the_process_that_downloads_is_killed(desk: Desk, web: Web) -> None:
    begin_download(desk, web)
    worker = int((desk.site.root / "var/lib/dnf/rpmdb_lock.pid").read_text())
    assert worker != desk.program.process.pid
    os.kill(worker, signal.SIGKILL)
    assert_told(
        desk.told(),
        "The process that applies the changes has died (signal 9, Killed).",
        "Nothing was changed.",
        "Error applying changes",
    )
    desk.sound(*BEFORE)
    web.find_again()
    apply_well(desk)
    desk.sound(*AFTER)


def test_the_program_is_killed_while_it_downloads(desk: Desk, web: Web) -> None:
    # Metadata.
    web.hold("-primary")
    desk.open()
    wait_for(lambda: any("-primary" in path for path in web.requests()), "the metadata to be asked for")
    desk.program.process.kill()
    desk.program_ends()
    web.let_go()
    desk.open()
    assert desk.untold().names() == ["fleet-lamp"]

    # A package.
    begin_download(desk, web)
    desk.program.process.kill()
    desk.program_ends()
    desk.sound(*BEFORE)
    web.find_again()
    desk.open()
    desk.untold()
    desk.mark("fleet-lamp")
    apply_well(desk)
    desk.sound(*AFTER)


def test_a_cache_without_room(desk: Desk, web: Web, disk: Callable[[Path, int], Disk]) -> None:
    cache = disk(desk.site.root / "var/cache", 20 << 10)
    directory = "/var/cache/yum"
    desk.mark("fleet-lamp")
    cache.fill(spare=4)
    desk.apply()
    cause = re.compile(rf"fleet-lamp-1.1-1.noarch: .*\nOnly \d+ KiB are free in {directory}/harbour-\w+/packages\.")
    assert_told(desk.told(), "Unable to download packages:", cause, "Error applying changes")
    desk.sound(*BEFORE)
    cache.make_room()
    apply_well(desk)
    desk.sound(*AFTER)

    desk.forget_metadata()
    cache.fill(spare=4)
    desk.refresh()
    assert_told(
        desk.told(),
        f"Unable to read repository harbour ({web.url}/harbour):",
        re.compile(rf"\nOnly \d+ KiB are free in {directory}\."),
        "Unable to initialize",
    )
    cache.make_room()
    desk.refresh()
    assert "fleet-lamp" in desk.untold().names()
    desk.sound(*AFTER)


@pytest.mark.slow
def test_a_package_of_which_only_the_beginning_comes(desk: Desk, web: Web) -> None:
    begin_download(desk, web)
    cause = re.compile(f"fleet-lamp-1.1-1.noarch: .*[Tt]imeout.*{web.url}{LAMP}")
    assert_told(desk.told(600), "Unable to download packages:", cause, "Error applying changes")
    desk.sound(*BEFORE)
    web.find_again()
    apply_well(desk)
    desk.sound(*AFTER)


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
