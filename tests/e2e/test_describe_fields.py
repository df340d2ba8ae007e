# SPDX-License-Identifier: GPL-2.0-or-later
"""Every field of the description dialog on real rpms: of the rpm database, and of a repository behind a server."""
from __future__ import annotations

import time
from pathlib import Path
from typing import Callable, Mapping

import pytest
from web import Web

from program import NAME_COLUMN, Atspi, Program, has_state, wait_for, walk
from rpmestate import Estate, run, spec

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]
DESCRIPTION = "VEM Package Description"
NOTE = "Show (must load extra data)"
FILES = 100_000
CHANGES = 10_000

COMPS = """<?xml version="1.0" encoding="UTF-8"?>
<comps><group><id>yard</id><name>Yard &amp; Slip</name>
<description>Where ships are built</description><description xml:lang="de">Wo Schiffe gebaut werden</description>
<uservisible>true</uservisible><packagelist>
<packagereq type="mandatory">mast</packagereq><packagereq type="mandatory">keel</packagereq>
<packagereq type="default">sail</packagereq><packagereq type="optional">flag</packagereq>
<packagereq type="conditional" requires="mast">stay</packagereq></packagelist></group></comps>
"""


def complete_spec(name: str, group: str) -> str:
    """A package with everything that a spec file can say."""
    return spec(
        name, "1.5", "2", epoch=3, summary=f"A {name} & more", group=group,
        description="Of <b>oak</b>.\n\nAnd of pitch.",
        requires=["wood >= 1:2.0-3", "rope", "(tar or pitch)"], provides=["spar = 2:1-1", "beam"],
        conflicts=["worm < 3"], obsoletes=["raft <= 1.0"],
        files={"/opt/yard/upper": "u", "/opt/yard/lower": "l"},
        changelog="* Tue Mar 12 2024 Ada <ada@yard.example> - 1.5-2\n- Longer\n\n"
        "* Mon Jan 15 2024 Bo <bo@yard.example> - 1.5-1\n- First",
        tags={
            "Vendor": "Yard & Sons", "Packager": "Ada <ada@yard.example>", "URL": "https://yard.example/",
            "Prefix": "/opt",
        },
    )


def undecodable_spec() -> bytes:
    """Texts of an 8 bit encoding, as old packages have them."""
    text = spec(
        "oldboat", summary="Bl\udcfcte", files={"/usr/share/oldboat/caf\udce9": "x"}, provides=["gr\udcfcn = 1"],
        changelog="* Tue Mar 12 2024 J\udcf6rg <j@yard.example> - 1.0-1\n- \udce9t\udce9",
        tags={"Vendor": "M\udcf6bel", "Packager": "J\udcf6rg"},
    )
    return text.encode("utf-8", "surrogateescape")


@pytest.fixture(scope="session")
def hulls(tmp_path_factory: pytest.TempPathFactory) -> Mapping[str, Path]:
    estate = Estate(tmp_path_factory.mktemp("hulls"))
    odd = estate.directory / "oldboat.spec"
    odd.write_bytes(undecodable_spec())
    specs = [
        complete_spec("keel", "Yard/Timber"), complete_spec("mast", "Yard/Timber"), complete_spec("fleet", "Suite"),
        spec("plank", files={"/usr/share/plank": "one file"}), spec("fog"), odd,
    ]
    rpms = estate.build(specs, defines={"_invalid_encoding_terminates_build": "0"})
    return dict(zip(("keel", "mast", "fleet", "plank", "fog", "oldboat"), rpms))


@pytest.fixture
def yard(hulls: Mapping[str, Path], tmp_path: Path) -> Estate:
    estate = Estate(tmp_path / "yard")
    estate.write_main_config()
    estate.install([hulls[name] for name in ("keel", "plank", "fog", "oldboat")], ["--nodeps"])
    estate.repository("slip", [hulls["mast"], hulls["fleet"]], name="The Slip", comps=COMPS)
    return estate


def describe(program: Program, name: str) -> Atspi.Accessible:
    program.click_cell(name, NAME_COLUMN)
    program.press("Describe", program.window("VEM - "))
    return program.window(DESCRIPTION)


def leave(program: Program) -> None:
    program.key("Escape")
    program.wait_closed(DESCRIPTION)


