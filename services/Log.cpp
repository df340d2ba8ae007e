// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/Log.h"

#include <QMutexLocker>
#include <QRegularExpression>
#include <QStringView>
#include <utility>

namespace Log
{

namespace
{

/// The outermost hold of this thread.
thread_local AppendedHold* currentHold = nullptr;

QString withErrorNumbersOnTheirOwnLines(QString text)
{
    static QRegularExpression const errorNumber(QStringLiteral(": (\\[Errno [0-9]*\\] )"));
    return text.replace(errorNumber, QStringLiteral(":\n\\1"));
}

/// The lines of `text` that a line feed ends, as entries. `rest` becomes what stands behind the last one.
QList<Entry> completeLines(QStringView text, Kind kind, unsigned level, QString& rest)
{
    QList<Entry> lines;
    qsizetype start = 0;
    for (qsizetype end = text.indexOf(u'\n'); end >= 0; end = text.indexOf(u'\n', start)) {
        lines.append({kind, level, text.sliced(start, end - start).toString()});
        start = end + 1;
    }
    rest = text.sliced(start).toString();
    return lines;
}

} // namespace

void EntryList::add(Kind kind, unsigned level, QString const& text)
{
    QString const prepared = withErrorNumbersOnTheirOwnLines(text);
    QString last;
    QList<Entry> lines = completeLines(prepared, kind, level, last);
    lines.append({kind, level, last});
    {
        QMutexLocker<QMutex> const locker(this);
        append(std::move(lines));
    }
    emitAppended();
}

void EntryList::addStream(QString const& text, Kind kind, unsigned level, QString& buffer)
{
    {
        QMutexLocker<QMutex> const locker(this);
        buffer += text;
        // The buffer held no line feed before, so only the new piece is looked through: a long line that
        // comes in small pieces is not walked once per piece.
        if (!text.contains(u'\n')) {
            return;
        }
        QString rest;
        append(completeLines(buffer, kind, level, rest));
        buffer = rest;
    }
    emitAppended();
}

void EntryList::emitAppended()
{
    if (!currentHold) {
        Q_EMIT appended();
    } else if (!currentHold->held.contains(this)) {
        currentHold->held.append(this);
    }
}

AppendedHold::AppendedHold()
    : outer(currentHold)
{
    if (!outer) {
        currentHold = this;
    }
}

AppendedHold::~AppendedHold()
{
    if (outer) {
        return;
    }
    currentHold = nullptr;
    for (EntryList* const list : std::as_const(held)) {
        Q_EMIT list->appended();
    }
}

} // namespace Log
