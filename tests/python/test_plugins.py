# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf's plugins: their hooks run in the table's view and in an apply, and what fails in them is told."""

from __future__ import annotations

import shutil
from pathlib import Path
from typing import List, Optional

from libraries import only_with

only_with("dnf4")

import dnf.const
import pytest
from catalogue import Catalogue
from fake_host import FakeHost
from program import Collection, Program
from rpmestate import Estate
from vemyum import streams

HOOKS = ("pre_config", "config", "sack", "resolved", "pre_transaction", "transaction")
HEAD = "import dnf, os\n\n"


class House:
    """lone is installed, battery and lib are offered; `folder` is where plugins are looked for."""

    def __init__(self, estate: Estate, program: Program) -> None:
        self.estate = estate
        self.program = program
        self.folder = estate.directory / "plugins"
        self.folder.mkdir()
        self.settings = estate.root / "etc/dnf/plugins"
        self.settings.mkdir(parents=True)
        self.configure()

    def configure(self, **options: Optional[str]) -> None:
        self.estate.write_main_config(**{"pluginpath": str(self.folder), **options})

    def plugin(self, text: str, name: str = "watch") -> None:
        (self.folder / f"{name}.py").write_text(HEAD + text, encoding="utf-8")

    def hook(self, hook: str, *lines: str, name: str = "watch") -> None:
        """A plugin that does this at one hook."""
        body = "\n        ".join(lines)
        self.plugin(f"class {name.title()}(dnf.Plugin):\n    name = {name!r}\n    def {hook}(self):\n        {body}\n", name)

    def collect(self) -> Collection:
        # pytest puts streams of its own in their place for each part of a test.
        streams.replace_streams()
        return self.program.collect()

    def apply(self, name: str = "battery") -> None:
        found = self.collect()
        found.yumio.apply([found.offered(name)], [], [])

    def lacking(self) -> List[str]:
        return list(self.collect().yumio.incomplete())


@pytest.fixture
def house(estate: Estate, rpms: Catalogue, program: Program) -> House:
    estate.install(rpms.some("lone-1.0"))
    estate.repository("base", rpms.some("lone-1.0", "battery-1.0", "lib-1.0"))
    return House(estate, program)


def test_hooks_run_in_the_order_of_the_command_line(house: House, tmp_path: Path) -> None:
    notes = tmp_path / "notes"
    methods = "".join(
        f"    def {hook}(self):\n        note({hook!r}, self)\n" for hook in HOOKS
    )
    house.plugin(
        f"def note(word, plugin):\n"
        f"    with open({str(notes)!r}, 'a') as file:\n"
        f"        file.write(f'{{os.getpid()}} {{word}} {{plugin.cli}} {{len(plugin.base.repos)}}\\n')\n"
        f"class Watch(dnf.Plugin):\n    name = 'watch'\n{methods}"
    )
    found = house.collect()
    lines = [line.split(" ", 1) for line in notes.read_text().splitlines()]
    mine = lines[0][0]
    assert [text for _, text in lines] == ["pre_config None 0", "config None 1", "sack None 1"]
    found.yumio.collectOtherData()
    # No sack is filled for that.
    lines = [line.split(" ", 1) for line in notes.read_text().splitlines()][3:]
    assert [text for _, text in lines] == ["pre_config None 0", "config None 1"]
    found.yumio.apply([found.offered("battery")], [], [])
    lines = [line.split(" ", 1) for line in notes.read_text().splitlines()][5:]
    assert [text.split(" ")[0] for _, text in lines] == list(HOOKS)
    assert {pid for pid, _ in lines} != {mine}


def test_configuration_may_switch_them_off(house: House, host: FakeHost) -> None:
    house.hook("sack", "print('here')")
    house.collect()
    assert host.text("stdoutWrite") == "here\n"
    host.reset()
    (house.settings / "watch.conf").write_text("[main]\nenabled=0\n")
    house.collect()
    (house.settings / "watch.conf").unlink()
    house.configure(plugins="0")
    house.collect()
    assert host.text("stdoutWrite") == ""


def test_this_machines_plugins_are_used_where_nothing_is_said(house: House) -> None:
    from vemyum.dnf4.configuration import Settings

    house.estate.write_main_config()
    conf = Settings().conf
    assert conf.plugins and list(conf.pluginpath) == [dnf.const.PLUGINPATH]
    assert list(conf.pluginconfpath) == [f"{house.estate.root}/etc/dnf/plugins"]


