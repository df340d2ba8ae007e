// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/ListTable.h"

#include "widgets/Sizing.h"

#include <QHeaderView>

ListTable::ListTable(int fewestRows, int mostRows, QWidget* parent)
    : HTableView(QStyleOptionViewItem::Left, fewestRows, mostRows, parent)
{
    setShowGrid(false);
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsMovable(true);
}

void ListTable::display(QAbstractItemModel* model)
{
    setModel(model);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
}

void ListTable::setColumnWidths(std::initializer_list<int> widths)
{
    int column = 0;
    for (int const width : widths) {
        setColumnWidth(
            column, qMax(Sizing::columns(this, width), horizontalHeader()->sectionSizeHint(column)));
        ++column;
    }
}

void ListTable::focusInEvent(QFocusEvent* event)
{
    HTableView::focusInEvent(event);
    selectRowByTab(event);
}
