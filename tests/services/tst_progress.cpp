// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/HProgressBar.h"
#include "services/Progress.h"
#include "services/ProgressMinion.h"
#include "services/ProgressUser.h"
#include "tests/Eventually.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>
#include <atomic>
#include <memory>

namespace
{

constexpr qint64 intervalMilliseconds = 10;

/// Runs `body` until one run of it took less time than the interval of the rate limit. False when the
/// machine is too busy for that.
template <typename Body>
bool withinOneInterval(Body body)
{
    for (int attempt = 0; attempt < 1000; ++attempt) {
        QElapsedTimer timer;
        timer.start();
        body();
        if (timer.nsecsElapsed() < intervalMilliseconds * 1'000'000) {
            return true;
        }
    }
    return false;
}

Steps stepsAt(QSignalSpy const& spy, int argument)
{
    return spy.constLast().at(argument).toULongLong();
}

} // namespace

class TestProgress final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { application = qobject_cast<QApplication*>(QCoreApplication::instance()); }
    void init();
    void cleanup();

    void stepsTravelInQueuedSignals();
    void newProgressEmptiesTheBars();
    void startTotalSetsUpTheTotalBarAndPutsTheItemBarOut();
    void startItemSetsUpTheItemBar();
    void valueMovesBothBars();
    void valueAboveTheRangeCountsAsTheEnd();
    void endOfAnItemPassesOnce();
    void valueWithinTheIntervalIsDropped();
    void valueBehindTheIntervalPasses();
    void itemWithoutRangeStandsAtItsEnd();
    void itemOfNoWeightLeavesTheTotal();
    void unfinishedItemIsMadeUpFor();
    void largeValuesDoNotLosePrecision();
    void totalValueIsCappedAndLimited();

    void actRunsFromTheLastActToItself();
    void actBeyondTheCountIsCapped();
    void repeatedActWeighsNothing();
    void lowerActGoesBack();
    void actsBeginBehindTheItemInProgress();
    void growingCountMovesThePositionBack();
    void countOfZeroPutsThePositionAtTheEnd();
    void endOfActsStandsAtTheEndOfTheStretch();

    void minionCutsStepsTo32Bits();
    void rangeBeginsAtZeroBehindOneThatWasCutBelowIt();
    void everyOtherSlotMovesTheTotalBar();
    void jobThatEndsEarlyEmptiesTheBars();
    void guiThreadStaysPainted();
    void workerMovesTheBarsOnTheGuiThread();
    void workerDoesNotFloodTheGuiThread();
    void workersGuardEmptiesTheBars();
    void manyStepsPaintTheBarsOnce();

private:
    /// Drives the item to `value`, waiting for the interval to pass.
    bool passes(Steps value);
    Steps endOfItem();

    std::unique_ptr<HProgressBar> totalBar;
    std::unique_ptr<HProgressBar> itemBar;
    std::unique_ptr<Progress> progress;
};

void TestProgress::init()
{
    totalBar = std::make_unique<HProgressBar>();
    itemBar = std::make_unique<HProgressBar>();
    progress = std::make_unique<Progress>(totalBar.get(), itemBar.get());
}

