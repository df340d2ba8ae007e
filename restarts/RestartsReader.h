// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "matters/ScriptReader.h"
#include "restarts/RestartsAdvice.h"

#include <optional>

namespace Restarts
{

/// Reads the advice, and has services restarted. Nothing comes after a report, and where another job is in
/// progress.
class Reader final : public ScriptReader
{
    Q_OBJECT

public:
    using ScriptReader::ScriptReader;

    [[nodiscard]] static bool offered(YumIO const& yumIO);
    [[nodiscard]] bool restarts() const;

    [[nodiscard]] std::optional<Advice> advice();

    /// What came of a restart.
    struct Outcome
    {
        QString unit;
        bool done = false;
        QString text; ///< a sentence where it isn't done
    };
    /// Has these units restarted, one after the other; each may take minutes.
    [[nodiscard]] std::optional<QList<Outcome>> restarted(QStringList const& units);
};

} // namespace Restarts
