// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <QSignalSpy>
#include <QTimer>

class TestYumIODetails final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void installedPackageIsReadFromItsHeader();
    void singleFileComesWithABareIndex();
    void headersWithMissingTags();
    void headerFlagsAndVersions_data();
    void headerFlagsAndVersions();
    void headerValuesThatAreNotThere();
    void headersThatRaiseLeaveEmptyTexts_data();
    void headersThatRaiseLeaveEmptyTexts();
    void headerThatVanishesWhileItIsRead();

    void capabilitiesOfARepository_data();
    void capabilitiesOfARepository();
    void capabilitiesThatCannotBeHad_data();
    void capabilitiesThatCannotBeHad();

    void filesAreLoadedAtTheFirstNeed();
    void failedLoadIsTriedAgain_data();
    void failedLoadIsTriedAgain();
    void unexpectedFailureOfTheLoadIsReported();
    void filesStandOnce();
    void filesThatCannotBeHad();
    void changeLogsOfARepository_data();
    void changeLogsOfARepository();
    void changeLogFollowsTheVersion();
    void buildHostIsReadByOneJobForEachRepository();
    void buildHostThatCannotBeReadIsToldOnce();
    void packageWithoutAnythingIsEmpty();
    void groupsHaveNeither();
    void sortingOfLines();
    void jobOfAQueryRunsInsideAnyEventLoop();

private:
    struct UnderTheLock
    {
        void operator()(Package::Entry* entry) const
        {
            TestEngine::PyGILStateWrapper const lock(true);
            delete entry;
        }
    };
    using EntryOwner = std::unique_ptr<Package::Entry, UnderTheLock>;

    /// An entry, not in the table, of a package with these members.
    EntryOwner entryOf(QString const& members);
};

void TestYumIODetails::init()
{
    EngineTest::init();
    QVERIFY(collected());
    SCRIPT("from standinpackages import Header\nimport types");
}

TestYumIODetails::EntryOwner TestYumIODetails::entryOf(QString const& members)
{
    EntryOwner entry(new Package::Entry);
    TestEngine::PyGILStateWrapper const lock(true);
    entry->pyObject = engine->object("types.SimpleNamespace(" + members + ")");
    return entry;
}

void TestYumIODetails::installedPackageIsReadFromItsHeader()
{
    Package::Entry const& alder = *package("alder")->installed;
    QCOMPARE(engine->getInstallTime(alder), QStringLiteral("Fri Jan  2 00:00:00 1970"));
    QCOMPARE(engine->getRelocations(alder), QStringLiteral("/usr\n/opt"));
    QCOMPARE(engine->getProvides(alder), QStringLiteral("alder = 1.0-1\ntree  \nwood >= 3"));
    QCOMPARE(engine->getRequires(alder), QStringLiteral("acorn <= 5\nbark <= 2:1.0"));
    QCOMPARE(engine->getConflicts(alder), QString());
    QCOMPARE(engine->getObsoletes(alder), QString());
    QCOMPARE(engine->getFiles(alder), QStringLiteral("/etc/a\n/usr/bin/b"));
    QCOMPARE(
        engine->getChangeLog(alder), QStringLiteral("* Sat Jan  3 1970 Oak <oak@example.org>\n- newer\n\n"
                                                    "* Fri Jan  2 1970 Ash <ash@example.org>\n- older"));
    // All of that without a job.
    QCOMPARE(engine->calls(), QStringList());
    QVERIFY(!engine->fileListsCollected && !engine->otherDataCollected);
}

void TestYumIODetails::singleFileComesWithABareIndex()
{
    QCOMPARE(engine->getFiles(*package("birch")), QStringLiteral("/usr/bin/birch"));
    QCOMPARE(
        engine->getChangeLog(*package("birch")),
        QStringLiteral("* Fri Jan  2 1970 Ash <ash@example.org>\n- only"));
}

