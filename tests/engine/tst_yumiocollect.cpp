// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"
#include "base/Interrupt.h"

class TestYumIOCollect final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void repositoriesAreSwitchedAsWanted();
    void unknownRepositoriesAreSkipped();
    void repositoryThatCannotBeSwitchedIsWarnedOf();
    void unexpectedFailureOfSwitchingGoesOn();
    void noRepositoryEnabledEndsTheCollection();
    void noRepositoryConfiguredEndsTheCollection();
    void enabledHasToBeANumber();
    void repositoriesHaveToBeThere_data();
    void repositoriesHaveToBeThere();

    void lockIsTakenOncePerProcess();
    void transactionOfAnotherProcessIsShownWhileTheLockIsWaitedFor();
    void refusedLockIsTriedAgain();
    void lockThatBreaksIsNoLock();
    void expectedFailures_data();
    void expectedFailures();
    void debuggerQuitEndsAStep_data();
    void debuggerQuitEndsAStep();
    void unexpectedFailures_data();
    void unexpectedFailures();

    void emptyListsAreFine();
    void resultsThatAreNoLists_data();
    void resultsThatAreNoLists();
    void iterationThatBreaksFailsTheCollection();
    void severalInstalledVersionsMakeAChain();
    void packageWithoutMembersIsReportedAndKept();
    void packageWithoutFieldsHarmsNoOther();

    void whatIsIncompleteIsKeptUntilTheNextCollectionThatSucceeds();
    void answerAboutWhatIsIncompleteThatIsNone_data();
    void answerAboutWhatIsIncompleteThatIsNone();

    void plainValuesStandForMethods();
    void pairsBringThePlainValues();
    void oddPlainValuesAreAskedForTheLongWay();
    void barsShowTheWork();
    void clearStartsAfresh();
    void failedCollectionLeavesNoRows();
};

void TestYumIOCollect::repositoriesAreSwitchedAsWanted()
{
    QVERIFY(engine->collect({{"testing", true}, {"updates", false}}));
    QStringList calls = engine->calls().filter("ableRepo");
    calls.sort();
    QCOMPARE(calls, (QStringList{"disableRepo(updates)", "enableRepo(testing)"}));
    QCOMPARE(engine->repoNames, (QStringList{"base", "testing"}));
}

void TestYumIOCollect::unknownRepositoriesAreSkipped()
{
    QVERIFY(engine->collect({{"unheard-of", true}, {QStringLiteral("caf\u00e9"), false}}));
    QCOMPARE(engine->calls().filter("ableRepo"), QStringList());
    QCOMPARE(engine->repoNames, (QStringList{"base", "updates"}));
}

void TestYumIOCollect::repositoryThatCannotBeSwitchedIsWarnedOf()
{
    SCRIPT("def enableRepo(name):\n"
           "    raise yum.Errors.RepoError('no url')\n"
           "setup = YumIO.__init__\n"
           "def construct(self):\n"
           "    setup(self)\n"
           "    self.repos.enableRepo = enableRepo\n"
           "YumIO.__init__ = construct");
    engine->clear();
    QVERIFY(engine->collect({{"testing", true}, {"updates", false}}));
    QCOMPARE(
        boxes->take(),
        (QList<Boxes::Box>{{"VEM Yum Warning", "unable to setup repository testing:\nno url", {"OK"}}}));
    QCOMPARE(engine->repoNames, QStringList{"base"});
}

