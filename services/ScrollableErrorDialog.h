// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

class QLabel;

/// A modal error message of any length, with the button Close. GUI thread.
class ScrollableErrorDialog final : public QDialog
{
    Q_OBJECT

public:
    ScrollableErrorDialog(QString const& text, QWidget* parent);
    ~ScrollableErrorDialog() override;

private:
    QLabel* textLabel;
};
