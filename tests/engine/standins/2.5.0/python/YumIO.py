# SPDX-License-Identifier: GPL-2.0-or-later
"""The helper script on yum 2.5.0: the first one whose groups are objects."""
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(__file__), os.pardir, os.pardir))
import standin

standin.install(
    globals(),
    standin.Era(
        "2.5.0",
        sizes="text",
        headers=True,
        one_pass=False,
        pickles=True,
        test_progress=True,
    ),
)
