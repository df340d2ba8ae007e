# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script on yum 2.3.1: the last one whose makelists() answers a tuple."""
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, os.pardir))
import standin

standin.install(
    globals(),
    standin.Era(
        "2.3.1",
        sizes="method",
        groups="by name",
        lists="tuple",
        obsoleting="pkgtup",
        prco="dictionary",
        headers=True,
        one_pass=False,
        sqlite=False,
        pickles=True,
        test_progress=True,
    ),
)
