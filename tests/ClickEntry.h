// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMenu>
#include <QTest>

/// Clicks an entry of an open menu as a hand does, which moves the mouse there first: a menu takes a release
/// where it came up, without any motion before, for the end of the click that opened it.
inline void clickEntry(QMenu* menu, QAction* entry)
{
    constexpr int motions = 8; // The menu wants more than six.
    QPoint const place = menu->actionGeometry(entry).center();
    for (int motion = 0; motion < motions; ++motion) {
        QTest::mouseMove(menu, place + QPoint(motion % 2, 0));
    }
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, place);
}
