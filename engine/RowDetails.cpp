// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/RowDetails.h"

namespace Package
{

void RowDetails::clear()
{
    *this = RowDetails();
}

void RowDetails::append(QString const& text)
{
    auto const next = static_cast<quint32>(distinct.size());
    auto const place = known.constFind(text);
    if (place != known.constEnd()) {
        places.push_back(*place);
        return;
    }
    known.insert(text, next);
    distinct.append(text);
    places.push_back(next);
}

void RowDetails::append(QString const& text, long long number)
{
    append(text);
    numbers.push_back(number);
}

void RowDetails::finish()
{
    known = {};
    places.shrink_to_fit();
    numbers.shrink_to_fit();
    distinct.squeeze();
}

} // namespace Package
