// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdEchoEdit.h"

#include "widgets/PasswdMask.h"
#include "widgets/PasswdQuiet.h"

#include <QContextMenuEvent>
#include <QMenu>

#include <memory>
#include <utility>

PasswdEchoEdit::PasswdEchoEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setEchoMode(Password);
    connect(this, &QLineEdit::textChanged, this, &PasswdEchoEdit::tellLength);
}

void PasswdEchoEdit::setText(QString const& text)
{
    PasswdQuiet const quiet(this);
    QLineEdit::setText(text);
}

bool PasswdEchoEdit::event(QEvent* event)
{
    PasswdQuiet const quiet(this);
    return QLineEdit::event(event);
}

void PasswdEchoEdit::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* const menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Its actions come by no event of this field.
    connect(menu, &QObject::destroyed, this, [quiet = std::make_shared<PasswdQuiet>(this)] {});
    menu->popup(event->globalPos());
}

void PasswdEchoEdit::tellLength()
{
    // The toolkit tells a text that was set, as by a screen reader, only after this.
    PasswdQuiet::untilEventsAreServed(this);
    QString const before = std::exchange(told, QString(text().size(), PasswdMask::character(this)));
    PasswdQuiet::tell(this, before, told);
}
