// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdMask.h"

#include "widgets/CommonEnds.h"

#include <QStyle>
#include <QWidget>

namespace
{

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

QChar PasswdMask::character(QWidget const* widget)
{
    int const code = widget->style()->styleHint(QStyle::SH_LineEdit_PasswordCharacter, nullptr, widget);
    return QChar(static_cast<ushort>(code));
}

void PasswdMask::cover(QString& text, QRegularExpressionMatch const& match, QWidget const* widget)
{
    if (match.capturedStart(1) < 0) {
        return;
    }
    qsizetype const length = match.capturedLength(1);
    text.replace(match.capturedStart(1), length, QString(length, character(widget)));
}

QString PasswdMask::adopt(QString real, QString const& shown, QString const& edited, QWidget const* widget)
{
    CommonEnds const ends(shown, edited);
    QString middle = ends.middleOf(edited);
    restore(middle, ends.middleOf(shown), ends.middleOf(real), character(widget));
    return real.replace(ends.start, real.size() - ends.start - ends.end, middle);
}
