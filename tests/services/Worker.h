// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QEventLoop>
#include <QObject>
#include <QThread>
#include <memory>

/// Runs `work` on a thread of its own while the calling thread's event loop runs, as the jobs of the
/// engine do, and serves what the worker has left behind.
template <typename Work>
void runOnWorker(Work&& work)
{
    QEventLoop loop;
    std::unique_ptr<QThread> const thread(QThread::create(std::forward<Work>(work)));
    QObject::connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
    thread->start();
    loop.exec();
    thread->wait();
    loop.processEvents(QEventLoop::ExcludeUserInputEvents);
}
