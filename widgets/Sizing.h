// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSize>

class QWidget;

/// The sizing rules that the widgets share. All results are in pixels. GUI thread.
class Sizing
{
public:
    /// Nine tenths of the screen that the widget stands on: the most that a widget asks for.
    [[nodiscard]] static QSize screenLimit(QWidget const* widget);

    /// What a style that draws the frame only around the contents of a scroll area takes besides them; 0 in
    /// all other styles.
    [[nodiscard]] static int frameOnlyAroundContentsPixels(QWidget const* widget);

    /// The width of `count` characters 'n' in the widget's font.
    [[nodiscard]] static int columns(QWidget const* widget, int count);
};
