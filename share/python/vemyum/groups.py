# SPDX-License-Identifier: GPL-2.0-or-later
"""Groups of packages, from the repositories' group files."""

from __future__ import annotations

from typing import AbstractSet, Dict, Iterable, List

from . import host
from .backend import GROUPS, System
from .comps import CONDITIONAL, DEFAULT, MANDATORY, OPTIONAL, Comps, CompsError, CompsGroup, Member
from .comps import in_the_users_language as translated
from .errors import GroupsError
from .records import chunks
from .texts import _

_PIECE = 1 << 15
"""How much of a group file stands in memory at a time, in bytes: its elements take ten times as much."""
NO_GROUPS = "No Groups Available in any repository"
"""The engine recognises the normal outcome "no groups" by the first three words."""


class Group:
    """One group: its names, whether it is shown and installed, and its members by kind.

    The members are dictionaries keyed by package name; the values are the name, or for conditional
    packages the package on which the condition rests.
    """

    def __init__(self, group: CompsGroup, installed_names: AbstractSet[str]) -> None:
        self.groupid = group.id
        # A group file may lack a name, and the engine cannot do without one.
        self.name = translated(group.names) or group.id
        self.description = translated(group.descriptions)
        self.user_visible = group.visible
        self.mandatory_packages = _by_name(group.of_kind(MANDATORY))
        self.default_packages = _by_name(group.of_kind(DEFAULT))
        self.optional_packages = _by_name(group.of_kind(OPTIONAL))
        self.conditional_packages = {
            member.name: member.requires for member in group.of_kind(CONDITIONAL) if member.name
        }
        self.installed = self._is_installed(installed_names)

    def _is_installed(self, installed_names: AbstractSet[str]) -> bool:
        """All mandatory packages installed; where there are none, any other member."""
        if self.mandatory_packages:
            return all(name in installed_names for name in self.mandatory_packages)
        others = (*self.default_packages, *self.optional_packages, *self.conditional_packages)
        return any(name in installed_names for name in others)


def _by_name(members: Iterable[Member]) -> Dict[str, str]:
    """The members by name; those of an empty element name no package and are left out."""
    return {member.name: member.name for member in members if member.name}


def read_groups(system: System) -> List[CompsGroup]:
    """Reads the group files of the loaded repositories. GroupsError when there is none.

    A file that cannot be read is told with its repository, and the others count.
    """
    comps = Comps()
    for repository in system.repositories():
        path = system.metadata_file(repository.id, GROUPS) if repository.enabled else None
        if path:
            try:
                comps.add(chunks(path, _PIECE))
            except (CompsError, OSError) as error:
                host.errorlog(
                    host.LEVEL_ERROR,
                    _("The groups of repository {id} cannot be read: {error}").format(
                        id=repository.id, error=error
                    ),
                )
    if not comps.groups:
        raise GroupsError(NO_GROUPS)
    return comps.groups


def groups_of(comps: Iterable[CompsGroup], installed_names: AbstractSet[str]) -> List[Group]:
    """What the table shows of these groups: all that have a name."""
    groups = [Group(group, installed_names) for group in comps]
    return [group for group in groups if group.name]