void TestProgress::cleanup()
{
    progress.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

bool TestProgress::passes(Steps value)
{
    QSignalSpy const spy(progress.get(), &Progress::setItemValueSig);
    QDeadlineTimer const deadline(5000);
    while (spy.isEmpty() && !deadline.hasExpired()) {
        progress->setItemValue(value);
    }
    return spy.count() == 1;
}

/// Where the present item ends in the total: an item that follows starts there.
Steps TestProgress::endOfItem()
{
    QSignalSpy const spy(progress.get(), &Progress::startItemSig);
    progress->startItem(QString(), 0, 1);
    return stepsAt(spy, 1);
}

void TestProgress::stepsTravelInQueuedSignals()
{
    QVERIFY(QMetaType::fromName("Steps").isValid());
    QCOMPARE(QMetaType::fromName("Steps").sizeOf(), 8);
}

void TestProgress::newProgressEmptiesTheBars()
{
    for (HProgressBar const* const bar : {totalBar.get(), itemBar.get()}) {
        QCOMPARE(bar->minimum(), 0);
        QCOMPARE(bar->maximum(), 1);
        QCOMPARE(bar->text(), QString());
        QVERIFY(!bar->isEnabled());
    }
}

void TestProgress::startTotalSetsUpTheTotalBarAndPutsTheItemBarOut()
{
    QSignalSpy const spy(progress.get(), &Progress::startTotalSig);
    progress->startItem(QStringLiteral("Old item"), 1, 1);
    progress->startTotal(QStringLiteral("Collecting"), 500);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.constLast().at(0).toString(), QStringLiteral("Collecting"));
    QCOMPARE(stepsAt(spy, 1), Steps(500));
    QCOMPARE(totalBar->text(), QStringLiteral("Collecting (0%)"));
    QCOMPARE(totalBar->maximum(), 500);
    QVERIFY(totalBar->isEnabled());
    QCOMPARE(itemBar->text(), QString());
    QVERIFY(!itemBar->isEnabled());
}

void TestProgress::startItemSetsUpTheItemBar()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("Installed"), 100, 7);
    QCOMPARE(itemBar->text(), QStringLiteral("Installed (0%)"));
    QCOMPARE(itemBar->maximum(), 7);
    QCOMPARE(itemBar->value(), 0);
    QVERIFY(itemBar->isEnabled());
    QCOMPARE(totalBar->value(), 0);
}

void TestProgress::valueMovesBothBars()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("First"), 100, 1);
    progress->startItem(QStringLiteral("Second"), 200, 4);
    QVERIFY(passes(3));
    QCOMPARE(itemBar->value(), 3);
    QCOMPARE(totalBar->value(), 100 + 150);
}

void TestProgress::valueAboveTheRangeCountsAsTheEnd()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("Installed"), 100, 7);
    QSignalSpy const spy(progress.get(), &Progress::setItemValueSig);
    progress->setItemValue(8);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(stepsAt(spy, 0), Steps(100));
    QCOMPARE(stepsAt(spy, 1), Steps(7));
}

void TestProgress::endOfAnItemPassesOnce()
{
    QSignalSpy spy(progress.get(), &Progress::setItemValueSig);
    QVERIFY(withinOneInterval([&] {
        spy.clear();
        progress->startItem(QStringLiteral("Installed"), 100, 7);
        progress->setItemValue(7);
        progress->setItemValue(7);
    }));
    QCOMPARE(spy.count(), 1);
}

void TestProgress::valueWithinTheIntervalIsDropped()
{
    QSignalSpy spy(progress.get(), &Progress::setItemValueSig);
    int dropped = -1;
    QVERIFY(withinOneInterval([&] {
        progress->startItem(QStringLiteral("Installed"), 100, 7);
        spy.clear();
        progress->setItemValue(3);
        dropped = int(spy.count());
        progress->setItemValue(7);
    }));
    QCOMPARE(dropped, 0);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(stepsAt(spy, 1), Steps(7));
}

void TestProgress::valueBehindTheIntervalPasses()
{
    progress->startItem(QStringLiteral("Installed"), 100, 7);
    QVERIFY(passes(3));
    QVERIFY(passes(4));
    QCOMPARE(itemBar->value(), 4);
}

void TestProgress::itemWithoutRangeStandsAtItsEnd()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("Installed"), 100, 0);
    QSignalSpy const spy(progress.get(), &Progress::setItemValueSig);
    QVERIFY(passes(5));
    QCOMPARE(stepsAt(spy, 0), Steps(100));
    QCOMPARE(stepsAt(spy, 1), Steps(0));
}

void TestProgress::itemOfNoWeightLeavesTheTotal()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("First"), 100, 5);
    progress->startItem(QStringLiteral("Weightless"), 0, 9);
    QCOMPARE(totalBar->value(), 100);
    QCOMPARE(itemBar->text(), QStringLiteral("Weightless (0%)"));
    QCOMPARE(itemBar->maximum(), 9);
    progress->setItemValue(9);
    QCOMPARE(totalBar->value(), 100);
    QCOMPARE(itemBar->value(), 9);
}

