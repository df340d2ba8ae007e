// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Steps.h"

#include <QObject>

class HProgressBar;

/// The half of Progress that touches the two bars. Made by Progress, which gives it up with
/// deleteLater(); lives on the GUI thread, so it may outlive its Progress for as long as signals are
/// still queued. The bars belong to the window and outlive both.
///
/// A bar takes an int: a Steps value is cut to its lowest 32 bits.
class ProgressMinion final : public QObject
{
    Q_OBJECT

public:
    ProgressMinion(HProgressBar* total, HProgressBar* item);

public Q_SLOTS:
    void startTotal(QString const& name, Steps max);
    void startItem(QString const& name, Steps total, Steps max);
    void changeItemActs(Steps total);
    void setItemValue(Steps total, Steps value);
    void setItemNote(QString const& note);
    void endItemActs(Steps total);
    void setTotalValue(Steps total);
    void reset();

private:
    HProgressBar* totalBar;
    HProgressBar* itemBar;
};
