// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "packagetable/PackageTable.h"
#include "packagetable/PackageTableColumns.h"
#include "widgets/HTableView.h"

#include <array>
#include <memory>
#include <optional>

class YumIO;

namespace PackageTable
{

class ActionContextMenu;
class Header;
class Model;
class OtherContextMenu;
class SelectionActions;
class SortFilterProxyModel;

/// The table of packages that the user sees. It turns a click in the Action column, or the space bar on its
/// cells, into a change of the row's mark and offers two context menus. Columns can be sorted by a click on
/// their header, moved and hidden. Owned by its parent widget; GUI thread. All row numbers and indexes that
/// it hands out are the model's.
class View final : public HTableView
{
    Q_OBJECT

public:
    /// Neither the model nor the engine is owned; both must outlive the view. `stateFilter` and `groups`
    /// say what shows at first.
    View(Model* model, StateFilter stateFilter, bool groups, YumIO* yumIO, QWidget* parent);
    ~View() override;

    // What shows, see SortFilterProxyModel.
    void setMode(Mode mode);
    void setFilter(bool filter);
    /// Whether an expression is in force that doesn't match everything.
    [[nodiscard]] bool hasExpression() const;
    /// Its essential part.
    [[nodiscard]] QString expression() const;
    void filtersearch(QString const& pattern);
    /// Whether the last search was stopped before it had tested all rows.
    [[nodiscard]] bool searchWasStopped() const;
    void setCaseSensitivity(Qt::CaseSensitivity sensitivity);

    /// How many rows would show in mode Filter, with the present expression and otherwise as told.
    [[nodiscard]] qsizetype count(
        StateFilter stateFilter, bool groups, Qt::CaseSensitivity caseSensitivity) const;
    void stateFilterChanged(StateFilter stateFilter);
    void marksChanged();
    void groupsFilterChanged(bool groups);

    /// Finds out what `resizeColumnsToContents` needs to know, and serves events in between, but no input of
    /// the user's: for a table of new rows that nobody can use yet.
    void measureColumns();

    /// Which columns show, where and how wide.
    [[nodiscard]] Header* header() const { return columns; }
    /// The table's own keys as entries of a menu, each with what it concerns now.
    [[nodiscard]] SelectionActions* actions() const { return selectionActions; }

    /// The model's indexes of the selected rows.
    [[nodiscard]] QList<QModelIndex> selectedRows() const;

Q_SIGNALS:
    /// The current cell has moved to another row; -1 for none. A reset of the table emits nothing.
    void currentChanged(int current, int previous);
    /// The mark of that row has been changed, by a click or otherwise; -1 for one that is not there any more.
    void stateChanged(int row);

public Q_SLOTS:
    /// Fits the columns to all rows of the engine, also those that don't show.
    void resizeColumnsToContents();
    /// Describes the current row.
    void describe();
    void handleHorizontalHeaderClicked(int column);
    void handleActivated(QModelIndex const& index);
    void handleDoubleClicked(QModelIndex const& index);
    void handleCustomContextMenuRequested(QPoint const& point);

protected:
    void changeEvent(QEvent* event) override;
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(QString const& beginning) override;
    [[nodiscard]] int widestCell(ColumnWidth const& width, int column) const override;
    [[nodiscard]] int rowsForHint() const override;

private:
    void showColumn(int column, bool shown);
    /// What the widths of all rows' cells were found for.
    struct Measured
    {
        bool operator==(Measured const& other) const = default;

        quint64 list = 0;
        int rows = 0;
        int dotsPerInch = 0;
    };
    using Widths = std::array<std::optional<int>, ColumnCount>;

    [[nodiscard]] int widestOfAllRows(ColumnWidth const& width, int column) const;
    [[nodiscard]] int widestText(ColumnWidth const& width, int column) const;
    [[nodiscard]] int widestPicture(ColumnWidth const& width, int column) const;
    [[nodiscard]] int modelRow(int row) const;

    SelectionActions* selectionActions;
    Model* packages; ///< not the view's own model(), which is the proxy
    SortFilterProxyModel* proxy;
    YumIO const* engine;
    Header* columns;
    mutable Widths knownWidths; ///< of the columns whose cells stay as they are until a rebuild
    mutable Measured measured;  ///< what `knownWidths` holds for, as long as font and style stay
    bool fitsAllRows = false;   ///< sizes follow all rows of the engine, and not only those that show
    std::unique_ptr<ActionContextMenu> actionContextMenu; ///< null until first used, like the other one
    std::unique_ptr<OtherContextMenu> otherContextMenu;
};

} // namespace PackageTable
