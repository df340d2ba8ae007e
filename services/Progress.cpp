// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/Progress.h"

#include "base/Application.h"
#include "services/ProgressMinion.h"

#include <QApplication>
#include <QEventLoop>
#include <QThread>
#include <algorithm>

namespace
{

/// Between two passed values, and between two rounds of painting. A download reports thousands of times
/// a second; the event queue of the GUI thread must not fill up with that.
constexpr qint64 intervalMilliseconds = 10;

bool isDue(QElapsedTimer const& timer)
{
    return !timer.isValid() || timer.elapsed() >= intervalMilliseconds;
}

} // namespace

Progress::Progress(HProgressBar* totalBar, HProgressBar* itemBar)
    : minion(new ProgressMinion(totalBar, itemBar)),
      sameThread(application->thread() == thread())
{
    qRegisterMetaType<Steps>("Steps");

    minion->moveToThread(application->thread());
    connect(this, &Progress::startTotalSig, minion, &ProgressMinion::startTotal);
    connect(this, &Progress::startItemSig, minion, &ProgressMinion::startItem);
    connect(this, &Progress::changeItemActsSig, minion, &ProgressMinion::changeItemActs);
    connect(this, &Progress::setItemValueSig, minion, &ProgressMinion::setItemValue);
    connect(this, &Progress::setItemNoteSig, minion, &ProgressMinion::setItemNote);
    connect(this, &Progress::endItemActsSig, minion, &ProgressMinion::endItemActs);
    connect(this, &Progress::setTotalValueSig, minion, &ProgressMinion::setTotalValue);
    connect(this, &Progress::resetSig, minion, &ProgressMinion::reset);
    reset();
}

Progress::~Progress()
{
    reset();
    minion->deleteLater();
}

void Progress::startTotal(QString const& name, Steps max)
{
    totalValue = 0;
    totalMax = max;
    if (sameThread) {
        guiTimer.start();
    }
    Q_EMIT startTotalSig(name, totalMax);
    updateGui();
}

void Progress::startItem(QString const& name, Steps weight, Steps max)
{
    totalValue = itemEnd;
    itemStart = itemEnd;
    itemEnd = itemStart + weight;
    itemValue = 0;
    itemMax = max;
    itemTimer.start();
    Q_EMIT startItemSig(name, totalValue, itemMax);
    updateGui();
}

void Progress::setupItemActs(Steps steps, Steps count)
{
    actsSteps = steps;
    actsEnd = itemEnd + steps;
    actsCount = count;
    actsAt = 0;
}

void Progress::changeItemActs(Steps count)
{
    actsCount = count;
    itemEnd = actsEnd - actsSteps + actsPosition(actsAt);
    totalValue = itemEnd;
    Q_EMIT changeItemActsSig(totalValue);
    updateGui();
}

void Progress::startItemAct(QString const& name, Steps max, Steps at)
{
    at = std::min(at, actsCount);
    // An act that lies before the last one gives a weight below zero. It wraps around, and so does the
    // sum that it goes into, which puts the item's end back by the difference.
    startItem(name, actsPosition(at) - actsPosition(actsAt), max);
    actsAt = at;
}

void Progress::setItemValue(Steps value)
{
    value = std::min(value, itemMax);
    if (!isDue(itemTimer) && (value != itemMax || itemValue == itemMax)) {
        return;
    }
    itemTimer.start();
    itemValue = value;
    totalValue = itemMax == 0 ? itemEnd : itemStart + value * (itemEnd - itemStart) / itemMax;
    Q_EMIT setItemValueSig(totalValue, value);
    updateGui();
}

void Progress::setItemNote(QString const& note)
{
    Q_EMIT setItemNoteSig(note);
    updateGui();
}

void Progress::endItemActs()
{
    totalValue = actsEnd;
    itemEnd = actsEnd;
    itemStart = actsEnd;
    Q_EMIT endItemActsSig(totalValue);
    updateGui();
}

void Progress::setTotalValue(Steps value)
{
    value = std::min(value, totalMax);
    if (!isDue(itemTimer) && (value != totalMax || totalValue == totalMax)) {
        return;
    }
    itemTimer.start();
    totalValue = value;
    Q_EMIT setTotalValueSig(totalValue);
    updateGui();
}

void Progress::reset()
{
    totalMax = 1;
    itemStart = 0;
    itemEnd = 0;
    itemMax = 1;
    Q_EMIT resetSig();
    updateGui();
}

/// How far into the stretch of the acts act `at` ends.
Steps Progress::actsPosition(Steps at) const
{
    return actsCount == 0 ? actsSteps : actsSteps * at / actsCount;
}

void Progress::updateGui()
{
    if (!sameThread || !isDue(guiTimer)) {
        return;
    }
    QEventLoop().processEvents(QEventLoop::ExcludeUserInputEvents);
    guiTimer.start();
}
