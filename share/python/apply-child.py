# SPDX-License-Identifier: GPL-2.0-or-later
"""The process that applies changes. The helper package starts it, with the descriptor of a connection.

    apply-child.py DESCRIPTOR
"""

from __future__ import annotations

import sys

from vemyum.apply import child

child.main(int(sys.argv[1]))
