// SPDX-License-Identifier: GPL-2.0-or-later
#include "TableModel.h"
#include "widgets/HSortFilterProxyModel.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <functional>

namespace
{

QStringList column(QAbstractItemModel const& model, int number)
{
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        texts.append(model.index(row, number).data().toString());
    }
    return texts;
}

TableModel::Rows numberedRows(int count)
{
    TableModel::Rows rows;
    for (int row = 0; row < count; ++row) {
        rows.append({row % 2 ? QStringLiteral("odd") : QStringLiteral("even"), row});
    }
    return rows;
}

// Counts the questions whether a row passes the filter, and notes what is sorted.
class Watched : public HSortFilterProxyModel
{
public:
    using HSortFilterProxyModel::HSortFilterProxyModel;

    void sort(int column, Qt::SortOrder order) override
    {
        sorts.append({column, order});
        HSortFilterProxyModel::sort(column, order);
    }

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override
    {
        ++comparisons;
        return HSortFilterProxyModel::lessThan(left, right);
    }

    QList<std::pair<int, Qt::SortOrder>> sorts;
    int refills = 0;
    mutable int questions = 0;
    mutable int comparisons = 0;

protected:
    void sourceWasRefilled() override { ++refills; }

    [[nodiscard]] bool filterAcceptsRow(int row, QModelIndex const& parent) const override
    {
        ++questions;
        return HSortFilterProxyModel::filterAcceptsRow(row, parent);
    }
};

// Sorts the wrong way round, to see that ties pass through an override too.
class DescendingNumbers : public HSortFilterProxyModel
{
public:
    using HSortFilterProxyModel::HSortFilterProxyModel;

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override
    {
        return left.column() == 1 ? right.data().toInt() < left.data().toInt()
                                  : HSortFilterProxyModel::lessThan(left, right);
    }
};

} // namespace

class tst_HSortFilterProxyModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comparesInTheTypeOfTheLeftValue_data();
    void comparesInTheTypeOfTheLeftValue();
    void indexesWithoutAModelAreNotLess();
    void sortsByTheDisplayRoleWhateverTheSortRoleIs();
    void equalValuesSortBySecondaryColumn_data();
    void equalValuesSortBySecondaryColumn();
    void tiesAskAnOverride();
    void tiesInTheSecondaryColumnStayStable();
    void missingSecondaryColumnEndsTheComparison();
    void secondaryIndexStandsInTheSameModelAndRow();
    void filterExpressionSelectsRows_data();
    void filterExpressionSelectsRows();
    void patternKeepsCaseSensitivity();
    void everyChangeResetsAndKeepsTheSort_data();
    void everyChangeResetsAndKeepsTheSort();
    void changeOfFilterClearsSelectionAndCurrentIndex();
    void changeOfFilterRemovesNoRowsOneByOne();
    void changeOfFilterAsksOnceForEachRow();
    void changeOfFilterSortsThroughTheVirtualOperation();
    void changeOfFilterSortsOnce();
    void sortsByAColumnThatComesWithAReset();
    void aRefilledSourceIsTold();
    void persistentIndexesEndWithAChangeOfFilter();
    void worksWithoutASource();
};

