# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=bash
# Sourced by ./run and ./check: how to run what has to change its root directory, as rpm does below VEMROOT.

# Sets the array `privileged` to the words to put before a command: none for root, else those for a user
# namespace in which the user counts as root. Status 1 when this machine allows no such namespace.
# shellcheck disable=SC2034 # used by those who source this
find_privileges() {
    privileged=()
    ((EUID != 0)) || return 0
    if unshare --user --map-root-user true 2>/dev/null; then
        privileged=(unshare --user --map-root-user)
        return 0
    fi
    return 1
}
