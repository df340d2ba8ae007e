# SPDX-License-Identifier: GPL-2.0-or-later
"""The configuration as libdnf5 is made to take it."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Any, Callable

import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from reading import opened  # noqa: F401 - a fixture
from rpmestate import Estate
from users import NOBODY, other_users_exist


def read() -> Any:
    from vemyum.dnf5 import settings

    return settings.read_settings()


def refused() -> str:
    from vemyum.errors import YumBaseError

    with pytest.raises(YumBaseError) as caught:
        read()
    return str(caught.value)


def test_directories_lie_below_the_root_with_their_variables(estate: Estate) -> None:
    variables = estate.root / "etc/yum/vars"
    variables.mkdir(parents=True)
    (variables / "branch").write_text("north\nsouth\n")
    estate.write_main_config(cachedir="/var/cache/$branch/$basearch", logdir="/var/log/vem")
    settings = read()
    assert settings.variables["branch"] == "north"
    root = str(estate.root)
    assert settings.cache_directory == f"{root}/var/cache/north/{settings.variables['basearch']}"
    assert settings.persistent_directory == f"{root}/var/lib/dnf"
    assert os.path.isdir(settings.cache_directory) and os.path.isdir(f"{root}/var/log/vem")


def test_library_takes_the_directories_and_variables(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    estate.write_main_config(cachedir="/var/cache/mine")
    (estate.root / "etc/yum.repos.d/base.repo").write_text("[base]\nbaseurl=file:///$releasever/$basearch\n")
    system = opened()
    repo = system.base.repository("base")
    assert list(repo.get_config().baseurl) == [f"file:////{system.settings.variables['basearch']}"]
    assert repo.get_cachedir().startswith(f"{estate.root}/var/cache/mine/base-")
    assert repo.get_persistdir().startswith(f"{estate.root}/var/lib/dnf/")


def test_variable_below_a_link_out_of_the_root_is_that_systems_own(estate: Estate, tmp_path: Path) -> None:
    (estate.root / "etc/yum").mkdir()
    (estate.root / "srv/vars").mkdir(parents=True)
    (estate.root / "srv/vars/where").write_text("inside")
    (estate.root / "etc/yum/vars").symlink_to("/srv/vars")
    assert read().variables["where"] == "inside"


def test_main_file_that_is_missing_asks_for_signatures(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    # The library's configuration goes with its Base.
    base = opened().base
    assert not base.config.pkg_gpgcheck
    (estate.root / "etc/yum.conf").unlink()
    system = opened()
    assert system.base.config.pkg_gpgcheck
    assert system.settings.cache_directory == f"{estate.root}/var/cache/yum"


@pytest.mark.parametrize("option", ["gpgcheck", "repo_gpgcheck"])
def test_unclear_check_of_signatures_counts_as_switched_on(
    estate: Estate, host: FakeHost, opened: Callable[..., Any], option: str  # noqa: F811
) -> None:
    estate.write_main_config(**{option: "perhaps"})
    (estate.root / "etc/yum.repos.d/base.repo").write_text(f"[base]\nbaseurl=file:///x\n{option}=surely\n")
    (estate.root / "etc/yum.repos.d/no.repo").write_text(f"[no]\nbaseurl=file:///x\n{option}=0\n")
    base = opened().base
    name = {"gpgcheck": "pkg_gpgcheck"}.get(option, option)
    assert getattr(base.config, name)
    assert getattr(base.repository("base").get_config(), name)
    assert not getattr(base.repository("no").get_config(), name)
    for section in ("main", "base"):
        assert f"[{section}]: {option} counts as switched on" in host.text("errorlog")


@pytest.mark.parametrize("folder", ["usr/share/dnf5/libdnf.conf.d", "etc/dnf/libdnf5.conf.d"])
def test_unclear_check_of_signatures_counts_beside_the_main_file_too(
    estate: Estate, opened: Callable[..., Any], folder: str  # noqa: F811
) -> None:
    def checks() -> bool:
        base = opened().base
        return bool(base.config.pkg_gpgcheck)

    place = estate.root / folder
    place.mkdir(parents=True)
    main = estate.root / "etc/yum.conf"
    stated = main.read_text()
    main.write_text(stated.replace("gpgcheck=0\n", ""))
    assert not checks()
    (place / "10-first.conf").write_text("[main]\ngpgcheck=perhaps\n")
    assert checks()
    # What comes later counts: another file, and behind all of them the main one.
    (place / "20-second.conf").write_text("[main]\npkg_gpgcheck=0\n")
    assert not checks()
    (place / "20-second.conf").write_text("[main]\npkg_gpgcheck=surely\n")
    assert checks()
    main.write_text(f"{main.read_text()}\ngpgcheck=0\n")
    assert not checks()


def test_own_file_takes_the_place_of_its_like(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    for folder, value in (("usr/share/dnf5/libdnf.conf.d", "perhaps"), ("etc/dnf/libdnf5.conf.d", "0")):
        (estate.root / folder).mkdir(parents=True)
        (estate.root / folder / "10-first.conf").write_text(f"[main]\nlocalpkg_gpgcheck={value}\n")
    base = opened().base
    assert not base.config.localpkg_gpgcheck


def test_main_file_that_is_not_utf8_is_named_with_its_line(estate: Estate) -> None:
    with open(estate.root / "etc/yum.conf", "ab") as stream:
        stream.write("proxy_username=J\u00f6rg\n".encode("latin-1"))
    lines = (estate.root / "etc/yum.conf").read_bytes().count(b"\n")
    assert refused().endswith(f"/etc/yum.conf, line {lines}: the text is not in UTF-8")


def test_comment_that_is_not_utf8_is_nobodys_business(estate: Estate) -> None:
    with open(estate.root / "etc/yum.conf", "ab") as stream:
        stream.write("# J\u00f6rg\n".encode("latin-1"))
    assert read().root == str(estate.root)


def test_variable_that_is_not_utf8_is_named(estate: Estate) -> None:
    (estate.root / "etc/yum/vars").mkdir(parents=True)
    (estate.root / "etc/yum/vars/office").write_bytes("B\u00fcro\n".encode("latin-1"))
    assert refused().endswith("/etc/yum/vars/office, line 1: the text is not in UTF-8")


def test_main_file_that_cannot_be_understood_is_told_once_with_the_cause(estate: Estate) -> None:
    (estate.root / "etc/yum.conf").write_text("[main\nbroken")
    text = refused()
    assert text.count("yum.conf") == 1 and "Missing ']'" in text
    assert str(estate.root) not in text


def test_pipe_in_the_place_of_the_main_file_is_refused(estate: Estate) -> None:
    (estate.root / "etc/yum.conf").unlink()
    os.mkfifo(estate.root / "etc/yum.conf")
    assert refused() == "/etc/yum.conf is not a regular file"


def test_plugins_of_this_machine_are_not_another_roots(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    assert len(list(opened().base.library.get_plugins_info())) == 0


def test_plugin_that_is_not_there_is_told_and_left_out(estate: Estate, opened: Callable[..., Any]) -> None:  # noqa: F811
    from vemyum.dnf5.base import open_base
    from vemyum.errors import YumBaseError

    plugins = estate.root / "etc/dnf/libdnf5-plugins"
    plugins.mkdir(parents=True)
    (plugins / "ghost.conf").write_text("[main]\nname=spectre\nenabled=1\n")
    (told,) = opened().lacking
    assert told.startswith("The plugin spectre failed (import): ") and "ghost.conf" in told
    with pytest.raises(YumBaseError, match="The plugin spectre failed"):
        open_base(read(), strict=True)


@pytest.mark.skipif(not other_users_exist(), reason="there is no other user")
def test_nobody_reads_into_a_folder_of_the_users_own(
    estate: Estate, rpms: Catalogue, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    estate.install(rpms.some("lamp-1.0"))
    estate.repository("base", rpms.some("lamp-1.1"))
    home = tmp_path / "theirs"
    home.mkdir()
    os.chown(home, NOBODY, NOBODY)
    monkeypatch.setenv("HOME", str(home))
    for folder in (tmp_path, tmp_path.parent, tmp_path.parent.parent):
        folder.chmod(0o755)
    reader, writer = os.pipe()
    child = os.fork()
    if child == 0:
        try:
            os.setgid(NOBODY)
            os.setuid(NOBODY)
            from vemyum.dnf5 import system

            opened = system.open_system(read())
            opened.load()
            told = f"{opened.settings.cache_directory} {len(opened.available())} {len(opened.installed())}"
        except BaseException as error:  # noqa: BLE001 - told by the parent
            told = f"{type(error).__name__}: {error}"
        os.write(writer, told.encode())
        os._exit(0)
    os.waitpid(child, 0)
    told = os.read(reader, 4096).decode()
    os.close(reader)
    os.close(writer)
    assert told.startswith(f"{home}/.cache/vem/") and told.endswith("/cache 1 1"), told
    assert not (estate.root / "var/cache/yum").exists()
