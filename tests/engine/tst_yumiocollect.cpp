// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

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
    void fieldsOfAnEntry();

    void noGroupsAtAllIsNormal_data();
    void noGroupsAtAllIsNormal();
    void otherGroupErrorsFail();
    void unexpectedGroupErrorGoesOn();
    void oddGroups_data();
    void oddGroups();
    void oddGroupsByName_data();
    void oddGroupsByName();
    void firstGroupOfANameStands();

    void clearStartsAfresh();
    void failedCollectionLeavesNoRows();
    void keysOfGroupsAndPackagesDiffer();
    void textsOfStatesAndKinds();
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

void TestYumIOCollect::fieldsOfAnEntry()
{
    QVERIFY(engine->collect({}));
    Package::Entry const& fir = *package("fir");
    QCOMPARE(fir.action, Package::None);
    QCOMPARE(fir.kind, Package::Suite);
    QCOMPARE(fir.size, 70000ULL);
    QCOMPARE(fir.buildTime, 86400);
    QCOMPARE(engine->getName(fir), QStringLiteral("fir"));
    QCOMPARE(engine->getVerRel(fir), QStringLiteral("2:1.5-3.1"));
    QCOMPARE(engine->getRepo(fir), QStringLiteral("base"));
    QCOMPARE(engine->getArch(fir), QStringLiteral("noarch"));
    QCOMPARE(engine->getSize(fir), QStringLiteral("68Kb"));
    QCOMPARE(engine->getSummary(fir), QStringLiteral("A tree called fir"));
    QCOMPARE(engine->getBuildTime(fir), QStringLiteral("Fri Jan  2 00:00:00 1970"));
    QCOMPARE(engine->getGroup(fir), QStringLiteral("Suite"));
    QCOMPARE(engine->getLicense(fir), QStringLiteral("GPLv2+"));
    QCOMPARE(engine->getUrl(fir), QStringLiteral("http://example.org/fir"));
    QCOMPARE(engine->getSourceRpm(fir), QStringLiteral("fir-1.5-3.1.src.rpm"));
    QCOMPARE(engine->getBuildHost(fir), QString());
    TestEngine::PyGILStateWrapper const lock(true);
    QVERIFY(fir.pyObject.get() == engine->object("standin.world.find('available', 'fir')").get());
}

void TestYumIOCollect::noGroupsAtAllIsNormal_data()
{
    QTest::addColumn<QString>("exception");
    QTest::newRow("groups error") << "yum.Errors.GroupsError('No Groups Available in any repository')";
    QTest::newRow("debugger quit") << "bdb.BdbQuit('No Groups Available')";
}

void TestYumIOCollect::noGroupsAtAllIsNormal()
{
    QFETCH(QString, exception);
    QCOMPARE(engine->script("import bdb\nstandin.fail('setupTsGroup', " + exception + ")"), QString());
    QVERIFY(engine->collect({}));
    QVERIFY(engine->calls().contains("collectGroupInfo"));
    QVERIFY(group("Trees"));
}

void TestYumIOCollect::otherGroupErrorsFail()
{
    for (QString const& exception :
         {QStringLiteral("yum.Errors.GroupsError('no groups available')"), QStringLiteral("bdb.BdbQuit()")}) {
        engine->reset();
        QCOMPARE(engine->script("import bdb\nstandin.fail('setupTsGroup', " + exception + ")"), QString());
        QVERIFY(!engine->collect({}));
        QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: execution of yumIO.setupTsGroup failed"});
        QCOMPARE(engine->count(), 0);
    }
}

void TestYumIOCollect::unexpectedGroupErrorGoesOn()
{
    SCRIPT("standin.fail('setupTsGroup', ValueError('No Groups Available'))");
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(group("Trees"));
}

void TestYumIOCollect::oddGroups_data()
{
    QTest::addColumn<QString>("change"); // of the list `groups`
    QTest::addColumn<bool>("collected");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("no name") << "del groups[1].name" << false
                             << QStringList{"Internal error: group without name"};
    QTest::newRow("no flag") << "del groups[1].installed" << false
                             << QStringList{"Internal error: cannot find group's installed flag"};
    QTest::newRow("no visibility") << "del groups[1].user_visible" << true << QStringList();
    QTest::newRow("odd visibility")
        << "groups[1].user_visible = type('B', (), {'__bool__': lambda self: 1/0})()" << true
        << QStringList();
    QTest::newRow("odd flag") << "groups[1].installed = type('B', (), {'__bool__': lambda self: 1/0})()"
                              << true << QStringList();
    QTest::newRow("installed, no lists") << "del groups[0].mandatory_packages" << true
                                         << QStringList{"Internal error: group mandatory_packages.Trees not "
                                                        "evaluable"};
    QTest::newRow("number for a list") << "groups[0].mandatory_packages = 5" << true << QStringList();
    QTest::newRow("number for a group") << "groups.insert(0, 5)" << true << QStringList();
}

