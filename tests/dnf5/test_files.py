# SPDX-License-Identifier: GPL-2.0-or-later
"""Downloads and signatures by libdnf5."""

from __future__ import annotations

from pathlib import Path
from typing import Any, Iterator, List

import pytest
from apply5 import Apply
from buffet import Buffet
from catalogue import Catalogue
from keys import Key
from rpmestate import Estate
from web import Web

SECRET = "login=me&key=secret"


@pytest.fixture
def web(tmp_path: Path, estate: Estate) -> Iterator[Web]:
    with Web(estate.repos_dir, tmp_path / "web") as web:
        yield web


@pytest.fixture(scope="module")
def key() -> Iterator[Key]:
    with Key() as key:
        yield key


def failure(apply: Apply) -> str:
    from vemyum.errors import YumBaseError

    with pytest.raises(YumBaseError) as error:
        apply.run()
    return str(error.value)


# Downloads -----------------------------------------------------------------------------------------------------------


def test_each_file_has_its_meter(estate: Estate, rpms: Catalogue, host: Any, web: Web) -> None:
    keys = ("battery-1.0", "lib-1.0", "lone-1.0", "clock-1.0", "desk-1.0")
    estate.repository("base", rpms.some(*keys), baseurl=f"{web.url}/base")
    apply = Apply(rpms.some(*keys))
    apply.plan()
    sizes = {rpms[key].name: rpms[key].stat().st_size for key in keys}
    assert sorted(apply.transaction.downloads()) == sorted(sizes.values())
    apply.transaction.download()
    told = host.meters()
    assert {name: size for name, size, _ in told} == sizes and len(told) == len(sizes)
    for _name, size, values in told:
        assert values == sorted(values) and values[-1] == size
    assert apply.transaction.downloads() == []


def test_what_lies_on_this_machine_is_no_download(estate: Estate, rpms: Catalogue, host: Any) -> None:
    """The library copies it."""
    estate.repository("base", rpms.some("battery-1.0", "lone-1.0"))
    Apply(rpms.some("battery-1.0", "lone-1.0")).run()
    assert host.meters() == []
    assert estate.installed() == {"battery-1.0-1.noarch", "lone-1.0-1.noarch"}


def test_what_the_cache_has_is_not_told(estate: Estate, rpms: Catalogue, host: Any, web: Web) -> None:
    estate.repository("base", rpms.some("battery-1.0", "lone-1.0"), baseurl=f"{web.url}/base")
    first = Apply([rpms["lone-1.0"]])
    first.plan()
    first.transaction.download()
    host.reset()
    Apply(rpms.some("battery-1.0", "lone-1.0")).run()
    assert [name for name, _size, _values in host.meters()] == [rpms["battery-1.0"].name]


def test_a_half_file_in_the_cache_is_fetched(estate: Estate, rpms: Catalogue, host: Any) -> None:
    estate.repository("base", [rpms["lone-1.0"]])
    first = Apply([rpms["lone-1.0"]])
    first.plan()
    first.transaction.download()
    (file,) = (estate.root / "var/cache/yum").glob("*/packages/*.rpm")
    file.write_bytes(file.read_bytes()[:100])
    again = Apply([rpms["lone-1.0"]])
    again.plan()
    assert again.transaction.downloads() == [rpms["lone-1.0"].stat().st_size]
    again.transaction.download()
    assert file.read_bytes() == rpms["lone-1.0"].read_bytes()


def test_each_package_that_fails_is_named_with_its_cause(
    estate: Estate, rpms: Catalogue, host: Any, web: Web
) -> None:
    estate.repository("base", rpms.some("battery-1.0", "lone-1.0"), baseurl=f"{web.url}/base")
    apply = Apply(rpms.some("battery-1.0", "lone-1.0"))
    web.lose(f"/base/{rpms['lone-1.0'].name}")
    text = failure(apply)
    assert text.startswith("Unable to download packages:\nlone-1.0-1.noarch: ")
    assert "404" in text and web.url in text
    started = [call[1] for call in host.named("applyGrabMeterStart")]
    assert len(started) == len(host.named("applyGrabMeterEnd"))
    assert estate.installed() == set()


def test_package_that_is_given_up_over_another_one_is_not_told(estate: Estate, rpms: Catalogue, host: Any) -> None:
    """Which of them is under way when one fails is chance."""
    from libdnf5.repo import DownloadCallbacks
    from vemyum.dnf5.download import DownloadMeter

    estate.repository("base", rpms.some("battery-1.0", "lone-1.0"))
    apply = Apply(rpms.some("battery-1.0", "lone-1.0"))
    apply.plan()
    meter = DownloadMeter(apply.transaction._resolved.packages())
    failed = DownloadCallbacks.TransferStatus_ERROR
    meter.progress(1, 2, 1)
    meter.mirror_failed(2, "Status code: 404", "http://127.0.0.1/lone")
    meter.end(2, failed, "Cannot download lone: All mirrors were tried")
    meter.end(1, failed, "Not finished - interrupted by error: Cannot download lone: All mirrors were tried")
    (line,) = meter.failures()
    assert "Status code: 404" in line and "Not finished" not in line


