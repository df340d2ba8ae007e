// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HTableView.h"

#include <initializer_list>

/// A table that is looked through line by line: one row is chosen at a time, by Tab and the arrows too, and
/// the user sorts and moves its columns. Owned by its parent widget, GUI thread.
class ListTable final : public HTableView
{
    Q_OBJECT

public:
    /// The numbers of rows that the size hint allows for, as those of the base.
    ListTable(int fewestRows, int mostRows, QWidget* parent);

    /// Shows this model, not owned, in its own order until the user sorts it.
    void display(QAbstractItemModel* model);
    /// Widths in characters, made as wide as the headings where those are wider. To look at all of thousands
    /// of rows for the widest would take long.
    void setColumnWidths(std::initializer_list<int> widths);

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    // A table that sorts already would sort what `display` gets.
    using HTableView::setModel;
};