def fields(window: Atspi.Accessible) -> list[tuple[str, ...]]:
    """The words of the dialog's rows: the label, what stands beside it."""
    rows: list[tuple[str, ...]] = []
    for node in walk(window):
        if node.get_role() in (Atspi.Role.LABEL, Atspi.Role.PUSH_BUTTON):
            word = node.get_name()
            if word.endswith(":") and node.get_role() == Atspi.Role.LABEL:
                rows.append((word[:-1],))
            elif rows and word:  # A section that hasn't been opened has none.
                rows[-1] += (word,)
    return rows


def press_show(window: Atspi.Accessible, label: str, area: int = 0) -> None:
    buttons = [node for node in walk(window) if node.get_role() == Atspi.Role.PUSH_BUTTON]
    shows = [button for button in buttons if button.get_name().startswith("Show")]
    Atspi.Action.do_action(shows[2 * area + ("Files", "Change Log").index(label)], 0)


def read_text(program: Program, title: str, timeout: float = 60) -> str:
    """What the text window holds; closes it."""
    window = program.window(title, timeout)
    edit = program.wait("Text", Atspi.Role.TEXT, inside=window)
    text = program.text_of(edit)
    # No click: the window may still be on its way to where the window manager wants it.
    Atspi.Action.do_action(program.wait("Close", Atspi.Role.PUSH_BUTTON, inside=window), 0)
    program.wait_closed(title)
    return text


def of_rpm(estate: Estate, name: str, tag: str) -> str:
    """A time of the rpm database, as ctime(3) words it."""
    return time.ctime(int(estate.rpm("-q", "--qf", f"%{{{tag}}}", name)))


def build_time(hull: Path) -> str:
    return time.ctime(int(run(["rpm", "-qp", "--qf", "%{BUILDTIME}", hull])))


CHANGE_LOG = (
    "* Tue Mar 12 2024 Ada <ada@yard.example> - 1.5-2\n- Longer\n\n"
    "* Mon Jan 15 2024 Bo <bo@yard.example> - 1.5-1\n- First"
)


def test_an_installed_package_shows_what_the_rpm_database_holds(yard: Estate, start: Start) -> None:
    program = start(yard)
    program.wait_ready()
    program.choose("View All")
    window = describe(program, "keel")
    shown = fields(window)
    requires = dict(row for row in shown if len(row) == 2)["Requires"].split("\n")
    own = [line for line in requires if not line.startswith("rpmlib(")]
    # rpm's header has neither flags nor version here, which leaves its two blanks.
    assert own == ["(tar or pitch)  ", "rope  ", "wood >= 1:2.0-3"]
    assert [row for row in shown if row[0] != "Requires"] == [
        ("Kind", "Ordinary package"),
        ("Version", "3:1.5-2"),
        ("Architecture", "noarch"),
        ("Size", "4.0b"),
        ("Summary", "A keel & more"),
        ("Description", "Of <b>oak</b>.\n\nAnd of pitch."),
        ("Group", "Yard/Timber"),
        ("Vendor", "Yard & Sons"),
        ("Build Time", of_rpm(yard, "keel", "BUILDTIME")),
        ("Build Host", "builder.estate.example"),
        ("Install Time", of_rpm(yard, "keel", "INSTALLTIME")),
        ("License", "MIT"),
        ("Packager", "Ada <ada@yard.example>"),
        ("URL", "https://yard.example/"),
        ("Relocations", "/opt"),
        ("Provides", "beam  \nkeel = 3:1.5-2\nspar = 2:1-1"),
        ("Conflicts", "worm < 3"),
        ("Obsoletes", "raft <= 1.0"),
        ("Files", "Show"),
        ("Change Log", "Show"),
    ]
    press_show(window, "Files")
    assert read_text(program, "keel 3:1.5-2 File List") == "/opt/yard/lower\n/opt/yard/upper"
    press_show(window, "Change Log")
    assert read_text(program, "keel 3:1.5-2 Change Log") == CHANGE_LOG


