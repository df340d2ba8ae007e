// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PosixRegex.h"

#include <QRandomGenerator>
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

    // Texts without the letters that an expression needs are refused without regexec(3), and texts of ASCII
    // are met byte by byte where that is the same.
    void agreesWithTheSystemsMatcher()
    {
        QRandomGenerator random(20261121);
        QList<QByteArray> const parts{
            "a",     "ab",    "ba",    "\xc3\xa9",      "*",     "+",       "?",   ".", "^",   "$",
            "(",     ")",     "|",     "[ab]",          "{",     "}",       "{2}", "]", "\\.", "\\b",
            "[a-b]", "[^b-]", "[]-a]", "[[:alpha:]-z]", "[!-~]", "[[=a=]]", "-"};
        QList<QByteArray> const letters{"a", "b",  "\xc3\xa9", "\xc3\xa8", ".", "*",
                                        "{", "\n", " ",        "]",        "-", "B"};
        auto const joined = [&random](QList<QByteArray> const& from, int most) {
            QByteArray text;
            for (int left = random.bounded(most + 1); left > 0; --left) {
                text += from[random.bounded(int(from.size()))];
            }
            return text;
        };
        int compiled = 0;
        for (int round = 0; round < 20000; ++round) {
            QByteArray const pattern = joined(parts, 5);
            PosixRegex regex;
            regex_t plain;
            bool const compiles = regcomp(&plain, pattern.constData(), REG_EXTENDED | REG_NOSUB) == 0;
            QCOMPARE(regex.compile(pattern), compiles);
            for (int text = 0; compiles && text < 5; ++text) {
                QByteArray const tried = joined(letters, 6);
                bool const expected = regexec(&plain, tried.constData(), 0, nullptr, 0) == 0;
                QVERIFY2(regex.matches(tried) == expected, (pattern + " on " + tried).constData());
            }
            if (compiles) {
                ++compiled;
                regfree(&plain);
            }
        }
        QVERIFY(compiled > 5000);
    }

    // regexec(3) itself is asked for texts that aren't ASCII: the locale has letters like the sign of Kelvin.
    void agreesWithTheSystemsMatcherOnAnyCase()
    {
        QList<QByteArray> const patterns{"BASH", "bash", "b[A-C]sh", "^B.*h$", "gr\xc3\x9c\xc3\x9f",
                                         "k",    "a|B",  "sh+",      "K?x",    "\xe2\x84\xaa"};
        QList<QByteArray> const texts{
            "bash",
            "BASH",
            "Bash-completion",
            "gr\xc3\xbc\xc3\x9f",
            "\xe2\x84\xaa",
            "K",
            "x",
            "",
            "SH",
            "b",
            "\xc3\xa9"
            "BASH"};
        for (QByteArray const& pattern : patterns) {
            regex_t plain;
            QCOMPARE(regcomp(&plain, pattern.constData(), REG_EXTENDED | REG_NOSUB | REG_ICASE), 0);
            PosixRegex regex;
            QVERIFY(regex.compile(pattern, Qt::CaseInsensitive));
            for (QByteArray const& text : texts) {
                bool const expected = regexec(&plain, text.constData(), 0, nullptr, 0) == 0;
                QVERIFY2(regex.matches(text) == expected, (pattern + " on " + text).constData());
            }
            regfree(&plain);
        }
    }

    void tellsWhereAPatternIsWrong_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<int>("at");
        auto const row = [](char const* pattern, int at) {
            QTest::newRow(pattern) << QString::fromUtf8(pattern) << at;
        };
        row("(", 0);
        row("a(b)c(d", 5);
        row("ab[cd", 2);
        row("gr\xc3\xbc\xc3\x9f[", 4);
        row("foo\\", 3);
    }

    void tellsWhereAPatternIsWrong()
    {
        QFETCH(QString const, pattern);
        std::optional<PosixRegex::Fault> const fault = PosixRegex::fault(pattern);
        QVERIFY(fault);
        QVERIFY(fault->at);
        QTEST(*fault->at, "at");
        QVERIFY(!fault->words.isEmpty());
    }

    // Each character costs a compilation of all that stands before it.
    void doesNotLookForThePlaceInALongPattern()
    {
        std::optional<PosixRegex::Fault> const fault =
            PosixRegex::fault(QString(20000, QLatin1Char('a')) + QLatin1Char('('));
        QVERIFY(fault);
        QVERIFY(!fault->at);
        QVERIFY(!fault->words.isEmpty());
    }

    void nothingIsWrongWithAPatternThatCompiles()
    {
        for (char const* const pattern : {"", "a", "(a|b)*", "[(]", "\\("}) {
            QVERIFY2(!PosixRegex::fault(QString::fromUtf8(pattern)), pattern);
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
