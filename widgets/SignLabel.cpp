// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/SignLabel.h"

#include <QEvent>
#include <QIcon>

SignLabel::SignLabel(QStyle::StandardPixmap signToShow, QStyle::PixelMetric sizeOfIt, QWidget* parent)
    : QLabel(parent),
      sign(signToShow),
      size(sizeOfIt)
{
    draw();
}

void SignLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::StyleChange) {
        draw();
    }
}

void SignLabel::draw()
{
    int const side = style()->pixelMetric(size, nullptr, this);
    // Not the style's picture, which is made for displays without scaling.
    QIcon const icon = style()->standardIcon(sign, nullptr, this);
    setPixmap(icon.pixmap(QSize(side, side), devicePixelRatioF()));
}
