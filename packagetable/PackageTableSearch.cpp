// SPDX-License-Identifier: GPL-2.0-or-later
// Mode Search: tests all rows, the kept texts first, while events are served. Whatever those lead to, this
// looks afterwards whether the rows are still the same and nobody has begun another search.
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include "base/Parallel.h"
#include "engine/YumIO.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScopedValueRollback>
#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace PackageTable
{

namespace
{

/// How long rows are tested before events are served.
constexpr int sliceMilliseconds = 15;
/// How long a search goes on before it shows what it has found by then; the table is left alone for a
/// multiple of the time that it took to show.
constexpr qint64 firstResultsMilliseconds = 200;
constexpr qint64 leastShare = 10;
/// Rows of which the kept texts are tested in one slice, at first.
constexpr std::size_t rowsAtOnce = 4096;
constexpr std::size_t fewestAtOnce = 16;

} // namespace

/// One search, from its beginning to its end.
struct SortFilterProxyModel::SearchRun
{
    quint64 number = 0;
    quint64 list = 0;
    bool ended = false;
    bool served = false;
    bool found = false; ///< something that isn't shown yet
    QElapsedTimer slice;
    QElapsedTimer sinceShown;
    qint64 untilShown = firstResultsMilliseconds;
    std::vector<int> kept;   ///< rows whose texts are known, in the order in which these lie in the file
    std::vector<int> unread; ///< the others
};

bool SortFilterProxyModel::isSearch() const
{
    return mode == Search && !present.expression.isEmpty();
}

void SortFilterProxyModel::prepareVerdicts() const
{
    auto const rows = static_cast<std::size_t>(yumIO->count());
    if (acceptCache.size() != rows || testedList != yumIO->listSerial()) {
        acceptCache.assign(rows, Verdict::None);
        testedList = yumIO->listSerial();
        cutOff = false;
    }
}

void SortFilterProxyModel::clearVerdicts()
{
    acceptCache.clear();
    cutOff = false;
}

void SortFilterProxyModel::forgetVerdicts()
{
    clearVerdicts();
    searchAllRows();
    clear();
}

void SortFilterProxyModel::searchAllRows()
{
    if (!filter || !isSearch()) {
        return;
    }
    prepareVerdicts();
    cutOff = false;
    if (yumIO->fileListsCollected && yumIO->otherDataCollected) {
        searchTexts.setRows(yumIO->listSerial(), yumIO->count());
    }
    SearchRun run;
    run.number = ++searchesBegun;
    run.list = yumIO->listSerial();
    for (int row = 0; row < yumIO->count(); ++row) {
        Verdict& verdict = acceptCache[static_cast<std::size_t>(row)];
        if (verdict != Verdict::None) {
            continue;
        }
        if (!passesStateAndKind(row, *(*yumIO)[row], present)) {
            verdict = Verdict::Rejected;
        } else {
            (searchTexts.knows(row) ? run.kept : run.unread).push_back(row);
        }
    }

    QScopedValueRollback const going(searchesGoing, searchesGoing + 1);
    std::optional<Stop::Job> stoppable;
    if (yumIO->stop.state() == Stop::State::Idle) {
        stoppable.emplace(yumIO->stop, Stop::HeededBy::Caller);
    }
    run.slice.start();
    run.sinceShown.start();
    searchKept(run);
    searchUnread(run);
    readTheRest(run);
    if (run.served && !run.ended) {
        // What the user has tried meanwhile meets the controls while they are still disabled.
        goesOn(run);
    }
}

/// Serves events and shows what has been found, each if it is time to. False once the search is to end.
bool SortFilterProxyModel::goesOn(SearchRun& run)
{
    if (run.ended || run.slice.elapsed() < sliceMilliseconds) {
        return !run.ended;
    }
    if (run.found && run.sinceShown.elapsed() >= run.untilShown) {
        run.found = false;
        run.sinceShown.restart();
        clear();
        run.untilShown = std::max(firstResultsMilliseconds, leastShare * run.sinceShown.restart());
    }
    QCoreApplication::processEvents();
    run.served = true;
    run.slice.restart();
    bool const isLast = run.number == searchesBegun;
    bool const sameRows = run.list == yumIO->listSerial() && run.list == testedList &&
                          acceptCache.size() == static_cast<std::size_t>(yumIO->count());
    if (!isLast || !sameRows || !isSearch()) {
        run.ended = true;
    } else if (yumIO->stop.stopped()) {
        run.ended = true;
        cutOff = std::ranges::count(acceptCache, Verdict::None) > 0;
    }
    return !run.ended;
}

void SortFilterProxyModel::giveVerdict(SearchRun& run, int row, bool accepted)
{
    acceptCache[static_cast<std::size_t>(row)] = accepted ? Verdict::Accepted : Verdict::Rejected;
    run.found = run.found || accepted;
}

void SortFilterProxyModel::searchKept(SearchRun& run)
{
    using Answer = SearchTexts::Reader::Answer;
    std::ranges::sort(run.kept, {}, [this](int row) { return searchTexts.place(row); });
    QByteArray const pattern = present.expression.toUtf8();
    Qt::CaseSensitivity const sensitivity = present.caseSensitivity;
    std::size_t atOnce = rowsAtOnce;
    std::vector<Answer> answers;
    searchTexts.flush();
    for (std::size_t first = 0; first < run.kept.size() && !run.ended; first += answers.size()) {
        if (!searchTexts.canKeep()) {
            run.unread.insert(run.unread.end(), run.kept.begin() + qptrdiff(first), run.kept.end());
            return;
        }
        answers.assign(std::min(atOnce, run.kept.size() - first), Answer::No);
        QElapsedTimer took;
        took.start();
        Parallel::forParts(answers.size(), [&](std::size_t begin, std::size_t end) {
            // Serves one thread at a time.
            PosixRegex expression;
            expression.compile(pattern, sensitivity);
            SearchTexts::Reader reader(searchTexts);
            for (std::size_t at = begin; at < end; ++at) {
                answers[at] = reader.matches(run.kept[first + at], expression);
            }
        });
        for (std::size_t at = 0; at < answers.size(); ++at) {
            int const row = run.kept[first + at];
            if (answers[at] == Answer::Unreadable) {
                run.unread.push_back(row);
            } else {
                giveVerdict(run, row, answers[at] == Answer::Yes);
            }
        }
        if (took.elapsed() >= 2 * sliceMilliseconds) {
            atOnce = std::max(atOnce / 2, fewestAtOnce);
        } else if (took.elapsed() < sliceMilliseconds / 2) {
            atOnce = std::min(atOnce * 2, 2 * rowsAtOnce);
        }
        goesOn(run);
    }
}

// In the order in which they were collected, which is nearly that of the package library's memory: what it
// keeps in compressed pages is unpacked once and not for each package.
void SortFilterProxyModel::searchUnread(SearchRun& run)
{
    auto const serial = [this](int row) { return (*yumIO)[row]->serial; };
    if (run.ended) {
        return;
    }
    std::ranges::sort(run.unread, {}, serial);
    for (int const row : run.unread) {
        Package::Entry const& entry = *(*yumIO)[row];
        bool accepted = false;
        if (searchTexts.canKeep() && !searchTexts.knows(row)) {
            YumIO::JobHold const hold(*yumIO);
            accepted = searchTexts.keep(*yumIO, entry, row, &regex);
        } else {
            accepted = matchesAnyField(entry);
        }
        giveVerdict(run, row, accepted);
        if (!goesOn(run)) {
            return;
        }
    }
}

// So that no later search waits for the interpreter, whichever rows that one is about. What there is to be
// found shows meanwhile.
void SortFilterProxyModel::readTheRest(SearchRun& run)
{
    std::vector<std::pair<quint64, int>> rows;
    for (int row = 0; !run.ended && searchTexts.canKeep() && row < yumIO->count(); ++row) {
        if (!searchTexts.knows(row)) {
            rows.emplace_back((*yumIO)[row]->serial, row);
        }
    }
    std::ranges::sort(rows);
    if (!rows.empty() && run.found) {
        run.untilShown = 0;
    }
    for (auto const& [serial, row] : rows) {
        {
            YumIO::JobHold const hold(*yumIO);
            searchTexts.keep(*yumIO, *(*yumIO)[row], row, nullptr);
        }
        if (!goesOn(run) || !searchTexts.canKeep()) {
            return;
        }
    }
}

bool SortFilterProxyModel::matchesAnyField(Package::Entry const& entry) const
{
    // The table may be in the middle of a reset, so no field is worth a job: whoever sets up a search loads
    // the extra data before.
    YumIO::JobHold const hold(*yumIO);
    return anySearchedField(*yumIO, entry, [this](QString const& text) { return matches(text); });
}

} // namespace PackageTable
