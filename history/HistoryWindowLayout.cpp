// SPDX-License-Identifier: GPL-2.0-or-later
// The history window's widget tree.
#include "history/HistoryModel.h"
#include "history/HistoryPackagesModel.h"
#include "history/HistoryRecords.h"
#include "history/HistoryWindow.h"
#include "widgets/ListTable.h"
#include "widgets/Sizing.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

namespace History
{

namespace
{

constexpr int fewestRows = 4;
constexpr int mostRows = 12;
constexpr int mostPackageRows = 8;
constexpr int searchWidth = 24; ///< characters

} // namespace

void Window::build()
{
    auto* const rows = new QVBoxLayout(this);
    rows->addLayout(createSearchRow());

    table = new ListTable(fewestRows, mostRows, this);
    table->setAccessibleName(tr("History"));
    table->setAccessibleDescription(tr("All transactions, the latest first"));
    table->display(proxy);
    table->setColumnWidths({7, 20, 9, 9, 30, 12, 12});

    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    parts->addWidget(table);
    parts->addWidget(createDetails());
    rows->addWidget(parts, 1);
    rows->addLayout(createButtonRow());
    resize(QSize(Sizing::columns(this, 120), Sizing::screenLimit(this).height() * 3 / 4)
               .boundedTo(Sizing::screenLimit(this)));
    table->setFocus();
}

QHBoxLayout* Window::createSearchRow()
{
    searchEdit = new QLineEdit(this);
    searchEdit->setClearButtonEnabled(true);
    searchEdit->setPlaceholderText(tr("part of a name, or a pattern such as kernel*"));
    searchEdit->setToolTip(tr("Shows only the transactions about packages whose name, version and\n"
                              "architecture hold this text or, with * or ?, match it"));
    searchEdit->setAccessibleDescription(searchEdit->toolTip());
    searchEdit->setMinimumWidth(Sizing::columns(searchEdit, searchWidth));
    connect(searchEdit, &QLineEdit::textChanged, &typing, qOverload<>(&QTimer::start));
    connect(searchEdit, &QLineEdit::returnPressed, this, &Window::search);
    auto* const label = new QLabel(tr("Pac&kage:"), this);
    label->setBuddy(searchEdit);
    auto* const row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(searchEdit);
    return row;
}

QWidget* Window::createDetails()
{
    auto* const details = new QWidget(this);
    auto* const rows = new QVBoxLayout(details);
    rows->setContentsMargins(0, 0, 0, 0);
    // A command line may be as long as a list of packages.
    headEdit = new QPlainTextEdit(details);
    headEdit->setReadOnly(true);
    headEdit->setTabChangesFocus(true);
    headEdit->setAccessibleName(tr("Transaction"));
    headEdit->setAccessibleDescription(tr("The chosen transaction"));
    rows->addWidget(headEdit);

    pages = new QTabWidget(details);
    packagesTable = new ListTable(fewestRows, mostPackageRows, pages);
    packagesTable->setAccessibleName(tr("Packages"));
    packagesTable->setAccessibleDescription(tr("What the chosen transaction did"));
    auto* const sorted = new HSortFilterProxyModel(PackagesModel::NameColumn, this);
    sorted->setSourceModel(packagesModel);
    packagesTable->display(sorted);
    packagesTable->setColumnWidths({13, 26, 28, 12, 14, 12});
    outputEdit = new QPlainTextEdit(pages);
    outputEdit->setReadOnly(true);
    outputEdit->setTabChangesFocus(true);
    outputEdit->setAccessibleName(tr("Script Output"));
    outputEdit->setAccessibleDescription(tr("What scripts of the packages wrote during the transaction"));
    pages->addTab(packagesTable, tr("&Packages"));
    pages->addTab(outputEdit, tr("&Script Output"));
    rows->addWidget(pages, 1);
    return details;
}

QHBoxLayout* Window::createButtonRow()
{
    auto* const row = new QHBoxLayout;
    auto const addButton = [&](QString const& text, auto slot) {
        auto* const button = new QPushButton(text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    undoButton = addButton(tr("&Undo This"), [this] { wish(HistoryWish::Kind::Undo); });
    rollBackButton = addButton(tr("&Roll Back To Here"), [this] { wish(HistoryWish::Kind::RollBack); });
    redoButton = addButton(tr("Re&do"), [this] { wish(HistoryWish::Kind::Redo); });
    row->addStretch(1);

    auto* const menu = new QMenu(this);
    menu->addAction(tr("&This Transaction..."), this, [this] {
        if (Transaction const* const chosen = current()) {
            exportTransaction(chosen->number);
        }
    });
    menu->addAction(tr("&All Transactions..."), this, [this] { exportTransaction(0); });
    exportButton = new QPushButton(tr("&Export"), this);
    exportButton->setAutoDefault(false);
    exportButton->setMenu(menu);
    exportButton->setToolTip(tr("Write transactions into a file, as text or JSON"));
    row->addWidget(exportButton);
    addButton(tr("&Close"), &Window::close)->setToolTip(tr("Close the history"));
    return row;
}

} // namespace History
