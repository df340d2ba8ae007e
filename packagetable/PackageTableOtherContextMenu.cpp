// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableOtherContextMenu.h"

#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"

namespace PackageTable
{

OtherContextMenu::OtherContextMenu(Model* tableModel, QWidget* dialogParent)
    : describeAction(addAction(tr("&Describe"))),
      browseAction(addAction(tr("Browse Repository"))),
      model(tableModel),
      parent(dialogParent)
{
    connect(describeAction, &QAction::triggered, this, &OtherContextMenu::handleDescribeAction);
    connect(browseAction, &QAction::triggered, this, &OtherContextMenu::handleBrowseAction);
}

void OtherContextMenu::exec(QModelIndex cell, QPoint const& position)
{
    index = cell;
    browseAction->setVisible(cell.column() == RepositoryColumn);
    QMenu::exec(position);
}

void OtherContextMenu::handleDescribeAction()
{
    model->describe(index, parent);
}

void OtherContextMenu::handleBrowseAction()
{
    model->browse(index, parent);
}

} // namespace PackageTable
