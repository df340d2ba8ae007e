// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/PackageText.h"

#include <cstddef>
#include <vector>

namespace Package
{

/// What can be told of a row beyond what a collection reads of each: loaded for all rows at a time, once
/// somebody wants to see it.
enum class Detail
{
    InstalledSize,
    Group,
    Licence,
    Vendor,
    Reason,
    Advisory,
};
constexpr std::size_t detailCount = 6;

/// One detail of all rows: a text for each, equal ones kept once, and perhaps a number. Filled by a job, and
/// read on the GUI thread behind it.
class RowDetails
{
public:
    /// Empty, too, for rows that this doesn't know.
    [[nodiscard]] Text const& text(int row) const
    {
        static Text const none;
        auto const place = static_cast<std::size_t>(row);
        return place < texts.size() ? texts[place] : none;
    }
    /// 0 where there is none.
    [[nodiscard]] long long number(int row) const
    {
        auto const place = static_cast<std::size_t>(row);
        return place < numbers.size() ? numbers[place] : 0;
    }
    [[nodiscard]] bool isFor(int rows) const { return texts.size() == static_cast<std::size_t>(rows); }

    void clear();
    /// The next row's.
    void append(Text const& text);
    void append(Text const& text, long long number);
    /// Behind the last row: gives back what only `append` needs.
    void finish();

private:
    std::vector<Text> texts; ///< by row
    std::vector<long long> numbers;
    TextSet known;
};

} // namespace Package