void tst_HSortFilterProxyModel::comparesInTheTypeOfTheLeftValue_data()
{
    QTest::addColumn<QVariant>("left");
    QTest::addColumn<QVariant>("right");
    QTest::addColumn<bool>("leftIsLess");
    QTest::addColumn<bool>("rightIsLess");
    auto const row = [](char const* name, QVariant const& left, QVariant const& right, bool less,
                        bool greater) { QTest::newRow(name) << left << right << less << greater; };
    row("Int, signed", -1, 1, true, false);
    row("Int, by number and not by text", 9, 10, true, false);
    row("Int, equal", 4, 4, false, false);
    row("Int against text", 9, QStringLiteral("10"), true, true);
    row("UInt, unsigned", 1U, 4000000000U, true, false);
    row("LongLong, beyond 32 bits", 5000000000LL, 40000000000LL, true, false);
    row("LongLong, signed", -5000000000LL, 1LL, true, false);
    row("ULongLong, unsigned", 1ULL, 18000000000000000000ULL, true, false);
    row("Double", 0.25, 0.5, true, false);
    row("Double against Int", 2.5, 2, false, true);
    row("Double, not a number", qQNaN(), 1.0, false, false);
    row("Char", QChar(u'B'), QChar(u'a'), true, false);
    row("String, capital first", QStringLiteral("Zebra"), QStringLiteral("ant"), true, false);
    row("String, by code unit", QStringLiteral("z"), QString(QChar(0x00e4)), true, false);
    row("String against Int", QStringLiteral("10"), 9, true, true);
    row("Date", QDate(2009, 12, 31), QDate(2010, 1, 1), true, false);
    row("Time", QTime(9, 0), QTime(10, 0), true, false);
    row("DateTime", QDateTime(QDate(2009, 12, 31), QTime(23, 0)), QDateTime(QDate(2010, 1, 1), QTime(1, 0)),
        true, false);
    row("bool, by its text", false, true, true, false);
    row("byte array, by its text", QByteArray("B"), QByteArray("a"), true, false);
    row("invalid, as an empty text", QVariant(), QStringLiteral("a"), true, false);
}

void tst_HSortFilterProxyModel::comparesInTheTypeOfTheLeftValue()
{
    QFETCH(QVariant, left);
    QFETCH(QVariant, right);
    TableModel model({{left}, {right}});
    HSortFilterProxyModel const proxy(0, nullptr);

    QTEST(proxy.lessThan(model.index(0, 0), model.index(1, 0)), "leftIsLess");
    QTEST(proxy.lessThan(model.index(1, 0), model.index(0, 0)), "rightIsLess");
}

void tst_HSortFilterProxyModel::indexesWithoutAModelAreNotLess()
{
    HSortFilterProxyModel const proxy(3, nullptr);

    QVERIFY(!proxy.lessThan({}, {}));
    QVERIFY(!proxy.createSecondarySortIndex({}).isValid());
}

void tst_HSortFilterProxyModel::sortsByTheDisplayRoleWhateverTheSortRoleIs()
{
    TableModel model({{QStringLiteral("b")}, {QStringLiteral("a")}});
    model.otherRoles[{0, 0}][Qt::UserRole] = 1;
    model.otherRoles[{1, 0}][Qt::UserRole] = 2;
    HSortFilterProxyModel proxy(0, nullptr);
    proxy.setSourceModel(&model);
    proxy.setSortRole(Qt::UserRole);

    proxy.sort(0);

    QCOMPARE(column(proxy, 0), QStringList({"a", "b"}));
}

void tst_HSortFilterProxyModel::equalValuesSortBySecondaryColumn_data()
{
    QTest::addColumn<QVariant>("tie");
    QTest::newRow("Int") << QVariant(7);
    QTest::newRow("UInt") << QVariant(7U);
    QTest::newRow("LongLong") << QVariant(7LL);
    QTest::newRow("ULongLong") << QVariant(7ULL);
    QTest::newRow("Double") << QVariant(0.5);
    QTest::newRow("Char") << QVariant(QChar(u'x'));
    QTest::newRow("String") << QVariant(QStringLiteral("x"));
    QTest::newRow("Date") << QVariant(QDate(2009, 1, 1));
    QTest::newRow("Time") << QVariant(QTime(9, 0));
    QTest::newRow("DateTime") << QVariant(QDateTime(QDate(2009, 1, 1), QTime(9, 0)));
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("invalid") << QVariant();
}

