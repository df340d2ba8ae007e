// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOSolver final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void linesOfTheSolver_data();
    void linesOfTheSolver();
    void mentionsCountEachTime();
    void unknownNameLeavesTheTableAlone();
    void headerOnDiskNeedsNoDownload();
    void eachStepCountsAPass();
    void restartAddsAPassOfAllKnownPackages();
    void mentionedPackagesShowWithTheNextPass();
    void reportDoesNotStopTheSolver();
};

void TestYumIOSolver::linesOfTheSolver_data()
{
    QTest::addColumn<unsigned>("packages");
    QTest::addColumn<unsigned>("headers");
    QTest::addColumn<QString>("report"); // behind "Internal error: "
    auto const counts = [](char const* line, unsigned packages, unsigned headers) {
        QTest::newRow(line) << packages << headers << QString();
    };
    auto const unexpected = [](char const* line) {
        QTest::newRow(line) << 0U << 0U << QStringLiteral("unexpected TSINFO: ") + line;
    };
    counts("Updating hazel to 5.0", 2, 1);
    counts("Updating hazel ", 2, 1);
    counts("Updating elm to 5.0", 2, 0);
    counts("Updating alder marked as erase", 2, 1);
    unexpected("Updating hazel");
    unexpected("Updating");
    unexpected("updating hazel to 5.0");
    unexpected(" Updating hazel to 5.0");
    counts("Obsoleting hazel 4-2 with elm 1.0", 2, 1);
    counts("Obsoleting elm 1.0 with hazel 4-2", 2, 0);
    // The name behind "with" is never looked at.
    counts("Obsoleting hazel 4-2 with nothing known", 2, 1);
    unexpected("Obsoleting hazel");
    unexpected("Obsoleting hazel 4-2 by elm 1.0");
    unexpected("Obsoleting hazel 4-2 with elm");
    unexpected("Obsoleting hazel with elm 1.0");
    counts("Marking hazel as install for elm", 1, 1);
    counts("Marking hazel as update for elm", 2, 1);
    counts("Marking hazel as update", 1, 1);
    counts("Marking alder as an update of itself", 2, 1);
    counts("Marking elm  ", 1, 0);
    unexpected("Marking hazel");
    counts("cedar marked as erase", 0, 0);
    counts("nonsense marked as erased, or so", 0, 0);
    unexpected("cedar marked  as erase");
    unexpected("Removing cedar ");
    unexpected("");
    QTest::newRow("Updating nosuch to 5.0") << 0U << 0U << "TSINFO mentions unknown package: nosuch";
    QTest::newRow("Updating  hazel") << 0U << 0U << "TSINFO mentions unknown package: ";
    QTest::newRow("Marking Trees as install") << 0U << 0U << "TSINFO mentions unknown package: Trees";
    QTest::newRow("Updating birch to 9") << 0U << 0U
                                         << "TSINFO mentions intent to install or upgrade package that "
                                            "already seems up-to-date: birch";
}

void TestYumIOSolver::linesOfTheSolver()
{
    QVERIFY(collected());
    SCRIPT("standin.world.find('available', 'hazel').local_hdr = None\n"
           "standin.world.find('updates', 'alder').local_hdr = '/no/such/file'");
    QCOMPARE(
        engine->script(QStringLiteral("yumIOC.log(3, 'TSINFO: %1')").arg(QTest::currentDataTag())),
        QString());
    QFETCH(QString, report);
    QCOMPARE(boxes->takeTexts(), report.isNull() ? QStringList() : QStringList{"Internal error: " + report});
    QTEST(engine->run.nPkgs, "packages");
    QTEST(engine->run.nHdrs, "headers");
    QCOMPARE(
        engine->logLines(Log::Info),
        QStringList{QStringLiteral("TSINFO: %1 (3)").arg(QTest::currentDataTag())});
}

void TestYumIOSolver::mentionsCountEachTime()
{
    QVERIFY(collected());
    SCRIPT("standin.world.find('available', 'hazel').local_hdr = None\n"
           "for number in range(3):\n    yumIOC.log(0, 'TSINFO: Marking hazel as install for elm')");
    QCOMPARE(engine->run.nPkgs, 3U);
    QCOMPARE(engine->run.nHdrs, 3U);
}

