// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ProgressMinion.h"

#include "services/HProgressBar.h"

#include <array>

namespace
{

int cut(Steps steps)
{
    return static_cast<int>(static_cast<unsigned>(steps));
}

/// Begins a range anew: a maximum that is cut to a negative number takes the bar's minimum along, which stays
/// there for the ranges that follow.
void setMaximum(HProgressBar* bar, Steps max)
{
    bar->setMinimum(0);
    bar->setMaximum(cut(max));
}

/// A bar paints itself at once for each new value, and again for each other change, which takes longer
/// than a quick job's steps. While one of these stands, it doesn't: it paints all changes in one go when
/// the GUI thread has served what is waiting.
class PaintLater final
{
    Q_DISABLE_COPY_MOVE(PaintLater)

public:
    PaintLater(HProgressBar* firstBar, HProgressBar* secondBar)
        : bars{firstBar, secondBar}
    {
        for (HProgressBar* const bar : bars) {
            bar->setUpdatesEnabled(false);
        }
    }
    ~PaintLater()
    {
        for (HProgressBar* const bar : bars) {
            bar->setUpdatesEnabled(true);
        }
    }

private:
    std::array<HProgressBar*, 2> bars;
};

} // namespace

ProgressMinion::ProgressMinion(HProgressBar* total, HProgressBar* item)
    : totalBar(total),
      itemBar(item)
{
}

void ProgressMinion::startTotal(QString const& name, Steps max)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setActivity(name);
    setMaximum(totalBar, max);
    totalBar->setValue(0);
    totalBar->setEnabled(true);
    itemBar->reset();
    itemBar->setEnabled(false);
}

void ProgressMinion::startItem(QString const& name, Steps total, Steps max)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setValue(cut(total));
    itemBar->setActivity(name);
    itemBar->setNote(QString());
    setMaximum(itemBar, max);
    itemBar->setValue(0);
    itemBar->setEnabled(true);
}

void ProgressMinion::changeItemActs(Steps total)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setValue(cut(total));
}

void ProgressMinion::setItemValue(Steps total, Steps value)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setValue(cut(total));
    itemBar->setValue(cut(value));
}

void ProgressMinion::setItemNote(QString const& note)
{
    itemBar->setNote(note);
}

void ProgressMinion::endItemActs(Steps total)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setValue(cut(total));
}

void ProgressMinion::setTotalValue(Steps total)
{
    PaintLater const paintLater(totalBar, itemBar);
    totalBar->setValue(cut(total));
}

void ProgressMinion::reset()
{
    PaintLater const paintLater(totalBar, itemBar);
    for (HProgressBar* const bar : {totalBar, itemBar}) {
        bar->setMinimum(0);
        bar->setMaximum(1);
    }
    totalBar->reset();
    itemBar->reset();
    totalBar->setEnabled(false);
    itemBar->setEnabled(false);
}
