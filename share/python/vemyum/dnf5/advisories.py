# SPDX-License-Identifier: GPL-2.0-or-later
"""What the library knows of advisories; see `backend.System`."""

from __future__ import annotations

from typing import Any, Dict, List, Optional

import libdnf5.advisory
import libdnf5.common
import libdnf5.rpm

from ..backend import Advice, Advisory, AdvisoryPackage, Reference
from ..packages import whole_evr
from ..text import valid
from .base import Base
from .lists import package_set
from .rows import Row

_ORDERS = (libdnf5.common.QueryCmp_LT, libdnf5.common.QueryCmp_GTE)


class Advisories:
    """Of a loaded Base."""

    def __init__(self, base: Base, installed: List[Any]) -> None:
        """`installed` are all that are there, excluded or not."""
        self._base = base
        self._installed = installed

    def all(self, id: Optional[str]) -> List[Advisory]:
        query = self._query()
        if id is not None:
            query.filter_name(id)
        newer = query.get_advisory_packages_sorted(self._considered(), libdnf5.common.QueryCmp_GT)
        opened = {(one.get_advisory().get_name(), _package(one)) for one in newer}
        present = package_set(self._base, self._installed)
        found: Dict[str, Advisory] = {}
        seen = set()
        for order in _ORDERS:
            for concerned in query.get_advisory_packages_sorted(present, order):
                advisory = concerned.get_advisory()
                name = advisory.get_name()
                packages = found[name].packages if name in found else []
                every = [concerned]
                if name not in found:
                    named = [part.get_packages() for part in advisory.get_collections()]
                    found[name] = _advisory(advisory, sum(map(len, named)), packages)
                    if id is not None:
                        every += [one for part in named for one in part]
                # Repositories may each have an advisory of that name: what concerns the system counts of each.
                for one in every:
                    package = _package(one)
                    if (name, package) not in seen:
                        seen.add((name, package))
                        packages.append(package._replace(open=(name, package) in opened))
        return list(found.values())

    def there_are(self) -> bool:
        return not self._query().empty()

    def of(self, row: Row) -> List[Advice]:
        about = package_set(self._base, [row])
        return [
            Advice(*_head(one.get_advisory()), *whole_evr(one.get_evr()))
            for order in _ORDERS
            for one in self._query().get_advisory_packages_sorted(about, order)
        ]

    def _query(self) -> libdnf5.advisory.AdvisoryQuery:
        return libdnf5.advisory.AdvisoryQuery(self._base.library)

    def _considered(self) -> libdnf5.rpm.PackageQuery:
        """The installed packages for which the command line counts newer versions as open: the latest of each name and
        architecture, and those of the running kernel."""
        considered = libdnf5.rpm.PackageQuery(self._base.library)
        considered.filter_installed()
        considered.filter_latest_evr()
        kernel = self._base.library.get_rpm_package_sack().get_running_kernel()
        if kernel.get_id().id > 0:
            running = libdnf5.rpm.PackageQuery(self._base.library)
            running.filter_installed()
            running.filter_sourcerpm([kernel.get_sourcerpm()])
            considered.update(running)
        return considered


def _advisory(advisory: libdnf5.advisory.Advisory, count: int, packages: List[AdvisoryPackage]) -> Advisory:
    references = [
        Reference(one.get_type_cstring(), valid(one.get_id()), valid(one.get_title()), valid(one.get_url()))
        for one in advisory.get_references()
    ]
    return Advisory(*_head(advisory), advisory.get_description(), references, count, packages)


def _head(advisory: libdnf5.advisory.Advisory) -> Any:
    return (
        advisory.get_name(),
        advisory.get_type(),
        advisory.get_severity(),
        advisory.get_title(),
        int(advisory.get_buildtime()),
    )


def _package(one: libdnf5.advisory.AdvisoryPackage) -> AdvisoryPackage:
    return AdvisoryPackage(one.get_name(), one.get_arch(), *whole_evr(one.get_evr()), False)


def reboot_advised(base: Base) -> List[str]:
    """See `backend.System`."""
    query = libdnf5.rpm.PackageQuery(base.library)
    query.filter_installed()
    query.filter_reboot_suggested()
    return sorted({str(package.get_name()) for package in query})
