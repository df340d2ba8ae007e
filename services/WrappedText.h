// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTextEdit>

/// A plain text to be read, marked and copied that looks like a label and never gets wider than its room:
/// where a word doesn't fit, it is broken. As high as its lines, up to a limit, behind which it scrolls.
/// Owned by its parent widget, GUI thread.
class WrappedText final : public QTextEdit
{
    Q_OBJECT

public:
    WrappedText(QString const& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    /// The words have the colour of a label's.
    void takeColor();
};
