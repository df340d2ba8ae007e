# SPDX-License-Identifier: GPL-2.0-or-later
# shellcheck shell=sh
# What webbrowser and mimeviewer share: to act as the user who sits at the desktop, and to try one program
# after the other. Words of the caller, addresses above all, only ever travel as arguments: no shell reads
# them.

# complain TEXT: tells the user, who may look at the terminal that the program was started from. Never the
# document, whose address may hold a password.
complain() {
    printf '%s: %s\n' "${0##*/}" "$1" >&2
}

# is_there PROGRAM: sets `path` to where it is. What the shell itself knows by that name, "eval" for one, is no
# program.
is_there() {
    path=$(command -v -- "$1" 2>/dev/null)
    case $path in
        */*) return 0 ;;
        *) return 1 ;;
    esac
}

# desktop_uid: sets `uid` to the user that became root by pkexec or sudo. False when there is none: we are not
# root, or nobody but root is here.
desktop_uid() {
    uid=${PKEXEC_UID:-${SUDO_UID-}}
    case $uid in
        '' | *[!0-9]*) return 1 ;;
    esac
    [ "$(id -u)" -eq 0 ] && [ "$uid" -ne 0 ]
}

# become_desktop_user PROGRAM ARGUMENT...: when root acts for a user, replaces this process by the program,
# run as that user in that user's session. Returns when there is nothing to do.
become_desktop_user() {
    desktop_uid || return 0

    IFS=: read -r user _ _ gid _ home shell <<END
$(getent passwd "$uid")
END
    if [ -z "$user" ] || [ -z "$gid" ]; then
        complain "no user has the number $uid"
        exit 1
    fi

    export HOME="$home" USER="$user" LOGNAME="$user" SHELL="${shell:-/bin/sh}"
    unset PKEXEC_UID SUDO_UID SUDO_GID SUDO_USER SUDO_COMMAND MAIL
    # Root's own folders are closed to the user.
    unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME XDG_STATE_HOME XDG_RUNTIME_DIR
    enter_session "/run/user/$uid"

    # The first two run the program as it is. su needs a shell, which gets a fixed text and hands on the rest.
    if is_there setpriv; then
        exec setpriv --reuid "$uid" --regid "$gid" --init-groups -- "$@"
    elif is_there runuser; then
        exec runuser -u "$user" -- "$@"
    else
        # shellcheck disable=SC2016
        exec su -s /bin/sh -c 'exec "$@"' -- "$user" sh "$@"
    fi
}

# enter_session DIRECTORY: the variables by which programs find the session whose sockets are there. What was
# handed down to root, DISPLAY and the like, stays.
enter_session() {
    [ -d "$1" ] || return 0
    export XDG_RUNTIME_DIR="$1"
    if [ -S "$1/bus" ]; then
        export DBUS_SESSION_BUS_ADDRESS="unix:path=$1/bus"
    fi
    if [ -z "${DISPLAY-}${WAYLAND_DISPLAY-}" ] && [ -S "$1/wayland-0" ]; then
        export WAYLAND_DISPLAY=wayland-0
    fi
}

# use_readable_xauthority: the X server's key may have been handed down from a user whose files we can't read.
use_readable_xauthority() {
    if [ -z "${XAUTHORITY-}" ] || [ -r "$XAUTHORITY" ]; then
        return 0
    elif [ -r "${HOME-}/.Xauthority" ]; then
        export XAUTHORITY="$HOME/.Xauthority"
    else
        unset XAUTHORITY
    fi
}

# try PROGRAM ARGUMENT...: true when there is such a program and it did its work. It outlives the caller, who
# may be listening to our output by then; what browsers tell there is for nobody.
try() {
    is_there "$1" || return 1
    shift
    "$path" "$@" >/dev/null 2>&1
}

# try_browser_variable DOCUMENT: true when one of the commands of $BROWSER did it. They are parted by colons
# and split at blanks; in a word "%s" stands for the document, which otherwise comes last, "%c" for a colon
# and "%%" for a percent sign.
try_browser_variable() {
    commands=${BROWSER-}
    # Whatever is started from here on must not come back to the same variable.
    unset BROWSER
    while [ -n "$commands" ]; do
        command=${commands%%:*}
        case $commands in
            *:*) commands=${commands#*:} ;;
            *) commands= ;;
        esac
        if try_command "$command" "$1"; then
            return 0
        fi
    done
    return 1
}

# try_command TEXT DOCUMENT: one command of $BROWSER.
try_command() {
    text=$1
    document=$2
    placed=
    set --
    # Split at blanks, but no file names for "*".
    set -f
    for word in $text; do
        fill_in "$word"
        set -- "$@" "$filled"
    done
    set +f
    [ $# -gt 0 ] || return 1
    [ -n "$placed" ] || set -- "$@" "$document"
    try "$@"
}

# fill_in WORD: sets `filled` to the word with the document in its place, and `placed` if there was one.
fill_in() {
    rest=$1
    filled=
    # Quotes that a shell would take away.
    case $rest in
        '"%s"' | "'%s'") rest=%s ;;
    esac
    while :; do
        case $rest in
            *%*) ;;
            *) break ;;
        esac
        filled=$filled${rest%%\%*}
        rest=${rest#*\%}
        case $rest in
            s*) filled=$filled$document placed=yes rest=${rest#s} ;;
            c*) filled=$filled: rest=${rest#c} ;;
            %*) filled=$filled% rest=${rest#\%} ;;
            *) filled=$filled% ;;
        esac
    done
    filled=$filled$rest
}

# try_desktop DOCUMENT: the openers of the desktops.
try_desktop() {
    try xdg-open "$1" || try gio open "$1" || try kde-open "$1" || try kde-open5 "$1"
}

# try_programs DOCUMENT PROGRAM...: the first that works.
try_programs() {
    document=$1
    shift
    for program in "$@"; do
        if try "$program" "$document"; then
            return 0
        fi
    done
    return 1
}