def test_this_machines_plugins_are_for_another_root_where_that_configures_them(
    house: House, host: FakeHost, monkeypatch: pytest.MonkeyPatch
) -> None:
    monkeypatch.setattr(dnf.const, "PLUGINPATH", str(house.folder))
    house.configure(**{"pluginpath": None})
    house.hook("sack", "print('ours')", name="our_watch")
    house.plugin("print('of this machine')\n", name="zoo")
    assert house.lacking() == []
    assert host.text("stdoutWrite") == ""
    (house.settings / "our-watch.conf").write_text("[main]\n")
    assert house.lacking() == []
    assert host.text("stdoutWrite") == "ours\n"


def test_paths_of_a_plugins_configuration_are_the_managed_systems(house: House, host: FakeHost) -> None:
    house.hook("sack", "print(self.read_config(self.base.conf).get('main', 'list'))")
    (house.settings / "away").symlink_to("/srv")
    for path, place in (("/etc/list", "etc/list"), ("/etc/dnf/plugins/away/list", "srv/list")):
        (house.settings / "watch.conf").write_text(f"[main]\nlist={path}\n")
        host.reset()
        house.collect()
        assert host.text("stdoutWrite") == f"{house.estate.root}/{place}\n"


def test_commands_are_not_registered(house: House, host: FakeHost) -> None:
    house.plugin(
        "import dnf.cli\n"
        "@dnf.plugin.register_command\n"
        "class Watching(dnf.cli.Command):\n    aliases = ('watching',)\n    summary = 'watches'\n"
        "class Watch(dnf.Plugin):\n    name = 'watch'\n"
        "    def __init__(self, base, cli):\n        super().__init__(base, cli)\n        print(cli)\n"
    )
    assert house.lacking() == []
    assert host.text("stdoutWrite") == "None\n"
    assert "Loaded plugins: watch" in host.text("log").splitlines()


def test_what_is_printed_is_in_the_log(house: House, host: FakeHost) -> None:
    house.hook("resolved", "print('said by a plugin')")
    house.apply()
    assert "said by a plugin\n" in host.text("stdoutWrite")


def test_pythons_warnings_of_an_apply_are_in_the_log(house: House, host: FakeHost) -> None:
    house.hook("resolved", "import warnings; warnings.warn('old ways')")
    house.apply()
    assert "UserWarning: old ways" in host.text("warninglog")
    assert "UserWarning: old ways" in (house.estate.root / "var/log/dnf.log").read_text(encoding="utf-8")


def test_change_of_the_repositories_counts(house: House) -> None:
    house.hook("config", "self.base.repos['base'].excludepkgs = ['battery']")
    assert house.collect().merged() == {"lone": "UpToDate", "lib": "Available"}


def test_session_has_the_last_word_about_a_repository(house: House, rpms: Catalogue) -> None:
    house.estate.repository("more", rpms.some("app-1.0"))
    house.hook("config", "self.base.repos['more'].disable()")
    assert "app" not in house.collect().merged()
    house.program.clear()
    yumio = house.program.start()
    yumio.repos.enableRepo("more")
    yumio.setupRepos()
    found = Collection(yumio)
    found.yumio.apply([found.offered("app")], [], [])
    assert "app-1.0-1.noarch" in house.estate.installed()


def test_changed_file_counts_at_the_next_collection(house: House, host: FakeHost) -> None:
    for word in ("first", "other"):
        house.hook("sack", f"print('{word}')")
        # Made within the same second, and as long.
        shutil.rmtree(house.folder / "__pycache__", ignore_errors=True)
        host.reset()
        house.collect()
        assert host.text("stdoutWrite") == f"{word}\n"
    (house.folder / "watch.py").unlink()
    host.reset()
    house.collect()
    assert host.text("stdoutWrite") == ""


def test_nothing_of_them_is_left_when_a_base_is_closed(house: House) -> None:
    import gc
    import weakref

    house.hook("sack", "pass")
    house.collect()
    base = house.program.yumio._session.system._base
    (plugin,) = map(weakref.ref, base._plugins.plugins)
    gone = weakref.ref(base)
    del base
    house.program.clear()
    gc.collect()
    assert plugin() is None and gone() is None


# Failures ---------------------------------------------------------------------------------------------


FAULTS = {
    "import": "import nothing_of_the_kind\n",
    "syntax": "class\n",
    "exit": "import sys\nsys.exit(3)\n",
    "init": "class Watch(dnf.Plugin):\n    name = 'watch'\n    def __init__(self, base, cli):\n        cli.register_command(1)\n",
    "bug": "class Watch(dnf.Plugin):\n    name = 'watch'\n    def sack(self):\n        return 1 / 0\n",
    "error": "class Watch(dnf.Plugin):\n    name = 'watch'\n    def config(self):\n        raise dnf.exceptions.Error('no list')\n",
}


