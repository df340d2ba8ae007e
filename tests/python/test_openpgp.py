# SPDX-License-Identifier: GPL-2.0-or-later
"""What is read in keys and signatures, held against what gpg says."""

from __future__ import annotations

import subprocess
import time
from pathlib import Path
from typing import Any, Iterator, List

import pytest
from conftest import TOP  # noqa: F401 - puts the package on the path
from keys import UID, Key

from vemyum import openpgp

NOW = 1709294400


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key("5d", at="20240301T120000") as key:
        key._gpg("--quick-add-key", key.fingerprint, "rsa2048", "sign", "2d")
        key._gpg("--quick-add-key", key.fingerprint, "rsa2048", "encr", "never")
        key.public.write_bytes(key._gpg("--armor", "--export", UID))
        yield key


def listed(key: Key) -> List[Any]:
    """Of each part: id, creation and end, fingerprint."""
    lines = key._gpg("--list-keys", "--with-colons", "--with-subkey-fingerprints").decode().splitlines()
    fields = [line.split(":") for line in lines]
    parts = [part for part in fields if part[0] in ("pub", "sub")]
    fingerprints = [part[9] for part in fields if part[0] == "fpr"]
    return [(part[4], int(part[5]), int(part[6] or 0), name) for part, name in zip(parts, fingerprints)]


def test_key_is_read_as_gpg_reads_it(key: Key) -> None:
    for data in (key.public.read_bytes(), key._gpg("--export", UID)):
        (found,) = openpgp.keys_in(data)
        assert found.user_id == UID
        said = [(part.key_id, part.created, part.expires, part.fingerprint) for part in found.parts]
        assert said == listed(key)
        assert found.data == key._gpg("--export", UID)
        assert [part.revoked for part in found.parts] == [False] * 3


def test_part_is_found_by_its_names(key: Key) -> None:
    (found,) = openpgp.keys_in(key.public.read_bytes())
    subkey = found.parts[1]
    assert found.part(subkey.key_id.lower()) == found.part(subkey.fingerprint) == subkey
    assert found.part("0123456789ABCDEF") is None


def test_last_word_about_the_end_counts(key: Key) -> None:
    with Key("1d") as own:
        own._gpg("--quick-set-expire", own.fingerprint, "never")
        (found,) = openpgp.keys_in(own._gpg("--export", UID))
        assert found.primary.expires == listed(own)[0][2] == 0


def test_revocation_is_seen(key: Key) -> None:
    with Key() as own:
        own.revoke()
        (found,) = openpgp.keys_in(own.public.read_bytes())
        assert found.primary.revoked


def test_what_others_say_of_a_key_does_not_count(key: Key) -> None:
    """A certification by another key, without an end of its own, is younger than the key's."""
    with Key() as other:
        other._gpg("--import", str(key.public))
        other._gpg("--yes", "--quick-sign-key", key.fingerprint)
        both = openpgp.keys_in(other._gpg("--export", key.fingerprint))
    assert both[0].primary.expires == listed(key)[0][2] != 0


def test_user_id_cannot_change_what_stands_around_it() -> None:
    packets = bytes.fromhex("98") + b"\x08\x04" + NOW.to_bytes(4, "big") + b"\x01\x00\x00"
    user = "Ada\n\u202eevil\x1b[1m\0".encode() + b"\xff"
    packets += b"\xb4" + bytes([len(user)]) + user
    (found,) = openpgp.keys_in(packets)
    assert found.user_id == "Ada\ufffd\ufffdevil\ufffd[1m\ufffd\ufffd"


def test_issuer_of_a_signature_is_told(key: Key, tmp_path: Path) -> None:
    signed = tmp_path / "signed"
    signed.write_bytes(b"data")
    key._gpg("--armor", "--detach-sign", "--local-user", f"{key.fingerprint}!", str(signed))
    assert openpgp.issuers_of(Path(f"{signed}.asc").read_bytes()) == [key.fingerprint]


def test_key_as_text_is_what_gpg_takes(key: Key) -> None:
    (found,) = openpgp.keys_in(key.public.read_bytes())
    text = openpgp.armoured(found.data)
    assert openpgp.keys_in(text) == [found]
    command = ["gpg", "--homedir", str(key.home), "--batch", "--show-keys", "--with-colons"]
    shown = subprocess.run(command, input=text, capture_output=True, check=True)
    assert key.fingerprint in shown.stdout.decode() and b"CRC" not in shown.stderr


def test_newer_forms_have_other_fingerprints() -> None:
    """The sample key of the format's sixth version, as its description gives it."""
    body = bytes.fromhex(
        "06" "63877fe3" "1b" "00000020" "f94da7bb48d60a61e567706a6587d0331999bb9d891a08242ead84543df895a3"
    )
    (found,) = openpgp.keys_in(b"\xc6" + bytes([len(body)]) + body)
    assert found.primary.fingerprint == "CB186C4F0609A697E4D52DFA6C722B0C1F1E27C18A56708F6525EC27BAD9ACC9"
    assert found.primary.key_id == "CB186C4F0609A697"


@pytest.mark.parametrize("data", [b"", b"no key", b"<html>", b"\x00\x01", b"-----BEGIN PGP PUBLIC KEY BLOCK-----\n"])
def test_what_is_no_key_is_unreadable(data: bytes) -> None:
    with pytest.raises(openpgp.Unreadable):
        openpgp.keys_in(data)


@pytest.mark.parametrize("line", [b"a:b:c\n", b"\n", b"A\n", b"-----BEGIN PGP SIGNATURE-----\n"])
def test_block_without_an_end_takes_no_time(line: bytes) -> None:
    began = time.process_time()
    with pytest.raises(openpgp.Unreadable):
        openpgp.issuers_of(b"-----BEGIN PGP SIGNATURE-----\n" + line * 30000 + b"!\n")
    assert time.process_time() - began < 5


def test_block_that_cannot_be_decoded_is_left_out(key: Key) -> None:
    good = key.public.read_bytes()
    broken = b"-----BEGIN PGP PUBLIC KEY BLOCK-----\n\nno!\n-----END PGP PUBLIC KEY BLOCK-----\n"
    assert openpgp.keys_in(broken + good) == openpgp.keys_in(good) != []
    with pytest.raises(openpgp.Unreadable):
        openpgp.keys_in(broken)


def test_lines_may_end_as_elsewhere_and_have_headers(key: Key) -> None:
    lines = key.public.read_bytes().splitlines()
    lines[1:1] = [b"Version: 1.2-3 (Some-System)", b"Comment: see https://keys.example.org/"]
    assert openpgp.keys_in(b"\r\n".join([b"Text before", *lines, b""])) == openpgp.keys_in(key.public.read_bytes())


def test_damage_is_never_more_than_unreadable(key: Key) -> None:
    whole = key._gpg("--export", UID)
    for at in range(0, len(whole)):
        for broken in (whole[:at], whole[:at] + b"\xff" + whole[at + 1 :], whole[at:]):
            for read in (openpgp.keys_in, openpgp.issuers_of):
                try:
                    read(broken)
                except openpgp.Unreadable:
                    pass
