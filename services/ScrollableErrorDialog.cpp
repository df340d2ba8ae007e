// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ScrollableErrorDialog.h"

#include "services/ScrollableDialogLayout.h"

#include <QPushButton>

ScrollableErrorDialog::ScrollableErrorDialog(QString const& text, QWidget* parent)
    : QDialog(parent)
{
    auto* const close = new QPushButton(tr("Close"), this);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    textLabel = layOutScrollableDialog(this, QStyle::SP_MessageBoxCritical, text, {close});
}

ScrollableErrorDialog::~ScrollableErrorDialog() = default;
