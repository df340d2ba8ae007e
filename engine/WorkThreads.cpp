// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/WorkThreads.h"

CollectThread::CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates)
    : WorkThread(engine->stop, callersLoop, [engine, repoStates] { return engine->collectReal(repoStates); })
{
}

CollectFileListsThread::CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine->stop, callersLoop, [engine] { return engine->collectFileListsReal(); })
{
}

CollectOtherDataThread::CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop)
    : WorkThread(engine->stop, callersLoop, [engine] { return engine->collectOtherDataReal(); })
{
}

ApplyThread::ApplyThread(YumIO* engine, QEventLoop& callersLoop, YumIO::ApplyOf what)
    : WorkThread(engine->stop, callersLoop, [engine, what] { return engine->applyReal(what); })
{
}
