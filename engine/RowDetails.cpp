// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/RowDetails.h"

namespace Package
{

void RowDetails::clear()
{
    *this = RowDetails();
}

void RowDetails::append(Text const& text)
{
    texts.push_back(*kept.insert(text).first);
}

void RowDetails::append(Text const& text, long long number)
{
    append(text);
    numbers.push_back(number);
}

void RowDetails::append(Text const& text, long long number, Text const& tip)
{
    append(text, number);
    if (!tip.isEmpty()) {
        tips.emplace(static_cast<int>(texts.size()) - 1, tip);
    }
}

void RowDetails::finish()
{
    kept = {};
    texts.shrink_to_fit();
    numbers.shrink_to_fit();
}

} // namespace Package
