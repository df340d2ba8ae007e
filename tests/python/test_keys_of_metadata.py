# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys that sign the metadata of repositories (`repo_gpgcheck`): nothing is trusted without a word."""

from __future__ import annotations

import shutil
from pathlib import Path
from typing import Any, Iterator, List, Optional

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from keys import UID, Key
from program import Program
from rpmestate import Estate
from web import Web, metalink


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


@pytest.fixture(scope="module")
def other() -> Iterator[Key]:
    with Key() as key:
        yield key


@pytest.fixture
def sealed(estate: Estate, rpms: Catalogue, key: Key) -> Path:
    """Repository base, whose metadata is signed, beside repository more, whose isn't."""
    estate.repository("more", rpms.some("lib-1.0"))
    return seal(estate, rpms, key)


def seal(estate: Estate, rpms: Catalogue, key: Key, **options: Optional[str]) -> Path:
    """Repository base with metadata that the key has signed; its directory."""
    extra = {"repo_gpgcheck": "1", "gpgkey": key.public.as_uri(), **options}
    directory = estate.repository("base", rpms.some("lone-1.0"), extra=extra)
    key.sign_metadata(directory)
    return directory


def forget(estate: Estate) -> None:
    """The metadata of base has to be fetched anew; what is trusted stays."""
    (cached,) = (estate.root / "var/cache/yum").glob("base-*/repodata")
    shutil.rmtree(cached)


def agree(host: FakeHost) -> None:
    host.key_answer = lambda *question: 1


def questions(host: FakeHost) -> List[Any]:
    return [call[1:] for call in host.named("confirmKey")]


def left_out(program: Program, *words: str) -> str:
    with pytest.raises(program.errors.RepoError) as caught:
        program.collect()
    text = str(caught.value)
    for word in ("Unable to read repository base", *words):
        assert word in text, text
    return text


def test_key_is_asked_about_once_and_for_all(
    estate: Estate, program: Program, host: FakeHost, key: Key, sealed: Path
) -> None:
    agree(host)
    found = program.collect()
    assert found.merged() == {"lone": "Available", "lib": "Available"}
    ((location, repo, packages, user, fingerprint, key_id, _created, expires, _verified),) = questions(host)
    assert (location, repo, packages, user) == (key.public.as_uri(), "base", "", UID)
    assert (fingerprint, key_id, expires) == (key.fingerprint, key.id, 0)
    assert f"Imported the key {key.fingerprint}" in host.text("log")
    # Neither the apply nor a collection that fetches the metadata again asks once more.
    found.yumio.apply([found.offered("lone")], [], [])
    assert estate.installed() == {"lone-1.0-1.noarch"}
    forget(estate)
    program.collect()
    assert len(questions(host)) == 1


def test_refused_key_leaves_the_repository_unread(
    estate: Estate, program: Program, host: FakeHost, key: Key, sealed: Path
) -> None:
    for _again in range(2):
        host.reset()
        refusal = f"    {key.public.as_uri()}: the key {key.fingerprint} was not agreed to"
        left_out(program, "GPG signature verification error", "No key of this signature is trusted:", refusal)
        assert len(questions(host)) == 1


