// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPushButton>

class Stop;

/// The button beside the bars that has the job in progress stopped; Escape presses it. Grey where there is
/// nothing to stop, with a tool tip that says why. Owned by its parent; GUI thread.
class StopButton final : public QPushButton
{
    Q_OBJECT

public:
    /// `stop` outlives the button.
    StopButton(Stop& stop, QWidget* parent);

private:
    void offer(bool possible, QString const& tip);
    void follow();

    Stop& stop;
};
