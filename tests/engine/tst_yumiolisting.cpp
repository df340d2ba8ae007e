// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOListing final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void sectionsAppearOnlyWhenNeeded_data();
    void sectionsAppearOnlyWhenNeeded();
    void packageTuples_data();
    void packageTuples();
    void repositoryStandsBehindThePackage();
    void downloadSizeStandsWhereItIsReported();
    void downloadSizeOfOddPackages();

    void membersAreWeighed_data();
    void membersAreWeighed();
    void largestSizesDoNoHarm();
    void membersThatTheTableDoesNotKnowAreSkipped();
    void updatesAreRememberedByName();

    void tupleOfListsUpTo20301();
    void listsOfTsInfoAbove20301();
    void oddTuplesAreReported_data();
    void oddTuplesAreReported();
    void missingListsAreReported_data();
    void missingListsAreReported();
    void brokenMembersFailTheListing_data();
    void brokenMembersFailTheListing();
    void relationsAreFoundByTheirExactName();
    void obsoletingPackageByItsTupleInOldReleases();
    void failedListingStopsTheApply();

private:
    /// Builds `holder` in the script's namespace from lists like "installed=[member('available', 'elm')]".
    void makeHolder(QString const& lists);
    QString list(QString const& lists);
};

void TestYumIOListing::makeHolder(QString const& lists)
{
    QCOMPARE(
        engine->script(QStringLiteral("import types\n"
                                      "from standintransaction import Member, TsInfo\n"
                                      "def member(kind, name, relations=()):\n"
                                      "    return Member(standin.world.find(kind, name), relations)\n"
                                      "holder = types.SimpleNamespace(tsInfo=TsInfo(standin.era, %1))")
                           .arg(lists)),
        QString());
}

/// Lists a transaction of such lists; answers what that raised.
QString TestYumIOListing::list(QString const& lists)
{
    makeHolder(lists);
    return engine->script("yumIOC.listTransaction(holder)");
}

void TestYumIOListing::sectionsAppearOnlyWhenNeeded_data()
{
    QTest::addColumn<QString>("lists");
    QTest::addColumn<QString>("lines"); // below the first
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("own wishes")
        << "installed=[member('available', 'elm'), member('available', 'fir')], "
           "updated=[member('updates', 'alder')], removed=[member('installed', 'cedar')]"
        << "\tInstall: elm 1.0-1 (noarch) [base]\n\tInstall: fir 2:1.5-3.1 (noarch) [base]\n"
           "\tUpdate: alder 2.0-1 (x86_64) [updates]\n\tRemove: cedar 1.0-1 (noarch)\n";
    QString const resolving = "Performing the following to resolve dependencies:\n";
    QTest::newRow("installed dependency") << "depinstalled=[member('available', 'elm')]"
                                          << resolving + "\tInstall: elm 1.0-1 (noarch) [base]\n";
    QTest::newRow("updated dependency") << "depupdated=[member('updates', 'alder')]"
                                        << resolving + "\tUpdate: alder 2.0-1 (x86_64) [updates]\n";
    QTest::newRow("removed dependency")
        << "depremoved=[member('installed', 'cedar')]" << resolving + "\tRemove: cedar 1.0-1 (noarch)\n";
    QTest::newRow("all dependencies")
        << "depremoved=[member('installed', 'cedar')], depupdated=[member('updates', 'alder')], "
           "depinstalled=[member('available', 'elm')]"
        << resolving + "\tInstall: elm 1.0-1 (noarch) [base]\n\tUpdate: alder 2.0-1 (x86_64) [updates]\n"
                       "\tRemove: cedar 1.0-1 (noarch)\n";
    QTest::newRow("obsoleted")
        << "obsoleted=[member('installed', 'birch', [(member('available', 'elm'), 'obsoletedby')])]"
        << "Other Transactions:\n\tObsoleting: birch 1:3.1-2 (noarch) with elm 1.0-1 (noarch)\n";
    QTest::newRow("streams") << "enabledStreams=['lamp:5', 'tree:1.2']"
                             << "Enabling module streams:\n\tlamp:5\n\ttree:1.2\n";
    QTest::newRow("no streams") << "enabledStreams=[]"
                                << "";
}

void TestYumIOListing::sectionsAppearOnlyWhenNeeded()
{
    QFETCH(QString, lists);
    QFETCH(QString, lines);
    QCOMPARE(list(lists), QString());
    QCOMPARE(engine->run.transactionText, "Transaction to be performed:\n" + lines);
}

