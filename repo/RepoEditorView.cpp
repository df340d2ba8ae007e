// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoEditorView.h"

#include "repo/RepoEditorContextMenu.h"
#include "repo/RepoEditorModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSortFilterProxyModel>
#include <limits>

namespace RepoEditor
{

namespace
{

bool isBox(QModelIndex const& index)
{
    return index.column() == SessionColumn || index.column() == PermanentColumn;
}

} // namespace

View::View(Model* tableModel, QWidget* parent)
    : HTableView(QStyleOptionViewItem::Left, 1, std::numeric_limits<qint32>::max(), parent),
      repositories(tableModel),
      proxy(new QSortFilterProxyModel(this))
{
    setAccessibleName(tr("Repositories"));
    proxy->setSourceModel(repositories);
    setModel(proxy);

    setShowGrid(false);
    setGridStyle(Qt::NoPen);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setTabKeyNavigation(false);
    verticalHeader()->hide();

    auto* const header = new QHeaderView(Qt::Horizontal, this);
    header->setSelectionBehavior(SelectColumns);
    header->setStretchLastSection(true);
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    setHorizontalHeader(header);

    connect(header, &QHeaderView::sectionClicked, this, &View::handleHorizontalHeaderClicked);
    connect(this, &View::clicked, this, &View::handleClicked);
    connect(this, &View::customContextMenuRequested, this, &View::handleCustomContextMenuRequested);
    connect(this, &View::doubleClicked, this, &View::handleActivated);

    resizeColumnsToContents();
}

View::~View() = default;

int View::currentRow() const
{
    return proxy->mapToSource(currentIndex()).row();
}

void View::setCurrentRow(int row)
{
    setCurrentIndex(proxy->mapFromSource(repositories->createIndex(row)));
}

QList<QModelIndex> View::selectedRows() const
{
    QList<QModelIndex> rows = HTableView::selectedRows();
    for (QModelIndex& index : rows) {
        index = proxy->mapToSource(index);
    }
    return rows;
}

ContextMenu* View::getContextMenu()
{
    if (!contextMenu) {
        contextMenu = std::make_unique<ContextMenu>(repositories, this);
    }
    return contextMenu.get();
}

void View::handleHorizontalHeaderClicked(int column)
{
    sortByColumn(column);
    proxy->setFilterKeyColumn(column);
}

void View::handleClicked(QModelIndex const& index)
{
    if (index.column() == SessionColumn) {
        repositories->toggleUse(proxy->mapToSource(index));
    } else if (index.column() == PermanentColumn) {
        repositories->toggleEnabled(proxy->mapToSource(index));
    }
}

void View::handleCustomContextMenuRequested(QPoint const& point)
{
    QModelIndex const index = indexAt(point);
    if (!isBox(index)) {
        getContextMenu()->exec(proxy->mapToSource(index), viewport()->mapToGlobal(point));
    }
}

void View::handleActivated(QModelIndex const& index)
{
    Q_EMIT activated(proxy->mapToSource(index));
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

// The boxes are pictures that the toolkit knows no key for.
void View::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && isBox(currentIndex())) {
        handleClicked(currentIndex());
    } else {
        HTableView::keyPressEvent(event);
    }
}

} // namespace RepoEditor
