// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"
#include "packagetable/PackageTable.h"
#include "packagetable/PackageTableRowRanks.h"
#include "packagetable/PackageTableSearchTexts.h"
#include "packagetable/PosixRegex.h"
#include "widgets/HSortFilterProxyModel.h"

#include <vector>

class YumIO;

namespace PackageTable
{

/// Decides which rows of the package table show and in what order. Three conditions combine: the state
/// filter, the groups flag, and a POSIX extended regular expression that is tried on the row as Mode says.
/// Its source is a PackageTable::Model over the same engine. Created by the view; GUI thread only. In mode
/// Search, testing a row takes the interpreter lock.
///
/// Each operation that changes what shows resets the table, so that selection and current index are gone,
/// and sorts it as before. None of them touches the marks. In mode Search they test all rows before, and
/// serve events in between: the caller sees to it that the user can't start anything meanwhile. A search that
/// takes longer shows from time to time what it has found, and can be stopped (`Stop`): then only what it has
/// found shows, and the same expression, given again, goes on with the rest.
class SortFilterProxyModel final : public HSortFilterProxyModel
{
    Q_OBJECT

public:
    /// `yumIO` is not owned and must outlive the proxy.
    SortFilterProxyModel(StateFilter stateFilter, bool groups, YumIO* yumIO, QObject* parent);

    /// The present expression stays and is tried anew in the other way.
    void setMode(Mode mode);
    void setStateFilter(StateFilter stateFilter);
    /// Rows have been marked, or marks taken away: what shows may depend on that. A row whose mark has been
    /// changed by itself stays until then.
    void marksChanged();
    /// Whether rows of the kind Group may show.
    void setGroupsFilter(bool groups);

    /// Whether the text of that column takes part in mode Filter. At first those of the columns that show at
    /// first do. A column of pictures takes no part.
    void setColumnShown(int column, bool shown);

    /// False switches all filtering off: every row shows. Rows keep their verdicts meanwhile.
    void setFilter(bool filter);
    [[nodiscard]] bool getFilter() const;

    /// Takes an expression; ".*" at either end is redundant and dropped. One that doesn't compile matches
    /// everything. When the call returns, each row has been tested.
    void setFilterRegExp(QString const& pattern);
    /// Whether letters have to be of the same case as in the expression, as they have at first. The present
    /// expression stays and is tried anew.
    void setCaseSensitivity(Qt::CaseSensitivity sensitivity);
    /// Whether the last search was stopped before it had tested all rows.
    [[nodiscard]] bool searchWasStopped() const { return cutOff; }
    /// What is left of an expression without what is redundant at its ends.
    [[nodiscard]] static QString essentialPart(QString const& pattern);

    /// What decides in mode Filter which rows show.
    struct Conditions
    {
        StateFilter stateFilter;
        bool groups;
        QString expression; ///< its essential part
        Qt::CaseSensitivity caseSensitivity;
    };
    [[nodiscard]] Conditions conditions() const;
    /// How many rows would show in mode Filter. As long as a change of the filter takes.
    [[nodiscard]] qsizetype count(Conditions const& wanted) const;

    [[nodiscard]] bool filterAcceptsRow(int sourceRow, QModelIndex const& sourceParent) const override;
    /// Whether the expression matches somewhere in the text.
    [[nodiscard]] bool matches(QString const& text) const;
    /// Tests the entry of that row against the three conditions, whatever verdict stands from before.
    [[nodiscard]] bool acceptRow(Package::Entry* entry, int sourceRow, QModelIndex const& sourceParent) const;

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

    /// For cells that show nothing but a picture, the words of their tool tip stand for it to a screen
    /// reader.
    [[nodiscard]] QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;

protected:
    void sourceWasRefilled() override;

private:
    enum class Verdict : quint8
    {
        None,
        Rejected,
        Accepted,
    };

    /// Calls `judge(row, accepted)` for each row, in several threads.
    template <typename Judge>
    void testShownTexts(Conditions const& wanted, Judge const& judge) const;
    void takeShownTexts(int row, QByteArray& line) const;
    bool passesStateAndKind(int row, Package::Entry const& entry, Conditions const& wanted) const;
    bool matchesAnyField(Package::Entry const& entry) const;
    void prepareVerdicts() const;
    void clearVerdicts();
    void forgetVerdicts();

    // The search.
    struct SearchRun;
    bool isSearch() const;
    void searchAllRows();
    void searchKept(SearchRun& run);
    void searchUnread(SearchRun& run);
    void readTheRest(SearchRun& run);
    bool goesOn(SearchRun& run);
    void giveVerdict(SearchRun& run, int row, bool accepted);

    void testShownTexts() const;
    void expectLongSort() const;
    bool isLower(int left, int leftColumn, int right, int rightColumn) const;

    Mode mode = Filter;
    bool filter = true;
    Conditions present; ///< the base has the expression only once the rows have been tested
    YumIO* yumIO;
    std::vector<int> textColumns;             ///< in the order of enum Column
    mutable std::vector<Verdict> acceptCache; ///< row by row
    /// The list whose rows `acceptCache` is about: rows get other entries with each rebuild.
    mutable quint64 testedList = 0;
    PosixRegex regex;
    SearchTexts searchTexts;
    quint64 searchesBegun = 0; ///< the last one counts, one that an event has begun another above ends
    int searchesGoing = 0;
    mutable bool cutOff = false; ///< rows without a verdict don't show
    mutable RowRanks ranks;
    mutable int comparedWithoutRanks = 0;
};

} // namespace PackageTable
