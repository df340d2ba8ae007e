// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QStringList>

/// A label for a text of thousands of lines. QLabel lays all of them out several times for its size and
/// once for each painting; this one does it once, and paints the lines that are in sight. It looks and
/// asks for room as a QLabel does. Owned by its parent widget, GUI thread.
class TextLabel final : public QLabel
{
    Q_OBJECT

public:
    /// The text stays as it is from then on.
    TextLabel(QString const& text, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// What one look at all lines gives.
    struct Layout
    {
        QSize size;
        int linePitch = 0; ///< pixels from one line to the next; 0: the lines differ
        bool valid = false;
    };

    [[nodiscard]] Layout const& layOut() const;
    [[nodiscard]] int alignment() const;

    QStringList lines; ///< empty where QLabel has to do all itself
    mutable Layout layout;
};
