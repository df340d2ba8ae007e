# SPDX-License-Identifier: GPL-2.0-or-later
"""Keys that the system doesn't know: the program asks about them in windows of their own."""
from __future__ import annotations

from pathlib import Path
from typing import Callable, Iterator

import pytest

from keys import UID, Key
from program import Atspi, Program, wait_for, walk
from rpmestate import Estate, spec
from web import Web

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


@pytest.fixture
def pier(tmp_path: Path, key: Key) -> Estate:
    """anchor is installed; wharf has barge, which the key has signed, and signed metadata."""
    estate = Estate(tmp_path / "pier")
    anchor, barge = estate.build([spec(name) for name in ("anchor", "barge")])
    (tmp_path / "signed").mkdir()
    estate.write_main_config()
    key.sign_metadata(estate.repository("wharf", [key.sign(barge, tmp_path / "signed")]))
    estate.install([anchor])
    return estate


def groups(fingerprint: str) -> str:
    return " ".join(fingerprint[at : at + 4] for at in range(0, len(fingerprint), 4))


def told(program: Program, window: Atspi.Accessible) -> str:
    """The labels of a window, and what its fields hold."""
    fields = [node for node in walk(window) if node.get_role() == Atspi.Role.TEXT]
    return "\n".join([program.texts(window), *map(program.text_of, fields)])


def apply(program: Program) -> None:
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    program.wait_closed("Apply")


def test_package_of_an_unknown_key(pier: Estate, key: Key, serve: Serve, start: Start) -> None:
    server = serve(pier)
    server.page("/key", key.public.read_bytes())
    address = f"{server.url}/key"
    pier.write_repo_file("wharf", extra={"gpgcheck": "1", "gpgkey": address})
    program = start(pier)
    program.wait_ready()
    program.choose("View All")
    program.click_cell("barge", 0)
    wait_for(lambda: program.is_enabled("Apply Actions"), "a mark to apply")

    apply(program)
    fetch = program.window("Fetch Key")
    said = told(program, fetch)
    assert address in said and "http: not encrypted" in said and "barge-1.0-1.noarch" in said
    assert "/key" not in server.requests()
    program.press("Fetch Key", fetch)
    program.wait_closed("Fetch Key")
    question = program.window("Import Key")
    said = told(program, question)
    for words in (UID, groups(key.fingerprint), key.id, "never", address, "wharf", "barge-1.0-1.noarch"):
        assert words in said, said
    # What Return does is the default.
    program.key("Return")
    program.wait_closed("Import Key")
    report = program.window("VEM Yum Error")
    said = program.texts(report)
    assert f"the key {key.fingerprint} was not agreed to" in said and "Nothing was installed." in said
    program.press("Close", report)
    program.wait_ready()
    assert pier.installed() == {"anchor-1.0-1.noarch"}
    assert "gpg-pubkey" not in pier.rpm("-qa")

    # The mark is still there.
    apply(program)
    program.press("Fetch Key", program.window("Fetch Key"))
    program.press("Import Key", program.window("Import Key"))
    wait_for(lambda: "barge-1.0-1.noarch" in pier.installed(), "the package")
    program.wait_ready()
    (imported,) = (line for line in pier.rpm("-qa").split() if line.startswith("gpg-pubkey-"))
    assert f"{key.id[-8:].lower()}-" in imported


def test_metadata_of_an_unknown_key(pier: Estate, key: Key, start: Start) -> None:
    pier.write_repo_file("wharf", extra={"repo_gpgcheck": "1", "gpgkey": key.public.as_uri()})
    program = start(pier)
    question = program.window("Import Key")
    said = told(program, question)
    assert groups(key.fingerprint) in said and "the metadata of the repository" in said
    program.key("Escape")
    program.wait_closed("Import Key")
    report = program.window("VEM Yum Error")
    assert f"the key {key.fingerprint} was not agreed to" in program.texts(report)
    program.press("Close", report)
    program.wait_ready()

    program.press("Refresh")
    program.press("Import Key", program.window("Import Key"))
    program.wait_closed("Import Key")
    program.wait_ready()
    program.choose("View All")
    wait_for(lambda: program.names() == ["anchor", "barge"], "the packages of the repository")
    # From now on it is known.
    program.close()
    program = start(pier)
    program.wait_ready()
    program.choose("View All")
    wait_for(lambda: program.names() == ["anchor", "barge"], "the packages of the repository")
