// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QThread>
#include <atomic>
#include <functional>

class QEventLoop;
class Stop;

/// The worker thread of one job. It is built on the stack of the GUI-thread function that wants the job, runs
/// it, keeps its answer in `result` and ends the caller's event loop.
class WorkThread : public QThread
{
    Q_OBJECT

public:
    WorkThread(Stop& stopOfJobs, QEventLoop& callersLoop, std::function<bool()> job);

    /// To be read once the thread has been waited for. Atomic, so that tools which don't know the toolkit's
    /// threads see that all of the job comes before.
    std::atomic<bool> result{false};

protected:
    void run() final;

private:
    Stop& stop;
    QEventLoop& loop;
    std::function<bool()> const work;
};
