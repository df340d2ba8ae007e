# SPDX-License-Identifier: GPL-2.0-or-later
"""Repositories behind a buffet address: fetched by query, cached as others are, the password never told."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Iterator

import pytest
from buffet import Buffet
from catalogue import Catalogue
from fake_host import FakeHost
from program import Program
from rpmestate import Estate

NAME, PASSWORD = "a user", "p&w %x+#/?"
CODED = "login=a%20user&key=p%26w%20%25x%2b%23%2f%3f"


@pytest.fixture
def buffet(tmp_path: Path) -> Iterator[Buffet]:
    with Buffet(tmp_path / "estate" / "repos", NAME, PASSWORD) as buffet:
        yield buffet


@pytest.fixture
def guarded(estate: Estate, rpms: Catalogue, buffet: Buffet) -> Estate:
    """base is given to whoever knows name and password."""
    estate.repository("base", rpms.some("lone-1.0", "battery-1.0"), baseurl=address(buffet))
    return estate


def address(buffet: Buffet, coded: str = CODED) -> str:
    return f"{buffet.url}/buffet?{coded}&path=/base"


def told(host: FakeHost) -> str:
    return "\n".join(str(call) for call in host.calls)


def files_with(secret: str, root: Path) -> set[str]:
    return {
        path.name for path in root.rglob("*") if path.is_file() and secret.encode() in path.read_bytes()
    }


def test_packages_are_found_and_installed(guarded: Estate, program: Program, host: FakeHost) -> None:
    found = program.collect()
    assert found.merged() == {"lone": "Available", "battery": "Available"}
    found.yumio.apply([found.offered("lone")], [], [])
    assert guarded.installed() == {"lone-1.0-1.noarch"}


def test_every_request_ends_with_the_path(guarded: Estate, program: Program, buffet: Buffet) -> None:
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    paths = [request.split("&path=")[1] for request in buffet.requests()]
    assert all(request.startswith(f"/buffet?{CODED}&path=/base/") for request in buffet.requests())
    assert paths[0] == "/base/repodata/repomd.xml" and paths[-1] == "/base/lone-1.0-1.noarch.rpm"


def test_name_of_a_file_is_coded_as_a_part_of_a_query(
    estate: Estate, rpms: Catalogue, buffet: Buffet, program: Program, tmp_path: Path
) -> None:
    odd = tmp_path / "lone+100%&-1.0-1.noarch.rpm"
    odd.write_bytes(rpms["lone-1.0"].read_bytes())
    estate.repository("base", [odd], baseurl=address(buffet))
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_a_second_reading_asks_for_nothing(guarded: Estate, program: Program, buffet: Buffet) -> None:
    program.collect()
    buffet.forget_requests()
    assert len(program.collect().available) == 2
    assert buffet.requests() == []


def make_old(estate: Estate) -> None:
    for path in (estate.root / "var/cache/yum").glob("base-*/repodata/*"):
        os.utime(path, (0, 0))


def test_old_metadata_that_is_unchanged_costs_one_request(
    guarded: Estate, program: Program, buffet: Buffet
) -> None:
    program.collect()
    make_old(guarded)
    for requests in (1, 0):
        buffet.forget_requests()
        assert len(program.collect().available) == 2
        assert len(buffet.requests()) == requests


def test_old_metadata_is_replaced_by_new(
    guarded: Estate, rpms: Catalogue, program: Program, buffet: Buffet
) -> None:
    program.collect()
    guarded.repository("base", rpms.some("lib-1.0"), baseurl=address(buffet))
    make_old(guarded)
    assert program.collect().merged() == {"lib": "Available"}


def test_changelogs_are_fetched_when_asked_for(guarded: Estate, program: Program, buffet: Buffet) -> None:
    yumio = program.collect().yumio
    assert not any("other" in request for request in buffet.requests())
    assert yumio.collectOtherData()
    assert any("other" in request for request in buffet.requests())


def test_letters_beyond_ascii_go_as_they_stand_in_the_file(
    estate: Estate, rpms: Catalogue, program: Program, tmp_path: Path
) -> None:
    with Buffet(estate.repos_dir, "J\u00f6rg", "\u00fcber") as buffet:
        url = address(buffet, "login=J\u00f6rg&key=%c3%bcber")
        estate.repository("base", rpms.some("lone-1.0"), baseurl=url)
        assert program.collect().merged() == {"lone": "Available"}


def test_the_next_address_is_tried(estate: Estate, rpms: Catalogue, program: Program, buffet: Buffet) -> None:
    both = f"http://127.0.0.1:1/buffet?{CODED}&path=/base\n    {address(buffet)}"
    estate.repository("base", rpms.some("lone-1.0"), baseurl=both)
    found = program.collect()
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_a_refusal_is_told_without_the_password(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, buffet: Buffet
) -> None:
    secret = "hush%26hush"
    url = address(buffet, f"login=a%20user&key={secret}")
    estate.repository("base", rpms.some("lone-1.0"), baseurl=url)
    with pytest.raises(program.errors.RepoError) as caught:
        program.collect()
    text = str(caught.value)
    assert "repository base" in text and "403" in text
    assert url.replace(secret, "***") in text
    assert secret not in text + caught.value.value + told(host)
    assert files_with(secret, estate.root) == {"base.repo"}


def test_a_refused_package_is_told_without_the_password(
    guarded: Estate, program: Program, host: FakeHost, buffet: Buffet
) -> None:
    found = program.collect()
    buffet.refuse_everybody()
    with pytest.raises(program.errors.YumBaseError) as caught:
        found.yumio.apply([found.offered("lone")], [], [])
    text = str(caught.value)
    assert "lone-1.0-1.noarch" in text and "403" in text
    assert "p%26w" not in text + told(host)
    assert files_with("p%26w", guarded.root) == {"base.repo"}
    assert guarded.installed() == set()


def test_a_damaged_file_is_refused(guarded: Estate, program: Program) -> None:
    (primary,) = (guarded.repos_dir / "base/repodata").glob("*-primary.xml*")
    primary.write_bytes(b"x" * primary.stat().st_size)
    with pytest.raises(program.errors.RepoError, match="primary.*checksum"):
        program.collect()


@pytest.mark.parametrize("kind", ["shake_128", "none"])
def test_a_checksum_that_cannot_be_made_is_refused(guarded: Estate, program: Program, kind: str) -> None:
    repomd = guarded.repos_dir / "base/repodata/repomd.xml"
    repomd.write_text(repomd.read_text().replace('type="sha256"', f'type="{kind}"'))
    with pytest.raises(program.errors.RepoError, match=f"the checksum type {kind} is not known"):
        program.collect()


def test_a_file_outside_of_the_metadata_is_refused(guarded: Estate, program: Program) -> None:
    repomd = guarded.repos_dir / "base/repodata/repomd.xml"
    repomd.write_text(repomd.read_text().replace('href="repodata/', 'href="repodata/../../../'))
    with pytest.raises(program.errors.RepoError, match="form that is not understood"):
        program.collect()


def test_signed_metadata_is_not_taken_unchecked(
    estate: Estate, rpms: Catalogue, program: Program, buffet: Buffet
) -> None:
    estate.repository("base", rpms.some("lone-1.0"), baseurl=address(buffet), extra={"repo_gpgcheck": "1"})
    with pytest.raises(program.errors.RepoError, match="repo_gpgcheck"):
        program.collect()


def test_a_repository_that_may_be_skipped_is_skipped(
    guarded: Estate, rpms: Catalogue, program: Program, host: FakeHost, buffet: Buffet
) -> None:
    wrong = address(buffet, "login=me&key=hush").replace("/base", "/more")
    guarded.repository("more", rpms.some("lib-1.0"), baseurl=wrong, extra={"skip_if_unavailable": "1"})
    assert program.collect().merged() == {"lone": "Available", "battery": "Available"}
    assert "more" in host.text("warninglog") and "hush" not in told(host)


def test_progress_is_told_as_for_others(guarded: Estate, program: Program, host: FakeHost) -> None:
    program.start().setupRepos()
    starts = [call[1].rsplit("/", 2)[1:] for call in host.named("collectGrabMeterStart")]
    assert starts == [["base", "repomd.xml"], ["base", "primary"]]
    assert host.named("collectGrabMeterUpdate")[-1][1] == host.named("collectGrabMeterStart")[-1][2]


@pytest.mark.parametrize(
    ("text", "shown"),
    [
        ("http://h/buffet?u=me&p=pw&path=/os", "http://h/buffet?u=me&p=***&path=/os"),
        ("http://h/buffet/repodata/x?u=me&p=pw&path=/os", "http://h/buffet/repodata/x?u=me&p=***&path=/os"),
        ("a /buffet?u=&p=1&path= b /buffet?=&=2&path=", "a /buffet?u=&p=***&path= b /buffet?=&=***&path="),
        ("/buffet?u=me&p=a=b&path=/os", "/buffet?u=me&p=***&path=/os"),
        ("/buffet?u=me&p=&path=/os", "/buffet?u=me&p=&path=/os"),
        ("http://h/os?u=me&p=pw", "http://h/os?u=me&p=pw"),
        ("see http://me:pw@h/os and ftp://you:p%40w@h:21/", "see http://me:***@h/os and ftp://you:***@h:21/"),
        ("http://h:80/a@b http://me@h/ mail me:you@h", "http://h:80/a@b http://me@h/ mail me:you@h"),
    ],
)
def test_passwords_are_masked(program: Program, text: str, shown: str) -> None:
    from vemyum.credentials import masked

    assert masked(text) == shown


def test_printed_texts_are_masked(program: Program, host: FakeHost) -> None:
    from vemyum.host import stdout_write
    from vemyum.streams import HostStream

    HostStream(stdout_write, "<stdout>", 1).write("see http://h/buffet?u=me&p=hush&path=/os")
    assert "hush" not in told(host) and "p=***" in host.text("stdoutWrite")
