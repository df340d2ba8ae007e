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

bool Records::offered(YumIO const& yumIO)
{
    return yumIO.script.has(listFunction) && yumIO.script.has(wholeFunction);
}

bool Records::searches() const
{
    return has(searchFunction);
}

bool Records::exports() const
{
    return has(exportFunction);
}

QString Records::failure()
{
    return tr("Unable to read the history of transactions");
}

std::optional<QList<Transaction>> Records::all()
{
    QList<Transaction> transactions;
    bool const told = read(listFunction, {}, failure(), {QJsonValue::Array}, [&](QJsonValue const& answer) {
        for (QJsonValue const transaction : answer.toArray()) {
            transactions.append(transactionOf(transaction.toObject()));
        }
    });
    return told ? std::optional(transactions) : std::nullopt;
}

std::optional<Whole> Records::whole(int number)
{
    Whole found;
    bool const told =
        read(wholeFunction, {number}, failure(), {QJsonValue::Object}, [&](QJsonValue const& answer) {
            found = wholeOf(answer.toObject());
        });
    return told ? std::optional(found) : std::nullopt;
}

std::optional<QList<int>> Records::concerning(QString const& text)
{
    QList<int> numbers;
    bool const told =
        read(searchFunction, {text}, failure(), {QJsonValue::Array}, [&](QJsonValue const& answer) {
            for (QJsonValue const number : answer.toArray()) {
                numbers.append(number.toInt());
            }
        });
    return told ? std::optional(numbers) : std::nullopt;
}

std::optional<QString> Records::exported(int number, bool asJson)
{
    QString text;
    QLatin1String const form(asJson ? "json" : "text");
    bool const told =
        read(exportFunction, {number, form}, failure(), {QJsonValue::String}, [&](QJsonValue const& answer) {
            text = answer.toString();
        });
    return told ? std::optional(text) : std::nullopt;
}

} // namespace History
