# SPDX-License-Identifier: GPL-2.0-or-later
"""Groups of packages, from the repositories' group files."""

from __future__ import annotations

from operator import attrgetter
from typing import AbstractSet, Any, Callable, Dict, Iterable, List, Optional

import dnf.comps

from .base import Base
from .errors import GroupsError
from .text import valid

NO_GROUPS = "No Groups Available in any repository"
"""The engine recognises the normal outcome "no groups" by the first three words."""


class Group:
    """One group: its names, whether it is shown and installed, and its members by kind.

    The members are dictionaries keyed by package name; the values are the name, or for conditional
    packages the package on which the condition rests.
    """

    def __init__(self, comps_group: dnf.comps.Group, installed_names: AbstractSet[str]) -> None:
        self.groupid = valid(comps_group.id or "")
        # A group file may lack a name, and the engine cannot do without one.
        self.name = _trimmed(comps_group.ui_name or comps_group.name) or self.groupid
        self.description = valid(comps_group.ui_description or "")
        self.user_visible = bool(comps_group.visible)
        self.mandatory_packages = _by_name(comps_group.mandatory_packages)
        self.default_packages = _by_name(comps_group.default_packages)
        self.optional_packages = _by_name(comps_group.optional_packages)
        self.conditional_packages = _by_name(comps_group.conditional_packages, attrgetter("requires"))
        self.installed = self._is_installed(installed_names)

    def _is_installed(self, installed_names: AbstractSet[str]) -> bool:
        """All mandatory packages installed; where there are none, any other member."""
        if self.mandatory_packages:
            return all(name in installed_names for name in self.mandatory_packages)
        others = (*self.default_packages, *self.optional_packages, *self.conditional_packages)
        return any(name in installed_names for name in others)


def _by_name(
    members: Iterable[Any], value: Callable[[Any], Optional[str]] = attrgetter("name")
) -> Dict[str, str]:
    """The members by name; those of an empty element name no package and are left out."""
    named = {_trimmed(member.name): _trimmed(value(member)) for member in members}
    named.pop("", None)
    return named


def _trimmed(text: Optional[str]) -> str:
    """What an element holds, without the line feeds and blanks of a laid out file."""
    return valid(text).strip() if text else ""


def read_groups(base: Base) -> dnf.comps.Comps:
    """Reads the group files of the loaded repositories. GroupsError when there is none."""
    comps = base.read_comps(arch_filter=True)
    if not comps.groups:
        raise GroupsError(NO_GROUPS)
    return comps


def groups_of(comps: Optional[dnf.comps.Comps], installed_names: AbstractSet[str]) -> List[Group]:
    """All groups that have a name, in the order in which the group files want them shown."""
    groups = [] if comps is None else [Group(group, installed_names) for group in comps.groups]
    return [group for group in groups if group.name]
