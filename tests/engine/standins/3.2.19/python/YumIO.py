# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script on yum 3.2.19: reporting by events, with rpms that are rebuilt from deltas."""
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, os.pardir))
import standin

standin.install(
    globals(),
    standin.Era(
        "3.2.19",
        events=True,
        presto=True,
        rebuilds=True,
    ),
)
