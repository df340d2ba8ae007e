// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HTableView.h"

#include <memory>

class QSortFilterProxyModel;

namespace RepoEditor
{

class ContextMenu;
class Model;

/// The table of repositories that the user sees. A click on a box, or the space bar, turns it over; columns
/// can be sorted by a click on their header and moved. Owned by its parent widget; GUI thread. All row
/// numbers and indexes that it takes and hands out are the model's.
class View final : public HTableView
{
    Q_OBJECT

public:
    /// The model is not owned and must outlive the view.
    View(Model* model, QWidget* parent);
    ~View() override;

    /// The row of the current cell, -1 without one.
    [[nodiscard]] int currentRow() const;
    /// Makes the row's first cell current and selects it alone; -1 leaves no cell current or selected.
    void setCurrentRow(int row);
    /// One index for each row of each selected range, in the order of the ranges.
    [[nodiscard]] QList<QModelIndex> selectedRows() const;

    /// The one context menu, made at the first call; owned by the view.
    [[nodiscard]] ContextMenu* getContextMenu();

Q_SIGNALS:
    /// The current cell has moved to another row; -1 for none. A reset of the table emits nothing.
    void currentChanged(int current, int previous);
    /// The user has double-clicked a cell.
    void activated(QModelIndex const& index);

public Q_SLOTS:
    void handleHorizontalHeaderClicked(int column);
    void handleClicked(QModelIndex const& index);
    void handleCustomContextMenuRequested(QPoint const& point);
    void handleActivated(QModelIndex const& index);

protected:
    void currentChanged(QModelIndex const& current, QModelIndex const& previous) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    Model* repositories; ///< not the view's own model(), which is the proxy
    QSortFilterProxyModel* proxy;
    std::unique_ptr<ContextMenu> contextMenu; ///< null until first used
};

} // namespace RepoEditor
