// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/StopButton.h"

#include "engine/Stop.h"

StopButton::StopButton(Stop& stopOfEngine, QWidget* parentWidget)
    : QPushButton(tr("Stop"), parentWidget),
      stop(stopOfEngine)
{
    // It is there for the keyboard by its key, and Tab need not come by.
    setFocusPolicy(Qt::NoFocus);
    setShortcut(QKeySequence(Qt::Key_Escape));
    connect(&stop, &Stop::changed, this, &StopButton::follow);
    follow();
}

void StopButton::follow()
{
    switch (stop.state()) {
    case Stop::State::Idle:
        offer(false, tr("Nothing is going on that could be stopped"));
        break;
    case Stop::State::Possible:
        offer(true, tr("Stops what is going on; nothing has been changed yet (Escape)"));
        break;
    case Stop::State::Wanted:
        offer(false, tr("It is being stopped"));
        break;
    case Stop::State::TooLate:
        offer(false, tr("Packages are being changed: what has begun comes to its end"));
        break;
    }
}

void StopButton::offer(bool possible, QString const& tip)
{
    setEnabled(possible);
    setToolTip(tip);
    setAccessibleDescription(tip);
}
