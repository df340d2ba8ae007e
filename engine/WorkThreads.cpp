// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/WorkThreads.h"

#include "engine/Stop.h"
#include "engine/YumIO.h"

#include <QEventLoop>

WorkThread::WorkThread(YumIO* engine, QEventLoop& callersLoop)
    : yumIO(engine),
      loop(callersLoop)
{
}

void WorkThread::run()
{
    {
        Stop::Worker const wakable(yumIO->stop);
        result = work();
    }
    loop.exit(0);
}

PreloadThread::PreloadThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine, callersLoop)
{
}

bool PreloadThread::work()
{
    return yumIO->preloadReal();
}

ClearThread::ClearThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine, callersLoop)
{
}

bool ClearThread::work()
{
    return yumIO->clearReal();
}

CollectThread::CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates)
    : WorkThread(engine, callersLoop),
      repos(repoStates)
{
}

bool CollectThread::work()
{
    return yumIO->collectReal(repos);
}

CollectFileListsThread::CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine, callersLoop)
{
}

bool CollectFileListsThread::work()
{
    return yumIO->collectFileListsReal();
}

CollectOtherDataThread::CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine, callersLoop)
{
}

bool CollectOtherDataThread::work()
{
    return yumIO->collectOtherDataReal();
}

CollectBuildHostThread::CollectBuildHostThread(
    YumIO* engine, QEventLoop& callersLoop, Package::Entry const& entryToAskFor)
    : WorkThread(engine, callersLoop),
      entry(entryToAskFor)
{
}

bool CollectBuildHostThread::work()
{
    return yumIO->collectBuildHostReal(entry);
}

CollectDetailsThread::CollectDetailsThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine, callersLoop)
{
}

bool CollectDetailsThread::work()
{
    return yumIO->collectDetailsReal();
}

CleanThread::CleanThread(
    YumIO* engine, QEventLoop& callersLoop, QString const& headingToLog,
    QList<char const*> const& methodsToCall)
    : WorkThread(engine, callersLoop),
      heading(headingToLog),
      methods(methodsToCall)
{
}

bool CleanThread::work()
{
    return yumIO->cleanCachesReal(heading, methods);
}

ApplyThread::ApplyThread(YumIO* engine, QEventLoop& callersLoop, YumIO::ApplyOf whatToApply)
    : WorkThread(engine, callersLoop),
      what(whatToApply)
{
}

bool ApplyThread::work()
{
    return yumIO->applyReal(what);
}
