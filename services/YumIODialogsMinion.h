// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/KeyQuestion.h"
#include "services/TransactionDetails.h"

#include <QMessageBox>
#include <QObject>
#include <QString>
#include <QStringList>

/// The half of YumIODialogs that shows the dialogs. Made by YumIODialogs, which gives it up with
/// deleteLater(); lives on the GUI thread.
class YumIODialogsMinion final : public QObject
{
    Q_OBJECT

public:
    /// The parent of every dialog; not owned.
    explicit YumIODialogsMinion(QWidget* dialogParent);

Q_SIGNALS:
    /// The user has answered.
    void setResult(int result);
    /// Between the dialog that stands and the front.
    void changesWanted();
    void changesRead(QStringList const& texts);

public Q_SLOTS:
    void confirm(QString const& caption, QString const& text);
    void confirmDetails(QString const& caption, QString const& text, TransactionDetails const& details);
    void warning(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);
    void critical(
        QString const& caption, QString const& text, QString const& button0Text = QString(),
        QString const& button1Text = QString(), QString const& button2Text = QString(),
        int defaultButtonNumber = 0, int escapeButtonNumber = -1);
    void scrollable(QString const& caption, QString const& text);
    void key(KeyQuestion const& question);

private:
    struct Buttons
    {
        QString texts[3];
        int defaultNumber;
        int escapeNumber;
    };

    [[nodiscard]] int ask(
        QMessageBox::Icon icon, QString const& caption, QString const& text, Buttons const& buttons);

    QWidget* parent;
};
