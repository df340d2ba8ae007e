// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/WrappingRow.h"

#include <QMargins>
#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace
{

int widthIn(QLayoutItem const* item, int room)
{
    return std::min(item->sizeHint().expandedTo(item->minimumSize()).width(), room);
}

} // namespace

bool WrappingRow::fits(int width) const
{
    return QHBoxLayout::minimumSize().width() <= width;
}

QSize WrappingRow::minimumSize() const
{
    QMargins const margins = contentsMargins();
    int widest = 0;
    for (int at = 0; at < count(); ++at) {
        if (QLayoutItem const* const item = itemAt(at); !item->isEmpty()) {
            widest = std::max(widest, item->minimumSize().width());
        }
    }
    return {widest + margins.left() + margins.right(), QHBoxLayout::minimumSize().height()};
}

bool WrappingRow::hasHeightForWidth() const
{
    return true;
}

int WrappingRow::heightForWidth(int width) const
{
    if (!fits(width)) {
        return heightOfLines(width);
    }
    int const height = QHBoxLayout::heightForWidth(width);
    return height >= 0 ? height : sizeHint().height();
}

int WrappingRow::minimumHeightForWidth(int width) const
{
    if (!fits(width)) {
        return heightOfLines(width);
    }
    int const height = QHBoxLayout::minimumHeightForWidth(width);
    return height >= 0 ? height : QHBoxLayout::minimumSize().height();
}

int WrappingRow::gap() const
{
    return std::max(spacing(), 0);
}

int WrappingRow::heightOfLines(int width) const
{
    QMargins const margins = contentsMargins();
    QList<Line> const all = lines(width - margins.left() - margins.right());
    int height = margins.top() + margins.bottom() + (static_cast<int>(all.size()) - 1) * gap();
    for (Line const& line : all) {
        height += line.height;
    }
    return height;
}

QList<WrappingRow::Line> WrappingRow::lines(int width) const
{
    QList<Line> all(1);
    bool stretched = false;
    for (int at = 0; at < count(); ++at) {
        QLayoutItem* const item = itemAt(at);
        if (item->spacerItem()) {
            if (item->expandingDirections() & Qt::Horizontal) {
                stretched = true;
                all.last().stretchAt = all.last().items.size();
            }
            continue;
        }
        if (item->isEmpty()) {
            continue;
        }
        int const itemWidth = widthIn(item, width);
        if (!all.last().items.isEmpty() && all.last().width + gap() + itemWidth > width) {
            all.append(Line());
            all.last().isAtFarEnd = stretched;
        }
        Line& line = all.last();
        line.width += itemWidth + (line.items.isEmpty() ? 0 : gap());
        line.height = std::max(
            line.height,
            item->hasHeightForWidth() ? item->heightForWidth(itemWidth) : item->sizeHint().height());
        if (item->expandingDirections() & Qt::Horizontal) {
            line.grows = item;
        }
        line.items.append(item);
    }
    return all;
}

void WrappingRow::setGeometry(QRect const& rect)
{
    if (fits(rect.width())) {
        QHBoxLayout::setGeometry(rect);
        return;
    }
    QLayout::setGeometry(rect);
    QRect const room = rect.marginsRemoved(contentsMargins());
    Qt::LayoutDirection const direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int top = room.top();
    for (Line const& line : lines(room.width())) {
        int const left = room.width() - line.width;
        int x = room.left() + (line.isAtFarEnd && !line.grows ? left : 0);
        for (qsizetype at = 0; at < line.items.size(); ++at) {
            QLayoutItem* const item = line.items[at];
            if (line.stretchAt == at && !line.grows && !line.isAtFarEnd) {
                x += left;
            }
            int const width = widthIn(item, room.width()) + (item == line.grows ? left : 0);
            item->setGeometry(QStyle::visualRect(direction, room, QRect(x, top, width, line.height)));
            x += width + gap();
        }
        top += line.height + gap();
    }
}
