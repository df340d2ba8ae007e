// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/ColumnWidth.h"

#include "widgets/HItemDelegate.h"
#include "widgets/TextEstimate.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <algorithm>
#include <functional>
#include <limits>
#include <map>
#include <typeinfo>
#include <unordered_set>
#include <vector>

namespace
{

/// Lets a set of texts be asked for what is no QString.
struct TextHash
{
    using is_transparent = void;
    std::size_t operator()(QStringView text) const { return qHash(text); }
};

// The cells of one column that carry the same icon, or none. Their width follows the width of their text: a
// wider text makes a cell wider by no more than it is wider itself.
struct CellsOfOneIcon
{
    // The least that a measured cell was wider than the least width of its text.
    qreal aroundText = std::numeric_limits<qreal>::max();
    bool measuredWithoutText = false;
    std::unordered_set<QString, TextHash, std::equal_to<>> measured;
};

// How many texts are asked for before they are needed.
constexpr std::size_t ahead = 16;

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
    void addTexts(int rows, ColumnWidth::Text const& text, ColumnWidth::Cell const& cell);
    [[nodiscard]] int width() const { return widest; }

private:
    int measure(QModelIndex const& cell);
    void add(QModelIndex const& cell, QVariant const& text, CellsOfOneIcon& cells);
    void addWithoutText(QModelIndex const& cell, CellsOfOneIcon& cells);
    void addText(QModelIndex const& cell, QString const& text, CellsOfOneIcon& cells);

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

// The most promising text goes first, so that few others are worth a question.
void WidestCell::addTexts(int rows, ColumnWidth::Text const& text, ColumnWidth::Cell const& cell)
{
    CellsOfOneIcon& cells = byIcon[withoutIcon];
    std::vector<QString const*> texts(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        texts[static_cast<std::size_t>(row)] = &text(row);
    }
    // Texts and their letters lie all over the memory, and waiting for each would take most of the time.
    auto const fetchAhead = [&](std::size_t row) {
        if (row + 2 * ahead < texts.size()) {
            __builtin_prefetch(texts[row + 2 * ahead]);
            __builtin_prefetch(texts[row + ahead]->constData());
        }
    };
    std::vector<qreal> most(texts.size());
    for (std::size_t row = 0; row < texts.size(); ++row) {
        fetchAhead(row);
        most[row] = estimate.bounds(*texts[row]).most;
    }
    QString last;
    auto const add = [&](std::size_t row) {
        if (most[row] + cells.aroundText <= widest) {
            return;
        }
        // Neighbours often share a text, such as their repository.
        if (QString const& own = *texts[row]; own != last || cells.measured.empty()) {
            last = own;
            addText(cell(static_cast<int>(row)), own, cells);
        }
    };
    if (auto const first = std::max_element(most.begin(), most.end()); first != most.end()) {
        add(static_cast<std::size_t>(first - most.begin()));
    }
    for (std::size_t row = 0; row < texts.size(); ++row) {
        fetchAhead(row);
        add(row);
    }
}

void WidestCell::add(QModelIndex const& cell, QVariant const& text, CellsOfOneIcon& cells)
{
    if (!text.isValid()) {
        addWithoutText(cell, cells);
        return;
    }
    // Other types are shown as the locale words them.
    if (text.typeId() != QMetaType::QString) {
        measure(cell);
        return;
    }
    QString const& string = *static_cast<QString const*>(text.constData());
    if (estimate.bounds(string).most + cells.aroundText > widest) {
        addText(cell, string, cells);
    }
}

void WidestCell::addWithoutText(QModelIndex const& cell, CellsOfOneIcon& cells)
{
    if (!cells.measuredWithoutText) {
        cells.measuredWithoutText = true;
        measure(cell);
    }
}

void WidestCell::addText(QModelIndex const& cell, QString const& text, CellsOfOneIcon& cells)
{
    QStringView const alike = estimate.representative(text);
    if (cells.measured.find(alike) == cells.measured.end()) {
        cells.measured.insert(alike.toString());
        cells.aroundText = std::min(cells.aroundText, measure(cell) - estimate.closeLeast(text));
    }
}

} // namespace

ColumnWidth::ColumnWidth(QAbstractItemDelegate const& delegateToAsk, QStyleOptionViewItem const& optionsToAsk)
    : delegate(delegateToAsk),
      options(optionsToAsk)
{
}

// Another delegate may size a cell by more than its text and icon.
bool ColumnWidth::knowsDelegate() const
{
    return typeid(delegate) == typeid(HItemDelegate);
}

int ColumnWidth::widest(QAbstractItemModel const& model, QModelIndex const& root, int column) const
{
    if (!knowsDelegate()) {
        return walked(model, root, column);
    }
    WidestCell widestCell(delegate, options);
    int const rows = model.rowCount(root);
    for (int row = 0; row < rows; ++row) {
        widestCell.add(model.index(row, column, root));
    }
    return widestCell.width();
}

int ColumnWidth::widestText(int rows, Text const& text, Cell const& cell) const
{
    if (!knowsDelegate()) {
        return walked(rows, cell);
    }
    WidestCell widestCell(delegate, options);
    widestCell.addTexts(rows, text, cell);
    return widestCell.width();
}

int ColumnWidth::walked(QAbstractItemModel const& model, QModelIndex const& root, int column) const
{
    return walked(model.rowCount(root), [&](int row) { return model.index(row, column, root); });
}

int ColumnWidth::walked(int rows, Cell const& cell) const
{
    int width = 0;
    for (int row = 0; row < rows; ++row) {
        width = std::max(width, delegate.sizeHint(options, cell(row)).width());
    }
    return width;
}
