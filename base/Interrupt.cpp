// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Interrupt.h"

#include <atomic>
#include <csignal>
#include <thread>

#include <pthread.h>

namespace
{

std::atomic<bool> transactionRuns{false};

sigset_t justInterrupt()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    return set;
}

void block(bool blocked)
{
    sigset_t const set = justInterrupt();
    ::pthread_sigmask(blocked ? SIG_BLOCK : SIG_UNBLOCK, &set, nullptr);
}

void openInChild()
{
    block(false);
}

[[noreturn]] void waitForever()
{
    // No other signal is for this thread: a transaction waits for those of its own children.
    sigset_t all;
    sigfillset(&all);
    ::pthread_sigmask(SIG_SETMASK, &all, nullptr);
    sigset_t const set = justInterrupt();
    while (true) {
        int signal = 0;
        if (::sigwait(&set, &signal) != 0) {
            continue;
        }
        if (!transactionRuns) {
            std::signal(SIGINT, SIG_DFL);
        }
        // To this thread, which is the only one that it can be handed to.
        block(false);
        std::raise(SIGINT);
        block(true);
    }
}

} // namespace

void Interrupt::endAtOnce()
{
    block(true);
    ::pthread_atfork(nullptr, nullptr, &openInChild);
    std::thread(&waitForever).detach();
}

void Interrupt::setTransactionRuns(bool runs)
{
    transactionRuns = runs;
}
