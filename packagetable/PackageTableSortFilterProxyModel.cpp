// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "widgets/HAbstractTableModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace PackageTable
{

namespace
{

using Field = QString (*)(YumIO&, Package::Entry const&);

template <auto Accessor>
QString field(YumIO& yumIO, Package::Entry const& entry)
{
    return (yumIO.*Accessor)(entry);
}

/// How long rows are tested before events are served.
constexpr int sliceMilliseconds = 15;

// What Search looks at, the dearest last: most fields come through the interpreter, the last two of a
// package need extra data.
constexpr std::array<Field, 8> groupFields{
    field<&YumIO::getName>,
    field<&YumIO::getRequiredGroups>,
    field<&YumIO::getDefaultMetaPkgs>,
    field<&YumIO::getOptionalMetaPkgs>,
    field<&YumIO::getMandatoryPkgs>,
    field<&YumIO::getDefaultPkgs>,
    field<&YumIO::getOptionalPkgs>,
    field<&YumIO::getConditionalPkgs>,
};

constexpr std::array<Field, 23> packageFields{
    field<&YumIO::getName>,        field<&YumIO::getVerRel>,      field<&YumIO::getRepo>,
    field<&YumIO::getArch>,        field<&YumIO::getSize>,        field<&YumIO::getSummary>,
    field<&YumIO::getDescription>, field<&YumIO::getGroup>,       field<&YumIO::getVendor>,
    field<&YumIO::getBuildTime>,   field<&YumIO::getInstallTime>, field<&YumIO::getBinaryRpm>,
    field<&YumIO::getSourceRpm>,   field<&YumIO::getLicense>,     field<&YumIO::getPackager>,
    field<&YumIO::getUrl>,         field<&YumIO::getRelocations>, field<&YumIO::getProvides>,
    field<&YumIO::getRequires>,    field<&YumIO::getConflicts>,   field<&YumIO::getObsoletes>,
    field<&YumIO::getFiles>,       field<&YumIO::getChangeLog>,
};

} // namespace

SortFilterProxyModel::SortFilterProxyModel(
    StateFilter initialStateFilter, bool showGroups, YumIO* engine, QObject* parent)
    : HSortFilterProxyModel(NameColumn, parent),
      stateFilter(initialStateFilter),
      groups(showGroups),
      yumIO(engine),
      ranks(engine)
{
    // A row whose mark changes stays where it is, also in a table that is sorted by Action: it would
    // leave the mouse between two clicks, and marking all of 66,000 rows would move each by itself.
    setDynamicSortFilter(false);
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
    if (newStateFilter != stateFilter) {
        stateFilter = newStateFilter;
        forgetVerdicts();
    }
}

void SortFilterProxyModel::setGroupsFilter(bool showGroups)
{
    if (showGroups != groups) {
        groups = showGroups;
        forgetVerdicts();
    }
}

void SortFilterProxyModel::forgetVerdicts()
{
    acceptCache.clear();
    searchAllRows();
    clear();
}

// A search takes seconds. It is done before the reset, while the table stands whole, so that the window can
// be painted in between; the reset then finds every verdict.
void SortFilterProxyModel::searchAllRows()
{
    if (!filter || mode != Search || expressionText.isEmpty()) {
        return;
    }
    // In the order in which they were collected, which is nearly that of the package library's memory: what
    // it keeps in compressed pages is unpacked once and not for each package.
    std::vector<std::pair<quint64, int>> rows;
    rows.reserve(static_cast<std::size_t>(yumIO->count()));
    for (int row = 0; row < yumIO->count(); ++row) {
        rows.emplace_back(entryAt(row)->serial, row);
    }
    std::ranges::sort(rows);

    QElapsedTimer slice;
    slice.start();
    bool served = false;
    for (auto const& [serial, row] : rows) {
        static_cast<void>(filterAcceptsRow(row, QModelIndex()));
        if (slice.elapsed() >= sliceMilliseconds) {
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            served = true;
            slice.restart();
        }
    }
    if (served) {
        // What the user has tried meanwhile meets the controls while they are still disabled.
        QCoreApplication::processEvents();
    }
}

void SortFilterProxyModel::setFilter(bool enable)
{
    if (enable != filter) {
        filter = enable;
        searchAllRows();
        clear();
    }
}

bool SortFilterProxyModel::getFilter() const
{
    return filter;
}

void SortFilterProxyModel::setFilterRegExp(QString const& pattern)
{
    QLatin1String const anything(".*");
    QString text = pattern;
    while (text.startsWith(anything)) {
        text.remove(0, anything.size());
    }
    while (text.endsWith(anything)) {
        text.chop(anything.size());
    }
    regex.compile(text.toUtf8());
    expressionText = text;

    QRegularExpression const expression(text);
    if (expression != filterRegExp()) {
        acceptCache.clear();
    }
    searchAllRows();
    HSortFilterProxyModel::setFilterRegExp(expression);

    // Whatever a search costs is paid here, where the caller shows that the program is busy, and not
    // while the user scrolls.
    int const rows = yumIO->count();
    for (int row = 0; row < rows; ++row) {
        static_cast<void>(filterAcceptsRow(row, QModelIndex()));
    }
}

Package::Entry* SortFilterProxyModel::entryAt(int sourceRow) const
{
    return sourceRow >= 0 && sourceRow < yumIO->count() ? (*yumIO)[sourceRow] : nullptr;
}

bool SortFilterProxyModel::filterAcceptsRow(int sourceRow, QModelIndex const& sourceParent) const
{
    if (!filter) {
        return true;
    }
    Package::Entry* const entry = entryAt(sourceRow);
    if (!entry) {
        return false;
    }
    auto const place = static_cast<std::size_t>(sourceRow);
    if (place >= acceptCache.size()) {
        acceptCache.resize(static_cast<std::size_t>(yumIO->count()));
    }
    Verdict& verdict = acceptCache[place];
    if (verdict.serial != entry->serial) {
        verdict = {entry->serial, acceptRow(entry, sourceRow, sourceParent)};
    }
    return verdict.accepted;
}

bool SortFilterProxyModel::matches(QString const& text) const
{
    return regex.matches(text.toUtf8());
}

bool SortFilterProxyModel::acceptRow(Package::Entry* entry, int, QModelIndex const&) const
{
    if (!entry || !passesState(entry->state) || (!groups && entry->kind == Package::Group)) {
        return false;
    }
    if (expressionText.isEmpty()) {
        return true;
    }
    return mode == Search ? matchesAnyField(*entry) : matchesShownTexts(*entry);
}

bool SortFilterProxyModel::passesState(Package::State state) const
{
    switch (stateFilter) {
    case Updatable:
        return state == Package::OutOfDate;
    case Installable:
        return state == Package::Available;
    case Removable:
        return state != Package::Available;
    case All:
        break;
    }
    return true;
}

bool SortFilterProxyModel::matchesShownTexts(Package::Entry const& entry) const
{
    // The texts as if they were separated by blanks, so that an expression can span two columns.
    QString texts;
    texts.reserve(160);
    for (int column = NameColumn; column < ColumnCount; ++column) {
        if (!texts.isEmpty()) {
            texts += QLatin1Char(' ');
        }
        texts += columnText(entry, column);
    }
    return matches(texts);
}

bool SortFilterProxyModel::matchesAnyField(Package::Entry const& entry) const
{
    // The table may be in the middle of a reset, so no field is worth a job: whoever sets up a search loads
    // the extra data before.
    YumIO::JobHold const hold(*yumIO);
    auto const matchesField = [&](Field field) { return matches(field(*yumIO, entry)); };
    return entry.kind == Package::Group ? std::ranges::any_of(groupFields, matchesField)
                                        : std::ranges::any_of(packageFields, matchesField);
}

void SortFilterProxyModel::sourceWasRefilled()
{
    ranks.forget();
    comparedWithoutRanks = 0;
}

// What the cells' values would give, read from the records or from ranks: sorting 66,000 rows asks a million
// times. Ranks aren't worth their price while few rows show.
bool SortFilterProxyModel::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    int const column = left.column();
    Package::Entry const* const leftEntry = left.isValid() ? entryAt(left.row()) : nullptr;
    Package::Entry const* const rightEntry = right.isValid() ? entryAt(right.row()) : nullptr;
    if (!leftEntry || !rightEntry) {
        return !isNumericColumn(column) && HSortFilterProxyModel::lessThan(left, right);
    }
    if (comparedWithoutRanks < yumIO->count() || column != right.column()) {
        ++comparedWithoutRanks;
        return isLower(*leftEntry, column, *rightEntry, right.column());
    }

    int rankedColumn = column;
    if (column == ActionColumn) {
        if (leftEntry->action != rightEntry->action) {
            return leftEntry->action < rightEntry->action;
        }
        rankedColumn = NameColumn;
    }
    RowRanks::Ranks const& places = ranks.of(rankedColumn);
    return places[static_cast<std::size_t>(left.row())] < places[static_cast<std::size_t>(right.row())];
}

bool SortFilterProxyModel::isLower(
    Package::Entry const& left, int leftColumn, Package::Entry const& right, int rightColumn)
{
    if (isNumericColumn(leftColumn)) {
        int const leftNumber = columnNumber(left, leftColumn);
        int const rightNumber = columnNumber(right, rightColumn);
        return leftNumber != rightNumber ? leftNumber < rightNumber : left.name < right.name;
    }
    int const order = columnText(left, leftColumn).compare(columnText(right, rightColumn));
    return order != 0 ? order < 0 : left.name < right.name;
}

QVariant SortFilterProxyModel::data(QModelIndex const& index, int role) const
{
    bool const spoken = role == Qt::AccessibleTextRole && index.column() < NameColumn;
    return HSortFilterProxyModel::data(index, spoken ? static_cast<int>(Qt::ToolTipRole) : role);
}

} // namespace PackageTable
