# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf 4, driven: `library` is what the rest of the package sees of it.

    configuration, encoding        dnf's settings for the managed root, repository files
    base, plugins, sack            dnf's Base, with the places at which more is wanted to be known
    metadata, queries, keys        the progress of reading repositories, those with a query, keys of metadata
    system                         what a collection asks for
    transaction, plan              one apply: marks, solver, steps
    download, signatures,
    display, history, logfiles     what the steps need
    clean                          emptying the cache
"""
