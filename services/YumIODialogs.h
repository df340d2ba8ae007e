// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// Whole: their values go from thread to thread.
#include "services/KeyQuestion.h"
#include "services/TransactionDetails.h"

#include <QEventLoop>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QWidget;
class YumIODialogsMinion;

/// Asks the user modal questions from any thread: each call shows a dialog on the GUI thread and returns
/// when it has been answered. All calls come from the thread that made the object, one at a time; the GUI
/// thread has to run its event loop meanwhile, unless it is the caller itself. None of the calls fails.
///
/// The engine owns one for the GUI thread; a job has its own by a YumIODialogsUser.
class YumIODialogs final : public QObject
{
    Q_OBJECT

public:
    /// `parent` becomes the parent of every dialog. It is not owned and outlives this object.
    explicit YumIODialogs(QWidget* parent);
    ~YumIODialogs() override;

    /// A question with the buttons OK and Cancel. Answers 1 for OK, 0 for Cancel or a closed window.
    [[nodiscard]] int confirm(QString const& caption, QString const& text);

    /// The same with a page of details. `changes` tells what has changed, as DetailsPage::showChanges wants
    /// it; it is called at most while the dialog stands, on this thread, and may ask by other fronts.
    using Changes = std::function<QStringList()>;
    [[nodiscard]] int confirm(
        QString const& caption, QString const& text, TransactionDetails const& details,
        Changes const& changes);

    /// A message box with up to three buttons; without any text it has an OK button. Answers the number
    /// of the button that was pressed, counted from 0 in the order of the texts. Escape and closing the
    /// window press the button `escapeButtonNumber`; with -1 they press a lone button and nothing else.
    int warning(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);
    int critical(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);

    /// A message of any length, with the button Close.
    void scrollable(QString const& caption, QString const& text);

    /// Whether a key is to be fetched, or trusted, by a dialog of its own. Answers 1 for yes, 0 for Cancel or
    /// a closed window.
    [[nodiscard]] int key(KeyQuestion const& question);

Q_SIGNALS:
    int confirmSig(QString const& caption, QString const& text);
    int confirmDetailsSig(QString const& caption, QString const& text, TransactionDetails const& details);
    void changesRead(QStringList const& texts);
    int warningSig(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);
    int criticalSig(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);
    int scrollableSig(QString const& caption, QString const& text);
    int keySig(KeyQuestion const& question);

public Q_SLOTS:
    /// The answer has come.
    void setResult(int value);
    /// The user wants to know what has changed.
    void readChanges();

private:
    void waitForResult();

    YumIODialogsMinion* minion;
    QEventLoop loop;
    Changes changesOf; ///< of the question that is being asked
    bool resultReady = false;
    int result = 0;
};
