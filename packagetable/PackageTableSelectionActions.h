// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <QList>
#include <QModelIndex>
#include <QObject>
#include <array>
#include <functional>

class QAction;
class QMenu;
class QWidget;

namespace PackageTable
{

class Model;

/// What can be done with all selected rows at a time: entries of the context menus, with keys of the table.
/// Each says how many rows it concerns. Owned by the view; GUI thread.
class SelectionActions final : public QObject
{
    Q_OBJECT

public:
    using Selected = std::function<QList<QModelIndex>()>;

    /// `selected` answers the model's indexes. The keys are those of `view`. Neither is owned.
    SelectionActions(Model* model, Selected selected, QWidget* view);

    /// Counts anew and puts the entries behind those of the menu, behind a line.
    void addTo(QMenu& menu);

Q_SIGNALS:
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

    Model* model;
    Selected selected;
    std::array<Choice, 3> choices;
};

} // namespace PackageTable
