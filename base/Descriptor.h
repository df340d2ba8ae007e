// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cerrno>
#include <utility>

#include <unistd.h>

/// Owner of a file descriptor. Closing keeps errno, so that the cause of a failure outlives its descriptors.
class Descriptor final
{
public:
    /// Takes what open(2) gives, also -1.
    explicit Descriptor(int opened = -1)
        : descriptor(opened)
    {
    }
    Descriptor(Descriptor&& other) noexcept
        : descriptor(std::exchange(other.descriptor, -1))
    {
    }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(descriptor, other.descriptor);
        return *this;
    }
    ~Descriptor()
    {
        if (descriptor < 0)
            return;
        int const cause = errno;
        ::close(descriptor);
        errno = cause;
    }
    Descriptor(Descriptor const&) = delete;
    Descriptor& operator=(Descriptor const&) = delete;

    /// Whether there is one.
    explicit operator bool() const { return descriptor >= 0; }
    [[nodiscard]] int get() const { return descriptor; }
    /// Leaves it to the caller.
    [[nodiscard]] int release() { return std::exchange(descriptor, -1); }

private:
    int descriptor;
};
