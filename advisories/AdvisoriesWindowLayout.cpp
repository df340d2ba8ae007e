// SPDX-License-Identifier: GPL-2.0-or-later
// The advisories window's widget tree.
#include "advisories/AdvisoriesModel.h"
#include "advisories/AdvisoriesPackagesModel.h"
#include "advisories/AdvisoriesReader.h"
#include "advisories/AdvisoriesWindow.h"
#include "widgets/ListTable.h"
#include "widgets/Sizing.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace Advisories
{

namespace
{

constexpr int fewestRows = 4;
constexpr int mostRows = 12;
constexpr int mostPackageRows = 8;

} // namespace

void Window::build()
{
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(createFilterRow());

    table = new ListTable(fewestRows, mostRows, this);
    table->setAccessibleName(tr("Advisories"));
    table->setAccessibleDescription(tr("Advisories about installed packages, the latest first"));
    table->display(proxy);
    table->setColumnWidths({12, 13, 15, 20, 12, 10, 40, 16});

    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(table);
    parts->addWidget(createDetails());
    rows->addWidget(parts, 1);
    rows->addLayout(createButtonRow());
    resize(QSize(Sizing::columns(this, 136), Sizing::screenLimit(this).height() * 3 / 4)
               .boundedTo(Sizing::screenLimit(this)));
    table->setFocus();
}

QHBoxLayout* Window::createFilterRow()
{
    showCombo = new QComboBox(this);
    showCombo->addItem(tr("Open Security Advisories"));
    showCombo->addItem(tr("Open Advisories"));
    showCombo->addItem(tr("All Advisories"));
    showCombo->setCurrentIndex(Proxy::Open);
    showCombo->setAccessibleName(tr("View"));
    showCombo->setToolTip(tr("Open is an advisory that names a newer version of an installed package"));
    searchEdit = new QLineEdit(this);
    searchEdit->setClearButtonEnabled(true);
    searchEdit->setPlaceholderText(tr("part of an identifier, a title or a CVE"));
    searchEdit->setToolTip(tr("Shows only the advisories with this text in their identifier, title or CVEs"));
    searchEdit->setAccessibleDescription(searchEdit->toolTip());
    auto const find = [this] { findAndChoose(currentIdentifier()); };
    connect(showCombo, &QComboBox::currentIndexChanged, this, find);
    connect(searchEdit, &QLineEdit::textChanged, this, find);
    auto* const label = new QLabel(tr("&Find:"), this);
    label->setBuddy(searchEdit);
    auto* const row = new QHBoxLayout;
    row->addWidget(showCombo);
    row->addWidget(label);
    row->addWidget(searchEdit, 1);
    return row;
}

QSplitter* Window::createDetails()
{
    auto* const details = new QSplitter(Qt::Horizontal, this);
    details->setChildrenCollapsible(false);
    text = new QTextBrowser(details);
    text->setOpenLinks(false);
    text->setTabChangesFocus(false);
    text->setAccessibleName(tr("Advisory"));
    text->setAccessibleDescription(tr("The chosen advisory"));
    connect(text, &QTextBrowser::anchorClicked, this, [this](QUrl const& address) {
        Q_EMIT addressWanted(address.toString(QUrl::FullyEncoded));
    });
    packagesTable = new ListTable(fewestRows, mostPackageRows, details);
    packagesTable->setAccessibleName(tr("Packages"));
    packagesTable->setAccessibleDescription(tr("Packages that the chosen advisory names"));
    auto* const sorted = new HSortFilterProxyModel(PackagesModel::NameColumn, this);
    sorted->setSourceModel(packagesModel);
    packagesTable->display(sorted);
    packagesTable->setColumnWidths({15, 11, 11, 11, 10});
    details->addWidget(text);
    details->addWidget(packagesTable);
    details->setStretchFactor(0, 1);
    details->setStretchFactor(1, 1);
    details->setSizes({1, 1}); // of what there will be
    return details;
}

QHBoxLayout* Window::createButtonRow()
{
    auto* const row = new QHBoxLayout;
    auto const addButton = [&](QString const& words, QString const& tip, auto slot) {
        auto* const button = new QPushButton(words, this);
        button->setAutoDefault(false);
        button->setToolTip(tip);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    markButton = addButton(
        tr("&Mark Its Updates"), tr("Marks the packages of the chosen advisory for an update"),
        [this] { Q_EMIT updatesWanted(openNames); });
    row->addStretch(1);
    addButton(tr("&Close"), tr("Close the advisories"), &Window::close);
    return row;
}

} // namespace Advisories