void TestYumIODetails::headersWithMissingTags()
{
    Package::Entry const& cedar = *package("cedar");
    QCOMPARE(engine->getInstallTime(cedar), QString());
    QCOMPARE(engine->getRelocations(cedar), QString());
    QCOMPARE(engine->getProvides(cedar), QString());
    QCOMPARE(engine->getFiles(cedar), QString());
    QCOMPARE(engine->getChangeLog(cedar), QString());

    EntryOwner odd =
        entryOf("hdr=Header({'BASENAMES': ['a', 'b', 'c'], 'DIRNAMES': ['/x/'], 'DIRINDEXES': [0, 7, 'z'],\n"
                "'CHANGELOGNAME': ['Ash', 'Oak'], 'CHANGELOGTIME': [0], 'CHANGELOGTEXT': None,\n"
                "'PROVIDENAME': ['a', 'b'], 'PROVIDEFLAGS': [8], 'PROVIDEVERSION': ['1'],\n"
                "'INSTALLTIME': [5], 'PREFIXES': 5})");
    QCOMPARE(engine->getFiles(*odd), QStringLiteral("/x/a\n/x/c\nb"));
    QCOMPARE(engine->getChangeLog(*odd), QStringLiteral("* Thu Jan  1 1970 Ash\n\n\n*  Oak\n"));
    QCOMPARE(engine->getProvides(*odd), QStringLiteral("a = 1\nb"));
    QCOMPARE(engine->getRelocations(*odd), QString());
    QCOMPARE(boxes->takeTexts(), QStringList());
    QCOMPARE(engine->getInstallTime(*odd), QStringLiteral("Thu Jan  1 00:00:00 1970"));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: time not understood"});
}

void TestYumIODetails::headerFlagsAndVersions_data()
{
    QTest::addColumn<QString>("tags");
    QTest::addColumn<QString>("line");
    auto const row = [](char const* flags, char const* version, char const* line) {
        QTest::addRow("%s, %s", flags, version)
            << QStringLiteral("'REQUIRENAME': ['foo'], 'REQUIREFLAGS': %1, 'REQUIREVERSION': %2")
                   .arg(flags, version)
            << QString::fromLatin1(line);
    };
    row("[2]", "['1']", "foo < 1");
    row("[4]", "['1']", "foo > 1");
    row("[8]", "['1']", "foo = 1");
    row("[10]", "['1']", "foo <= 1");
    row("[12]", "['1']", "foo >= 1");
    row("[14]", "['1']", "foo <>= 1");
    row("[0]", "['']", "foo  ");
    row("[16777216]", "['']", "foo  ");
    row("[64 + 8]", "['2:1-1']", "foo = 2:1-1");
    row("8", "'1'", "foo = 1");
    row("[8]", "[None]", "foo");
    row("[None]", "['1']", "foo");
    row("None", "['1']", "foo");
    row("[8]", "None", "foo");
    row("[]", "[]", "foo");
    row("['x']", "['1']", "foo  1");
    row("[2**80]", "['1']", "foo  1");
    row("[8]", "[b'1']", "foo = 1");
}

void TestYumIODetails::headerFlagsAndVersions()
{
    QFETCH(QString, tags);
    EntryOwner entry = entryOf("hdr=Header({" + tags + "})");
    QTEST(engine->getRequires(*entry), "line");
}

void TestYumIODetails::headerValuesThatAreNotThere()
{
    TestEngine::PyGILStateWrapper const lock(true);
    QVERIFY(!engine->getRpmHdrValue(engine->object("object()").get(), "BASENAMES"));
    QCOMPARE(
        boxes->takeTexts(),
        QStringList{"getRpmHdrValue called for package with no hdr (i.e. not installed)"});
    PyRef const package = engine->object("types.SimpleNamespace(hdr={})");
    QVERIFY(!engine->getRpmHdrValue(package.get(), "NO_SUCH_TAG"));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: cannot find rpm.RPMTAG_NO_SUCH_TAG"});
    QByteArray const longTag(5000, 'X');
    QVERIFY(!engine->getRpmHdrValue(package.get(), longTag.constData()));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: cannot find rpm.RPMTAG_" + longTag});
    // A header that doesn't know the tag, or can't be asked.
    QVERIFY(!engine->getRpmHdrValue(package.get(), "BASENAMES"));
    QVERIFY(!engine->getRpmHdrValue(engine->object("types.SimpleNamespace(hdr=5)").get(), "BASENAMES"));
}

