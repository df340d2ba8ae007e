// SPDX-License-Identifier: GPL-2.0-or-later
// The log window while the log grows, and with a long log.
#include "LogWindowTest.h"
#include "Worker.h"
#include "tests/Eventually.h"

#include <QDeadlineTimer>
#include <QScrollBar>
#include <QThread>
#include <QTimer>

class TestLogWindowGrowth final : public LogWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void showsTheEndFirst();
    void staysWhereTheUserHasScrolled();
    void newLinesArePaintedWhileTheGuiThreadIsBusy();
    void floodFromAWorkerArrivesCompletely();
    void everyNewLineKeepsTheEndInSight();
    void signalsOnTheirWayDontFillAHiddenWindow();
    void longLogIsRenderedInShares();
    void longLogIsRenderedAnewInShares();
    void floodLeavesTheEventLoopItsTurns();
    void hidingAndDeletingInTheMiddleIsSafe();

private:
    void fillLog(int count);
    [[nodiscard]] int turnsUntilComplete(int count);
};

void TestLogWindowGrowth::fillLog(int count)
{
    for (int line = 0; line < count; ++line) {
        log.append({line % 50 == 0 ? Log::Action : Log::Info, 0, QStringLiteral("Line %1").arg(line)});
    }
}

/// All lines are there, in order; how many turns the event loop had until then.
int TestLogWindowGrowth::turnsUntilComplete(int count)
{
    int turns = 0;
    QTimer heart;
    heart.setInterval(0);
    connect(&heart, &QTimer::timeout, this, [&turns] { ++turns; });
    heart.start();
    QDeadlineTimer const deadline(60'000);
    auto const complete = [this, count] {
        return textEdit->document()->lastBlock().text() == QStringLiteral("Line %1").arg(count - 1);
    };
    while (!complete() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QStringList const shown = lines();
    for (int line = 0; line < shown.size(); ++line) {
        if (shown.at(line) != QStringLiteral("Line %1").arg(line)) {
            return -1;
        }
    }
    return shown.size() == count ? turns : -1;
}

void TestLogWindowGrowth::showsTheEndFirst()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(50));
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindowGrowth::staysWhereTheUserHasScrolled()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QScrollBar* const bar = textEdit->verticalScrollBar();
    bar->setValue(10);
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(50));
    QCOMPARE(bar->value(), 10);
}

void TestLogWindowGrowth::newLinesArePaintedWhileTheGuiThreadIsBusy()
{
    window->show();
    bool served = false;
    QMetaObject::invokeMethod(
        this, [&served] { served = true; }, Qt::QueuedConnection);
    log.emitAppended();
    QVERIFY(!served);
    log.add(Log::Info, 0, QStringLiteral("new"));
    QVERIFY(served);
}

void TestLogWindowGrowth::floodFromAWorkerArrivesCompletely()
{
    constexpr int count = 3000;
    window->show();
    runOnWorker([this] {
        for (int line = 0; line < count; ++line) {
            log.add(Log::Output, 0, QString::number(line));
        }
    });
    EVENTUALLY_COMPARE(textEdit->document()->blockCount(), count);
    QStringList const shown = lines();
    QCOMPARE(shown.size(), count);
    for (int line = 0; line < count; ++line) {
        QCOMPARE(shown.at(line), QString::number(line));
    }
}

void TestLogWindowGrowth::everyNewLineKeepsTheEndInSight()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    int const before = bar->maximum();
    for (int line = 0; line < 50; ++line) {
        log.add(Log::Info, 0, QString::number(line));
    }
    EVENTUALLY_VERIFY(bar->maximum() > before + 49 * textEdit->fontMetrics().height());
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindowGrowth::signalsOnTheirWayDontFillAHiddenWindow()
{
    window->show();
    std::unique_ptr<QThread> const worker(
        QThread::create([this] { log.add(Log::Info, 0, QStringLiteral("one")); }));
    worker->start();
    worker->wait();
    window->hide();
    QCoreApplication::processEvents();
    QVERIFY(lines().isEmpty());
    window->show();
    QCOMPARE(lines(), QStringList({"one"}));
}

void TestLogWindowGrowth::longLogIsRenderedInShares()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(textEdit->document()->blockCount() < count);
    QVERIFY(turnsUntilComplete(count) > 3);
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    EVENTUALLY_VERIFY(bar->maximum() > count * textEdit->fontMetrics().height() * 9 / 10);
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindowGrowth::longLogIsRenderedAnewInShares()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(turnsUntilComplete(count) >= 0);
    levelBox->setValue(3);
    QVERIFY(textEdit->document()->blockCount() < count);
    QVERIFY(turnsUntilComplete(count) > 3);
    // A change in the middle starts over.
    levelBox->setValue(4);
    levelBox->setValue(5);
    QVERIFY(turnsUntilComplete(count) > 3);
}

void TestLogWindowGrowth::floodLeavesTheEventLoopItsTurns()
{
    constexpr int count = 30'000;
    window->show();
    std::unique_ptr<QThread> const worker(QThread::create([this] {
        for (int line = 0; line < count; ++line) {
            log.add(Log::Output, 0, QStringLiteral("Line %1").arg(line));
        }
    }));
    worker->start();
    // All signals are delivered in one turn; what they call for must not be done in that turn.
    worker->wait();
    int const turns = turnsUntilComplete(count);
    QVERIFY2(turns > 3, qPrintable(QString::number(turns)));
}

void TestLogWindowGrowth::hidingAndDeletingInTheMiddleIsSafe()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(textEdit->document()->blockCount() < count);
    window->hide();
    QCoreApplication::processEvents();
    QVERIFY(lines().isEmpty());
    window->show();
    QVERIFY(turnsUntilComplete(count) >= 0);
    levelBox->setValue(3);
    QVERIFY(textEdit->document()->blockCount() < count);
    window.reset();
    QCoreApplication::processEvents();
}

QTEST_MAIN(TestLogWindowGrowth)
#include "tst_logwindowgrowth.moc"
