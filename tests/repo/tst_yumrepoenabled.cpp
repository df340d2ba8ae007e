// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/YumRepoEnabled.h"

#include <QTest>

class TestYumRepoEnabled : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsWhatItWasMadeOf();
    void matchesWholeIdsAsAShellWould_data();
    void matchesWholeIdsAsAShellWould();
    void takesPatternsThatNoIdCanMatch_data();
    void takesPatternsThatNoIdCanMatch();
};

void TestYumRepoEnabled::keepsWhatItWasMadeOf()
{
    QVERIFY(YumRepoEnabled(true, QStringLiteral("a")).enabled);
    QVERIFY(!YumRepoEnabled(false, QStringLiteral("a")).enabled);
    QVERIFY(YumRepoEnabled(true, QStringLiteral("a*")).repo.match(QStringLiteral("abc")).hasMatch());
}

void TestYumRepoEnabled::matchesWholeIdsAsAShellWould_data()
{
    QTest::addColumn<QString>("wildcard");
    QTest::addColumn<QString>("id");
    QTest::addColumn<bool>("matches");

    auto const row = [](char const* wildcard, char const* id, bool matches) {
        QTest::addRow("%s on %s", wildcard, id)
            << QString::fromUtf8(wildcard) << QString::fromUtf8(id) << matches;
    };
    row("updates", "updates", true);
    row("updates", "updates-source", false);
    row("updates", "my-updates", false);
    row("updates", "Updates", false);
    row("", "", true);
    row("", "a", false);

    row("updates*", "updates", true);
    row("updates*", "updates-source", true);
    row("*source", "updates-source", true);
    row("*", "", true);
    row("*", "local/x86_64/os", true);
    row("*", "two\nlines", true);
    row("a*c", "a/b/c", true);
    row("a*c", "a/b/d", false);

    row("repo?", "repo1", true);
    row("repo?", "repo", false);
    row("repo?", "repo12", false);
    row("a?b", "a/b", true);
    row("a?b",
        "a\xf0\x9f\x93\xa6"
        "b",
        true);

    row("repo[12]", "repo2", true);
    row("repo[12]", "repo3", false);
    row("repo[1-3]", "repo3", true);
    row("repo[1-3]", "repo4", false);
    row("repo[1-3x]", "repox", true);
    row("repo[a-c]", "repoB", false);
    row("repo[!12]", "repo3", true);
    row("repo[!12]", "repo1", false);
    row("repo[^12]", "repo3", true);
    row("repo[^12]", "repo2", false);
    row("repo[1!]", "repo!", true);
    row("a[-x]b", "a-b", true);
    row("a[x-]b", "a-b", true);
    row("a[]]b", "a]b", true);
    row("a[!]]b", "a]b", false);
    row("a[!]]b", "axb", true);
    row("a[*?]b", "a*b", true);
    row("a[*?]b", "axb", false);
    row("a[\\]b", "a\\b", true);
    row("a[\\d]b", "a1b", false);
    row("a[[:]b", "a:b", true);
    row("a[3-1]b", "a2b", false);
    row("a[!3-1]b", "a2b", true);
    row("a[b", "a[b", true);
    row("a[]b", "a[]b", true);
    row("a[!]", "a[!]", true);
    row("a]b", "a]b", true);

    row("a.b", "a.b", true);
    row("a.b", "axb", false);
    row("a+b", "a+b", true);
    row("a|b", "a", false);
    row("(a)", "(a)", true);
    row("^a$", "a", false);
    row("a\\*", "a\\b", true);
    row("\\d", "1", false);
    row("a{2}", "aa", false);
    row("d\xc3\xa9p\xc3\xb4t*", "d\xc3\xa9p\xc3\xb4t-2", true);
    row("\xf0\x9f\x93\xa6*", "\xf0\x9f\x93\xa6-2", true);
}

void TestYumRepoEnabled::matchesWholeIdsAsAShellWould()
{
    QFETCH(QString, wildcard);
    QFETCH(QString, id);
    QTEST(YumRepoEnabled(true, wildcard).matches(id), "matches");
}

void TestYumRepoEnabled::takesPatternsThatNoIdCanMatch_data()
{
    QTest::addColumn<QString>("wildcard");
    QTest::newRow("empty range") << QStringLiteral("[z-a]");
    QTest::newRow("half a character") << QString(QChar(0xd83d));
    QTest::newRow("line break against text") << QStringLiteral("\n");
}

void TestYumRepoEnabled::takesPatternsThatNoIdCanMatch()
{
    QFETCH(QString, wildcard);
    YumRepoEnabled const request(true, wildcard);
    QVERIFY(!request.matches(QStringLiteral("m")));
    QVERIFY(!request.matches(QString()));
}

QTEST_GUILESS_MAIN(TestYumRepoEnabled)
#include "tst_yumrepoenabled.moc"