def test_program_that_cannot_ask_trusts_nothing(
    estate: Estate, program: Program, host: FakeHost, sealed: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.delattr(FakeHost, "confirmKey")
    left_out(program, "No key of this signature is trusted:")


def test_repository_that_may_be_skipped_is_left_out_and_an_apply_asks_no_more(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key
) -> None:
    seal(estate, rpms, key, skip_if_unavailable="1")
    estate.repository("more", rpms.some("lib-1.0"))
    found = program.collect()
    assert found.merged() == {"lib": "Available"}
    assert len(questions(host)) == 1
    agree(host)
    found.yumio.apply([found.offered("lib")], [], [])
    assert estate.installed() == {"lib-1.0-1.noarch"}
    assert len(questions(host)) == 1


def test_address_is_shown_before_a_server_is_asked(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, web: Web
) -> None:
    web.page("/keys/one", key.public.read_bytes())
    address = f"{web.url}/keys/one"
    seal(estate, rpms, key, gpgkey=address, baseurl=f"{web.url}/base")
    left_out(program, f"{address}: it was not agreed to fetch the key")
    assert questions(host) == [(address, "base", "", "", "", "", 0, 0, True)]
    assert "/keys/one" not in web.requests()
    host.reset()
    agree(host)
    program.collect()
    assert [question[4] for question in questions(host)] == ["", key.fingerprint]


def test_one_key_of_several_is_asked_about(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, other: Key, tmp_path: Path
) -> None:
    file = tmp_path / "both"
    file.write_bytes(other.public.read_bytes() + key.public.read_bytes())
    place = seal(estate, rpms, key, gpgkey=file.as_uri())
    agree(host)
    program.collect()
    assert [question[4] for question in questions(host)] == [key.fingerprint]
    # The other one was not trusted along with it.
    other.sign_metadata(place)
    host.reset()
    forget(estate)
    left_out(program, f"the key {other.fingerprint} was not agreed to")


@pytest.mark.parametrize("kind", ["mirrorlist", "metalink"])
def test_mirrors_know_where_the_signature_is(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    other: Key,
    web: Web,
    tmp_path: Path,
    kind: str,
) -> None:
    file = tmp_path / "both"
    file.write_bytes(other.public.read_bytes() + key.public.read_bytes())
    place = seal(estate, rpms, key, baseurl=None, gpgkey=file.as_uri(), **{kind: f"{web.url}/mirrors"})
    base = f"{web.url}/base"
    web.page("/mirrors", metalink(place, base) if kind == "metalink" else f"# Mirrors\n{base}\n".encode())
    agree(host)
    assert program.collect().merged() == {"lone": "Available"}
    assert [question[4] for question in questions(host)] == [key.fingerprint]
    # What is wrong though the key is known is no matter of keys.
    host.reset()
    forget(estate)
    repomd = place / "repodata/repomd.xml"
    repomd.write_bytes(repomd.read_bytes() + b"\n")
    web.page("/mirrors", metalink(place, base) if kind == "metalink" else f"{base}\n".encode())
    left_out(program, "GPG signature verification error")
    assert not questions(host)


def test_server_that_is_down_hides_no_signature(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, web: Web
) -> None:
    seal(estate, rpms, key, baseurl=f"http://127.0.0.1:1/base {web.url}/base")
    agree(host)
    assert program.collect().merged() == {"lone": "Available"}
    assert [question[4] for question in questions(host)] == [key.fingerprint]


def test_key_that_has_not_signed_is_not_asked_about(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, other: Key
) -> None:
    seal(estate, rpms, key, gpgkey=other.public.as_uri())
    agree(host)
    left_out(program, f"the key {other.fingerprint} is not the one")
    assert not questions(host)


def test_expired_key_is_told(estate: Estate, rpms: Catalogue, program: Program, host: FakeHost) -> None:
    agree(host)
    with Key("2d", at="20240301T120000") as expired:
        seal(estate, rpms, expired)
        left_out(program, f"the key {expired.fingerprint} has expired (03/03/24)")
    assert not questions(host)


def test_metadata_that_was_changed_behind_its_signature_is_no_matter_of_keys(
    estate: Estate, program: Program, host: FakeHost, sealed: Path
) -> None:
    agree(host)
    program.collect()
    host.reset()
    agree(host)
    forget(estate)
    repomd = sealed / "repodata/repomd.xml"
    repomd.write_bytes(repomd.read_bytes() + b"\n")
    left_out(program, "GPG signature verification error")
    assert not questions(host)


@pytest.mark.parametrize("content", [None, b"", b"no signature", b"\x88\x05cut"])
def test_metadata_without_a_signature_is_no_matter_of_keys(
    estate: Estate, program: Program, host: FakeHost, sealed: Path, content: Optional[bytes]
) -> None:
    agree(host)
    signature = sealed / "repodata/repomd.xml.asc"
    signature.unlink() if content is None else signature.write_bytes(content)
    left_out(program)
    assert not questions(host)
