// SPDX-License-Identifier: GPL-2.0-or-later
// The restarts window's widget tree.
#include "restarts/RestartsFilesModel.h"
#include "restarts/RestartsModel.h"
#include "restarts/RestartsWindow.h"
#include "widgets/HAbstractTableModel.h"
#include "widgets/HSortFilterProxyModel.h"
#include "widgets/ListTable.h"
#include "widgets/Sizing.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>

namespace Restarts
{

namespace
{

constexpr int fewestRows = 4;
constexpr int mostRows = 12;

ListTable* listOf(HAbstractTableModel* model, int sortedBy, QWidget* parent)
{
    auto* const table = new ListTable(fewestRows, mostRows, parent);
    auto* const sorted = new HSortFilterProxyModel(sortedBy, parent);
    sorted->setSourceModel(model);
    table->display(sorted);
    return table;
}

} // namespace

void Window::build()
{
    auto* const rows = new QVBoxLayout(this);
    headEdit = new QPlainTextEdit(this);
    headEdit->setReadOnly(true);
    headEdit->setTabChangesFocus(true);
    headEdit->setAccessibleName(tr("Advice"));
    headEdit->setAccessibleDescription(tr("Whether the system is to be started anew"));
    rows->addWidget(headEdit);

    auto* const parts = new QSplitter(Qt::Vertical, this);
    parts->setChildrenCollapsible(false);
    table = listOf(model, Model::UnitColumn, parts);
    table->setAccessibleName(tr("Processes"));
    table->setAccessibleDescription(tr("Processes that use files which have been replaced"));
    table->setColumnWidths({28, 34, 10, 14, 20, 8});
    filesTable = listOf(filesModel, FilesModel::PathColumn, parts);
    filesTable->setAccessibleName(tr("Files"));
    filesTable->setAccessibleDescription(tr("Replaced files that the chosen process uses"));
    filesTable->setColumnWidths({60, 40, 12});
    parts->addWidget(table);
    parts->addWidget(filesTable);
    rows->addWidget(parts, 1);
    rows->addLayout(createButtonRow());
    resize(QSize(Sizing::columns(this, 124), Sizing::screenLimit(this).height() * 2 / 3)
               .boundedTo(Sizing::screenLimit(this)));
    table->setFocus();
}

QHBoxLayout* Window::createButtonRow()
{
    auto* const row = new QHBoxLayout;
    auto const addButton = [&](QString const& words, auto slot) {
        auto* const button = new QPushButton(words, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, slot);
        row->addWidget(button);
        return button;
    };
    restartButton = addButton(tr("&Restart These Services"), &Window::restartServices);
    row->addStretch(1);
    addButton(tr("&Look Again"), &Window::reload)->setToolTip(tr("Find out anew what is to be restarted"));
    addButton(tr("&Close"), &Window::close)->setToolTip(tr("Close the restarts"));
    return row;
}

} // namespace Restarts
