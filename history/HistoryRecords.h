// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Script.h"
#include "history/HistoryTransaction.h"

#include <QJsonValue>
#include <QObject>
#include <optional>

class YumIO;

namespace History
{

/// Reads the history through the helper script, whose functions for it are optional. Each reading is a job of
/// the engine; nothing comes after a report, and where another job is in progress. Owned by its QObject
/// parent, GUI thread.
class Records final : public QObject
{
    Q_OBJECT

public:
    /// The engine isn't owned, and outlives this.
    Records(YumIO* yumIO, QObject* parent);

    [[nodiscard]] static bool offered(YumIO const& yumIO);
    [[nodiscard]] bool searches() const;
    [[nodiscard]] bool exports() const;

    /// All transactions, the latest first.
    [[nodiscard]] std::optional<QList<Transaction>> all();
    [[nodiscard]] std::optional<Whole> whole(int number);
    /// The numbers of the transactions about packages that a text or a pattern (*, ?, [) fits.
    [[nodiscard]] std::optional<QList<int>> concerning(QString const& text);
    /// One of them, or for 0 all, as a text to be read or as JSON.
    [[nodiscard]] std::optional<QString> exported(int number, bool asJson);

Q_SIGNALS:
    /// A reading takes long enough to be noticed, and is over.
    void busy(bool begins);

private:
    /// Calls the function; `take` gets what it has answered, of that type, on the worker.
    template <typename Take>
    [[nodiscard]] bool read(
        char const* function, Script::Arguments const& arguments, QJsonValue::Type type, Take const& take);

    YumIO* yumIO;
};

} // namespace History
