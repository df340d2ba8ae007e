// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Interrupt.h"

#include "base/StartingPoint.h"

#include <csignal>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

#include <pthread.h>

namespace
{

/// What has to hold while the waiting thread makes up its mind about a signal.
struct Transaction
{
    std::mutex mutex;
    bool runs = false;
    bool interrupted = false;
    std::string words;
};

/// Never destroyed: the waiting thread lives as long as the process.
Transaction& transaction()
{
    static auto* const only = new Transaction;
    return *only;
}

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
        std::string words;
        {
            std::lock_guard const lock(transaction().mutex);
            if (!transaction().runs) {
                Interrupt::end();
            }
            transaction().interrupted = true;
            words = transaction().words;
        }
        // A terminal may take its time.
        StartingPoint::tell(words.c_str());
    }
}

} // namespace

void Interrupt::endAtOnce()
{
    block(true);
    ::pthread_atfork(nullptr, nullptr, &openInChild);
    std::thread(&waitForever).detach();
}

void Interrupt::transactionBegins(std::string words)
{
    std::lock_guard const lock(transaction().mutex);
    transaction().runs = true;
    transaction().words = std::move(words);
}

bool Interrupt::transactionEnds()
{
    std::lock_guard const lock(transaction().mutex);
    transaction().runs = false;
    return std::exchange(transaction().interrupted, false);
}

void Interrupt::end()
{
    std::signal(SIGINT, SIG_DFL);
    block(false);
    std::raise(SIGINT);
    // Not reached unless SIGINT is ignored for good.
    std::_Exit(EXIT_FAILURE);
}
