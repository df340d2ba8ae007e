// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/TextDialog.h"

#include "widgets/HTextEdit.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

TextDialog::TextDialog(QWidget* parent)
    : QDialog(parent),
      textEdit(new HTextEdit(80, 24, this))
{
    setAttribute(Qt::WA_ShowModal);

    textEdit->setReadOnly(true);
    textEdit->setLineWrapMode(QTextEdit::NoWrap);
    textEdit->setWordWrapMode(QTextOption::NoWrap);
    textEdit->setTabChangesFocus(true);
    textEdit->setAccessibleName(tr("Text"));

    auto* const closeButton = new QPushButton(tr("Close"), this);
    connect(closeButton, &QPushButton::clicked, this, &TextDialog::accept);

    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(closeButton);

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(textEdit);
    layout->addLayout(buttons);
}

void TextDialog::setText(QString const& text)
{
    textEdit->setPlainText(text);
}
