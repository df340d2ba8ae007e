# SPDX-License-Identifier: GPL-2.0-or-later
"""The modules that the engine looks up, and the loading of everything that will be needed later."""

from __future__ import annotations

import builtins
import importlib
import sys
import types

from . import backend, errors

NEEDED_LATER = (
    "bdb",
    "datetime",
    "encodings.ascii",
    "encodings.idna",
    "encodings.latin_1",
    "encodings.unicode_escape",
    "encodings.utf_16",
    "encodings.utf_8",
    "encodings.utf_8_sig",
    "linecache",
    "locale",
    "stringprep",
    "tempfile",
    "tokenize",
    "traceback",
    "unicodedata",
    "_strptime",
)


def make_yum_module() -> types.ModuleType:
    """The module `yum` with its submodule `Errors`, put into sys.modules; `exceptions` beside it."""
    yum = types.ModuleType("yum", "The package library's version and exceptions, under yum's names.")
    yum.__dict__["__version__"] = backend.version()
    yum_errors = types.ModuleType("yum.Errors", "The exceptions that the engine expects.")
    for name in ("YumBaseError", "RepoError", "LockError", "GroupsError"):
        setattr(yum_errors, name, getattr(errors, name))
    setattr(yum, "Errors", yum_errors)
    sys.modules["yum"] = yum
    sys.modules["yum.Errors"] = yum_errors
    sys.modules["exceptions"] = builtins
    return yum


def load_needed_later() -> None:
    """Imports what is otherwise imported at first use; to be called before rpm runs.

    While rpm works on another root it changes the root directory of the whole process, and nothing can
    be imported then. Modules that this system lacks are passed over.
    """
    for name in (*NEEDED_LATER, *backend.library().NEEDED_LATER):
        try:
            importlib.import_module(name)
        except ImportError:
            continue
