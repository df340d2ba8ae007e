# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf itself says about an estate, independent of the program's own helper script."""

from __future__ import annotations

import json
import re
import subprocess
from typing import Any, Sequence
from xml.etree import ElementTree

from rpmestate import Estate

# In a process of its own: libdnf keeps rpm's macros and its logs for the life of a process.
PROGRAM = """
import json, sys
import dnf, dnf.rpm
root, wishes = sys.argv[1], sys.argv[2:]
conf = dnf.conf.Conf()
conf.installroot = root
conf.config_file_path = root + "/etc/yum.conf"
conf.read(conf.config_file_path)
conf.reposdir = [root + "/etc/yum.repos.d"]
for option in ("cachedir", "logdir", "persistdir"):
    conf.prepend_installroot(option)
conf.substitutions["releasever"] = dnf.rpm.detect_releasever(root) or ""
dnf.util.ensure_dir(conf.logdir)
base = dnf.Base(conf)
base.read_all_repos()
base.fill_sack()
query = base.sack.query()
installed = query.installed()
names = {package.name for package in installed}
available = query.available().filter(latest_per_arch=True, arch=base.sack.list_arches())
text = lambda packages: sorted(str(package) for package in packages)
report = {
    "installed": text(installed),
    "upgrades": text(query.upgrades().latest()),
    "obsoleters": text(query.available().filter(obsoletes=installed)),
    "available": text(package for package in available if package.name not in names),
    "arches": sorted({package.arch for package in query}),
    "suites": sorted({package.name for package in query if package.group == "Suite"}),
    "repositories": {repo.id: [repo.name, repo.enabled] for repo in base.repos.values()},
    "packagers": sorted({package.packager for package in query if package.packager}),
    "sizes": {package.name: package.size for package in installed},
}
if wishes:
    for wish in wishes:
        base.install(wish)
    try:
        base.resolve()
        report["resolved"] = text(base.transaction.install_set)
    except dnf.exceptions.DepsolveError as error:
        report["problem"] = str(error)
print(json.dumps(report))
"""


def dnf_report(estate: Estate, install: Sequence[str] = ()) -> dict[str, Any]:
    """Lists of the estate as dnf sees them.

    With names to `install`, "resolved" is what would go in, or "problem" says why it can't.
    """
    done = subprocess.run(
        ["/usr/bin/python3", "-c", PROGRAM, str(estate.root), *install],
        env=estate.command_environment(),
        check=True,
        stdout=subprocess.PIPE,
        encoding="utf-8",
    )
    report: dict[str, Any] = json.loads(done.stdout)
    report["groups"] = _groups(estate)
    return report


def _groups(estate: Estate) -> dict[str, bool]:
    """The visibility of the groups by name. Not by dnf, whose library for them doesn't work everywhere."""
    from vemyum.records import chunks

    groups = {}
    for path in estate.repos_dir.glob("*/repodata/*"):
        if re.search(r"(comps|group_gz)\.xml(\.[a-z0-9]+)?$", path.name):
            for group in ElementTree.fromstring(b"".join(chunks(str(path)))).iterfind("group"):
                groups[group.findtext("name", "")] = group.findtext("uservisible") != "false"
    return groups
