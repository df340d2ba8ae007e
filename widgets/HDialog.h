// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

/// A dialog in which Return and Enter don't press the default button. Owned by its parent widget, GUI
/// thread.
class HDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HDialog(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
