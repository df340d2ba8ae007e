// SPDX-License-Identifier: GPL-2.0-or-later
#include "restarts/RestartsReader.h"

#include "engine/YumIO.h"

#include <QJsonArray>

namespace Restarts
{

namespace
{

constexpr char const* adviceFunction = "restartAdvice";
constexpr char const* restartFunction = "restartServices";

} // namespace

bool Reader::offered(YumIO const& yumIO)
{
    return yumIO.script.has(adviceFunction);
}

bool Reader::restarts() const
{
    return has(restartFunction);
}

std::optional<Advice> Reader::advice()
{
    Advice found;
    QString const failure = tr("Unable to find out what is to be restarted");
    bool const told = read(adviceFunction, {}, failure, {QJsonValue::Object}, [&](QJsonValue const& answer) {
        found = adviceOf(answer.toObject());
    });
    return told ? std::optional(found) : std::nullopt;
}

std::optional<QList<Reader::Outcome>> Reader::restarted(QStringList const& units)
{
    QList<Outcome> outcomes;
    QString const failure = tr("Unable to restart services");
    QJsonArray const those = QJsonArray::fromStringList(units);
    bool const told =
        read(restartFunction, {those}, failure, {QJsonValue::Array}, [&](QJsonValue const& answer) {
            for (QJsonValue const value : answer.toArray()) {
                QJsonObject const one = value.toObject();
                outcomes.append(
                    {one.value(QLatin1String("unit")).toString(), one.value(QLatin1String("done")).toBool(),
                     one.value(QLatin1String("text")).toString()});
            }
        });
    return told ? std::optional(outcomes) : std::nullopt;
}

} // namespace Restarts
