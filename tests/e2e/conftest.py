# SPDX-License-Identifier: GPL-2.0-or-later
"""Where the end-to-end tests find what they share."""
from __future__ import annotations

import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "estate")]
sys.path.append(str(HERE.parent / "python"))

from fixtures import *  # noqa: E402,F401,F403