void TestYumIOCollect::oddGroups()
{
    QFETCH(QString, change);
    QCOMPARE(
        engine->script(QStringLiteral("collect = YumIO.collectGroupInfo\n"
                                      "def answer():\n"
                                      "    groups = collect(None)\n"
                                      "    %1\n"
                                      "    return groups\n"
                                      "standin.instead('collectGroupInfo', answer)")
                           .arg(change)),
        QString());
    QTEST(engine->collect({}), "collected");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOCollect::oddGroupsByName_data()
{
    QTest::addColumn<QString>("change"); // of `info`
    QTest::addColumn<bool>("collected");
    QTest::addColumn<QStringList>("reports");
    QStringList const installed{"Internal error: cannot find groupInfo.group_installed['%s']"};
    QTest::newRow("no list") << "del info.visible_groups" << false
                             << QStringList{"Internal error: groupInfo.visible_groups not evaluable"};
    QTest::newRow("no flag") << "del info.group_installed['Trees']" << false << installed;
    QTest::newRow("no flags") << "del info.group_installed" << false << installed;
    QTest::newRow("flags in a list") << "info.group_installed = [True]" << false << installed;
    QTest::newRow("no groups in groups") << "del info.sub_groups['Stones']" << true
                                         << QStringList{"Internal error: groupInfo.sub_groups[Stones] not "
                                                        "evaluable"};
    QTest::newRow("no members at all")
        << "info.visible_groups = ['Stones']\n    del info.mandatory_pkgs" << true
        << QStringList{"Internal error: groupInfo.mandatory_pkgs not evaluable"};
    QTest::newRow("group that holds itself") << "info.sub_groups['Garden'] = ['Garden', 'Stones']\n"
                                                "    info.sub_groups['Stones'] = ['Garden']\n"
                                                "    info.visible_groups = ['Garden', 'Stones', 'Trees']"
                                             << true << QStringList();
}

void TestYumIOCollect::oddGroupsByName()
{
    engine->setVersion("2.4.0");
    SCRIPT("standin.become(groups='by name')");
    QFETCH(QString, change);
    QCOMPARE(
        engine->script(QStringLiteral("collect = YumIO.collectGroupInfo\n"
                                      "def answer():\n"
                                      "    info = collect(None)\n"
                                      "    %1\n"
                                      "    return info\n"
                                      "standin.instead('collectGroupInfo', answer)")
                           .arg(change)),
        QString());
    QTEST(engine->collect({}), "collected");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOCollect::firstGroupOfANameStands()
{
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    groups = collect(None)\n"
           "    groups[1].name = groups[0].name\n"
           "    return groups\n"
           "standin.instead('collectGroupInfo', answer)");
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->getMandatoryPkgs(*group("Trees")), QStringLiteral("alder"));
    QCOMPARE(engine->count(), 11);
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

void TestYumIOCollect::keysOfGroupsAndPackagesDiffer()
{
    YumIO::EntryKey const groupKey(true, "x");
    YumIO::EntryKey const packageKey(false, "x");
    QVERIFY(groupKey != packageKey);
    QVERIFY(qHash(groupKey) != qHash(packageKey));
    QVERIFY(groupKey == YumIO::EntryKey(true, "x"));
    QVERIFY(groupKey != YumIO::EntryKey(true, "y"));
    SCRIPT("standin.world.groups['elm'] = standin.world.groups['Shrubs']");
    QVERIFY(engine->collect({}));
    QCOMPARE(package("elm")->kind, Package::Ordinary);
    QCOMPARE(group("elm")->kind, Package::Group);
}

void TestYumIOCollect::textsOfStatesAndKinds()
{
    Package::Entry entry;
    entry.state = static_cast<Package::State>(3);
    entry.kind = static_cast<Package::Kind>(3);
    QCOMPARE(engine->getState(entry), QString());
    QCOMPARE(engine->getKind(entry), QString());
    entry.state = Package::OutOfDate;
    entry.kind = Package::Suite;
    QCOMPARE(engine->getState(entry), QStringLiteral("Available for update"));
    QCOMPARE(engine->getKind(entry), QStringLiteral("Suite of packages"));
}

QTEST_MAIN(TestYumIOCollect)
#include "tst_yumiocollect.moc"