def test_packages_of_an_address_with_a_query(
    estate: Estate, rpms: Catalogue, host: Any, tmp_path: Path
) -> None:
    with Buffet(estate.repos_dir, "me", "secret") as server:
        address = f"{server.url}/buffet?{SECRET}&path=/base"
        estate.repository("base", rpms.some("lone-1.0", "battery-1.0"), baseurl=address)
        apply = Apply(rpms.some("lone-1.0", "battery-1.0"))
        server.forget_requests()
        apply.run()
        assert sorted(request.split("path=")[1] for request in server.requests()) == [
            f"/base/{rpms[key].name}" for key in ("battery-1.0", "lone-1.0")
        ]
    assert estate.installed() == {"lone-1.0-1.noarch", "battery-1.0-1.noarch"}
    assert sorted(name for name, *_ in host.meters()) == sorted(rpms[key].name for key in ("lone-1.0", "battery-1.0"))
    for _name, size, values in host.meters():
        assert values[-1] == size


def test_a_query_that_is_refused_is_told(estate: Estate, rpms: Catalogue, host: Any) -> None:
    with Buffet(estate.repos_dir, "me", "secret") as server:
        estate.repository("base", [rpms["lone-1.0"]], baseurl=f"{server.url}/buffet?{SECRET}&path=/base")
        apply = Apply([rpms["lone-1.0"]])
        server.refuse_everybody()
        assert "lone-1.0-1.noarch: " in failure(apply)
    assert estate.installed() == set()


def test_a_file_with_a_query_that_is_another_is_refused(estate: Estate, rpms: Catalogue, host: Any) -> None:
    with Buffet(estate.repos_dir, "me", "secret") as server:
        folder = estate.repository("base", [rpms["lone-1.0"]], baseurl=f"{server.url}/buffet?{SECRET}&path=/base")
        apply = Apply([rpms["lone-1.0"]])
        file = folder / rpms["lone-1.0"].name
        content = file.read_bytes()
        file.unlink()
        file.write_bytes(content[:-1] + b"!")
        assert "checksum is not the announced one" in failure(apply)


# Signatures ----------------------------------------------------------------------------------------------------------


def signed(estate: Estate, rpms: Catalogue, key: Key, tmp_path: Path) -> Apply:
    package = key.sign(rpms["lone-1.0"], tmp_path)
    estate.repository("base", [package], extra={"gpgcheck": "1", "gpgkey": key.public.as_uri()})
    return Apply([package])


def test_no_key_is_imported_unasked(
    estate: Estate, rpms: Catalogue, host: Any, key: Key, tmp_path: Path
) -> None:
    """The library would do so in the transaction."""
    text = failure(signed(estate, rpms, key, tmp_path))
    assert "lone-1.0-1.noarch" in text and key.public.as_uri() in text and key.id.lower() in text.lower()
    assert estate.installed() == set()
    assert "gpg-pubkey" not in estate.rpm("-qa")


def test_not_even_in_the_transaction_itself(
    estate: Estate, rpms: Catalogue, host: Any, key: Key, tmp_path: Path
) -> None:
    from vemyum.errors import YumBaseError

    apply = signed(estate, rpms, key, tmp_path)
    apply.plan()
    apply.transaction.download()
    with pytest.raises(YumBaseError) as error:
        apply.transaction.run(lambda: None)
    assert "lone" in str(error.value)
    assert estate.installed() == set()
    assert "gpg-pubkey" not in estate.rpm("-qa")


def test_a_key_that_is_agreed_to_is_imported(
    estate: Estate, rpms: Catalogue, host: Any, key: Key, tmp_path: Path
) -> None:
    asked: List[Any] = []
    host.key_answer = lambda *question: asked.append(question) or 1
    signed(estate, rpms, key, tmp_path).run()
    assert estate.installed() == {"lone-1.0-1.noarch"}
    assert [question[4].lower() for question in asked] == [key.fingerprint.lower()]
    assert "gpg-pubkey" in estate.rpm("-qa")


def test_a_known_key_is_not_asked_about(
    estate: Estate, rpms: Catalogue, host: Any, key: Key, tmp_path: Path
) -> None:
    estate.rpm("--import", key.public)
    signed(estate, rpms, key, tmp_path).run()
    assert not host.named("confirmKey")
    assert estate.installed() == {"lone-1.0-1.noarch"}


def test_an_unsigned_package_is_refused(estate: Estate, rpms: Catalogue, host: Any) -> None:
    estate.repository("base", [rpms["lone-1.0"]], extra={"gpgcheck": "1", "gpgkey": "file:///none"})
    text = failure(Apply([rpms["lone-1.0"]]))
    assert "lone-1.0-1.noarch" in text and "not signed" in text and text.endswith("Nothing was installed.")
    assert not host.named("tsEvent")


def test_a_damaged_package_is_told_as_such(
    estate: Estate, rpms: Catalogue, host: Any, key: Key, tmp_path: Path
) -> None:
    """By a repository that says the damaged file is right."""
    package = key.sign(rpms["lone-1.0"], tmp_path)
    content = bytearray(package.read_bytes())
    content[-20] ^= 255
    package.write_bytes(content)
    estate.rpm("--import", key.public)
    estate.repository("base", [package], extra={"gpgcheck": "1", "gpgkey": key.public.as_uri()})
    apply = Apply([package])
    text = failure(apply)
    assert "Package lone-1.0-1.noarch is damaged" in text
    assert estate.installed() == set()
