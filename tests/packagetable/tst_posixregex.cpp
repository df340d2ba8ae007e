// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PosixRegex.h"

#include <QTest>

class TestPosixRegex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesEverythingBeforeTheFirstPattern()
    {
        PosixRegex const regex;
        QVERIFY(regex.matches("anything"));
        QVERIFY(regex.matches(""));
    }

    void matches_data()
    {
        QTest::addColumn<QByteArray>("pattern");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("expected");
        auto const row = [](char const* name, char const* pattern, char const* text, bool expected) {
            QTest::newRow(name) << QByteArray(pattern) << QByteArray(text) << expected;
        };
        row("inside the text", "bar", "foobarbaz", true);
        row("elsewhere", "qux", "foobarbaz", false);
        row("anchored at the start", "^bar", "foobar", false);
        row("anchored at the end", "bar$", "foobar", true);
        row("alternatives are extended syntax", "^(foo|bar)$", "bar", true);
        row("repetition counts are extended syntax", "^o{2}$", "oo", true);
        row("case matters", "Foo", "foo", false);
        row("character classes", "^[[:digit:]]+$", "2024", true);
        row("no perl escapes", "^\\d+$", "2024", false);
        row("letters beyond ASCII", "gr\xc3\xbc\xc3\x9f",
            "viele gr\xc3\xbc\xc3\x9f"
            "e",
            true);
        row("a dot beside such letters", "gr.\xc3\x9f", "gr\xc3\xbc\xc3\x9f", true);
        row("an empty pattern", "", "foo", true);
        row("an empty text", "foo", "", false);
    }

    void matches()
    {
        QFETCH(QByteArray const, pattern);
        QFETCH(QByteArray const, text);
        PosixRegex regex;
        QVERIFY(regex.compile(pattern));
        QTEST(regex.matches(text), "expected");
    }

    void patternsThatDoNotCompileMatchEverything()
    {
        for (char const* const pattern : {"(", "[a", "foo\\", "a{2,1}"}) {
            PosixRegex regex;
            QVERIFY2(!regex.compile(pattern), pattern);
            QVERIFY2(regex.matches("foo"), pattern);
            QVERIFY2(regex.matches(""), pattern);
        }
    }

    void aNewPatternTakesThePlaceOfTheOld()
    {
        PosixRegex regex;
        QVERIFY(regex.compile("foo"));
        QVERIFY(regex.compile("bar"));
        QVERIFY(!regex.matches("foo"));
        QVERIFY(!regex.compile("("));
        QVERIFY(regex.matches("foo"));
        QVERIFY(regex.compile("bar"));
        QVERIFY(!regex.matches("foo"));
        QVERIFY(regex.matches("bar"));
    }
};

QTEST_GUILESS_MAIN(TestPosixRegex)
#include "tst_posixregex.moc"
