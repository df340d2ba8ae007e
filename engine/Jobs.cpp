// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/Jobs.h"

#include "bridge/Python.h"
#include "engine/WorkThread.h"
#include "services/YumIODialogs.h"

#include <QDeadlineTimer>
#include <QEventLoop>
#include <csignal>
#include <cstdlib>

Jobs::Means::Means(Jobs& jobs)
    : progressUser(jobs.progress, jobs.totalBar, jobs.itemBar),
      dialogsUser(jobs.dialogs, jobs.parent)
{
}

Jobs::Jobs(Python& interpreter, Stop& stopOfJobs)
    : python(interpreter),
      stop(stopOfJobs)
{
}

Jobs::~Jobs() = default;

void Jobs::setup(QWidget* dialogParent, HProgressBar* total, HProgressBar* item)
{
    ownDialogs = std::make_unique<YumIODialogs>(dialogParent);
    dialogs = ownDialogs.get();
    parent = dialogParent;
    totalBar = total;
    itemBar = item;
}

bool Jobs::run(Work const& work)
{
    return !running() && runBare(withMeans(work));
}

bool Jobs::runBriefly(Work const& work, std::function<void()> const& lasts)
{
    return !running() && runBare(withMeans(work), lasts);
}

Jobs::Work Jobs::withMeans(Work const& work)
{
    return [this, &work] {
        Means const means(*this);
        Python::PyGILStateWrapper const lock(true);
        return work();
    };
}

bool Jobs::runBare(Work const& work, std::function<void()> const& lasts)
{
    QEventLoop loop;
    WorkThread thread(stop, loop, work);
    exec(loop, thread, lasts);
    return thread.result;
}

void Jobs::exec(QEventLoop& loop, QThread& thread, std::function<void()> const& lasts)
{
    // A short job may end before the loop begins, and would be waited for in vain: unlike a call of the loop,
    // a queued signal is not lost then.
    QObject::connect(&thread, &QThread::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    ++count;
    blocker.prepare();
    thread.start(QThread::HighPriority);

    // Only now, so that the worker has started with SIGCHLD open: from here on it alone can receive the
    // signals of the children that a transaction forks.
    sigset_t childSignal;
    sigset_t oldMask;
    sigemptyset(&childSignal);
    sigaddset(&childSignal, SIGCHLD);
    pthread_sigmask(SIG_BLOCK, &childSignal, &oldMask);
    blocker.release();

    if (lasts) {
        constexpr int patience = 100;
        QDeadlineTimer const patient(patience);
        while (!thread.isFinished() && !patient.hasExpired()) {
            loop.processEvents(QEventLoop::ExcludeUserInputEvents);
            thread.wait(1);
        }
        if (!thread.isFinished()) {
            lasts();
        }
    }
    // What has finished by now may have told so already.
    if (!(lasts && thread.isFinished()) && loop.exec() > 0) {
        // Only the toolkit gives event loops a status: the display is gone. Older releases of it end the
        // process themselves; newer ones end the loops, and complain at every turn of the one below. A
        // transaction that has begun comes to its end without this process.
        std::_Exit(EXIT_FAILURE);
    }
    // Once the last window is closed, event loops end at once; but the worker needs this thread for its
    // dialogs and signals until its job is done.
    while (!thread.isFinished()) {
        loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    thread.wait();
    loop.processEvents(QEventLoop::ExcludeUserInputEvents);
    {
        // Python sets signal handlers from its main thread only.
        Python::PyGILStateWrapper const lock(Python::initialized);
        if (Python::initialized) {
            python.setEnablePythonSIGINTHandler(false);
        }
    }
    pthread_sigmask(SIG_SETMASK, &oldMask, nullptr);
    --count;
}