void TestYumIOListing::packageTuples_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("('bash', 'x86_64', '0', '3.2', '21')") << "bash 3.2-21 (x86_64)";
    QTest::newRow("('bash', 'x86_64', '1', '3.2', '21')") << "bash 1:3.2-21 (x86_64)";
    QTest::newRow("('bash', 'x86_64', '00', '3.2', '21')") << "bash 00:3.2-21 (x86_64)";
    QTest::newRow("(b'bash', b'x86_64', b'0', b'3.2', b'21')") << "bash 3.2-21 (x86_64)";
    QTest::newRow("['bash', 'x86_64', '0', '3.2', '21']") << "bash 3.2-21 (x86_64)";
    QTest::newRow("('b%1', 'a%2', '0', '%3', '%4')") << "b%1 %3-%4 (a%2)";
    QTest::newRow("('bash', 'x86_64', None, '3.2', '21')") << "bash :3.2-21 (x86_64)";
    QTest::newRow("('bash',)") << "bash :- ()";
    QTest::newRow("5") << " :- ()";
}

void TestYumIOListing::packageTuples()
{
    TestEngine::PyGILStateWrapper const lock(true);
    QTEST(engine->pkgtupFormat(engine->object(QTest::currentDataTag()).get()), "expected");
}

void TestYumIOListing::repositoryStandsBehindThePackage()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const pkgtup = engine->object("('bash', 'x86_64', '1', '3.2', '21')");
    QCOMPARE(engine->pkgtupRepoFormat(pkgtup.get(), "base"), QStringLiteral("bash 1:3.2-21 (x86_64) [base]"));
}

void TestYumIOListing::downloadSizeStandsWhereItIsReported()
{
    makeHolder("installed=[member('available', 'elm')]");
    SCRIPT("yumIOC.reportDownloadSize(standin.world.available)\nyumIOC.listTransaction(holder)\n"
           "yumIOC.reportDownloadSize(iter(()))");
    QCOMPARE(
        engine->run.transactionText,
        QStringLiteral("Total download size: 323Kb\nTransaction to be performed:\n"
                       "\tInstall: elm 1.0-1 (noarch) [base]\nTotal download size: 0b\n"));
}

void TestYumIOListing::downloadSizeOfOddPackages()
{
    SCRIPT("import types\n"
           "def package(size): return types.SimpleNamespace(size=size)\n"
           "yumIOC.reportDownloadSize([package('5000'), package(lambda: 2**40), package(None), object()])");
    QCOMPARE(engine->run.transactionText, QStringLiteral("Total download size: 1.0Tb\n"));
    QCOMPARE(boxes->takeTexts(), QStringList(2, "Internal error: package size not understood"));
    QVERIFY(engine->script("yumIOC.reportDownloadSize(5)").contains("TypeError"));
    QVERIFY(engine->script("yumIOC.reportDownloadSize(1/0 for x in 'x')").contains("ZeroDivisionError"));
    QCOMPARE(engine->run.transactionText, QStringLiteral("Total download size: 1.0Tb\n"));
}

void TestYumIOListing::membersAreWeighed_data()
{
    QTest::addColumn<QString>("lists");
    QTest::addColumn<Steps>("total");
    QTest::addColumn<Steps>("download");
    QTest::addColumn<Steps>("acts");
    auto const row = [](char const* lists, Steps total, Steps download, Steps acts) {
        QTest::newRow(lists) << QString::fromLatin1(lists) << total << download << acts;
    };
    row("", 0, 0, 0);
    row("installed=[member('available', 'hazel')]", 50000, 50000, 150000);
    row("depinstalled=[member('available', 'hazel')]", 50000, 50000, 150000);
    // Small ones weigh as 10240 bytes everywhere.
    row("installed=[member('available', 'elm')]", 10240, 10240, 10240);
    // Its rpm is on disk already; a fifth of the old version is for cleaning up.
    row("updated=[member('updates', 'alder')]", 200000, 0, 620000);
    row("depupdated=[member('updates', 'alder')]", 200000, 0, 620000);
    // Nothing is installed that would have to be cleaned up.
    row("updated=[member('updates', 'dogwood')]", 15000, 15000, 45000);
    row("removed=[member('installed', 'cedar')]", 0, 0, 30000);
    row("depremoved=[member('installed', 'cedar')]", 0, 0, 30000);
    row("obsoleted=[member('installed', 'birch', [(member('available', 'elm'), 'obsoletedby')])]", 0, 0,
        60000);
    row("installed=[member('available', 'hazel')], removed=[member('installed', 'cedar')], "
        "updated=[member('updates', 'alder')]",
        250000, 50000, 800000);
}

