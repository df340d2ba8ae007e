# SPDX-License-Identifier: GPL-2.0-or-later
"""One apply, done by a process of its own.

    parent      in the program: starts the other process, turns what it tells into the engine's callbacks
    child       the other process: `share/python/apply-child.py` runs it
    work        what it does: solves, asks, downloads, runs the transaction
    solving     from the marks to the list of changes, by a library's solver
    turning     from a wish about the history to the same list
    messages    what the two say to each other
    channel     how
    listing     the transaction as the engine lists it, made of what the child tells
    journal     the running transaction on the disk, for a program that starts meanwhile or afterwards

Whatever happens to the program, a transaction that has begun comes to its end: the child has a session of its own,
keeps signals off while rpm works, holds dnf's locks and needs nobody who listens. rpm changes the root directory of
the process that it works in, and may keep the interpreter lock while a scriptlet runs: here neither matters.
"""
