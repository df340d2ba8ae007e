// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIOCapturers.h"

#include "base/Application.h"
#include "services/CaptureSink.h"
#include "services/YumIOCapturersMinion.h"

#include <QApplication>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace
{

void closeFd(int& fd)
{
    if (fd >= 0) {
        ::close(fd);
        fd = -1;
    }
}

void closePipe(int (&ends)[2])
{
    closeFd(ends[0]);
    closeFd(ends[1]);
}

/// A duplicate that children don't inherit.
int duplicate(int fd)
{
    return ::fcntl(fd, F_DUPFD_CLOEXEC, 3);
}

/// Gives what stdio still holds to the descriptors as they are now.
void flushStdio()
{
    std::fflush(stdout);
    std::fflush(stderr);
}

} // namespace

YumIOCapturers::YumIOCapturers(CaptureSink* sink)
    : yumIO(sink)
{
    flushStdio();
    savedStdout = duplicate(STDOUT_FILENO);
    savedStderr = duplicate(STDERR_FILENO);
    if (!openPipes()) {
        yumIO->error(tr("Unable to open pipe to capture rpm transaction output"));
        return;
    }
    if (!redirect()) {
        yumIO->error(tr("Unable to dup2 pipe to capture rpm transaction output"));
        return;
    }
    ::fcntl(stdoutPipe[0], F_SETFL, O_NONBLOCK);
    ::fcntl(stderrPipe[0], F_SETFL, O_NONBLOCK);
    minion = new YumIOCapturersMinion(yumIO, stdoutPipe[0], stderrPipe[0]);
    minion->moveToThread(application->thread());
    minion->activate();
}

YumIOCapturers::~YumIOCapturers()
{
    if (!minion) {
        closeSaved();
        return;
    }
    drain();
    bool const restored = restore();
    closeSaved();
    if (!restored) {
        // A descriptor still leads into its pipe: the reader has to stay, or writers would hang.
        yumIO->error(tr("Unable to dup2 to restore stderr"));
        return;
    }
    closeFd(stdoutPipe[1]);
    closeFd(stderrPipe[1]);
    minion->deactivate();
    minion->deleteLater();
}

void YumIOCapturers::drain()
{
    if (!minion) {
        return;
    }
    auto const read = [this] {
        minion->readStdout();
        minion->readStderr();
    };
    // The pipes are emptied first, so that what stdio still holds finds room in them.
    read();
    flushStdio();
    read();
}

bool YumIOCapturers::openPipes()
{
    if (::pipe2(stdoutPipe, O_CLOEXEC) == 0 && ::pipe2(stderrPipe, O_CLOEXEC) == 0) {
        return true;
    }
    closePipe(stdoutPipe);
    closePipe(stderrPipe);
    return false;
}

/// Leads both descriptors into the pipes, or, on a failure, neither: nobody would read them.
bool YumIOCapturers::redirect()
{
    if (::dup2(stdoutPipe[1], STDOUT_FILENO) >= 0 && ::dup2(stderrPipe[1], STDERR_FILENO) >= 0) {
        return true;
    }
    static_cast<void>(restore());
    closePipe(stdoutPipe);
    closePipe(stderrPipe);
    return false;
}

bool YumIOCapturers::restore() const
{
    bool const stdoutRestored = ::dup2(savedStdout, STDOUT_FILENO) >= 0;
    bool const stderrRestored = ::dup2(savedStderr, STDERR_FILENO) >= 0;
    return stdoutRestored && stderrRestored;
}

void YumIOCapturers::closeSaved()
{
    closeFd(savedStdout);
    closeFd(savedStderr);
}
