// SPDX-License-Identifier: GPL-2.0-or-later
#include "matters/Moments.h"

#include <QDateTime>

QString Moments::moment(qint64 seconds)
{
    return seconds == 0
               ? QString()
               : QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString Moments::day(qint64 seconds)
{
    return moment(seconds).left(10);
}
