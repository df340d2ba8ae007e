// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ScrollableDialogLayout.h"

#include "services/TextLabel.h"
#include "widgets/HScrollArea.h"
#include "widgets/SignLabel.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

QLabel* layOutScrollableDialog(
    QDialog* dialog, QStyle::StandardPixmap picture, QString const& text, QList<QPushButton*> const& buttons,
    QTabWidget* pages, QString const& title)
{
    dialog->setAttribute(Qt::WA_ShowModal);

    auto* const rows = new QVBoxLayout(dialog);
    auto* const upper = new QHBoxLayout;
    auto* const lower = new QHBoxLayout;
    rows->addLayout(upper);
    rows->addLayout(lower);

    upper->addWidget(new SignLabel(picture, QStyle::PM_MessageBoxIconSize, dialog));

    auto* const area = new HScrollArea(dialog);
    area->setFrameStyle(QFrame::Plain);
    // Who comes to it by Tab, to scroll, hears it.
    area->setAccessibleName(text);
    auto* const textLabel = new TextLabel(text, area);
    area->setWidget(textLabel);
    if (pages) {
        pages->insertTab(0, area, title);
        pages->setCurrentIndex(0);
        upper->addWidget(pages, 1);
    } else {
        upper->addWidget(area);
    }

    lower->addStretch();
    for (QPushButton* const button : buttons) {
        lower->addWidget(button);
    }
    lower->addStretch();
    return textLabel;
}
