# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=bash
# Sourced by ./run and ./check: installs what packages.list names and this machine lacks.

die() {
    printf '%s\n' "$*" >&2
    exit 1
}

say() {
    printf '%s\n' "$*"
}

# One value of the file in which a system tells what it is; VEM_OS_RELEASE names another such file.
os_release() {
    local name=$1 file=${VEM_OS_RELEASE:-/etc/os-release}
    # In a shell of its own: the file's other names are none of ours.
    # shellcheck disable=SC1090
    [[ ! -r $file ]] || (set +u && . "$file" && printf '%s\n' "${!name-}")
}

# Prints whose packages this system has: debian, fedora, el (Enterprise Linux) or other. What the system says of itself
# decides, not which commands there are: a Debian may have dnf, and a Fedora apt.
system_kind() {
    local word
    for word in $(os_release ID) $(os_release ID_LIKE); do
        case $word in
            debian | ubuntu) echo debian && return ;;
            rhel | centos | ol) echo el && return ;;
        esac
    done
    # Enterprise Linux counts itself among Fedora's kin.
    for word in $(os_release ID) $(os_release ID_LIKE); do
        [[ $word != fedora ]] || { echo fedora && return; }
    done
    echo other
}

rpm_system() {
    [[ $(system_kind) == @(fedora|el) ]]
}

# The name of the newest package library that VEM can be tried with here, if there is one.
newest_backend() {
    /usr/bin/python3 -B -c 'import sys; sys.path.insert(0, sys.argv[1]); from vemyum import choice
print(*choice.present()[-1:])' "$(dirname "${BASH_SOURCE[0]}")/../share/python"
}

# Status 0 where no package of an rpm system holds what makes the manuals: builds do without them there.
manuals_lack() {
    rpm_system && ! rpm -q --quiet --whatprovides rubygem-asciidoctor rubygem-asciidoctor-pdf
}

# packages_of SYSTEM LIST [WHERE]: the names that a system (debian, fedora or el) has for what a list names, one a line;
# with a repository (crb or epel) only those that may lie there, with "?" those that a Debian may lack.
packages_of() {
    local system=$1 list=$2 wanted=${3-} debian fedora el repository name
    while read -r debian fedora el repository; do
        case $debian in '' | '#'*) continue ;; esac
        name=${debian%\?}
        if [[ $system == debian ]]; then
            repository=${debian#"$name"}
        elif [[ $system == el && $el != "=" ]]; then
            name=$el
        else
            name=$fedora
        fi
        [[ $name == - || -n $wanted && $wanted != "$repository" ]] || printf '%s\n' "$name"
    done <"$list" | sort -u
}

# missing_packages SYSTEM LIST: those of them that aren't installed.
missing_packages() {
    local wanted
    mapfile -t wanted < <(packages_of "$1" "$2")
    # Both commands fail when they don't know a name at all; what they do know still comes out.
    comm -23 <(printf '%s\n' "${wanted[@]}") <(
        if [[ $1 == debian ]]; then
            dpkg-query -W -f='${db:Status-Status} ${Package}\n' "${wanted[@]}" 2>/dev/null | sed -n 's/^installed //p'
        else
            rpm -q --qf '[%{PROVIDES}\n][%{FILENAMES}\n]' --whatprovides "${wanted[@]}" 2>/dev/null
        fi | sort -u
    )
}

# Sets as_root to what has to stand before a command that installs the packages given.
become_root() {
    as_root=()
    if (($(id -u) != 0)); then
        command -v sudo >/dev/null || die "These packages are missing, and neither root nor sudo is at hand to" \
            "install them: $*"
        as_root=(sudo)
    fi
}

# wanted_packages SYSTEM LIST: those of the missing ones that no earlier run had to do without. They are noted in a file,
# so that they aren't looked for every time.
wanted_packages() {
    comm -23 <(missing_packages "$1" "$2") <(sort -u "${2%/*}/build/left-out" 2>/dev/null)
}

