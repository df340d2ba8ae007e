# SPDX-License-Identifier: GPL-2.0-or-later
"""Metadata comes repository by repository, with its progress and every cause of a failure."""

from __future__ import annotations

import contextlib
import gc
import hashlib
import os
import re
import shutil
from pathlib import Path
from typing import Any, Callable, List

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from reading import cache, loaded, opened, shown, web  # noqa: F401 - fixtures
from rpmestate import Estate
from web import Web, metalink


def failure(loaded: Callable[..., Any]) -> str:  # noqa: F811
    from vemyum.errors import RepoError

    with pytest.raises(RepoError) as caught:
        loaded()
    return str(caught.value)


def acts(host: FakeHost) -> List[str]:
    """The names that the engine tells acts by, in order, without repetitions."""
    found: List[str] = []
    for call in host.named("collectGrabMeterStart", "collectProgress"):
        name = "/".join(call[1].split("/")[-2:]) if call[0] == "collectGrabMeterStart" else f"{call[3]} {call[1]}"
        if found[-1:] != [name]:
            found.append(name)
    return found


@pytest.fixture
def two(estate: Estate, rpms: Catalogue) -> Estate:
    """lamp 1.0 is installed, base has lamp 1.1, more has lib."""
    estate.install(rpms.some("lamp-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    estate.repository("more", rpms.some("lib-1.0"))
    return estate


def test_acts_come_repository_by_repository(two: Estate, host: FakeHost, loaded: Callable[..., Any]) -> None:  # noqa: F811
    loaded()
    assert acts(host) == [
        "base/repomd.xml",
        "base/primary",
        "MD Read 0",
        "base 1",
        "more/repomd.xml",
        "more/primary",
        "MD Read 0",
        "more 1",
    ]
    host.reset()
    loaded()
    assert acts(host) == ["base 0", "base 1", "more 0", "more 1"]


@pytest.mark.parametrize("kind", ["metalink", "mirrorlist"])
def test_list_of_mirrors_is_an_act_of_its_own(
    two: Estate, host: FakeHost, web: Web, loaded: Callable[..., Any], kind: str  # noqa: F811
) -> None:
    body = metalink(two.repos_dir / "base", f"{web.url}/base") if kind == "metalink" else f"{web.url}/base\n".encode()
    web.page("/mirrors", body)
    two.write_repo_file("base", extra={"baseurl": None, kind: f"{web.url}/mirrors"})
    loaded()
    assert acts(host)[0] == ("base/metalink.xml" if kind == "metalink" else "base/metalink")
    assert "base/primary" in acts(host)


def test_failure_names_repository_address_and_cause_once(
    two: Estate, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    two.write_repo_file("more", baseurl=f"{web.url}/nowhere")
    text = failure(loaded)
    assert text.startswith(f"Unable to read repository more ({web.url}/nowhere):\n")
    assert text.count("Status code: 404") == 1


def test_repository_without_an_address_is_told(two: Estate, loaded: Callable[..., Any]) -> None:  # noqa: F811
    two.write_repo_file("more", extra={"baseurl": None})
    assert failure(loaded).startswith("Unable to read repository more (no address):\n")


def test_optional_repository_is_done_without_and_its_cause_told(
    two: Estate, host: FakeHost, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    two.write_repo_file("more", baseurl=f"{web.url}/nowhere", extra={"skip_if_unavailable": "1"})
    system = loaded()
    assert shown(system.available()) == ["lamp-1.1-1.noarch"]
    (told,) = system.lacking
    assert "Unable to read repository more" in told and "Status code: 404" in told
    assert [state.enabled for state in system.repositories()] == [True, False]
    # Its acts come to an end, too.
    assert "more 1" in acts(host)
    assert not system.sections["more"].enabled


@pytest.mark.parametrize("kind", ["baseurl", "metalink", "mirrorlist"])
def test_web_page_in_place_of_the_metadata_is_told(
    two: Estate, web: Web, loaded: Callable[..., Any], kind: str  # noqa: F811
) -> None:
    web.page("/page/repodata/repomd.xml", b"<html><head><title>Please log in</title></head></html>")
    address = f"{web.url}/page" + ("" if kind == "baseurl" else "/repodata/repomd.xml")
    two.write_repo_file("more", extra={"baseurl": None, kind: address})
    assert 'gives a web page in place of the metadata. It begins: "Please log in"' in failure(loaded)


def forge_primary(repository: Path, body: bytes) -> None:
    """The repository announces this as its list of packages."""
    folder = repository / "repodata"
    (folder / "forged.xml").write_bytes(body)
    repomd = (folder / "repomd.xml").read_text()
    checksum = hashlib.sha256(body).hexdigest()
    entry = (
        f'<data type="primary"><checksum type="sha256">{checksum}</checksum>'
        '<location href="repodata/forged.xml"/><timestamp>1</timestamp></data>'
    )
    (folder / "repomd.xml").write_text(re.sub(r'<data type="primary">.*?</data>', entry, repomd, flags=re.S))


@pytest.mark.parametrize("optional", [False, True])
def test_metadata_that_cannot_be_understood(
    two: Estate, loaded: Callable[..., Any], optional: bool  # noqa: F811
) -> None:
    forge_primary(two.repos_dir / "more", b"<metadata><package></pack></metadata>")
    two.write_repo_file("more", extra={"skip_if_unavailable": str(int(optional))})
    if optional:
        system = loaded()
        (text,) = system.lacking
        assert shown(system.available()) == ["lamp-1.1-1.noarch"]
    else:
        text = failure(loaded)
    assert text.startswith("Unable to read repository more (") and "mismatched tag" in text


def test_damaged_cache_is_made_anew(two: Estate, host: FakeHost, loaded: Callable[..., Any]) -> None:  # noqa: F811
    loaded()
    solv = cache(two, "base") / "solv/base.solv"
    content = solv.read_bytes()
    solv.write_bytes(content[: len(content) // 2] + b"\0\xff\x17" * 30)
    system = loaded()
    assert shown(system.available()) == ["lamp-1.1-1.noarch", "lib-1.0-1.noarch"]
    assert "The cache of the metadata was damaged: it is made anew" in host.text("warninglog")


def test_metadata_that_has_not_changed_is_not_fetched_again(
    two: Estate, rpms: Catalogue, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    two.write_repo_file("base", baseurl=f"{web.url}/base")
    system = loaded()
    os.utime(system.metadata_file("base", "primary"), (1, 1))
    web.forget_requests()
    system = loaded()
    assert web.requests() == ["/base/repodata/repomd.xml"]
    web.forget_requests()
    loaded()
    assert web.requests() == []
    # What has changed is.
    two.repository("base", rpms.some("app-1.0"), baseurl=f"{web.url}/base")
    os.utime(system.metadata_file("base", "primary"), (1, 1))
    assert shown(loaded().available()) == ["app-1.0-1.noarch", "lib-1.0-1.noarch"]


def test_what_another_program_has_not_fetched_comes_by_itself(
    two: Estate, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    two.write_repo_file("base", baseurl=f"{web.url}/base")
    path = Path(loaded().metadata_file("base", "filelists"))
    path.unlink()
    web.forget_requests()
    system = loaded()
    assert web.requests() == [f"/base/repodata/{path.name}"]
    (lamp,) = [row for row in system.available() if row.name == "lamp"]
    assert "/usr/share/lamp/bulb" in system.files(lamp)


@pytest.mark.parametrize("kind", ["baseurl", "metalink", "mirrorlist"])
def test_changelogs_are_the_one_file_that_is_fetched_for_them(
    two: Estate, web: Web, opened: Callable[..., Any], loaded: Callable[..., Any], kind: str  # noqa: F811
) -> None:
    web.page("/metalink", metalink(two.repos_dir / "base", f"{web.url}/base"))
    web.page("/mirrorlist", f"{web.url}/base\n".encode())
    two.write_repo_file("base", extra={"baseurl": None, kind: f"{web.url}/{'base' if kind == 'baseurl' else kind}"})
    loaded()
    web.forget_requests()
    read = {}
    opened().load_changelogs(lambda id, path: read.update({id: path}))
    assert list(read) == ["base", "more"] and all(map(os.path.exists, read.values()))
    assert web.requests() == [f"/base/repodata/{os.path.basename(read['base'])}"]
    web.forget_requests()
    opened().load_changelogs(lambda id, path: None)
    assert web.requests() == []


def test_changelogs_with_a_wrong_checksum_are_refused(
    two: Estate, web: Web, opened: Callable[..., Any], loaded: Callable[..., Any]  # noqa: F811
) -> None:
    from vemyum.errors import RepoError

    two.write_repo_file("base", baseurl=f"{web.url}/base")
    loaded()
    (path,) = (two.repos_dir / "base/repodata").glob("*other*")
    web.lie(b"something else", f"/base/repodata/{path.name}")
    with pytest.raises(RepoError, match="checksum"):
        opened().load_changelogs(lambda id, path: None)
    assert not list(cache(two, "base").glob("repodata/*other*"))


def test_address_with_a_query_is_asked_for_whole(
    two: Estate, web: Web, host: FakeHost, loaded: Callable[..., Any], opened: Callable[..., Any]  # noqa: F811
) -> None:
    query = "/buffet?login=me&key=secret&path=/os"
    for file in (two.repos_dir / "base/repodata").iterdir():
        web.page(f"{query}/repodata/{file.name}", file.read_bytes())
    two.write_repo_file("base", baseurl=f"{web.url}{query}")
    assert shown(loaded().available()) == ["lamp-1.1-1.noarch", "lib-1.0-1.noarch"]
    assert acts(host)[:2] == ["base/repomd.xml", "base/primary"]
    assert all(path.startswith(f"{query}/repodata/") for path in web.requests())
    web.forget_requests()
    loaded()
    assert web.requests() == []
    opened().load_changelogs(lambda id, path: None)
    (request,) = web.requests()
    assert request.startswith(f"{query}/repodata/") and "other" in request
    # Old by now, but the same.
    (primary,) = cache(two, "base").glob("repodata/*primary*")
    os.utime(primary, (1, 1))
    web.forget_requests()
    loaded()
    assert web.requests() == [f"{query}/repodata/repomd.xml"]


def test_file_of_a_query_with_a_wrong_checksum_is_refused(
    two: Estate, web: Web, loaded: Callable[..., Any]  # noqa: F811
) -> None:
    for file in (two.repos_dir / "base/repodata").iterdir():
        body = b"wrong" if "primary" in file.name else file.read_bytes()
        web.page(f"/b?p=/os/repodata/{file.name}", body)
    two.write_repo_file("base", baseurl=f"{web.url}/b?p=/os")
    assert "the checksum is not the announced one" in failure(loaded)


def test_exception_of_a_listener_ends_nothing(two: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    class Faulty:
        def begin(self, *_: Any) -> int:
            raise SystemExit(3)

        progress = end = mirror_failed = begin

    system = opened()
    repo = system.base.repository("base")
    system.base.downloads.listener = Faulty()
    repo.download_metadata(repo.get_cachedir())
    repo.read_metadata_cache()


def test_damaged_rpm_database_is_told_with_rpms_words(two: Estate, loaded: Callable[..., Any]) -> None:  # noqa: F811
    from vemyum.errors import YumBaseError

    database = two.root / "var/lib/rpm/rpmdb.sqlite"
    shutil.rmtree(database.parent)
    database.parent.mkdir()
    database.write_bytes(b"garbage" * 1000)
    with pytest.raises(YumBaseError) as caught:
        loaded()
    assert str(caught.value).startswith(f"The rpm database of {two.root} cannot be read: ")
    assert "file is not a database" in str(caught.value)


@pytest.mark.parametrize("kind", ["metalink", "mirrorlist"])
def test_list_of_mirrors_that_cannot_be_used_costs_nobody_an_open_file(
    two: Estate, web: Web, opened: Callable[..., Any], kind: str  # noqa: F811
) -> None:
    from vemyum.errors import RepoError

    web.page("/page", b"<html><head><title>Please log in</title></head></html>")
    two.write_repo_file("base", extra={"baseurl": None, kind: f"{web.url}/page"})
    before = len(os.listdir("/proc/self/fd"))
    system = opened()
    with pytest.raises(RepoError) as caught:
        system.load()
    with contextlib.ExitStack() as files:
        others = [files.enter_context(open("/dev/null")) for _ in range(20)]
        system.close()
        # The exception holds it, too.
        del system, caught
        gc.collect()
        for file in others:
            os.fstat(file.fileno())
    assert len(os.listdir("/proc/self/fd")) <= before
