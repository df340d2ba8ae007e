# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys of packages that the rpm database lacks: who is asked about which, and what comes of the answer."""

from __future__ import annotations

import os
import subprocess
from pathlib import Path
from typing import Any, Callable, Iterator, List

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from keys import UID, Key
from program import Program
from rpmestate import Estate
from web import Web


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


@pytest.fixture(scope="module")
def other() -> Iterator[Key]:
    with Key() as key:
        yield key


def agree(host: FakeHost) -> None:
    host.key_answer = lambda *question: 1


def questions(host: FakeHost) -> List[Any]:
    return [call[1:] for call in host.named("confirmKey")]


def keys_of(estate: Estate) -> List[str]:
    """The short ids of the keys in the rpm database, which newer releases list by fingerprint."""
    return sorted(line.split("-")[2][-8:] for line in estate.rpm("-qa").split() if line.startswith("gpg-pubkey"))


def repository(estate: Estate, rpms: List[Path], *keys: str, id: str = "base") -> None:
    estate.repository(id, rpms, extra={"gpgcheck": "1", "gpgkey": " ".join(keys)})


def apply(program: Program, *names: str) -> None:
    found = program.collect()
    found.yumio.apply([found.offered(name) for name in names or ("lone",)], [], [])


def refused(estate: Estate, program: Program, *words: str) -> str:
    """Nothing is installed and nothing imported; the text has these words."""
    with pytest.raises(program.errors.YumBaseError) as caught:
        apply(program)
    text = str(caught.value)
    for word in (*words, "lone-1.0-1.noarch", "Nothing was installed."):
        assert word in text, text
    assert estate.installed() == set()
    assert keys_of(estate) == []
    return text


def test_key_that_is_agreed_to_is_imported_and_the_package_goes_in(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    agree(host)
    apply(program)
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert keys_of(estate) == [key.id[-8:].lower()]
    ((location, repo, packages, user, fingerprint, key_id, created, expires, verified),) = questions(host)
    assert verified is True
    assert (location, repo, packages, user) == (key.public.as_uri(), "base", "lone-1.0-1.noarch", UID)
    assert (fingerprint, key_id, expires) == (key.fingerprint, key.id, 0)
    assert abs(created - key.public.stat().st_mtime) < 60
    assert f"Imported the key {key.fingerprint}" in host.text("log")


def test_key_that_is_there_is_not_asked_about(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    estate.rpm("--import", key.public)
    apply(program)
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert not questions(host)


def test_refusal_leaves_everything_as_it_was(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    refused(estate, program, f"the key {key.fingerprint} was not agreed to", "key: ", "is not installed")
    assert len(questions(host)) == 1


def test_program_that_cannot_ask_has_nothing_imported(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    tmp_path: Path,
    monkeypatch: pytest.MonkeyPatch,
) -> None:
    monkeypatch.delattr(FakeHost, "confirmKey")
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    refused(estate, program, "is not installed", key.public.as_uri())


def test_address_is_shown_before_a_server_is_asked(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path, web: Web
) -> None:
    web.page("/keys/one", key.public.read_bytes())
    address = f"{web.url}/keys/one"
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], address)
    asked_before: List[bool] = []

    def answer(*question: Any) -> int:
        asked_before.append("/keys/one" in web.requests())
        return 1

    host.key_answer = answer
    apply(program)
    assert asked_before == [False, True]
    fetch, trust = questions(host)
    assert fetch == (address, "base", "lone-1.0-1.noarch", "", "", "", 0, 0, True)
    assert trust[:5] == (address, "base", "lone-1.0-1.noarch", UID, key.fingerprint)
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_server_that_need_not_prove_its_name_is_told_as_such(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    estate.write_main_config(sslverify="0")
    agree(host)
    apply(program)
    assert [question[8] for question in questions(host)] == [False]


def test_nothing_is_fetched_where_the_address_is_refused(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path, web: Web
) -> None:
    web.page("/keys/one", key.public.read_bytes())
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], f"{web.url}/keys/one")
    refused(estate, program, f"{web.url}/keys/one: it was not agreed to fetch the key")
    assert "/keys/one" not in web.requests()


