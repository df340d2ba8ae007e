// SPDX-License-Identifier: GPL-2.0-or-later
#include "restarts/RestartsWindow.h"

#include "engine/YumIO.h"
#include "matters/Moments.h"
#include "restarts/RestartsFilesModel.h"
#include "restarts/RestartsModel.h"
#include "restarts/RestartsReader.h"
#include "services/ScrollableConfirmDialog.h"
#include "services/ScrollableErrorDialog.h"
#include "widgets/ListTable.h"

#include <QPlainTextEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>

namespace Restarts
{

Window::Window(YumIO* engine, QWidget* parent)
    : MatterWindow(QStringLiteral("restarts"), engine, parent),
      reader(new Reader(engine, this)),
      model(new Model(this)),
      filesModel(new FilesModel(this))
{
    setWindowTitle(tr("Restarts"));
    build();
    begin(table, reader);
}

bool Window::offered(YumIO const& yumIO)
{
    return Reader::offered(yumIO);
}

void Window::takeLooks()
{
    constexpr int lines = 5;
    int const around = 2 * (headEdit->frameWidth() + qRound(headEdit->document()->documentMargin()));
    // Lines are laid out in fractions of a pixel.
    headEdit->setFixedHeight(lines * (headEdit->fontMetrics().lineSpacing() + 1) + around);
}

void Window::readAll()
{
    restarts = reader->restarts();
    whyNot = yumIO->whyNoChange();
    int const pid = current() ? current()->pid : 0;
    std::optional<Advice> const read = reader->advice();
    told = read.has_value();
    advice = read.value_or(Advice());
    model->setProcesses(advice.processes);
    showHead();
    auto const* const sorted = static_cast<QSortFilterProxyModel const*>(table->model());
    QModelIndex const row = sorted->mapFromSource(model->index(model->rowOf(pid), 0));
    table->setCurrentIndex(row.isValid() ? row : sorted->index(0, 0));
    showChosenNow();
}

Process const* Window::current() const
{
    auto const* const sorted = static_cast<QSortFilterProxyModel const*>(table->model());
    QModelIndex const row = table->currentIndex();
    return row.isValid() ? &model->process(sorted->mapToSource(row).row()) : nullptr;
}

void Window::showChosen()
{
    filesModel->show(current() ? current()->files : QList<File>());
}

void Window::showHead()
{
    if (!told) {
        headEdit->clear();
        return;
    }
    QStringList lines;
    if (!advice.note.isEmpty()) {
        lines.append(advice.note);
    }
    if (!advice.reboot.isEmpty()) {
        lines.append(tr("The system is to be started anew. Since its start on %1 have been installed:")
                         .arg(Moments::moment(advice.since)));
        for (Reason const& reason : advice.reboot) {
            lines.append(QStringLiteral("  %1 %2 (%3)")
                             .arg(reason.name, reason.version, Moments::moment(reason.installed)));
        }
    } else if (advice.note.isEmpty()) {
        lines.append(tr("The system need not be started anew."));
    }
    if (advice.processes.isEmpty() && advice.note.isEmpty()) {
        lines.append(tr("No process uses files that have been replaced."));
    }
    if (advice.unread > 0) {
        lines.append(
            tr("Processes of which nothing could be told for lack of rights: %1").arg(advice.unread));
    }
    headEdit->setPlainText(lines.join(QLatin1Char('\n')));
}

void Window::enableControls()
{
    bool const possible = restarts && whyNot.isEmpty();
    restartButton->setEnabled(isReady() && possible && !advice.services().isEmpty());
    restartButton->setToolTip(
        !restarts  ? tr("The helper script in use is too old to restart services")
        : possible ? tr("Restarts the services of these processes, as far as they can be restarted")
                   : whyNot);
}

void Window::restartServices()
{
    QStringList const units = advice.services();
    ScrollableConfirmDialog question(
        tr("These services are restarted, one after the other:") + QLatin1String("\n\n") +
            units.join(QLatin1Char('\n')) + QLatin1String("\n\n") +
            tr("What they do is interrupted for that time."),
        this);
    question.setWindowTitle(tr("Restart Services"));
    if (question.exec() != QDialog::Accepted) {
        return;
    }
    auto const outcomes = reader->restarted(units);
    reload();
    QStringList faults;
    for (Reader::Outcome const& outcome : outcomes.value_or(QList<Reader::Outcome>())) {
        if (!outcome.done) {
            faults.append(outcome.text);
        }
    }
    if (!faults.isEmpty()) {
        ScrollableErrorDialog report(faults.join(QLatin1Char('\n')), this);
        report.setWindowTitle(tr("Restart Services"));
        report.exec();
    }
}

} // namespace Restarts