void TestYumIOListing::membersAreWeighed()
{
    QVERIFY(collected());
    QFETCH(QString, lists);
    QCOMPARE(list(lists), QString());
    QTEST(engine->run.totalBytes, "total");
    QTEST(engine->run.downloadBytes, "download");
    QTEST(engine->run.transactionActs, "acts");
}

void TestYumIOListing::largestSizesDoNoHarm()
{
    SCRIPT("standin.world.find('available', 'hazel').size = 2**64 - 1\n"
           "standin.world.find('available', 'ivy').size = -1");
    QVERIFY(collected());
    QCOMPARE(list("installed=[member('available', 'hazel'), member('available', 'ivy')]"), QString());
    QVERIFY(engine->run.totalBytes > 0);
}

void TestYumIOListing::membersThatTheTableDoesNotKnowAreSkipped()
{
    QCOMPARE(
        list("installed=[member('available', 'elm')], updated=[member('updates', 'alder')], "
             "removed=[member('installed', 'cedar')]"),
        QString());
    QCOMPARE(engine->run.totalBytes, 0ULL);
    QCOMPARE(engine->run.transactionActs, 0ULL);
    QVERIFY(engine->entryHash.isEmpty());
    QVERIFY(engine->run.transactionText.contains("elm"));
}

void TestYumIOListing::updatesAreRememberedByName()
{
    QVERIFY(collected());
    QCOMPARE(
        list("installed=[member('available', 'elm')], updated=[member('updates', 'alder')], "
             "depupdated=[member('updates', 'dogwood')], removed=[member('installed', 'cedar')]"),
        QString());
    QCOMPARE(engine->run.updateNames, (QSet<QString>{"alder", "dogwood"}));
}

void TestYumIOListing::tupleOfListsUpTo20301()
{
    engine->setVersion("2.3.1");
    SCRIPT("standin.become(lists='tuple')");
    QCOMPARE(
        list("installed=[member('available', 'elm')], depremoved=[member('installed', 'cedar')]"), QString());
    QVERIFY(engine->run.transactionText.contains("\tInstall: elm"));
    QVERIFY(engine->run.transactionText.contains("dependencies:\n\tRemove: cedar"));
}

void TestYumIOListing::listsOfTsInfoAbove20301()
{
    engine->setVersion("2.3.2");
    QCOMPARE(list("installed=[member('available', 'elm')]"), QString());
    QVERIFY(engine->run.transactionText.contains("\tInstall: elm"));
}

void TestYumIOListing::oddTuplesAreReported_data()
{
    QTest::addColumn<QString>("report");
    QTest::newRow("None") << "Internal error: yumIO.makelists() did not return a tuple\n";
    QTest::newRow("[[], [], [], [], [], [], []]")
        << "Internal error: yumIO.makelists() did not return a tuple\n";
    QTest::newRow("([],) * 6") << "Internal error: yumIO.makelists() returned tuple of incorrect size\n";
    QTest::newRow("([],) * 8") << "Internal error: yumIO.makelists() returned tuple of incorrect size\n";
    QTest::newRow("()") << "Internal error: yumIO.makelists() returned tuple of incorrect size\n";
}

void TestYumIOListing::oddTuplesAreReported()
{
    engine->setVersion("2.3.1");
    makeHolder("");
    QFETCH(QString, report);
    QString const raised = engine->script(QStringLiteral("holder.tsInfo.makelists = lambda: %1\n"
                                                         "yumIOC.listTransaction(holder)")
                                              .arg(QTest::currentDataTag()));
    QVERIFY2(raised.contains("RuntimeError: " + report.trimmed()), qPrintable(raised));
    QCOMPARE(boxes->takeTexts(), QStringList{report});
    QCOMPARE(engine->run.transactionText, QString());
}

void TestYumIOListing::missingListsAreReported_data()
{
    QTest::addColumn<QString>("report");
    QTest::newRow("del holder.tsInfo") << "Internal error: method makelists call attemped with NULL self\n";
    QTest::newRow("holder.tsInfo = 5") << "Internal error: method makelists not found\n";
    QTest::newRow("holder.tsInfo.makelists = 5") << "Internal error: method makelists not callable\n";
    QTest::newRow("holder.tsInfo.makelists = lambda: 1/0")
        << "Internal error: python exception occurred from C code\n";
    QTest::newRow("holder.tsInfo.makelists = lambda: None") << "Internal error: tsInfo.updated not found\n";
}

