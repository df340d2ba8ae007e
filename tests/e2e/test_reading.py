# SPDX-License-Identifier: GPL-2.0-or-later
"""Reading repositories from a slow server: the bars name each act while it goes on."""
from __future__ import annotations

from pathlib import Path
from typing import Callable, Mapping, Optional, Sequence

import pytest
from web import Web, metalink

from program import Atspi, Program, TimedOut, wait_for
from rpmestate import Estate, spec

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]


@pytest.fixture
def isles(tmp_path: Path) -> Estate:
    """Nothing is installed yet."""
    estate = Estate(tmp_path / "isles")
    estate.write_main_config()
    return estate


def activity(program: Program, bar: str = "Item Progress") -> Optional[str]:
    node = program.find(bar, Atspi.Role.PROGRESS_BAR)
    return node.get_description() if node is not None else None


def follow(program: Program, web: Web, held: Mapping[str, str]) -> Sequence[float]:
    """Waits for each act to be named while its file is held, then lets it go; gives the total bar's values."""
    values = []
    for part, words in held.items():
        try:
            wait_for(lambda: activity(program) == words, words)
        except TimedOut as fault:
            raise AssertionError(f"{fault}; the bar says {activity(program)!r}") from fault
        assert activity(program, "Total Progress") == "Initializing: Total Progress"
        assert not program.is_ready()
        values.append(Atspi.Value.get_current_value(program.wait("Total Progress", Atspi.Role.PROGRESS_BAR)))
        web.let_go(part)
    program.wait_ready()
    return values


@pytest.mark.parametrize("kind", ["address", "mirror list", "metalink"])
def test_each_act_of_a_repository_is_named_while_it_goes_on(
    kind: str, isles: Estate, serve: Serve, start: Start
) -> None:
    (gull,) = isles.build([spec("gull")])
    web = serve(isles)
    held = {
        "repomd": "Downloading repository contents repomd for skerry",
        "primary": "Downloading repository contents for skerry",
    }
    if kind == "address":
        isles.repository("skerry", [gull], baseurl=f"{web.url}/skerry")
    elif kind == "mirror list":
        isles.repository("skerry", [gull], extra={"baseurl": None, "mirrorlist": f"{web.url}/mirrors"})
        web.page("/mirrors", f"{web.url}/skerry/\n".encode())
        held = {"mirrors": "Downloading repository contents mirror list for skerry", **held}
    else:
        directory = isles.repository("skerry", [gull], extra={"baseurl": None, "metalink": f"{web.url}/link"})
        web.page("/link", metalink(directory, f"{web.url}/skerry"))
        held = {"link": "Downloading repository contents mirror list for skerry", **held}
    web.hold(*held)
    program = start(isles)
    values = follow(program, web, held)
    assert values == sorted(values) and len(set(values)) == len(values), "each act begins further on"
    program.choose("View All")
    assert program.names() == ["gull"]
    assert activity(program) == ""


def test_repositories_are_read_one_after_the_other(isles: Estate, serve: Serve, start: Start) -> None:
    gull, tern = isles.build([spec("gull"), spec("tern")])
    web = serve(isles)
    isles.repository("skerry", [gull], baseurl=f"{web.url}/skerry")
    isles.repository("holm", [tern], baseurl=f"{web.url}/holm")
    web.hold("skerry/repodata/repomd", "holm/repodata/repomd")
    program = start(isles)
    words = {name: f"Downloading repository contents repomd for {name}" for name in ("skerry", "holm")}
    first = wait_for(lambda: next((name for name in words if activity(program) == words[name]), None), "the first")
    second = next(name for name in words if name != first)
    follow(program, web, {f"{name}/repodata/repomd": words[name] for name in (first, second)})
    program.choose("View All")
    assert program.names() == ["gull", "tern"]

    # What is at hand isn't fetched again.
    web.forget_requests()
    program.press("Refresh")
    program.wait_ready()
    assert program.names() == ["gull", "tern"]
    assert web.requests() == []


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
