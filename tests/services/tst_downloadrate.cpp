// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/DownloadRate.h"

#include <QTest>
#include <limits>

class TestDownloadRate final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstSecondTellsNothing();
    void rateIsThatOfTheLastSeconds();
    void filesCountOnFromOneAnother();
    void standstillHasNoTimeLeft();
    void timeLeftIsOfAllThatIsToCome();
    void fileThatBeginsAnewGivesNoNegativeRate();
    void sizesThatNobodyHasDoNoHarm();
};

void TestDownloadRate::sizesThatNobodyHasDoNoHarm()
{
    constexpr long long huge = std::numeric_limits<long long>::max();
    DownloadRate rate;
    for (int file = 0; file < 20; ++file) {
        rate.startFile(huge, file * 1000);
        rate.update(file % 2 ? huge : -huge, file * 1000 + 500);
    }
    QVERIFY(rate.bytesPerSecond().value() >= 0);
    QVERIFY(rate.secondsLeft(huge).value_or(0) >= 0);
}

void TestDownloadRate::firstSecondTellsNothing()
{
    DownloadRate rate;
    QVERIFY(!rate.bytesPerSecond());
    rate.startFile(10000, 100);
    rate.update(5000, 1000);
    QVERIFY(!rate.bytesPerSecond());
    QVERIFY(!rate.secondsLeft(10000));
    rate.update(6000, 1100);
    QCOMPARE(rate.bytesPerSecond().value(), 6000.0);
}

void TestDownloadRate::rateIsThatOfTheLastSeconds()
{
    DownloadRate rate;
    rate.startFile(1000000, 0);
    for (int second = 1; second <= 20; ++second) {
        rate.update(second * 100, second * 1000);
    }
    QCOMPARE(rate.bytesPerSecond().value(), 100.0);
    for (int second = 21; second <= 26; ++second) {
        rate.update(2000 + (second - 20) * 5000, second * 1000);
    }
    QCOMPARE(rate.bytesPerSecond().value(), 5000.0);
}

void TestDownloadRate::filesCountOnFromOneAnother()
{
    DownloadRate rate;
    rate.startFile(1000, 0);
    rate.update(900, 500);
    // The last bytes of a file needn't be told.
    rate.startFile(3000, 1000);
    rate.update(3000, 2000);
    QCOMPARE(rate.bytesPerSecond().value(), 2000.0);
}

void TestDownloadRate::standstillHasNoTimeLeft()
{
    DownloadRate rate;
    rate.startFile(1000, 0);
    rate.update(500, 1000);
    for (int second = 2; second < 10; ++second) {
        rate.update(500, second * 1000);
    }
    QCOMPARE(rate.bytesPerSecond().value(), 0.0);
    QVERIFY(!rate.secondsLeft(1000));
}

void TestDownloadRate::timeLeftIsOfAllThatIsToCome()
{
    DownloadRate rate;
    rate.startFile(1000, 0);
    rate.startFile(1000, 1000);
    rate.update(500, 1500);
    QCOMPARE(rate.bytesPerSecond().value(), 1000.0);
    QCOMPARE(rate.secondsLeft(4000).value(), 3);
    QVERIFY(!rate.secondsLeft(1500));
    // Nobody has said how much it is.
    QVERIFY(!rate.secondsLeft(0));
}

void TestDownloadRate::fileThatBeginsAnewGivesNoNegativeRate()
{
    DownloadRate rate;
    rate.startFile(100000, 0);
    rate.update(90000, 2000);
    rate.update(90000, 7000);
    rate.update(0, 7500);
    QCOMPARE(rate.bytesPerSecond().value(), 0.0);
}

QTEST_GUILESS_MAIN(TestDownloadRate)
#include "tst_downloadrate.moc"
