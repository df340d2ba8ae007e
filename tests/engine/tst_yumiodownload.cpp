// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIODownload final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void downloadsAreNamedByTheirFile_data();
    void downloadsAreNamedByTheirFile();
    void downloadsWeighTheirSize_data();
    void downloadsWeighTheirSize();
    void headersWeighTheSameWhateverTheirSize();
    void downloadMovesWithinItsSize();
    void rateAndTimeLeftAreToldAtTimes();
    void oddNamesAndTextsAreReported();
    void deltaRebuildEndsTheDownloads();

    void testBegins();
    void testBeginsWithoutReport();
    void stepsOfARebuildThatNeverCameAreSpent();
    void rebuildIsNotEndedTwice();
    void transactionBegins();
    void transactionBeginsWithoutTest();
};

void TestYumIODownload::downloadsAreNamedByTheirFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("'http://mirror/base/foo-1.0.rpm'") << "foo-1.0";
    QTest::newRow("'foo-1.0.rpm'") << "foo-1.0";
    QTest::newRow("b'foo-1.0.rpm'") << "foo-1.0";
    QTest::newRow("'/var/cache/foo-1.0.hdr'") << "foo-1.0";
    QTest::newRow("'foo-1.0.RPM'") << "foo-1.0.RPM";
    QTest::newRow("'foo-1.0.rpm.rpm'") << "foo-1.0.rpm";
    QTest::newRow("'foo-1.0.drpm'") << "foo-1.0.drpm";
    QTest::newRow("'.rpm'") << "";
    QTest::newRow("'rpm'") << "rpm";
    QTest::newRow("'base/'") << "";
    QTest::newRow("'http://h/buffet?login=me&key=k&path=foo-1.0.rpm'") << "foo-1.0";
    QTest::newRow("'http://h/buffet?login=a/b&key=k&path=base/foo-1.0.rpm'") << "foo-1.0";
    QTest::newRow("'http://h/Buffet?login=me&key=k&path=foo.rpm'") << "Buffet?login=me&key=k&path=foo";
    QTest::newRow("'a\\udce9.rpm'") << QStringLiteral("a\uFFFD");
}

void TestYumIODownload::downloadsAreNamedByTheirFile()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    QCOMPARE(
        engine->script(QStringLiteral("yumIOC.applyGrabMeterStart(%1, None, None, 5, None)")
                           .arg(QTest::currentDataTag())),
        QString());
    QFETCH(QString, name);
    QVERIFY2(
        engine->progressRecord.lines.constLast().startsWith("Downloading " + name + ", up to 5"),
        qPrintable(engine->progressRecord.lines.constLast()));
}

void TestYumIODownload::downloadsWeighTheirSize_data()
{
    QTest::addColumn<unsigned long long>("weight");
    QTest::newRow("50000") << 50000ULL;
    QTest::newRow("10240") << 10240ULL;
    QTest::newRow("10239") << 10240ULL;
    QTest::newRow("0") << 10240ULL;
    QTest::newRow("-5") << 10240ULL;
    QTest::newRow("2**40") << (1ULL << 40);
}

void TestYumIODownload::downloadsWeighTheirSize()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    // Where solving ended the downloads count on.
    engine->run.actsDone = 30;
    QCOMPARE(
        engine->script(QStringLiteral("yumIOC.applyGrabMeterStart('x.rpm', None, None, %1, None)\n"
                                      "yumIOC.applyGrabMeterUpdate(1)\nyumIOC.applyGrabMeterEnd(1)")
                           .arg(QTest::currentDataTag())),
        QString());
    QFETCH(unsigned long long, weight);
    QCOMPARE(engine->run.actsDone, 30 + weight);
}

void TestYumIODownload::headersWeighTheSameWhateverTheirSize()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.applyGrabMeterStart('/cache/foo-1.0.hdr', None, None, 3000, None)\n"
           "yumIOC.applyGrabMeterStart('/cache/bar-1.0.hdr', None, None, 2**33, 'bar')");
    QCOMPARE(engine->run.actsDone, 20ULL);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Downloading foo-1.0 header", 3000, 10);
                 model.startItemAct("Downloading bar-1.0 header", 1ULL << 33, 20);
             }));
}

void TestYumIODownload::downloadMovesWithinItsSize()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    SCRIPT("yumIOC.applyGrabMeterStart('x.rpm', None, None, 20000, None)\n"
           "yumIOC.applyGrabMeterUpdate(30000)\nyumIOC.applyGrabMeterEnd(30000)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Downloading x", 20000, 20000);
                 model.setItemValue(20000);
             }));
}

