# SPDX-License-Identifier: GPL-2.0-or-later
"""What stands behind the helper script: a package library, driven for the engine that embeds this interpreter.

The engine runs `YumIO.py`, whose class `YumIO` is the face; the work is done here:

    choice, backend                 which library, and what one must give
    dnf4, dnf5                      dnf 4 and dnf 5, driven: nothing else imports their modules
    text, host, streams, messages   what goes to the engine: texts, host functions, printing, log lines
    errors, surroundings            exceptions as the engine expects them, the modules that it looks up
    configuration, rights, root,
    database, lock, processes       where things lie, and who may touch them
    session                         one collection: repositories, lists, groups, extra data
    repomd, queries, mirrors,
    reading, latin1                 what lies in repositories and their files, and what is told of unreadable ones
    packages, headers, details,
    records, lists, groups, comps,
    versions, vendors               what the engine reads of it
    keys, signatures, openpgp       keys that are missing
    download                        what is told of downloads
    history, unfinished             the library's history, what a transaction that was cut off has left
    apply                           one apply, from the marks to the new rpm database, by a process of its own
    clean                           emptying the caches

Every function runs on whatever thread the engine calls it on, under the interpreter lock; nothing
depends on which thread that is.
"""
