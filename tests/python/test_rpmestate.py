# SPDX-License-Identifier: GPL-2.0-or-later
"""The estate library makes what rpm and dnf themselves can read."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

import pytest

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "estate")]

from dnfreport import dnf_report  # noqa: E402
from rpmestate import Estate, EstateError, shell_spec, spec  # noqa: E402

COMPS = """<?xml version="1.0" encoding="UTF-8"?>
<comps>
  <group>
    <id>light</id><name>Light</name><description>Lamps.</description>
    <uservisible>true</uservisible>
    <packagelist><packagereq type="mandatory">lamp</packagereq></packagelist>
  </group>
</comps>
"""


@pytest.fixture(name="estate")
def fixture_estate(tmp_path: Path) -> Estate:
    return Estate(tmp_path / "estate")


def test_install_update_and_query(estate: Estate) -> None:
    old, new = estate.build([spec("lamp", "1.0", epoch=2), spec("lamp", "1.1", epoch=2)])
    assert estate.installed() == set()
    estate.install([old])
    assert estate.installed() == {"lamp-2:1.0-1.noarch"}
    estate.install([new])
    assert estate.installed() == {"lamp-2:1.1-1.noarch"}


def test_build_gives_rpms_in_the_order_of_specs_for_the_architecture_asked(estate: Estate) -> None:
    specs = [spec(name, arch=None) for name in ("one", "two", "three")] + [spec("four")]
    names = [path.name for path in estate.build(specs, arch="i686")]
    assert names == [f"{name}-1.0-1.i686.rpm" for name in ("one", "two", "three")] + ["four-1.0-1.noarch.rpm"]


def test_a_spec_file_finds_its_sources_beside_itself(estate: Estate, tmp_path: Path) -> None:
    (tmp_path / "note.txt").write_text("a note\n")
    path = tmp_path / "note.spec"
    text = spec("note", tags={"Source0": "note.txt"})
    text = text.replace("%install\n", "%install\ninstall -D %{SOURCE0} %{buildroot}/usr/share/note.txt\n")
    path.write_text(text.replace("%files\n", "%files\n/usr/share/note.txt\n"))
    estate.install(estate.build(path))
    assert (estate.root / "usr/share/note.txt").read_text() == "a note\n"


def test_files_are_put_there_literally(estate: Estate) -> None:
    text = "100% of $HOME `kept`\n\nGrüße\n"
    estate.install(estate.build(spec("lamp", files={"/usr/share/lamp/read me": text})))
    assert (estate.root / "usr/share/lamp/read me").read_text(encoding="utf-8") == text


def test_a_failed_build_names_the_cause(estate: Estate) -> None:
    with pytest.raises(EstateError, match="Bad exit status"):
        estate.build(spec("broken").replace("%install\n", "%install\nfalse\n"))


def test_missing_dependency_stops_the_installation(estate: Estate) -> None:
    rpms = estate.build(spec("shade", requires=["lamp"]))
    with pytest.raises(EstateError, match="lamp is needed by shade"):
        estate.install(rpms)
    assert estate.installed() == set()


def test_lua_scriptlet_prints_without_a_shell(estate: Estate) -> None:
    rpms = estate.build(spec("lamp", scriptlets={"post -p <lua>": 'print("lamp lit")'}))
    assert "lamp lit" in estate.install(rpms)


def test_shell_scriptlet_runs_below_the_root(estate: Estate) -> None:
    shell, lamp = estate.build(
        [shell_spec("estate-shell"), spec("lamp", scriptlets={"post": "cat /etc/mark\necho from the shell"})],
        arch="x86_64",
    )
    (estate.root / "etc/mark").write_text("inside\n")
    estate.install([shell])
    output = estate.install([lamp])
    assert "inside" in output
    assert "from the shell" in output


def test_plain_dnf_sees_the_estate(estate: Estate) -> None:
    old, new = estate.build([spec("lamp", "1.0"), spec("lamp", "1.1")])
    estate.install([old])
    estate.write_main_config()
    estate.repository("base", [old], name="The base", comps=COMPS)
    estate.repository("updates", [new], name="Updates")
    estate.repository("testing", [new], enabled=False)
    report = dnf_report(estate)
    assert report["installed"] == ["lamp-1.0-1.noarch"]
    assert report["upgrades"] == ["lamp-1.1-1.noarch"]
    assert report["groups"] == {"Light": True}
    assert report["repositories"] == {
        "base": ["The base", True],
        "testing": ["testing", False],
        "updates": ["Updates", True],
    }


def test_plain_rpm_sees_the_same_database(estate: Estate) -> None:
    estate.install(estate.build(spec("lamp")))
    plain = subprocess.run(
        ["rpm", "--root", str(estate.root), "-qa"],
        env=estate.command_environment(), check=True, stdout=subprocess.PIPE, text=True,
    )
    assert plain.stdout.split() == ["lamp-1.0-1.noarch"]


def test_the_database_of_the_host_is_left_alone(
    estate: Estate, tmp_path: Path, monkeypatch: pytest.MonkeyPatch
) -> None:
    home = tmp_path / "home"
    home.mkdir()
    monkeypatch.setenv("HOME", str(home))
    estate.install(estate.build(spec("lamp")))
    estate.installed()
    assert list(home.iterdir()) == []


def test_an_estate_can_be_opened_again(estate: Estate) -> None:
    estate.install(estate.build(spec("lamp")))
    assert Estate(estate.directory).installed() == {"lamp-1.0-1.noarch"}


def test_repository_keys_can_be_added_replaced_and_left_out(estate: Estate) -> None:
    estate.repository(
        "base", [], baseurl="http://127.0.0.1:9/base", extra={"gpgcheck": "1", "name": None, "priority": "5"}
    )
    text = (estate.root / "etc/yum.repos.d/base.repo").read_text()
    assert text == "[base]\nbaseurl=http://127.0.0.1:9/base\nenabled=1\ngpgcheck=1\npriority=5\n"


def test_main_configuration_options_replace_and_drop_defaults(estate: Estate) -> None:
    path = estate.write_main_config(keepcache="1", gpgcheck=None)
    assert path == estate.root / "etc/yum.conf"
    assert path.read_text() == "[main]\nkeepcache=1\nobsoletes=1\n"
