# SPDX-License-Identifier: GPL-2.0-or-later
"""Marks that libdnf5 would take in another way than asked."""

from __future__ import annotations

from typing import List

import pytest
from apply5 import Apply, kinds
from catalogue import Catalogue
from rpmestate import Estate, install_options


LOCK = """
version = "1.0"
[[packages]]
name = "lib"
[[packages.conditions]]
key = "evr"
comparator = "="
value = "1.0-1"
"""


def refusal(incoming: List[str], removes: List[str], rpms: Catalogue) -> str:
    from vemyum.errors import YumBaseError

    with pytest.raises(YumBaseError) as error:
        Apply(rpms.some(*incoming), rpms.some(*removes)).plan()
    return str(error.value)


def doubled(estate: Estate, rpms: Catalogue, *keys: str) -> None:
    for key in keys:
        estate.rpm("--install", "--force", "--nodeps", "--justdb", *install_options(), rpms[key])


def test_a_removal_that_would_be_lost_is_told(estate: Estate, rpms: Catalogue) -> None:
    estate.install([rpms["lib-1.0"]])
    estate.repository("base", [rpms["lib-2.0"]])
    assert "Nothing is to be done about lib-1.0-1.noarch" in refusal(["lib-2.0"], ["lib-1.0"], rpms)


def test_a_plan_with_problems_is_none(estate: Estate, rpms: Catalogue) -> None:
    """The library lists its packages all the same."""
    estate.install([rpms["lib-1.0"]])
    estate.repository("base", rpms.some("lost-1.0"))
    assert "nothing provides nowhere = 7" in refusal(["lost-1.0"], [], rpms)


def test_a_removal_takes_along_what_the_rest_does_not(estate: Estate, rpms: Catalogue) -> None:
    estate.install(rpms.some("lib-1.0", "app-1.0", "lone-1.0"))
    estate.repository("base", rpms.some("rival-1.0", "moebel-1.0"))
    assert "conflicts with lone" in refusal(["rival-1.0"], ["lib-1.0"], rpms)
    planned = Apply([rpms["moebel-1.0"]], [rpms["lib-1.0"]]).plan()
    assert kinds(planned) == {"moebel-1.0": "install", "lib-1.0": "remove", "app-1.0": "(remove)"}


