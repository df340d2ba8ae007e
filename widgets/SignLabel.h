// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QStyle>

/// One of the toolkit's signs, such as that of a warning, beside the words that it belongs to: in the style's
/// size for that place, as sharp as the display. Owned by its parent. GUI thread.
class SignLabel final : public QLabel
{
    Q_OBJECT

public:
    /// size: which of the style's sizes, such as PM_SmallIconSize beside a line.
    SignLabel(QStyle::StandardPixmap sign, QStyle::PixelMetric size, QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void draw();

    QStyle::StandardPixmap sign;
    QStyle::PixelMetric size;
};
