// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Stop.h"

#include <QMutexLocker>
#include <chrono>
#include <csignal>
#include <cstdint>

#include <sys/eventfd.h>
#include <unistd.h>

namespace
{

/// Ignored by whoever has no handler for it, so that it does no harm where a library has taken the handler
/// away.
constexpr int wakingSignal = SIGURG;

/// One may come just before the worker begins to wait.
constexpr std::chrono::milliseconds wakingInterval(100);

void justReturn(int) {}

} // namespace

Stop::Stop()
    : wish(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    struct sigaction action = {};
    action.sa_handler = &justReturn;
    // What waits for events returns all the same; reading and writing go on.
    action.sa_flags = SA_RESTART;
    ::sigaction(wakingSignal, &action, nullptr);
    waking.setInterval(wakingInterval);
    connect(&waking, &QTimer::timeout, this, &Stop::wake);
}

Stop::~Stop() = default;

void Stop::want()
{
    {
        QMutexLocker const locker(&mutex);
        if (now != State::Possible) {
            return;
        }
        // Whoever sees the descriptor sees this, too.
        wished = true;
        std::uint64_t const one = 1;
        if (::write(wish.get(), &one, sizeof one) != sizeof one) {
            wished = false;
            return;
        }
        now = State::Wanted;
    }
    Q_EMIT changed();
    wake();
    waking.start();
}

void Stop::tooLate()
{
    QMutexLocker locker(&mutex);
    if (now == State::Idle || now == State::TooLate) {
        return;
    }
    forget();
    now = State::TooLate;
    locker.unlock();
    Q_EMIT changed();
}

void Stop::forget()
{
    std::uint64_t count = 0;
    // There is nothing to read where nothing was wished.
    [[maybe_unused]] auto const size = ::read(wish.get(), &count, sizeof count);
    wished = false;
}

void Stop::wake()
{
    QMutexLocker const locker(&mutex);
    if (worker && now == State::Wanted) {
        ::pthread_kill(*worker, wakingSignal);
    }
}

Stop::Job::Job(Stop& stopOfEngine, HeededBy whom)
    : stop(stopOfEngine)
{
    {
        QMutexLocker const locker(&stop.mutex);
        stop.forget();
        stop.now = stop.heeded || whom == HeededBy::Caller ? State::Possible : State::Idle;
    }
    Q_EMIT stop.changed();
}

Stop::Job::~Job()
{
    stop.waking.stop();
    {
        QMutexLocker const locker(&stop.mutex);
        // Whether it was stopped is still asked for.
        bool const was = stop.wished;
        stop.forget();
        stop.wished = was;
        stop.now = State::Idle;
    }
    Q_EMIT stop.changed();
}

Stop::Worker::Worker(Stop& stopOfEngine)
    : stop(stopOfEngine)
{
    QMutexLocker const locker(&stop.mutex);
    stop.worker = ::pthread_self();
}

Stop::Worker::~Worker()
{
    QMutexLocker const locker(&stop.mutex);
    stop.worker.reset();
}