def test_server_is_left_alone_where_a_file_has_the_key(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path, web: Web
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], f"{web.url}/keys/one", key.public.as_uri())
    agree(host)
    apply(program)
    assert [question[0] for question in questions(host)] == [key.public.as_uri()]


def test_password_of_an_address_is_not_shown(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path, web: Web
) -> None:
    web.page("/keys/one", key.public.read_bytes())
    address = f"{web.url}/keys/one".replace("://", "://ada:secret@")
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], address)
    agree(host)
    apply(program)
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert "secret" not in str(host.calls)


@pytest.mark.parametrize("form", ["blocks", "one block", "binary"])
def test_one_key_of_several_is_asked_about_and_imported(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    other: Key,
    tmp_path: Path,
    form: str,
) -> None:
    from vemyum import openpgp

    both = other.public.read_bytes() + b"\r\n" + key.public.read_bytes()
    if form != "blocks":
        both = b"".join(one.data for one in openpgp.keys_in(both))
    if form == "one block":
        both = openpgp.armoured(both)
    file = tmp_path / "both"
    file.write_bytes(both)
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], file.as_uri())
    agree(host)
    apply(program)
    assert [question[4] for question in questions(host)] == [key.fingerprint]
    assert keys_of(estate) == [key.id[-8:].lower()]


def test_key_that_has_not_signed_is_not_asked_about(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, other: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], other.public.as_uri())
    agree(host)
    refused(estate, program, f"{other.public.as_uri()}: the key {other.fingerprint} is not the one")
    assert not questions(host)


def test_key_that_has_expired_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, tmp_path: Path
) -> None:
    agree(host)
    with Key("2d", at="20240301T120000") as expired:
        repository(estate, [expired.sign(rpms["lone-1.0"], tmp_path)], expired.public.as_uri())
        refused(estate, program, f"the key {expired.fingerprint} has expired (03/03/24)")
    assert not questions(host)


def test_key_that_has_been_revoked_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, tmp_path: Path
) -> None:
    agree(host)
    with Key() as revoked:
        repository(estate, [revoked.sign(rpms["lone-1.0"], tmp_path)], revoked.public.as_uri())
        revoked.revoke()
        refused(estate, program, f"the key {revoked.fingerprint} has been revoked")
    assert not questions(host)


@pytest.fixture
def choosy_rpm(tmp_path: Path, monkeypatch: pytest.MonkeyPatch) -> Callable[[str], None]:
    """An rpmkeys that runs these lines of shell in place of, or before, an import by the real one."""

    def begins(lines: str) -> None:
        folder = tmp_path / "choosy"
        folder.mkdir()
        script = folder / "rpmkeys"
        real = subprocess.run(["which", "rpmkeys"], capture_output=True, text=True, check=True).stdout.strip()
        script.write_text(f'#!/bin/sh\nreal={real}\ncase "$*" in *--import*)\n{lines}\n;; esac\nexec $real "$@"\n')
        script.chmod(0o755)
        monkeypatch.setenv("PATH", f"{folder}:{os.environ['PATH']}")

    return begins


def test_key_that_rpm_does_not_accept_is_told_before_any_question(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    tmp_path: Path,
    choosy_rpm: Callable[[str], None],
) -> None:
    choosy_rpm('echo "Policy rejects SHA1" >&2; exit 1')
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    agree(host)
    refused(estate, program, f"rpm does not accept the key {key.fingerprint}: Policy rejects SHA1")
    assert not questions(host)


def test_nobody_is_asked_where_rpm_does_not_tell_which_key_is_missing(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    tmp_path: Path,
    choosy_rpm: Callable[[str], None],
) -> None:
    choosy_rpm(';; *--checksig*) "$real" "$@" | sed "s/, key .*:/:/"; exit 0')
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    agree(host)
    assert "None" not in refused(estate, program, "is not installed")
    assert not questions(host)


def test_import_that_fails_is_told(
    estate: Estate,
    rpms: Catalogue,
    program: Program,
    host: FakeHost,
    key: Key,
    tmp_path: Path,
    choosy_rpm: Callable[[str], None],
) -> None:
    choosy_rpm('case "$*" in *--root*) echo "no room" >&2; exit 1;; esac')
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    agree(host)
    with pytest.raises(program.errors.YumBaseError) as caught:
        apply(program)
    expected = f"The key {key.fingerprint} could not be imported:\nno room\nNothing was installed."
    assert str(caught.value) == expected
    assert estate.installed() == set()


