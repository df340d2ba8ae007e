// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>

/// Tells how long the GUI thread has left events waiting: a thread of its own posts an event, waits until it
/// is served, and posts the next one a little later. Made, asked and deleted on the GUI thread.
class Pinger final : public QObject
{
    Q_OBJECT

public:
    Pinger();
    ~Pinger() override;

    /// Forgets what was measured before.
    void restart();
    /// The longest time since `restart`, in nanoseconds, that a ping has waited; one that still waits counts.
    [[nodiscard]] qint64 longest() const;

    bool event(QEvent* event) override;

private:
    void ping();
    [[nodiscard]] qint64 age() const;

    QElapsedTimer clock;
    std::atomic<qint64> sent = 0; ///< when the ping that waits was posted; 0 when none waits
    qint64 begin = 0;
    qint64 worst = 0;
    std::mutex mutex;
    std::condition_variable changed;
    bool ending = false;
    std::thread thread;
};
