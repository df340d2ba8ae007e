// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/TextEstimate.h"

#include <QTest>
#include <QTextLayout>
#include <cmath>

namespace
{

qreal laidOutWidth(QString const& text, QFont const& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    return layout.lineAt(0).naturalTextWidth();
}

} // namespace

class tst_TextEstimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boundsHoldTheLaidOutWidth_data();
    void boundsHoldTheLaidOutWidth();
    void textsBeyondAsciiHaveNoBounds();
    void digitsStandForEachOther_data();
    void digitsStandForEachOther();
    void foldsEachDigit();
};

void tst_TextEstimate::foldsEachDigit()
{
    QString folded(QStringLiteral("something longer than that"));
    TextEstimate::fold(QString::fromUtf8("a1.09é-²"), folded);
    QCOMPARE(folded, QString::fromUtf8("a0.00é-²"));
    TextEstimate::fold(QString(), folded);
    QCOMPARE(folded, QString());
}

void tst_TextEstimate::boundsHoldTheLaidOutWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("package") << QStringLiteral("kernel-headers");
    QTest::newRow("kerning") << QStringLiteral("AVAVAVAV To. To. WA");
    QTest::newRow("ligatures") << QStringLiteral("office baffle fjord");
    QTest::newRow("long") << QStringLiteral("1.2.3-rc4~git ").repeated(50);
}

void tst_TextEstimate::boundsHoldTheLaidOutWidth()
{
    QFETCH(QString, text);
    for (bool const italic : {false, true}) {
        QFont font(QStringLiteral("DejaVu Serif"), 15);
        font.setItalic(italic);

        TextEstimate::Bounds const bounds = TextEstimate(font).bounds(text);

        QVERIFY(bounds.least <= laidOutWidth(text, font));
        QVERIFY(bounds.most >= laidOutWidth(text, font));
    }
}

void tst_TextEstimate::textsBeyondAsciiHaveNoBounds()
{
    TextEstimate const estimate((QFont()));
    for (QString const& text :
         {QString::fromUtf8("na\u00efve"), QStringLiteral("a\tb"), QStringLiteral("a\nb")}) {
        QCOMPARE(estimate.bounds(text).least, 0.0);
        QVERIFY(std::isinf(estimate.bounds(text).most));
    }
}

void tst_TextEstimate::digitsStandForEachOther_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("representative");
    QTest::newRow("number") << QStringLiteral("1.94-7") << QStringLiteral("0.00-0");
    QTest::newRow("no digits") << QStringLiteral("bash") << QStringLiteral("bash");
    QTest::newRow("unknown neighbour") << QString::fromUtf8("12\u00e9") << QString::fromUtf8("12\u00e9");
    QTest::newRow("empty") << QString() << QString();
}

void tst_TextEstimate::digitsStandForEachOther()
{
    QFETCH(QString, text);
    TextEstimate estimate(QFont(QStringLiteral("DejaVu Sans"), 11));

    QTEST(estimate.representative(text).toString(), "representative");
}

QTEST_MAIN(tst_TextEstimate)
#include "tst_TextEstimate.moc"
