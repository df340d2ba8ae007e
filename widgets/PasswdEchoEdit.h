// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLineEdit>

/// A line that shows of its text, a password, only how long it is: on the screen as the toolkit's does with
/// the echo mode Password, and to screen readers too. Owned by its parent widget, GUI thread.
class PasswdEchoEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit PasswdEchoEdit(QWidget* parent);

    /// The base's, but told to screen readers as what it shows.
    void setText(QString const& text);

    bool event(QEvent* event) override;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private Q_SLOTS:
    void tellLength();

private:
    QString told; ///< what screen readers know
};
