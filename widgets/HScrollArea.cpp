// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HScrollArea.h"

#include "widgets/Sizing.h"

#include <QScrollBar>
#include <limits>

namespace
{

constexpr int unlimited = std::numeric_limits<int>::max();

} // namespace

HScrollArea::HScrollArea(QWidget* parent)
    : HScrollArea(QSize(unlimited, unlimited), parent)
{
}

HScrollArea::HScrollArea(QSize limit, QWidget* parent)
    : QScrollArea(parent),
      maximumSize(limit)
{
}

HScrollArea::HScrollArea(int columns, int rows, QWidget* parent)
    : HScrollArea(parent)
{
    if (columns != -1) {
        maximumSize.setWidth(Sizing::columns(this, columns));
    }
    if (rows != -1) {
        maximumSize.setHeight(rows * fontMetrics().height());
    }
}

int HScrollArea::frameOnlyAroundContentsPixels() const
{
    return Sizing::frameOnlyAroundContentsPixels(this);
}

QSize HScrollArea::sizeHint() const
{
    if (!widget()) {
        return QScrollArea::sizeHint();
    }
    QSize const hint = widget()->sizeHint();
    int const frame = frameWidth() + frameOnlyAroundContentsPixels() + frameWidth();
    QSize const wanted(
        hint.width() + frame + verticalScrollBar()->sizeHint().width(),
        hint.height() + frame + horizontalScrollBar()->sizeHint().height());
    return wanted.boundedTo(maximumSize).boundedTo(Sizing::screenLimit(this));
}

void HScrollArea::forceResize()
{
    QWidget* const content = widget();
    if (!content) {
        return;
    }
    content->resize(content->sizeHint());
    updateGeometry();
    // Contents that wrap answer otherwise once they have their width.
    content->resize(content->sizeHint());
}
