// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QItemDelegate>

/// Draws the cells of a HTableView with their text on one line. Owned by its QObject parent, GUI thread.
class HItemDelegate : public QItemDelegate
{
    Q_OBJECT

public:
    explicit HItemDelegate(QObject* parent);

    void drawDisplay(
        QPainter* painter, QStyleOptionViewItem const& option, QRect const& rect,
        QString const& text) const override;
};
