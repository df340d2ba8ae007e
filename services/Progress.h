// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Steps.h"

#include <QElapsedTimer>
#include <QObject>

class HProgressBar;
class ProgressMinion;

/// The progress of one job: a total made of items that follow each other, each with a weight out of the
/// total and a range of its own. A stretch of the total may be divided into equal acts, whose number may
/// change while they run.
///
/// Made at the start of a job, on the thread that does the job, and used on that thread alone; deleted at
/// its end, which empties and disables both bars. The bars themselves are only touched by a
/// ProgressMinion on the GUI thread. On the GUI thread itself the same calls work directly, and keep the
/// window painted meanwhile.
///
/// Order of calls: startTotal, any run of startItem, setupItemActs, startItemAct, changeItemActs and
/// setItemValue, then endItemActs. A further startTotal may follow.
class Progress final : public QObject
{
    Q_OBJECT

public:
    /// The bars have to outlive all queued signals of this object, that is: belong to the main window.
    Progress(HProgressBar* totalBar, HProgressBar* itemBar);
    ~Progress() override;

    /// Starts a job, or a further part of one, of `max` steps.
    void startTotal(QString const& name, Steps max);

    /// Starts the next item, directly behind the present one whether or not that ran to its end. It
    /// advances the total by `weight` steps while its own value runs from 0 to `max`.
    void startItem(QString const& name, Steps weight, Steps max);

    /// Declares the next `steps` steps behind the item in progress to be shared by `count` acts.
    void setupItemActs(Steps steps, Steps count);

    /// The acts have turned out to be `count`: moves the position to where it belongs with that number,
    /// which may be further back.
    void changeItemActs(Steps count);

    /// Starts the item that ends where act `at` ends, counted from 1. Acts that are jumped over go into
    /// its weight, a repeated `at` gives an item of no weight, a lower one goes back.
    void startItemAct(QString const& name, Steps max, Steps at);

    /// The item has come to `value`. Passes at most one value in 10 milliseconds, plus the item's last.
    void setItemValue(Steps value);

    /// Words about the item beside its name and value; the next item has none.
    void setItemNote(QString const& note);

    /// Ends the acts: the total stands at the end of their stretch, whatever they did.
    void endItemActs();

    /// Sets the total directly, with the same limit as setItemValue.
    void setTotalValue(Steps value);

    /// Forgets the job: both bars empty and disabled.
    void reset();

Q_SIGNALS:
    void startTotalSig(QString const& name, Steps max);
    void startItemSig(QString const& name, Steps total, Steps max);
    void changeItemActsSig(Steps total);
    void setItemValueSig(Steps total, Steps value);
    void setItemNoteSig(QString const& note);
    void endItemActsSig(Steps total);
    void setTotalValueSig(Steps total);
    void resetSig();

private:
    [[nodiscard]] Steps actsPosition(Steps at) const;
    void updateGui();

    ProgressMinion* minion;
    bool sameThread;
    QElapsedTimer itemTimer;
    QElapsedTimer guiTimer;
    Steps totalValue = 0;
    Steps totalMax = 1;
    Steps itemStart = 0;
    Steps itemEnd = 0;
    Steps itemValue = 0;
    Steps itemMax = 1;
    Steps actsSteps = 0;
    Steps actsEnd = 0;
    Steps actsCount = 0;
    Steps actsAt = 0;
};
