// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/// Runs `body` in a forked copy of this process, with its output thrown away, and answers how that ended, as
/// waitpid tells it. A `body` that returns ends the copy with its value as the exit status.
inline int statusOfChild(std::function<int()> const& body)
{
    pid_t const child = fork();
    if (child == 0) {
        rlimit const noCore = {0, 0};
        setrlimit(RLIMIT_CORE, &noCore);
        std::signal(SIGABRT, SIG_DFL);
        int const sink = open("/dev/null", O_WRONLY | O_CLOEXEC);
        dup2(sink, STDOUT_FILENO);
        dup2(sink, STDERR_FILENO);
        _exit(body());
    }
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

inline bool endedByAbort(int status)
{
    return WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT;
}
