// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStyleOptionViewItem>
#include <QTableView>

class ColumnWidth;

/// The base of every table: asks for exactly the size that its columns and a number of its rows need, and
/// draws cells with HItemDelegate. All rows have the height that the vertical header gives a section by
/// default. Owned by its parent widget, GUI thread.
class HTableView : public QTableView
{
    Q_OBJECT

public:
    /// `position`: where icons stand in the cells. The size hint allows for the model's rows, but for no
    /// fewer than `minimumRows` and no more than `maximumRows`.
    HTableView(QStyleOptionViewItem::Position position, int minimumRows, int maximumRows, QWidget* parent);

    /// Pixels that the style's frame takes besides the contents.
    [[nodiscard]] int frameOnlyAroundContentsPixels() const;

    /// Pixels for all columns and the rows as counted at the first call; later changes of the number of
    /// rows don't change the height. The view must have a model.
    [[nodiscard]] QSize sizeHint() const override;

    /// Pixels that the widest cell of the column needs, over all rows and not only those in view; -1
    /// without a model.
    [[nodiscard]] int sizeHintForColumn(int column) const override;

    /// Sorts in the header's order if its indicator stands on `column` already, else ascending. Does
    /// nothing without a model.
    void sortByColumn(int column);
    /// Sorts and moves the header's indicator. The view must have a model.
    void sortByColumn(int column, Qt::SortOrder order);

    /// Fits the columns, and lets the window grow to show them, up to nine tenths of the screen. The window
    /// never shrinks.
    void resizeColumnsToContents();

    /// One index of the view's model for each selectable row of each selected range, in the order of the
    /// ranges; rows of several ranges stand there several times.
    [[nodiscard]] QList<QModelIndex> selectedRows() const;

protected:
    /// The menu key asks for the menu of the current cell.
    bool event(QEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;

    /// Pixels that the widest cell of the column needs, without a grid line. Asks the model for every row; a
    /// view that knows its model better answers the same in less time.
    [[nodiscard]] virtual int widestCell(ColumnWidth const& width, int column) const;
    /// The rows that the size hint counts at its first call: those of the model.
    [[nodiscard]] virtual int rowsForHint() const;

    /// What the toolkit does when the current cell moves, for a view whose `currentChanged` is its own:
    /// repaints both cells, scrolls to the new one and tells it to screen readers.
    void showMoveOfCurrent(QModelIndex const& current, QModelIndex const& previous);
    /// For a table whose rows are chosen: whoever comes by Tab has the current one selected, where none is.
    void selectRowByTab(QFocusEvent const* event);

private:
    [[nodiscard]] int rowHeightForHint() const;

    QStyleOptionViewItem::Position const position;
    // Both become the number of rows counted when the size hint is asked for the first time.
    mutable int minimumRows;
    mutable int maximumRows;
};