void TestYumIOCollect::unexpectedFailureOfSwitchingGoesOn()
{
    SCRIPT("setup = YumIO.__init__\n"
           "def construct(self):\n"
           "    setup(self)\n"
           "    self.repos.enableRepo = lambda name: 1/0\n"
           "YumIO.__init__ = construct");
    engine->clear();
    QVERIFY(engine->collect({{"testing", true}}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
}

void TestYumIOCollect::noRepositoryEnabledEndsTheCollection()
{
    QVERIFY(!engine->collect({{"base", false}, {"updates", false}, {"testing", false}}));
    QCOMPARE(
        boxes->takeTexts(),
        QStringList{"No repositories are enabled.\nUnder the Repositories menu, Edit Configuration can be "
                    "used to configure repositories."});
    QCOMPARE(engine->count(), 0);
    QVERIFY(!engine->calls().contains("setupRepos"));
}

void TestYumIOCollect::noRepositoryConfiguredEndsTheCollection()
{
    SCRIPT("standin.world.repos.clear()");
    QVERIFY(!engine->collect({}));
    QCOMPARE(
        boxes->takeTexts(),
        QStringList{"No repositories are configured.\nUnder the Repositories menu, Edit Configuration can "
                    "be used to configure repositories."});
    QCOMPARE(engine->count(), 0);
}

void TestYumIOCollect::enabledHasToBeANumber()
{
    SCRIPT("standin.world.repos['base'].enabled = 'yes'\ndel standin.world.repos['testing'].enabled\n"
           "standin.world.repos['updates'].enabled = True");
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->repoNames, QStringList{"updates"});
}

void TestYumIOCollect::repositoriesHaveToBeThere_data()
{
    QTest::addColumn<QString>("repos");
    QTest::addColumn<QString>("report");
    QTest::newRow("no object") << "None"
                               << "Internal error: yumIO.repos.repos not evaluable";
    QTest::newRow("list") << "__import__('types').SimpleNamespace(repos=['base'])"
                          << "Internal error: yumIO.repos.repos not a dictionary";
}

void TestYumIOCollect::repositoriesHaveToBeThere()
{
    QFETCH(QString, repos);
    QCOMPARE(
        engine->script(QStringLiteral("setup = YumIO.__init__\n"
                                      "def construct(self):\n"
                                      "    setup(self)\n"
                                      "    self.repos = %1\n"
                                      "YumIO.__init__ = construct")
                           .arg(repos)),
        QString());
    engine->clear();
    QVERIFY(!engine->collect({{"base", true}}));
    QFETCH(QString, report);
    QCOMPARE(boxes->takeTexts(), QStringList{report});
}

void TestYumIOCollect::lockIsTakenOncePerProcess()
{
    QVERIFY(engine->collect({}));
    engine->clear();
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->calls().count("lock"), 1);
    QCOMPARE(engine->calls().count("YumIO()"), 1);
}

void TestYumIOCollect::transactionOfAnotherProcessIsShownWhileTheLockIsWaitedFor()
{
    SCRIPT("import types\n"
           "def lock():\n"
           "    yumIOC.tsInitCallback(1)\n"
           "    yumIOC.tsEvent(types.SimpleNamespace(name='elsewhere'), 10, 0, 50, 1, 2)\n"
           "    yumIOC.tsEvent('elsewhere', 90, 1, 1, 2, 2)\n"
           "standin.instead('lock', lock)");
    QVERIFY(engine->collect({}));
    QStringList const shown = told([](Progress& progress) {
        progress.reset();
        progress.startTotal("Running Transaction: Total Progress", 9000);
        progress.startItem("Preparing to Run Transaction", 1000, 1);
        progress.setupItemActs(8000, 2);
        progress.startItemAct("Updating elsewhere", 50, 1);
        progress.setItemValue(0);
        progress.startItemAct("Completing update for: elsewhere", 1, 2);
        progress.setItemValue(1);
        progress.reset();
        progress.startTotal("Initializing: Total Progress", 24000);
    });
    QStringList const lines = engine->progressRecord.lines;
    qsizetype const begin = lines.indexOf(shown.at(1)) - 1;
    QVERIFY(begin > 0);
    QCOMPARE(lines.mid(begin, shown.size()), shown);
    QVERIFY(engine->logLines(Log::Info).contains("Updating elsewhere (1)"));
    QVERIFY(engine->locked);
    // SIGINT ends the process at any moment: the transaction is not this one's.
    QVERIFY(!Interrupt::transactionEnds());
}

void TestYumIOCollect::refusedLockIsTriedAgain()
{
    SCRIPT("standin.fail('lock', yum.Errors.LockError('held by 42'))");
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "Unable to obtain yum lock", {"Close"}}}));
    QVERIFY(!engine->locked);
    QCOMPARE(engine->count(), 0);
    QVERIFY(!engine->calls().contains("setupRepos"));
    SCRIPT("standin.instead('lock', lambda: None)");
    engine->clear();
    QVERIFY(engine->collect({}));
    QVERIFY(engine->locked);
    QCOMPARE(engine->calls().count("lock"), 2);
}

