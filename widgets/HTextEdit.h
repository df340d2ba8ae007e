// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTextEdit>

/// A text edit that asks for a size in characters and lines and tells when the user has left it. Owned by
/// its parent widget, GUI thread.
class HTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    /// Asks for the size of any scroll area.
    explicit HTextEdit(QWidget* parent);
    /// Asks for `columns` characters by `rows` lines in its font, up to nine tenths of the screen; -1 leaves
    /// that side as in any scroll area.
    HTextEdit(int columns, int rows, QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;

    /// A text of which each character comes back as it was: `toPlainText` gives a blank for the one that
    /// doesn't break, which may be a part of a letter, and a line feed for a carriage return, which this
    /// shows as its symbol. A line feed parts lines.
    void setVerbatim(QString text);
    [[nodiscard]] QString verbatim() const;

    /// Appends a paragraph that stands without space above and below it.
    void appendCompact(QString const& text);

Q_SIGNALS:
    /// The focus went elsewhere, and not to a popup such as the edit's own context menu.
    void editingFinished();

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] bool hasOpenPopup() const;

    int columns = -1;
    int rows = -1;
};
