// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <unistd.h>

/// Takes the right to ignore the permissions of files away from a test that root runs, for as long as this
/// lives: the process acts as a user without any rights.
class Unprivileged
{
public:
    Unprivileged()
        : isRoot(::geteuid() == 0)
    {
        isThere = !isRoot || ::seteuid(nobody) == 0;
    }
    ~Unprivileged()
    {
        if (isRoot && isThere)
            isThere = ::seteuid(0) == 0;
    }
    Unprivileged(Unprivileged const&) = delete;
    Unprivileged& operator=(Unprivileged const&) = delete;

    /// False where root can't become another user, as in a user namespace that has only one.
    explicit operator bool() const { return isThere; }

private:
    static constexpr uid_t nobody = 65534;
    bool isRoot;
    bool isThere = false;
};
