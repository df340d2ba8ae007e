// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIODialogsMinion.h"

#include "services/KeyDialog.h"
#include "services/ScrollableConfirmDialog.h"
#include "services/ScrollableErrorDialog.h"

#include <QPushButton>
#include <array>

YumIODialogsMinion::YumIODialogsMinion(QWidget* dialogParent)
    : parent(dialogParent)
{
}

void YumIODialogsMinion::confirm(QString const& caption, QString const& text)
{
    ScrollableConfirmDialog dialog(text, parent);
    dialog.setWindowTitle(caption);
    int const answer = dialog.exec();
    Q_EMIT setResult(answer);
}

void YumIODialogsMinion::confirmDetails(
    QString const& caption, QString const& text, TransactionDetails const& details)
{
    ScrollableConfirmDialog dialog(text, details, parent);
    dialog.setWindowTitle(caption);
    connect(&dialog, &ScrollableConfirmDialog::changesWanted, this, &YumIODialogsMinion::changesWanted);
    connect(this, &YumIODialogsMinion::changesRead, &dialog, &ScrollableConfirmDialog::showChanges);
    int const answer = dialog.exec();
    Q_EMIT setResult(answer);
}

void YumIODialogsMinion::warning(
    QString const& caption, QString const& text, QString const& button0Text, QString const& button1Text,
    QString const& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    Buttons const buttons{{button0Text, button1Text, button2Text}, defaultButtonNumber, escapeButtonNumber};
    int const answer = ask(QMessageBox::Warning, caption, text, buttons);
    Q_EMIT setResult(answer);
}

void YumIODialogsMinion::critical(
    QString const& caption, QString const& text, QString const& button0Text, QString const& button1Text,
    QString const& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    Buttons const buttons{{button0Text, button1Text, button2Text}, defaultButtonNumber, escapeButtonNumber};
    int const answer = ask(QMessageBox::Critical, caption, text, buttons);
    Q_EMIT setResult(answer);
}

void YumIODialogsMinion::scrollable(QString const& caption, QString const& text)
{
    ScrollableErrorDialog dialog(text, parent);
    dialog.setWindowTitle(caption);
    dialog.exec();
    Q_EMIT setResult(0);
}

void YumIODialogsMinion::key(KeyQuestion const& question)
{
    KeyDialog dialog(question, parent);
    int const answer = dialog.exec();
    Q_EMIT setResult(answer);
}

int YumIODialogsMinion::ask(
    QMessageBox::Icon icon, QString const& caption, QString const& text, Buttons const& buttons)
{
    QMessageBox box(icon, caption, text, QMessageBox::NoButton, parent);
    std::array<QPushButton*, 3> made{};
    for (std::size_t number = 0; number < made.size(); ++number) {
        QString const& label = buttons.texts[number];
        if (!label.isEmpty()) {
            made[number] = box.addButton(label, QMessageBox::ActionRole);
        } else if (number == 0) {
            made[number] = box.addButton(QMessageBox::Ok);
        }
    }
    auto const button = [&made](int number) {
        return number >= 0 && number < int(made.size()) ? made[std::size_t(number)] : nullptr;
    };
    if (button(buttons.defaultNumber)) {
        box.setDefaultButton(button(buttons.defaultNumber));
    }
    if (button(buttons.escapeNumber)) {
        box.setEscapeButton(button(buttons.escapeNumber));
    }
    box.exec();
    for (std::size_t number = 0; number < made.size(); ++number) {
        if (made[number] && box.clickedButton() == made[number]) {
            return int(number);
        }
    }
    return buttons.escapeNumber;
}