void TestYumIOSolver::unknownNameLeavesTheTableAlone()
{
    QVERIFY(collected());
    SCRIPT("yumIOC.log(0, 'TSINFO: Updating nosuch to 5')\nyumIOC.log(0, 'TSINFO: Updating nosuch to 5')");
    QCOMPARE(
        boxes->takeTexts(),
        QStringList(2, QStringLiteral("Internal error: TSINFO mentions unknown package: nosuch")));
    QCOMPARE(engine->entryHash.size(), 12);
    QVERIFY(!engine->entryHash.contains(YumIO::EntryKey(false, "nosuch")));
}

void TestYumIOSolver::headerOnDiskNeedsNoDownload()
{
    QVERIFY(collected());
    // Answers of any kind.
    for (auto const& [answer, headers] :
         {std::pair{"standin.__file__.encode()", 0U}, {"'/no/such/file'", 1U}, {"None", 1U}, {"''", 1U}}) {
        engine->run = ApplyRun();
        QCOMPARE(
            engine->script(QStringLiteral("standin.world.find('available', 'hazel').localHdr = lambda: %1\n"
                                          "yumIOC.log(0, 'TSINFO: Updating hazel to 5')")
                               .arg(answer)),
            QString());
        QCOMPARE(engine->run.nHdrs, headers);
    }
    SCRIPT("standin.world.find('available', 'hazel').localHdr = lambda: 1/0\n"
           "yumIOC.log(0, 'TSINFO: Updating hazel to 5')");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
}

void TestYumIOSolver::eachStepCountsAPass()
{
    startProgress(9900, 21);
    engine->run.pkgActs = 7;
    SCRIPT("yumIOC.dsTsCheck()\nyumIOC.dsTsCheck()\nyumIOC.dsTsCheck()\nyumIOC.dsTsCheck()");
    QCOMPARE(engine->run.actsDone, 28ULL);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 for (Steps const at : {7, 14, 21, 28}) {
                     model.startItemAct("Resolve Dependencies", 1, at);
                 }
             }));
}

void TestYumIOSolver::restartAddsAPassOfAllKnownPackages()
{
    startProgress(9900, 24);
    engine->run.nPkgs = engine->run.pkgActs = engine->run.totalPkgActs = 4;
    engine->run.nHdrs = 2;
    engine->run.nPkgs = 6;
    SCRIPT("yumIOC.dsTsCheck()\nyumIOC.dsRestartLoop()\nyumIOC.dsTsCheck()\nyumIOC.dsRestartLoop()");
    QCOMPARE(engine->run.pkgActs, 6U);
    QCOMPARE(engine->run.totalPkgActs, 16U);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Resolve Dependencies", 1, 4);
                 model.changeItemActs(10 + 20);
                 model.startItemAct("Resolve Dependencies", 1, 10);
                 model.changeItemActs(16 + 20);
             }));
}

void TestYumIOSolver::mentionedPackagesShowWithTheNextPass()
{
    QVERIFY(collected());
    startProgress(9900, 4);
    engine->run.nPkgs = engine->run.pkgActs = engine->run.totalPkgActs = 4;
    SCRIPT("standin.world.find('available', 'hazel').local_hdr = None\n"
           "yumIOC.log(0, 'TSINFO: Updating hazel to 5')\nyumIOC.dsTsCheck()");
    QCOMPARE(engine->run.pkgActs, 4U);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 // The header shows at once, the packages don't.
                 model.changeItemActs(4 + 10);
                 model.startItemAct("Resolve Dependencies", 1, 4);
             }));
}

void TestYumIOSolver::reportDoesNotStopTheSolver()
{
    QVERIFY(collected());
    SCRIPT("def apply(*lists):\n"
           "    yumIOC.log(0, 'TSINFO: what?')\n"
           "    yumIOC.dsTsCheck()\n"
           "    standin.note('solved')\n"
           "standin.instead('apply', apply)");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unexpected TSINFO: what?"});
    QVERIFY(engine->calls().contains("solved"));
}

QTEST_MAIN(TestYumIOSolver)
#include "tst_yumiosolver.moc"
