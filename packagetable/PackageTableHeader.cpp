// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableHeader.h"

#include "packagetable/PackageTableColumns.h"

#include <QAction>
#include <QMenu>
#include <QTableView>
#include <algorithm>

namespace PackageTable
{

Header::Header(QTableView* view)
    : QHeaderView(Qt::Horizontal, view),
      table(view),
      menu(new QMenu(tr("&Columns"), this))
{
    setSelectionBehavior(SelectColumns);
    setSectionsMovable(true);
    setSectionsClickable(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, [this](QPoint const& point) {
        menu->exec(mapToGlobal(point));
    });
    connect(this, &QHeaderView::sectionMoved, this, &Header::layoutChanged);
    connect(this, &QHeaderView::sectionResized, this, &Header::resized);
}

void Header::setUp()
{
    // A table that takes a header takes the arrow away.
    setSortIndicatorShown(true);
    for (int column = 0; column < count(); ++column) {
        QAction* const entry = menu->addAction(model()->headerData(column, Qt::Horizontal).toString());
        entry->setToolTip(model()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString());
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, this, [this, column](bool shown) { setShown(column, shown); });
        entries.append(entry);
        setSectionHidden(column, !isShownAtFirst(column));
    }
    updateMenu();
}

void Header::setShown(int column, bool shown)
{
    bool const isLast = count() - hiddenSectionCount() == 1;
    if (shown != isSectionHidden(column) || (!shown && isLast)) {
        updateMenu();
        return;
    }
    setSectionHidden(column, !shown);
    updateMenu();
    Q_EMIT shownChanged(column, shown);
    Q_EMIT layoutChanged();
}

void Header::fit(int column)
{
    fits = true;
    table->resizeColumnToContents(column);
    fits = false;
}

void Header::updateMenu()
{
    bool const isOne = count() - hiddenSectionCount() == 1;
    for (int column = 0; column < entries.size(); ++column) {
        bool const shown = !isSectionHidden(column);
        entries[column]->setChecked(shown);
        entries[column]->setEnabled(!shown || !isOne);
    }
}

// The toolkit tells of each width, also of those that it changes by itself.
void Header::resized(int column, int before, int now)
{
    if (!fits && before > 0 && now > 0) {
        widthsByHand[column] = now;
        Q_EMIT layoutChanged();
    }
}

ColumnLayout Header::initialLayout()
{
    ColumnLayout layout;
    for (int column = 0; column < ColumnCount; ++column) {
        layout.order.append(columnId(column));
        if (isShownAtFirst(column)) {
            layout.shown.append(columnId(column));
        }
    }
    return layout;
}

ColumnLayout Header::layout() const
{
    ColumnLayout layout;
    for (int place = 0; place < count(); ++place) {
        int const column = logicalIndex(place);
        layout.order.append(columnId(column));
        if (!isSectionHidden(column)) {
            layout.shown.append(columnId(column));
        }
    }
    for (auto width = widthsByHand.begin(); width != widthsByHand.end(); ++width) {
        layout.widths.insert(columnId(width.key()), width.value());
    }
    return layout;
}

void Header::setLayout(ColumnLayout const& layout)
{
    // Those that aren't named stand behind the column that they stand behind at first.
    QList<int> order;
    for (QString const& name : layout.order) {
        int const column = columnOfId(name);
        if (column >= 0 && !order.contains(column)) {
            order.append(column);
        }
    }
    for (int column = 0; column < count(); ++column) {
        if (!order.contains(column)) {
            order.insert(order.indexOf(column - 1) + 1, column);
        }
    }
    for (int place = 0; place < count(); ++place) {
        moveSection(visualIndex(order[place]), place);
    }

    bool const showsAny =
        std::ranges::any_of(layout.shown, [](QString const& name) { return columnOfId(name) >= 0; });
    for (int column = 0; column < count(); ++column) {
        bool const shown = showsAny ? layout.shown.contains(columnId(column)) : isShownAtFirst(column);
        if (shown == isSectionHidden(column)) {
            setSectionHidden(column, !shown);
            Q_EMIT shownChanged(column, shown);
        }
    }
    updateMenu();

    widthsByHand.clear();
    for (auto width = layout.widths.begin(); width != layout.widths.end(); ++width) {
        int const column = columnOfId(width.key());
        if (column >= 0 && width.value() >= minimumSectionSize() && width.value() <= maximumSectionSize()) {
            widthsByHand[column] = width.value();
            resizeSection(column, width.value());
        }
    }
    Q_EMIT layoutChanged();
}

} // namespace PackageTable
