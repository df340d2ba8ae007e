// SPDX-License-Identifier: GPL-2.0-or-later
// What shows: state filter, groups flag, the expression in mode Filter, and how long verdicts hold.
#include "TestEngine.h"

#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include <QAbstractItemModelTester>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <new>

using PackageTable::Model;
using PackageTable::SortFilterProxyModel;

namespace
{

struct Table
{
    TestEngine engine;
    Model model{&engine, nullptr};
    SortFilterProxyModel proxy{PackageTable::All, true, &engine, nullptr};

    Table() { proxy.setSourceModel(&model); }

    /// The names that show, sorted.
    QStringList names() const
    {
        QStringList result;
        for (int row = 0; row < proxy.rowCount(); ++row) {
            result.append(proxy.index(row, 3).data().toString());
        }
        result.sort();
        return result;
    }

    bool accepts(int row) const { return proxy.filterAcceptsRow(row, QModelIndex()); }
};

/// One of each state and kind.
struct MixedTable : Table
{
    MixedTable()
    {
        engine.add("old", Package::OutOfDate);
        engine.add("new", Package::Available);
        engine.add("same", Package::UpToDate);
        engine.add("old-suite", Package::OutOfDate, Package::Suite);
        engine.add("new-group", Package::Available, Package::Group);
        model.reset();
    }
};

/// A row in which every shown text is set.
Package::Entry& addFull(TestEngine& engine)
{
    Package::Entry& entry = engine.add("bash", Package::Available);
    entry.verRel = "5.2-1";
    entry.repo = "base";
    entry.arch = "x86_64";
    entry.sizeText = "1.5Mb";
    entry.summary = "The shell";
    entry.buildTimeText = "Thu Jan  1 00:00:00 1970";
    return entry;
}

} // namespace

class TestPackageTableFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheRulesOfModels()
    {
        MixedTable table;
        // The tester asks for the rows below a row, which no view of a table does.
        class Flat : public Model
        {
        public:
            using Model::Model;
            int rowCount(QModelIndex const& parent = QModelIndex()) const override
            {
                return parent.isValid() ? 0 : Model::rowCount();
            }
        };
        Flat flat(&table.engine, nullptr);
        SortFilterProxyModel proxy(PackageTable::All, true, &table.engine, nullptr);
        proxy.setSourceModel(&flat);
        QAbstractItemModelTester const tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        proxy.sort(3, Qt::DescendingOrder);
        proxy.setStateFilter(PackageTable::Removable);
        proxy.setFilterRegExp("old");
        flat.setUpdateAll();
        proxy.setGroupsFilter(false);
        proxy.setFilter(false);
        proxy.setMode(PackageTable::Search);
        table.engine.drop();
        flat.reset();
    }

    void stateFilterPasses_data()
    {
        QTest::addColumn<int>("stateFilter");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("Updatable") << int(PackageTable::Updatable) << QStringList{"old", "old-suite"};
        QTest::newRow("Installable") << int(PackageTable::Installable) << QStringList{"new", "new-group"};
        QTest::newRow("Removable") << int(PackageTable::Removable) << QStringList{"old", "old-suite", "same"};
        QTest::newRow("All") << int(PackageTable::All)
                             << QStringList{"new", "new-group", "old", "old-suite", "same"};
    }

    void stateFilterPasses()
    {
        QFETCH(int const, stateFilter);
        MixedTable table;
        table.proxy.setStateFilter(static_cast<PackageTable::StateFilter>(stateFilter));
        QTEST(table.names(), "expected");
        SortFilterProxyModel fromStart(
            static_cast<PackageTable::StateFilter>(stateFilter), true, &table.engine, nullptr);
        fromStart.setSourceModel(&table.model);
        QCOMPARE(fromStart.rowCount(), table.proxy.rowCount());
    }

    void groupsFlagTakesAwayGroupsOnly()
    {
        MixedTable table;
        table.proxy.setGroupsFilter(false);
        QCOMPARE(table.names(), (QStringList{"new", "old", "old-suite", "same"}));
        table.proxy.setGroupsFilter(true);
        QCOMPARE(table.names(), (QStringList{"new", "new-group", "old", "old-suite", "same"}));
    }

    void conditionsCombine()
    {
        MixedTable table;
        table.proxy.setStateFilter(PackageTable::Installable);
        table.proxy.setFilterRegExp("group");
        QCOMPARE(table.names(), QStringList{"new-group"});
        table.proxy.setGroupsFilter(false);
        QCOMPARE(table.names(), QStringList());
    }

    void redundantEndsOfAPatternAreDropped_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("anything") << ".*"
                                  << "";
        QTest::newRow("anything twice") << ".*.*"
                                        << "";
        QTest::newRow("word and anything") << "bash.*"
                                           << "bash";
        QTest::newRow("anything and word") << ".*bash"
                                           << "bash";
        QTest::newRow("both, several times") << ".*.*bash.*.*.*"
                                             << "bash";
        QTest::newRow("in the middle") << "ba.*sh"
                                       << "ba.*sh";
        QTest::newRow("three characters") << "..*"
                                          << ".";
    }

    void redundantEndsOfAPatternAreDropped()
    {
        QFETCH(QString const, pattern);
        Table table;
        table.proxy.setFilterRegExp("something else");
        table.proxy.setFilterRegExp(pattern);
        QTEST(table.proxy.filterRegExp().pattern(), "expected");
    }

    void emptyPatternShowsWhatPassesTheOthersInBothModes()
    {
        for (QString const pattern : {".*", ".*.*", ""}) {
            for (PackageTable::Mode const mode : {PackageTable::Filter, PackageTable::Search}) {
                MixedTable table;
                table.proxy.setMode(mode);
                table.proxy.setStateFilter(PackageTable::Removable);
                table.proxy.setFilterRegExp(pattern);
                QCOMPARE(table.names(), (QStringList{"old", "old-suite", "same"}));
            }
        }
    }

    void aWordFollowedByAnythingIsTheWord()
    {
        MixedTable table;
        table.proxy.setFilterRegExp("suite.*");
        QCOMPARE(table.names(), QStringList{"old-suite"});
    }

    void patternsThatDoNotCompileMatchEverything_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::newRow("unbalanced") << "(";
        QTest::newRow("a backslash whose .* was dropped") << "nothing\\.*";
    }

    void patternsThatDoNotCompileMatchEverything()
    {
        QFETCH(QString const, pattern);
        MixedTable table;
        table.proxy.setStateFilter(PackageTable::Updatable);
        table.proxy.setFilterRegExp("suite");
        QCOMPARE(table.names(), QStringList{"old-suite"});
        table.proxy.setFilterRegExp(pattern);
        QCOMPARE(table.names(), (QStringList{"old", "old-suite"}));
        table.proxy.setMode(PackageTable::Search);
        QCOMPARE(table.names(), (QStringList{"old", "old-suite"}));
        QVERIFY(table.proxy.matches("whatever"));
    }

    void matchingIsCaseSensitiveAndExtended()
    {
        MixedTable table;
        table.proxy.setFilterRegExp("OLD");
        QCOMPARE(table.names(), QStringList());
        table.proxy.setFilterRegExp("^(same|new) ");
        QCOMPARE(table.names(), (QStringList{"new", "same"}));
    }

    void matchesSpeaksUtf8()
    {
        Table table;
        table.proxy.setFilterRegExp(QString::fromUtf8("gr\xc3\xbc\xc3\x9f"));
        QVERIFY(table.proxy.matches(QString::fromUtf8("viele gr\xc3\xbc\xc3\x9f"
                                                      "e")));
        QVERIFY(!table.proxy.matches("viele gruesse"));
    }

    void filterModeTriesTheShownTextsAsOneLine_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("expected");
        QTest::newRow("the whole line")
            << "^bash 5\\.2-1 base x86_64 1\\.5Mb Thu Jan  1 00:00:00 1970$" << true;
        QTest::newRow("across name and version") << "bash 5" << true;
        QTest::newRow("the summary isn't shown") << "The shell" << false;
        QTest::newRow("columns in another order") << "5.2-1.*bash " << false;
    }

    void filterModeTriesTheShownTextsAsOneLine()
    {
        QFETCH(QString const, pattern);
        Table table;
        addFull(table.engine);
        table.proxy.setFilterRegExp(pattern);
        QTEST(table.accepts(0), "expected");
    }

    void emptyTextsLeaveTheirBlankExceptAtTheStart()
    {
        Table table;
        Package::Entry& entry = addFull(table.engine);
        entry.repo.clear();
        table.proxy.setFilterRegExp("^bash 5.2-1  x86_64");
        QVERIFY(table.accepts(0));
        entry.name.clear();
        table.proxy.setFilterRegExp("^5.2-1  x86_64");
        QVERIFY(table.accepts(0));
        entry.verRel.clear();
        table.proxy.setFilterRegExp("^x86_64");
        QVERIFY(table.accepts(0));
    }

    // The predicate reads the records, many rows at the same time; this is the rule as the cells tell it.
    void agreesWithTheTextsOfTheCells()
    {
        Table table;
        QRandomGenerator random(20240501);
        QStringList const words{
            "",
            "a",
            "b",
            "ab",
            "a b",
            "1.0",
            "noarch",
            QString::fromUtf8("gr\xc3\xbc\xc3\x9f"),
            QStringLiteral("\U0001F600"),
            QString(40, 'x')};
        auto const word = [&] { return words[random.bounded(int(words.size()))]; };
        int const rows = 10000;
        for (int row = 0; row < rows; ++row) {
            Package::Entry& entry = table.engine.add(
                word(), static_cast<Package::State>(random.bounded(3)),
                static_cast<Package::Kind>(random.bounded(3)));
            entry.verRel = word();
            entry.repo = word();
            entry.arch = word();
            entry.sizeText = word();
            entry.buildTimeText = word();
        }
        table.model.reset();
        table.proxy.setGroupsFilter(false);
        table.proxy.setStateFilter(PackageTable::Removable);
        for (QString const pattern :
             {"a b", "^ ", "^a  ", "b  *1", "[ab] noarch$", "^[^1]+$", "", "\u00fc", "("}) {
            table.proxy.setFilterRegExp(pattern);
            int shown = 0;
            for (int row = 0; row < rows; ++row) {
                QString line;
                for (int column = 3; column < 9; ++column) {
                    if (!line.isEmpty()) {
                        line += ' ';
                    }
                    line += table.model.index(row, column).data().toString();
                }
                bool const expected = table.model.index(row, 1).data(Qt::UserRole) != Package::Available &&
                                      table.model.index(row, 2).data(Qt::UserRole) != Package::Group &&
                                      table.proxy.matches(line);
                QCOMPARE(table.accepts(row), expected);
                QCOMPARE(table.proxy.acceptRow(table.engine[row], row, QModelIndex()), expected);
                shown += expected ? 1 : 0;
            }
            QCOMPARE(table.proxy.rowCount(), shown);
            // A line never begins with a blank.
            QCOMPARE(shown > 0, pattern != QLatin1String("^ "));
        }
    }

    void withoutFilterEverythingShows()
    {
        MixedTable table;
        table.proxy.setStateFilter(PackageTable::Updatable);
        table.proxy.setGroupsFilter(false);
        table.proxy.setFilterRegExp("matches nothing");
        QCOMPARE(table.names(), QStringList());
        QVERIFY(table.proxy.getFilter());
        table.proxy.setFilter(false);
        QVERIFY(!table.proxy.getFilter());
        QCOMPARE(table.proxy.rowCount(), 5);
        table.proxy.setFilter(true);
        QCOMPARE(table.names(), QStringList());
    }

    void changingTheModeTriesTheSameExpressionAnew()
    {
        Table table;
        addFull(table.engine);
        table.proxy.setFilterRegExp("The shell");
        QVERIFY(!table.accepts(0));
        table.proxy.setMode(PackageTable::Search);
        QVERIFY(table.accepts(0));
        table.proxy.setMode(PackageTable::Filter);
        QVERIFY(!table.accepts(0));
    }

    void resetOfTheListKeepsExpressionAndFilters()
    {
        MixedTable table;
        table.proxy.setFilterRegExp("old");
        table.proxy.setStateFilter(PackageTable::Removable);
        table.engine.drop();
        table.engine.add("older", Package::UpToDate);
        table.engine.add("older", Package::Available);
        table.engine.add("newer", Package::UpToDate);
        table.model.reset();
        QCOMPARE(table.names(), QStringList{"older"});
    }

    void marksSurviveEveryChangeOfFilter()
    {
        MixedTable table;
        table.model.setUpdateAll();
        table.proxy.setFilterRegExp("new");
        table.proxy.setStateFilter(PackageTable::Installable);
        table.proxy.setGroupsFilter(false);
        table.proxy.setMode(PackageTable::Search);
        table.proxy.setFilter(false);
        QCOMPARE(table.engine.entries[0]->action, Package::Update);
        QCOMPARE(table.engine.entries[3]->action, Package::Update);
    }

    void updateAllAlsoMarksWhatDoesNotShow()
    {
        MixedTable table;
        table.proxy.setFilterRegExp("new");
        table.model.setUpdateAll();
        QCOMPARE(table.engine.entries[0]->action, Package::Update);
    }

    // The name is changed behind the proxy's back, so that a row that is tested again shows it.
    void verdictsStandUntilAConditionChanges()
    {
        Table table;
        Package::Entry& entry = table.engine.add("bash", Package::UpToDate);
        table.model.reset();
        table.proxy.setFilterRegExp("bash");
        entry.name = "zsh";

        table.proxy.setStateFilter(PackageTable::All);
        table.proxy.setGroupsFilter(true);
        table.proxy.setMode(PackageTable::Filter);
        table.proxy.setFilterRegExp("bash");
        table.proxy.setFilterRegExp(".*bash.*");
        table.proxy.setFilter(false);
        table.proxy.setFilter(true);
        table.model.reset();
        QVERIFY(table.accepts(0));

        table.proxy.setStateFilter(PackageTable::Removable);
        QVERIFY(!table.accepts(0));
        entry.name = "bash";
        QVERIFY(!table.accepts(0));
        table.proxy.setGroupsFilter(false);
        QVERIFY(table.accepts(0));
        entry.name = "zsh";
        QVERIFY(table.accepts(0));
        table.proxy.setFilterRegExp("bash|dash");
        QVERIFY(!table.accepts(0));
        entry.name = "bash";
        QVERIFY(!table.accepts(0));
        table.proxy.setMode(PackageTable::Search);
        QVERIFY(table.accepts(0));
    }

    void settingTheSameValueRebuildsNothing()
    {
        MixedTable table;
        QSignalSpy const resets(&table.proxy, &SortFilterProxyModel::modelReset);
        table.proxy.setStateFilter(PackageTable::All);
        table.proxy.setGroupsFilter(true);
        table.proxy.setMode(PackageTable::Filter);
        table.proxy.setFilter(true);
        QCOMPARE(resets.count(), 0);
        table.proxy.setStateFilter(PackageTable::Removable);
        QVERIFY(resets.count() > 0);
    }

    void everyRowHasBeenTestedWhenAnExpressionIsSet()
    {
        MixedTable table;
        table.proxy.setFilterRegExp("old");
        for (Package::Entry* entry : table.engine.entries) {
            entry->name = "changed";
        }
        QList<bool> verdicts;
        for (int row = 0; row < 5; ++row) {
            verdicts.append(table.accepts(row));
        }
        QCOMPARE(verdicts, (QList<bool>{true, false, false, true, false}));
    }

    void aNewEntryAtAnOldAddressIsTestedAnew()
    {
        Table table;
        Package::Entry* const entry = &table.engine.add("bash", Package::UpToDate);
        table.model.reset();
        table.proxy.setFilterRegExp("bash");
        QCOMPARE(table.proxy.rowCount(), 1);

        entry->~Entry();
        new (entry) Package::Entry;
        entry->name = "zsh";
        table.model.reset();
        QCOMPARE(table.proxy.rowCount(), 0);
        QVERIFY(!table.accepts(0));

        entry->~Entry();
        new (entry) Package::Entry;
        entry->name = "bash";
        table.model.reset();
        QCOMPARE(table.proxy.rowCount(), 1);
    }

    void rowsThatAreNotThereAreHarmless()
    {
        MixedTable table;
        QVERIFY(!table.accepts(-1));
        QVERIFY(!table.accepts(5));
        QVERIFY(!table.proxy.acceptRow(nullptr, 0, QModelIndex()));
    }

    void picturesHaveWordsForScreenReaders()
    {
        MixedTable table;
        table.proxy.sort(3);
        table.model.setAction(table.model.index(0, 0), Package::Update);
        QModelIndex const action = table.proxy.mapFromSource(table.model.index(0, 0));
        QCOMPARE(action.data(Qt::AccessibleTextRole).toString(), "Update package");
        QCOMPARE(
            action.siblingAtColumn(1).data(Qt::AccessibleTextRole).toString(),
            "Package is available to update an out-of-date version");
        QCOMPARE(action.siblingAtColumn(2).data(Qt::AccessibleTextRole).toString(), "Ordinary package");
        QVERIFY(!action.siblingAtColumn(4).data(Qt::AccessibleTextRole).isValid());
    }
};

QTEST_MAIN(TestPackageTableFilter)
#include "tst_packagetablefilter.moc"