void TestYumIOCollect::lockThatBreaksIsNoLock()
{
    SCRIPT("standin.fail('lock', ValueError('broken'))");
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(!engine->locked);
}

void TestYumIOCollect::expectedFailures_data()
{
    QTest::addColumn<QString>("exception");
    QTest::addColumn<QString>("report");
    QTest::newRow("setupRepos") << "RepoError"
                                << "Unable to initialize";
    QTest::newRow("setupTs") << "YumBaseError"
                             << "Unable to setup transaction";
    QTest::newRow("collectUpdates") << "YumBaseError"
                                    << "Unable to collect updatable packages";
    QTest::newRow("collectAll") << "YumBaseError"
                                << "Unable to collect installed and available packages";
    QTest::newRow("setupTsGroup") << "YumBaseError"
                                  << "Unable to collect groups";
}

void TestYumIOCollect::expectedFailures()
{
    QFETCH(QString, exception);
    QCOMPARE(
        engine->script(QStringLiteral("standin.fail('%1', yum.Errors.%2('it broke'))")
                           .arg(QTest::currentDataTag(), exception)),
        QString());
    QVERIFY(!engine->collect({}));
    QFETCH(QString, report);
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "it broke\n" + report, {"Close"}}}));
    QCOMPARE(engine->count(), 0);
    QCOMPARE(engine->calls().constLast(), QString::fromLatin1(QTest::currentDataTag()));
}

void TestYumIOCollect::debuggerQuitEndsAStep_data()
{
    QTest::addColumn<QString>("report");
    QTest::newRow("setupRepos") << "Unable to initialize";
    QTest::newRow("setupTs") << "Unable to setup transaction";
    QTest::newRow("collectUpdates") << "Unable to collect updatable packages";
    QTest::newRow("collectAll") << "Unable to collect installed and available packages";
}

void TestYumIOCollect::debuggerQuitEndsAStep()
{
    QCOMPARE(
        engine->script(
            QStringLiteral("import bdb\nstandin.fail('%1', bdb.BdbQuit())").arg(QTest::currentDataTag())),
        QString());
    QVERIFY(!engine->collect({}));
    QFETCH(QString, report);
    QCOMPARE(boxes->takeTexts(), QStringList{"\n" + report});
}

void TestYumIOCollect::unexpectedFailures_data()
{
    QTest::addColumn<bool>("goesOn");
    QTest::addColumn<QString>("report");
    QTest::newRow("setupRepos") << true << QString();
    QTest::newRow("setupTs") << true << QString();
    QTest::newRow("collectUpdates") << false << "Internal error: execution of yumIO.collectUpdates failed";
    QTest::newRow("collectAll") << false << "Internal error: execution of yumIO.collectAll failed";
    QTest::newRow("setupTsGroup") << true << QString();
    QTest::newRow("collectGroupInfo")
        << false << "Internal error: execution of yumIO.collectGroupInfo failed";
}

void TestYumIOCollect::unexpectedFailures()
{
    QFETCH(bool, goesOn);
    QFETCH(QString, report);
    for (QString const& breakage :
         {QStringLiteral("standin.fail('%1', ValueError('odd'))"), QStringLiteral("standin.without('%1')")}) {
        engine->reset();
        QCOMPARE(engine->script(breakage.arg(QTest::currentDataTag())), QString());
        QCOMPARE(engine->collect({}), goesOn);
        QCOMPARE(engine->count() > 0, goesOn);
        QStringList const reports = boxes->takeTexts();
        QCOMPARE(reports.size(), goesOn ? 1 : 2);
        QCOMPARE(reports.value(1), report);
    }
}

void TestYumIOCollect::emptyListsAreFine()
{
    SCRIPT("standin.instead('collectUpdates', lambda: [])\n"
           "standin.world.installed = ()\nstandin.world.available = []\nstandin.world.groups = {}");
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->count(), 0);
}