void TestYumIODownload::rateAndTimeLeftAreToldAtTimes()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    QStringList notes;
    // The notes of a Progress of this thread come at once.
    connect(engine->jobs.progress, &Progress::setItemNoteSig, this, [&notes](QString const& note) {
        notes.append(note);
    });
    SCRIPT("class Sized:\n    size = 10 * 1024 * 1024\nyumIOC.reportDownloadSize([Sized()])");
    QCOMPARE(engine->run.reportedBytes, 10ULL * 1024 * 1024);
    auto const after = [this](qint64 milliseconds, long long bytes) {
        engine->run.rate.update(bytes, milliseconds);
        engine->tellRate(milliseconds);
    };
    engine->run.rate.startFile(10LL * 1024 * 1024, 0);
    after(500, 512 * 1024);
    QCOMPARE(notes, QStringList());
    after(1000, 1024 * 1024);
    after(1200, 1200 * 1024);
    after(2000, 2 * 1024 * 1024);
    QCOMPARE(notes, (QStringList{"1.0Mb/s, 9 s left", "1.0Mb/s, 8 s left"}));
    after(20000, 2 * 1024 * 1024 + 36 * 1024);
    QCOMPARE(notes.constLast(), QStringLiteral("2.0Kb/s, 1 h 8 min left"));
    after(40000, 2 * 1024 * 1024 + 36 * 1024);
    QCOMPARE(notes.constLast(), QStringLiteral("0b/s"));
    SCRIPT("yumIOC.applyGrabMeterStart('x.rpm', None, None, 20000, None)\nyumIOC.applyGrabMeterUpdate(9)");
    QVERIFY(engine->run.clock.isValid());
}

void TestYumIODownload::oddNamesAndTextsAreReported()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    SCRIPT("yumIOC.applyGrabMeterStart(None, None, None, 5, None)");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unexpected progress name"});
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Downloading , up to 5"));
    SCRIPT("yumIOC.applyGrabMeterStart(5, None, None, 5, 6)");
    QCOMPARE(
        boxes->takeTexts(),
        (QStringList{
            "Internal error: unexpected progress text", "Internal error: unexpected progress name"}));
    SCRIPT("yumIOC.applyGrabMeterStart('x.rpm', None, None, 5, 6)");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unexpected progress text"});
    QVERIFY(engine->progressRecord.lines.constLast().startsWith("Downloading x, up to 5"));
}

void TestYumIODownload::deltaRebuildEndsTheDownloads()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    SCRIPT("yumIOC.applyGrabMeterStart('a.rpm', None, None, 20000, '<delta rebuild> ')\n"
           "yumIOC.applyGrabMeterStart(None, None, None, 3, b'<delta rebuild>')\n"
           "yumIOC.applyGrabMeterUpdate(3)");
    QVERIFY(engine->run.deltaRebuild);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Downloading a", 20000, 20000);
                 model.endItemActs();
                 model.startItem("Finishing RPM rebuild from deltas", 2000, 3);
                 model.setItemValue(3);
             }));
}

void TestYumIODownload::testBegins()
{
    engine->setVersion("3.2.2");
    SCRIPT("standin.instead('usesPresto', lambda: False)");
    startProgress(8000, 1000000);
    engine->run.actsDone = 5000;
    engine->run.transactionActs = 40000;
    SCRIPT("yumIOC.tsInitCallback(0)\nyumIOC.tsCallback(0x20, 0, 6, None, None)");
    QCOMPARE(engine->run.actsDone, 2000ULL);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.endItemActs();
                 model.startItem("Preparing to Test Transaction", 1000, 1);
                 model.setupItemActs(1000, 2000);
                 model.startItemAct("Transaction Test", 6, 2000);
             }));
}

void TestYumIODownload::testBeginsWithoutReport()
{
    engine->setVersion("3.2.3");
    SCRIPT("standin.instead('usesPresto', lambda: False)");
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsInitCallback(0)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) { model.endItemActs(); }));
}

void TestYumIODownload::stepsOfARebuildThatNeverCameAreSpent()
{
    SCRIPT("standin.instead('usesPresto', lambda: True)");
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsInitCallback(0)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.endItemActs();
                 model.startItem("Finishing RPM rebuild from deltas", 2000, 1);
                 model.setItemValue(1);
             }));
}

void TestYumIODownload::rebuildIsNotEndedTwice()
{
    SCRIPT("standin.instead('usesPresto', lambda: True)");
    startProgress(8000, 1000000);
    engine->run.deltaRebuild = true;
    SCRIPT("yumIOC.tsInitCallback(0)");
    QCOMPARE(engine->progressRecord.lines, QStringList());
}

void TestYumIODownload::transactionBegins()
{
    engine->setVersion("3.2.2");
    startProgress(8000, 1000000);
    engine->run.actsDone = 5000;
    engine->run.transactionActs = 40000;
    SCRIPT("yumIOC.tsInitCallback(7)\nyumIOC.tsCallback(0x20, 0, 6, None, None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.endItemActs();
                 model.startItem("Preparing to Run Transaction", 1000, 1);
                 model.setupItemActs(8000, 42000);
                 model.startItemAct("Transaction Test", 6, 2000);
             }));
}

void TestYumIODownload::transactionBeginsWithoutTest()
{
    engine->setVersion("3.2.3");
    startProgress(8000, 1000000);
    engine->run.actsDone = 5000;
    SCRIPT("yumIOC.tsInitCallback(-1)");
    QCOMPARE(engine->run.actsDone, 0ULL);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItem("Preparing to Run Transaction", 1000, 1);
             }));
}

QTEST_MAIN(TestYumIODownload)
#include "tst_yumiodownload.moc"
