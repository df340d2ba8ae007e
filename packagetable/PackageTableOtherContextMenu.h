// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMenu>
#include <QPersistentModelIndex>

namespace PackageTable
{

class Model;

/// The context menu of every cell but the Action cell, and of the empty area below the rows: describes the
/// row, and on the Repository column browses the row's repository. Owned by the view, has no parent; GUI
/// thread.
class OtherContextMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `parent` becomes the parent of the dialogs. Neither is owned; both must outlive the menu.
    OtherContextMenu(Model* model, QWidget* parent);

    /// Runs the menu for a cell of the model, or an invalid index, at a position on the screen, until it is
    /// closed.
    void exec(QModelIndex index, QPoint const& position);

public Q_SLOTS:
    void handleDescribeAction();
    void handleBrowseAction();

private:
    QAction* describeAction;
    QAction* browseAction;
    Model* model;
    QWidget* parent;
    QPersistentModelIndex index; ///< of the model; a rebuild of the list while the menu is open ends it
};

} // namespace PackageTable