void TestYumIOCollect::resultsThatAreNoLists_data()
{
    QTest::addColumn<QString>("method");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("report");
    QString const general = "Internal error: python exception occurred from C code\n";
    QTest::newRow("updates none") << "collectUpdates"
                                  << "None" << general;
    QTest::newRow("all none") << "collectAll"
                              << "None"
                              << "Internal error: yumIO.collectAll.installed not found";
    QTest::newRow("no available") << "collectAll"
                                  << "__import__('types').SimpleNamespace(installed=[])"
                                  << "Internal error: yumIO.collectAll.available not found";
    QTest::newRow("installed none") << "collectAll"
                                    << "__import__('types').SimpleNamespace(installed=None, available=[])"
                                    << general;
    QTest::newRow("groups none") << "collectGroupInfo"
                                 << "None" << general;
}

void TestYumIOCollect::resultsThatAreNoLists()
{
    QFETCH(QString, method);
    QFETCH(QString, answer);
    QCOMPARE(
        engine->script(QStringLiteral("standin.instead('%1', lambda: %2)").arg(method, answer)), QString());
    QVERIFY(!engine->collect({}));
    QTEST(boxes->takeTexts().value(0), "report");
    QCOMPARE(boxes->takeTexts().size(), 0);
}

void TestYumIOCollect::iterationThatBreaksFailsTheCollection()
{
    SCRIPT("def answer():\n"
           "    yield standin.world.updates[0]\n"
           "    raise ValueError('half-way')\n"
           "standin.instead('collectUpdates', answer)");
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QCOMPARE(engine->count(), 0);
}

void TestYumIOCollect::severalInstalledVersionsMakeAChain()
{
    SCRIPT("for number in range(3, 3000):\n"
           "    standin.world.installed.append(standin.world.installed[0])");
    QVERIFY(engine->collect({}));
    int links = 0;
    for (Package::Entry const* link = package("alder")->installed; link; link = link->installed) {
        ++links;
    }
    QCOMPARE(links, 2999);
    QCOMPARE(package("alder")->installed->verRel, QStringLiteral("1.0-1"));
    QCOMPARE(package("alder")->installed->installed->verRel, QStringLiteral("0.9-1"));
    // Only the head stands in the table.
    QCOMPARE(engine->count(), 12);
    QVERIFY(!package("birch")->installed);
    QCOMPARE(package("birch")->verRel, QStringLiteral("1:3.1-2"));
    QVERIFY(!package("dogwood")->installed);
    QCOMPARE(package("dogwood")->state, Package::OutOfDate);
    engine->clear();
    QCOMPARE(engine->value("__import__('sys').getrefcount(standin.world.installed[0]) < 3010"), "True");
}

void TestYumIOCollect::packageWithoutMembersIsReportedAndKept()
{
    SCRIPT("class Bare:\n    name = 'bare'\n    returnSimple = {}.__getitem__\n"
           "standin.world.updates = []\nstandin.world.installed = []\nstandin.world.available = [Bare()]\n"
           "standin.world.groups = {}");
    QVERIFY(engine->collect({}));
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: method printVer not found\n",
                                "Internal error: pyString passed NULL python object\n",
                                "Internal error: pyString passed NULL python object\n",
                                "Internal error: package size not understood",
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: time not understood"}));
    Package::Entry const* const bare = package("bare");
    QVERIFY(bare);
    QCOMPARE(bare->verRel + bare->repo + bare->arch + bare->summary, QString());
    QCOMPARE(bare->sizeText, QStringLiteral("0b"));
}

void TestYumIOCollect::packageWithoutFieldsHarmsNoOther()
{
    // In the end of its list nothing comes after it that would take away the exception.
    SCRIPT("class Bare:\n"
           "    def __init__(self, name):\n        self.name = name\n"
           "    arch, size = 'noarch', 5\n"
           "    def printVer(self):\n        return '1-1'\n"
           "standin.world.updates.append(Bare('bare'))\n"
           "standin.world.installed.append(Bare('plain'))\n"
           "standin.world.available.append(Bare('last'))");
    QVERIFY(engine->collect({}));
    QVERIFY(boxes->takeTexts().contains("Internal error: method returnSimple not found\n"));
    QCOMPARE(engine->count(), 12 + 3);
    QCOMPARE(package("bare")->state, Package::OutOfDate);
    QCOMPARE(package("plain")->state, Package::UpToDate);
    QCOMPARE(package("last")->state, Package::Available);
    QCOMPARE(package("last")->verRel, QStringLiteral("1-1"));
    QCOMPARE(package("last")->summary + package("last")->repo, QString());
}

