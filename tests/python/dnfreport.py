# SPDX-License-Identifier: GPL-2.0-or-later
"""What dnf itself says about an estate, independent of the program's own helper script."""

from __future__ import annotations

import json
import re
import subprocess
from typing import Any, Sequence
from xml.etree import ElementTree

from libraries import BACKEND
from rpmestate import Estate

from vemyum import choice

# In a process of its own: libdnf keeps rpm's macros and its logs for the life of a process.
DNF4 = """
import json, sys
import dnf, dnf.rpm
root, upgrade, wishes = sys.argv[1], sys.argv[2] == "upgrade", sys.argv[3:]
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
if wishes or upgrade:
    for wish in wishes:
        base.install(wish)
    if upgrade:
        base.upgrade_all()
    try:
        base.resolve()
        report["resolved"] = text(base.transaction.install_set)
    except dnf.exceptions.DepsolveError as error:
        report["problem"] = str(error)
print(json.dumps(report))
"""

DNF5 = """
import json, sys
import libdnf5.base, libdnf5.conf, libdnf5.repo, libdnf5.rpm, libdnf5.transaction
root, upgrade, wishes = sys.argv[1], sys.argv[2] == "upgrade", sys.argv[3:]
base = libdnf5.base.Base()
conf = base.get_config()
conf.installroot = root
conf.config_file_path = root + "/etc/yum.conf"
conf.plugins = False
# dnf 4 does without the newest where that cannot be.
conf.best = not upgrade
default = libdnf5.conf.Option.Priority_DEFAULT
conf.get_reposdir_option().set(default, ["/etc/yum.repos.d"])
base.load_config()
base.setup()
base.get_repo_sack().create_repos_from_reposdir()
base.get_repo_sack().load_repos()

def query(*filters):
    found = libdnf5.rpm.PackageQuery(base)
    for name, *arguments in filters:
        getattr(found, "filter_" + name)(*arguments)
    return found

text = lambda packages: sorted(package.get_nevra() for package in packages)
installed = query(["installed"])
names = {package.get_name() for package in installed}
available = query(["available"], ["priority"], ["arch", ["x86_64", "i686", "noarch"]], ["latest_evr"])
known = libdnf5.repo.RepoQuery(base)
known.filter_type(libdnf5.repo.Repo.Type_AVAILABLE)
report = {
    "installed": text(installed),
    "upgrades": text(query(["available"], ["upgrades"], ["latest_evr"])),
    "obsoleters": text(query(["available"], ["obsoletes", installed])),
    "available": text(package for package in available if package.get_name() not in names),
    "arches": sorted({package.get_arch() for package in query()}),
    "suites": sorted({package.get_name() for package in query() if package.get_group() == "Suite"}),
    "repositories": {repo.get_id(): [repo.get_name(), repo.is_enabled()] for repo in known},
    "packagers": sorted({package.get_packager() for package in query()} - {""}),
    "sizes": {package.get_name(): package.get_install_size() for package in installed},
}
if wishes or upgrade:
    goal = libdnf5.base.Goal(base)
    for wish in wishes:
        goal.add_install(wish)
    if upgrade:
        goal.add_rpm_upgrade()
    transaction = goal.resolve()
    if transaction.get_problems():
        report["problem"] = "\\n".join(transaction.get_resolve_logs_as_strings())
    else:
        packages = (item.get_package() for item in transaction.get_transaction_packages()
                    if libdnf5.transaction.transaction_item_action_is_inbound(item.get_action()))
        report["resolved"] = text(packages)
print(json.dumps(report))
"""

PROGRAMS = {choice.DNF4: DNF4, choice.DNF5: DNF5}


def dnf_report(estate: Estate, install: Sequence[str] = (), upgrade: bool = False) -> dict[str, Any]:
    """Lists of the estate as dnf sees them, of the version that the tests run on.

    With names to `install`, or an `upgrade` of everything, "resolved" is what would go in, or "problem" says why it
    can't.
    """
    done = subprocess.run(
        ["/usr/bin/python3", "-c", PROGRAMS[BACKEND], str(estate.root), "upgrade" if upgrade else "", *install],
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
