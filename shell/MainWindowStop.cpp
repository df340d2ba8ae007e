// SPDX-License-Identifier: GPL-2.0-or-later
// Giving up what is going on: by the button, and by closing the window; and what is told of that.
#include "shell/MainWindow.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableExpressionEdit.h"
#include "packagetable/PackageTableView.h"
#include "shell/StatusLine.h"
#include "shell/WindowMemory.h"

#include <QCloseEvent>
#include <QMessageBox>

void MainWindow::stop()
{
    if (yumIO) {
        yumIO->stop.want();
    }
}

void MainWindow::tellIfCutOff()
{
    if (view->searchWasStopped()) {
        statusLine->setWarning(tr("The search was stopped: only what it had found by then is shown"));
    } else if (isSearching()) {
        statusLine->setWarning(regExpEdit->fault());
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    memory->keep();
    if (!yumIO || !yumIO->jobRuns()) {
        // A search goes on otherwise, which nobody sees.
        stop();
        QMainWindow::closeEvent(event);
        return;
    }
    if (!yumIO->transactionRuns()) {
        // Nobody would see what comes of the job, while it kept the lock from others.
        yumIO->leave();
    }
    event->ignore();
    if (endsBehind) {
        return;
    }
    endsBehind = true;
    auto* const box = new QMessageBox(
        QMessageBox::Information, tr("VEM"),
        tr("Packages are being installed, updated or removed.\nThat goes on to its end, and the program ends "
           "behind it."),
        QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    // Not waited for: the job needs the event loop below.
    box->open();
}
