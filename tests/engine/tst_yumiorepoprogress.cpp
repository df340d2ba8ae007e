// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIORepoProgress final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void positionsOfActs_data();
    void positionsOfActs();
    void positionIsCappedAtTheNumberOfActs();
    void sameReportMovesOnlyTheValue();
    void namesAndTotalsStartNewActs();
    void sqliteConvertsWhereOthersRead();
    void messagesWithoutName();
    void completeActNeedsNoNumbers();
    void completeReportRightAfterAStartIsTheSameAct();
    void parsingOfMetadataHasNoName();
    void nameOfAnotherTypeIsReported();
    void filesTellTheirRepository_data();
    void filesTellTheirRepository();
    void sizesOfDownloads_data();
    void sizesOfDownloads();
    void downloadsMoveWithinTheirSize();
    void actBeyondTheTableIsReported();
    void extraDataNamesItsContents();

private:
    void startReading(QStringList const& repos, QString const& version = QStringLiteral("3.2.19"));
};

/// As a job is, when it begins to read the repositories.
void TestYumIORepoProgress::startReading(QStringList const& repos, QString const& version)
{
    engine->setVersion(version);
    engine->repoNames = repos;
    engine->repoContents = QStringLiteral("contents");
    startProgress(14000, static_cast<Steps>(5 * repos.size()));
}

void TestYumIORepoProgress::positionsOfActs_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QList<int>>("acts");
    QTest::addColumn<QList<int>>("positions");
    QList<int> const allInOrder{1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    QList<int> const onePass{0, 1, 2, 3, 4, 0, 1, 2, 3, 4};
    QList<int> const twoPasses{0, 1, 0, 1, 2, 3, 4, 2, 3, 4};
    QTest::newRow("one pass") << "3.1.7" << onePass << allInOrder;
    QTest::newRow("two passes") << "3.1.6" << twoPasses << allInOrder;
    QTest::newRow("no version") << "" << twoPasses << allInOrder;
    QTest::newRow("acts left out") << "4.14.0" << QList<int>{1, 4, 2, 4} << QList<int>{2, 5, 8, 10};
    QTest::newRow("acts left out in two passes")
        << "2.4.0" << QList<int>{1, 1, 2, 4, 4} << QList<int>{2, 4, 5, 7, 10};
    QTest::newRow("act repeated") << "3.2.19" << QList<int>{2, 2, 2} << QList<int>{3, 3, 3};
    QTest::newRow("repository that ends early")
        << "3.2.19" << QList<int>{0, 1, 3, 0} << QList<int>{1, 2, 4, 1};
    QTest::newRow("first pass left out") << "3.1.6" << QList<int>{2, 3, 4} << QList<int>{5, 6, 7};
    QTest::newRow("first pass ends early") << "3.1.6" << QList<int>{0, 2} << QList<int>{1, 5};
    QTest::newRow("index in the second pass") << "3.1.6" << QList<int>{2, 4, 0} << QList<int>{5, 7, 7};
}

void TestYumIORepoProgress::positionsOfActs()
{
    QFETCH(QString, version);
    startReading({"base", "updates"}, version);
    QFETCH(QList<int>, acts);
    QList<int> positions;
    for (int const act : acts) {
        engine->collectProgress("x", true, static_cast<YumIO::RepoAct>(act), 0, 5);
        positions.append(engine->repoAct);
    }
    QTEST(positions, "positions");
}

void TestYumIORepoProgress::positionIsCappedAtTheNumberOfActs()
{
    startReading({"base"});
    SCRIPT("for number in range(3):\n"
           "    yumIOC.collectGrabMeterStart('/base/repomd.xml', '', '', 9, None)\n"
           "    yumIOC.collectProgress(-1, -1, 'base')\n"
           "yumIOC.collectGrabMeterStart('/base/repomd.xml', '', '', 9, None)");
    QCOMPARE(engine->repoAct, 17);
    QVERIFY(engine->progressRecord.lines.constLast().endsWith("from step 14000"));
}

void TestYumIORepoProgress::sameReportMovesOnlyTheValue()
{
    startReading({"base"});
    SCRIPT("for done in (1, 30, 70, 100):\n    yumIOC.collectProgress(done, 100, 'base')");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Converting repository contents for base", 100, 4);
                 model.setItemValue(100);
             }));
}

