# SPDX-License-Identifier: GPL-2.0-or-later
"""Signed metadata: the library takes keys in by a whole load only, and all that it is not told to refuse."""

from __future__ import annotations

import shutil
from pathlib import Path
from typing import Any, Callable, Iterator, List

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from keys import Key
from reading import cache, loaded, opened, shown, web  # noqa: F401 - fixtures
from rpmestate import Estate
from web import Web


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


@pytest.fixture
def sealed(estate: Estate, rpms: Catalogue, web: Web, key: Key) -> Path:  # noqa: F811
    """Repository base, whose metadata is signed; its key lies on a server."""
    web.page("/key.asc", key.public.read_bytes())
    estate.install(rpms.some("lib-1.0"))
    extra = {"repo_gpgcheck": "1", "gpgkey": f"{web.url}/key.asc"}
    directory = estate.repository("base", rpms.some("lone-1.0"), baseurl=f"{web.url}/base", extra=extra)
    key.sign_metadata(directory)
    return directory


def questions(host: FakeHost) -> List[Any]:
    return host.named("confirmKey")


def test_nothing_is_fetched_or_trusted_without_a_word(
    sealed: Path, estate: Estate, host: FakeHost, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    from vemyum.errors import RepoError

    for _again in range(2):
        with pytest.raises(RepoError) as caught:
            loaded()
        assert "No key of this signature is trusted:" in str(caught.value)
        assert "it was not agreed to fetch the key" in str(caught.value)
    assert len(questions(host)) == 2 and "/key.asc" not in web.requests()
    assert not list((estate.root / "var/cache/yum").rglob("pubring.kbx"))


def test_agreed_key_is_taken_in_once_and_for_all(
    sealed: Path, estate: Estate, host: FakeHost, key: Key, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    host.key_answer = lambda *question: 1
    system = loaded()
    assert shown(system.available()) == ["lone-1.0-1.noarch"] and len(system.installed()) == 1
    fetch, trust = questions(host)
    assert fetch[5] == "" and trust[5] == key.fingerprint
    assert f"Imported the key {key.fingerprint}" in host.text("log")
    shutil.rmtree(cache(estate, "base") / "repodata")
    assert shown(loaded().available()) == ["lone-1.0-1.noarch"]
    assert len(questions(host)) == 2


def test_changed_metadata_is_refused_without_a_question(
    sealed: Path, estate: Estate, host: FakeHost, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    from vemyum.errors import RepoError

    host.key_answer = lambda *question: 1
    loaded()
    shutil.rmtree(cache(estate, "base") / "repodata")
    with open(sealed / "repodata/repomd.xml", "a") as repomd:
        repomd.write("\n")
    with pytest.raises(RepoError, match="(?i)bad .*signature"):
        loaded()
    assert len(questions(host)) == 2


def test_whoever_works_unseen_asks_nothing(sealed: Path, host: FakeHost) -> None:
    from vemyum.dnf5 import settings
    from vemyum.dnf5.system import System
    from vemyum.errors import RepoError

    host.key_answer = lambda *question: 1
    system = System(settings.read_settings(), progress=False, asks_for_keys=False)
    with pytest.raises(RepoError, match="signature"):
        system.load()
    assert questions(host) == [] and host.named("collectGrabMeterStart", "collectProgress") == []
