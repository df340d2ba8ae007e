// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>
#include <QStringList>

/// What still works with what has been replaced, as values of any thread. They are made of what the helper
/// script answers; what it doesn't tell is empty.
namespace Restarts
{

/// A file that a process uses, and that isn't any more what was read when the process began.
struct File
{
    QString path;
    QString package; ///< to which the file belongs now; empty for none
    bool gone = false;
};

struct Process
{
    int pid = 0;
    QString user;
    QString command;
    qint64 started = 0; ///< seconds since 1970; 0 where nobody knows
    QString unit;       ///< of the service manager; empty for none
    QString obstacle;   ///< why its unit is not to be restarted, a sentence; empty where it can be
    QList<File> files;
};

/// A package for whose sake the system is to be started anew.
struct Reason
{
    QString name, version;
    qint64 installed = 0; ///< seconds since 1970
};

struct Advice
{
    QString note;     ///< a sentence where the managed system isn't the one that runs
    qint64 since = 0; ///< when the system was started, seconds since 1970; 0 where nobody knows
    QList<Reason> reboot;
    QList<Process> processes;
    int unread = 0; ///< of how many processes nothing could be told, for lack of rights

    /// Units that can be restarted, each once, in their order.
    [[nodiscard]] QStringList services() const;
};

[[nodiscard]] Advice adviceOf(QJsonObject const& told);

} // namespace Restarts
