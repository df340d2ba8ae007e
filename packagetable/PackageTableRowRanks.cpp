// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableRowRanks.h"

#include "base/Parallel.h"
#include "packagetable/PackageTableRowWalk.h"

#include <algorithm>
#include <string_view>

namespace PackageTable
{

namespace
{

// A row and what it is sorted by for now.
struct Item
{
    quint64 key;
    quint32 row;
};
using Items = std::vector<Item>;

// Items that are equal in the first `depth` bytes of their texts.
struct Run
{
    std::size_t begin, end;
    std::size_t depth;
};

bool isLower(Item const& left, Item const& right)
{
    return left.key < right.key;
}

// A piece of a text as a number that sorts as the piece does. A byte takes nine bits: 0 is the end of the
// text.
constexpr std::size_t pieceLength = 7;
constexpr unsigned characterBits = 9;

quint64 piece(std::string_view text, std::size_t from)
{
    quint64 key = 0;
    for (std::size_t i = from; i < from + pieceLength; ++i) {
        key = key << characterBits | (i < text.size() ? Package::Text::rank(text[i]) + 1U : 0U);
    }
    return key;
}

bool holdsEnd(quint64 key)
{
    return (key & ((1U << characterBits) - 1)) == 0;
}

// Sorts by text, piece by piece, so that most comparisons are those of numbers that lie side by side. The
// keys of the result are the places, the same for equal texts. `texts` stands in the order of the rows.
void sortByText(Items& items, std::vector<std::string_view> const& texts)
{
    constexpr std::size_t few = 12;
    auto const at = [](std::size_t place) { return static_cast<Items::difference_type>(place); };
    auto const place = [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            items[i].key = begin;
        }
    };
    auto const compareWhole = [&](Run const& run) {
        std::sort(
            items.begin() + at(run.begin), items.begin() + at(run.end),
            [&](Item const& left, Item const& right) {
                return Package::Text::compare(texts[left.row], texts[right.row]) < 0;
            });
        for (std::size_t begin = run.begin, end = begin; begin < run.end; begin = end) {
            std::string_view const first = texts[items[begin].row];
            while (end < run.end && texts[items[end].row] == first) {
                ++end;
            }
            place(begin, end);
        }
    };

    std::vector<Run> runs{{0, items.size(), 0}};
    while (!runs.empty()) {
        Run const run = runs.back();
        runs.pop_back();
        if (run.end - run.begin <= few) {
            compareWhole(run);
            continue;
        }
        Parallel::forParts(run.end - run.begin, [&](std::size_t begin, std::size_t end) {
            for (std::size_t i = run.begin + begin; i < run.begin + end; ++i) {
                if (i + lettersAhead < run.begin + end) {
                    __builtin_prefetch(texts[items[i + lettersAhead].row].data() + run.depth);
                }
                items[i].key = piece(texts[items[i].row], run.depth);
            }
        });
        std::sort(items.begin() + at(run.begin), items.begin() + at(run.end), isLower);
        for (std::size_t begin = run.begin, end = begin; begin < run.end; begin = end) {
            quint64 const key = items[begin].key;
            while (end < run.end && items[end].key == key) {
                ++end;
            }
            if (end - begin == 1 || holdsEnd(key)) {
                place(begin, end);
            } else {
                runs.push_back({begin, end, run.depth + pieceLength});
            }
        }
    }
}

// Sorts by key; answers each row's place, the same for equal keys.
RowRanks::Ranks placesByKey(Items& items)
{
    std::sort(items.begin(), items.end(), isLower);
    RowRanks::Ranks places(items.size());
    for (std::size_t i = 0, place = 0; i < items.size(); ++i) {
        if (i > 0 && items[i].key != items[i - 1].key) {
            place = i;
        }
        places[items[i].row] = static_cast<quint32>(place);
    }
    return places;
}

} // namespace

RowRanks::RowRanks(YumIO const* engine)
    : yumIO(engine)
{
}

void RowRanks::forget()
{
    ranks = {};
}

RowRanks::Ranks const& RowRanks::made(int column)
{
    if (column != NameColumn) {
        // Decides where the column doesn't.
        static_cast<void>(of(NameColumn));
    }
    Ranks& result = ranks[static_cast<std::size_t>(column)];
    result = isNumericColumn(column) ? byNumber(column) : byText(column);
    return result;
}

RowRanks::Ranks RowRanks::byText(int column) const
{
    Items items(static_cast<std::size_t>(yumIO->count()));
    std::vector<std::string_view> texts(items.size());
    auto const fetch = [column](Package::Entry const& entry) {
        if (!columnDetail(column)) {
            fetchLetters(columnText(entry, column));
        }
    };
    Parallel::forParts(items.size(), [&](std::size_t begin, std::size_t end) {
        walkRows(*yumIO, begin, end, fetch, [&](std::size_t row, Package::Entry const&) {
            items[row].row = static_cast<quint32>(row);
            texts[row] = columnText(*yumIO, static_cast<int>(row), column).utf8();
        });
    });
    sortByText(items, texts);
    if (column != NameColumn) {
        for (Item& item : items) {
            item.key = item.key << 32 | ranks[NameColumn][item.row];
        }
    }
    return placesByKey(items);
}

RowRanks::Ranks RowRanks::byNumber(int column) const
{
    // Turns signed order into that of unsigned numbers.
    constexpr quint32 lowest = 0x80000000U;
    Items items(static_cast<std::size_t>(yumIO->count()));
    auto const fetch = [](Package::Entry const&) {};
    Parallel::forParts(items.size(), [&](std::size_t begin, std::size_t end) {
        walkRows(*yumIO, begin, end, fetch, [&](std::size_t row, Package::Entry const&) {
            int const number = columnNumber(*yumIO, static_cast<int>(row), column);
            quint64 const key = static_cast<quint32>(number) ^ lowest;
            items[row] = {key << 32 | ranks[NameColumn][row], static_cast<quint32>(row)};
        });
    });
    return placesByKey(items);
}

} // namespace PackageTable
