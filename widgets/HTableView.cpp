// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HTableView.h"

#include "widgets/ColumnWidth.h"
#include "widgets/HItemDelegate.h"
#include "widgets/Sizing.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

HTableView::HTableView(
    QStyleOptionViewItem::Position decorationPosition, int fewestRows, int mostRows, QWidget* parent)
    : QTableView(parent),
      position(decorationPosition),
      minimumRows(fewestRows),
      maximumRows(mostRows)
{
    setItemDelegate(new HItemDelegate(parent ? parent : this));
    // Heights by contents would ask the delegate for each of 66,000 rows.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
}

// Releases of the toolkit differ in whose coordinates they tell the place of the current cell: view's or
// viewport's.
bool HTableView::event(QEvent* event)
{
    if (event->type() == QEvent::ContextMenu && contextMenuPolicy() == Qt::CustomContextMenu &&
        static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard &&
        currentIndex().isValid()) {
        event->accept();
        Q_EMIT customContextMenuRequested(visualRect(currentIndex()).center());
        return true;
    }
    return QTableView::event(event);
}

void HTableView::initViewItemOption(QStyleOptionViewItem* option) const
{
    QTableView::initViewItemOption(option);
    option->decorationPosition = position;
    option->showDecorationSelected = false;
}

int HTableView::frameOnlyAroundContentsPixels() const
{
    return Sizing::frameOnlyAroundContentsPixels(this);
}

QSize HTableView::sizeHint() const
{
    if (minimumRows != maximumRows) {
        minimumRows = std::min(std::max(rowsForHint(), minimumRows), maximumRows);
        maximumRows = minimumRows;
    }
    // A header without sections may answer at first that it has no size at all, which is -1.
    auto const shown = [](QHeaderView const* header) {
        return header->isHidden() ? QSize(0, 0) : header->sizeHint().expandedTo(QSize(0, 0));
    };
    int const rowHeaderWidth = shown(verticalHeader()).width();
    int const columnHeaderHeight = shown(horizontalHeader()).height();
    return {
        frameWidth() + rowHeaderWidth + horizontalHeader()->length() + frameOnlyAroundContentsPixels() +
            verticalScrollBar()->sizeHint().width() + frameWidth(),
        frameWidth() + columnHeaderHeight + rowHeightForHint() + frameWidth()};
}

// An empty table has no row 0 to measure, and still asks for the height of its fewest rows.
int HTableView::rowHeightForHint() const
{
    if (verticalHeader()->count() == 0) {
        return verticalHeader()->defaultSectionSize() * minimumRows;
    }
    return rowViewportPosition(0) + rowHeight(0) * minimumRows;
}

int HTableView::sizeHintForColumn(int column) const
{
    if (!model() || !itemDelegate()) {
        return -1;
    }
    QStyleOptionViewItem options;
    initViewItemOption(&options);
    return widestCell(ColumnWidth(*itemDelegate(), options), column) + (showGrid() ? 1 : 0);
}

int HTableView::widestCell(ColumnWidth const& width, int column) const
{
    return width.widest(*model(), rootIndex(), column);
}

int HTableView::rowsForHint() const
{
    return model()->rowCount();
}

void HTableView::sortByColumn(int column)
{
    if (!model()) {
        return;
    }
    QHeaderView const* const header = horizontalHeader();
    sortByColumn(
        column, header->sortIndicatorSection() == column ? header->sortIndicatorOrder() : Qt::AscendingOrder);
}

void HTableView::sortByColumn(int column, Qt::SortOrder order)
{
    horizontalHeader()->setSortIndicator(column, order);
    model()->sort(column, order);
}

void HTableView::resizeColumnsToContents()
{
    QTableView::resizeColumnsToContents();
    for (QWidget* widget = this; widget; widget = widget->parentWidget()) {
        widget->updateGeometry();
    }
    QWidget* const top = window();
    top->resize(top->sizeHint().boundedTo(Sizing::screenLimit(this)).expandedTo(top->size()));
}

QList<QModelIndex> HTableView::selectedRows() const
{
    QList<QModelIndex> rows;
    if (!selectionModel()) {
        return rows;
    }
    QItemSelection const selection = selectionModel()->selection();
    for (QItemSelectionRange const& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            QModelIndex const index = range.model()->index(row, range.left(), range.parent());
            if (range.model()->flags(index) & Qt::ItemIsSelectable) {
                rows.append(index);
            }
        }
    }
    return rows;
}

void HTableView::selectRowByTab(QFocusEvent const* event)
{
    bool const byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byTab && currentIndex().isValid() && !selectionModel()->hasSelection()) {
        selectionModel()->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
}

void HTableView::showMoveOfCurrent(QModelIndex const& current, QModelIndex const& previous)
{
    if (previous.isValid()) {
        update(previous);
    }
    if (!current.isValid()) {
        return;
    }
    update(current);
    if (isVisible() && hasAutoScroll()) {
        scrollTo(current);
    }
    if (QAccessible::isActive()) {
        // A table's children are its cells, row by row, and a table has a row and a column of headers.
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild((current.row() + 1) * (model()->columnCount() + 1) + current.column() + 1);
        QAccessible::updateAccessibility(&event);
    }
}
