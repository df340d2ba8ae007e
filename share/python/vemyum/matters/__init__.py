# SPDX-License-Identifier: GPL-2.0-or-later
"""What an administrator asks beside the table, a module for each matter. What they answer are plain values: None, numbers,
texts, lists of them, and dictionaries by texts."""