void tst_HSortFilterProxyModel::equalValuesSortBySecondaryColumn()
{
    QFETCH(QVariant, tie);
    TableModel model({{tie, 10}, {tie, 9}, {tie, 11}});
    HSortFilterProxyModel proxy(1, nullptr);
    QAbstractItemModelTester const tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);

    proxy.sort(0);

    QCOMPARE(column(proxy, 1), QStringList({"9", "10", "11"}));
}

void tst_HSortFilterProxyModel::tiesAskAnOverride()
{
    TableModel model({{0, 10}, {0, 9}, {0, 11}});
    DescendingNumbers proxy(1, nullptr);
    proxy.setSourceModel(&model);

    proxy.sort(0);

    QCOMPARE(column(proxy, 1), QStringList({"11", "10", "9"}));
}

void tst_HSortFilterProxyModel::tiesInTheSecondaryColumnStayStable()
{
    TableModel model({{QStringLiteral("c"), 1}, {QStringLiteral("a"), 1}, {QStringLiteral("b"), 1}});
    HSortFilterProxyModel proxy(1, nullptr);
    proxy.setSourceModel(&model);

    proxy.sort(1);

    QCOMPARE(column(proxy, 0), QStringList({"c", "a", "b"}));
}

void tst_HSortFilterProxyModel::missingSecondaryColumnEndsTheComparison()
{
    TableModel const model({{1}, {1}});
    HSortFilterProxyModel const proxy(5, nullptr);

    QVERIFY(!proxy.lessThan(model.index(0, 0), model.index(1, 0)));
}

void tst_HSortFilterProxyModel::secondaryIndexStandsInTheSameModelAndRow()
{
    TableModel const model({{1, 2, 3}, {4, 5, 6}});
    HSortFilterProxyModel const proxy(2, nullptr);

    QCOMPARE(proxy.createSecondarySortIndex(model.index(1, 0)), model.index(1, 2));
}

void tst_HSortFilterProxyModel::filterExpressionSelectsRows_data()
{
    QTest::addColumn<bool>("asPattern");
    QTest::newRow("pattern") << true;
    QTest::newRow("expression") << false;
}

