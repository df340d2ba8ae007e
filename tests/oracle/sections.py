# SPDX-License-Identifier: GPL-2.0-or-later
"""Files of sections and options, as configuration is written."""

from __future__ import annotations

from pathlib import Path
from typing import Dict


def write_section(path: Path, title: str, options: Dict[str, str]) -> None:
    path.parent.mkdir(parents=True, exist_ok=True)
    lines = [f"[{title}]", *(f"{option}={value}" for option, value in options.items())]
    path.write_text("\n".join(lines) + "\n", encoding="utf-8")
