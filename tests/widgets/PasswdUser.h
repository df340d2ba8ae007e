// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QStyle>
#include <QWidget>

/// What the tests of both password fields do to them, and the addresses that they show.
namespace PasswdUser
{

/// The password is whatever stands between "key=" and "&".
inline QRegularExpression onePattern()
{
    return QRegularExpression(QStringLiteral(".*key=([^&\\s]*)&.*"));
}

inline QRegularExpression eachPattern()
{
    return QRegularExpression(QStringLiteral("key=([^&\\s]*)&"));
}

inline QString mask(int length)
{
    int const code = QApplication::style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter);
    return QString(length, QChar(static_cast<ushort>(code)));
}

/// Drags a text over the widget and lets it go there. True when the widget was willing to take it.
inline bool drop(QWidget* widget, QString const& text)
{
    QMimeData data;
    data.setText(text);
    QPoint const at = widget->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(widget, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    drop.ignore();
    QApplication::sendEvent(widget, &drop);
    return enter.isAccepted() || drop.isAccepted();
}

/// Puts in a text as an input method does, composing it first.
inline void compose(QWidget* widget, QString const& text)
{
    QInputMethodEvent composing(text, {});
    QApplication::sendEvent(widget, &composing);
    QInputMethodEvent finished;
    finished.setCommitString(text);
    QApplication::sendEvent(widget, &finished);
}

} // namespace PasswdUser
