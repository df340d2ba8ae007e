// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"
#include "engine/YumIO.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QThread>
#include <atomic>

class QEventLoop;

/// The worker thread of one of the engine's jobs. It is built on the stack of the GUI-thread function that
/// wants the job, runs it, keeps its answer in `result` and ends the caller's event loop.
class WorkThread : public QThread
{
    Q_OBJECT

public:
    /// To be read once the thread has been waited for. Atomic, so that tools which don't know the toolkit's
    /// threads see that all of the job comes before.
    std::atomic<bool> result{false};

protected:
    WorkThread(YumIO* engine, QEventLoop& callersLoop);
    void run() final;
    /// The `...Real` operation of the engine. On the worker.
    virtual bool work() = 0;

    YumIO* const yumIO;

private:
    QEventLoop& loop;
};

/// Imports what the helper script will need.
class PreloadThread final : public WorkThread
{
    Q_OBJECT

public:
    PreloadThread(YumIO* engine, QEventLoop& callersLoop);

protected:
    bool work() override;
};

/// Frees what the last collection has made, and replaces the script's object.
class ClearThread final : public WorkThread
{
    Q_OBJECT

public:
    ClearThread(YumIO* engine, QEventLoop& callersLoop);

protected:
    bool work() override;
};

class CollectThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates);

protected:
    bool work() override;

private:
    QHash<QString, bool> const repos;
};

class CollectFileListsThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop);

protected:
    bool work() override;
};

class CollectOtherDataThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop);

protected:
    bool work() override;
};

class CollectBuildHostThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectBuildHostThread(YumIO* engine, QEventLoop& callersLoop, Package::Entry const& entryToAskFor);

protected:
    bool work() override;

private:
    Package::Entry const& entry;
};

class CollectDetailsThread final : public WorkThread
{
    Q_OBJECT

public:
    CollectDetailsThread(YumIO* engine, QEventLoop& callersLoop);

protected:
    bool work() override;
};

class CleanThread final : public WorkThread
{
    Q_OBJECT

public:
    CleanThread(
        YumIO* engine, QEventLoop& callersLoop, QString const& headingToLog,
        QList<char const*> const& methodsToCall);

protected:
    bool work() override;

private:
    QString const heading;
    QList<char const*> const methods;
};

class ApplyThread final : public WorkThread
{
    Q_OBJECT

public:
    ApplyThread(YumIO* engine, QEventLoop& callersLoop, YumIO::ApplyOf whatToApply);

protected:
    bool work() override;

private:
    YumIO::ApplyOf const what;
};
