// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"
#include "tests/Eventually.h"

class TestYumIOTransaction final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void callbackBits_data();
    void callbackBits();
    void callbackBitsAreDoneInOrder();
    void callbackPutsIn();
    void callbackTakesOut();
    void callbackOfUnknownPackages();
    void oddCallbackKeysAreReported_data();
    void oddCallbackKeysAreReported();

    void eventsThatPutIn_data();
    void eventsThatPutIn();
    void eventsThatTakeOut_data();
    void eventsThatTakeOut();
    void eventsOfOnePackageOpenOneItem();
    void scriptIsNamedUntilTheNextEvent();
    void availableEventIsIgnored();
    void unknownEventsAreWarnedOf();
    void oddEventPackagesAreReported();
    void valuesOutOfRangeDoNoHarm();

    void outputAtTheEndIsEmpty();
    void localFilesAreTextsOrNothing();
};

void TestYumIOTransaction::init()
{
    EngineTest::init();
    QVERIFY(collected());
}

void TestYumIOTransaction::callbackBits_data()
{
    QTest::addColumn<long>("what");
    QTest::addColumn<int>("value"); // -1: none
    QTest::addColumn<bool>("understood");
    auto const row = [](long what, int value, bool understood = true) {
        QTest::addRow("0x%lx", what) << what << value << understood;
    };
    row(0x001, 40);
    row(0x004, -1);
    row(0x008, -1);
    row(0x00c, -1);
    row(0x010, 40);
    row(0x040, 100);
    row(0x080, 40);
    row(0x200, 100);
    row(0x000, -1, false);
    row(0x400, -1, false);
    row(0x1000, -1, false);
    row(-0x400, -1, false);
    row(0x404, -1);
    row(0x401, 40);
}

void TestYumIOTransaction::callbackBits()
{
    startProgress(8000, 1000000);
    engine->jobs.progress->startItem("An item", 100, 100);
    engine->progressRecord.lines.clear();
    QFETCH(long, what);
    QFETCH(int, value);
    QFETCH(bool, understood);
    // Values within the first hundredth of a second may be dropped.
    EVENTUALLY_VERIFY(
        engine->script(QStringLiteral("yumIOC.tsCallback(%1, 40, 100, None, None)").arg(what)).isEmpty() &&
        (value < 0 || !engine->progressRecord.lines.isEmpty()));
    QCOMPARE(
        engine->progressRecord.lines,
        value < 0 ? QStringList() : QStringList{QStringLiteral("value: %1, at step %1").arg(value)});
    QStringList const reports = boxes->takeTexts();
    QCOMPARE(reports.isEmpty(), understood);
    if (!understood) {
        QCOMPARE(
            reports.constFirst(),
            QStringLiteral("Internal error: YumIO::tsCallback what=%1 not understood; ignoring").arg(what));
    }
}

void TestYumIOTransaction::callbackBitsAreDoneInOrder()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsCallback(0x002 | 0x001, 50000, 50000, ({'name': 'hazel'}, ''), None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Installing hazel", 50000, 150000);
                 model.setItemValue(50000);
             }));
}

void TestYumIOTransaction::callbackPutsIn()
{
    startProgress(8000, 1000000);
    engine->run.updateNames = {"alder"};
    SCRIPT("yumIOC.tsCallback(2, 0, 7, ({'name': 'elm'}, ''), None)\n"
           "yumIOC.tsCallback(2, 0, 7, [{'name': b'hazel'}], None)\n"
           "yumIOC.tsCallback(2, 0, 7, ({'name': 'alder'}, ''), None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Installing elm", 7, 10240);
                 model.startItemAct("Installing hazel", 7, 160240);
                 model.startItemAct("Updating alder", 7, 760240);
             }));
    QCOMPARE(
        engine->logLines(),
        (QStringList{"Installing elm (1)", "Installing hazel (1)", "Updating alder (1)"}));
    QCOMPARE(engine->logLines(Log::Info).size(), 3);
}

void TestYumIOTransaction::callbackTakesOut()
{
    startProgress(8000, 1000000);
    engine->run.updateNames = {"alder", "dogwood"};
    SCRIPT("yumIOC.tsCallback(0x100, 0, 7, 'cedar', None)\nyumIOC.tsCallback(0x100, 0, 7, b'alder', None)\n"
           "yumIOC.tsCallback(0x100, 0, 7, 'elm', None)\nyumIOC.tsCallback(0x100, 0, 7, 'dogwood', None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Removing cedar", 7, 30000);
                 model.startItemAct("Completing update for: alder", 7, 50000);
                 model.startItemAct("Removing elm", 7, 60240);
                 // Nothing of it is installed.
                 model.startItemAct("Completing update for: dogwood", 7, 60240);
             }));
    QCOMPARE(engine->logLines(), QStringList());
}

