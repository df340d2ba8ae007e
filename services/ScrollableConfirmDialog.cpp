// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ScrollableConfirmDialog.h"

#include "services/ScrollableDialogLayout.h"

#include <QPushButton>

ScrollableConfirmDialog::ScrollableConfirmDialog(QString const& text, QWidget* parent)
    : QDialog(parent)
{
    auto* const ok = new QPushButton(tr("OK"), this);
    auto* const cancel = new QPushButton(tr("Cancel"), this);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    textLabel = layOutScrollableDialog(this, QStyle::SP_MessageBoxQuestion, text, {ok, cancel});
}

ScrollableConfirmDialog::~ScrollableConfirmDialog() = default;
