# SPDX-License-Identifier: GPL-2.0-or-later
"""A bus of its own with a stand-in of logind, that gives out inhibitor locks and tells of them."""

from __future__ import annotations

import json
import subprocess
import sys
import time
from pathlib import Path
from typing import Any, Dict, List

BUS = """<busconfig>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow user="*"/><allow own="*"/><allow send_destination="*"/><allow eavesdrop="false"/>
  </policy>
</busconfig>
"""

# Answers each line that it reads with all locks that it has given out.
SERVICE = """
import json, os, select, sys
import gi
from gi.repository import Gio, GLib

INTERFACE = '''<node><interface name="org.freedesktop.login1.Manager"><method name="Inhibit">
<arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="h" direction="out"/></method></interface></node>'''
locks = []

def inhibit(connection, sender, path, interface, method, parameters, invocation):
    if "refuse" in sys.argv:
        invocation.return_dbus_error("org.freedesktop.DBus.Error.AccessDenied", "Not for you")
        return
    reading, writing = os.pipe()
    locks.append((dict(zip(("what", "who", "why", "mode"), parameters.unpack())), reading))
    invocation.return_value_with_unix_fd_list(
        GLib.Variant("(h)", (0,)), Gio.UnixFDList.new_from_array([writing]))

def is_held(reading):
    poll = select.poll()
    poll.register(reading, 0)
    return not poll.poll(0)

def answer(channel, condition):
    if not sys.stdin.readline():
        loop.quit()
        return False
    print(json.dumps([{**words, "held": is_held(reading)} for words, reading in locks]), flush=True)
    return True

loop = GLib.MainLoop()
bus = Gio.DBusConnection.new_for_address_sync(
    sys.argv[1],
    Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION, None, None)
bus.register_object("/org/freedesktop/login1", Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], inhibit)
bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
              GLib.Variant("(su)", ("org.freedesktop.login1", 0)), None, 0, -1, None)
GLib.io_add_watch(sys.stdin.fileno(), GLib.PRIORITY_DEFAULT, GLib.IOCondition.IN | GLib.IOCondition.HUP, answer)
print("[]", flush=True)
loop.run()
"""


class Logind:
    """Runs until `end`. `address` is what DBUS_SYSTEM_BUS_ADDRESS names."""

    def __init__(self, folder: Path, *options: str) -> None:
        folder.mkdir()
        socket = folder / "bus"
        configuration = folder / "bus.conf"
        configuration.write_text(BUS.format(socket=socket), encoding="utf-8")
        self.address = f"unix:path={socket}"
        self._bus = _start("dbus-daemon", f"--config-file={configuration}", "--nofork", "--print-address")
        self._service = _start(sys.executable, "-B", "-c", SERVICE, self.address, *options)

    def locks(self) -> List[Dict[str, Any]]:
        """All locks given out so far, each with what was asked and whether it is held now."""
        assert self._service.stdin is not None and self._service.stdout is not None
        self._service.stdin.write("?\n")
        self._service.stdin.flush()
        locks: List[Dict[str, Any]] = json.loads(self._service.stdout.readline())
        return locks

    def all_released(self, within: float = 10.0) -> bool:
        """The bus may hold its copy of a descriptor for a moment longer than whom it was given to."""
        deadline = time.monotonic() + within
        while any(lock["held"] for lock in self.locks()):
            if time.monotonic() > deadline:
                return False
        return True

    def end(self) -> None:
        for process in self._service, self._bus:
            process.kill()
            process.communicate()


def _start(*command: str) -> "subprocess.Popen[str]":
    """Starts a program and waits for its first line."""
    process = subprocess.Popen(
        command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
    )
    assert process.stdout is not None
    assert process.stdout.readline(), command
    return process
