// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ScrollableConfirmDialog.h"

#include "services/DetailsPage.h"
#include "services/ScrollableDialogLayout.h"
#include "widgets/Sizing.h"

#include <QLayout>
#include <QPushButton>
#include <QTabWidget>

ScrollableConfirmDialog::ScrollableConfirmDialog(QString const& text, QWidget* parent)
    : ScrollableConfirmDialog(text, nullptr, parent)
{
}

ScrollableConfirmDialog::ScrollableConfirmDialog(
    QString const& text, TransactionDetails const& details, QWidget* parent)
    : ScrollableConfirmDialog(text, &details, parent)
{
}

ScrollableConfirmDialog::ScrollableConfirmDialog(
    QString const& text, TransactionDetails const* details, QWidget* parent)
    : QDialog(parent)
{
    auto* const ok = new QPushButton(tr("OK"), this);
    auto* const cancel = new QPushButton(tr("Cancel"), this);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QTabWidget* pages = nullptr;
    if (details) {
        setSizeGripEnabled(true);
        // Else the button that the focus comes by would stay it.
        ok->setDefault(true);
        pages = new QTabWidget(this);
        page = new DetailsPage(*details, pages);
        pages->addTab(page, tr("&Details"));
        connect(page, &DetailsPage::changesWanted, this, &ScrollableConfirmDialog::changesWanted);
    }
    textLabel = layOutScrollableDialog(
        this, QStyle::SP_MessageBoxQuestion, text, {ok, cancel}, pages,
        details ? tr("&Transaction") : QString());
    ok->setFocus();
    if (details) {
        // The toolkit stops at two thirds of the screen, where large letters leave the table no row.
        ensurePolished();
        layout()->activate();
        resize(sizeHint().boundedTo(Sizing::screenLimit(this)));
    }
}

ScrollableConfirmDialog::~ScrollableConfirmDialog() = default;

void ScrollableConfirmDialog::showChanges(QStringList const& texts)
{
    if (page) {
        page->showChanges(texts);
    }
}
