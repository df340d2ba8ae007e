# SPDX-License-Identifier: GPL-2.0-or-later
"""Imports what YumIO.py needs, on a thread of its own, while the window is being drawn.

Nothing is set up here: YumIO.py imports the same names again, and tells what cannot be imported. What a module
prints while it is imported is the business of the process's own output.
"""

from __future__ import annotations

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import rpm  # noqa: E402,F401

from vemyum import backend, clean, messages, session, streams, surroundings  # noqa: E402,F401
from vemyum.apply import parent  # noqa: E402,F401

backend.version()
