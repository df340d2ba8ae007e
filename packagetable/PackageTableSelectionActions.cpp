// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableSelectionActions.h"

#include "packagetable/PackageTableModel.h"

#include <QAction>
#include <QMenu>
#include <algorithm>
#include <utility>

namespace PackageTable
{

SelectionActions::SelectionActions(Model* tableModel, Selected selectedRows, QWidget* view)
    : QObject(view),
      model(tableModel),
      selected(std::move(selectedRows)),
      choices{
          {{Package::Install, new QAction(this)},
           {Package::Remove, new QAction(this)},
           {Package::None, new QAction(this)}}}
{
    choices[0].action->setShortcut(QKeySequence(Qt::Key_Plus));
    choices[1].action->setShortcuts({QKeySequence(Qt::Key_Delete), QKeySequence(Qt::Key_Minus)});
    choices[2].action->setShortcut(QKeySequence(Qt::Key_Backspace));
    for (Choice const& choice : choices) {
        choice.action->setShortcutContext(Qt::WidgetShortcut);
        // A menu tells the key, whatever the desktop usually does in context menus.
        choice.action->setShortcutVisibleInContextMenu(true);
        view->addAction(choice.action);
        connect(
            choice.action, &QAction::triggered, this, [this, wanted = choice.wanted] { carryOut(wanted); });
    }
}

void SelectionActions::carryOut(Package::Action wanted)
{
    model->markAll(selected(), wanted);
    Q_EMIT marked();
}

void SelectionActions::addTo(QMenu& menu)
{
    count();
    if (!menu.actions().contains(choices[0].action)) {
        menu.addSeparator();
        for (Choice const& choice : choices) {
            menu.addAction(choice.action);
        }
        // What the menu greys out is a key all the same, for rows that are selected later.
        connect(&menu, &QMenu::aboutToHide, this, [this] {
            for (Choice const& choice : choices) {
                choice.action->setEnabled(true);
            }
        });
    }
}

void SelectionActions::count()
{
    QList<QModelIndex> const rows = selected();
    for (Choice const& choice : choices) {
        auto const concerned = std::ranges::count_if(
            rows, [&](QModelIndex const& row) { return model->wouldMark(row, choice.wanted); });
        QString words;
        if (choice.wanted == Package::Install) {
            //: %1 is a number of packages
            words = tr("Install/Update of Selected: %1");
        } else if (choice.wanted == Package::Remove) {
            words = tr("Remove Selected: %1");
        } else {
            words = tr("No Action for Selected: %1");
        }
        choice.action->setText(words.arg(concerned));
        choice.action->setEnabled(concerned > 0);
    }
}

} // namespace PackageTable
