// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/ListTable.h"

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

void ListTable::focusInEvent(QFocusEvent* event)
{
    HTableView::focusInEvent(event);
    selectRowByTab(event);
}
