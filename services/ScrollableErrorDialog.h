// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <QStyle>

class QLabel;

/// A modal message of any length, with the button Close: an error by its picture, if it isn't told another
/// one. GUI thread.
class ScrollableErrorDialog final : public QDialog
{
    Q_OBJECT

public:
    ScrollableErrorDialog(
        QString const& text, QWidget* parent, QStyle::StandardPixmap picture = QStyle::SP_MessageBoxCritical);
    ~ScrollableErrorDialog() override;

private:
    QLabel* textLabel;
};
