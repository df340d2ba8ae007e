// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/ColumnWidth.h"

#include "widgets/HItemDelegate.h"
#include "widgets/TextEstimate.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <QSet>
#include <algorithm>
#include <limits>
#include <map>
#include <typeinfo>

namespace
{

// The cells of one column that carry the same icon, or none. Their width follows the width of their text: a
// wider text makes a cell wider by no more than it is wider itself.
struct CellsOfOneIcon
{
    // The least that a measured cell was wider than the least width of its text.
    qreal aroundText = std::numeric_limits<qreal>::max();
    bool measuredWithoutText = false;
    QSet<QString> measured;
};

// Stands for the cells without an icon where icons are told apart.
constexpr qint64 withoutIcon = -1;

class WidestCell
{
public:
    WidestCell(QAbstractItemDelegate const& delegateToAsk, QStyleOptionViewItem const& optionsToAsk)
        : delegate(delegateToAsk),
          options(optionsToAsk),
          estimate(optionsToAsk.font)
    {
    }

    void add(QModelIndex const& cell);
    void addTextOnly(QModelIndex const& cell);
    [[nodiscard]] int width() const { return widest; }

private:
    int measure(QModelIndex const& cell);
    void add(QModelIndex const& cell, QVariant const& text, CellsOfOneIcon& cells);

    QAbstractItemDelegate const& delegate;
    QStyleOptionViewItem const& options;
    TextEstimate estimate;
    std::map<qint64, CellsOfOneIcon> byIcon;
    int widest = 0;
};

int WidestCell::measure(QModelIndex const& cell)
{
    int const width = delegate.sizeHint(options, cell).width();
    widest = std::max(widest, width);
    return width;
}

void WidestCell::add(QModelIndex const& cell)
{
    QModelRoleData data[] = {
        QModelRoleData(Qt::DisplayRole), QModelRoleData(Qt::DecorationRole), QModelRoleData(Qt::FontRole),
        QModelRoleData(Qt::CheckStateRole), QModelRoleData(Qt::SizeHintRole)};
    cell.multiData(data);
    QVariant const& text = data[0].data();
    QVariant const& icon = data[1].data();
    bool const isUsual = (!icon.isValid() || icon.typeId() == QMetaType::QIcon) &&
                         !data[2].data().isValid() && !data[3].data().isValid() && !data[4].data().isValid();
    if (!isUsual) {
        measure(cell);
        return;
    }
    add(cell, text, byIcon[icon.isValid() ? qvariant_cast<QIcon>(icon).cacheKey() : withoutIcon]);
}

void WidestCell::addTextOnly(QModelIndex const& cell)
{
    add(cell, cell.data(Qt::DisplayRole), byIcon[withoutIcon]);
}

void WidestCell::add(QModelIndex const& cell, QVariant const& text, CellsOfOneIcon& cells)
{
    if (!text.isValid()) {
        if (!cells.measuredWithoutText) {
            cells.measuredWithoutText = true;
            measure(cell);
        }
        return;
    }
    // Other types are shown as the locale words them.
    if (text.typeId() != QMetaType::QString || text.isNull()) {
        measure(cell);
        return;
    }
    QString const& string = *static_cast<QString const*>(text.constData());
    TextEstimate::Bounds const bounds = estimate.bounds(string);
    if (bounds.most + cells.aroundText <= widest) {
        return;
    }
    QString const alike = estimate.representative(string);
    if (cells.measured.contains(alike)) {
        return;
    }
    cells.measured.insert(alike);
    cells.aroundText = std::min(cells.aroundText, measure(cell) - bounds.least);
}

} // namespace

ColumnWidth::ColumnWidth(QAbstractItemDelegate const& delegateToAsk, QStyleOptionViewItem const& optionsToAsk)
    : delegate(delegateToAsk),
      options(optionsToAsk)
{
}

int ColumnWidth::widest(
    QAbstractItemModel const& model, QModelIndex const& root, int column, Cells cells) const
{
    // Another delegate may size a cell by more than its text and icon.
    if (typeid(delegate) != typeid(HItemDelegate)) {
        return walked(model, root, column);
    }
    WidestCell widestCell(delegate, options);
    int const rows = model.rowCount(root);
    for (int row = 0; row < rows; ++row) {
        QModelIndex const cell = model.index(row, column, root);
        if (cells == Cells::TextOnly) {
            widestCell.addTextOnly(cell);
        } else {
            widestCell.add(cell);
        }
    }
    return widestCell.width();
}

int ColumnWidth::walked(QAbstractItemModel const& model, QModelIndex const& root, int column) const
{
    int width = 0;
    int const rows = model.rowCount(root);
    for (int row = 0; row < rows; ++row) {
        width = std::max(width, delegate.sizeHint(options, model.index(row, column, root)).width());
    }
    return width;
}
