// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include "base/Parallel.h"
#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableRowWalk.h"
#include "widgets/HAbstractTableModel.h"

#include <QRegularExpression>
#include <algorithm>
#include <atomic>
#include <string_view>
#include <utility>
#include <vector>

namespace PackageTable
{

bool SortFilterProxyModel::passesStateAndKind(
    int row, Package::Entry const& entry, Conditions const& wanted) const
{
    if (wanted.stateFilter == Marked) {
        return entry.action != Package::None;
    }
    if (!wanted.groups && entry.kind == Package::Group) {
        return false;
    }
    switch (wanted.stateFilter) {
    case Updatable:
        return entry.state == Package::OutOfDate;
    case Installable:
        return entry.state == Package::Available;
    case Removable:
        return entry.state != Package::Available;
    case SecurityUpdates:
        return entry.state == Package::OutOfDate && yumIO->details(Package::Detail::Advisory).number(row) > 0;
    case All:
    case Marked:
        break;
    }
    return true;
}

SortFilterProxyModel::SortFilterProxyModel(
    StateFilter initialStateFilter, bool showGroups, YumIO* engine, QObject* parent)
    : HSortFilterProxyModel(NameColumn, parent),
      present{initialStateFilter, showGroups, QString(), Qt::CaseSensitive},
      yumIO(engine),
      ranks(engine)
{
    // A row whose mark changes stays where it is, also in a table that is sorted by Action: it would
    // leave the mouse between two clicks, and marking all of 66,000 rows would move each by itself.
    setDynamicSortFilter(false);
    for (int column = NameColumn; column < ColumnCount; ++column) {
        if (isShownAtFirst(column)) {
            textColumns.push_back(column);
        }
    }
}

void SortFilterProxyModel::setColumnShown(int column, bool shown)
{
    auto const place = std::ranges::lower_bound(textColumns, column);
    bool const wasShown = place != textColumns.end() && *place == column;
    if (column < NameColumn || shown == wasShown) {
        return;
    }
    if (shown) {
        textColumns.insert(place, column);
    } else {
        textColumns.erase(place);
    }
    // What it shows may have been loaded only now.
    ranks.forget();
    bool const isSorted = shown && sortColumn() == column;
    if (isSorted || (mode == Filter && !present.expression.isEmpty())) {
        forgetVerdicts();
    }
}

void SortFilterProxyModel::setMode(Mode newMode)
{
    if (newMode != mode) {
        mode = newMode;
        forgetVerdicts();
    }
}

void SortFilterProxyModel::setStateFilter(StateFilter newStateFilter)
{
    if (newStateFilter != present.stateFilter) {
        present.stateFilter = newStateFilter;
        forgetVerdicts();
    }
}

void SortFilterProxyModel::marksChanged()
{
    if (present.stateFilter == Marked) {
        forgetVerdicts();
    }
}

void SortFilterProxyModel::setGroupsFilter(bool showGroups)
{
    if (showGroups != present.groups) {
        present.groups = showGroups;
        forgetVerdicts();
    }
}

void SortFilterProxyModel::setFilter(bool enable)
{
    if (enable != filter) {
        filter = enable;
        if (!filter) {
            expectLongSort();
        }
        searchAllRows();
        clear();
    }
}

bool SortFilterProxyModel::getFilter() const
{
    return filter;
}

void SortFilterProxyModel::setCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    if (std::exchange(present.caseSensitivity, sensitivity) != sensitivity && !present.expression.isEmpty()) {
        setFilterRegExp(present.expression);
    }
}

QString SortFilterProxyModel::essentialPart(QString const& pattern)
{
    QLatin1String const anything(".*");
    QString text = pattern;
    while (text.startsWith(anything)) {
        text.remove(0, anything.size());
    }
    while (text.endsWith(anything)) {
        text.chop(anything.size());
    }
    return text;
}

void SortFilterProxyModel::setFilterRegExp(QString const& pattern)
{
    QString const text = essentialPart(pattern);
    regex.compile(text.toUtf8(), present.caseSensitivity);
    present.expression = text;

    QRegularExpression const expression(
        text, present.caseSensitivity == Qt::CaseInsensitive && !text.isEmpty()
                  ? QRegularExpression::CaseInsensitiveOption
                  : QRegularExpression::NoPatternOption);
    if (expression != filterRegExp()) {
        clearVerdicts();
    }
    searchAllRows();
    if (present.expression != text) {
        // An event has led to another search.
        return;
    }
    HSortFilterProxyModel::setFilterRegExp(expression);

    // Whatever a search costs is paid here, where the caller shows that the program is busy, and not
    // while the user scrolls.
    int const rows = yumIO->count();
    for (int row = 0; row < rows; ++row) {
        static_cast<void>(filterAcceptsRow(row, QModelIndex()));
    }
}

bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, QModelIndex const& sourceParent) const
{
    if (!filter) {
        return true;
    }
    int const rows = yumIO->count();
    if (sourceRow < 0 || sourceRow >= rows) {
        return false;
    }
    prepareVerdicts();
    Verdict& verdict = acceptCache[static_cast<std::size_t>(sourceRow)];
    if (verdict == Verdict::None && isSearch()) {
        if (searchesGoing > 0 || cutOff) {
            // What hasn't been found doesn't show.
            return false;
        }
        bool const accepted = acceptRow((*yumIO)[sourceRow], sourceRow, sourceParent);
        verdict = accepted ? Verdict::Accepted : Verdict::Rejected;
    } else if (verdict == Verdict::None) {
        testShownTexts();
    }
    return verdict == Verdict::Accepted;
}

