// SPDX-License-Identifier: GPL-2.0-or-later
// Applies, what is shown while they run, and what there is to tell behind a collection.
#include "shell/MainWindow.h"

#include "engine/YumIO.h"
#include "repo/RepoAuthChecker.h"
#include "services/LogWindow.h"
#include "services/ScrollableErrorDialog.h"
#include "shell/Desktop.h"
#include "shell/StatusLine.h"

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace
{

/// Where the screen has room for that, puts a new window beside another one: they are to be read at the same
/// time. Elsewhere it is left to the desktop, as it is where programs have no say in it.
void placeBeside(QWidget& placed, QWidget const& other)
{
    // Lines are long, but they begin with what matters.
    constexpr int narrowest = 400;
    QRect const screen = other.screen()->availableGeometry();
    QRect const frame = other.frameGeometry();
    QSize const wanted = placed.sizeHint();
    int const border = frame.width() - other.width();
    int const right = screen.right() - frame.right() - border;
    int const left = frame.left() - screen.left() - border;
    int const width = qMin(wanted.width(), qMax(right, left));
    if (width < narrowest) {
        return;
    }
    int const height = qMin(wanted.height(), other.height());
    placed.resize(width, height);
    placed.move(
        right >= left ? frame.right() + 1 : frame.left() - width - border,
        qBound(screen.top(), frame.top(), screen.bottom() - height));
}

} // namespace

void MainWindow::makeLog()
{
    if (!logWindow) {
        logWindow = new Log::Window(yumIO->logEntries, this);
        // Before the table is there, this window doesn't have its size yet.
        if (tableArea->isVisible()) {
            placeBeside(*logWindow, *this);
        }
    }
}

void MainWindow::displayLog()
{
    makeLog();
    bool const shows = logWindow->isVisible();
    logWindow->show();
    if (!shows) {
        // The toolkit remembers of a window that it was shown without the keyboard once.
        logWindow->activateWindow();
    }
}

void MainWindow::showLogBeside()
{
    if (!logWithApplyAction->isChecked() || (logWindow && logWindow->isVisible())) {
        return;
    }
    makeLog();
    // The keyboard stays here, where something is to be confirmed soon.
    logWindow->setAttribute(Qt::WA_ShowWithoutActivating);
    logWindow->show();
    logWindow->setAttribute(Qt::WA_ShowWithoutActivating, false);
}

bool MainWindow::event(QEvent* event)
{
    // A dialog has come in front of this window, be it a question or what has gone wrong.
    if (event->type() == QEvent::WindowBlocked && applies) {
        QWidget const* const dialog = QApplication::activeModalWidget();
        desktop->notify(dialog ? dialog->windowTitle() : windowTitle(), tr("An answer is waited for."));
    }
    return QMainWindow::event(event);
}

void MainWindow::apply()
{
    applying([this] { return yumIO->apply(); });
}

void MainWindow::applying(std::function<bool()> const& job)
{
    setReady(false);
    showLogBeside();
    applies = true;
    bool const applied = job();
    applies = false;
    if (endsBehind) {
        quit();
        return;
    }
    desktop->notify(
        windowTitle(),
        applied ? tr("All actions have been applied.") : tr("Not all actions have been applied."));
    if (applied) {
        if (RepoAuth::Checker(this, yumConfIO).quitRequested) {
            quit();
            return;
        }
        rebuild();
    }
    setReady(true);
    reloadMatters();
}

void MainWindow::tellCollected()
{
    if (yumIO && !yumIO->jobRuns()) {
        statusLine->setRepositoryTimes(yumIO->repositoryTimes());
    }
    // One after the other.
    tellIncomplete();
    tellUnfinished();
}

void MainWindow::tellIncomplete()
{
    if (!yumIO || yumIO->jobRuns() || yumIO->incomplete() == incompleteTold) {
        return;
    }
    incompleteTold = yumIO->incomplete();
    statusLine->setIncomplete(!incompleteTold.isEmpty());
    if (!incompleteTold.isEmpty()) {
        showIncomplete();
    }
}

void MainWindow::showIncomplete()
{
    QStringList const paragraphs =
        QStringList{tr(
            "Not everything that is configured could be used, so the table may not show what it should:")} +
        incompleteTold;
    ScrollableErrorDialog dialog(paragraphs.join(QLatin1String("\n\n")), this, QStyle::SP_MessageBoxWarning);
    dialog.setWindowTitle(tr("Incomplete Table"));
    dialog.exec();
}

void MainWindow::tellUnfinished()
{
    // A collection that has failed knows of nothing, which doesn't mean that there is nothing.
    if (!yumIO || yumIO->jobRuns() || yumIO->unfinished().text.isEmpty() ||
        yumIO->unfinished().text == unfinishedTold) {
        return;
    }
    unfinishedTold = yumIO->unfinished().text;
    QMessageBox box(
        QMessageBox::Warning, tr("Unfinished Transaction"), unfinishedTold, QMessageBox::NoButton, this);
    box.setTextFormat(Qt::PlainText);
    if (!yumIO->unfinished().older) {
        box.exec();
        return;
    }
    box.setInformativeText(tr(
        "Shall the older versions be removed? What exactly is done is shown before, and asked once more."));
    QPushButton const* const remove = box.addButton(tr("&Remove Older Versions"), QMessageBox::AcceptRole);
    box.addButton(tr("&Leave Them"), QMessageBox::RejectRole);
    box.exec();
    if (box.clickedButton() == remove) {
        applying([this] { return yumIO->removeOlder(); });
    }
}