void TestYumIORepoProgress::namesAndTotalsStartNewActs()
{
    startReading({"base", "updates"});
    SCRIPT("yumIOC.collectProgress(0, 100, 'base')\nyumIOC.collectProgress(0, 200, 'base')\n"
           "yumIOC.collectProgress(0, 200, b'updates')");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Converting repository contents for base", 100, 4);
                 model.startItemAct("Converting repository contents for base", 200, 4);
                 model.startItemAct("Converting repository contents for updates", 200, 4);
             }));
}

void TestYumIORepoProgress::sqliteConvertsWhereOthersRead()
{
    SCRIPT("usesSqlite = lambda: False");
    startReading({"updates"});
    SCRIPT("yumIOC.collectProgress(0, 100, 'updates')");
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Reading repository contents for updates,"));
    QCOMPARE(engine->repoAct, 5);
    // The answer is for the life of the process.
    SCRIPT("usesSqlite = lambda: True\nyumIOC.collectProgress(0, 101, 'updates')");
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Reading"));
    engine->sqliteKnown = false;
    SCRIPT("yumIOC.collectProgress(0, 102, 'updates')");
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Converting"));
}

void TestYumIORepoProgress::messagesWithoutName()
{
    startReading({"base"});
    QStringList messages;
    for (int act = 0; act < YumIO::ActNone; ++act) {
        engine->collectProgress(QString(), true, static_cast<YumIO::RepoAct>(act), 0, 5);
        messages.append(engine->progressRecord.lines.constLast().section(QLatin1Char(','), 0, 0));
    }
    QCOMPARE(
        messages, (QStringList{
                      "Downloading repository contents mirror list", "Downloading repository contents repomd",
                      "Downloading repository contents", "Converting repository contents",
                      "Reading repository contents"}));
}

void TestYumIORepoProgress::completeActNeedsNoNumbers()
{
    startReading({"base"});
    SCRIPT("yumIOC.collectProgress(-1, -1, None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Reading repository contents", 1, 5);
                 model.setItemValue(1);
             }));
}

void TestYumIORepoProgress::completeReportRightAfterAStartIsTheSameAct()
{
    startReading({"base"});
    SCRIPT("yumIOC.collectProgress(0, -1, None)\nyumIOC.collectProgress(-1, -1, None)");
    QCOMPARE(engine->repoAct, 4);
    QCOMPARE(engine->progressRecord.lines.filter("repository").size(), 1);
}

void TestYumIORepoProgress::parsingOfMetadataHasNoName()
{
    startReading({"base", "updates"});
    SCRIPT("yumIOC.collectProgress(0, 50, 'MD Read')\nyumIOC.collectProgress(50, 50, 'MD Read')\n"
           "yumIOC.collectProgress(0, 60, 'MD Read')");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Converting repository contents", 50, 4);
                 model.setItemValue(50);
                 model.startItemAct("Converting repository contents", 60, 4);
             }));
}

void TestYumIORepoProgress::nameOfAnotherTypeIsReported()
{
    startReading({"base"});
    SCRIPT("yumIOC.collectProgress(0, 50, 5)");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unexpected progress name"});
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Converting repository contents, up to 50"));
    SCRIPT("yumIOC.collectProgress(0, 51, 'a\\udce9')");
    QVERIFY(engine->progressRecord.lines.constLast().startsWith(
        QStringLiteral("Converting repository contents for a\uFFFD")));
}

void TestYumIORepoProgress::filesTellTheirRepository_data()
{
    QTest::addColumn<QString>("message");
    QTest::newRow("/var/cache/yum/updates/repomd.xml")
        << "Downloading repository contents repomd for updates";
    QTest::newRow("/var/cache/yum/updates/metalink.xml.tmp")
        << "Downloading repository contents mirror list for updates";
    QTest::newRow("/var/cache/yum/updates/primary.xml.gz") << "Downloading repository contents for updates";
    QTest::newRow("http://mirror/base/repomd") << "Downloading repository contents repomd for base";
    QTest::newRow("http://mirror/base/repom") << "Downloading repository contents for base";
    QTest::newRow("http://mirror/base/metalin") << "Downloading repository contents for base";
    QTest::newRow("http://mirror/repomd/x") << "Downloading repository contents for repomd";
    QTest::newRow("primary.xml.gz") << "Downloading repository contents for primary.xml.gz";
    QTest::newRow("repomd.xml") << "Downloading repository contents for repomd.xml";
    QTest::newRow("/repomd.xml") << "Downloading repository contents repomd for /repomd.xml";
    QTest::newRow("base/repomd.xml") << "Downloading repository contents repomd for base/repomd.xml";
    QTest::newRow("/base/") << "Downloading repository contents for base";
    QTest::newRow("//x") << "Downloading repository contents";
    QTest::newRow("") << "Downloading repository contents";
    QTest::newRow("http://h/buffet?login=me&key=k&path=base/x") << "Downloading repository contents for base";
    QTest::newRow("http://h/buffe%61=b&c=d&e=f&path=base/x") << "Downloading repository contents for base";
    QTest::newRow("http://h/buffet?login=me&path=base/x")
        << "Downloading repository contents for buffet?login=me&path=base";
    QTest::newRow("http://h/Buffet?login=me&key=k&path=base/x")
        << "Downloading repository contents for Buffet?login=me&key=k&path=base";
}

