# SPDX-License-Identifier: GPL-2.0-or-later
"""The button that stops: a silent server is left at once, everything is as it was, and rpm is left alone."""
from __future__ import annotations

import os
import time
from pathlib import Path
from typing import Callable, Optional

from notifications import Notifications
from program import ACTION_COLUMN, Atspi, Program, has_state, wait_for
from rpmestate import Estate, spec
from web import Web

Start = Callable[..., Program]
Serve = Callable[[Estate], Web]

SLOW = spec(
    "fleet-slow",
    requires=("/bin/sh",),
    scriptlets={"post": ": > /running\nwhile ! [ -e /go-on ]; do sleep 0.05; done"},
)
AT_ONCE = 4
"""Seconds. A user waits one; what is left is for the looks at the screen, on a machine that is busy with other tests."""


def stop_button(program: Program) -> Optional[Atspi.Accessible]:
    return program.find("Stop", Atspi.Role.PUSH_BUTTON)


def can_stop(program: Program) -> bool:
    button = stop_button(program)
    return button is not None and has_state(button, Atspi.StateType.ENABLED)


def asked(server: Web, part: str) -> Callable[[], bool]:
    return lambda: any(part in path for path in server.requests())


def is_active(program: Program) -> bool:
    window = program.find_window("VEM - ")
    return window is not None and has_state(window, Atspi.StateType.ACTIVE)


def look_elsewhere(program: Program) -> None:
    """Until the program knows it, which takes the toolkit half a second: it may be another of its windows that comes."""
    window = program.window("VEM - ")
    program.xdotool("search", "--onlyvisible", "--name", "^VEM - ", "windowminimize")
    wait_for(lambda: not has_state(window, Atspi.StateType.ACTIVE), "the window to lose the keyboard")


def come_back_by_click(program: Program, desktop: Notifications, told: str) -> None:
    """Waits for the one notification that tells this."""
    wait_for(lambda: desktop.bodies()[-1:] == [told], f"the notification {told!r}")
    desktop.click()
    wait_for(lambda: is_active(program), "the window to come forward")


def test_stopping_a_refresh_and_a_download_but_not_rpm(
    site: Estate, serve: Serve, start: Start, tmp_path: Path
) -> None:
    with Notifications(tmp_path / "notifications") as desktop:
        wait_for(desktop.is_ready, "the desktop's notifications")
        stop_refresh_and_download_but_not_rpm(site, serve, start, desktop)


def stop_refresh_and_download_but_not_rpm(
    site: Estate, serve: Serve, start: Start, desktop: Notifications
) -> None:
    server = serve(site)
    site.repository(
        "dock", site.build([SLOW]), baseurl=f"{server.url}/dock", extra={"timeout": "600"}
    )
    program = start(site)
    program.wait_ready()
    assert not can_stop(program)
    program.choose("View All")
    before = program.names()
    assert "fleet-slow" in before
    program.click_cell("fleet-slow", ACTION_COLUMN)
    wait_for(lambda: program.is_enabled("Apply Actions"), "the mark")

    # A server that says nothing any more, while its repository is read anew.
    for file in (site.root / "var/cache").rglob("*"):
        os.utime(file, (0, 0), follow_symlinks=False)
    server.forget_requests()
    server.hold("/dock/")
    program.press("Refresh")
    wait_for(asked(server, "/dock/"), "the request")
    wait_for(lambda: can_stop(program), "the button")
    program.key("Escape")
    begun = time.monotonic()
    program.wait_ready()
    assert time.monotonic() - begun < AT_ONCE
    assert program.names() == before
    wait_for(lambda: program.is_enabled("Apply Actions"), "the mark that stays")
    assert not can_stop(program)

    # The same in the download of a package.
    server.forget_requests()
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    wait_for(asked(server, "fleet-slow"), "the request for the package")
    program.press("Stop")
    begun = time.monotonic()
    program.wait_ready()
    assert time.monotonic() - begun < AT_ONCE
    assert program.is_enabled("Apply Actions")
    assert "fleet-slow-1.0-1.noarch" not in site.installed()

    # Who has seen it isn't told; who is elsewhere is.
    assert desktop.bodies() == []
    server.forget_requests()
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    wait_for(asked(server, "fleet-slow"), "the request for the package")
    wait_for(lambda: can_stop(program), "the button")
    button = stop_button(program)
    look_elsewhere(program)
    Atspi.Action.do_action(button, 0)
    come_back_by_click(program, desktop, "Not all actions have been applied.")
    program.wait_ready()

    # What rpm has begun comes to its end.
    server.let_go()
    program.press("Apply Actions")
    program.press("OK", program.window("Apply"))
    try:
        wait_for((site.root / "running").exists, "the scriptlet")
        button = stop_button(program)
        assert button is not None and not has_state(button, Atspi.StateType.ENABLED)
        assert button.get_description() == "Packages are being changed: what has begun comes to its end"
        program.key("Escape")
        look_elsewhere(program)
    finally:
        (site.root / "go-on").touch()
    come_back_by_click(program, desktop, "All actions have been applied.")
    program.wait_ready()
    assert len(desktop.bodies()) == 2
    assert "fleet-slow-1.0-1.noarch" in site.installed()
    assert program.find_window("VEM Yum Error") is None