void TestYumIOTransaction::callbackOfUnknownPackages()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsCallback(2, 0, 7, ({'name': 'nosuch'}, ''), None)\n"
           "yumIOC.tsCallback(0x100, 0, 7, 'nosuch', None)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Installing nosuch", 7, 0);
                 model.startItemAct("Removing nosuch", 7, 0);
             }));
    QVERIFY(!engine->entryHash.contains(YumIO::EntryKey(false, "nosuch")));
}

void TestYumIOTransaction::oddCallbackKeysAreReported_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QString>("report");
    QString const general = "Internal error: python exception occurred from C code\n";
    QTest::newRow("no tuple") << "2, 0, 7, None" << general;
    QTest::newRow("empty tuple") << "2, 0, 7, ()" << general;
    QTest::newRow("no mapping") << "2, 0, 7, (5, '')" << general;
    QTest::newRow("no name") << "2, 0, 7, ({}, '')" << general;
    QTest::newRow("odd name") << "2, 0, 7, ({'name': 5}, '')"
                              << "Internal error: YumIO::pyString did not understand type";
    QTest::newRow("no text") << "0x100, 0, 7, 5"
                             << "Internal error: YumIO::pyString did not understand type";
}

void TestYumIOTransaction::oddCallbackKeysAreReported()
{
    startProgress(8000, 1000000);
    QFETCH(QString, call);
    QFETCH(QString, report);
    // A transaction that rpm has begun must not be stopped by a callback.
    QCOMPARE(engine->script(QStringLiteral("yumIOC.tsCallback(%1, None)").arg(call)), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{report});
}

void TestYumIOTransaction::eventsThatPutIn_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("10") << "Updating hazel";
    QTest::newRow("60") << "Updating hazel";
    QTest::newRow("20") << "Installing hazel";
    QTest::newRow("30") << "Installing hazel";
}

void TestYumIOTransaction::eventsThatPutIn()
{
    startProgress(8000, 1000000);
    QFETCH(QString, text);
    QCOMPARE(
        engine->script(
            QStringLiteral("yumIOC.tsEvent(standin.world.find('available', 'hazel'), %1, 9, 9, 1, 4)")
                .arg(QTest::currentDataTag())),
        QString());
    QCOMPARE(engine->progressRecord.lines, told([&](Progress& model) {
                 model.startItemAct(text, 9, 150000);
                 model.setItemValue(9);
             }));
    QCOMPARE(engine->logLines(Log::Info), QStringList{text + " (1)"});
}

void TestYumIOTransaction::eventsThatTakeOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<unsigned long long>("acts");
    QTest::newRow("40") << "Removing alder" << 200000ULL;
    QTest::newRow("90") << "Completing update for: alder" << 20000ULL;
    QTest::newRow("50") << "Completing update for: alder" << 20000ULL;
}

void TestYumIOTransaction::eventsThatTakeOut()
{
    startProgress(8000, 1000000);
    QFETCH(QString, text);
    QFETCH(unsigned long long, acts);
    QCOMPARE(
        engine->script(
            QStringLiteral("yumIOC.tsEvent('alder', %1, 9, 9, 1, 4)").arg(QTest::currentDataTag())),
        QString());
    QCOMPARE(engine->progressRecord.lines, told([&](Progress& model) {
                 model.startItemAct(text, 9, acts);
                 model.setItemValue(9);
             }));
    QCOMPARE(engine->logLines(), QStringList());
}

void TestYumIOTransaction::eventsOfOnePackageOpenOneItem()
{
    startProgress(8000, 1000000);
    SCRIPT("for done in (0, 4, 9):\n    yumIOC.tsEvent('cedar', 40, done, 9, 3, 4)\n"
           "yumIOC.tsEvent('cedar', 40, 0, 9, 4, 4)");
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startItemAct("Removing cedar", 9, 30000);
                 model.setItemValue(9);
                 model.startItemAct("Removing cedar", 9, 60000);
             }));
    QCOMPARE(engine->run.lastEventPkg, 4ULL);
}

void TestYumIOTransaction::scriptIsNamedUntilTheNextEvent()
{
    startProgress(8000, 1000000);
    QStringList notes;
    connect(engine->jobs.progress, &Progress::setItemNoteSig, this, [&notes](QString const& note) {
        notes.append(note);
    });
    SCRIPT("yumIOC.tsEvent('cedar', 40, 0, 9, 3, 4)\nyumIOC.scriptRuns('cedar')\nyumIOC.scriptRuns('elm')");
    QCOMPARE(notes, (QStringList{"script of cedar", "script of elm"}));
    SCRIPT("yumIOC.tsEvent('cedar', 40, 9, 9, 3, 4)\nyumIOC.tsEvent('cedar', 40, 9, 9, 3, 4)");
    QCOMPARE(notes.mid(2), QStringList(QString()));
}

