// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdMask.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace
{

QChar maskOf(QWidget const* widget)
{
    int const code = widget->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, widget);
    return QChar(static_cast<ushort>(code));
}

/// Puts the real characters into `edited` where it has the mask of all of them.
void restore(QString& edited, QString const& shown, QString const& real, QChar mask)
{
    if (edited.count(mask) != shown.count(mask)) {
        return;
    }
    qsizetype from = -1;
    for (qsizetype at = edited.indexOf(mask); at >= 0; at = edited.indexOf(mask, at + 1)) {
        from = shown.indexOf(mask, from + 1);
        edited[at] = real[from];
    }
}

} // namespace

void PasswdMask::cover(QString& text, QRegularExpressionMatch const& match, QWidget const* widget)
{
    if (match.capturedStart(1) < 0) {
        return;
    }
    qsizetype const length = match.capturedLength(1);
    text.replace(match.capturedStart(1), length, QString(length, maskOf(widget)));
}

QString PasswdMask::adopt(QString real, QString const& shown, QString const& edited, QWidget const* widget)
{
    qsizetype const common = std::min(shown.size(), edited.size());
    qsizetype start = 0;
    while (start < common && shown[start] == edited[start]) {
        ++start;
    }
    qsizetype end = 0;
    while (end < common - start && shown[shown.size() - 1 - end] == edited[edited.size() - 1 - end]) {
        ++end;
    }
    qsizetype const length = shown.size() - start - end;
    QString middle = edited.mid(start, edited.size() - start - end);
    restore(middle, shown.mid(start, length), real.mid(start, length), maskOf(widget));
    return real.replace(start, length, middle);
}
