# SPDX-License-Identifier: GPL-2.0-or-later
"""Reading repositories: the acts that the engine shows, and failures that name their cause."""

from __future__ import annotations

import hashlib
import os
import re
import types
from typing import List, Optional, Tuple

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from libraries import by_library
from program import Program
from rpmestate import Estate
from web import Web, metalink


def acts(host: FakeHost) -> List[Tuple[str, str]]:
    """The acts as the engine tells them apart: kind and repository, repeats left out."""
    found: List[Tuple[str, str]] = []
    for call in host.named("collectGrabMeterStart", "collectProgress"):
        act = _meter_act(call[1]) if call[0] == "collectGrabMeterStart" else _reading_act(call[3])
        if not found or found[-1] != act:
            found.append(act)
    return found


def _meter_act(path: str) -> Tuple[str, str]:
    directory, file = path.rsplit("/", 2)[1:]
    kind = "mirrors" if file[:8] == "metalink" else "repomd" if file[:6] == "repomd" else "download"
    return (kind, directory)


def _reading_act(name: Optional[str]) -> Tuple[str, str]:
    return ("convert", "") if name == "MD Read" else ("read", name or "")


def sizes(host: FakeHost, act: str) -> List[int]:
    """What an act was told to be out of, as far as that was known."""
    starts = [call[1:] for call in host.named("collectGrabMeterStart")]
    return [size for path, size in starts if path.endswith(f"/{act}") and size is not None]


@pytest.fixture
def served(estate: Estate, rpms: Catalogue, web: Web) -> Estate:
    """base is served over HTTP."""
    estate.repository("base", rpms.some("lamp-1.1", "battery-1.0"), baseurl=f"{web.url}/base")
    return estate


# Acts -------------------------------------------------------------------------------------------------