void TestProgress::unfinishedItemIsMadeUpFor()
{
    progress->startTotal(QStringLiteral("Collecting"), 500);
    progress->startItem(QStringLiteral("First"), 100, 5);
    QVERIFY(passes(2));
    QCOMPARE(totalBar->value(), 40);
    progress->startItem(QStringLiteral("Second"), 100, 5);
    QCOMPARE(totalBar->value(), 100);
}

void TestProgress::largeValuesDoNotLosePrecision()
{
    Steps const bytes = 3'000'000'000'000;
    progress->startTotal(QStringLiteral("Download"), 10000);
    progress->startItem(QStringLiteral("Huge"), 10000, bytes);
    QSignalSpy const spy(progress.get(), &Progress::setItemValueSig);
    QVERIFY(passes(bytes / 4));
    QCOMPARE(stepsAt(spy, 0), Steps(2500));
    QCOMPARE(stepsAt(spy, 1), bytes / 4);
}

void TestProgress::totalValueIsCappedAndLimited()
{
    QSignalSpy spy(progress.get(), &Progress::setTotalValueSig);
    QVERIFY(withinOneInterval([&] {
        progress->startTotal(QStringLiteral("Collecting"), 500);
        progress->startItem(QStringLiteral("Item"), 0, 1);
        spy.clear();
        progress->setTotalValue(20);
        progress->setTotalValue(600);
        progress->setTotalValue(500);
    }));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(stepsAt(spy, 0), Steps(500));
    QCOMPARE(totalBar->value(), 500);
}

void TestProgress::actRunsFromTheLastActToItself()
{
    progress->startTotal(QStringLiteral("Repositories"), 20000);
    progress->startItem(QStringLiteral("Before"), 1000, 1);
    progress->setupItemActs(14000, 10);
    QSignalSpy const started(progress.get(), &Progress::startItemSig);
    QSignalSpy const moved(progress.get(), &Progress::setItemValueSig);
    progress->startItemAct(QStringLiteral("Acts 1 to 5"), 1, 5);
    QCOMPARE(stepsAt(started, 1), Steps(1000));
    progress->setItemValue(1);
    QCOMPARE(stepsAt(moved, 0), Steps(1000 + 7000));
    progress->startItemAct(QStringLiteral("Act 6"), 1, 6);
    progress->setItemValue(1);
    QCOMPARE(stepsAt(moved, 0), Steps(1000 + 8400));
}

void TestProgress::actBeyondTheCountIsCapped()
{
    progress->setupItemActs(100, 4);
    progress->startItemAct(QStringLiteral("Act"), 1, 9);
    QSignalSpy const spy(progress.get(), &Progress::changeItemActsSig);
    progress->changeItemActs(8);
    QCOMPARE(stepsAt(spy, 0), Steps(50));
}

void TestProgress::repeatedActWeighsNothing()
{
    progress->setupItemActs(100, 4);
    progress->startItemAct(QStringLiteral("Act"), 1, 2);
    progress->startItemAct(QStringLiteral("The same act"), 1, 2);
    QCOMPARE(endOfItem(), Steps(50));
}

void TestProgress::lowerActGoesBack()
{
    progress->startItem(QStringLiteral("Before"), 1000, 1);
    progress->setupItemActs(100, 4);
    progress->startItemAct(QStringLiteral("Act"), 1, 3);
    progress->startItemAct(QStringLiteral("Earlier act"), 1, 1);
    QCOMPARE(endOfItem(), Steps(1025));
}

void TestProgress::actsBeginBehindTheItemInProgress()
{
    progress->startItem(QStringLiteral("Before"), 1000, 2);
    progress->setupItemActs(100, 4);
    QSignalSpy const spy(progress.get(), &Progress::setItemValueSig);
    progress->setItemValue(2);
    QCOMPARE(stepsAt(spy, 0), Steps(1000));
    progress->startItemAct(QStringLiteral("Act"), 1, 1);
    progress->setItemValue(1);
    QCOMPARE(stepsAt(spy, 0), Steps(1025));
}

