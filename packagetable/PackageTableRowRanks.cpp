// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableRowRanks.h"

#include "base/Parallel.h"
#include "packagetable/PackageTableRowWalk.h"

#include <QStringView>
#include <algorithm>

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

// Items that are equal in the first `depth` characters of their texts.
struct Run
{
    std::size_t begin, end;
    qsizetype depth;
};

bool isLower(Item const& left, Item const& right)
{
    return left.key < right.key;
}

// A piece of a text as a number that sorts as the piece does. A character takes nine bits: 0 is the end of
// the text, the largest value stands for all characters from it on.
constexpr qsizetype pieceLength = 7;
constexpr unsigned characterBits = 9;
constexpr quint64 highestCharacter = (1U << characterBits) - 1;

quint64 piece(QStringView text, qsizetype from)
{
    quint64 key = 0;
    bool isHigh = false;
    for (qsizetype i = from; i < from + pieceLength; ++i) {
        quint64 character = 0;
        // What follows a character that the piece doesn't tell from others tells nothing.
        if (!isHigh && i < text.size()) {
            character = std::min<quint64>(text.at(i).unicode() + 1U, highestCharacter);
            isHigh = character == highestCharacter;
        }
        key = key << characterBits | character;
    }
    return key;
}

bool holdsHighCharacter(quint64 key)
{
    for (; key; key >>= characterBits) {
        if ((key & highestCharacter) == highestCharacter) {
            return true;
        }
    }
    return false;
}

bool holdsEnd(quint64 key)
{
    return (key & highestCharacter) == 0;
}

// Sorts by text, piece by piece, so that most comparisons are those of numbers that lie side by side. The
// keys of the result are the places, the same for equal texts. `texts` stands in the order of the rows.
void sortByText(Items& items, std::vector<QStringView> const& texts)
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
            [&](Item const& left, Item const& right) { return texts[left.row] < texts[right.row]; });
        for (std::size_t begin = run.begin, end = begin; begin < run.end; begin = end) {
            QStringView const first = texts[items[begin].row];
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
                    __builtin_prefetch(texts[items[i + lettersAhead].row].utf16() + run.depth);
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
            if (holdsHighCharacter(key)) {
                compareWhole({begin, end, run.depth});
            } else if (end - begin == 1 || holdsEnd(key)) {
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
    std::vector<QStringView> texts(items.size());
    auto const fetch = [](Package::Entry const&) {};
    Parallel::forParts(items.size(), [&](std::size_t begin, std::size_t end) {
        walkRows(*yumIO, begin, end, fetch, [&](std::size_t row, Package::Entry const&) {
            items[row].row = static_cast<quint32>(row);
            texts[row] = columnText(*yumIO, static_cast<int>(row), column);
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