void TestYumIODetails::headersThatRaiseLeaveEmptyTexts_data()
{
    QTest::addColumn<QString>("header");
    QTest::newRow("the header") << "property(lambda self: 1/0)";
    QTest::newRow("its items") << "type('H', (), {'__getitem__': lambda self, tag: 1/0})()";
    QTest::newRow("the lists") << "type('H', (), {'__getitem__': lambda self, tag: List()})()";
    QTest::newRow("lists of none") << "type('H', (), {'__getitem__': lambda self, tag: [None, None]})()";
    QTest::newRow("numbers") << "type('H', (), {'__getitem__': lambda self, tag: -2**70})()";
    QTest::newRow("no header") << "None";
}

void TestYumIODetails::headersThatRaiseLeaveEmptyTexts()
{
    QFETCH(QString, header);
    SCRIPT("class List(list):\n"
           "    def __len__(self):\n"
           "        return 2\n"
           "    def __getitem__(self, at):\n"
           "        raise ValueError('no item')\n");
    EntryOwner entry(new Package::Entry);
    {
        TestEngine::PyGILStateWrapper const lock(true);
        entry->pyObject = engine->object("type('P', (), {'hdr': " + header + "})()");
        QVERIFY(entry->pyObject);
    }
    // Names that can't be read are no names: at most empty lines.
    for (auto const accessor :
         {&YumIO::getProvides, &YumIO::getRequires, &YumIO::getConflicts, &YumIO::getObsoletes,
          &YumIO::getFiles, &YumIO::getRelocations}) {
        QCOMPARE((engine.get()->*accessor)(*entry).remove(QLatin1Char('\n')), QString());
    }
    QString const changes = engine->getChangeLog(*entry);
    QVERIFY(changes.isEmpty() || changes.startsWith("* "));
    engine->getInstallTime(*entry);
    QCOMPARE(engine->calls(), QStringList());
    boxes->take();
}

void TestYumIODetails::headerThatVanishesWhileItIsRead()
{
    SCRIPT("class Erased:\n"
           "    def __init__(self, left):\n"
           "        self.left = left\n"
           "    @property\n"
           "    def hdr(self):\n"
           "        self.left -= 1\n"
           "        if self.left < 0:\n"
           "            raise AttributeError('erased meanwhile')\n"
           "        return Header(standin.world.alder_tags())\n");
    QString const report = "getRpmHdrValue called for package with no hdr (i.e. not installed)";
    for (auto const& [accessor, reads] :
         {std::pair{&YumIO::getRequires, 4},
          {&YumIO::getFiles, 4},
          {&YumIO::getChangeLog, 4},
          {&YumIO::getRelocations, 2},
          {&YumIO::getInstallTime, 2}}) {
        for (int left = 0; left <= reads; ++left) {
            EntryOwner entry(new Package::Entry);
            {
                TestEngine::PyGILStateWrapper const lock(true);
                entry->pyObject = engine->object(QStringLiteral("Erased(%1)").arg(left));
            }
            QString const text = (engine.get()->*accessor)(*entry);
            // Without a header it isn't installed; once reading has begun, each value that is gone is told.
            QCOMPARE(boxes->takeTexts(), QStringList(left == 0 ? 0 : reads - left, report));
            QVERIFY(left < reads || !text.isEmpty());
            QVERIFY(left > 1 || text.isEmpty());
        }
    }
}

void TestYumIODetails::capabilitiesOfARepository_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("('bash', 'GE', ('1', '3.2', '1'))") << "bash >= 1:3.2-1";
    QTest::newRow("('foo', 'LE', ('0', '2.0', None))") << "foo <= 2.0";
    QTest::newRow("('foo', 'GT', (None, '2.0', '1'))") << "foo > 2.0-1";
    QTest::newRow("('foo', 'LT', ('00', '2.0', '1'))") << "foo < 00:2.0-1";
    QTest::newRow("('foo', 'EQ', ('', '2.0', ''))") << "foo = :2.0-";
    QTest::newRow("('foo', 'NEARLY', ('0', '2', '1'))") << "foo NEARLY 2-1";
    QTest::newRow("('foo', b'EQ', (b'0', b'2', b'1'))") << "foo = 2-1";
    QTest::newRow("('foo', None, (None, None, None))") << "foo";
    QTest::newRow("('foo', 'EQ', None)") << "foo";
    QTest::newRow("('foo', None, ('0', '1', '1'))") << "foo";
    QTest::newRow("('foo', 'EQ', (None, None, None))") << "foo";
    QTest::newRow("('foo', 'EQ', ())") << "foo";
    QTest::newRow("('foo', 'EQ', 5)") << "foo";
    QTest::newRow("('foo',)") << "foo";
    QTest::newRow("['foo', 'EQ', ['0', '1', '2']]") << "foo = 1-2";
    QTest::newRow("('f\\udce9', 'EQ', ('0', '1', '2'))") << QStringLiteral("f\uFFFD = 1-2");
}

