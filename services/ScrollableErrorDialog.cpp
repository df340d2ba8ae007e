// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ScrollableErrorDialog.h"

#include "services/ScrollableDialogLayout.h"

#include <QPushButton>

ScrollableErrorDialog::ScrollableErrorDialog(
    QString const& text, QWidget* parent, QStyle::StandardPixmap picture)
    : QDialog(parent)
{
    auto* const close = new QPushButton(tr("Close"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    textLabel = layOutScrollableDialog(this, picture, text, {close});
}

ScrollableErrorDialog::~ScrollableErrorDialog() = default;
