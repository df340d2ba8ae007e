// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/Fonts.h"

#include <QFont>
#include <QTest>

class tst_Fonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void headerIsBoldProportionalAndHalfAsLargeAgain()
    {
        QFont points(QStringLiteral("Courier"), 11);
        points.setFixedPitch(true);

        QFont const header = Fonts::makeHeader(points);

        QVERIFY(header.bold());
        QVERIFY(!header.fixedPitch());
        QCOMPARE(header.family(), QStringLiteral("Helvetica"));
        QCOMPARE(header.pointSize(), 16);
        QCOMPARE(points.pointSize(), 11);
        QVERIFY(!points.bold());
    }

    void headerKeepsSizesInPixels()
    {
        QFont pixels;
        pixels.setPixelSize(15);

        QFont const header = Fonts::makeHeader(pixels);

        QCOMPARE(header.pixelSize(), 22);
        QCOMPARE(header.pointSize(), -1);
    }

    void fixedChangesPitchAndFamilyOnly()
    {
        QFont const font(QStringLiteral("Helvetica"), 11);

        QFont const fixed = Fonts::makeFixed(font);

        QVERIFY(fixed.fixedPitch());
        QCOMPARE(fixed.family(), QStringLiteral("Courier"));
        QCOMPARE(fixed.pointSize(), 11);
        QVERIFY(!fixed.bold());
    }

    void boldChangesTheWeightOnly()
    {
        QFont const font(QStringLiteral("Helvetica"), 11);

        QFont const bold = Fonts::makeBold(font);

        QVERIFY(bold.bold());
        QCOMPARE(bold.family(), QStringLiteral("Helvetica"));
        QCOMPARE(bold.pointSize(), 11);
    }
};

QTEST_MAIN(tst_Fonts)
#include "tst_Fonts.moc"
