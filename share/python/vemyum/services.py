# SPDX-License-Identifier: GPL-2.0-or-later
"""Services of the running system, which systemd restarts."""

from __future__ import annotations

import contextlib
import os
import re
import subprocess
import time
from typing import Any, Dict, List, Sequence, Tuple

from . import host, processes, rights, stop
from .errors import YumBaseError, os_error_text
from .text import valid
from .texts import _

LONGEST = 200.0
"""Seconds that a service may take to come to its end and begin again: systemd itself gives it 90 for either."""
_TURN = 0.1
"""Seconds between two looks whether the user wants to stop."""

_PROGRAM = "systemctl"
_SERVICE = re.compile(r"^[A-Za-z0-9:_.\\@][A-Za-z0-9:_.\\@-]*\.service$")
"""What systemd takes for a name, without anything that could be an option or a pattern."""
_ALL_REST_ON_IT = ("dbus.service", "dbus-broker.service", "systemd-logind.service")
_SCREENS = re.compile(
    r"(display-manager|cosmic-greeter|gdm3?|greetd|lightdm|ly(@.*)?|lxdm|plasmalogin|sddm|slim|wdm|xdm|xrdp(-sesman)?"
    r"|[xv]*vncserver(@.*)?|x11vnc)\.service"
)
_SCREENS_OWN = "/etc/systemd/system/display-manager.service"
"""A link to the unit that the administrator has chosen."""
NO_RESTART = _("Only the administrator can restart services: start the program with administrator rights.")


def obstacle(unit: str, own: bool, running: bool) -> str:
    """Why a unit is not to be restarted here, in a sentence; empty where it can be. `own` is one of a user's own
    systemd, `running` whether the managed system is the one that runs."""
    if not running:
        return _("Only services of the system that runs can be restarted.")
    if own:
        return _("This is a program of a user's session: it begins anew when the user logs out and in again.")
    if unit.endswith(".scope") or unit.startswith("user@"):
        return _("This is a session or a program in one: log out and in again.")
    if not _SERVICE.match(unit):
        return _("This is no service.")
    if unit in _ALL_REST_ON_IT:
        return _("Other services and the sessions rest on it: start the system anew instead.")
    chosen = os.path.basename(os.path.realpath(_SCREENS_OWN))
    if _SCREENS.fullmatch(unit) or unit == chosen or unit in _own_units():
        return _("This would end the sessions on the screens: log out first, or start the system anew.")
    return ""


def _own_units() -> List[str]:
    """The services in which this program itself runs, be it below a session."""
    return [part for part in processes.control_group(os.getpid()).split("/") if part.endswith(".service")]


def restarted(root: str, units: Sequence[str]) -> List[Dict[str, Any]]:
    """Restarts services of the running system, one after the other, as far as they run. For each a dictionary: `unit`,
    `done`, and `text`, a sentence where it isn't done, else "". Behind the user's wish to stop the others are left
    alone. YumBaseError before anything is done: for another system, without the rights, for what is not to be
    restarted."""
    running = os.path.realpath(root) == "/"
    if not running:
        # It would restart the services of the system that runs, which has nothing to do with it.
        text = _("{root} is not the system that runs: no services are restarted.")
        raise YumBaseError(text.format(root=root))
    rights.require_administrator(NO_RESTART)
    for unit in units:
        reason = obstacle(unit, False, running)
        if reason:
            raise YumBaseError(f"{valid(unit)}: {reason}")
    return [_restarted(unit) for unit in dict.fromkeys(units)]


def _restarted(unit: str) -> Dict[str, Any]:
    fault = _fault(unit)
    if fault:
        host.errorlog(host.LEVEL_NOTICE, fault)
    else:
        host.log(host.LEVEL_NOTICE, _("Restarted {unit}").format(unit=unit))
    return {"unit": unit, "done": not fault, "text": fault}


def _fault(unit: str) -> str:
    """Restarts it. What went wrong, or empty."""
    if stop.wanted():
        return _("{unit}: Stopped").format(unit=unit)
    try:
        code, said = _run("try-restart", "--", unit)
        if code:
            return _("{unit} could not be restarted: {fault}").format(unit=unit, fault=said or code)
        # A service may come to its end at once, which nobody waits for.
        code, said = _run("is-failed", "--quiet", "--", unit)
    except OSError as error:
        return _("{unit} could not be restarted: {fault}").format(unit=unit, fault=os_error_text(error))
    except stop.Stopped:
        return _("{unit}: Stopped. systemd goes on with it.").format(unit=unit)
    except subprocess.TimeoutExpired:
        text = _("{unit} was not restarted within {seconds} seconds. systemd goes on with it.")
        return text.format(unit=unit, seconds=int(LONGEST))
    return "" if code else _("{unit} has failed after its restart.").format(unit=unit)


def _run(*arguments: str) -> Tuple[int, str]:
    """systemctl's exit status, and what it says. OSError, Stopped, subprocess.TimeoutExpired."""
    end = time.monotonic() + LONGEST
    with open(os.memfd_create("systemctl"), "w+b") as said:
        command = [_PROGRAM, "--no-ask-password", "--no-pager", *arguments]
        process = subprocess.Popen(
            command, stdin=subprocess.DEVNULL, stdout=said, stderr=subprocess.STDOUT, cwd="/"
        )
        try:
            while True:
                with contextlib.suppress(subprocess.TimeoutExpired):
                    code = process.wait(_TURN)
                    break
                stop.check()
                if time.monotonic() > end:
                    raise subprocess.TimeoutExpired(command, LONGEST)
        finally:
            if process.returncode is None:
                process.kill()
                process.wait()
        said.seek(0)
        return code, " ".join(valid(said.read()).split())
