// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableView.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableActionContextMenu.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableHeader.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableOtherContextMenu.h"
#include "packagetable/PackageTableSelectionActions.h"
#include "packagetable/PackageTableSortFilterProxyModel.h"
#include "widgets/ColumnWidth.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>
#include <array>
#include <limits>

namespace PackageTable
{

View::View(Model* tableModel, StateFilter stateFilter, bool groups, YumIO* yumIO, QWidget* parent)
    : HTableView(QStyleOptionViewItem::Left, 10, std::numeric_limits<int>::max(), parent),
      packages(tableModel),
      proxy(new SortFilterProxyModel(stateFilter, groups, yumIO, parent ? parent : this)),
      engine(yumIO),
      columns(new Header(this))
{
    setAccessibleName(tr("Packages"));
    selectionActions = new SelectionActions(
        packages, [this] { return selectedRows(); }, this);
    connect(selectionActions, &SelectionActions::marked, this, [this] { Q_EMIT stateChanged(-1); });
    connect(selectionActions, &SelectionActions::describeWanted, this, &View::describe);
    connect(selectionActions, &SelectionActions::browseWanted, this, [this] {
        packages->browse(proxy->mapToSource(currentIndex()), this);
    });
    packages->setPalette(palette());
    proxy->setSourceModel(packages);
    setModel(proxy);

    setShowGrid(false);
    setGridStyle(Qt::NoPen);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    // The keyboard has to get out again; the arrows go from cell to cell.
    setTabKeyNavigation(false);
    verticalHeader()->hide();

    setHorizontalHeader(columns);
    columns->setUp();
    connect(columns, &Header::shownChanged, this, &View::showColumn);

    sortByColumn(KindColumn, Qt::AscendingOrder);
    proxy->setFilterKeyColumn(KindColumn);

    connect(columns, &QHeaderView::sectionClicked, this, &View::handleHorizontalHeaderClicked);
    connect(this, &View::clicked, this, &View::handleActivated);
    connect(this, &View::doubleClicked, this, &View::handleDoubleClicked);
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

QString View::expression() const
{
    return proxy->conditions().expression;
}

bool View::searchWasStopped() const
{
    return proxy->searchWasStopped();
}

void View::filtersearch(QString const& pattern)
{
    proxy->setFilterRegExp(pattern);
}

void View::setCaseSensitivity(Qt::CaseSensitivity sensitivity)
{
    proxy->setCaseSensitivity(sensitivity);
}

qsizetype View::count(StateFilter stateFilter, bool groups, Qt::CaseSensitivity caseSensitivity) const
{
    return proxy->count({stateFilter, groups, expression(), caseSensitivity});
}

void View::stateFilterChanged(StateFilter stateFilter)
{
    proxy->setStateFilter(stateFilter);
}

void View::marksChanged()
{
    proxy->marksChanged();
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
    {
        QScopedValueRollback const guard(fitsAllRows, true);
        columns->fitWidths([this] { HTableView::resizeColumnsToContents(); });
    }
    // What a table that shows all rows for a moment goes through, in one pass of two.
    if (proxy->getFilter()) {
        proxy->clear();
    }
}

void View::showColumn(int column, bool shown)
{
    if (column == AdvisoryColumn && shown) {
        packages->setSigns(this);
    }
    packages->showColumn(column, shown);
    proxy->setColumnShown(column, shown);
    if (shown && !columns->hasWidthByHand(column)) {
        QScopedValueRollback const guard(fitsAllRows, true);
        columns->fit(column);
    }
}

int View::rowsForHint() const
{
    return fitsAllRows ? packages->rowCount() : HTableView::rowsForHint();
}

int View::modelRow(int row) const
{
    return fitsAllRows ? row : proxy->mapToSource(proxy->index(row, 0)).row();
}

int View::widestCell(ColumnWidth const& width, int column) const
{
    if (column < NameColumn) {
        return widestPicture(width, column);
    }
    int const widest = fitsAllRows ? widestOfAllRows(width, column) : widestText(width, column);
    // A sentence may be longer than the screen is wide.
    constexpr int letters = 50;
    return isShownAtFirst(column) ? widest : std::min(widest, letters * fontMetrics().averageCharWidth());
}

int View::widestOfAllRows(ColumnWidth const& width, int column) const
{
    Measured const present{engine->listSerial(), engine->count(), logicalDpiX()};
    if (measured != present) {
        measured = present;
        knownWidths = {};
    }
    std::optional<int>& known = knownWidths.at(static_cast<std::size_t>(column));
    if (!known) {
        known = widestText(width, column);
    }
    return *known;
}

int View::widestText(ColumnWidth const& width, int column) const
{
    return width.widestText(
        rowsForHint(), [&](int row) { return packages->text(modelRow(row), column).utf8(); },
        [&](int row) { return packages->index(modelRow(row), column); });
}

int View::widestPicture(ColumnWidth const& width, int column) const
{
    // One row of each picture stands for the others.
    int const rows = rowsForHint();
    std::array<int, 4> rowOf{-1, -1, -1, -1};
    for (int row = 0; row < rows; ++row) {
        rowOf.at(static_cast<std::size_t>(packages->picture(modelRow(row), column))) = row;
    }
    auto const end = std::remove(rowOf.begin(), rowOf.end(), -1);
    return width.walked(static_cast<int>(end - rowOf.begin()), [&](int number) {
        return packages->index(modelRow(rowOf[static_cast<std::size_t>(number)]), column);
    });
}

void View::measureColumns()
{
    ensurePolished();
    for (int column = NameColumn; column < ColumnCount; ++column) {
        if (!columns->isSectionHidden(column)) {
            QScopedValueRollback const guard(fitsAllRows, true);
            static_cast<void>(sizeHintForColumn(column));
        }
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    }
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
    // A rebuild of the list while a menu is open ends it.
    QPersistentModelIndex const sourceIndex = proxy->mapToSource(indexAt(point));
    QPoint const place = viewport()->mapToGlobal(point);
    if (sourceIndex.column() == ActionColumn) {
        if (!actionContextMenu) {
            actionContextMenu = std::make_unique<ActionContextMenu>(packages);
        }
        selectionActions->addTo(*actionContextMenu);
        if (actionContextMenu->exec(sourceIndex, place)) {
            Q_EMIT stateChanged(sourceIndex.row());
        }
    } else {
        if (!otherContextMenu) {
            otherContextMenu = std::make_unique<OtherContextMenu>(packages, this);
        }
        selectionActions->addTo(*otherContextMenu);
        otherContextMenu->exec(sourceIndex, place);
    }
}

void View::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        packages->setEnabled(isEnabled());
    } else if (event->type() == QEvent::PaletteChange) {
        packages->setPalette(palette());
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        knownWidths = {};
        if (!columns->isSectionHidden(AdvisoryColumn)) {
            packages->setSigns(this);
        }
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

// The toolkit makes the first row the current one as soon as a table without one gets the keyboard. Behind a
// rebuild that happens by itself, and the row that a key then acts on would be one that nobody has chosen.
// Who comes by Tab has asked for a place in the table, and the keys that mark are about selected rows.
void View::focusInEvent(QFocusEvent* event)
{
    bool const byTab = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (currentIndex().isValid() || byTab) {
        HTableView::focusInEvent(event);
        selectRowByTab(event);
    } else {
        // What stands between would choose the row.
        QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
        viewport()->update();
    }
}

// A click in the Action column has changed the mark, and so does the second one.
void View::handleDoubleClicked(QModelIndex const& index)
{
    if (index.column() != ActionColumn) {
        packages->describe(proxy->mapToSource(index), this);
    }
}

// Who types the beginning of a name wants that package, whichever cell has the keyboard.
void View::keyboardSearch(QString const& beginning)
{
    QModelIndex const name = currentIndex().siblingAtColumn(NameColumn);
    if (name.isValid() && name != currentIndex()) {
        selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
    } else if (!name.isValid() && proxy->rowCount() > 0) {
        selectionModel()->setCurrentIndex(proxy->index(0, NameColumn), QItemSelectionModel::NoUpdate);
    }
    HTableView::keyboardSearch(beginning);
}

// The marks are pictures that the toolkit knows no key for.
void View::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier &&
        currentIndex().column() == ActionColumn) {
        // A key that is held down marks once.
        if (!event->isAutoRepeat()) {
            handleActivated(currentIndex());
        }
    } else {
        HTableView::keyPressEvent(event);
    }
}

} // namespace PackageTable
