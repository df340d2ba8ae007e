#!/usr/bin/python3
# SPDX-License-Identifier: GPL-2.0-or-later
"""Walks through the main job by real clicks on the display it is given, and leaves pictures of it.

    walkthrough.py --out DIRECTORY [-- PROGRAM OPTION...]

VEM_PROGRAM names the binary; VEMROOT (the sample estate) and VEMSHARE are as for the program itself. Needs a
session bus with the accessibility bus on it (tools/on-virtual-display). Leaves numbered screenshots, the text
of the log window (walkthrough.log) and what the program printed (vem.log). Ends with status 0 when every step
went as it should.
"""
from __future__ import annotations

import argparse
import os
import subprocess
import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent))

from program import ACTION_COLUMN, NAME_COLUMN, Program, TimedOut, wait_for  # noqa: E402


def installed(root: Path) -> set[str]:
    answer = subprocess.run(
        ["rpm", "--root", str(root), "--dbpath", "/var/lib/rpm", "-qa"], capture_output=True, text=True, check=True
    )
    return set(answer.stdout.split())


def step(text: str) -> None:
    print(text, flush=True)


def walk_through(program: Program, root: Path) -> None:
    before = installed(root)
    step("Opening the window and reading the repositories.")
    program.window("VEM - ")
    program.shot("reading")
    program.wait_ready(120)
    program.shot("updatable")

    step("Looking at everything, groups too.")
    program.choose("View All")
    program.press("Include Groups")
    program.shot("everything")
    program.press("Include Groups")

    step("Filtering by an expression.")
    program.set_expression("^(dykemap|oxbow|pumpwatch)")
    wait_for(lambda: all(name.startswith(("dykemap", "oxbow", "pumpwatch")) for name in program.names()), "the filtered rows")
    program.shot("filtered")

    step("Marking: an update by a click, an installation by the context menu.")
    program.click_cell("oxbow", ACTION_COLUMN)
    program.click_cell("pumpwatch", ACTION_COLUMN)
    program.choose_from_context_menu("i", program.place_of("dykemap-data-south", ACTION_COLUMN))
    program.shot("marked")

    step("Marking the selected rows by the button.")
    program.click_cell("dykemap", NAME_COLUMN)
    program.press("Set Install/Update of Selected")
    program.shot("selected")

    step("Marking a removal.")
    program.set_expression("^glyphhouse")
    wait_for(lambda: "glyphhouse-mono" in program.names(), "the filtered rows")
    program.click_cell("glyphhouse-mono", ACTION_COLUMN)
    program.set_expression(".*")
    program.shot("all-marks")

    step("Applying: the question first answered by Cancel, then by OK.")
    program.press("Apply Actions")
    program.press("Cancel", program.window("Apply", 60))
    program.wait_closed("Apply")
    program.wait_ready()
    if installed(root) != before:
        raise AssertionError("a cancelled apply changed the system")
    program.press("Apply Actions")
    question = program.window("Apply", 60)
    program.shot("question")
    program.press("OK", question)
    program.wait_closed("Apply")
    program.shot("running")
    program.wait_ready(120)
    program.shot("applied")

    after = installed(root)
    step("Changed below the estate's root, as rpm tells it:")
    for name in sorted(before - after):
        step(f"  - {name}")
    for name in sorted(after - before):
        step(f"  + {name}")
    names = {name.rsplit("-", 2)[0] for name in after - before}
    if not {"oxbow", "dykemap", "dykemap-data-south"} <= names:
        raise AssertionError("the marked packages were not put in")

    step("Reading the log.")
    log = program.log_text()
    program.shot("log")
    if program.shots is not None:
        (program.shots / "walkthrough.log").write_text(log, encoding="utf-8")
    if "Applying: OK" not in log:
        raise AssertionError("the log does not tell of the apply")


def main() -> int:
    parser = argparse.ArgumentParser(description="Walks through the main job by real clicks.")
    parser.add_argument("--out", type=Path, required=True, help="directory for screenshots and log")
    parser.add_argument("options", nargs="*", help="options for the program, behind --")
    arguments = parser.parse_args()
    arguments.out.mkdir(parents=True, exist_ok=True)
    root = Path(os.environ["VEMROOT"])
    with Program(
        Path(os.environ["VEM_PROGRAM"]), root, Path(os.environ["VEMSHARE"]), arguments.out / "vem.log",
        arguments.options, shots=arguments.out,
    ) as program:
        try:
            walk_through(program, root)
        except (TimedOut, AssertionError) as fault:
            program.shot("fault")
            print(f"The walkthrough stopped: {fault}", file=sys.stderr)
            return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
