// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "bridge/PyRef.h"

/// An exception that was set on this thread and has been taken away from it. All parts are empty if there was
/// none. Under the interpreter lock.
struct FetchedException
{
    FetchedException() noexcept;
    /// Makes `value` an instance of `type`, which the interpreter puts off as long as it can.
    void normalize() noexcept;

    PyRef type;
    PyRef value;
    PyRef traceback;
};

/// Puts the exception that is set on this thread, if any, aside for a scope, and sets it again at the end
/// unless the scope has left one of its own. The interpreter must not be called with an exception set: a
/// call that succeeds would end in SystemError. On the stack, under the interpreter lock.
class PendingException
{
public:
    PendingException() = default;
    ~PendingException();
    PendingException(PendingException const&) = delete;
    PendingException& operator=(PendingException const&) = delete;

private:
    FetchedException exception;
};