@pytest.mark.parametrize("fault", FAULTS)
def test_plugin_that_fails_leaves_the_table_and_is_told(house: House, host: FakeHost, fault: str) -> None:
    house.plugin(FAULTS[fault])
    house.hook("sack", "print('another')", name="zoo")
    (text,) = house.lacking()
    assert text.startswith("The plugin watch failed (")
    assert text in host.text("warninglog") and not host.text("errorlog")
    assert "Traceback" in host.text("log")
    assert host.text("stdoutWrite") == "another\n"


def test_configuration_that_cannot_be_read_costs_its_plugin_only(house: House, host: FakeHost) -> None:
    house.hook("sack", "print('watching')")
    house.hook("sack", "print('another')", name="zoo")
    (house.settings / "watch.conf").write_text("[main\n")
    (text,) = house.lacking()
    assert text.startswith("The plugin watch failed (enabled): ") and "watch.conf" in text
    assert host.text("stdoutWrite") == "another\n"


@pytest.mark.parametrize("hook", ["config", "sack", "resolved", "pre_transaction"])
def test_error_stops_an_apply_as_it_stops_the_command_line(house: House, hook: str) -> None:
    house.hook(hook, "raise dnf.exceptions.Error('not today')")
    with pytest.raises(house.program.errors.YumBaseError) as caught:
        house.apply()
    assert f"The plugin watch failed ({hook}): not today" in str(caught.value)
    assert "refresh" not in str(caught.value)
    assert house.estate.installed() == {"lone-1.0-1.noarch"}


@pytest.mark.parametrize(
    "hook, line",
    [
        ("resolved", "1 / 0"),
        ("pre_transaction", "1 / 0"),
        ("transaction", "1 / 0"),
        ("transaction", "raise dnf.exceptions.Error('too late')"),
        ("transaction", "raise SystemExit(1)"),
    ],
)
def test_fault_of_a_plugin_itself_stops_nothing(house: House, host: FakeHost, hook: str, line: str) -> None:
    house.hook(hook, line)
    house.apply()
    assert house.estate.installed() == {"lone-1.0-1.noarch", "battery-1.0-1.noarch"}
    assert f"The plugin watch failed ({hook}): " in host.text("warninglog")
    assert host.named("postTransactionOutput")


# Locked versions --------------------------------------------------------------------------------------


@pytest.fixture
def locked(house: House, rpms: Catalogue) -> House:
    """tool 1.0 and lib 1.0 are installed, 2.0 of both is offered; what locks versions is dnf's own plugin."""
    original = Path(dnf.const.PLUGINPATH) / "versionlock.py"
    if not original.exists():
        pytest.skip("this machine has no versionlock")
    shutil.copy(original, house.folder)
    (house.settings / "versionlock.conf").write_text(
        "[main]\nenabled = 1\nlocklist = /etc/dnf/plugins/versionlock.list\n"
    )
    (house.settings / "versionlock.list").write_text("")
    house.estate.install(rpms.some("lib-1.0", "tool-1.0"))
    house.estate.repository("base", rpms.some("lone-1.0", "lib-1.0", "lib-2.0", "tool-1.0", "tool-2.0", "app-1.0"))
    return house


def lock(house: House, *lines: str) -> None:
    (house.settings / "versionlock.list").write_text("".join(f"{line}\n" for line in lines))


def test_locked_package_is_no_update(locked: House) -> None:
    before = {"lone": "UpToDate", "lib": "OutOfDate", "tool": "OutOfDate", "app": "Available"}
    assert locked.collect().merged() == before
    lock(locked, "lib-0:1.0-1.*")
    assert locked.collect().merged() == {**before, "lib": "UpToDate"}
    lock(locked, "!app")
    found = locked.collect().merged()
    assert found == {name: state for name, state in before.items() if name != "app"}


def test_locked_package_is_not_updated_for_the_sake_of_another(locked: House) -> None:
    found = locked.collect()
    lock(locked, "lib-0:1.0-1.*")
    with pytest.raises(locked.program.errors.YumBaseError):
        found.yumio.apply([], [found.pair("tool")], [])
    assert {"lib-1.0-1.noarch", "tool-1.0-1.noarch"} <= locked.estate.installed()
    lock(locked)
    found.yumio.apply([], [found.pair("tool")], [])
    assert {"lib-2.0-1.noarch", "tool-2.0-1.noarch"} <= locked.estate.installed()


def test_missing_list_of_locks_is_told_and_stops_an_apply(locked: House) -> None:
    (locked.settings / "versionlock.list").unlink()
    (text,) = locked.lacking()
    assert text.startswith("The plugin versionlock failed (sack): ")
    # The managed system's own file, not that of this machine.
    assert "versionlock.list" in text and "versionlock.conf" not in text
    with pytest.raises(locked.program.errors.YumBaseError, match="versionlock"):
        locked.apply("app")
    assert "app-1.0-1.noarch" not in locked.estate.installed()
