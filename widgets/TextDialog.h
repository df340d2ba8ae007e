// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class HTextEdit;

/// A modal window that shows a plain text of 80 by 24 characters and a button "Close". The caller sets the
/// window's title. Owned by its parent widget, GUI thread.
class TextDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TextDialog(QWidget* parent);

    void setText(QString const& text);

private:
    HTextEdit* textEdit;
};
