// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/YumIODialogs.h"

#include "base/Application.h"
#include "services/YumIODialogsMinion.h"

#include <QApplication>

YumIODialogs::YumIODialogs(QWidget* parent)
    : minion(new YumIODialogsMinion(parent))
{
    minion->moveToThread(application->thread());
    connect(minion, &YumIODialogsMinion::setResult, this, &YumIODialogs::setResult);
    connect(this, &YumIODialogs::confirmSig, minion, &YumIODialogsMinion::confirm);
    connect(this, &YumIODialogs::confirmDetailsSig, minion, &YumIODialogsMinion::confirmDetails);
    connect(this, &YumIODialogs::changesRead, minion, &YumIODialogsMinion::changesRead);
    connect(minion, &YumIODialogsMinion::changesWanted, this, &YumIODialogs::readChanges);
    connect(this, &YumIODialogs::warningSig, minion, &YumIODialogsMinion::warning);
    connect(this, &YumIODialogs::criticalSig, minion, &YumIODialogsMinion::critical);
    connect(this, &YumIODialogs::scrollableSig, minion, &YumIODialogsMinion::scrollable);
    connect(this, &YumIODialogs::keySig, minion, &YumIODialogsMinion::key);
}

YumIODialogs::~YumIODialogs()
{
    minion->deleteLater();
}

int YumIODialogs::confirm(QString const& caption, QString const& text)
{
    resultReady = false;
    Q_EMIT confirmSig(caption, text);
    waitForResult();
    return result;
}

int YumIODialogs::confirm(
    QString const& caption, QString const& text, TransactionDetails const& details, Changes const& changes)
{
    resultReady = false;
    changesOf = changes;
    Q_EMIT confirmDetailsSig(caption, text, details);
    waitForResult();
    changesOf = nullptr;
    return result;
}

void YumIODialogs::readChanges()
{
    // The answer may have come before the wish.
    if (changesOf && !resultReady) {
        Q_EMIT changesRead(changesOf());
    }
}

int YumIODialogs::warning(
    QString const& caption, QString const& text, QString const& button0Text, QString const& button1Text,
    QString const& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    resultReady = false;
    Q_EMIT warningSig(
        caption, text, button0Text, button1Text, button2Text, defaultButtonNumber, escapeButtonNumber);
    waitForResult();
    return result;
}

int YumIODialogs::critical(
    QString const& caption, QString const& text, QString const& button0Text, QString const& button1Text,
    QString const& button2Text, int defaultButtonNumber, int escapeButtonNumber)
{
    resultReady = false;
    Q_EMIT criticalSig(
        caption, text, button0Text, button1Text, button2Text, defaultButtonNumber, escapeButtonNumber);
    waitForResult();
    return result;
}

void YumIODialogs::scrollable(QString const& caption, QString const& text)
{
    resultReady = false;
    Q_EMIT scrollableSig(caption, text);
    waitForResult();
}

int YumIODialogs::key(KeyQuestion const& question)
{
    resultReady = false;
    Q_EMIT keySig(question);
    waitForResult();
    return result;
}

void YumIODialogs::setResult(int value)
{
    resultReady = true;
    result = value;
    loop.quit();
}

/// On the GUI thread the answer is there before the emission ends, and a quit of a loop that isn't
/// running would be lost: hence the flag.
void YumIODialogs::waitForResult()
{
    if (!resultReady) {
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
}
