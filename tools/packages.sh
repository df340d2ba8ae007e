# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=bash
# Sourced by ./run and ./check: installs what packages.list names and this machine lacks.

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

# packages_of debian LIST: the names that LIST has for such a system, one a line.
packages_of() {
    sed -e 's/#.*//' -e '/^[[:space:]]*$/d' "$2" | sort -u
}

# The names of packages.list that aren't installed, one a line.
missing_packages() {
    local list=$1 wanted
    mapfile -t wanted < <(packages_of debian "$list")
    # dpkg-query fails when it doesn't know a name at all; what it does know still comes out.
    comm -23 <(printf '%s\n' "${wanted[@]}") \
        <(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null \
            | sed -n 's/^installed //p' | sort -u)
}

# install_packages LIST: leaves apt alone when everything is there, so that this takes no time then.
install_packages() {
    local list=$1 missing as_root=()
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        printf '%s\n' "This is no Debian: what $list names has to be installed by hand. Going on without." >&2
        return 0
    fi
    mapfile -t missing < <(missing_packages "$list")
    ((${#missing[@]} > 0)) || return 0
    if ((EUID != 0)); then
        command -v sudo >/dev/null || die "These packages are missing, and neither root nor sudo is at hand to" \
            "install them: ${missing[*]}"
        as_root=(sudo)
    fi
    printf 'Installing: %s\n' "${missing[*]}"
    "${as_root[@]}" apt-get -q update \
        || printf '%s\n' "The package lists could not be renewed; trying with those that are here." >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" \
        || die "apt-get could not install: ${missing[*]}"
}
