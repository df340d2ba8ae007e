# SPDX-License-Identifier: GPL-2.0-or-later
"""The process that applies changes. The helper package starts it.

    apply-child.py DESCRIPTOR PID BACKEND

The descriptor is its end of the connection, the number that of the program; the package library is the one that the
program has chosen.
"""

from __future__ import annotations

import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from vemyum import choice  # noqa: E402

choice.settle(sys.argv[3])

from vemyum.apply import child  # noqa: E402

child.main(int(sys.argv[1]), int(sys.argv[2]))
