// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QHBoxLayout>
#include <QList>
#include <QRect>

/// A row that goes on in a second line, and more, where it is narrower than what it holds needs. Wide enough
/// it is a QHBoxLayout in all, and that is also the size it asks for; at least it needs the width of its
/// widest item. In lines, what follows a stretch stays at the far end of its line, and what wants more room
/// gets what is left of the line. Runs from right to left where its widget does. For widgets, spacers and
/// stretches; its items' alignments and stretch factors count in one line only. Owned as any layout; GUI
/// thread.
class WrappingRow final : public QHBoxLayout
{
    Q_OBJECT

public:
    using QHBoxLayout::QHBoxLayout;

    /// Whether all stands in one line at a width, in pixels.
    [[nodiscard]] bool fits(int width) const;

    [[nodiscard]] QSize minimumSize() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] int minimumHeightForWidth(int width) const override;
    void setGeometry(QRect const& rect) override;

private:
    /// A line's items, from the one end to the other.
    struct Line
    {
        QList<QLayoutItem*> items;
        int width = 0;                ///< of the items and what is between them
        int height = 0;               ///< of the highest
        bool isAtFarEnd = false;      ///< a stretch stands somewhere before it
        qsizetype stretchAt = -1;     ///< the item before which a stretch stands; -1 for none
        QLayoutItem* grows = nullptr; ///< takes what is left; none if all keep their widths
    };

    [[nodiscard]] QList<Line> lines(int width) const;
    [[nodiscard]] int gap() const;
    [[nodiscard]] int heightOfLines(int width) const;
};
