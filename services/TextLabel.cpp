// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/TextLabel.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

TextLabel::TextLabel(QString const& text, QWidget* parent)
    : QLabel(text, parent)
{
    // Mark-up and shortcuts are QLabel's own business.
    if (!text.isEmpty() && !Qt::mightBeRichText(text) && !text.contains(u'&')) {
        lines = text.split(u'\n');
    }
}

QSize TextLabel::sizeHint() const
{
    return lines.isEmpty() ? QLabel::sizeHint() : layOut().size;
}

QSize TextLabel::minimumSizeHint() const
{
    return lines.isEmpty() ? QLabel::minimumSizeHint() : layOut().size;
}

TextLabel::Layout const& TextLabel::layOut() const
{
    ensurePolished();
    if (layout.valid) {
        return layout;
    }
    auto const bounds = [this](QString const& text) {
        constexpr int roomForAnything = 2000;
        return fontMetrics().boundingRect(0, 0, roomForAnything, roomForAnything, alignment(), text).size();
    };
    QSize const all = bounds(text());
    int const lineHeight = bounds(QStringLiteral("x")).height();
    int const pitch = bounds(QStringLiteral("x\nx")).height() - lineHeight;
    auto const counted = static_cast<int>(lines.size()) - (lines.constLast().isEmpty() ? 1 : 0);
    // A script of another font may have made one of the lines higher.
    bool const even = all.height() == lineHeight + (static_cast<int>(lines.size()) - 1) * pitch ||
                      all.height() == lineHeight + (counted - 1) * pitch;
    layout.size = all.grownBy(contentsMargins());
    layout.linePitch = even ? pitch : 0;
    layout.valid = true;
    return layout;
}

int TextLabel::alignment() const
{
    Qt::LayoutDirection const direction = text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
    Qt::Alignment const visual = QStyle::visualAlignment(direction, QLabel::alignment());
    int const sides = static_cast<int>(visual & Qt::AlignHorizontal_Mask);
    int const force = direction == Qt::LeftToRight ? Qt::TextForceLeftToRight : Qt::TextForceRightToLeft;
    return sides | static_cast<int>(Qt::AlignTop) | static_cast<int>(Qt::TextExpandTabs) | force;
}

void TextLabel::paintEvent(QPaintEvent* event)
{
    if (lines.isEmpty() || layOut().linePitch <= 0 || size() != layOut().size) {
        QLabel::paintEvent(event);
        return;
    }
    QRect const contents = contentsRect();
    int const pitch = layOut().linePitch;
    int const last = static_cast<int>(lines.size()) - 1;
    // A line more on either side, for what reaches beyond its line.
    int const from = std::clamp((event->rect().top() - contents.top()) / pitch - 1, 0, last);
    int const to = std::clamp((event->rect().bottom() - contents.top()) / pitch + 1, from, last);
    QRect const room(
        contents.left(), contents.top() + from * pitch, contents.width(), (to - from + 1) * pitch);
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawItemText(
        &painter, room, alignment(), option.palette, isEnabled(), lines.mid(from, to - from + 1).join(u'\n'),
        foregroundRole());
}

void TextLabel::changeEvent(QEvent* event)
{
    layout.valid = false;
    QLabel::changeEvent(event);
}
