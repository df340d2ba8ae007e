// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "advisories/Advisory.h"
#include "matters/ScriptReader.h"

#include <optional>

namespace Advisories
{

/// Reads the advisories. Nothing comes after a report, and where another job is in progress.
class Reader final : public ScriptReader
{
    Q_OBJECT

public:
    using ScriptReader::ScriptReader;

    [[nodiscard]] static bool offered(YumIO const& yumIO);

    struct List
    {
        bool known = false; ///< the metadata of some repository tells of advisories
        QList<Advisory> advisories;
    };
    /// All about what is installed, the latest first.
    [[nodiscard]] std::optional<List> all();
    [[nodiscard]] std::optional<Whole> whole(QString const& identifier);

private:
    [[nodiscard]] static QString failure();
};

} // namespace Advisories
