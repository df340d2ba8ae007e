// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <QKeySequence>
#include <QList>
#include <QModelIndex>
#include <QObject>
#include <array>
#include <functional>

class QAction;
class QMenu;
class QTableView;

namespace PackageTable
{

class Model;

/// What can be done with the rows of the table by its own keys, as entries of menus: with the current row,
/// and with all selected ones at a time, each of which says how many rows it concerns. Owned by the view; GUI
/// thread.
class SelectionActions final : public QObject
{
    Q_OBJECT

public:
    using Selected = std::function<QList<QModelIndex>()>;

    /// `selected` answers the model's indexes. The keys are those of `view`. Neither is owned.
    SelectionActions(Model* model, Selected selected, QTableView* view);

    /// Counts anew and puts the entries behind those of the menu, behind a line.
    void addTo(QMenu& menu);
    /// Puts all there is into an empty menu, which keeps it true whenever it shows.
    void fill(QMenu& menu);

Q_SIGNALS:
    // For the current row.
    void describeWanted();
    void browseWanted();
    /// Marks have been set or taken away.
    void marked();

private:
    /// One of the entries.
    struct Choice
    {
        Package::Action wanted; ///< Install stands for an update, too
        QAction* action;
    };

    void carryOut(Package::Action wanted);
    void count();
    void enableAll();
    QAction* add(QString const& text, QList<QKeySequence> const& keys);

    Model* model;
    Selected selected;
    QTableView* table;
    std::array<Choice, 3> choices;
    QAction* describe;
    QAction* browse;
    QAction* selectAll;
};

} // namespace PackageTable
