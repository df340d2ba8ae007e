// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/ProgressMinion.h"

#include "services/HProgressBar.h"

namespace
{

int cut(Steps steps)
{
    return static_cast<int>(static_cast<unsigned>(steps));
}

} // namespace

ProgressMinion::ProgressMinion(HProgressBar* total, HProgressBar* item)
    : totalBar(total),
      itemBar(item)
{
}

void ProgressMinion::startTotal(QString const& name, Steps max)
{
    totalBar->setActivity(name);
    totalBar->setMaximum(cut(max));
    totalBar->setValue(0);
    totalBar->setEnabled(true);
    itemBar->reset();
    itemBar->setEnabled(false);
}

void ProgressMinion::startItem(QString const& name, Steps total, Steps max)
{
    totalBar->setValue(cut(total));
    itemBar->setActivity(name);
    itemBar->setMaximum(cut(max));
    itemBar->setValue(0);
    itemBar->setEnabled(true);
}

void ProgressMinion::changeItemActs(Steps total)
{
    totalBar->setValue(cut(total));
}

void ProgressMinion::setItemValue(Steps total, Steps value)
{
    totalBar->setValue(cut(total));
    itemBar->setValue(cut(value));
}

void ProgressMinion::endItemActs(Steps total)
{
    totalBar->setValue(cut(total));
}

void ProgressMinion::setTotalValue(Steps total)
{
    totalBar->setValue(cut(total));
}

void ProgressMinion::reset()
{
    for (HProgressBar* const bar : {totalBar, itemBar}) {
        bar->setMinimum(0);
        bar->setMaximum(1);
    }
    totalBar->reset();
    itemBar->reset();
    totalBar->setEnabled(false);
    itemBar->setEnabled(false);
}
