// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/WorkThread.h"
#include "engine/YumIO.h"

#include <QHash>
#include <QString>

/// The worker threads of the engine's long jobs. Its short ones, and those of others, have none of their own:
/// see `Jobs`.
class CollectThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates);
};

class CollectFileListsThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop);
};

class CollectOtherDataThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop);
};

class ApplyThread final : public WorkThread
{
    Q_OBJECT

public:
    ApplyThread(YumIO* engine, QEventLoop& callersLoop, YumIO::ApplyOf what);
};
