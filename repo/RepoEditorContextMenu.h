// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMenu>
#include <QPersistentModelIndex>

namespace RepoEditor
{

class Model;

/// The context menu of the editor's table: edits the row, or shows its repository in the browser. Owned by
/// the view, has no parent; GUI thread.
class ContextMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `parent` becomes the parent of the dialogs. Neither is owned; both must outlive the menu.
    ContextMenu(Model* model, QWidget* parent);

    /// Runs the menu for a cell of the model, or an invalid index, at a position on the screen, until it is
    /// closed.
    void exec(QModelIndex index, QPoint const& position);

Q_SIGNALS:
    /// The user wants to edit the row of that index, which is invalid below the last row.
    void edit(QModelIndex index);

public Q_SLOTS:
    void edit();
    void browse();

private:
    Model* model;
    QWidget* parent;
    QPersistentModelIndex index; ///< of the model; ends with a reset of the table while the menu is open
};

} // namespace RepoEditor