# leave_out LIST [PACKAGE...]: notes them there, with a word.
leave_out() {
    local left_out=${1%/*}/build/left-out
    (($# > 1)) || return 0
    mkdir -p "${left_out%/*}"
    printf '%s\n' "${@:2}" >>"$left_out"
    say "No repository has these, going on without: ${*:2}. Remove $left_out to have them looked for again."
}

# Whether a repository has this package.
apt_knows() {
    [[ -n $(apt-cache madison "$1") ]]
}

install_by_apt() {
    local list=$1 missing certain may_lack lacking as_root
    mapfile -t missing < <(wanted_packages debian "$list")
    ((${#missing[@]} > 0)) || return 0
    mapfile -t may_lack < <(comm -12 <(printf '%s\n' "${missing[@]}") <(packages_of debian "$list" "?"))
    mapfile -t certain < <(comm -23 <(printf '%s\n' "${missing[@]}") <(packages_of debian "$list" "?"))
    # New folders and images come without lists, and no release is without apt.
    if ((${#certain[@]} > 0)) || ! apt_knows apt; then
        become_root "${missing[@]}"
        "${as_root[@]}" apt-get -q update \
            || printf '%s\n' "The package lists could not be renewed; trying with those that are here." >&2
    fi
    mapfile -t lacking < <(
        for name in "${may_lack[@]}"; do
            apt_knows "$name" || printf '%s\n' "$name"
        done
    )
    mapfile -t missing < <(comm -23 <(printf '%s\n' "${missing[@]}") <(printf '%s\n' "${lacking[@]}"))
    ((${#missing[@]} == 0)) || apt_install
    leave_out "$list" "${lacking[@]}"
}

# Installs the missing ones, a variable of the function above.
apt_install() {
    become_root "${missing[@]}"
    say "Installing: ${missing[*]}"
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y --no-install-recommends install "${missing[@]}" \
        || die "apt-get could not install: ${missing[*]}"
}

# install_by_dnf DNF SYSTEM LIST: dnf 4 or 5. What no repository has is left out. The functions below work on the
# variables of this one.
install_by_dnf() {
    local dnf=$1 system=$2 list=$3 missing as_root more=() lenient=--setopt=strict=0
    mapfile -t missing < <(wanted_packages "$system" "$list")
    ((${#missing[@]} > 0)) || return 0
    become_root "${missing[@]}"
    [[ $("$dnf" --version) != dnf5* ]] || lenient=--skip-unavailable
    try_dnf
    if [[ $system == el ]]; then
        use_crb
        use_epel
    fi
    leave_out "$list" "${missing[@]}"
}

# Installs what can be had of the missing packages; the others stay missing.
try_dnf() {
    say "Installing: ${missing[*]}"
    "${as_root[@]}" "$dnf" -y --setopt=install_weak_deps=False "${more[@]}" install "$lenient" "${missing[@]}" \
        || die "$dnf could not install: ${missing[*]}"
    mapfile -t missing < <(comm -12 <(printf '%s\n' "${missing[@]}") <(missing_packages "$system" "$list"))
}

# Sets `likely` to those of the missing packages that may lie in one of these repositories; status 1 for none.
look_at() {
    local repository
    mapfile -t likely < <(
        comm -12 <(printf '%s\n' "${missing[@]}") \
            <(for repository in "$@"; do packages_of "$system" "$list" "$repository"; done | sort -u)
    )
    ((${#likely[@]} > 0))
}

# repository_like --enabled|--disabled EXPRESSION: the first of this system's repositories whose name matches, if any.
repository_like() {
    "${as_root[@]}" "$dnf" -q repolist "$1" | sed 's/[[:space:]].*//' | grep -Eixm 1 "$2" || true
}

# Each make of Enterprise Linux names CRB in its own way. It is used for this installation only.
use_crb() {
    local likely rhel crb
    look_at crb epel || return 0
    rhel="codeready-builder-for-rhel-[0-9]+(-$(uname -m))?(-rhui)?-rpms"
    crb=$(repository_like --disabled "crb|$rhel|ol[0-9]+_codeready_builder")
    [[ -n $crb ]] || return 0
    say "Enabling the repository $crb for this installation, since Enterprise Linux may keep these there: ${likely[*]}"
    more+=("--enablerepo=$crb")
    try_dnf
}

# EPEL is added by a package, which lies in no repository of some makes: its makers have it then.
use_epel() {
    local names='epel|ol[0-9]+_developer_epel' likely epel release
    look_at epel || return 0
    [[ -z $(repository_like --enabled "$names") ]] || return 0
    epel=$(repository_like --disabled "$names")
    if [[ -n $epel ]]; then
        say "Enabling the repository $epel for this installation, since it may have these: ${likely[*]}"
    else
        say "Enabling EPEL (Extra Packages for Enterprise Linux) on this system, by its package epel-release," \
            "since it may have these: ${likely[*]}"
        release=$(os_release VERSION_ID)
        "${as_root[@]}" "$dnf" -y install epel-release \
            || "${as_root[@]}" "$dnf" -y install \
                "https://dl.fedoraproject.org/pub/epel/epel-release-latest-${release%%.*}.noarch.rpm" \
            || { say "EPEL could not be enabled." >&2 && return 0; }
        epel=epel
    fi
    more+=("--enablerepo=$epel")
    try_dnf
}

# install_packages LIST: leaves the package manager alone when everything is there, so that this takes no time then.
install_packages() {
    local list=$1 system dnf
    system=$(system_kind)
    if [[ $system == debian ]] && command -v dpkg-query >/dev/null && command -v apt-get >/dev/null; then
        install_by_apt "$list"
        return 0
    fi
    if rpm_system && dnf=$(command -v dnf || command -v dnf5); then
        install_by_dnf "$dnf" "$system" "$list"
        return 0
    fi
    say "Neither apt nor dnf installs packages here: what $list names has to be installed by hand." \
        "Going on without." >&2
}
