// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/WorkThreads.h"

#include "engine/YumIO.h"

#include <QEventLoop>

CollectThread::CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates)
    : yumIO(engine),
      loop(callersLoop),
      repos(repoStates)
{
}

void CollectThread::run()
{
    result = yumIO->collectReal(repos);
    loop.exit(0);
}

CollectFileListsThread::CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop)
    : yumIO(engine),
      loop(callersLoop)
{
}

void CollectFileListsThread::run()
{
    result = yumIO->collectFileListsReal();
    loop.exit(0);
}

CollectOtherDataThread::CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop)
    : yumIO(engine),
      loop(callersLoop)
{
}

void CollectOtherDataThread::run()
{
    result = yumIO->collectOtherDataReal();
    loop.exit(0);
}

ApplyThread::ApplyThread(YumIO* engine, QEventLoop& callersLoop)
    : yumIO(engine),
      loop(callersLoop)
{
}

void ApplyThread::run()
{
    result = yumIO->applyReal();
    loop.exit(0);
}