void TestYumIOListing::missingListsAreReported()
{
    makeHolder("");
    QCOMPARE(engine->script(QTest::currentDataTag()), QString());
    QVERIFY(!engine->script("yumIOC.listTransaction(holder)").isEmpty());
    QTEST(boxes->takeTexts().value(0), "report");
    QVERIFY(!engine->script("yumIOC.postTransactionOutput(holder)").isEmpty());
    QTEST(boxes->takeTexts().value(0), "report");
}

void TestYumIOListing::brokenMembersFailTheListing_data()
{
    QTest::addColumn<QString>("lists");
    QTest::addColumn<QString>("report");
    QString const obsoleting = "Internal error: couldn't find obsoletedby package\n";
    QTest::newRow("no tuple") << "installed=[types.SimpleNamespace(repoid='base')]"
                              << "Internal error: txmbr lacks pkgtup\n";
    QTest::newRow("removed without tuple") << "removed=[object()]"
                                           << "Internal error: txmbr lacks pkgtup\n";
    QTest::newRow("dependency without tuple") << "depinstalled=[object()]"
                                              << "Internal error: txmbr lacks pkgtup\n";
    QTest::newRow("obsoleted without tuple") << "obsoleted=[object()]"
                                             << "Internal error: txmbr lacks pkgtup\n";
    QTest::newRow("no relations") << "obsoleted=[types.SimpleNamespace(pkgtup=('a', 'b', '0', '1', '1'))]"
                                  << "Internal error: package has no relatedto\n";
    QTest::newRow("no such relation")
        << "obsoleted=[member('installed', 'birch', [(member('available', 'elm'), 'obsoletes')])]"
        << obsoleting;
    QTest::newRow("relation to nothing")
        << "obsoleted=[member('installed', 'birch', [(None, 'obsoletedby')])]" << obsoleting;
    QTest::newRow("relations that are none") << "obsoleted=[member('installed', 'birch', 5)]" << obsoleting;
}

void TestYumIOListing::brokenMembersFailTheListing()
{
    QVERIFY(collected());
    QFETCH(QString, lists);
    QFETCH(QString, report);
    QString const raised = list(lists + ", depupdated=[member('updates', 'alder')]");
    QVERIFY2(raised.contains("RuntimeError: " + report.trimmed()), qPrintable(raised));
    QCOMPARE(boxes->takeTexts(), QStringList{report});
    QCOMPARE(engine->run.totalBytes, 0ULL);
    QVERIFY(engine->run.updateNames.isEmpty());
    // A list that is none raises by itself, and one without a repository is told without it.
    QVERIFY(list("installed=5").contains("TypeError"));
    QCOMPARE(list("installed=[types.SimpleNamespace(pkgtup=('a', 'b', '0', '1', '2'))]"), QString());
    QVERIFY(engine->run.transactionText.contains("\tInstall: a 1-2 (b) []\n"));
    boxes->take();
}

void TestYumIOListing::relationsAreFoundByTheirExactName()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const relations = engine->object(
        "[('a', 'obsoletedby '), ('b', 'Obsoletedby'), ['c', 'obsoletedby'], ('d', 'obsoletedby', 1), 5, "
        "('e', None), ('f', b'obsoletedby'), ('g', 'obsoletedby')]");
    QCOMPARE(engine->pyStringDec(engine->findRelation(relations.get(), "obsoletedby")), QStringLiteral("f"));
    QVERIFY(!engine->findRelation(relations.get(), "updates"));
    QVERIFY(!engine->findRelation(engine->object("[]").get(), "obsoletedby"));
}

void TestYumIOListing::obsoletingPackageByItsTupleInOldReleases()
{
    engine->setVersion("2.3.1");
    SCRIPT("standin.become(lists='tuple')");
    QCOMPARE(
        list("obsoleted=[member('installed', 'birch', [(('x', 'y', '0', '1', '2'), 'obsoletedby')])]"),
        QString());
    QVERIFY(engine->run.transactionText.endsWith("\tObsoleting: birch 1:3.1-2 (noarch) with x 1-2 (y)\n"));
}

void TestYumIOListing::failedListingStopsTheApply()
{
    QVERIFY(collected());
    SCRIPT("def apply(*lists):\n"
           "    yumIOC.listTransaction(object())\n"
           "    yumIOC.userconfirm()\n"
           "standin.instead('apply', apply)");
    QVERIFY(!engine->apply());
    QCOMPARE(
        boxes->takeTexts().constLast(),
        QStringLiteral("Internal error: python exception occurred from C code\n"));
    QVERIFY(!engine->logLines(Log::Error).filter("RuntimeError").isEmpty());
}

QTEST_MAIN(TestYumIOListing)
#include "tst_yumiolisting.moc"
