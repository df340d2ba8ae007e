// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <QMenu>
#include <QPersistentModelIndex>

namespace PackageTable
{

class Model;

/// The context menu of an Action cell: chooses the row's mark among those that fit its state. It stores the
/// mark without telling the table, which shows it at its next repaint. Owned by the view, has no parent; GUI
/// thread.
class ActionContextMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `model` is not owned and must outlive the menu.
    explicit ActionContextMenu(Model* model);

    /// Runs the menu for a cell of the model at a position on the screen, until it is closed. Whether an
    /// entry was chosen.
    bool exec(QModelIndex index, QPoint const& position);

public Q_SLOTS:
    void handleUpdateAction();
    void handleInstallAction();
    void handleRemoveAction();
    void handleNoneAction();

private:
    QIcon noneIcon, updateIcon, installIcon, removeIcon;
    QAction* updateAction;
    QAction* installAction;
    QAction* removeAction;
    QAction* noneAction;
    Model* model;
    QPersistentModelIndex index; ///< of the model; a rebuild of the list while the menu is open ends it
};

} // namespace PackageTable
