// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <algorithm>

/// What two texts have in common at either end; between these stands what differs, the middle. The ends don't
/// overlap in either text. Any thread.
struct CommonEnds
{
    CommonEnds(QString const& one, QString const& other)
    {
        qsizetype const common = std::min(one.size(), other.size());
        while (start < common && one[start] == other[start]) {
            ++start;
        }
        while (end < common - start && one[one.size() - 1 - end] == other[other.size() - 1 - end]) {
            ++end;
        }
    }

    /// The middle of one of the two texts.
    [[nodiscard]] QString middleOf(QString const& text) const
    {
        return text.mid(start, text.size() - start - end);
    }

    qsizetype start = 0; ///< characters in common at the beginning
    qsizetype end = 0;   ///< and at the end
};
