// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableDescribeInstanceRepoDialog.h"

#include "repo/Buffet.h"
#include "repo/RepoBrowse.h"
#include "widgets/Fonts.h"
#include "widgets/HSeparator.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <utility>

namespace PackageTable::Describe::Instance
{

RepoDialog::RepoDialog(YumIO* engine, QWidget* parent)
    : QDialog(parent),
      yumIO(engine),
      contentLayout(new QHBoxLayout)
{
    setWindowTitle(tr("VEM Repository Description"));
    setAttribute(Qt::WA_ShowModal);

    auto* const browseButton = new QPushButton(tr("Browse Repository"), this);
    browseButton->setToolTip(
        tr("Browse the first URL specified for the selected repository using an external web browser"));
    connect(browseButton, &QPushButton::clicked, this, &RepoDialog::browse);
    auto* const closeButton = new QPushButton(tr("Close"), this);
    connect(closeButton, &QPushButton::clicked, this, &RepoDialog::accept);

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(browseButton);
    buttons->addStretch(1);
    buttons->addWidget(closeButton);

    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(contentLayout);
    layout->addLayout(buttons);
}

void RepoDialog::config(Repo::Entry const& entry)
{
    dropContent();
    repo = &entry;
    content = new QWidget(this);
    auto* const layout = new QVBoxLayout(content);
    auto* const id = new QLabel(content);
    id->setTextFormat(Qt::PlainText);
    id->setText(entry.id);
    id->setFont(Fonts::makeHeader(id->font()));
    layout->addWidget(id, 0, Qt::AlignHCenter);
    layout->addWidget(new HSeparator(content));
    grid = new QGridLayout;
    layout->addLayout(grid);
    int row = 0;
    addPair(row, tr("Name"), entry.name);
    // Who describes a package doesn't expect a password on the screen.
    addPair(row, tr("URLs"), Repo::Buffet::maskPasswords(entry.baseurl));
    addPair(row, tr("Mirror list URL"), Repo::Buffet::maskPasswords(entry.mirrorlist));
    contentLayout->addWidget(content);
    // The size for the repository before would stay otherwise, as well as the layout's idea of it.
    QDialog::layout()->activate();
    adjustSize();
}

void RepoDialog::addPair(int& row, QString const& label, QString const& value)
{
    if (value.isEmpty()) {
        return;
    }
    auto const add = [&](QString const& text, int column, Qt::Alignment alignment) {
        auto* const cell = new QLabel(content);
        cell->setTextFormat(Qt::PlainText);
        cell->setText(text);
        grid->addWidget(cell, row, column, alignment | Qt::AlignTop);
    };
    add(tr("%1:").arg(label), 0, Qt::AlignRight);
    add(value, 1, Qt::AlignLeft);
    ++row;
}

void RepoDialog::dropContent()
{
    if (content) {
        contentLayout->removeWidget(content);
        delete std::exchange(content, nullptr);
        grid = nullptr;
    }
}

void RepoDialog::setVisible(bool visible)
{
    if (!visible) {
        dropContent();
    }
    QDialog::setVisible(visible);
}

void RepoDialog::browse()
{
    if (repo) {
        RepoBrowse::browse(this, *repo, yumIO);
    }
}

} // namespace PackageTable::Describe::Instance
