// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableActionContextMenu.h"

#include "base/Share.h"
#include "packagetable/PackageTableModel.h"

namespace PackageTable
{

ActionContextMenu::ActionContextMenu(Model* tableModel)
    : updateIcon(Share::icon(QStringLiteral("icons/update.png"))),
      installIcon(Share::icon(QStringLiteral("icons/install.png"))),
      removeIcon(Share::icon(QStringLiteral("icons/remove.png"))),
      updateAction(addAction(updateIcon, tr("&Update"))),
      installAction(addAction(installIcon, tr("&Install"))),
      removeAction(addAction(removeIcon, tr("&Remove"))),
      noneAction(addAction(noneIcon, tr("&No Action"))),
      model(tableModel)
{
    connect(updateAction, &QAction::triggered, this, &ActionContextMenu::handleUpdateAction);
    connect(installAction, &QAction::triggered, this, &ActionContextMenu::handleInstallAction);
    connect(removeAction, &QAction::triggered, this, &ActionContextMenu::handleRemoveAction);
    connect(noneAction, &QAction::triggered, this, &ActionContextMenu::handleNoneAction);
}

bool ActionContextMenu::exec(QModelIndex cell, QPoint const& position)
{
    index = cell;
    Package::State const state = model->getState(cell.row());
    updateAction->setEnabled(state == Package::OutOfDate);
    installAction->setEnabled(state == Package::Available);
    removeAction->setEnabled(state != Package::Available);
    return QMenu::exec(position) != nullptr;
}

void ActionContextMenu::handleUpdateAction()
{
    model->setAction(index, Package::Update);
}

void ActionContextMenu::handleInstallAction()
{
    model->setAction(index, Package::Install);
}

void ActionContextMenu::handleRemoveAction()
{
    model->setAction(index, Package::Remove);
}

void ActionContextMenu::handleNoneAction()
{
    model->setAction(index, Package::None);
}

} // namespace PackageTable
