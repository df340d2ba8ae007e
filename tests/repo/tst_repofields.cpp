// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoFields.h"

#include <QTest>

class tst_repofields : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneLineHasNoControlCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        auto const row = [](char const* text, char const* line) {
            QTest::newRow(line) << QString::fromLatin1(text) << QString::fromLatin1(line);
        };
        row("", "");
        row("extras\n", "extras");
        row("\r\n\textras", "extras");
        row("a\r\nb\tc\x7f\x01"
            "d",
            "a b c d");
        row(" a  b ", " a  b ");
        // Halves of letters.
        row("\xc3\x85\xd0\xa0", "\xc3\x85\xd0\xa0");
    }

    void oneLineHasNoControlCharacters()
    {
        QFETCH(QString, text);
        QTEST(RepoFields::oneLine(text), "line");
    }

    void optionLinesBeginWithAnOption_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("lines");
        QTest::newRow("as it is") << "cost=5\n\n  \n#n\n"
                                  << "cost=5\n\n  \n#n\n";
        QTest::newRow("blank lines") << "\n \t\n\ncost=5"
                                     << "cost=5";
        QTest::newRow("indented") << " \n  cost=5"
                                  << "  cost=5";
        QTest::newRow("blanks alone") << "  "
                                      << "";
        QTest::newRow("blank lines alone") << "  \n\n"
                                           << "";
    }

    void optionLinesBeginWithAnOption()
    {
        QFETCH(QString, text);
        QTEST(RepoFields::optionLines(text), "lines");
    }

    void misreadLinesAreFound_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("loaded");
        QTest::addColumn<int>("line");
        QTest::addColumn<bool>("isHead");
        auto const row = [](char const* name, char const* text, char const* loaded, int line, bool isHead) {
            QTest::newRow(name) << text << loaded << line << isHead;
        };
        row("none", "a=1\n  2\n\t3\nb=4\n#n\n\nc=5\n", "", 0, false);
        row("first", " a=1", "", 1, false);
        row("first behind blank lines", "\n \n\ta=1", "", 3, false);
        row("below a comment", "a=1\n#n\n 2", "", 3, false);
        row("below another comment", ";n\n 2", "", 2, false);
        row("below an empty line", "a=1\n\n 2", "", 3, false);
        row("below a line of blanks", "a=1\n  \n 2", "", 0, false);
        row("head", "a=1\n[b]", "", 2, true);
        row("half a head", "[b", "", 1, true);
        row("indented bracket", "a=1\n  [b]", "", 0, false);
        row("known", "a=1\n#n\n 2\nb=2", "a=1\n#n\n 2\n", 0, false);
        row("another beside a known one", "a=1\n#n\n 2\n#n\n 3", "a=1\n#n\n 2\n", 5, false);
        row("known, but first by now", " 2\nb=2", "#n\n 2\n", 1, false);
        row("nothing", "", "", 0, false);
    }

    void misreadLinesAreFound()
    {
        QFETCH(QString, text);
        QFETCH(QString, loaded);
        QFETCH(int, line);
        std::optional<RepoFields::Misread> const misread = RepoFields::findMisread(text, loaded);
        QCOMPARE(misread ? misread->line : 0, line);
        if (misread) {
            QTEST(misread->kind == RepoFields::Misread::SectionHead, "isHead");
        }
    }
};

QTEST_APPLESS_MAIN(tst_repofields)
#include "tst_repofields.moc"
