// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"

#include <array>
#include <vector>

namespace PackageTable
{

/// The place of each of the engine's rows in the order of a column, so that a sort of many rows compares
/// numbers. Made for a column when it is first asked for, in some 10 ms for 66,000 rows, and kept until
/// `forget`. Owned by the proxy; GUI thread.
class RowRanks
{
public:
    /// A row's place; the same for rows that are equal in the column and in their names.
    using Ranks = std::vector<quint32>;

    /// `engine` is not owned and must outlive this.
    explicit RowRanks(YumIO const* engine);

    /// To be called when the engine's list has been rebuilt.
    void forget();

    /// For each row its place by the column, rows that are equal in it by name. Any column but Action, whose
    /// values change without a rebuild.
    [[nodiscard]] Ranks const& of(int column)
    {
        Ranks const& present = ranks[static_cast<std::size_t>(column)];
        return present.size() == static_cast<std::size_t>(yumIO->count()) ? present : made(column);
    }

private:
    Ranks const& made(int column);
    [[nodiscard]] Ranks byText(int column) const;
    [[nodiscard]] Ranks byNumber(int column) const;

    YumIO const* yumIO;
    std::array<Ranks, ColumnCount> ranks; ///< an empty one isn't made yet
};

} // namespace PackageTable
