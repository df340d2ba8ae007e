// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QThread>

class QEventLoop;
class YumIO;

/// The worker threads of the engine's jobs. Each is built on the stack of the GUI-thread function that
/// wants the job, runs one `...Real` operation of the engine, keeps its answer in `result` and ends the
/// caller's event loop. `result` may be read once the thread has been waited for.
class CollectThread final : public QThread
{
    Q_OBJECT

public:
    CollectThread(YumIO* engine, QEventLoop& callersLoop, QHash<QString, bool> const& repoStates);
    bool result = false;

protected:
    void run() override;

private:
    YumIO* yumIO;
    QEventLoop& loop;
    QHash<QString, bool> repos;
};

class CollectFileListsThread final : public QThread
{
    Q_OBJECT

public:
    CollectFileListsThread(YumIO* engine, QEventLoop& callersLoop);
    bool result = false;

protected:
    void run() override;

private:
    YumIO* yumIO;
    QEventLoop& loop;
};

class CollectOtherDataThread final : public QThread
{
    Q_OBJECT

public:
    CollectOtherDataThread(YumIO* engine, QEventLoop& callersLoop);
    bool result = false;

protected:
    void run() override;

private:
    YumIO* yumIO;
    QEventLoop& loop;
};

class ApplyThread final : public QThread
{
    Q_OBJECT

public:
    ApplyThread(YumIO* engine, QEventLoop& callersLoop);
    bool result = false;

protected:
    void run() override;

private:
    YumIO* yumIO;
    QEventLoop& loop;
};