def test_what_only_the_header_told_is_missing_once_the_package_is_erased(yard: Estate, start: Start) -> None:
    program = start(yard)
    program.wait_ready()
    program.choose("View All")
    yard.rpm("-e", "keel")
    window = describe(program, "keel")
    assert [row[0] for row in fields(window)] == [
        "Kind", "Version", "Architecture", "Size", "Summary", "Description", "Group", "Vendor", "Build Time", "License",
        "Packager", "URL", "Files", "Change Log",
    ]
    for label, title in (("Files", "File List"), ("Change Log", "Change Log")):
        press_show(window, label)
        assert read_text(program, f"keel 3:1.5-2 {title}") == ""
    assert [shown.get_name() for shown in program.windows()][1:] == [DESCRIPTION], "no report"


@pytest.mark.parametrize(("name", "kind", "group"), [
    ("mast", "Ordinary package", "Yard/Timber"), ("fleet", "Suite of packages", "Suite"),
])
def test_a_package_of_a_repository_shows_what_that_tells(
    name: str, kind: str, group: str, yard: Estate, hulls: Mapping[str, Path], start: Start
) -> None:
    program = start(yard)
    program.wait_ready()
    program.choose("View All")
    window = describe(program, name)
    file = hulls[name].name
    assert [row for row in fields(window) if row[0] != "Size"] == [
        ("Kind", kind),
        ("Version", "3:1.5-2"),
        ("Repository", "slip", "Details"),
        ("Architecture", "noarch"),
        ("Summary", f"A {name} & more"),
        ("Description", "Of <b>oak</b>.\n\nAnd of pitch."),
        ("Group", group),
        ("Vendor", "Yard & Sons"),
        ("Build Time", build_time(hulls[name])),
        ("Build Host", "builder.estate.example"),
        ("Binary RPM", file),
        ("Source RPM", file),
        ("License", "MIT"),
        ("Packager", "Ada <ada@yard.example>"),
        ("URL", "https://yard.example/"),
        ("Provides", f"beam\n{name} = 3:1.5-2\nspar = 2:1-1"),
        ("Requires", "(tar or pitch)\nrope\nwood >= 1:2.0-3"),
        ("Conflicts", "worm < 3"),
        ("Obsoletes", "raft <= 1.0"),
        ("Files", NOTE),
        ("Change Log", NOTE),
    ]
    press_show(window, "Change Log")
    assert read_text(program, f"{name} 3:1.5-2 Change Log") == CHANGE_LOG
    assert fields(window)[-2:] == [("Files", NOTE), ("Change Log", "Show")]
    press_show(window, "Files")
    assert read_text(program, f"{name} 3:1.5-2 File List") == "/opt/yard/lower\n/opt/yard/upper"
    assert fields(window)[-2:] == [("Files", "Show"), ("Change Log", "Show")]


def test_groups_bare_packages_and_undecodable_texts(yard: Estate, start: Start) -> None:
    program = start(yard)
    program.wait_ready()
    program.choose("View All")
    program.press("Include Groups")
    assert fields(describe(program, "Yard & Slip")) == [
        ("Kind", "Group of packages"),
        ("Description", "Where ships are built"),
        ("Mandatory Packages", "keel\nmast"),
        ("Default Packages", "sail"),
        ("Optional Packages", "flag"),
        ("Conditional Packages", "stay"),
    ]
    leave(program)

    window = describe(program, "fog")
    assert not {"Vendor", "Packager", "URL", "Repository", "Relocations"} & {row[0] for row in fields(window)}
    for label in ("Files", "Change Log"):
        press_show(window, label)
        assert read_text(program, f"fog 1.0-1 {'File List' if label == 'Files' else label}") == ""
    leave(program)

    window = describe(program, "plank")
    press_show(window, "Files")
    assert read_text(program, "plank 1.0-1 File List") == "/usr/share/plank"
    leave(program)

    window = describe(program, "oldboat")
    values = dict(row for row in fields(window) if len(row) == 2)
    assert values["Vendor"] == "M\N{REPLACEMENT CHARACTER}bel"
    assert values["Packager"] == "J\N{REPLACEMENT CHARACTER}rg"
    assert values["Summary"].startswith("Bl") and values["Summary"].endswith("te")
    assert values["Provides"] == "gr\N{REPLACEMENT CHARACTER}n = 1\noldboat = 1.0-1"
    press_show(window, "Files")
    assert read_text(program, "oldboat 1.0-1 File List") == "/usr/share/oldboat/caf\N{REPLACEMENT CHARACTER}"
    press_show(window, "Change Log")
    assert "- \N{REPLACEMENT CHARACTER}t\N{REPLACEMENT CHARACTER}" in read_text(program, "oldboat 1.0-1 Change Log")
    leave(program)