@pytest.mark.parametrize("incoming", [[], ["moebel-1.0"]])
def test_an_excluded_package_can_go(estate: Estate, rpms: Catalogue, incoming: List[str]) -> None:
    estate.write_main_config(exclude="lib")
    estate.install(rpms.some("lib-1.0", "app-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "moebel-1.0"))
    apply = Apply(rpms.some(*incoming), [rpms["lib-1.0"]])
    apply.run()
    assert sorted(apply.transaction.installed_names()) == ["app", "lib"]
    assert estate.installed() == {f"{key}-1.noarch" for key in incoming}


def test_what_is_excluded_does_not_come_in_beside_one_that_goes(estate: Estate, rpms: Catalogue) -> None:
    estate.write_main_config(exclude="lib")
    estate.install(rpms.some("lib-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "tool-2.0"))
    assert "lib" in refusal(["tool-2.0"], ["lib-1.0"], rpms)


def test_nothing_comes_in_with_removals_alone(estate: Estate, rpms: Catalogue) -> None:
    estate.install(rpms.some("lib-1.0", "tool-1.0"))
    estate.repository("base", rpms.some("lib-2.0"))
    assert kinds(Apply([], [rpms["lib-1.0"]]).plan()) == {"lib-1.0": "remove", "tool-1.0": "(remove)"}


def test_a_locked_version_stays_and_is_no_update(estate: Estate, rpms: Catalogue) -> None:
    from vemyum.dnf5 import settings, system

    def updates() -> List[str]:
        table = system.open_system(settings.read_settings())
        table.load()
        return sorted(row.name for row in table.upgrades())

    estate.install(rpms.some("lib-1.0", "tool-1.0"))
    estate.repository("base", rpms.some("lib-2.0", "tool-2.0"))
    assert updates() == ["lib", "tool"]
    locks = estate.root / "etc/dnf/versionlock.toml"
    locks.parent.mkdir(parents=True, exist_ok=True)
    locks.write_text(LOCK)
    assert updates() == ["tool"]
    # It needs the one that is kept out.
    assert "lib" in refusal(["tool-2.0"], [], rpms)
    locks.unlink()
    assert kinds(Apply([rpms["tool-2.0"]]).plan()) == {"tool-2.0": "upgrade", "lib-2.0": "(upgrade)"}


def test_a_protected_package_stays(estate: Estate, rpms: Catalogue) -> None:
    estate.write_main_config(protected_packages="lib")
    estate.install(rpms.some("lib-1.0", "app-1.0"))
    assert "protected packages: lib" in refusal([], ["lib-1.0"], rpms)


def test_the_older_version_of_a_protected_package_goes(estate: Estate, rpms: Catalogue) -> None:
    estate.write_main_config(protected_packages="lib")
    estate.repository("base", [rpms["lib-2.0"]])
    doubled(estate, rpms, "lib-1.0", "lib-2.0", "app-1.0")
    assert kinds(Apply([], [rpms["lib-1.0"]]).plan()) == {"lib-1.0": "remove"}
    assert "protected packages: lib" in refusal([], ["lib-1.0", "lib-2.0"], rpms)


def test_what_an_older_version_needs_stays(estate: Estate, rpms: Catalogue) -> None:
    """Clean requirements would go by what the older version brought in."""
    estate.repository("base", rpms.some("tool-1.0", "lib-1.0"))
    Apply([rpms["tool-1.0"]]).run()
    doubled(estate, rpms, "tool-2.0")
    estate.repository("base", rpms.some("lib-2.0", "tool-2.0"))
    assert kinds(Apply([], [rpms["tool-1.0"]]).plan()).get("lib-1.0") is None


def test_one_of_several_kernels_goes(estate: Estate, rpms: Catalogue) -> None:
    estate.install([rpms["core-1.0"]])
    estate.repository("base", rpms.some("core-2.0", "core-3.0"))
    Apply([rpms["core-2.0"]]).run()
    assert estate.installed() == {"core-1.0-1.noarch", "core-2.0-1.noarch"}
    planned = Apply([rpms["core-3.0"]], [rpms["core-1.0"]]).plan()
    assert kinds(planned) == {"core-3.0": "install", "core-1.0": "remove"}


def test_kinds_of_changes(estate: Estate, rpms: Catalogue) -> None:
    estate.install(rpms.some("oldlamp-1.0", "panel-1.0", "lib-1.0"))
    estate.repository("base", rpms.some("newlamp-1.0", "panel-2.0", "app-1.0", "lib-2.0"))
    apply = Apply(rpms.some("newlamp-1.0", "panel-2.0", "lib-2.0", "app-1.0"))
    planned = apply.plan()
    assert kinds(planned) == {
        "panel-2.0": "upgrade",
        "lib-2.0": "upgrade",
        "newlamp-1.0": "install",
        "app-1.0": "install",
        "oldlamp-1.0": "(obsoleted)",
    }
    (old,) = [one for one in planned if one.kind == "obsoleted"]
    assert planned[old.replaced_by].name == "newlamp"
    assert len(apply.transaction.incoming()) == 4
    assert {name for name, *_ in apply.transaction.outgoing()} == {"oldlamp", "panel", "lib"}


def test_a_step_back_is_told_as_a_replacement(estate: Estate, rpms: Catalogue) -> None:
    estate.install([rpms["lib-2.0"]])
    estate.repository("base", [rpms["lib-1.0"]])
    planned = Apply([rpms["lib-1.0"]]).plan()
    assert kinds(planned) == {"lib-1.0": "install", "lib-2.0": "(replaced)"}


def test_metadata_are_no_newer_than_the_table(estate: Estate, rpms: Catalogue) -> None:
    estate.write_main_config(metadata_expire="0")
    estate.repository("base", [rpms["lib-1.0"]])
    apply = Apply([rpms["lib-1.0"]])
    estate.repository("base", [rpms["lib-2.0"]])
    assert kinds(apply.plan()) == {"lib-1.0": "install"}
    # It is what a new table shows.
    assert kinds(Apply([rpms["lib-2.0"]]).plan()) == {"lib-2.0": "install"}
