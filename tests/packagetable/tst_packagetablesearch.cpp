// SPDX-License-Identifier: GPL-2.0-or-later
// Mode Search: which fields of a package or group are tried, in which order, and when the trying ends. The
// packages are objects of a class that notes down what it is asked.
#include "TestEngine.h"
#include "tests/Eventually.h"

#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include <QSet>
#include <QTest>
#include <QTimer>
#include <memory>

using PackageTable::Model;
using PackageTable::SortFilterProxyModel;

namespace
{

// The lists of a group answer any question, so that none ends in a failure.
constexpr char const* recorder = R"(
import time

asked = []

class Recorder:
    def __init__(self, **fields):
        self.__dict__.update(fields)

    def returnSimple(self, key):
        asked.append(key)
        return self.__dict__.get("simple", {}).get(key)

    def __getattr__(self, name):
        asked.append(name)
        raise AttributeError(name)

class Slow(Recorder):
    def returnSimple(self, key):
        if key == "description":
            time.sleep(0.004)
        return self.__dict__.get(key)

class Names(Recorder):
    def __getattribute__(self, name):
        if name.startswith("__"):
            return object.__getattribute__(self, name)
        asked.append(name)
        return self.__dict__.get(name, self.__dict__["others"])
)";

class InterpretedEngine : public TestEngine
{
public:
    InterpretedEngine()
    {
        if (Python::initialize()) {
            PyGILStateWrapper const lock(true);
            py(recorder);
        }
    }

    ~InterpretedEngine() override { dropAll(); }

    /// Says that all there is to be searched has been loaded, so that it may be kept.
    void haveExtraData(bool have = true) { fileListsCollected = otherDataCollected = have; }

    void dropAll()
    {
        PyGILStateWrapper const lock(true);
        drop();
    }

    void reportVersion(QString const& version)
    {
        yumVersionKnown = true;
        yumVersionText = version;
    }

    Package::Entry& addObject(char const* expression, Package::Kind kind = Package::Ordinary)
    {
        Package::Entry& entry = add("name", Package::Available, kind);
        entry.verRel = "version";
        entry.repo = "repository";
        entry.arch = "architecture";
        entry.sizeText = "size";
        entry.summary = "summary";
        entry.buildTimeText = "time";
        PyGILStateWrapper const lock(true);
        entry.pyObject = pyr(expression);
        return entry;
    }

    /// What the objects have been asked since the last call.
    QStringList takeAsked()
    {
        PyGILStateWrapper const lock(true);
        QString const asked = pyStringDec(pyr("' '.join(asked)"));
        py("asked.clear()");
        return asked.split(' ', Qt::SkipEmptyParts);
    }
};

} // namespace

class TestPackageTableSearch : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<InterpretedEngine> engine;
    std::unique_ptr<Model> model;
    std::unique_ptr<SortFilterProxyModel> proxy;

    bool accepts() const { return proxy->acceptRow(engine->entries[0], 0, QModelIndex()); }

    // Rows whose description takes some time each, so that a search of them is a long one.
    void addSlowRows(int count)
    {
        for (int row = 0; row < count; ++row) {
            engine->addObject(row % 3 == 0 ? "Slow(url='wanted')" : "Slow()");
        }
        model->reset();
    }

