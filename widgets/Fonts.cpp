// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Fonts.h"

#include <QFont>

QFont Fonts::makeHeader(QFont const& font)
{
    QFont copy(font);
    copy.setFixedPitch(false);
    copy.setFamily(tr("Helvetica"));
    copy.setBold(true);
    // A font has a size in pixels or in points; the other one is -1.
    if (copy.pixelSize() != -1) {
        copy.setPixelSize(copy.pixelSize() * 3 / 2);
    } else if (copy.pointSize() != -1) {
        copy.setPointSize(copy.pointSize() * 3 / 2);
    }
    return copy;
}

QFont Fonts::makeFixed(QFont const& font)
{
    QFont copy(font);
    copy.setFixedPitch(true);
    copy.setFamily(tr("Courier"));
    return copy;
}

QFont Fonts::makeBold(QFont const& font)
{
    QFont copy(font);
    copy.setBold(true);
    return copy;
}
