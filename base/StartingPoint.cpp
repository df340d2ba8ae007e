// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/StartingPoint.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

constexpr int standardDescriptors = 3;

std::array<int, standardDescriptors> descriptors{-1, -1, -1};
int rootDirectory = -1;
int workingDirectory = -1;

bool isClosed(int descriptor)
{
    return ::fcntl(descriptor, F_GETFD) < 0 && errno == EBADF;
}

bool areOneDirectory(int descriptor, char const* path)
{
    struct stat first = {};
    struct stat second = {};
    return ::fstat(descriptor, &first) == 0 && ::stat(path, &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

/// What the interpreter and the toolkit ignore or handle, and what a job has blocked, stays so across exec.
void restoreSignals()
{
    struct sigaction byDefault = {};
    byDefault.sa_handler = SIG_DFL; // NOLINT(cppcoreguidelines-pro-type-union-access)
    for (int signal = 1; signal < NSIG; ++signal) {
        ::sigaction(signal, &byDefault, nullptr);
    }
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

/// Only root can have left the root, so whoever has can also go back.
void restoreRoot()
{
    if (rootDirectory >= 0 && !areOneDirectory(rootDirectory, "/") && ::fchdir(rootDirectory) == 0) {
        static_cast<void>(!::chroot("."));
    }
    if (workingDirectory >= 0) {
        static_cast<void>(!::fchdir(workingDirectory));
    }
}

} // namespace

void StartingPoint::remember()
{
    for (int descriptor = 0; descriptor < standardDescriptors; ++descriptor) {
        if (isClosed(descriptor)) {
            // The lowest free number, which is this one. To be inherited as any other standard descriptor.
            static_cast<void>(!::open("/dev/null", O_RDWR)); // NOLINT(android-cloexec-open)
        }
    }
    for (int descriptor = 0; descriptor < standardDescriptors; ++descriptor) {
        descriptors.at(static_cast<std::size_t>(descriptor)) =
            ::fcntl(descriptor, F_DUPFD_CLOEXEC, standardDescriptors);
    }
    rootDirectory = ::open("/", O_PATH | O_DIRECTORY | O_CLOEXEC);
    workingDirectory = ::open(".", O_PATH | O_DIRECTORY | O_CLOEXEC);
}

void StartingPoint::tell(char const* words)
{
    int const remembered = descriptors[STDERR_FILENO];
    // There is nobody to be told when nobody listens.
    static_cast<void>(!::write(remembered >= 0 ? remembered : STDERR_FILENO, words, std::strlen(words)));
}

void StartingPoint::restoreInChild()
{
    restoreRoot();
    for (int descriptor = 0; descriptor < standardDescriptors; ++descriptor) {
        int const remembered = descriptors.at(static_cast<std::size_t>(descriptor));
        if (remembered >= 0) {
            ::dup2(remembered, descriptor);
        }
    }
    if (::close_range(standardDescriptors, UINT_MAX, 0) != 0) {
        // A kernel, or a sandbox, without the call. Some allow a thousand million descriptors; nobody has as
        // many.
        constexpr long most = 65536;
        for (long descriptor = std::min(::sysconf(_SC_OPEN_MAX), most);
             --descriptor >= standardDescriptors;) {
            ::close(static_cast<int>(descriptor));
        }
    }
    restoreSignals();
}
