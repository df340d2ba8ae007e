# SPDX-License-Identifier: GPL-2.0-or-later
"""Programs without a window, each a process of its own: many of them in the time that one takes to load its modules.

    headless.py FOLDER

FOLDER holds the helper script. Each line of the standard input is one program, in JSON: `root`, `variables` for its
environment, `answer`, a file, and `apply`, whether it applies or looks only. The answer's lines are JSON: the process's
number, and what came of it.
"""
from __future__ import annotations

import json
import os
import signal
import sys
from pathlib import Path
from typing import Any, Dict

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "python"))

import fake_host  # noqa: E402
import program  # noqa: E402

UPDATE, INSTALL, REMOVE = "fleet-lamp", "fleet-wick", "fleet-match"


def run(script: program.Program, order: Dict[str, Any], answer: int) -> None:
    def say(**what: Any) -> None:
        os.write(answer, json.dumps(what).encode() + b"\n")

    say(pid=os.getpid())
    try:
        found = script.collect()
        if order["apply"]:
            found.yumio.apply([found.offered(INSTALL)], [found.pair(UPDATE)], [found.there(REMOVE)])
        fault = ""
    except script.errors.YumBaseError as error:
        fault = str(error)
    texts = {name: fake_host.HOST.text(name) for name in ("log", "warninglog", "errorlog")}
    script.end()
    say(fault=fault, **texts)


def main() -> None:
    script = program.Program(Path(sys.argv[1]) / "YumIO.py")
    # Nobody waits for the programs.
    signal.signal(signal.SIGCHLD, signal.SIG_IGN)
    for line in sys.__stdin__:
        order = json.loads(line)
        if os.fork():
            continue
        status = 1
        try:
            os.setsid()
            # As the engine has it.
            signal.signal(signal.SIGINT, signal.SIG_DFL)
            signal.signal(signal.SIGCHLD, signal.SIG_DFL)
            os.environ.update(order["variables"], VEMROOT=order["root"])
            run(script, order, os.open(order["answer"], os.O_WRONLY | os.O_CREAT | os.O_APPEND, 0o600))
            status = 0
        finally:
            os._exit(status)


if __name__ == "__main__":
    main()