void tst_HSortFilterProxyModel::filterExpressionSelectsRows()
{
    QFETCH(bool, asPattern);
    TableModel model({{QStringLiteral("kernel")}, {QStringLiteral("bash")}, {QStringLiteral("kmod")}});
    HSortFilterProxyModel proxy(0, nullptr);
    QAbstractItemModelTester const tester(&proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
    proxy.setSourceModel(&model);
    proxy.sort(0);
    auto const filter = [&](QString const& pattern) {
        if (asPattern) {
            proxy.setFilterRegExp(pattern);
        } else {
            proxy.setFilterRegExp(QRegularExpression(pattern));
        }
    };

    filter(QStringLiteral("^k"));
    QCOMPARE(column(proxy, 0), QStringList({"kernel", "kmod"}));
    QCOMPARE(proxy.filterRegExp().pattern(), QStringLiteral("^k"));

    filter(QStringLiteral("nothing"));
    QCOMPARE(proxy.rowCount(), 0);

    filter(QString());
    QCOMPARE(column(proxy, 0), QStringList({"bash", "kernel", "kmod"}));
    QCOMPARE(model.rowCount(), 3);

    model.setRows({{QStringLiteral("zsh")}, {QStringLiteral("ash")}});
    QCOMPARE(column(proxy, 0), QStringList({"ash", "zsh"}));
}

void tst_HSortFilterProxyModel::patternKeepsCaseSensitivity()
{
    TableModel model({{QStringLiteral("Kernel")}, {QStringLiteral("kmod")}});
    HSortFilterProxyModel proxy(0, nullptr);
    proxy.setSourceModel(&model);

    proxy.setFilterRegExp(QRegularExpression(QStringLiteral("x"), QRegularExpression::CaseInsensitiveOption));
    proxy.setFilterRegExp(QStringLiteral("^K"));
    QCOMPARE(proxy.rowCount(), 2);

    proxy.setFilterRegExp(QRegularExpression(QStringLiteral("^K")));
    QCOMPARE(proxy.rowCount(), 1);
}

void tst_HSortFilterProxyModel::everyChangeResetsAndKeepsTheSort_data()
{
    using Change = std::function<void(HSortFilterProxyModel&)>;
    QTest::addColumn<Change>("change");
    QTest::newRow("filterChanged") << Change([](HSortFilterProxyModel& proxy) { proxy.filterChanged(); });
    QTest::newRow("clear") << Change([](HSortFilterProxyModel& proxy) { proxy.clear(); });
    QTest::newRow("pattern") << Change(
        [](HSortFilterProxyModel& proxy) { proxy.setFilterRegExp(QStringLiteral(".")); });
    QTest::newRow("expression") << Change(
        [](HSortFilterProxyModel& proxy) { proxy.setFilterRegExp(QRegularExpression(QStringLiteral("."))); });
}

void tst_HSortFilterProxyModel::everyChangeResetsAndKeepsTheSort()
{
    QFETCH(std::function<void(HSortFilterProxyModel&)>, change);
    TableModel model({{2, 0}, {3, 0}, {1, 0}});
    HSortFilterProxyModel proxy(1, nullptr);
    proxy.setSourceModel(&model);
    proxy.sort(0, Qt::DescendingOrder);
    QSignalSpy const sourceReset(&model, &QAbstractItemModel::modelReset);
    QSignalSpy const proxyReset(&proxy, &QAbstractItemModel::modelReset);

    change(proxy);

    QCOMPARE(sourceReset.count(), 1);
    QCOMPARE(proxyReset.count(), 1);
    QCOMPARE(column(proxy, 0), QStringList({"3", "2", "1"}));
    QCOMPARE(proxy.sortColumn(), 0);
    QCOMPARE(proxy.sortOrder(), Qt::DescendingOrder);
}

void tst_HSortFilterProxyModel::changeOfFilterClearsSelectionAndCurrentIndex()
{
    TableModel model(numberedRows(10));
    HSortFilterProxyModel proxy(1, nullptr);
    proxy.setSourceModel(&model);
    QTableView view;
    view.setModel(&proxy);
    view.selectAll();
    view.setCurrentIndex(proxy.index(3, 0));

    proxy.setFilterRegExp(QStringLiteral("odd"));

    QVERIFY(!view.selectionModel()->hasSelection());
    QVERIFY(!view.currentIndex().isValid());
    QCOMPARE(view.model()->rowCount(), 5);
}

void tst_HSortFilterProxyModel::changeOfFilterRemovesNoRowsOneByOne()
{
    TableModel model(numberedRows(1000));
    HSortFilterProxyModel proxy(1, nullptr);
    proxy.setSourceModel(&model);
    QTableView view;
    view.setModel(&proxy);
    view.selectAll();
    QSignalSpy const removed(&proxy, &QAbstractItemModel::rowsRemoved);
    QSignalSpy const inserted(&proxy, &QAbstractItemModel::rowsInserted);

    proxy.setFilterRegExp(QStringLiteral("odd"));
    QCOMPARE(proxy.rowCount(), 500);
    proxy.setFilterRegExp(QString());
    QCOMPARE(proxy.rowCount(), 1000);

    QCOMPARE(removed.count(), 0);
    QCOMPARE(inserted.count(), 0);
}

void tst_HSortFilterProxyModel::changeOfFilterAsksOnceForEachRow()
{
    TableModel model(numberedRows(100));
    Watched proxy(1, nullptr);
    proxy.setSourceModel(&model);
    QTableView view;
    view.setModel(&proxy);
    view.selectAll();
    for (char const* const pattern : {"odd", "even", ""}) {
        proxy.questions = 0;

        proxy.setFilterRegExp(QString::fromLatin1(pattern));
        QCOMPARE(proxy.rowCount(), *pattern ? 50 : 100);

        QCOMPARE(proxy.questions, 100);
    }
}

void tst_HSortFilterProxyModel::changeOfFilterSortsThroughTheVirtualOperation()
{
    TableModel model(numberedRows(4));
    Watched proxy(1, nullptr);
    proxy.setSourceModel(&model);
    proxy.sort(1, Qt::DescendingOrder);
    proxy.sorts.clear();

    proxy.clear();
    proxy.filterChanged();
    proxy.setFilterRegExp(QStringLiteral("odd"));
    proxy.setFilterRegExp(QRegularExpression(QStringLiteral("even")));

    QCOMPARE(proxy.sorts, decltype(proxy.sorts)(4, {1, Qt::DescendingOrder}));
}

void tst_HSortFilterProxyModel::changeOfFilterSortsOnce()
{
    TableModel model(numberedRows(100));
    Watched proxy(1, nullptr);
    proxy.setDynamicSortFilter(false);
    proxy.setSourceModel(&model);
    QTableView view;
    view.setModel(&proxy);
    proxy.comparisons = 0;
    proxy.sort(1, Qt::DescendingOrder);
    int const once = proxy.comparisons;
    QVERIFY(once > 0);

    proxy.comparisons = 0;
    proxy.clear();
    QCOMPARE(column(proxy, 1).first(), QStringLiteral("99"));
    QCOMPARE(proxy.comparisons, once);

    proxy.comparisons = 0;
    proxy.setFilterRegExp(QStringLiteral("odd|even"));
    QCOMPARE(column(proxy, 1).first(), QStringLiteral("99"));
    QCOMPARE(proxy.comparisons, once);

    // Whoever asks for a sort gets it.
    proxy.sort(1, Qt::DescendingOrder);
    QVERIFY(proxy.comparisons > once);
}

void tst_HSortFilterProxyModel::sortsByAColumnThatComesWithAReset()
{
    TableModel model({{QStringLiteral("a")}, {QStringLiteral("b")}});
    HSortFilterProxyModel proxy(0, nullptr);
    proxy.setDynamicSortFilter(false);
    proxy.setSourceModel(&model);
    QTableView view;
    view.setModel(&proxy);
    proxy.sort(1);
    model.silentlyTakeRows({{QStringLiteral("a"), 2}, {QStringLiteral("b"), 1}});

    proxy.clear();

    QCOMPARE(column(proxy, 1), QStringList({"1", "2"}));
}

void tst_HSortFilterProxyModel::aRefilledSourceIsTold()
{
    TableModel model(numberedRows(4));
    TableModel other(numberedRows(4));
    Watched proxy(1, nullptr);
    proxy.setSourceModel(&other);
    proxy.setSourceModel(&model);
    proxy.refills = 0;

    proxy.clear();
    proxy.setFilterRegExp(QStringLiteral("odd"));
    other.setRows(numberedRows(6));
    QCOMPARE(proxy.refills, 0);

    model.setRows(numberedRows(5));
    QCOMPARE(proxy.refills, 1);
}

void tst_HSortFilterProxyModel::persistentIndexesEndWithAChangeOfFilter()
{
    TableModel model(numberedRows(4));
    HSortFilterProxyModel proxy(1, nullptr);
    proxy.setSourceModel(&model);
    QPersistentModelIndex const index(proxy.index(3, 0));

    proxy.setFilterRegExp(QStringLiteral("even"));

    QVERIFY(!index.isValid());
}

void tst_HSortFilterProxyModel::worksWithoutASource()
{
    HSortFilterProxyModel proxy(0, nullptr);

    proxy.clear();
    proxy.filterChanged();
    proxy.setFilterRegExp(QStringLiteral("a"));

    QCOMPARE(proxy.filterRegExp().pattern(), QStringLiteral("a"));
    QCOMPARE(proxy.rowCount(), 0);
}

QTEST_MAIN(tst_HSortFilterProxyModel)
#include "tst_HSortFilterProxyModel.moc"
