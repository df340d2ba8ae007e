// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/WorkThread.h"

#include "engine/Stop.h"

#include <QEventLoop>
#include <utility>

WorkThread::WorkThread(Stop& stopOfJobs, QEventLoop& callersLoop, std::function<bool()> job)
    : stop(stopOfJobs),
      loop(callersLoop),
      work(std::move(job))
{
}

void WorkThread::run()
{
    {
        Stop::Worker const wakable(stop);
        result = work();
    }
    loop.exit(0);
}