void TestYumIORepoProgress::filesTellTheirRepository()
{
    startReading({"base"});
    QCOMPARE(
        engine->script(QStringLiteral("yumIOC.collectGrabMeterStart('%1', 'u', 'b', 5, None)")
                           .arg(QTest::currentDataTag())),
        QString());
    QTEST(engine->progressRecord.lines.constLast().section(", up to 5", 0, 0), "message");
}

void TestYumIORepoProgress::sizesOfDownloads_data()
{
    QTest::addColumn<QString>("max");
    QTest::addColumn<QStringList>("reports");
    QStringList const odd{"Internal error: collect grab size not understood"};
    QTest::newRow("None") << "1" << QStringList();
    QTest::newRow("5") << "5" << QStringList();
    QTest::newRow("2**40") << "1099511627776" << QStringList();
    QTest::newRow("0") << "0" << QStringList();
    QTest::newRow("'5'") << "1" << odd;
    QTest::newRow("5.0") << "1" << odd;
    QTest::newRow("-1") << "18446744073709551615" << QStringList();
}

void TestYumIORepoProgress::sizesOfDownloads()
{
    startReading({"base"});
    QCOMPARE(
        engine->script(QStringLiteral("yumIOC.collectGrabMeterStart('/base/x', '', '', %1, None)\n"
                                      "yumIOC.collectGrabMeterUpdate(1)\nyumIOC.collectGrabMeterEnd(1)")
                           .arg(QTest::currentDataTag())),
        QString());
    QTEST(engine->progressRecord.lines.constFirst().section(QLatin1Char(' '), 7, 7).chopped(1), "max");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIORepoProgress::downloadsMoveWithinTheirSize()
{
    startReading({"base"});
    SCRIPT("yumIOC.collectGrabMeterStart('/base/x', '', '', 40, None)\nyumIOC.collectGrabMeterUpdate(2**60)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Downloading repository contents for base", 40, 3);
                 model.setItemValue(40);
             }));
    SCRIPT("yumIOC.collectGrabMeterEnd(-7)\nyumIOC.collectGrabMeterUpdate(-7)");
}

void TestYumIORepoProgress::actBeyondTheTableIsReported()
{
    startReading({"base"});
    engine->collectProgress("base", true, YumIO::ActNone, 0, 5);
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: invalid collect act\n"});
    QVERIFY(engine->progressRecord.lines.constLast().startsWith(", up to 5"));
}

void TestYumIORepoProgress::extraDataNamesItsContents()
{
    QVERIFY(collected());
    engine->repoAct = 4;
    SCRIPT("standin.instead('collectFileLists', lambda: yumIOC.collectProgress(0, 5, 'base') or True)\n"
           "standin.instead('collectOtherData', lambda: yumIOC.collectProgress(0, 5, 'base') or True)");
    QVERIFY(engine->collectFileLists());
    // The second job begins with an act of its own, though its report equals the last one of the first.
    QVERIFY(engine->collectOtherData());
    QStringList const lines = engine->progressRecord.lines.filter("Converting");
    QCOMPARE(
        lines, (QStringList{
                   "Converting repository file lists for base, up to 5, from step 1000",
                   "Converting repository miscellaneous data for base, up to 5, from step 1000"}));
    QCOMPARE(engine->repoAct, 4);
}

QTEST_MAIN(TestYumIORepoProgress)
#include "tst_yumiorepoprogress.moc"
