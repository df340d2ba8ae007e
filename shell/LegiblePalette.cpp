// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/LegiblePalette.h"

#include "widgets/Colors.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>

LegiblePalette::LegiblePalette(QApplication& app)
    : application(&app)
{
    mend();
    app.installEventFilter(this);
}

bool LegiblePalette::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == application) {
        mend();
    }
    return QObject::eventFilter(watched, event);
}

void LegiblePalette::mend()
{
    QPalette const palette = QApplication::palette();
    QPalette const legible = Colors::makeLegible(palette);
    // What is set comes back as a change.
    if (legible != palette) {
        QApplication::setPalette(legible);
    }
}
