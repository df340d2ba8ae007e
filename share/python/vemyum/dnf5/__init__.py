# SPDX-License-Identifier: GPL-2.0-or-later
"""dnf 5: what drives its library, libdnf5."""
