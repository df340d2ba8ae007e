// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

/// Plays the user in front of message boxes: notes each one and presses its default button.
class BoxReader : public QObject
{
public:
    BoxReader()
    {
        connect(&timer, &QTimer::timeout, this, &BoxReader::look);
        timer.start(5);
    }

    QStringList texts;
    QStringList captions;
    QList<QMessageBox::StandardButtons> buttons;
    QList<QMessageBox::Icon> icons;
    QList<Qt::TextFormat> formats;
    QList<QWidget*> parents;

private:
    void look()
    {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box)
            return;
        texts += box->text();
        captions += box->windowTitle();
        buttons += box->standardButtons();
        icons += box->icon();
        formats += box->textFormat();
        parents += box->parentWidget();
        box->button(QMessageBox::Ok)->click();
    }

    QTimer timer;
};
