# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script on yum 2.9.1: the last one with a pickled cache."""
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, os.pardir))
import standin

standin.install(
    globals(),
    standin.Era(
        "2.9.1",
        texts=bytes,
        one_pass=False,
        sqlite=False,
        pickles=True,
        test_progress=True,
    ),
)
