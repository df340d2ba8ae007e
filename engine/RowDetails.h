// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/PackageText.h"

#include <cstddef>
#include <unordered_map>
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

/// One detail of all rows: a text for each, equal ones kept once, and perhaps a number and a tool tip. Filled
/// by a job, and read on the GUI thread behind it.
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
    /// Empty where there is none.
    [[nodiscard]] Text tip(int row) const
    {
        auto const found = tips.find(row);
        return found == tips.end() ? Text() : found->second;
    }
    /// False where whoever was asked can't know it of any row.
    [[nodiscard]] bool isKnown() const { return known; }
    void setKnown(bool isKnown) { known = isKnown; }
    /// Whether the last reading has failed, after a report: all are empty then.
    [[nodiscard]] bool hasFailed() const { return failed; }
    void setFailed() { failed = true; }
    [[nodiscard]] bool isFor(int rows) const { return texts.size() == static_cast<std::size_t>(rows); }

    void clear();
    /// The next row's.
    void append(Text const& text);
    void append(Text const& text, long long number);
    void append(Text const& text, long long number, Text const& tip);
    /// Behind the last row: gives back what only `append` needs.
    void finish();

private:
    std::vector<Text> texts; ///< by row
    std::vector<long long> numbers;
    std::unordered_map<int, Text> tips; ///< few rows have one
    TextSet kept;
    bool known = true;
    bool failed = false;
};

} // namespace Package
