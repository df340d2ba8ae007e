// SPDX-License-Identifier: GPL-2.0-or-later
#include "restarts/RestartsAdvice.h"

#include <QHash>
#include <QJsonArray>

namespace Restarts
{

namespace
{

QString textAt(QJsonObject const& told, char const* key)
{
    return told.value(QLatin1String(key)).toString();
}

// A user's own unit may have the name of one of the system.
using Unit = std::pair<QString, bool>;

Unit unitOf(QJsonObject const& told)
{
    return {textAt(told, "unit"), told.value(QLatin1String("own")).toBool()};
}

Process processOf(QJsonObject const& told, QHash<Unit, QString> const& obstacles)
{
    Process process;
    process.pid = told.value(QLatin1String("pid")).toInt();
    process.user = textAt(told, "userName");
    process.command = textAt(told, "command");
    process.started = told.value(QLatin1String("started")).toInteger();
    process.unit = textAt(told, "unit");
    process.obstacle = obstacles.value(unitOf(told));
    for (QJsonValue const value : told.value(QLatin1String("files")).toArray()) {
        QJsonObject const file = value.toObject();
        process.files.append(
            {textAt(file, "path"), textAt(file, "package"), file.value(QLatin1String("gone")).toBool()});
    }
    return process;
}

} // namespace

QStringList Advice::services() const
{
    QStringList units;
    for (Process const& process : processes) {
        if (!process.unit.isEmpty() && process.obstacle.isEmpty() && !units.contains(process.unit)) {
            units.append(process.unit);
        }
    }
    units.sort();
    return units;
}

Advice adviceOf(QJsonObject const& told)
{
    Advice advice;
    advice.note = textAt(told, "note");
    advice.since = told.value(QLatin1String("since")).toInteger();
    advice.unread = told.value(QLatin1String("unread")).toInt();
    for (QJsonValue const value : told.value(QLatin1String("reboot")).toArray()) {
        QJsonObject const package = value.toObject();
        advice.reboot.append(
            {textAt(package, "name"), textAt(package, "version"),
             package.value(QLatin1String("installed")).toInteger()});
    }
    QHash<Unit, QString> obstacles;
    for (QJsonValue const value : told.value(QLatin1String("units")).toArray()) {
        QJsonObject const unit = value.toObject();
        obstacles.insert(unitOf(unit), textAt(unit, "obstacle"));
    }
    for (QJsonValue const process : told.value(QLatin1String("processes")).toArray()) {
        advice.processes.append(processOf(process.toObject(), obstacles));
    }
    return advice;
}

} // namespace Restarts
