// SPDX-License-Identifier: GPL-2.0-or-later
#include "Boxes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <utility>

Boxes::Boxes()
{
    qApp->installEventFilter(this);
}

QList<Boxes::Box> Boxes::take()
{
    presses.clear();
    shownAct = nullptr;
    return std::exchange(seen, {});
}

QStringList Boxes::takeTexts()
{
    QStringList texts;
    for (Box const& box : take()) {
        texts.append(box.text);
    }
    return texts;
}

bool Boxes::eventFilter(QObject* watched, QEvent* event)
{
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog) {
        // Behind the present event: a dialog can't be closed while it is still being shown.
        QTimer::singleShot(0, dialog, [this, dialog] { answer(dialog); });
    }
    return false;
}

void Boxes::answer(QDialog* dialog)
{
    Box box{dialog->windowTitle(), QString(), {}};
    if (auto const* const messageBox = qobject_cast<QMessageBox*>(dialog)) {
        box.text = messageBox->text();
    } else {
        for (QLabel const* const label : dialog->findChildren<QLabel*>()) {
            box.text += label->text();
        }
    }
    QList<QPushButton*> const buttons = dialog->findChildren<QPushButton*>();
    for (QPushButton const* const button : buttons) {
        box.buttons.append(button->text().remove(QLatin1Char('&')));
    }
    seen.append(box);
    if (shownAct) {
        shownAct();
    }
    QString const press = presses.isEmpty() ? box.buttons.value(0) : presses.takeFirst();
    if (press == QLatin1String("Escape")) {
        QTest::keyClick(dialog, Qt::Key_Escape);
    } else if (qsizetype const at = box.buttons.indexOf(press); at >= 0) {
        buttons.at(at)->click();
    } else {
        QTest::qFail(qPrintable("no button " + press), __FILE__, __LINE__);
        dialog->reject();
    }
}
