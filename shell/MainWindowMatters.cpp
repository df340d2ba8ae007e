// SPDX-License-Identifier: GPL-2.0-or-later
// The windows of the matters that stand beside the table.
#include "shell/MainWindow.h"

#include "advisories/AdvisoriesWindow.h"
#include "engine/YumIO.h"
#include "history/HistoryWindow.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableView.h"
#include "restarts/RestartsWindow.h"
#include "widgets/HMenu.h"

#include <QAction>
#include <QComboBox>
#include <QMessageBox>
#include <QSet>

/// One of these windows, and its entry.
struct MainWindow::Matter
{
    QAction* action;
    QString tip;
    QString tooOld; ///< says that the script in use knows nothing of it
    bool (*offered)(YumIO const& yumIO);
    std::function<MatterWindow*()> make;
    MatterWindow* window = nullptr; ///< null until first used
};

void MainWindow::addMatters(HMenu& menu)
{
    auto const add = [&](Matter matter, QString const& key) {
        matter.action->setShortcut(QKeySequence(key));
        matters.append(std::make_shared<Matter>(std::move(matter)));
        connect(matters.last()->action, &QAction::triggered, this, [this, shown = matters.last()] {
            showMatter(*shown);
        });
    };
    add({menu.addAction(tr("&History")),
         tr("Shows what was installed, updated and removed, and takes it back"),
         tr("The helper script in use is too old to tell the history"), &History::Window::offered,
         [this] { return new History::Window(yumIO, this); }},
        tr("Ctrl+H"));
    add({menu.addAction(tr("A&dvisories")),
         tr("Shows what the repositories advise about installed packages, security first of all"),
         tr("The helper script in use is too old to tell of advisories"), &Advisories::Window::offered,
         [this] { return makeAdvisories(); }},
        tr("Ctrl+D"));
    add({menu.addAction(tr("Res&tarts")),
         tr("Shows what still works with files that have been replaced, and restarts services"),
         tr("The helper script in use is too old to tell what is to be restarted"),
         &Restarts::Window::offered, [this] { return new Restarts::Window(yumIO, this); }},
        tr("Ctrl+Shift+R"));
}

MatterWindow* MainWindow::makeAdvisories()
{
    auto* const advisories = new Advisories::Window(yumIO, this);
    connect(advisories, &Advisories::Window::updatesWanted, this, &MainWindow::markUpdates);
    connect(advisories, &Advisories::Window::addressWanted, this, [this](QString const& address) {
        runShareCommand({QStringLiteral("webbrowser"), address});
    });
    return advisories;
}

void MainWindow::allowMatters(bool ready)
{
    for (auto const& matter : std::as_const(matters)) {
        // While a job runs, the interpreter is not to be asked.
        bool const offered = ready && matter->offered(*yumIO);
        matter->action->setEnabled(offered);
        if (ready) {
            matter->action->setToolTip(offered ? matter->tip : matter->tooOld);
        }
        if (matter->window) {
            matter->window->setReady(ready);
        }
    }
    allowSecurity(ready);
}

void MainWindow::reloadMatters()
{
    for (auto const& matter : std::as_const(matters)) {
        if (matter->window) {
            matter->window->reload();
        }
    }
}

void MainWindow::closeMatters()
{
    for (auto const& matter : std::as_const(matters)) {
        if (matter->window) {
            matter->window->close();
        }
    }
}

void MainWindow::showMatter(Matter& matter)
{
    if (!matter.window) {
        matter.window = matter.make();
        connect(matter.window, &MatterWindow::busy, this, [this](bool begins) { setReady(!begins); });
        connect(matter.window, &MatterWindow::applies, this, &MainWindow::applying);
    }
    matter.window->show();
    matter.window->raise();
    matter.window->activateWindow();
}

void MainWindow::setUpdateSecurity()
{
    if (!model->setUpdateSecurity()) {
        QMessageBox::information(
            this, tr("Set Update of Security Fixes"),
            tr("The metadata of the repositories in use tells of no advisories."));
    }
    stateChanged(-1);
}

// What the metadata tells is known once it has been asked for.
void MainWindow::allowSecurity(bool ready)
{
    bool const none = !yumIO->details(Package::Detail::Advisory).isKnown();
    securityAction->setEnabled(ready && !none);
    securityAction->setToolTip(
        none ? tr("The metadata of the repositories in use tells of no advisories.")
             : tr("Sets the Action for all packages which have a security update to Update.\n"
                  "Does not Apply Actions automatically."));
}

void MainWindow::markUpdates(QStringList const& names)
{
    QSet<QString> const wanted(names.begin(), names.end());
    for (int row = 0; row < yumIO->count(); ++row) {
        Package::Entry const& entry = *(*yumIO)[row];
        if (entry.kind != Package::Group && entry.state == Package::OutOfDate &&
            wanted.contains(entry.name.toString())) {
            model->setAction(model->index(row, PackageTable::ActionColumn), Package::Update);
        }
    }
    stateChanged(-1);
    // Whatever the table showed, what was marked is there to be seen.
    stateFilterCombo->setCurrentIndex(PackageTable::Marked);
}
