// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/TextLabel.h"

#include <QElapsedTimer>
#include <QPixmap>
#include <QTest>

namespace
{

QString manyLines(int count)
{
    QString text;
    for (int line = 0; line < count; ++line) {
        text += QStringLiteral("\tUpdate: package-%1 1.0-%1 (x86_64) [updates]\n").arg(line);
    }
    return text;
}

} // namespace

/// QLabel is what the label is held against.
class TestTextLabel final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAsAQLabel_data();
    void looksAsAQLabel();
    void followsItsFont();
    void paintsOnlyWhatIsInSight();
};

void TestTextLabel::looksAsAQLabel_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("a line") << QStringLiteral("a line");
    QTest::newRow("lines") << manyLines(300).chopped(1);
    QTest::newRow("lines that end") << manyLines(300);
    QTest::newRow("empty lines") << QStringLiteral("\n\none\n\n\ntwo\n\n\n");
    QTest::newRow("mark-up") << QStringLiteral("<b>bold</b><br>second\nthird");
    QTest::newRow("tag behind the first line") << QStringLiteral("one\n<b>two</b>");
    QTest::newRow("ampersand") << QStringLiteral("one & two\n&three");
    QTest::newRow("another script") << QStringLiteral("one\n\u4e2d\u6587 \u0e17\u0e35\u0e48\nthree\n") +
                                           manyLines(50);
    QTest::newRow("from right to left") << QStringLiteral("\u05d0\u05d1\u05d2 1\n\u05d3\nlatin\n");
    QTest::newRow("long line") << QString(5000, u'x') + QStringLiteral("\nshort");
}

void TestTextLabel::looksAsAQLabel()
{
    QFETCH(QString, text);
    TextLabel label(text, nullptr);
    QLabel expected(text);
    QCOMPARE(label.text(), text);
    QCOMPARE(label.sizeHint(), expected.sizeHint());
    QCOMPARE(label.minimumSizeHint(), expected.minimumSizeHint());
    QSize const wanted = expected.sizeHint();
    for (QSize const& size : {wanted, wanted + QSize(31, 17)}) {
        label.resize(size);
        expected.resize(size);
        for (QRect const& part :
             {label.rect(), QRect(0, 0, size.width(), 40), QRect(0, size.height() / 2, 80, 33),
              QRect(5, size.height() / 3 + 1, 100, 1), QRect(0, size.height() - 50, size.width(), 50)}) {
            QRect const seen = part & label.rect();
            if (!seen.isEmpty()) {
                QCOMPARE(label.grab(seen).toImage(), expected.grab(seen).toImage());
            }
        }
    }
}

void TestTextLabel::followsItsFont()
{
    TextLabel label(manyLines(20), nullptr);
    QLabel expected(label.text());
    QCOMPARE(label.sizeHint(), expected.sizeHint());
    QFont larger = label.font();
    larger.setPointSize(larger.pointSize() * 2);
    label.setFont(larger);
    expected.setFont(larger);
    QCOMPARE(label.sizeHint(), expected.sizeHint());
    label.adjustSize();
    expected.adjustSize();
    QCOMPARE(label.grab().toImage(), expected.grab().toImage());
}

void TestTextLabel::paintsOnlyWhatIsInSight()
{
    auto const nanosecondsFor = [](int lines) {
        TextLabel label(manyLines(lines), nullptr);
        label.resize(label.sizeHint());
        QRect const sight(0, label.height() / 2, label.width(), 100);
        label.grab(sight);
        QElapsedTimer timer;
        timer.start();
        for (int turn = 0; turn < 20; ++turn) {
            label.grab(sight);
        }
        return timer.nsecsElapsed();
    };
    // A hundred times the lines; a busy machine gets its share of doubt.
    QVERIFY(nanosecondsFor(10'000) < 20 * nanosecondsFor(100));
}

QTEST_MAIN(TestTextLabel)
#include "tst_textlabel.moc"