void TestProgress::growingCountMovesThePositionBack()
{
    progress->startTotal(QStringLiteral("Repositories"), 20000);
    progress->startItem(QStringLiteral("Before"), 1000, 1);
    progress->setupItemActs(14000, 10);
    progress->startItemAct(QStringLiteral("Acts"), 1, 5);
    progress->setItemValue(1);
    QCOMPARE(totalBar->value(), 8000);
    progress->changeItemActs(20);
    QCOMPARE(totalBar->value(), 1000 + 3500);
    progress->startItemAct(QStringLiteral("Act"), 1, 6);
    QCOMPARE(endOfItem(), Steps(1000 + 4200));
}

void TestProgress::countOfZeroPutsThePositionAtTheEnd()
{
    progress->startItem(QStringLiteral("Before"), 1000, 1);
    progress->setupItemActs(14000, 10);
    progress->startItemAct(QStringLiteral("Acts"), 1, 5);
    QSignalSpy const changed(progress.get(), &Progress::changeItemActsSig);
    progress->changeItemActs(0);
    QCOMPARE(stepsAt(changed, 0), Steps(15000));
    progress->startItemAct(QStringLiteral("Act"), 1, 1);
    QCOMPARE(endOfItem(), Steps(15000));
}

void TestProgress::endOfActsStandsAtTheEndOfTheStretch()
{
    progress->startTotal(QStringLiteral("Repositories"), 20000);
    progress->startItem(QStringLiteral("Before"), 1000, 1);
    progress->setupItemActs(14000, 10);
    progress->startItemAct(QStringLiteral("Act"), 1, 3);
    progress->endItemActs();
    QCOMPARE(totalBar->value(), 15000);
    QCOMPARE(endOfItem(), Steps(15000));
}

void TestProgress::minionCutsStepsTo32Bits()
{
    ProgressMinion minion(totalBar.get(), itemBar.get());
    minion.startItem(QStringLiteral("Huge"), 0, (Steps(1) << 32) + 10);
    QCOMPARE(itemBar->maximum(), 10);
    minion.setItemValue(0, (Steps(5) << 32) + 4);
    QCOMPARE(itemBar->value(), 4);
}

void TestProgress::rangeBeginsAtZeroBehindOneThatWasCutBelowIt()
{
    ProgressMinion minion(totalBar.get(), itemBar.get());
    minion.startTotal(QStringLiteral("Huge"), Steps(3) << 30);
    minion.startItem(QStringLiteral("Huge"), 0, Steps(3) << 30);
    minion.startTotal(QStringLiteral("Usual"), 100);
    minion.startItem(QStringLiteral("Usual"), 0, 1000);
    for (HProgressBar const* const bar : {totalBar.get(), itemBar.get()}) {
        QCOMPARE(bar->minimum(), 0);
        QCOMPARE(bar->value(), 0);
    }
    QCOMPARE(totalBar->maximum(), 100);
    QCOMPARE(itemBar->maximum(), 1000);
}

void TestProgress::everyOtherSlotMovesTheTotalBar()
{
    ProgressMinion minion(totalBar.get(), itemBar.get());
    minion.startTotal(QStringLiteral("Total"), 100);
    minion.changeItemActs(10);
    QCOMPARE(totalBar->value(), 10);
    minion.endItemActs(20);
    QCOMPARE(totalBar->value(), 20);
    minion.setTotalValue(30);
    QCOMPARE(totalBar->value(), 30);
}

void TestProgress::jobThatEndsEarlyEmptiesTheBars()
{
    progress->startTotal(QStringLiteral("Repositories"), 20000);
    progress->setupItemActs(14000, 10);
    progress->startItemAct(QStringLiteral("Act"), 10, 3);
    progress.reset();
    for (HProgressBar const* const bar : {totalBar.get(), itemBar.get()}) {
        QCOMPARE(bar->minimum(), 0);
        QCOMPARE(bar->maximum(), 1);
        QCOMPARE(bar->text(), QString());
        QVERIFY(!bar->isEnabled());
    }
}

