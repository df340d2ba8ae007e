// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/YumIO.h"

#include <cstddef>

namespace PackageTable
{

/// How many rows before a visit its entry, and then the letters of its texts, are asked of the memory.
constexpr std::size_t lettersAhead = 8;
constexpr std::size_t entriesAhead = 2 * lettersAhead;

/// Asks the memory for the letters of a text. The text itself must have arrived.
inline void fetchLetters(Package::Text const& text)
{
    __builtin_prefetch(text.place());
}

/// Calls `visit(row, entry)` for each of the engine's rows from `begin` up to `end`, and `fetch(entry)` some
/// rows before that, which may call `fetchLetters` for texts that the visit will read. Entries and texts lie
/// all over the memory; to wait for one after the other would take most of the time of a pass over all rows.
template <typename Fetch, typename Visit>
void walkRows(YumIO const& yumIO, std::size_t begin, std::size_t end, Fetch const& fetch, Visit const& visit)
{
    constexpr std::size_t lineOfMemory = 64;
    auto const entryAt = [&](std::size_t row) { return yumIO[static_cast<int>(row)]; };
    for (std::size_t row = begin; row < end; ++row) {
        if (row + entriesAhead < end) {
            auto const* const start = reinterpret_cast<char const*>(entryAt(row + entriesAhead));
            for (std::size_t offset = 0; offset < sizeof(Package::Entry); offset += lineOfMemory) {
                __builtin_prefetch(start + offset);
            }
        }
        if (row + lettersAhead < end) {
            fetch(*entryAt(row + lettersAhead));
        }
        visit(row, *entryAt(row));
    }
}

/// The same for visits that read no more than the mark and the state of an entry.
template <typename Visit>
void walkMarks(YumIO const& yumIO, Visit const& visit)
{
    int const rows = yumIO.count();
    constexpr int ahead = static_cast<int>(entriesAhead);
    for (int row = 0; row < rows; ++row) {
        if (row + ahead < rows) {
            __builtin_prefetch(yumIO[row + ahead]);
        }
        visit(row, *yumIO[row]);
    }
}

} // namespace PackageTable