void TestYumIODetails::capabilitiesOfARepository()
{
    QString const items = QStringLiteral("[%1]").arg(QTest::currentDataTag());
    EntryOwner entry = entryOf("prco=None, returnPrco={'provides': " + items + "}.__getitem__");
    QTEST(engine->getProvides(*entry), "line");
    entry = entryOf("prco={'provides': iter(" + items + ")}");
    QTEST(engine->getProvides(*entry), "line");
}

void TestYumIODetails::capabilitiesThatCannotBeHad_data()
{
    QTest::addColumn<QString>("members");
    QTest::addColumn<QStringList>("reports");
    QString const report = "Internal error: cannot find package's prco.requires";
    QString const general = "Internal error: python exception occurred from C code\n";
    QTest::newRow("nothing") << "name='x'" << QStringList();
    QTest::newRow("no key") << "prco={'provides': []}" << QStringList{report};
    QTest::newRow("no dictionary") << "prco=[]" << QStringList{report};
    QTest::newRow("no list") << "prco={'requires': 5}" << QStringList{report};
    QTest::newRow("no method") << "prco={}, returnPrco=5"
                               << QStringList{"Internal error: method returnPrco not callable\n", report};
    QTest::newRow("raising") << "prco={}, returnPrco={}.__getitem__" << QStringList{general, report};
    QTest::newRow("half-way") << "prco={'requires': (1/0 for x in 'x')}" << QStringList();
    QTest::newRow("no tuple") << "prco={'requires': [5]}"
                              << QStringList{"Internal error: pyString passed NULL python object\n"};
}

void TestYumIODetails::capabilitiesThatCannotBeHad()
{
    QFETCH(QString, members);
    EntryOwner entry = entryOf(members);
    QCOMPARE(engine->getRequires(*entry), QString());
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIODetails::filesAreLoadedAtTheFirstNeed()
{
    QSignalSpy const spy(engine.get(), &YumIO::collectedExtraData);
    QCOMPARE(engine->getFiles(*package("elm")), QStringLiteral("/usr/share/elm/a\n/usr/share/elm/b"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(engine->getFiles(*package("hazel")), QStringLiteral("/usr/share/hazel/a\n/usr/share/hazel/b"));
    QVERIFY(!engine->getChangeLog(*package("elm")).isEmpty());
    QVERIFY(!engine->getChangeLog(*package("hazel")).isEmpty());
    QCOMPARE(spy.count(), 2);
    QCOMPARE(engine->calls(), (QStringList{"collectFileLists", "collectOtherData"}));
    QCOMPARE(
        engine->logLines(Log::Action),
        (QStringList{"Collecting File Lists", "Collecting Miscellaneous data"}));
    // A new collection has none of that.
    engine->clear();
    QVERIFY(collected());
    engine->getFiles(*package("elm"));
    QCOMPARE(engine->calls(), QStringList{"collectFileLists"});
}

void TestYumIODetails::failedLoadIsTriedAgain_data()
{
    QTest::addColumn<QString>("report");
    QTest::newRow("collectFileLists") << "Unable to collect file lists";
    QTest::newRow("collectOtherData") << "Unable to collect miscellaneous data";
}

void TestYumIODetails::failedLoadIsTriedAgain()
{
    bool const files = QTest::currentDataTag() == QByteArray("collectFileLists");
    auto const ask = [&] {
        return files ? engine->getFiles(*package("elm")) : engine->getChangeLog(*package("elm"));
    };
    QSignalSpy const spy(engine.get(), &YumIO::collectedExtraData);
    QCOMPARE(
        engine->script(QStringLiteral("standin.fail('%1', yum.Errors.RepoError('no mirror'))")
                           .arg(QTest::currentDataTag())),
        QString());
    // What the library has at hand is told all the same.
    QVERIFY(!ask().isEmpty());
    QFETCH(QString, report);
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "no mirror\n" + report, {"Close"}}}));
    QVERIFY(!engine->fileListsCollected && !engine->otherDataCollected);
    ask();
    QCOMPARE(boxes->take().size(), 1);
    QCOMPARE(engine->calls().size(), 2);
    QCOMPARE(spy.count(), 0);
}