// All rows at a time, as whoever asks about one asks about all.
void SortFilterProxyModel::testShownTexts() const
{
    testShownTexts(present, [this](std::size_t row, bool accepted) {
        acceptCache[row] = accepted ? Verdict::Accepted : Verdict::Rejected;
    });
    auto const shown = std::ranges::count(acceptCache, Verdict::Accepted);
    if (static_cast<std::size_t>(shown) > acceptCache.size() / 8) {
        expectLongSort();
    }
}

/// Makes `line` the texts that the table shows for the row, in UTF-8, as if they were separated by blanks,
/// so that an expression can span two columns.
void SortFilterProxyModel::takeShownTexts(int row, QByteArray& line) const
{
    // At one go: a QByteArray that grows text by text takes as long as the expression itself.
    qsizetype most = 0;
    for (int const column : textColumns) {
        most += static_cast<qsizetype>(columnText(*yumIO, row, column).utf8().size()) + 1;
    }
    line.resize(most);
    char* const begin = line.data();
    char* end = begin;
    for (int const column : textColumns) {
        if (end != begin) {
            *end++ = ' ';
        }
        std::string_view const letters = columnText(*yumIO, row, column).utf8();
        end = std::copy(letters.begin(), letters.end(), end);
    }
    line.truncate(end - begin);
}

template <typename Judge>
void SortFilterProxyModel::testShownTexts(Conditions const& wanted, Judge const& judge) const
{
    QByteArray const pattern = wanted.expression.toUtf8();
    auto const fetch = [&](Package::Entry const& entry) {
        if (!pattern.isEmpty()) {
            for (int const column : textColumns) {
                if (!columnDetail(column)) {
                    fetchLetters(columnText(entry, column));
                }
            }
        }
    };
    Parallel::forParts(static_cast<std::size_t>(yumIO->count()), [&](std::size_t begin, std::size_t end) {
        // Serves one thread at a time.
        PosixRegex expression;
        expression.compile(pattern, wanted.caseSensitivity);
        QByteArray texts;
        walkRows(*yumIO, begin, end, fetch, [&](std::size_t row, Package::Entry const& entry) {
            bool accepted = passesStateAndKind(static_cast<int>(row), entry, wanted);
            if (accepted && !pattern.isEmpty()) {
                takeShownTexts(static_cast<int>(row), texts);
                accepted = expression.matches(texts);
            }
            judge(row, accepted);
        });
    });
}

SortFilterProxyModel::Conditions SortFilterProxyModel::conditions() const
{
    return present;
}

qsizetype SortFilterProxyModel::count(Conditions const& wanted) const
{
    std::atomic<qsizetype> shown = 0;
    testShownTexts(wanted, [&shown](std::size_t, bool accepted) {
        if (accepted) {
            shown.fetch_add(1, std::memory_order_relaxed);
        }
    });
    return shown;
}

void SortFilterProxyModel::expectLongSort() const
{
    comparedWithoutRanks = yumIO->count();
}

bool SortFilterProxyModel::matches(QString const& text) const
{
    return regex.matches(text.toUtf8());
}

bool SortFilterProxyModel::acceptRow(Package::Entry* entry, int sourceRow, QModelIndex const&) const
{
    if (!entry || !passesStateAndKind(sourceRow, *entry, present)) {
        return false;
    }
    if (present.expression.isEmpty()) {
        return true;
    }
    if (mode == Search) {
        return matchesAnyField(*entry);
    }
    QByteArray texts;
    takeShownTexts(sourceRow, texts);
    return regex.matches(texts);
}

void SortFilterProxyModel::sourceWasRefilled()
{
    ranks.forget();
    comparedWithoutRanks = 0;
    searchTexts.forgetUnless(yumIO->listSerial());
}

// What the cells' values would give, read from the records or from ranks: sorting 66,000 rows asks a million
// times. Ranks aren't worth their price while few rows show, whose records the processor keeps at hand.
bool SortFilterProxyModel::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    int const column = left.column();
    int const rows = yumIO->count();
    bool const exist = left.isValid() && left.row() < rows && right.isValid() && right.row() < rows;
    if (!exist) {
        return !isNumericColumn(column) && HSortFilterProxyModel::lessThan(left, right);
    }
    if (comparedWithoutRanks < rows || column != right.column()) {
        ++comparedWithoutRanks;
        return isLower(left.row(), column, right.row(), right.column());
    }

    int rankedColumn = column;
    if (column == ActionColumn) {
        Package::Action const leftAction = (*yumIO)[left.row()]->action;
        Package::Action const rightAction = (*yumIO)[right.row()]->action;
        if (leftAction != rightAction) {
            return leftAction < rightAction;
        }
        rankedColumn = NameColumn;
    }
    RowRanks::Ranks const& places = ranks.of(rankedColumn);
    return places[static_cast<std::size_t>(left.row())] < places[static_cast<std::size_t>(right.row())];
}

bool SortFilterProxyModel::isLower(int left, int leftColumn, int right, int rightColumn) const
{
    auto const nameIsLower = [&] { return (*yumIO)[left]->name < (*yumIO)[right]->name; };
    if (isNumericColumn(leftColumn)) {
        int const leftNumber = columnNumber(*yumIO, left, leftColumn);
        int const rightNumber = columnNumber(*yumIO, right, rightColumn);
        return leftNumber != rightNumber ? leftNumber < rightNumber : nameIsLower();
    }
    int const order = columnText(*yumIO, left, leftColumn).compare(columnText(*yumIO, right, rightColumn));
    return order != 0 ? order < 0 : nameIsLower();
}

QVariant SortFilterProxyModel::data(QModelIndex const& index, int role) const
{
    bool const spoken = role == Qt::AccessibleTextRole && index.column() < NameColumn;
    return HSortFilterProxyModel::data(index, spoken ? static_cast<int>(Qt::ToolTipRole) : role);
}

} // namespace PackageTable
