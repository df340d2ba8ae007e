// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/HistoryWindow.h"

#include "engine/YumIO.h"
#include "history/HistoryModel.h"
#include "history/HistoryPackagesModel.h"
#include "history/HistoryRecords.h"
#include "matters/Moments.h"
#include "services/ScrollableConfirmDialog.h"
#include "widgets/ListTable.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QStyle>
#include <QTabWidget>

namespace History
{

namespace
{

constexpr int typingPause = 300;

} // namespace

Window::Window(YumIO* engine, QWidget* parent)
    : MatterWindow(QStringLiteral("history"), engine, parent),
      records(new Records(engine, this)),
      model(new Model(this)),
      proxy(new Proxy(model, this)),
      packagesModel(new PackagesModel(this))
{
    setWindowTitle(tr("History"));
    typing.setSingleShot(true);
    typing.setInterval(typingPause);
    build();
    connect(&typing, &QTimer::timeout, this, &Window::search);
    begin(table, records);
}

bool Window::offered(YumIO const& yumIO)
{
    return Records::offered(yumIO);
}

void Window::learn()
{
    searches = records->searches();
    exports = records->exports();
    turnsBack = yumIO->script.has("applyHistory");
    whyNot = yumIO->whyNoChange();
}

void Window::hideEvent(QHideEvent* event)
{
    typing.stop();
    MatterWindow::hideEvent(event);
}

void Window::takeLooks()
{
    model->setLooks(font(), style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this));
    packagesModel->setFont(font());
    constexpr int lines = 5;
    int const around = 2 * (headEdit->frameWidth() + qRound(headEdit->document()->documentMargin()));
    // Lines are laid out in fractions of a pixel.
    headEdit->setFixedHeight(lines * (headEdit->fontMetrics().lineSpacing() + 1) + around);
}

void Window::readAll()
{
    learn();
    int const number = currentNumber();
    model->setTransactions(records->all().value_or(QList<Transaction>()));
    shown = 0;
    findAndChoose(number);
}

void Window::search()
{
    if (!mayRead()) {
        typing.start();
        return;
    }
    typing.stop();
    findAndChoose(currentNumber());
}

void Window::findAndChoose(int number)
{
    QString const text = searchEdit->text().trimmed();
    if (text.isEmpty()) {
        proxy->show(std::nullopt);
    } else if (auto const numbers = records->concerning(text)) {
        proxy->show(QSet<int>(numbers->begin(), numbers->end()));
    }
    QModelIndex row = proxy->mapFromSource(model->index(model->rowOf(number), 0));
    if (!row.isValid()) {
        row = proxy->index(0, 0);
    }
    table->setCurrentIndex(row);
    showChosenNow();
}

Transaction const* Window::current() const
{
    QModelIndex const row = table->currentIndex();
    return row.isValid() ? &model->transaction(proxy->mapToSource(row).row()) : nullptr;
}

int Window::currentNumber() const
{
    Transaction const* const chosen = current();
    return chosen ? chosen->number : 0;
}

void Window::showChosen()
{
    int const number = currentNumber();
    if (number == shown && number != 0) {
        return;
    }
    Whole const whole = current() ? records->whole(number).value_or(Whole()) : Whole();
    shown = number;
    showHead(whole);
    packagesModel->show(whole);
    showOutput(whole);
}

void Window::showHead(Whole const& whole)
{
    Transaction const& head = whole.head;
    if (head.number == 0) {
        // Where one is chosen, it has been told why it can't be shown.
        headEdit->setPlainText(
            current()                ? QString()
            : model->rowCount() == 0 ? tr("No transaction is known.")
                                     : tr("No transaction fits the search."));
        return;
    }
    QStringList lines{tr("Transaction %1: %2").arg(head.number).arg(Words::of(head.result))};
    QString const begun = Moments::moment(head.begun);
    QString const ended = Moments::moment(head.ended);
    if (!begun.isEmpty()) {
        lines.append(ended.isEmpty() ? tr("Begun: %1").arg(begun) : tr("From %1 to %2").arg(begun, ended));
    }
    for (auto const& [name, value] :
         {std::pair(tr("User: %1"), head.user), std::pair(tr("Command: %1"), head.command),
          std::pair(tr("Comment: %1"), head.comment)}) {
        if (!value.isEmpty()) {
            lines.append(name.arg(value));
        }
    }
    headEdit->setPlainText(lines.join(QLatin1Char('\n')));
}

