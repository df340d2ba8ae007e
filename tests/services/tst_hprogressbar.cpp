// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/HProgressBar.h"

#include <QTest>

class TestHProgressBar final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        bar.reset();
        bar.setRange(0, 200);
    }

    void withoutActivityShowsThePercentage()
    {
        bar.setValue(50);
        QCOMPARE(bar.text(), QStringLiteral("25%"));
    }

    void activityStandsInFrontOfThePercentage()
    {
        bar.setValue(50);
        bar.setActivity(QStringLiteral("Downloading"));
        QCOMPARE(bar.text(), QStringLiteral("Downloading (25%)"));
    }

    void activityIsTheAccessibleDescription()
    {
        bar.setActivity(QStringLiteral("Downloading"));
        QCOMPARE(bar.accessibleDescription(), QStringLiteral("Downloading"));
        bar.reset();
        QCOMPARE(bar.accessibleDescription(), QString());
    }

    void activityWithAPlaceMarkerShowsAsItIs()
    {
        bar.setValue(50);
        bar.setActivity(QStringLiteral("50%2 %1"));
        QCOMPARE(bar.text(), QStringLiteral("50%2 %1 (25%)"));
    }

    void barThatIsNotCountingShowsTheActivityAlone()
    {
        bar.setActivity(QStringLiteral("Waiting"));
        QCOMPARE(bar.text(), QStringLiteral("Waiting"));
    }

    void noteStandsBehindUntilAReset()
    {
        bar.setValue(50);
        bar.setActivity(QStringLiteral("Downloading"));
        bar.setNote(QStringLiteral("1.0Mb/s, 3 s left"));
        QCOMPARE(bar.text(), QStringLiteral("Downloading (25%), 1.0Mb/s, 3 s left"));
        QCOMPARE(bar.accessibleDescription(), QStringLiteral("Downloading"));
        bar.reset();
        QCOMPARE(bar.text(), QString());
    }

    void resetLeavesOnlyThePercentage()
    {
        bar.setActivity(QStringLiteral("Downloading"));
        bar.setValue(50);
        bar.reset();
        QCOMPARE(bar.text(), QString());
        bar.setValue(50);
        QCOMPARE(bar.text(), QStringLiteral("25%"));
    }

private:
    HProgressBar bar;
};

QTEST_MAIN(TestHProgressBar)
#include "tst_hprogressbar.moc"
