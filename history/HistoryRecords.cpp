// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/HistoryRecords.h"

#include "engine/YumIO.h"

#include <QJsonArray>
#include <QJsonValue>

namespace History
{

namespace
{

constexpr char const* listFunction = "historyList";
constexpr char const* wholeFunction = "historyOf";
constexpr char const* searchFunction = "historySearch";
constexpr char const* exportFunction = "historyExport";

} // namespace

Records::Records(YumIO* engine, QObject* parent)
    : QObject(parent),
      yumIO(engine)
{
}

bool Records::offered(YumIO const& yumIO)
{
    return yumIO.script.has(listFunction) && yumIO.script.has(wholeFunction);
}

bool Records::searches() const
{
    return yumIO->script.has(searchFunction);
}

bool Records::exports() const
{
    return yumIO->script.has(exportFunction);
}

template <typename Call>
std::optional<QJsonValue> Records::read(Call const& call)
{
    std::optional<QJsonValue> answer;
    bool lasted = false;
    auto const work = [&] {
        answer = call(tr("Unable to read the history of transactions"));
        return answer.has_value();
    };
    auto const lasts = [&] {
        lasted = true;
        Q_EMIT busy(true);
    };
    yumIO->jobs.runBriefly(work, lasts);
    if (lasted) {
        Q_EMIT busy(false);
    }
    return answer;
}

std::optional<QList<Transaction>> Records::all()
{
    // Thousands of transactions become values on the worker.
    QList<Transaction> transactions;
    auto const answer = read([&](QString const& failure) {
        std::optional<QJsonValue> told = yumIO->script.call(listFunction, {}, failure);
        for (QJsonValue const transaction : told ? told->toArray() : QJsonArray()) {
            transactions.append(transactionOf(transaction.toObject()));
        }
        return told;
    });
    return answer ? std::optional(transactions) : std::nullopt;
}

std::optional<Whole> Records::whole(int number)
{
    Whole found;
    auto const answer = read([&](QString const& failure) {
        std::optional<QJsonValue> told = yumIO->script.call(wholeFunction, {number}, failure);
        if (told) {
            found = wholeOf(told->toObject());
        }
        return told;
    });
    return answer ? std::optional(found) : std::nullopt;
}

std::optional<QList<int>> Records::concerning(QString const& text)
{
    auto const answer =
        read([&](QString const& failure) { return yumIO->script.call(searchFunction, {text}, failure); });
    if (!answer) {
        return std::nullopt;
    }
    QList<int> numbers;
    for (QJsonValue const number : answer->toArray()) {
        numbers.append(number.toInt());
    }
    return numbers;
}

std::optional<QString> Records::exported(int number, bool asJson)
{
    QLatin1String const form(asJson ? "json" : "text");
    auto const answer = read([&](QString const& failure) {
        return yumIO->script.call(exportFunction, {number, form}, failure);
    });
    return answer ? std::optional(answer->toString()) : std::nullopt;
}

} // namespace History
