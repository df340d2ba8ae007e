// SPDX-License-Identifier: GPL-2.0-or-later
// Package files from elsewhere: chosen, dropped on the window or named at the start, they become marked rows.
#include "shell/MainWindow.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableMarks.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableView.h"
#include "shell/PackageFilesDialog.h"
#include "shell/PackageWords.h"
#include "widgets/HMenu.h"

#include <QAction>
#include <QComboBox>
#include <QDropEvent>
#include <QMimeData>

void MainWindow::createOpenAction()
{
    openFilesAction = programMenu->addAction(tr("&Open Package Files..."));
    openFilesAction->setShortcut(QKeySequence(tr("Ctrl+O")));
    connect(openFilesAction, &QAction::triggered, this, &MainWindow::choosePackageFiles);
    programMenu->addSeparator();
    setAcceptDrops(true);
}

void MainWindow::enableOpening(bool ready)
{
    // While a job runs, the interpreter is not to be asked.
    bool const possible = !ready || yumIO->opensPackageFiles();
    openFilesAction->setEnabled(ready && possible);
    openFilesAction->setToolTip(
        possible
            ? tr("Shows packages of .rpm files and of https addresses in the table, marked for installation")
            : tr("The package library in use can't open package files here"));
}

void MainWindow::choosePackageFiles()
{
    PackageFilesDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted) {
        openPackageFiles(dialog.words());
    }
}

void MainWindow::openPackageFiles(QStringList const& words)
{
    if (words.isEmpty() || !openFilesAction->isEnabled()) {
        return;
    }
    setReady(false);
    PackageTable::Marks const marks(*yumIO);
    yumIO->packageFiles.open(words);
    rebuild();
    restore(marks);
    if (tableArea->isHidden()) {
        showTable();
    }
    setReady(true);
}

void MainWindow::takeNamedFiles()
{
    if (packageFiles.isEmpty()) {
        return;
    }
    if (yumIO->opensPackageFiles()) {
        yumIO->packageFiles.open(packageFiles);
    } else {
        yumIO->error(tr("The package library in use can't open package files here"));
    }
}

void MainWindow::markOpened()
{
    // A collection that has failed shows no row.
    QStringList const names = yumIO->count() > 0 ? yumIO->packageFiles.takeFresh() : QStringList();
    if (names.isEmpty()) {
        return;
    }
    for (int row = 0; row < yumIO->count(); ++row) {
        Package::Entry const& entry = *(*yumIO)[row];
        if (entry.kind != Package::Group && names.contains(entry.name.toString()) &&
            entry.repo.toString() == PackageFiles::repository) {
            model->setAction(
                model->index(row, PackageTable::ActionColumn),
                entry.state == Package::OutOfDate ? Package::Update : Package::Install);
        }
    }
    stateChanged(-1);
    // Whatever the table showed, what was opened is there to be seen.
    stateFilterCombo->setCurrentIndex(PackageTable::Marked);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (openFilesAction->isEnabled() && !PackageWords::dragged(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MainWindow::dropEvent(QDropEvent* event)
{
    QStringList const words = PackageWords::dragged(*event->mimeData());
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // The other program waits for the end of this event.
    QMetaObject::invokeMethod(
        this, [this, words] { openPackageFiles(words); }, Qt::QueuedConnection);
}
