// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include <cstring>

/// Plays a user in front of message boxes, who presses Ok where there is such a button, else `answer`, else
/// the Escape key. Notes the boxes.
class BoxAnswer : public QObject
{
public:
    explicit BoxAnswer(QMessageBox::StandardButton pressed = QMessageBox::NoButton)
        : answer(pressed)
    {
        connect(&timer, &QTimer::timeout, this, &BoxAnswer::look);
        timer.start(5);
    }

    /// The words of an error's box, with the number and name of `cause` behind them.
    static QString told(char const* message, int cause)
    {
        return QStringLiteral("%1; errno = %2 (%3).")
            .arg(QString::fromUtf8(message))
            .arg(cause)
            .arg(QString::fromLocal8Bit(std::strerror(cause)));
    }

    QMessageBox::StandardButton answer;
    QStringList texts;
    QStringList captions;
    QMessageBox::StandardButtons buttons; ///< of the last box
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    Qt::TextFormat format = Qt::AutoText;
    QWidget* parent = nullptr;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts += box->text();
        captions += box->windowTitle();
        buttons = box->standardButtons();
        defaultButton = box->standardButton(box->defaultButton());
        icon = box->icon();
        format = box->textFormat();
        parent = box->parentWidget();
        if (QAbstractButton* const ok = box->button(QMessageBox::Ok))
            ok->click();
        else if (QAbstractButton* const button = box->button(answer))
            button->click();
        else
            box->reject();
    }

    QTimer timer;
};