void TestYumIOCollect::plainValuesStandForMethods()
{
    // What isn't there can't be asked for without a report.
    SCRIPT("class Quick:\n"
           "    plain = ('rowan', 'noarch', '1:2-3', 2048, 'Suite', 'A tree\\n\\n', 0, 'hedge')\n"
           "standin.world.updates = []\nstandin.world.installed = []\nstandin.world.available = [Quick()]\n"
           "standin.world.groups = {}");
    QVERIFY(engine->collect({}));
    Package::Entry const* const rowan = package("rowan");
    QVERIFY(rowan);
    QCOMPARE(
        (QStringList{rowan->verRel, rowan->arch, rowan->repo, rowan->summary, rowan->sizeText}),
        (QStringList{"1:2-3", "noarch", "hedge", "A tree", "2.0Kb"}));
    QCOMPARE(rowan->size, 2048ULL);
    QCOMPARE(rowan->kind, Package::Suite);
    QCOMPARE(rowan->buildTimeText, QStringLiteral("Thu Jan  1 00:00:00 1970"));
}

void TestYumIOCollect::pairsBringThePlainValues()
{
    // The first has no values of its own, the second none at all, and what comes with the third are too few.
    SCRIPT("class Silent: pass\n"
           "class Slow:\n"
           "    arch, size = 'noarch', 1024\n"
           "    def __init__(self, name):\n        self.name = name\n"
           "    def printVer(self):\n        return '2-3'\n"
           "    def returnSimple(self, key):\n"
           "        return {'group': '', 'repoid': 'wood', 'summary': 'Asked', 'buildtime': 0}[key]\n"
           "class Pairs:\n"
           "    def __iter__(self):\n        raise KeyError('asked by itself')\n"
           "    def withPlain(self):\n"
           "        yield Silent(), ('rowan', 'noarch', '1-1', 2048, 'Suite', 'A tree', 0, 'hedge')\n"
           "        yield Slow('alder'), None\n"
           "        yield Slow('hazel'), ('elder', 'noarch')\n"
           "standin.world.updates = []\nstandin.world.installed = []\nstandin.world.available = Pairs()\n"
           "standin.world.groups = {}");
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->count(), 3);
    QVERIFY(package("rowan") && package("alder") && package("hazel"));
    QCOMPARE(package("rowan")->repo, QStringLiteral("hedge"));
    QCOMPARE(package("rowan")->kind, Package::Suite);
    QCOMPARE(package("alder")->repo, QStringLiteral("wood"));
    QCOMPARE(package("hazel")->summary, QStringLiteral("Asked"));
}

void TestYumIOCollect::oddPlainValuesAreAskedForTheLongWay()
{
    SCRIPT("class Slow:\n"
           "    name, arch, size, repoid = 'rowan', 'noarch', '2048', 'hedge'\n"
           "    plain = (b'rowan', 5, 5, '2048', 5, 5, '86400', 5)\n"
           "    def printVer(self):\n"
           "        return '2-3'\n"
           "    def returnSimple(self, key):\n"
           "        return {'group': 'Suite', 'repoid': 'hedge', 'summary': 'A tree', 'buildtime': "
           "'86400'}[key]\n"
           "standin.world.updates = []\nstandin.world.installed = []\nstandin.world.available = [Slow()]\n"
           "standin.world.groups = {}");
    QVERIFY(engine->collect({}));
    Package::Entry const* const rowan = package("rowan");
    QVERIFY(rowan);
    QCOMPARE(
        (QStringList{rowan->verRel, rowan->arch, rowan->repo, rowan->summary, rowan->sizeText}),
        (QStringList{"2-3", "noarch", "hedge", "A tree", "2.0Kb"}));
    QCOMPARE(rowan->kind, Package::Suite);
    QCOMPARE(rowan->buildTime, 86400LL);
}