void TestYumIODetails::unexpectedFailureOfTheLoadIsReported()
{
    SCRIPT("standin.without('collectFileLists')\nstandin.fail('collectOtherData', ValueError('odd'))");
    engine->getFiles(*package("elm"));
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: method collectFileLists not found\n",
                                "Internal error: execution of yumIO.collectFileLists failed"}));
    engine->getChangeLog(*package("elm"));
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: execution of yumIO.collectOtherData failed"}));
    QVERIFY(!engine->collectFileLists());
    QVERIFY(!engine->collectOtherData());
    boxes->take();
}

void TestYumIODetails::filesStandOnce()
{
    SCRIPT("standin.world.find('available', 'elm').file_entries = ['/b', '/a', '/b', '/B', '/a']");
    QCOMPARE(engine->getFiles(*package("elm")), QStringLiteral("/B\n/a\n/b"));
    SCRIPT("standin.world.find('available', 'elm').file_entries = []");
    QCOMPARE(engine->getFiles(*package("elm")), QString());
}

void TestYumIODetails::filesThatCannotBeHad()
{
    for (auto const& [answer, reports] :
         {std::pair{"lambda kind: None", 1}, {"lambda kind: 1/0", 2}, {"5", 2}, {"lambda: []", 2}}) {
        QCOMPARE(
            engine->script(
                QStringLiteral("standin.world.find('available', 'elm').returnFileEntries = %1").arg(answer)),
            QString());
        QCOMPARE(engine->getFiles(*package("elm")), QString());
        QStringList const texts = boxes->takeTexts();
        QCOMPARE(texts.size(), reports);
        QCOMPARE(texts.constLast(), QStringLiteral("Internal error: cannot find package's files"));
    }
    SCRIPT("del standin.world.find('available', 'elm').files");
    QCOMPARE(engine->getFiles(*package("elm")), QString());
}

void TestYumIODetails::changeLogsOfARepository_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("reports");
    QTest::newRow("lambda: []") << "" << 0;
    QTest::newRow("lambda: None") << "" << 0;
    QTest::newRow("lambda: [('86400', 'Ash', '- a'), (0, b'Oak', b'- b')]")
        << "* Fri Jan  2 1970 Ash\n- a\n\n* Thu Jan  1 1970 Oak\n- b" << 0;
    QTest::newRow("lambda: [(0, None, None)]") << "* Thu Jan  1 1970 \n" << 0;
    QTest::newRow("lambda: [()]") << "*  \n" << 0;
    QTest::newRow("lambda: [(None, 'Ash', '- a')]") << "* Thu Jan  1 1970 Ash\n- a" << 1;
    QTest::newRow("lambda: 5") << "" << 1;
    QTest::newRow("lambda: 1/0") << "" << 2;
    QTest::newRow("5") << "" << 2;
}

void TestYumIODetails::changeLogsOfARepository()
{
    QCOMPARE(
        engine->script(QStringLiteral("standin.world.find('available', 'elm').returnChangelog = %1")
                           .arg(QTest::currentDataTag())),
        QString());
    QTEST(engine->getChangeLog(*package("elm")), "text");
    QTEST(int(boxes->take().size()), "reports");
}

void TestYumIODetails::changeLogFollowsTheVersion()
{
    SCRIPT("elm = standin.world.find('available', 'elm')\n"
           "elm.changelog = [(0, 'attribute', '')]\nelm.returnChangelog = lambda: [(0, 'method', '')]");
    engine->setVersion("2.3.0");
    QCOMPARE(engine->getChangeLog(*package("elm")), QStringLiteral("* Thu Jan  1 1970 attribute\n"));
    engine->setVersion("2.3.1");
    QCOMPARE(engine->getChangeLog(*package("elm")), QStringLiteral("* Thu Jan  1 1970 method\n"));
    SCRIPT("elm.changelog = None");
    engine->setVersion("2.3.0");
    QCOMPARE(engine->getChangeLog(*package("elm")), QString());
}

