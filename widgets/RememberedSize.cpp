// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/RememberedSize.h"

#include "base/UserSettings.h"

#include <QEvent>
#include <QWidget>

RememberedSize::RememberedSize(QString const& name, QWidget* rememberedWindow)
    : QObject(rememberedWindow),
      window(rememberedWindow),
      key(QStringLiteral("%1/geometry").arg(name))
{
    window->installEventFilter(this);
}

bool RememberedSize::eventFilter(QObject* watched, QEvent* event)
{
    // The place is taken before the desktop is asked for one.
    if (event->type() == QEvent::Polish && !restored) {
        restored = true;
        window->restoreGeometry(UserSettings::value(key, QByteArray()).toByteArray());
    } else if (event->type() == QEvent::Hide && !event->spontaneous()) {
        UserSettings::setValue(key, window->saveGeometry());
    }
    return QObject::eventFilter(watched, event);
}
