// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Sizing.h"

#include <QFontMetrics>
#include <QScreen>
#include <QStyle>
#include <QWidget>

QSize Sizing::screenLimit(QWidget const* widget)
{
    QSize const screen = widget->screen()->geometry().size();
    return {screen.width() * 9 / 10, screen.height() * 9 / 10};
}

int Sizing::frameOnlyAroundContentsPixels(QWidget const* widget)
{
    QStyle const* const style = widget->style();
    return style->styleHint(QStyle::SH_ScrollView_FrameOnlyAroundContents, nullptr, widget)
               ? style->pixelMetric(QStyle::PM_DefaultFrameWidth) * 2
               : 0;
}

int Sizing::columns(QWidget const* widget, int count)
{
    return count * widget->fontMetrics().horizontalAdvance(QLatin1Char('n'));
}
