# SPDX-License-Identifier: GPL-2.0-or-later
"""Advisories of a test's repositories."""

from __future__ import annotations

from pathlib import Path
from typing import Tuple

from rpmestate import add_updateinfo

UPDATEINFO = """\
<?xml version="1.0" encoding="UTF-8"?>
<updates>{}
</updates>
"""
UPDATE = """
  <update from="estate" status="final" type="security" version="1">
    <id>{id}</id>
    <title>{id}</title>
    <issued date="2024-03-05 12:00:00"/>
    <severity>Important</severity>
    <description>More light.</description>
    <pkglist><collection><name>base</name>
      <package name="{name}" epoch="0" version="{version}" release="1" arch="noarch">
        <filename>{name}-{version}-1.noarch.rpm</filename>
      </package>
    </collection></pkglist>
  </update>"""


def advise(repository: Path, *updates: Tuple[str, str, str]) -> None:
    """Gives a repository advisories: identifier, name and version of the package."""
    texts = [UPDATE.format(id=id, name=name, version=version) for id, name, version in updates]
    add_updateinfo(repository, UPDATEINFO.format("".join(texts)))