def test_while_extra_data_load_the_dialog_stays_and_the_bars_tell_of_it(
    yard: Estate, serve: Serve, start: Start
) -> None:
    web = serve(yard)
    yard.write_repo_file("slip", baseurl=f"{web.url}/slip")
    program = start(yard)
    program.wait_ready()
    program.choose("View All")

    # What is installed asks the server for nothing.
    window = describe(program, "keel")
    web.forget_requests()
    press_show(window, "Change Log")
    assert read_text(program, "keel 3:1.5-2 Change Log") == CHANGE_LOG
    assert web.requests() == []
    leave(program)

    window = describe(program, "mast")
    web.hold("-other")
    press_show(window, "Change Log")
    total = program.wait("Total Progress", Atspi.Role.PROGRESS_BAR)
    wait_for(lambda: total.get_description() == "Loading miscellaneous data: Total Progress", "the total bar")
    item = program.wait("Item Progress", Atspi.Role.PROGRESS_BAR)
    wait_for(
        lambda: item.get_description() == "Downloading repository miscellaneous data for slip", "the item bar's words"
    )
    wait_for(lambda: Atspi.Value.get_current_value(total) > 0, "the total bar to move")
    buttons = [node for node in walk(window) if node.get_role() == Atspi.Role.PUSH_BUTTON]
    buttons = [button for button in buttons if has_state(button, Atspi.StateType.VISIBLE)]
    assert len(buttons) == 4
    assert not any(has_state(button, Atspi.StateType.ENABLED) for button in buttons)
    for key in ("Escape", "alt+F4", "Return", "space"):
        program.key(key)
    program.click(program.wait("Close", Atspi.Role.PUSH_BUTTON, inside=window))
    web.let_go()
    assert read_text(program, "mast 3:1.5-2 Change Log") == CHANGE_LOG
    assert program.find_window(DESCRIPTION), "the keys and the click have closed it"
    assert sum("-other" in path for path in web.requests()) == 1
    leave(program)

    # Once a collection is enough, whichever package is asked about.
    web.forget_requests()
    window = describe(program, "fleet")
    assert fields(window)[-1] == ("Change Log", "Show")
    press_show(window, "Change Log")
    assert read_text(program, "fleet 3:1.5-2 Change Log") == CHANGE_LOG
    assert web.requests() == []
    leave(program)
    program.press("Refresh")
    program.wait_ready()
    window = describe(program, "fleet")
    assert fields(window)[-1] == ("Change Log", NOTE)


def bulk_spec(version: str) -> str:
    """A package of very many files and changes."""
    changes = [f"* Tue Mar 12 2024 Ada <ada@yard.example> - {version}-{n}\n- Change {n}" for n in range(CHANGES)]
    text = spec("bulk", version, changelog="\n\n".join(changes))
    folders = FILES // 100
    make = f"for n in $(seq 1 {folders}); do\nmkdir -p %{{buildroot}}/opt/$n\n"
    make += "(cd %{buildroot}/opt/$n; touch $(seq 1 100))\ndone"
    return text.replace("%install\n", f"%install\n{make}\n", 1).replace("%files\n", "%files\n/opt/*/*\n", 1)


def test_very_long_lists_show_whole(tmp_path: Path, start: Start) -> None:
    estate = Estate(tmp_path / "bulk")
    old, new = estate.build([bulk_spec("1.0"), bulk_spec("1.1")])
    estate.write_main_config()
    directory = estate.repository("store", [new])
    run(["createrepo_c", "--quiet", "--changelog-limit", str(CHANGES), directory])
    estate.install([old], ["--justdb"])
    program = start(estate)
    program.wait_ready()
    window = describe(program, "bulk")
    # The update's area comes first, the installed version's behind it.
    for area, version in enumerate(("1.1", "1.0")):
        press_show(window, "Files", area)
        names = read_text(program, f"bulk {version}-1 File List").split("\n")
        assert len(names) == FILES == len(set(names))
        assert names == sorted(names)
        press_show(window, "Change Log", area)
        changes = read_text(program, f"bulk {version}-1 Change Log").split("\n\n")
        assert len(changes) == CHANGES


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
