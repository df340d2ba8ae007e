# SPDX-License-Identifier: GPL-2.0-or-later
"""What stands behind the helper script: dnf, driven for the engine that embeds this interpreter.

The engine runs `YumIO.py`, whose class `YumIO` is the face; the work is done here:

    text, host, streams, messages   what goes to the engine: texts, host functions, printing, log lines
    errors, surroundings            exceptions as the engine expects them, the modules that it looks up
    configuration, rights,
    database, lock, processes       where things lie, and who may touch them
    base, repositories, metadata    dnf's Base, the repositories and the progress of reading them
    sack, packages, headers,
    details, records                what the engine reads from a package
    lists, groups                   what a collection hands over
    apply                           one apply, from the marks to the new rpm database, by a process of its own
    download, signatures, display,
    history, inhibitor              its steps
    clean                           emptying the caches

Every function runs on whatever thread the engine calls it on, under the interpreter lock; nothing
depends on which thread that is.
"""
