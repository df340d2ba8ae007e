// SPDX-License-Identifier: GPL-2.0-or-later
// The windows of the matters that stand beside the table.
#include "shell/MainWindow.h"

#include "engine/YumIO.h"
#include "history/HistoryWindow.h"
#include "widgets/HMenu.h"

#include <QAction>

void MainWindow::addMatters(HMenu& menu)
{
    historyAction = menu.addAction(tr("&History"));
    historyAction->setShortcut(QKeySequence(tr("Ctrl+H")));
    connect(historyAction, &QAction::triggered, this, &MainWindow::showHistory);
}

void MainWindow::allowMatters(bool ready)
{
    // While a job runs, the interpreter is not to be asked.
    if (ready) {
        bool const offered = History::Window::offered(*yumIO);
        historyAction->setEnabled(offered);
        historyAction->setToolTip(
            offered ? tr("Shows what was installed, updated and removed, and takes it back")
                    : tr("The helper script in use is too old to tell the history"));
    } else {
        historyAction->setEnabled(false);
    }
    if (historyWindow) {
        historyWindow->setReady(ready);
    }
}

void MainWindow::reloadMatters()
{
    if (historyWindow) {
        historyWindow->reload();
    }
}

void MainWindow::closeMatters()
{
    if (historyWindow) {
        historyWindow->close();
    }
}

void MainWindow::showHistory()
{
    if (!historyWindow) {
        historyWindow = new History::Window(yumIO, this);
        connect(historyWindow, &History::Window::busy, this, [this](bool begins) { setReady(!begins); });
        connect(historyWindow, &History::Window::applies, this, &MainWindow::applying);
    }
    historyWindow->show();
    historyWindow->raise();
    historyWindow->activateWindow();
}
