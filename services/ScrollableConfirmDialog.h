// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QLabel;

/// A modal question of any length, with the buttons OK and Cancel. GUI thread.
class ScrollableConfirmDialog final : public QDialog
{
    Q_OBJECT

public:
    ScrollableConfirmDialog(QString const& text, QWidget* parent);
    ~ScrollableConfirmDialog() override;

private:
    QLabel* textLabel;
};
