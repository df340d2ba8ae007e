# SPDX-License-Identifier: GPL-2.0-or-later
"""Signatures: what gpgcheck lets through and what it stops, with a key of our own."""

from __future__ import annotations

from pathlib import Path
from typing import Iterator

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from keys import Key
from libraries import by_library
from program import Program
from rpmestate import Estate

@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


def refused(program: Program, *words: str) -> None:
    found = program.collect()
    with pytest.raises(program.errors.YumBaseError) as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    for word in words:
        assert word in str(caught.value), caught.value


def test_unsigned_package_is_refused(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    options = {"gpgcheck": "1", "gpgkey": "file:///etc/keys/one"}
    estate.repository("base", rpms.some("lone-1.0"), extra=options)
    refused(program, "lone-1.0-1.noarch", "is not signed", "file:///etc/keys/one")
    assert estate.installed() == set()
    assert not host.named("tsInitCallback")


def test_package_of_an_unknown_key_is_refused_and_the_key_named(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    signed = key.sign(rpms["lone-1.0"], tmp_path)
    estate.repository(
        "base", [signed], extra={"gpgcheck": "1", "gpgkey": f"{key.public.as_uri()} http://127.0.0.1:1/key"}
    )
    words = ("lone-1.0-1.noarch", key.id.lower(), key.public.as_uri(), "http://127.0.0.1:1/key")
    refused(program, *words, "not installed")
    assert estate.installed() == set()
    assert "gpg-pubkey" not in estate.rpm("-qa")


def test_package_of_a_known_key_goes_in(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    signed = key.sign(rpms["lone-1.0"], tmp_path)
    estate.rpm("--import", key.public)
    estate.repository("base", [signed], extra={"gpgcheck": "1", "gpgkey": key.public.as_uri()})
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_key_is_no_package_where_the_last_one_has_gone(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key
) -> None:
    estate.rpm("--import", key.public)
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", rpms.some("battery-1.0"))
    found = program.collect()
    found.yumio.apply([], [], [found.there("lone")])
    assert program.collect().merged() == {"battery": "Available"}


def test_damaged_package_is_told_with_what_is_wrong(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    """The repository knows nothing of the damage: it was there when its metadata was made."""
    signed = key.sign(rpms["lone-1.0"], tmp_path)
    data = bytearray(signed.read_bytes())
    data[-20:] = bytes(20)
    signed.write_bytes(data)
    estate.rpm("--import", key.public)
    estate.repository("base", [signed], extra={"gpgcheck": "1", "gpgkey": key.public.as_uri()})
    # dnf 5 has checked its own copy.
    folder = by_library(f"{estate.repos_dir}/base", f"{estate.root}/var/cache/yum/base-")
    refused(program, f"Package lone-1.0-1.noarch is damaged: {folder}", f"/{signed.name}\n    ", "digest: BAD")
    assert estate.installed() == set()


def test_main_file_decides_where_the_repository_is_silent(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    estate.write_main_config(gpgcheck="1")
    estate.repository("base", rpms.some("lone-1.0"), extra={"gpgcheck": None})
    refused(program, "is not signed", "none")
    estate.write_main_config(gpgcheck="0")
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


@pytest.mark.parametrize("value", ["perhaps", "", "2", "-1", "yes please"])
@pytest.mark.parametrize("place", ["main", "base"])
def test_value_that_is_neither_yes_nor_no_counts_as_yes_and_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, place: str, value: str
) -> None:
    estate.write_main_config(gpgcheck=value if place == "main" else "0")
    estate.repository("base", rpms.some("lone-1.0"), extra={"gpgcheck": value if place == "base" else None})
    refused(program, "lone-1.0-1.noarch", "is not signed")
    assert estate.installed() == set()
    assert f"[{place}]: gpgcheck counts as switched on" in host.text("errorlog")


def test_main_file_that_vanished_stops_the_apply(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    """Nothing would ask for signatures any more."""
    main = estate.write_main_config(gpgcheck="1")
    estate.repository("base", rpms.some("lone-1.0"), extra={"gpgcheck": None})
    found = program.collect()
    main.unlink()
    with pytest.raises(program.errors.YumBaseError, match="/etc/yum.conf is no longer there"):
        found.yumio.apply([found.offered("lone")], [], [])
    assert not host.named("userconfirm")
    # Nor behind the refresh that this asks for.
    refused(program, "lone-1.0-1.noarch", "is not signed")
    assert estate.installed() == set()


def test_main_file_that_cannot_be_read_any_more_stops_the_apply(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    main = estate.write_main_config(gpgcheck="1")
    estate.repository("base", rpms.some("lone-1.0"), extra={"gpgcheck": None})
    found = program.collect()
    main.unlink()
    main.mkdir()
    with pytest.raises(program.errors.YumBaseError, match="/etc/yum.conf"):
        found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == set()
