// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/ColumnWidth.h"

#include "base/Parallel.h"
#include "widgets/HItemDelegate.h"
#include "widgets/TextEstimate.h"

#include <QAbstractItemModel>
#include <QIcon>
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <map>
#include <mutex>
#include <typeinfo>
#include <unordered_map>
#include <unordered_set>
#include <utility>
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

/// The texts of a column in UTF-8, row by row.
using Texts = std::vector<std::string_view>;

/// The text, in `buffer`, which keeps its memory from one text to the next.
QString const& decoded(std::string_view text, QString& buffer)
{
    buffer.resize(static_cast<qsizetype>(text.size()));
    QChar* const target = buffer.data();
    unsigned char all = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto const byte = static_cast<unsigned char>(text[i]);
        all |= byte;
        target[i] = QLatin1Char(static_cast<char>(byte));
    }
    if (all >= 0x80U) {
        buffer = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    }
    return buffer;
}

/// A row of each text that is another one when all digits are taken for alike.
using Folds = std::unordered_map<QString, std::size_t, TextHash, std::equal_to<>>;

/// What was found out last about some texts that rows share, such as the names of repositories: told by
/// where their letters lie, without a look at these.
template <typename Value>
class SharedTexts
{
public:
    /// What is known of the text; else `unknown`, and its place has become the text's.
    Value& of(std::string_view text, Value const& unknown)
    {
        auto const address = reinterpret_cast<std::uintptr_t>(text.data());
        Place& place = places[address / sizeof(std::max_align_t) % places.size()];
        if (place.letters != text.data() || place.size != text.size()) {
            place = {text.data(), text.size(), unknown};
        }
        return place.value;
    }

private:
    struct Place
    {
        char const* letters = nullptr;
        std::size_t size = 0;
        Value value{};
    };
    std::array<Place, 256> places{};
};

// How many texts are asked for before they are needed.
constexpr std::size_t ahead = 16;

/// For each text the most that it is wide.
std::vector<qreal> mostOf(Texts const& texts, TextEstimate const& estimate)
{
    constexpr qreal unknown = -std::numeric_limits<qreal>::infinity();
    std::vector<qreal> most(texts.size());
    Parallel::forParts(texts.size(), [&](std::size_t begin, std::size_t end) {
        SharedTexts<qreal> shared;
        QString buffer;
        for (std::size_t row = begin; row < end; ++row) {
            // The letters lie all over the memory, and waiting for each would take most of the time.
            if (row + ahead < end) {
                __builtin_prefetch(texts[row + ahead].data());
            }
            qreal& known = shared.of(texts[row], unknown);
            if (known == unknown) {
                known = estimate.bounds(decoded(texts[row], buffer)).most;
            }
            most[row] = known;
        }
    });
    return most;
}

/// The folds of the texts that may be wider than `limit`.
Folds foldsOf(Texts const& texts, std::vector<qreal> const& most, qreal limit)
{
    Folds folds;
    std::mutex mutex;
    Parallel::forParts(texts.size(), [&](std::size_t begin, std::size_t end) {
        Folds found;
        SharedTexts<bool> shared;
        QString buffer;
        QString fold;
        for (std::size_t row = begin; row < end; ++row) {
            if (row + ahead < end && most[row + ahead] > limit) {
                __builtin_prefetch(texts[row + ahead].data());
            }
            if (most[row] <= limit || std::exchange(shared.of(texts[row], false), true)) {
                continue;
            }
            TextEstimate::fold(decoded(texts[row], buffer), fold);
            if (found.find(QStringView(fold)) == found.end()) {
                found.emplace(QString(fold.constData(), fold.size()), row);
            }
        }
        std::lock_guard const guard(mutex);
        folds.merge(found);
    });
    return folds;
}

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

// The most promising text goes first, so that few others are worth a question; and of texts that differ in
// their digits only one, where these are alike.
void WidestCell::addTexts(int rows, ColumnWidth::Text const& text, ColumnWidth::Cell const& cell)
{
    CellsOfOneIcon& cells = byIcon[withoutIcon];
    Texts texts(static_cast<std::size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        texts[static_cast<std::size_t>(row)] = text(row);
    }
    std::vector<qreal> const most = mostOf(texts, estimate);
    QString buffer;
    auto const add = [&](std::size_t row) {
        if (most[row] + cells.aroundText > widest) {
            addText(cell(static_cast<int>(row)), decoded(texts[row], buffer), cells);
        }
    };
    if (auto const first = std::max_element(most.begin(), most.end()); first != most.end()) {
        add(static_cast<std::size_t>(first - most.begin()));
    }
    bool digitsAreAlike = true;
    for (auto const& [fold, row] : foldsOf(texts, most, widest - cells.aroundText)) {
        digitsAreAlike = digitsAreAlike && estimate.representative(decoded(texts[row], buffer)) == fold;
        add(row);
    }
    for (std::size_t row = 0; row < texts.size() && !digitsAreAlike; ++row) {
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
