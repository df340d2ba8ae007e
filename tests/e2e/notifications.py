# SPDX-License-Identifier: GPL-2.0-or-later
"""The part of a desktop that shows notifications, on the session bus: tells what came, and clicks on it.

It is a process of its own, since it has to answer while the test waits.
"""
from __future__ import annotations

import json
import signal
import subprocess
import sys
from pathlib import Path
from typing import TYPE_CHECKING

if TYPE_CHECKING:
    from gi.repository import Gio

NAME = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
INTERFACE = f"""
<node><interface name="{NAME}">
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
  <method name="CloseNotification"><arg type="u" direction="in"/></method>
  <signal name="ActionInvoked"><arg type="u"/><arg type="s"/></signal>
</interface></node>
"""
READY = "ready"


class Notifications:
    """What the desktop's user sees. Leave it by the context manager."""

    def __init__(self, notes: Path) -> None:
        self.notes = notes
        with notes.open("wb") as output:
            self.process = subprocess.Popen([sys.executable, "-B", __file__], stdout=output)

    def __enter__(self) -> "Notifications":
        return self

    def __exit__(self, *_: object) -> None:
        self.process.terminate()
        self.process.wait()

    def _lines(self) -> list[str]:
        # The last one may not be whole yet.
        return self.notes.read_text().split("\n")[:-1]

    def is_ready(self) -> bool:
        return READY in self._lines()

    def bodies(self) -> list[str]:
        """What every notification has said so far."""
        return [json.loads(line) for line in self._lines() if line != READY]

    def click(self) -> None:
        """On the newest notification."""
        self.process.send_signal(signal.SIGUSR1)


def serve() -> None:
    """Prints the body of each notification as a line of JSON; SIGUSR1 is a click on the newest."""
    from gi.repository import Gio, GLib

    newest = 0

    def called(
        _bus: Gio.DBusConnection, _sender: str, _path: str, _interface: str, method: str,
        arguments: GLib.Variant, invocation: Gio.DBusMethodInvocation,
    ) -> None:
        nonlocal newest
        if method != "Notify":
            invocation.return_value(None)
            return
        replaced, body = arguments.unpack()[1], arguments.unpack()[4]
        newest = replaced or newest + 1
        invocation.return_value(GLib.Variant("(u)", (newest,)))
        print(json.dumps(body), flush=True)

    def click() -> bool:
        bus.emit_signal(None, PATH, NAME, "ActionInvoked", GLib.Variant("(us)", (newest, "default")))
        return GLib.SOURCE_CONTINUE

    bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    bus.register_object(PATH, Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], called, None, None)
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGUSR1, click)
    Gio.bus_own_name_on_connection(
        bus, NAME, Gio.BusNameOwnerFlags.NONE, lambda *_: print(READY, flush=True), None
    )
    GLib.MainLoop().run()


if __name__ == "__main__":
    serve()
