// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HDialog.h"

#include <QKeyEvent>

HDialog::HDialog(QWidget* parent)
    : QDialog(parent)
{
}

void HDialog::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
    } else {
        QDialog::keyPressEvent(event);
    }
}
