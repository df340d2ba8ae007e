# SPDX-License-Identifier: GPL-2.0-or-later
"""The parts of bench/run: running what is measured, what is done in it, rows, report and plots."""
