// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QScrollArea>

/// A scroll area that asks for the size of its content, up to a limit and to nine tenths of the screen.
/// Owned by its parent widget, GUI thread.
class HScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// Limited by the screen alone.
    explicit HScrollArea(QWidget* parent);
    /// `maximumSize` in pixels.
    HScrollArea(QSize maximumSize, QWidget* parent);
    /// At most `columns` characters by `rows` lines in the widget's font; -1 for no limit.
    HScrollArea(int columns, int rows, QWidget* parent);

    /// Pixels that the style's frame takes besides the contents.
    [[nodiscard]] int frameOnlyAroundContentsPixels() const;

    [[nodiscard]] QSize sizeHint() const override;

    /// Gives the content, if any, the size that it asks for.
    void forceResize();

private:
    QSize maximumSize;
};