void TestProgress::guiThreadStaysPainted()
{
    bool served = false;
    progress->startTotal(QStringLiteral("Busy"), 1000);
    QMetaObject::invokeMethod(
        this, [&served] { served = true; }, Qt::QueuedConnection);
    QDeadlineTimer const deadline(5000);
    while (!served && !deadline.hasExpired()) {
        progress->startItem(QStringLiteral("Step"), 0, 1);
    }
    QVERIFY(served);
}

void TestProgress::workerMovesTheBarsOnTheGuiThread()
{
    QString total;
    QString item;
    int totalAtEnd = -1;
    connect(totalBar.get(), &QProgressBar::valueChanged, this, [&](int value) {
        QCOMPARE(QThread::currentThread(), QCoreApplication::instance()->thread());
        if (value == 500) {
            total = totalBar->text();
            item = itemBar->text();
            totalAtEnd = value;
        }
    });
    runOnWorker([this] {
        Progress own(totalBar.get(), itemBar.get());
        own.startTotal(QStringLiteral("Job"), 1000);
        own.startItem(QStringLiteral("Item"), 500, 4);
        own.setItemValue(4);
    });
    QCOMPARE(totalAtEnd, 500);
    QCOMPARE(total, QStringLiteral("Job (50%)"));
    QCOMPARE(item, QStringLiteral("Item (0%)"));
    QCOMPARE(totalBar->text(), QString());
    QVERIFY(!totalBar->isEnabled());
}

void TestProgress::workerDoesNotFloodTheGuiThread()
{
    std::atomic<int> passed = 0;
    std::atomic<qint64> milliseconds = 0;
    runOnWorker([&] {
        Progress own(totalBar.get(), itemBar.get());
        connect(
            &own, &Progress::setItemValueSig, &own, [&passed] { ++passed; }, Qt::DirectConnection);
        QElapsedTimer timer;
        timer.start();
        own.startItem(QStringLiteral("Item"), 500, 200'000);
        for (Steps value = 1; value <= 200'000; ++value) {
            own.setItemValue(value);
        }
        milliseconds = timer.elapsed();
    });
    QVERIFY(passed >= 1);
    QVERIFY2(
        passed <= milliseconds / intervalMilliseconds + 1,
        qPrintable(QStringLiteral("%1 in %2 ms").arg(passed.load()).arg(milliseconds.load())));
}

void TestProgress::workersGuardEmptiesTheBars()
{
    Progress* member = nullptr;
    bool installed = false;
    bool onWorker = false;
    runOnWorker([&] {
        ProgressUser const user(member, totalBar.get(), itemBar.get());
        installed = member != nullptr;
        onWorker = member->thread() == QThread::currentThread();
        member->startTotal(QStringLiteral("Job"), 1000);
    });
    QVERIFY(installed);
    QVERIFY(onWorker);
    QVERIFY(!member);
    QCOMPARE(totalBar->text(), QString());
    QVERIFY(!totalBar->isEnabled());
}

void TestProgress::manyStepsPaintTheBarsOnce()
{
    struct PaintCounter final : QObject
    {
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int count = 0;
    };
    ProgressMinion minion(totalBar.get(), itemBar.get());
    for (HProgressBar* const bar : {totalBar.get(), itemBar.get()}) {
        bar->show();
        QVERIFY(QTest::qWaitForWindowExposed(bar));
    }
    QCoreApplication::processEvents();
    PaintCounter paints;
    totalBar->installEventFilter(&paints);
    itemBar->installEventFilter(&paints);
    minion.startTotal(QStringLiteral("Job"), 1000);
    for (Steps step = 1; step <= 100; ++step) {
        minion.startItem(QStringLiteral("Item %1").arg(step), step, 10);
        minion.setItemValue(step, 5);
    }
    minion.endItemActs(200);
    QCOMPARE(paints.count, 0);
    QCOMPARE(totalBar->value(), 200);
    QCOMPARE(itemBar->text(), QStringLiteral("Item 100 (50%)"));
    EVENTUALLY_COMPARE(paints.count, 2);
    minion.reset();
    QCOMPARE(paints.count, 2);
    EVENTUALLY_COMPARE(paints.count, 4);
}

QTEST_MAIN(TestProgress)
#include "tst_progress.moc"
