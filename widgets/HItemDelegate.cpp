// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HItemDelegate.h"

HItemDelegate::HItemDelegate(QObject* parent)
    : QItemDelegate(parent)
{
}

void HItemDelegate::drawDisplay(
    QPainter* painter, QStyleOptionViewItem const& option, QRect const& rect, QString const& text) const
{
    QStyleOptionViewItem oneLine(option);
    oneLine.features.setFlag(QStyleOptionViewItem::WrapText, false);
    QItemDelegate::drawDisplay(painter, oneLine, rect, text);
}