void TestYumIOCollect::whatIsIncompleteIsKeptUntilTheNextCollectionThatSucceeds()
{
    // A script that doesn't know the question.
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->incomplete(), QStringList());
    SCRIPT("standin.instead('incomplete', lambda: ['extras: skipped', 'caf\\u00e9\\nbroken'])");
    engine->clear();
    QVERIFY(engine->collect({}));
    QStringList const told{"extras: skipped", QStringLiteral("caf\u00e9\nbroken")};
    QCOMPARE(engine->incomplete(), told);
    SCRIPT("standin.fail('setupRepos', yum.Errors.RepoError('no mirror left'))");
    engine->clear();
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts().size(), 1);
    QCOMPARE(engine->incomplete(), told);
    SCRIPT("standin.reset()\nstandin.instead('incomplete', lambda: [])");
    engine->clear();
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->incomplete(), QStringList());
    SCRIPT("standin.without('incomplete')");
}

void TestYumIOCollect::answerAboutWhatIsIncompleteThatIsNone_data()
{
    QTest::addColumn<QString>("answer");
    for (char const* answer : {"None", "'text'", "('text',)", "['text', 7]"}) {
        QTest::newRow(answer) << QString::fromLatin1(answer);
    }
}

void TestYumIOCollect::answerAboutWhatIsIncompleteThatIsNone()
{
    QFETCH(QString, answer);
    QCOMPARE(
        engine->script(QStringLiteral("standin.instead('incomplete', lambda: %1)").arg(answer)), QString());
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: execution of yumIO.incomplete failed"});
    QCOMPARE(engine->incomplete(), QStringList());
    QCOMPARE(engine->count(), 12);
    SCRIPT("standin.without('incomplete')");
}

void TestYumIOCollect::barsShowTheWork()
{
    SCRIPT("def answer():\n"
           "    yumIOC.collectGrabMeterStart('/base/repomd.xml', '', '', 70, None)\n"
           "    yumIOC.collectGrabMeterUpdate(70)\n"
           "    yumIOC.collectGrabMeterStart('/base/x', '', '', 'a size', None)\n"
           "standin.instead('setupRepos', answer)");
    QStringList shown;
    boxes->whileShown([&] {
        shown = {
            totalBar->text(), QString::number(totalBar->maximum()), QString::number(totalBar->value()),
            itemBar->text(), QString::number(itemBar->maximum())};
    });
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->take().size(), 1);
    // Two acts of ten: 1000 + 2800 of 24000.
    QCOMPARE(
        shown, (QStringList{
                   "Initializing: Total Progress (15%)", "24000", "3800",
                   "Downloading repository contents repomd for base (100%)", "70"}));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(totalBar->text() + itemBar->text(), QString());
    QVERIFY(!totalBar->isEnabled() && !itemBar->isEnabled());
}

void TestYumIOCollect::clearStartsAfresh()
{
    QVERIFY(engine->collect({}));
    engine->collectFileLists();
    QVERIFY(engine->fileListsCollected);
    SCRIPT("standin.calls.clear()");
    engine->clear();
    QCOMPARE(engine->calls(), (QStringList{"flush", "YumIO()"}));
    QCOMPARE(engine->count(), 0);
    QVERIFY(engine->entryHash.isEmpty());
    QVERIFY(engine->locked);
    QVERIFY(engine->collect({}));
    QVERIFY(!engine->fileListsCollected);
    QCOMPARE(engine->count(), 12);
    package("elm")->action = Package::Install;
    engine->clear();
    QVERIFY(engine->collect({}));
    QCOMPARE(package("elm")->action, Package::None);
}

void TestYumIOCollect::failedCollectionLeavesNoRows()
{
    SCRIPT("standin.fail('collectAll', yum.Errors.YumBaseError('it broke'))");
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts().size(), 1);
    QCOMPARE(engine->count(), 0);
    QVERIFY(!engine->entryHash.isEmpty());
    engine->clear();
    QVERIFY(engine->entryHash.isEmpty());
}

QTEST_MAIN(TestYumIOCollect)
#include "tst_yumiocollect.moc"
