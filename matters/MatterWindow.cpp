// SPDX-License-Identifier: GPL-2.0-or-later
#include "matters/MatterWindow.h"

#include "engine/YumIO.h"
#include "matters/ScriptReader.h"
#include "widgets/ListTable.h"
#include "widgets/RememberedSize.h"

#include <QEvent>
#include <QItemSelectionModel>
#include <QShowEvent>

namespace
{

// Milliseconds.
constexpr int choicePause = 30;
constexpr int waitingPause = 100;

} // namespace

MatterWindow::MatterWindow(QString const& name, YumIO* engine, QWidget* parent)
    : HDialog(parent),
      yumIO(engine)
{
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    choice.setSingleShot(true);
    choice.setInterval(choicePause);
    connect(&choice, &QTimer::timeout, this, &MatterWindow::showChosenNow);
    waiting.setSingleShot(true);
    waiting.setInterval(waitingPause);
    connect(&waiting, &QTimer::timeout, this, &MatterWindow::reload);
    new RememberedSize(name, this);
}

void MatterWindow::begin(ListTable* rows, ScriptReader const* reader)
{
    table = rows;
    connect(reader, &ScriptReader::busy, this, &MatterWindow::busy);
    connect(
        table->selectionModel(), &QItemSelectionModel::currentRowChanged, &choice,
        qOverload<>(&QTimer::start));
    takeLooks();
    enableControls();
}

void MatterWindow::setReady(bool isIdle)
{
    ready = isIdle;
    table->setEnabled(ready);
    enableControls();
}

bool MatterWindow::mayRead() const
{
    return isVisible() && ready && !yumIO->jobRuns();
}

void MatterWindow::reload()
{
    if (mayRead()) {
        waiting.stop();
        readAll();
    } else if (isVisible()) {
        waiting.start();
    }
}

void MatterWindow::showChosenNow()
{
    if (yumIO->jobRuns()) {
        choice.start();
        return;
    }
    choice.stop();
    showChosen();
    enableControls();
}

void MatterWindow::apply(Job const& job)
{
    Q_EMIT applies(job);
    // The keyboard comes back from the questions to the main window, whose they are.
    if (isVisible()) {
        activateWindow();
    }
}

void MatterWindow::showEvent(QShowEvent* event)
{
    HDialog::showEvent(event);
    if (!event->spontaneous()) {
        // Behind the first painting, so that the window is there at once.
        QMetaObject::invokeMethod(this, &MatterWindow::reload, Qt::QueuedConnection);
    }
}

void MatterWindow::hideEvent(QHideEvent* event)
{
    choice.stop();
    waiting.stop();
    HDialog::hideEvent(event);
}

void MatterWindow::changeEvent(QEvent* event)
{
    HDialog::changeEvent(event);
    if (table && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        takeLooks();
    }
}
