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

void HProgressBar::reset()
{
    setActivity(QString());
    QProgressBar::reset();
}

QString HProgressBar::text() const
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
