// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/Execute.h"

#include "base/StartingPoint.h"

#include <QCoreApplication>
#include <QMessageBox>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// In the process that is to become the program. Other threads do not exist here, so that nothing of this
/// program may run but what ends in `_exit`.
[[noreturn]] void become(char* const* argv)
{
    StartingPoint::restoreInChild();
    execv(argv[0], argv);
    int const cause = errno;
    dprintf(
        STDERR_FILENO, "execv(\"%s\", ...) failed; errno = %u (%s)\n", argv[0],
        static_cast<unsigned int>(cause), std::strerror(cause));
    _exit(1);
}

/// In the process between: starts the one that becomes the program, and by ending hands it to the system,
/// which is going to reap it. The program's session has no terminal, so that Ctrl-C there is not for it.
[[noreturn]] void startDetached(char* const* argv)
{
    setsid();
    pid_t const child = fork();
    if (child == 0)
        become(argv);
    if (child < 0) {
        int const cause = errno;
        dprintf(
            STDERR_FILENO, "second fork() failed; errno = %u (%s)\n", static_cast<unsigned int>(cause),
            std::strerror(cause));
        _exit(1);
    }
    _exit(0);
}

} // namespace

void Execute::execute(QWidget* parent, char* const* argv)
{
    pid_t const child = fork();
    if (child == 0)
        startDetached(argv);
    if (child < 0) {
        int const cause = errno;
        QMessageBox::critical(
            parent, QCoreApplication::translate("Execute", "Help"),
            QCoreApplication::translate("Execute", "fork() failed; errno = %1 (%2)")
                .arg(QString::number(cause), QString::fromLocal8Bit(std::strerror(cause))),
            QMessageBox::Ok);
        return;
    }
    while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}
