// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string_view>

class QAbstractItemDelegate;
class QAbstractItemModel;
class QModelIndex;
class QStyleOptionViewItem;

/// Finds the width of the widest cell of a table column, in pixels. Lives for one question, borrows the
/// delegate and the options. GUI thread.
class ColumnWidth
{
public:
    /// The text, in UTF-8, and the cell of a row of the table; a row that isn't there is never asked for.
    using Text = std::function<std::string_view(int row)>;
    using Cell = std::function<QModelIndex(int row)>;

    ColumnWidth(QAbstractItemDelegate const& delegate, QStyleOptionViewItem const& options);

    /// The largest width of the delegate's size hints for the column's cells below `root`; 0 without rows.
    /// The same number as `walked`, found without a text layout for each cell where the delegate is an
    /// HItemDelegate itself.
    [[nodiscard]] int widest(QAbstractItemModel const& model, QModelIndex const& root, int column) const;

    /// The same for cells that show their text and nothing else: no icon, check box, font or size hint of
    /// their own. `text` must answer what the cell shows, with a text that stays for the call. Without a
    /// question to the model for most of the rows, 66,000 of them cost a few milliseconds.
    [[nodiscard]] int widestText(int rows, Text const& text, Cell const& cell) const;

    /// The same as `widest` by asking the delegate for each cell: 66,000 rows cost 300 ms.
    [[nodiscard]] int walked(QAbstractItemModel const& model, QModelIndex const& root, int column) const;
    [[nodiscard]] int walked(int rows, Cell const& cell) const;

private:
    [[nodiscard]] bool knowsDelegate() const;

    QAbstractItemDelegate const& delegate;
    QStyleOptionViewItem const& options;
};
