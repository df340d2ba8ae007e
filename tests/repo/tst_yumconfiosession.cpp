// SPDX-License-Identifier: GPL-2.0-or-later
// The session flags: what a repository's first reading gives it, and that nothing later takes it away.
#include "ConfRoot.h"

#include <QTest>

namespace
{

QString const a = QStringLiteral("a");
QString const b = QStringLiteral("b");

YumRepoEnabled enable(char const* wildcard)
{
    return YumRepoEnabled(true, QString::fromLatin1(wildcard));
}

YumRepoEnabled disable(char const* wildcard)
{
    return YumRepoEnabled(false, QString::fromLatin1(wildcard));
}

} // namespace

class TestYumConfIOSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flagStartsAsTheMainSectionsUnlessTheSectionStatesIt();
    void lastStatementOfASectionCounts();
    void commandLineOverrulesTheSection();
    void lastMatchingRequestWins_data();
    void lastMatchingRequestWins();
    void commandLineLeavesThePermanentValue();
    void flagOfAKnownRepositoryStaysAcrossReads();
    void commandLineReachesRepositoriesSeenLater();
    void secondSectionOfAnIdLeavesTheFlag();
    void flagsOfVanishedRepositoriesStay();
    void everyCompleteSectionGetsTheCommandLine();
};

void TestYumConfIOSession::flagStartsAsTheMainSectionsUnlessTheSectionStatesIt()
{
    for (bool const mainEnabled : {true, false}) {
        ConfRoot root;
        QVERIFY(root.readMain(
            QByteArray("[main]\nenabled=") + (mainEnabled ? "1" : "0") +
            "\n[default]\n[on]\nenabled=1\n[off]\nenabled=0\n"));
        QCOMPARE(root.reposEnabled.value(QStringLiteral("default"), !mainEnabled), mainEnabled);
        QCOMPARE(root.reposEnabled.value(QStringLiteral("on"), false), true);
        QCOMPARE(root.reposEnabled.value(QStringLiteral("off"), true), false);
    }
}

void TestYumConfIOSession::lastStatementOfASectionCounts()
{
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\nenabled=0\nenabled=1\n[b]\nenabled=1\nenabled=0\n"));
    QCOMPARE(root.reposEnabled, (QHash<QString, bool>{{a, true}, {b, false}}));
}

void TestYumConfIOSession::commandLineOverrulesTheSection()
{
    ConfRoot root;
    root.usedOptions = {enable("a"), disable("b")};
    QVERIFY(root.readRepoFile("[a]\nenabled=0\n[b]\nenabled=1\n"));
    QCOMPARE(root.reposEnabled, (QHash<QString, bool>{{a, true}, {b, false}}));
}

void TestYumConfIOSession::lastMatchingRequestWins_data()
{
    QTest::addColumn<QList<YumRepoEnabled>>("requests");
    QTest::addColumn<bool>("first");
    QTest::addColumn<bool>("second");
    using Requests = QList<YumRepoEnabled>;
    QTest::newRow("none") << Requests{} << true << true;
    QTest::newRow("all off, one on") << Requests{disable("*"), enable("a")} << true << false;
    QTest::newRow("one on, all off") << Requests{enable("a"), disable("*")} << false << false;
    QTest::newRow("off and on again") << Requests{disable("a"), enable("?"), disable("[b]")} << true << false;
    QTest::newRow("no match") << Requests{disable("c*"), disable("A")} << true << true;
}

void TestYumConfIOSession::lastMatchingRequestWins()
{
    QFETCH(QList<YumRepoEnabled>, requests);
    ConfRoot root;
    root.usedOptions = requests;
    QVERIFY(root.readRepoFile("[a]\n[b]\n"));
    QTEST(root.reposEnabled.value(a), "first");
    QTEST(root.reposEnabled.value(b), "second");
}

void TestYumConfIOSession::commandLineLeavesThePermanentValue()
{
    ConfRoot root;
    root.usedOptions = {disable("*")};
    QVERIFY(root.readRepoFile("[a]\nenabled=1\n[b]\n"));
    QCOMPARE(root.conf.repos[0].enabled, qint32(Repo::Yes));
    QCOMPARE(root.conf.repos[1].enabled, qint32(Repo::Default));
}

void TestYumConfIOSession::flagOfAKnownRepositoryStaysAcrossReads()
{
    ConfRoot root;
    root.usedOptions = {disable("a")};
    QVERIFY(root.readRepoFile("[a]\nenabled=1\n"));
    QCOMPARE(root.reposEnabled.value(a, true), false);

    // The user switches it on for the session: neither the command line nor the file has a say any more.
    root.reposEnabled[a] = true;
    QVERIFY(root.readRepoFile("[a]\nenabled=0\n"));
    QCOMPARE(root.reposEnabled.value(a), true);
    QCOMPARE(root.conf.repos[0].enabled, qint32(Repo::No));
}

void TestYumConfIOSession::commandLineReachesRepositoriesSeenLater()
{
    ConfRoot root;
    root.usedOptions = {disable("b")};
    QVERIFY(root.readRepoFile("[a]\n"));
    QVERIFY(!root.reposEnabled.contains(b));
    QVERIFY(root.readRepoFile("[a]\n[b]\n"));
    QCOMPARE(root.reposEnabled, (QHash<QString, bool>{{a, true}, {b, false}}));
}

void TestYumConfIOSession::secondSectionOfAnIdLeavesTheFlag()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "");
    root.write("/etc/yum/repos.d/one.repo", "[a]\nenabled=1\n");
    root.write("/etc/yum.repos.d/two.repo", "[a]\nenabled=0\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList({a, a}));
    QCOMPARE(root.conf.repos[1].enabled, qint32(Repo::No));
    QCOMPARE(root.reposEnabled.value(a), true);
}

void TestYumConfIOSession::flagsOfVanishedRepositoriesStay()
{
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\nenabled=0\n"));
    QVERIFY(root.readRepoFile("[b]\n"));
    QCOMPARE(root.reposEnabled, (QHash<QString, bool>{{a, false}, {b, true}}));
}

void TestYumConfIOSession::everyCompleteSectionGetsTheCommandLine()
{
    ConfRoot root;
    root.usedOptions = {disable("*")};
    root.write("/etc/yum.conf", "[m]\n[n]\n");
    root.write("/etc/yum.repos.d/some.repo", "[a]\n[b]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(
        root.reposEnabled,
        (QHash<QString, bool>{
            {a, false}, {b, false}, {QStringLiteral("m"), false}, {QStringLiteral("n"), false}}));
}

QTEST_GUILESS_MAIN(TestYumConfIOSession)
#include "tst_yumconfiosession.moc"
