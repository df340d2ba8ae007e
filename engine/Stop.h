// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "base/Descriptor.h"

#include <QMutex>
#include <QObject>
#include <QTimer>
#include <atomic>
#include <optional>

#include <pthread.h>

/// Whether what the engine is doing can be stopped, and the user's wish that it be. The engine owns the one
/// object, on the GUI thread.
///
/// The wish is a descriptor that can be read for as long as it stands: the helper script looks at it wherever
/// it takes long, without the interpreter lock being needed to express it. What waits in a system call for a
/// silent server is woken by a signal, so that it looks at once.
class Stop final : public QObject
{
    Q_OBJECT

public:
    enum class State
    {
        Idle,     ///< nothing is going on, or nothing that could be stopped
        Possible, ///< a job that gives up when it is asked to
        Wanted,   ///< it has been asked to
        TooLate   ///< rpm has begun to change the system
    };

    /// Who looks whether a job is to be given up.
    enum class HeededBy
    {
        Script,
        Caller
    };

    /// A job that can be stopped, for the guard's life. GUI thread.
    class Job
    {
    public:
        explicit Job(Stop& stop, HeededBy whom = HeededBy::Script);
        ~Job();
        Job(Job const&) = delete;
        Job& operator=(Job const&) = delete;

    private:
        Stop& stop;
    };

    /// Names the calling thread, for the guard's life, as the one that is to be woken.
    class Worker
    {
    public:
        explicit Worker(Stop& stop);
        ~Worker();
        Worker(Worker const&) = delete;
        Worker& operator=(Worker const&) = delete;

    private:
        Stop& stop;
    };

    Stop();
    ~Stop() override;

    /// Any thread.
    [[nodiscard]] State state() const { return now; }
    /// Whether the job in progress, else the last one, has been asked to give up, and could. Any thread.
    [[nodiscard]] bool stopped() const { return wished; }
    /// Asks the job in progress to give up; does nothing where that isn't possible. GUI thread.
    void want();
    /// From here on to its end the job in progress goes on whatever is wished. Any thread.
    void tooLate();

    /// What can be read once a stop is wanted; -1 where the system gives none.
    [[nodiscard]] int descriptor() const { return wish.get(); }
    /// Whether the script looks at the descriptor: without that no job of its can be stopped. GUI thread.
    void setHeeded(bool heeds) { heeded = heeds; }

Q_SIGNALS:
    /// The state is another one. From any thread.
    void changed();

private:
    void forget();
    void wake();

    Descriptor wish;
    QTimer waking;
    QMutex mutex; ///< guards the changes of state, and `worker`
    std::optional<pthread_t> worker;
    std::atomic<State> now{State::Idle};
    std::atomic<bool> wished{false};
    bool heeded = false;
};
