// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/HProgressBar.h"

HProgressBar::HProgressBar(QWidget* parent)
    : QProgressBar(parent)
{
}

void HProgressBar::setActivity(QString const& newActivity)
{
    if (activity == newActivity) {
        return;
    }
    activity = newActivity;
    setAccessibleDescription(activity);
    update();
}

void HProgressBar::setNote(QString const& newNote)
{
    if (note != newNote) {
        note = newNote;
        update();
    }
}

void HProgressBar::reset()
{
    setNote(QString());
    setActivity(QString());
    QProgressBar::reset();
}

QString HProgressBar::text() const
{
    QString const words = told();
    return words.isEmpty() || note.isEmpty() ? words + note : tr("%1, %2").arg(words, note);
}

QString HProgressBar::told() const
{
    QString base = QProgressBar::text();
    if (activity.isEmpty()) {
        return base;
    }
    if (base.isEmpty()) {
        return activity;
    }
    return QProgressBar::tr("%1 (%2)").arg(activity, base);
}
