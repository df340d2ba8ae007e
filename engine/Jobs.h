// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/ProgressUser.h"
#include "services/YumIODialogsUser.h"

#include <QMutex>
#include <functional>
#include <memory>

class HProgressBar;
class Progress;
class Python;
class QEventLoop;
class QThread;
class QWidget;
class Stop;
class YumIOCapturers;
class YumIODialogs;

/// Runs the jobs: long work on a worker thread, while the GUI thread serves events in a loop of its own. The
/// engine owns the one object, and runs its own jobs here; a matter that stands beside the engine does so by
/// `run`. At most one job works at a time. All operations: GUI thread.
///
/// A job never touches a widget. It tells how far it is by `progress`, and asks the user by `dialogs`. One
/// that gives up when the user wants it to is run while a `Stop::Job` stands on the caller's stack.
class Jobs final
{
public:
    /// A job: runs on the worker; what it answers is the answer of whoever had it run.
    using Work = std::function<bool()>;

    /// The start gate of a worker: nothing of a transaction may begin before the GUI thread has blocked
    /// SIGCHLD.
    class Blocker
    {
    public:
        void prepare() { mutex.lock(); }
        void release() { mutex.unlock(); }
        void block()
        {
            mutex.lock();
            mutex.unlock();
        }

    private:
        QMutex mutex;
    };

    /// What a job has at hand on its worker, for the guard's life: a Progress, then dialogs.
    class Means
    {
    public:
        explicit Means(Jobs& jobs);

    private:
        ProgressUser const progressUser;
        YumIODialogsUser const dialogsUser;
    };

    Jobs(Python& interpreter, Stop& stopOfJobs);
    ~Jobs();
    Jobs(Jobs const&) = delete;
    Jobs& operator=(Jobs const&) = delete;

    /// Says where dialogs and progress are shown. Nothing is owned.
    void setup(QWidget* dialogParent, HProgressBar* total, HProgressBar* item);

    /// Runs a job that has its means and the interpreter lock. False at once, with nothing done, where
    /// another job is in progress.
    bool run(Work const& work);
    /// As `run`, for what takes milliseconds as a rule: nothing of what the user does is served for a tenth
    /// of a second, so nothing has to be disabled for the job. If it takes longer, `lasts` is called, which
    /// sees to that, and events are served from then on.
    bool runBriefly(Work const& work, std::function<void()> const& lasts);
    /// Runs a job that sees to its means and to the lock by itself. The caller knows that no other works.
    /// With `lasts`, briefly.
    bool runBare(Work const& work, std::function<void()> const& lasts = {});
    /// Runs a thread that ends this loop, as `runBare` runs its own.
    void exec(QEventLoop& loop, QThread& thread, std::function<void()> const& lasts = {});

    /// Whether a job is in progress.
    [[nodiscard]] bool running() const { return count > 0; }

    QWidget* parent = nullptr; ///< of every dialog
    HProgressBar* totalBar = nullptr;
    HProgressBar* itemBar = nullptr;
    Progress* progress = nullptr;        ///< of the job in progress; null between jobs
    YumIODialogs* dialogs = nullptr;     ///< the dialog front in force
    YumIOCapturers* capturers = nullptr; ///< the capture of descriptors 1 and 2; null outside an apply
    Blocker blocker;

private:
    [[nodiscard]] Work withMeans(Work const& work);

    Python& python;
    Stop& stop;
    std::unique_ptr<YumIODialogs> ownDialogs; ///< the front for use outside jobs
    int count = 0; ///< jobs in progress, of the GUI thread's event loops; one at most works
};
