# SPDX-License-Identifier: GPL-2.0-or-later
"""The same on two equal roots, by this program and by `dnf5`: packages, reasons and where they come from."""

from __future__ import annotations

from typing import Any, Callable, Dict, List, Tuple

import pytest
from apply5 import Apply, command_line, reasons, state
from catalogue import Catalogue
from rpmestate import Estate

Step = Tuple[List[str], List[str], List[str]]
"""What is marked to come in and to go, and the command line for the same."""

CASES: Dict[str, Tuple[List[str], List[str], List[Step]]] = {
    "a dependency comes along": ([], ["app-1.0", "lib-1.0"], [(["app-1.0"], [], ["install", "app"])]),
    "a dependency goes along": (
        [],
        ["app-1.0", "lib-1.0"],
        [(["app-1.0"], [], ["install", "app"]), ([], ["app-1.0"], ["remove", "app"])],
    ),
    "what needs it goes along": (
        ["app-1.0", "lib-1.0", "desk-1.0"],
        ["lib-2.0"],
        [([], ["lib-1.0"], ["remove", "lib"])],
    ),
    "an update inherits": (
        [],
        ["app-1.0", "lib-1.0"],
        [(["app-1.0"], [], ["install", "app"]), (["lib-2.0"], [], ["upgrade", "lib"])],
    ),
    "an update of what came otherwise": (
        ["lamp-1.0", "current-2.5", "battery-1.0"],
        ["lamp-1.1"],
        [(["lamp-1.1"], [], ["upgrade", "lamp"])],
    ),
    "one takes another's place": (
        ["oldlamp-1.0"],
        ["newlamp-1.0"],
        [(["newlamp-1.0"], [], ["upgrade", "oldlamp"])],
    ),
    "one more kernel": (["core-1.0"], ["core-2.0"], [(["core-2.0"], [], ["upgrade", "core"])]),
    "kernels beyond the limit": (
        ["core-1.0", "core-2.0"],
        ["core-3.0"],
        [(["core-3.0"], [], ["--setopt=installonly_limit=2", "upgrade", "core"])],
    ),
    "a scriptlet fails behind": (["lib-1.0"], ["badpost-1.0"], [(["badpost-1.0"], [], ["install", "badpost"])]),
    "a scriptlet fails before": (["lib-1.0"], ["badpre-1.0"], [(["badpre-1.0"], [], ["install", "badpre"])]),
    "a native package gives way to noarch": (
        ["panel-1.0"],
        ["panel-2.0"],
        [(["panel-2.0"], [], ["upgrade", "panel"])],
    ),
    "excluded packages are hidden": (
        ["lib-1.0", "app-1.0", "lone-1.0"],
        ["desk-1.0", "lib-2.0"],
        [(["desk-1.0"], [], ["install", "desk"])],
    ),
}
OPTIONS = {"kernels beyond the limit": {"installonly_limit": "2"}, "excluded packages are hidden": {"exclude": "app"}}


@pytest.mark.parametrize("case", CASES)
def test_both_roads_lead_to_the_same(
    case: str, estate: Estate, new_estate: Callable[[str], Estate], rpms: Catalogue, host: Any
) -> None:
    there, offered, steps = CASES[case]
    twin = new_estate("twin")
    for one in (estate, twin):
        one.write_main_config(**OPTIONS.get(case, {}))
        for key in there:
            one.rpm("--install", "--oldpackage", *_options(), rpms[key])
    for incoming, removes, command in steps:
        for one in (estate, twin):
            one.repository("base", rpms.some(*dict.fromkeys((*offered, *incoming))))
        Apply(rpms.some(*incoming), rpms.some(*removes)).run()
        done = command_line(twin, *command)
        assert estate.installed() == twin.installed(), done.stdout
    assert state(estate) == state(twin), done.stdout


def test_reasons_are_kept(estate: Estate, rpms: Catalogue, host: Any) -> None:
    estate.repository("base", rpms.some("app-1.0", "lib-1.0"))
    Apply([rpms["app-1.0"]]).run()
    assert reasons(estate) == {"app.noarch": "User", "lib.noarch": "Dependency"}
    estate.repository("base", rpms.some("lib-2.0"))
    Apply([rpms["lib-2.0"]]).run()
    assert reasons(estate) == {"app.noarch": "User", "lib.noarch": "Dependency"}


def _options() -> List[str]:
    from rpmestate import install_options

    return [*install_options(), "--nodeps"]