void TestYumIOTransaction::availableEventIsIgnored()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsEvent(None, 70, 9, 9, 1, 4)");
    QCOMPARE(engine->progressRecord.lines, QStringList());
    QCOMPARE(engine->run.lastEventPkg, 0ULL);
}

void TestYumIOTransaction::unknownEventsAreWarnedOf()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsEvent('cedar', 80, 9, 9, 1, 4)\nyumIOC.tsEvent('cedar', -1, 9, 9, 2, 4)");
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: YumIO::tsEvent action=80 not understood; ignoring",
                                "Internal error: YumIO::tsEvent action=-1 not understood; ignoring"}));
    QCOMPARE(engine->progressRecord.lines, QStringList());
}

void TestYumIOTransaction::oddEventPackagesAreReported()
{
    startProgress(8000, 1000000);
    SCRIPT("yumIOC.tsEvent('cedar', 20, 9, 9, 1, 4)");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: pyString passed NULL python object\n"});
    SCRIPT("yumIOC.tsEvent(object(), 40, 9, 9, 2, 4)");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: YumIO::pyString did not understand type"});
    SCRIPT("yumIOC.tsEvent('nosuch', 90, 9, 9, 3, 4)");
}

void TestYumIOTransaction::valuesOutOfRangeDoNoHarm()
{
    startProgress(8000, 1000000);
    engine->run.applyConfirmed = true;
    SCRIPT("import itertools\n"
           "edges = (-2**63, -1, 0, 1, 2**31, 2**63 - 1)\n"
           "for amount, total in itertools.product(edges, edges):\n"
           "    yumIOC.tsCallback(0x3ff, amount, total, 'cedar', None)\n"
           "    yumIOC.tsCallback(0x3fd, amount, total, 'cedar', None)\n"
           "    yumIOC.tsEvent('cedar', 40, amount, total, amount, total)\n"
           "    yumIOC.applyGrabMeterStart('x.rpm', None, None, total, None)\n"
           "    yumIOC.applyGrabMeterUpdate(amount)\n"
           "    yumIOC.applyGrabMeterStart('x.rpm', None, None, total, '<delta rebuild>')\n"
           "    yumIOC.collectProgress(amount, total, 'x')\n"
           "    yumIOC.collectGrabMeterStart('x', '', '', total, None)\n"
           "    yumIOC.collectGrabMeterUpdate(amount)\n"
           "    yumIOC.tsInitCallback(amount)");
    boxes->take();
    QVERIFY(!engine->progressRecord.lines.isEmpty());
}

void TestYumIOTransaction::outputAtTheEndIsEmpty()
{
    startProgress(8000, 1000000);
    SCRIPT("import types\n"
           "from standintransaction import Member, TsInfo\n"
           "def one(kind, name): return [Member(standin.world.find(kind, name))]\n"
           "holder = types.SimpleNamespace(tsInfo=TsInfo(standin.era, removed=one('installed', 'cedar'),\n"
           "    depremoved=one('installed', 'birch'), installed=one('available', 'elm'),\n"
           "    depinstalled=one('available', 'ivy'), updated=one('updates', 'alder'),\n"
           "    depupdated=one('updates', 'dogwood'), obsoleted=one('available', 'fir')))");
    QCOMPARE(engine->value("repr(yumIOC.postTransactionOutput(holder))"), QStringLiteral("''"));
    QCOMPARE(
        engine->run.transactionText,
        QStringLiteral("\tRemoved: cedar 1.0-1 (noarch)\n\tDependency Removed: birch 1:3.1-2 (noarch)\n"
                       "\tInstalled: elm 1.0-1 (noarch)\n\tDependency Installed: ivy 1.0-1 (noarch)\n"
                       "\tUpdated: alder 2.0-1 (x86_64)\n\tDependency Updated: dogwood 5.0-1 (noarch)\n"
                       "\tObsoleted: fir 2:1.5-3.1 (noarch)\n"));
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) { model.endItemActs(); }));
    SCRIPT("holder.tsInfo.plain_lists['installed'] = [object()]");
    QVERIFY(engine->script("yumIOC.postTransactionOutput(holder)").contains("txmbr lacks pkgtup"));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: txmbr lacks pkgtup\n"});
    QVERIFY(engine->run.transactionText.endsWith("birch 1:3.1-2 (noarch)\n"));
}

void TestYumIOTransaction::localFilesAreTextsOrNothing()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const package = engine->object(
        "__import__('types').SimpleNamespace(localPkg=lambda: b'/a.rpm', localHdr=lambda: None)");
    QCOMPARE(engine->getLocalPkg(package.get()), QStringLiteral("/a.rpm"));
    QCOMPARE(engine->getLocalHdr(package.get()), QString());
    PyRef const bare = engine->object("object()");
    QCOMPARE(engine->getLocalPkg(bare.get()), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method localPkg not found\n"});
}

QTEST_MAIN(TestYumIOTransaction)
#include "tst_yumiotransaction.moc"