def test_two_packages_of_one_key_are_one_question(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    signed = [key.sign(rpms[name], tmp_path) for name in ("lone-1.0", "lib-1.0")]
    repository(estate, signed, key.public.as_uri())
    agree(host)
    apply(program, "lone", "lib")
    (question,) = questions(host)
    assert set(question[2].split(", ")) == {"lone-1.0-1.noarch", "lib-1.0-1.noarch"}
    assert estate.installed() == {"lone-1.0-1.noarch", "lib-1.0-1.noarch"}


def test_key_holds_for_the_packages_of_a_repository_that_names_none(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    """Whichever comes first."""
    repository(estate, [key.sign(rpms["lib-1.0"], tmp_path)], key.public.as_uri())
    silent = [key.sign(rpms[name], tmp_path) for name in ("lone-1.0", "battery-1.0")]
    repository(estate, silent, id="silent")
    agree(host)
    apply(program, "lone", "lib", "battery")
    ((location, repo, packages, *_),) = questions(host)
    assert (location, repo) == (key.public.as_uri(), "base")
    assert set(packages.split(", ")) == {"lone-1.0-1.noarch", "lib-1.0-1.noarch", "battery-1.0-1.noarch"}
    assert estate.installed() == {"lone-1.0-1.noarch", "lib-1.0-1.noarch", "battery-1.0-1.noarch"}


def test_nobody_is_asked_where_no_repository_names_a_key_of_one_package(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, other: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri(), other.public.as_uri())
    repository(estate, [other.sign(rpms["lib-1.0"], tmp_path)], id="silent")
    agree(host)
    with pytest.raises(program.errors.YumBaseError, match="gpgkey of repository silent: none\n"):
        apply(program, "lone", "lib")
    assert not questions(host)
    assert keys_of(estate) == []


def test_nothing_is_imported_before_the_last_question_is_answered(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, other: Key, tmp_path: Path
) -> None:
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], key.public.as_uri())
    repository(estate, [other.sign(rpms["lib-1.0"], tmp_path)], other.public.as_uri(), id="more")
    present: List[Any] = []

    def answer(*question: Any) -> int:
        present.append(keys_of(estate))
        return int(len(present) == 1)

    host.key_answer = answer
    with pytest.raises(program.errors.YumBaseError, match="was not agreed to"):
        apply(program, "lone", "lib")
    assert present == [[], []]
    assert keys_of(estate) == []
    assert estate.installed() == set()
    # The same once more, with another answer.
    agree(host)
    apply(program, "lone", "lib")
    assert keys_of(estate) == sorted(one.id[-8:].lower() for one in (key, other))
    assert estate.installed() == {"lone-1.0-1.noarch", "lib-1.0-1.noarch"}


def test_no_key_is_asked_about_where_it_would_not_help(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    """Beside it a package is not signed at all."""
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path), rpms["lib-1.0"]], key.public.as_uri())
    agree(host)
    with pytest.raises(program.errors.YumBaseError, match="lib-1.0-1.noarch.rpm is not signed"):
        apply(program, "lone", "lib")
    assert not questions(host)
    assert keys_of(estate) == []


def test_address_without_a_key_is_told(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path, web: Web
) -> None:
    web.page("/page", b"<html>Please log in</html>")
    nothing = tmp_path / "nothing"
    places = [nothing.as_uri(), f"{web.url}/page", f"{web.url}/lost"]
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], *places)
    agree(host)
    text = refused(estate, program, f"{nothing.as_uri()}: {nothing}: No such file", f"{web.url}/page: there is no key")
    assert "404" in next(line for line in text.splitlines() if line.strip().startswith(f"{web.url}/lost: "))


def test_managed_system_has_the_file_of_its_own(
    estate: Estate, rpms: Catalogue, program: Program, host: FakeHost, key: Key, tmp_path: Path
) -> None:
    file = estate.root / "etc/pki/one"
    file.parent.mkdir(parents=True)
    file.write_bytes(key.public.read_bytes())
    repository(estate, [key.sign(rpms["lone-1.0"], tmp_path)], "file:///etc/pki/one")
    agree(host)
    apply(program)
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert questions(host)[0][0] == "file:///etc/pki/one"