def test_acts_of_a_repository_on_this_machine(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    lamp[1].start().setupRepos()
    assert acts(host) == [("repomd", "base"), ("download", "base"), ("convert", ""), ("read", "base")]


def test_acts_of_a_repository_behind_http(served: Estate, program: Program, host: FakeHost) -> None:
    program.start().setupRepos()
    assert acts(host) == [("repomd", "base"), ("download", "base"), ("convert", ""), ("read", "base")]


def test_acts_of_a_mirror_list(
    estate: Estate, rpms: Catalogue, web: Web, program: Program, host: FakeHost
) -> None:
    address = {"baseurl": None, "mirrorlist": f"{web.url}/mirrors"}
    directory = estate.repository("base", rpms.some("battery-1.0"), extra=address)
    web.page("/mirrors", f"{web.url}/base/\n".encode())
    program.start().setupRepos()
    kinds = [("mirrors", "base"), ("repomd", "base"), ("download", "base"), ("convert", ""), ("read", "base")]
    assert acts(host) == kinds
    assert sizes(host, "repomd.xml") == [(directory / "repodata/repomd.xml").stat().st_size]


def test_acts_of_a_metalink(
    estate: Estate, rpms: Catalogue, web: Web, program: Program, host: FakeHost
) -> None:
    directory = estate.repository(
        "base", rpms.some("battery-1.0"), extra={"baseurl": None, "metalink": f"{web.url}/link"}
    )
    web.page("/link", metalink(directory, f"{web.url}/base"))
    program.start().setupRepos()
    kinds = [("mirrors", "base"), ("repomd", "base"), ("download", "base"), ("convert", ""), ("read", "base")]
    assert acts(host) == kinds
    assert sizes(host, "repomd.xml") == [(directory / "repodata/repomd.xml").stat().st_size]


def test_mirror_that_fails_stands_in_the_log_though_another_serves(
    estate: Estate, rpms: Catalogue, web: Web, program: Program, host: FakeHost
) -> None:
    address = {"baseurl": None, "mirrorlist": f"{web.url}/mirrors"}
    estate.repository("base", rpms.some("battery-1.0"), extra=address)
    web.page("/mirrors", f"{web.url}/gone/\n{web.url}/base/\n".encode())
    program.start().setupRepos()
    assert f"{web.url}/gone/repodata/repomd.xml" in host.text("log")


def test_second_reading_downloads_and_converts_nothing(
    served: Estate, program: Program, host: FakeHost, web: Web
) -> None:
    program.collect()
    host.calls.clear()
    web.forget_requests()
    program.collect()
    assert acts(host) == [("read", "base")]
    assert web.requests() == []


def test_each_repository_has_a_block_of_acts_that_ends_with_reading(
    served: Estate, rpms: Catalogue, program: Program, host: FakeHost
) -> None:
    served.repository("extras", rpms.some("lib-1.0"))
    program.start().setupRepos()
    one, two = acts(host)[:4], acts(host)[4:]
    assert {one[-1], two[-1]} == {("read", "base"), ("read", "extras")}
    assert [kind for kind, _ in one] == [kind for kind, _ in two] == ["repomd", "download", "convert", "read"]


def test_download_meter_counts_the_announced_bytes(served: Estate, program: Program, host: FakeHost) -> None:
    program.start().setupRepos()
    starts = [call for call in host.named("collectGrabMeterStart") if call[1].endswith("/primary")]
    (path, size) = starts[-1][1:]
    files = list((served.repos_dir / "base/repodata").glob("*-primary.xml*"))
    files += list((served.repos_dir / "base/repodata").glob("*-filelists.xml*"))
    assert size == sum(file.stat().st_size for file in files)
    assert host.named("collectGrabMeterUpdate")[-1][1] == size
    assert host.named("collectGrabMeterEnd")


# Failures ---------------------------------------------------------------------------------------------


def unreadable(program: Program, *words: str) -> str:
    yumio = program.start()
    with pytest.raises(program.errors.RepoError) as caught:
        yumio.setupRepos()
    for word in words:
        assert word in str(caught.value), caught.value
    return str(caught.value)


def test_server_that_refuses_is_named_with_the_cause(estate: Estate, program: Program) -> None:
    estate.repository("base", [], baseurl="http://127.0.0.1:1/base")
    text = unreadable(program, "base", "http://127.0.0.1:1/base", "connect to server")
    assert text.count("http://127.0.0.1:1/base/repodata") == 1, text


def test_missing_directory_is_named_with_the_cause(estate: Estate, program: Program) -> None:
    estate.repository("base", [], baseurl="file:///nowhere/at/all")
    unreadable(program, "repository base", "file:///nowhere/at/all", "read a file:// file")


def test_missing_repomd_is_named_with_the_status(served: Estate, program: Program, web: Web) -> None:
    web.lose("/base/repodata/repomd.xml")
    unreadable(program, "repository base", f"{web.url}/base", "Status code: 404")


def test_missing_mirror_list_is_named(estate: Estate, rpms: Catalogue, web: Web, program: Program) -> None:
    address = {"baseurl": None, "mirrorlist": f"{web.url}/mirrors"}
    estate.repository("base", rpms.some("lib-1.0"), extra=address)
    web.lose("/mirrors")
    unreadable(program, "repository base", f"{web.url}/mirrors", "404")


def test_repository_without_address_is_named(estate: Estate, rpms: Catalogue, program: Program) -> None:
    estate.repository("base", rpms.some("lib-1.0"), extra={"baseurl": None})
    unreadable(program, "repository base", "no address")


def test_corrupt_repomd_is_named(served: Estate, program: Program, web: Web) -> None:
    web.page("/base/repodata/repomd.xml", b"<html>no")
    unreadable(program, "repository base", f"{web.url}/base", by_library("repomd.xml parser error", "line 1\n"))


@pytest.mark.parametrize("query", ["", "?key=a&path=/base"])
def test_web_page_in_place_of_metadata_is_told_with_its_first_words(
    served: Estate, program: Program, web: Web, query: str
) -> None:
    page = b"<!DOCTYPE html>\n<html><title>Harbour Wifi</title><style>p {}</style><p>Please log in</p></html>"
    address = f"{web.url}/{query or 'base'}"
    web.page(f"/{query or 'base'}/repodata/repomd.xml", page)
    served.write_repo_file("base", baseurl=address)
    beginning = 'gives a web page in place of the metadata. It begins: "Harbour Wifi Please log in"'
    unreadable(program, f"{address}/repodata/repomd.xml {beginning}")


@pytest.mark.parametrize(
    ("page", "words"),
    [
        (b"\xef\xbb\xbf<html>mark", "mark"),
        (b"<!-- a --> <!-- b -->\n<script>x()</script><p>behind", "behind"),
        (b"<html><title>one</title>" + b"word " * 100, "one " + "word " * 11),
    ],
)
def test_web_pages_of_every_kind_are_told(page: bytes, words: str) -> None:
    from vemyum import webpage

    assert webpage.told("there", page) == (
        f'there gives a web page in place of the metadata. It begins: "{words.strip()}"'
    )


def test_page_that_is_too_crooked_for_the_parser_is_told_by_its_beginning() -> None:
    from vemyum import webpage

    # Newer parsers read on behind it.
    told = webpage.told("there", b"<html>crooked<![bogus[x]]> page")
    assert told in [
        f'there gives a web page in place of the metadata. It begins: "{words}"' for words in ("crooked", "crooked page")
    ]


def test_metadata_behind_many_comments_is_seen_to_be_no_page() -> None:
    from vemyum import webpage

    assert webpage.told("there", b"<?xml version='1.0'?>" + b"<!--a-->" * 5000 + b"<repomd>") is None


@pytest.mark.parametrize("kind", ["metalink", "mirrorlist"])
@pytest.mark.parametrize("end", [b"", b"</body></html>\n"])
def test_web_page_in_place_of_a_list_of_mirrors_is_told(
    served: Estate, program: Program, web: Web, kind: str, end: bytes
) -> None:
    web.page("/link", b"<html><body>We have moved" + end)
    served.write_repo_file("base", extra={"baseurl": None, kind: f"{web.url}/link"})
    unreadable(program, f'{web.url}/link gives a web page in place of the metadata. It begins: "We have moved"')


@pytest.mark.parametrize("answer", [bytes(100), b"<?xml version='1.0'?><repomd", b"", b"not a page <html>"])
def test_other_nonsense_is_called_no_web_page(served: Estate, program: Program, web: Web, answer: bytes) -> None:
    web.page("/base/repodata/repomd.xml", answer)
    assert "web page" not in unreadable(program, "repository base", f"{web.url}/base")


def test_corrupt_package_list_is_named(served: Estate, program: Program, web: Web) -> None:
    (primary,) = (served.repos_dir / "base/repodata").glob("*-primary.xml*")
    web.page(f"/base/repodata/{primary.name}", b"x" * primary.stat().st_size)
    unreadable(program, "repository base", f"{web.url}/base", "hecksum")


def test_malformed_package_list_is_named(served: Estate, rpms: Catalogue, program: Program) -> None:
    """The checksums are right, the XML is not."""
    repodata = served.repos_dir / "base/repodata"
    repomd = repodata / "repomd.xml"
    data = b"<metadata><package"
    (repodata / "primary.xml").write_bytes(data)
    text = repomd.read_text()
    entry = re.search(r'<data type="primary">.*?</data>', text, re.DOTALL)
    assert entry is not None
    changed = re.sub(r"<size>\d+</size>", f"<size>{len(data)}</size>", entry.group(0))
    changed = re.sub(r"(<checksum[^>]*>)[^<]*", rf"\g<1>{hashlib.sha256(data).hexdigest()}", changed)
    changed = re.sub(r"<open-(size|checksum).*?</open-\1>", "", changed)
    changed = re.sub(r'href="[^"]*"', 'href="repodata/primary.xml"', changed)
    repomd.write_text(text.replace(entry.group(0), changed))
    unreadable(program, "repository base")


def test_cache_that_cannot_be_used_is_named(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    estate, program = lamp
    program.collect()
    program.clear()
    cache = estate.root / "var/cache/yum"
    cache.rename(cache.with_name("elsewhere"))
    cache.write_text("a file where the directory should be")
    unreadable(program, ": /var/cache/yum: ")


@pytest.mark.parametrize(("blocks", "told"), [(5, True), (1 << 20, False)])
def test_full_disk_is_told_beside_the_cause(
    served: Estate, program: Program, web: Web, monkeypatch: pytest.MonkeyPatch, blocks: int, told: bool
) -> None:
    web.page("/base/repodata/repomd.xml", b"<repomd><data")
    monkeypatch.setattr("os.statvfs", lambda _: types.SimpleNamespace(f_bavail=blocks, f_frsize=4096, f_flag=0))
    with pytest.raises(program.errors.RepoError) as caught:
        program.collect()
    assert ("Only 20 KiB are free in /var/cache/yum." in str(caught.value)) is told


def test_repository_that_may_be_skipped_is_skipped(
    lamp: Tuple[Estate, Program], rpms: Catalogue, host: FakeHost
) -> None:
    estate, program = lamp
    estate.repository("extras", [], baseurl="http://127.0.0.1:1/extras", extra={"skip_if_unavailable": "1"})
    assert program.collect().merged() == {"lamp": "OutOfDate"}
    assert "extras" in host.text("warninglog") and "127.0.0.1:1" in host.text("warninglog")
    assert ("read", "extras") in acts(host)


def test_collection_after_a_failed_one(served: Estate, program: Program, web: Web) -> None:
    web.lose("/base/repodata/repomd.xml")
    unreadable(program)
    web.find_again()
    assert program.collect().merged() == {"lamp": "Available", "battery": "Available"}


def test_error_lines_are_below_level_three_and_debug_lines_are_not(
    estate: Estate, program: Program, host: FakeHost
) -> None:
    import logging

    program.start()
    logger = logging.getLogger("dnf")
    logger.error("a fault")
    logger.warning("a warning")
    logger.debug("a detail")
    assert ("errorlog", 0, "a fault") in host.calls
    assert ("warninglog", 1, "a warning") in host.calls
    assert ("log", 4, "a detail") in host.calls


# Extra data -------------------------------------------------------------------------------------------


def test_extra_data_reports_reading(lamp: Tuple[Estate, Program], host: FakeHost) -> None:
    yumio = lamp[1].collect().yumio
    host.calls.clear()
    assert yumio.collectFileLists() is not None
    assert acts(host) == [("read", "base")]
    host.calls.clear()
    assert yumio.collectOtherData() is not None
    assert acts(host)[-1] == ("read", "base")


def test_changelogs_of_a_repository_that_is_gone(served: Estate, program: Program, web: Web) -> None:
    yumio = program.collect().yumio
    changelogs = [path.name for path in (served.repos_dir / "base/repodata").glob("*-other.xml*")]
    web.lose("/base/repodata/repomd.xml", *(f"/base/repodata/{name}" for name in changelogs))
    with pytest.raises(program.errors.YumBaseError, match="repository base"):
        yumio.collectOtherData()
    web.find_again()
    yumio.collectOtherData()


def test_extra_data_without_collection_is_an_error(lamp: Tuple[Estate, Program]) -> None:
    yumio = lamp[1].start()
    for load in (yumio.collectFileLists, yumio.collectOtherData, yumio.setupTs, yumio.collectUpdates):
        with pytest.raises(lamp[1].errors.YumBaseError):
            load()


def test_home_does_not_matter(lamp: Tuple[Estate, Program], monkeypatch: pytest.MonkeyPatch) -> None:
    estate, program = lamp
    monkeypatch.setenv("HOME", "/nonexistent")
    assert program.collect().merged() == {"lamp": "OutOfDate"}
    assert not os.path.exists(estate.root / "nonexistent")


@pytest.mark.parametrize("keep", [0, 10, 100, 500])
def test_damaged_fast_form_of_the_metadata_is_made_anew(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, keep: int
) -> None:
    """A machine that stopped in the middle of it, or a full disk, leaves such a file."""
    estate.repository("base", rpms.some("lone-1.0"))
    estate.repository("more", rpms.some("battery-1.0"))
    program.collect()
    fast = list((estate.root / "var/cache/yum").rglob("*.solv*"))
    assert len(fast) >= 2
    for file in fast:
        file.write_bytes(file.read_bytes()[:keep])
    host.reset()
    assert set(program.collect().merged()) == {"lone", "battery"}
    host.reset()
    program.collect()
    assert "damaged" not in host.text("warninglog")