void TestYumIODetails::buildHostIsReadByOneJobForEachRepository()
{
    SCRIPT("import threading\n"
           "gui = threading.get_ident()\n"
           "def watch(package):\n"
           "    simple = package.returnSimple\n"
           "    def returnSimple(key):\n"
           "        where = 'here' if threading.get_ident() == gui else 'on a worker'\n"
           "        standin.note(f'{key} of {package.plain_name} {where}')\n"
           "        return simple(key)\n"
           "    package.returnSimple = returnSimple\n"
           "for package in standin.world.updates + standin.world.installed + standin.world.available:\n"
           "    watch(package)");
    QVERIFY(!engine->buildHostAtHand(*package("elm")));
    QVERIFY(engine->collectBuildHost(*package("elm")));
    // Of the same repository.
    QVERIFY(engine->buildHostAtHand(*package("fir")));
    QVERIFY(engine->collectBuildHost(*package("fir")));
    QVERIFY(!engine->buildHostAtHand(*package("alder")));
    QVERIFY(engine->collectBuildHost(*package("alder")));
    QVERIFY(engine->collectBuildHost(*package("birch")));
    QVERIFY(engine->collectBuildHost(*group("Garden")));
    QCOMPARE(
        engine->calls(), (QStringList{"buildhost of elm on a worker", "buildhost of alder on a worker"}));
    QVERIFY2(engine->logLines(Log::Action).isEmpty(), "a look at a package is nothing that was done");
    engine->clear();
    QVERIFY(collected());
    QVERIFY(!engine->buildHostAtHand(*package("elm")));
}

void TestYumIODetails::buildHostThatCannotBeReadIsToldOnce()
{
    SCRIPT("def returnSimple(key):\n    raise ValueError(key)\n"
           "standin.world.find('available', 'elm').returnSimple = returnSimple");
    QVERIFY(!engine->collectBuildHost(*package("elm")));
    QVERIFY(engine->collectBuildHost(*package("elm")));
    QCOMPARE(boxes->takeTexts(), QStringList());
    QCOMPARE(engine->getBuildHost(*package("elm")), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
}

void TestYumIODetails::packageWithoutAnythingIsEmpty()
{
    EntryOwner bare = entryOf("name='bare'");
    QCOMPARE(engine->getFiles(*bare), QString());
    QCOMPARE(engine->getChangeLog(*bare), QString());
    QCOMPARE(engine->getProvides(*bare), QString());
    QCOMPARE(engine->getInstallTime(*bare), QString());
    QCOMPARE(engine->getRelocations(*bare), QString());
    QCOMPARE(engine->calls(), QStringList());
}

void TestYumIODetails::groupsHaveNeither()
{
    QCOMPARE(engine->getFiles(*group("Trees")), QString());
    QCOMPARE(engine->getChangeLog(*group("Trees")), QString());
    QCOMPARE(engine->getProvides(*group("Trees")), QString());
    QCOMPARE(engine->calls(), QStringList());
}

void TestYumIODetails::sortingOfLines()
{
    QStringList empty;
    QCOMPARE(TestEngine::makeSortedUniq(empty), QString());
    QCOMPARE(TestEngine::makeSorted(empty), QString());
    QStringList lines{"b", "B", QStringLiteral("\u00e9"), "a", "b"};
    QCOMPARE(TestEngine::makeSorted(lines), QStringLiteral("B\na\nb\nb\n\u00e9"));
    QCOMPARE(TestEngine::makeSortedUniq(lines), QStringLiteral("B\na\nb\n\u00e9"));
}

void TestYumIODetails::jobOfAQueryRunsInsideAnyEventLoop()
{
    // A search in the table asks for files from within the event loop, and may do so over and over.
    QEventLoop outer;
    QStringList answers;
    QTimer::singleShot(0, &outer, [&] {
        for (int round = 0; round < 20; ++round) {
            engine->fileListsCollected = false;
            answers.append(engine->getFiles(*package("elm")));
        }
        outer.quit();
    });
    outer.exec();
    QCOMPARE(answers, QStringList(20, "/usr/share/elm/a\n/usr/share/elm/b"));
    QCOMPARE(engine->calls().size(), 20);
}

QTEST_MAIN(TestYumIODetails)
#include "tst_yumiodetails.moc"