private Q_SLOTS:
    void initTestCase() { engine = std::make_unique<InterpretedEngine>(); }

    void init()
    {
        model = std::make_unique<Model>(engine.get(), nullptr);
        proxy = std::make_unique<SortFilterProxyModel>(PackageTable::All, true, engine.get(), nullptr);
        proxy->setSourceModel(model.get());
        proxy->setMode(PackageTable::Search);
        engine->reportVersion("4.14.0");
        engine->haveExtraData(false);
    }

    void cleanup()
    {
        proxy.reset();
        model.reset();
        engine->dropAll();
        engine->takeAsked();
    }

    void cleanupTestCase() { engine.reset(); }

    void aMatchInAFieldOfTheRecordAsksNothing()
    {
        engine->addObject("Recorder()");
        for (QString const word :
             {"^name$", "^version$", "^repository$", "^architecture$", "^size$", "^summary$"}) {
            proxy->setFilterRegExp(word);
            QVERIFY2(accepts(), qPrintable(word));
            QCOMPARE(engine->takeAsked(), QStringList());
        }
    }

    void asksForEveryFieldOfAPackageTheDearestLast()
    {
        engine->addObject("Recorder(prco={}, returnPrco=lambda kind: asked.append(kind) or [])");
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        QVERIFY(!accepts());
        QStringList const expected{"description",  "group",     "vendor",
                                   "hdr", // the time of installation
                                   "relativepath", "sourcerpm", "license", "packager", "url",
                                   "hdr", // relocations
                                   "hdr",          "provides",  "hdr",     "requires", "hdr", "conflicts",
                                   "hdr",          "obsoletes", "hdr",     "files",    "hdr", "changelog"};
        QCOMPARE(engine->takeAsked(), expected);
    }

    void theFirstMatchEndsTheTrying()
    {
        engine->addObject("Recorder(simple={'vendor': 'Some Vendor'})");
        proxy->setFilterRegExp("^Some Vendor$");
        engine->takeAsked();
        QVERIFY(accepts());
        QCOMPARE(engine->takeAsked(), (QStringList{"description", "group", "vendor"}));
    }

    void aSuiteIsSearchedLikeAPackage()
    {
        engine->addObject("Recorder(simple={'url': 'http://example.org/'})", Package::Suite);
        proxy->setFilterRegExp("example");
        QVERIFY(accepts());
    }

    void theBuildTimeIsAmongTheFieldsAndTheBuildHostIsNot()
    {
        engine->addObject("Recorder(simple={'buildhost': 'builder'})");
        proxy->setFilterRegExp("^time$");
        QVERIFY(accepts());
        proxy->setFilterRegExp("^builder$");
        QVERIFY(!accepts());
    }

    void fieldsAreTriedOneByOne()
    {
        engine->addObject("Recorder()");
        proxy->setFilterRegExp("name version");
        QVERIFY(!accepts());
        proxy->setMode(PackageTable::Filter);
        QVERIFY(accepts());
    }

    void asksForEveryListOfAGroup()
    {
        engine->addObject("Names(others=[])", Package::Group);
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        QVERIFY(!accepts());
        QStringList const expected{
            "mandatory_packages", "default_packages", "optional_packages", "conditional_packages"};
        QCOMPARE(engine->takeAsked(), expected);
    }

    void asksForEveryListOfAnOldGroup()
    {
        engine->reportVersion("2.2.0");
        engine->addObject("Names(others={'name': []})", Package::Group);
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        QVERIFY(!accepts());
        QStringList const expected{"sub_groups",     "default_metapkgs", "optional_metapkgs",
                                   "mandatory_pkgs", "default_pkgs",     "optional_pkgs"};
        QCOMPARE(engine->takeAsked(), expected);
    }

    void aGroupIsFoundByItsNameAndItsMembers()
    {
        engine->addObject("Names(others=[], optional_packages=['member'])", Package::Group);
        proxy->setFilterRegExp("^name$");
        engine->takeAsked();
        QVERIFY(accepts());
        QCOMPARE(engine->takeAsked(), QStringList());
        proxy->setFilterRegExp("^member$");
        QVERIFY(accepts());
    }

    void aGroupIsNotSearchedForVersionOrRepository()
    {
        engine->addObject("Names(others=[])", Package::Group);
        for (QString const word : {"^version$", "^repository$", "^summary$"}) {
            proxy->setFilterRegExp(word);
            QVERIFY2(!accepts(), qPrintable(word));
        }
    }

    void stateAndGroupsAreTestedBeforeAnyField()
    {
        engine->addObject("Recorder()");
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        proxy->setStateFilter(PackageTable::Removable);
        QVERIFY(!accepts());
        QCOMPARE(engine->takeAsked(), QStringList());
    }

    void agreesWithTheRuleForEachRow_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("kept");
        for (char const* const pattern :
             {"wanted", "^name$", "matches nothing", "w.nted$", "^$", "^w[a-n]+ted$", "(", ""}) {
            QTest::addRow("%s", pattern) << QString(pattern) << false;
            QTest::addRow("%s, of kept texts", pattern) << QString(pattern) << true;
        }
    }

    void agreesWithTheRuleForEachRow()
    {
        QFETCH(QString const, pattern);
        QFETCH(bool const, kept);
        engine->haveExtraData(kept);
        addSlowRows(12);
        engine->addObject("Names(others=[], optional_packages=['wanted'])", Package::Group);
        engine->entries[4]->state = Package::OutOfDate;
        model->reset();
        auto const check = [this] {
            QSet<int> expected;
            for (int row = 0; row < engine->count(); ++row) {
                if (proxy->acceptRow(engine->entries[row], row, QModelIndex())) {
                    expected.insert(row);
                }
            }
            QSet<int> shown;
            for (int row = 0; row < proxy->rowCount(); ++row) {
                shown.insert(proxy->mapToSource(proxy->index(row, 0)).row());
            }
            QCOMPARE(shown, expected);
        };
        proxy->setFilterRegExp(pattern);
        check();
        proxy->setStateFilter(PackageTable::Installable);
        check();
        proxy->setGroupsFilter(false);
        check();
        proxy->setMode(PackageTable::Filter);
        check();
        proxy->setMode(PackageTable::Search);
        check();
    }

    void theTableStandsWholeUntilTheFirstResults()
    {
        addSlowRows(60);
        QCOMPARE(proxy->rowCount(), 60);
        int ticks = 0;
        int resets = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            ++ticks;
            if (resets == 0) {
                QCOMPARE(proxy->rowCount(), 60);
                QCOMPARE(proxy->index(59, 3).data().toString(), "name");
            }
        });
        connect(proxy.get(), &SortFilterProxyModel::modelAboutToBeReset, this, [&] { ++resets; });
        timer.start(0);
        proxy->setFilterRegExp("wanted");
        timer.stop();
        QVERIFY2(ticks >= 5, qPrintable(QString::number(ticks)));
        QVERIFY(resets > 0);
        QCOMPARE(proxy->rowCount(), 20);
    }

    void whatIsFoundShowsWhileTheSearchGoesOn()
    {
        addSlowRows(150);
        QSet<int> shown;
        QTimer timer;
        bool reset = false;
        connect(proxy.get(), &SortFilterProxyModel::modelReset, this, [&] { reset = true; });
        connect(&timer, &QTimer::timeout, this, [&] {
            if (reset) {
                shown.insert(proxy->rowCount());
            }
        });
        timer.start(0);
        proxy->setFilterRegExp("wanted");
        timer.stop();
        shown.remove(50);
        QVERIFY(!shown.isEmpty());
        for (int const rows : std::as_const(shown)) {
            QVERIFY2(rows > 0 && rows < 50, qPrintable(QString::number(rows)));
        }
        QCOMPARE(proxy->rowCount(), 50);
    }

    void aStoppedSearchKeepsWhatItHasFound_data()
    {
        QTest::addColumn<bool>("kept");
        QTest::newRow("field by field") << false;
        QTest::newRow("while texts are read to be kept") << true;
    }

    void aStoppedSearchKeepsWhatItHasFound()
    {
        QFETCH(bool const, kept);
        engine->haveExtraData(kept);
        addSlowRows(150);
        QList<Stop::State> states;
        auto listener = std::make_unique<QObject>();
        connect(&engine->stop, &Stop::changed, listener.get(), [&] { states += engine->stop.state(); });
        connect(proxy.get(), &SortFilterProxyModel::modelReset, listener.get(), [&] { engine->stop.want(); });
        proxy->setFilterRegExp("wanted");
        QCOMPARE(states, (QList<Stop::State>{Stop::State::Possible, Stop::State::Wanted, Stop::State::Idle}));
        QVERIFY(proxy->searchWasStopped());
        int const found = proxy->rowCount();
        QVERIFY2(found > 0 && found < 50, qPrintable(QString::number(found)));
        // Whoever wants the rest gives the expression again.
        listener.reset();
        proxy->setFilterRegExp("wanted");
        QVERIFY(!proxy->searchWasStopped());
        QCOMPARE(proxy->rowCount(), 50);
    }

    void anotherSearchTakesThePlaceOfTheOneInProgress()
    {
        addSlowRows(30);
        QTimer::singleShot(0, this, [this] { proxy->setFilterRegExp("^summary$"); });
        proxy->setFilterRegExp("wanted");
        QCOMPARE(proxy->conditions().expression, "^summary$");
        QCOMPARE(proxy->rowCount(), 30);
        proxy->setFilterRegExp("wanted");
        QCOMPARE(proxy->rowCount(), 10);
    }

    void aSearchEndsWithItsRows()
    {
        addSlowRows(30);
        QTimer::singleShot(0, this, [this] {
            engine->dropAll();
            model->reset();
        });
        proxy->setFilterRegExp("wanted");
        QCOMPARE(proxy->rowCount(), 0);
        QVERIFY(!proxy->searchWasStopped());
    }

    // The reset would test rows without serving events, had it to.
    void everyVerdictStandsBeforeTheReset_data()
    {
        QTest::addColumn<int>("change");
        QTest::newRow("expression") << 0;
        QTest::newRow("mode") << 1;
        QTest::newRow("state") << 2;
        QTest::newRow("groups") << 3;
        QTest::newRow("filter") << 4;
    }

    void everyVerdictStandsBeforeTheReset()
    {
        QFETCH(int const, change);
        engine->addObject("Recorder(simple={'url': 'wanted'})");
        proxy->setMode(change == 1 ? PackageTable::Filter : PackageTable::Search);
        proxy->setFilter(change != 4);
        if (change != 0) {
            proxy->setFilterRegExp("wanted");
        }
        model->reset();
        static_cast<void>(proxy->rowCount());
        engine->takeAsked();
        QStringList asked;
        connect(proxy.get(), &SortFilterProxyModel::modelAboutToBeReset, this, [&] {
            asked += engine->takeAsked();
        });
        switch (change) {
        case 0:
            proxy->setFilterRegExp("wanted");
            break;
        case 1:
            proxy->setMode(PackageTable::Search);
            break;
        case 2:
            proxy->setStateFilter(PackageTable::Installable);
            break;
        case 3:
            proxy->setGroupsFilter(false);
            break;
        default:
            proxy->setFilter(true);
        }
        QVERIFY(asked.contains("url"));
        QCOMPARE(engine->takeAsked(), QStringList());
        QCOMPARE(proxy->rowCount(), 1);
    }

    void aFilterServesNoEvents()
    {
        addSlowRows(3);
        proxy->setMode(PackageTable::Filter);
        bool served = false;
        QTimer::singleShot(0, this, [&] { served = true; });
        proxy->setFilterRegExp("name");
        proxy->setStateFilter(PackageTable::Installable);
        QVERIFY(!served);
        EVENTUALLY_VERIFY(served);
    }

    void aRowIsSearchedOnceForEachExpression()
    {
        engine->addObject("Recorder()");
        model->reset();
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        proxy->setFilterRegExp("matches nothing");
        proxy->sort(3);
        QCOMPARE(proxy->rowCount(), 0);
        QCOMPARE(engine->takeAsked(), QStringList());
        proxy->setFilterRegExp("matches nothing either");
        QVERIFY(engine->takeAsked().contains("description"));
    }

    void textsAreReadOnceForEachList()
    {
        engine->haveExtraData();
        engine->addObject("Recorder(simple={'url': 'wanted'})");
        engine->addObject("Recorder()").state = Package::OutOfDate;
        engine->addObject("Names(others=[], optional_packages=['wanted'])", Package::Group);
        model->reset();
        // Rows that don't show are read, too.
        proxy->setStateFilter(PackageTable::Updatable);
        proxy->setFilterRegExp("matches nothing");
        QStringList const asked = engine->takeAsked();
        QCOMPARE(asked.count("description"), 2);
        QCOMPARE(asked.count("url"), 2);
        QVERIFY(asked.contains("optional_packages"));
        proxy->setStateFilter(PackageTable::All);
        proxy->setFilterRegExp("wanted");
        QCOMPARE(proxy->rowCount(), 2);
        proxy->setCaseSensitivity(Qt::CaseInsensitive);
        proxy->setFilterRegExp("WANTED");
        QCOMPARE(proxy->rowCount(), 2);
        proxy->setFilterRegExp("^$");
        QCOMPARE(proxy->rowCount(), 3);
        QCOMPARE(engine->takeAsked(), QStringList());

        engine->dropAll();
        engine->addObject("Recorder(simple={'url': 'wanted'})");
        model->reset();
        proxy->setFilterRegExp("wanted");
        QCOMPARE(proxy->rowCount(), 1);
        QVERIFY(engine->takeAsked().contains("url"));
    }

    void textsThatLackTheExtraDataAreNotKept()
    {
        engine->addObject("Recorder()");
        model->reset();
        proxy->setFilterRegExp("matches nothing");
        engine->takeAsked();
        engine->haveExtraData();
        proxy->setFilterRegExp("matches nothing either");
        QVERIFY(engine->takeAsked().contains("files"));
        proxy->setFilterRegExp("matches nothing at all");
        QCOMPARE(engine->takeAsked(), QStringList());
    }

    // More than is read from the file at a time, and beside each other.
    void longAndManyTextsAreSearched()
    {
        engine->haveExtraData();
        for (int row = 0; row < 5000; ++row) {
            engine->add(QString("name%1").arg(row), Package::Available);
        }
        engine->addObject("Recorder(simple={'description': 'lo' + 'o' * 700000 + 'ng', 'url': 'wanted'})");
        engine->add(QString(700000, 'x'), Package::Available).summary = "wanted";
        model->reset();
        proxy->setFilterRegExp("matches nothing");
        QCOMPARE(proxy->rowCount(), 0);
        proxy->setFilterRegExp("^(wanted|name49[0-9]*)$");
        QCOMPARE(proxy->rowCount(), 2 + 1 + 10 + 100);
        proxy->setFilterRegExp("ong$");
        QCOMPARE(proxy->rowCount(), 1);
    }
};

QTEST_MAIN(TestPackageTableSearch)
#include "tst_packagetablesearch.moc"
