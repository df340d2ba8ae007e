// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableView.h"

#include "packagetable/PackageTableActionContextMenu.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableOtherContextMenu.h"
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include <QEvent>
#include <QHeaderView>
#include <limits>

namespace PackageTable
{

View::View(Model* tableModel, StateFilter stateFilter, bool groups, YumIO* yumIO, QWidget* parent)
    : HTableView(QStyleOptionViewItem::Left, 10, std::numeric_limits<int>::max(), parent),
      packages(tableModel),
      proxy(new SortFilterProxyModel(stateFilter, groups, yumIO, parent ? parent : this))
{
    setAccessibleName(tr("Packages"));
    proxy->setSourceModel(packages);
    setModel(proxy);

    setShowGrid(false);
    setGridStyle(Qt::NoPen);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    verticalHeader()->hide();

    auto* const header = new QHeaderView(Qt::Horizontal, this);
    header->setSelectionBehavior(SelectColumns);
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    setHorizontalHeader(header);

    sortByColumn(KindColumn, Qt::AscendingOrder);
    proxy->setFilterKeyColumn(KindColumn);

    connect(header, &QHeaderView::sectionClicked, this, &View::handleHorizontalHeaderClicked);
    connect(this, &View::clicked, this, &View::handleActivated);
    connect(this, &View::customContextMenuRequested, this, &View::handleCustomContextMenuRequested);
}

View::~View() = default;

void View::setMode(Mode mode)
{
    proxy->setMode(mode);
}

void View::setFilter(bool filter)
{
    proxy->setFilter(filter);
}

bool View::hasExpression() const
{
    return !proxy->filterRegExp().pattern().isEmpty();
}

void View::filtersearch(QString const& pattern)
{
    proxy->setFilterRegExp(pattern);
}

void View::stateFilterChanged(StateFilter stateFilter)
{
    proxy->setStateFilter(stateFilter);
}

void View::groupsFilterChanged(bool groups)
{
    proxy->setGroupsFilter(groups);
}

QList<QModelIndex> View::selectedRows() const
{
    QList<QModelIndex> rows = HTableView::selectedRows();
    for (QModelIndex& index : rows) {
        index = proxy->mapToSource(index);
    }
    return rows;
}

void View::resizeColumnsToContents()
{
    bool const filter = proxy->getFilter();
    proxy->setFilter(false);
    HTableView::resizeColumnsToContents();
    proxy->setFilter(filter);
}

void View::describe()
{
    packages->describe(proxy->mapToSource(currentIndex()), this);
}

void View::handleHorizontalHeaderClicked(int column)
{
    sortByColumn(column);
    proxy->setFilterKeyColumn(column);
}

void View::handleActivated(QModelIndex const& index)
{
    if (index.column() == ActionColumn) {
        QModelIndex const sourceIndex = proxy->mapToSource(index);
        packages->toggleAction(sourceIndex);
        Q_EMIT stateChanged(sourceIndex.row());
    }
}

void View::handleCustomContextMenuRequested(QPoint const& point)
{
    QModelIndex const sourceIndex = proxy->mapToSource(indexAt(point));
    QPoint const place = viewport()->mapToGlobal(point);
    if (sourceIndex.column() == ActionColumn) {
        if (!actionContextMenu) {
            actionContextMenu = std::make_unique<ActionContextMenu>(packages);
        }
        actionContextMenu->exec(sourceIndex, place);
    } else {
        if (!otherContextMenu) {
            otherContextMenu = std::make_unique<OtherContextMenu>(packages, this);
        }
        otherContextMenu->exec(sourceIndex, place);
    }
}

void View::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        packages->setEnabled(isEnabled());
    }
}

void View::currentChanged(QModelIndex const& current, QModelIndex const& previous)
{
    showMoveOfCurrent(current, previous);
    int const currentRow = proxy->mapToSource(current).row();
    int const previousRow = proxy->mapToSource(previous).row();
    if (currentRow != previousRow) {
        Q_EMIT currentChanged(currentRow, previousRow);
    }
}

// What a user of the keyboard sees and hears of the move: the frame of the current cell, which stays in
// sight, and the focus of the screen reader.
bool View::showsTextOnly(int column) const
{
    return column >= NameColumn;
}

} // namespace PackageTable
