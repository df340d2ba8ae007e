// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoEditorContextMenu.h"

#include "repo/RepoEditorModel.h"

namespace RepoEditor
{

ContextMenu::ContextMenu(Model* tableModel, QWidget* dialogParent)
    : model(tableModel),
      parent(dialogParent)
{
    connect(addAction(tr("Edit")), &QAction::triggered, this, qOverload<>(&ContextMenu::edit));
    connect(addAction(tr("Browse Repository")), &QAction::triggered, this, &ContextMenu::browse);
}

void ContextMenu::exec(QModelIndex cell, QPoint const& position)
{
    index = cell;
    QMenu::exec(position);
}

void ContextMenu::edit()
{
    Q_EMIT edit(QModelIndex(index));
}

void ContextMenu::browse()
{
    model->browse(index, parent);
}

} // namespace RepoEditor
