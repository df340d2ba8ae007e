// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableSelectionActions.h"

#include "packagetable/PackageTableModel.h"

#include <QAction>
#include <QMenu>
#include <QTableView>
#include <algorithm>
#include <utility>

namespace PackageTable
{

SelectionActions::SelectionActions(Model* tableModel, Selected selectedRows, QTableView* view)
    : QObject(view),
      model(tableModel),
      selected(std::move(selectedRows)),
      table(view),
      choices{
          {{Package::Install, add(QString(), {Qt::Key_Plus})},
           {Package::Remove, add(QString(), {Qt::Key_Delete, Qt::Key_Minus})},
           {Package::None, add(QString(), {Qt::Key_Backspace})}}},
      describe(add(tr("&Describe"), {Qt::Key_Return, Qt::Key_Enter})),
      browse(add(tr("Browse Repository"), {})),
      selectAll(add(tr("Select &All"), QKeySequence::keyBindings(QKeySequence::SelectAll)))
{
    for (Choice const& choice : choices) {
        connect(
            choice.action, &QAction::triggered, this, [this, wanted = choice.wanted] { carryOut(wanted); });
    }
    connect(describe, &QAction::triggered, this, &SelectionActions::describeWanted);
    connect(browse, &QAction::triggered, this, &SelectionActions::browseWanted);
    connect(selectAll, &QAction::triggered, table, &QTableView::selectAll);
}

QAction* SelectionActions::add(QString const& text, QList<QKeySequence> const& keys)
{
    auto* const action = new QAction(text, this);
    action->setShortcuts(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    // A menu tells the key, whatever the desktop usually does in context menus.
    action->setShortcutVisibleInContextMenu(true);
    table->addAction(action);
    return action;
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
        connect(&menu, &QMenu::aboutToHide, this, &SelectionActions::enableAll);
    }
}

void SelectionActions::fill(QMenu& menu)
{
    menu.addAction(describe);
    menu.addAction(browse);
    addTo(menu);
    menu.addSeparator();
    menu.addAction(selectAll);
    connect(&menu, &QMenu::aboutToShow, this, [this] {
        count();
        bool const hasRow = table->currentIndex().isValid();
        describe->setEnabled(hasRow);
        browse->setEnabled(hasRow);
    });
    // Nothing is selected so far, and the keys wait for nobody to open the menu.
    enableAll();
}

// What a menu greys out is a key all the same, for rows that are selected later.
void SelectionActions::enableAll()
{
    for (Choice const& choice : choices) {
        choice.action->setEnabled(true);
    }
    describe->setEnabled(true);
    browse->setEnabled(true);
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
