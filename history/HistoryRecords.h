// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "history/HistoryTransaction.h"
#include "matters/ScriptReader.h"

#include <optional>

namespace History
{

/// Reads the history. Nothing comes after a report, and where another job is in progress.
class Records final : public ScriptReader
{
    Q_OBJECT

public:
    using ScriptReader::ScriptReader;

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

private:
    [[nodiscard]] static QString failure();
};

} // namespace History