void Window::showOutput(Whole const& whole)
{
    QStringList const lines = whole.errors + whole.output;
    outputEdit->setPlaceholderText(
        whole.head.number == 0 ? QString()
        : whole.keepsOutput    ? tr("The scripts of the packages wrote nothing.")
                               : tr("The package library doesn't keep what scripts of packages write."));
    outputEdit->setPlainText(lines.join(QLatin1Char('\n')));
}

void Window::enableControls()
{
    searchEdit->setEnabled(isReady() && searches);
    Transaction const* const chosen = isReady() ? current() : nullptr;
    // What is to be installed is looked for in what the collection has read.
    bool const possible = chosen && chosen->result != Result::Running && turnsBack && whyNot.isEmpty() &&
                          yumIO->listSerial() != 0;
    bool const isLatest = chosen && chosen->number == model->transaction(0).number;
    undoButton->setEnabled(possible);
    redoButton->setEnabled(possible);
    rollBackButton->setEnabled(possible && !isLatest);
    exportButton->setEnabled(chosen && exports);
    QString const why =
        turnsBack ? whyNot : tr("The helper script in use is too old for changes by the history");
    undoButton->setToolTip(why.isEmpty() ? tr("Do the opposite of the chosen transaction") : why);
    redoButton->setToolTip(why.isEmpty() ? tr("Do the chosen transaction once more") : why);
    rollBackButton->setToolTip(why.isEmpty() ? tr("Undo all transactions behind the chosen one") : why);
}

void Window::wish(HistoryWish::Kind kind)
{
    Transaction const* const chosen = current();
    if (!chosen) {
        return;
    }
    HistoryWish wished{kind, chosen->number};
    apply([this, wished]() mutable {
        QStringList obstacles;
        if (yumIO->applyHistory(wished, obstacles)) {
            return true;
        }
        wished.without = true;
        return !obstacles.isEmpty() && goesOnWithout(obstacles) && yumIO->applyHistory(wished, obstacles);
    });
}

bool Window::goesOnWithout(QStringList const& obstacles)
{
    QString const text =
        tr("Not all of it can be done:") + QLatin1String("\n\n") + obstacles.join(QLatin1Char('\n')) +
        QLatin1String("\n\n") +
        tr("Go on with the rest? What exactly is done is shown before, and asked once more.");
    ScrollableConfirmDialog question(text, this);
    question.setWindowTitle(tr("History"));
    return question.exec() == QDialog::Accepted;
}

void Window::exportTransaction(int number)
{
    QString const textFilter = tr("Text (*.txt)");
    QString const jsonFilter = tr("JSON (*.json)");
    QString filter = textFilter;
    QString const proposed =
        number == 0 ? QStringLiteral("history.txt") : QStringLiteral("transaction-%1.txt").arg(number);
    QString const path = QFileDialog::getSaveFileName(
        this, tr("Export"), proposed, textFilter + QLatin1String(";;") + jsonFilter, &filter);
    if (path.isEmpty()) {
        return;
    }
    bool const asJson = path.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    std::optional<QString> const text = records->exported(number, asJson);
    if (!text) {
        return;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text->toUtf8()) < 0 || !file.commit()) {
        QMessageBox::critical(this, tr("Export"), tr("Unable to write %1: %2").arg(path, file.errorString()));
    }
}

} // namespace History
