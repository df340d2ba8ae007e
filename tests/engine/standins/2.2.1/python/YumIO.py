# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script on yum 2.2.1: with groups by name and bytes for texts."""
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, os.pardir))
import standin

standin.install(
    globals(),
    standin.Era(
        "2.2.1",
        version_module="cli",
        texts=bytes,
        sizes="text",
        groups="by name",
        lists="tuple",
        obsoleting="pkgtup",
        changelog="attribute",
        prco="dictionary",
        headers=True,
        one_pass=False,
        sqlite=False,
        pickles=True,
        test_progress=True,
    ),
)
