// SPDX-License-Identifier: GPL-2.0-or-later
// In what order rows show.
#include "TestEngine.h"

#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableSortFilterProxyModel.h"

#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <numeric>

using PackageTable::Model;
using PackageTable::SortFilterProxyModel;

namespace
{

QStringList namesOf(QAbstractItemModel const& proxy)
{
    QStringList names;
    for (int row = 0; row < proxy.rowCount(); ++row) {
        names.append(proxy.index(row, 3).data().toString());
    }
    return names;
}

/// The order as the values of the cells tell it, without a look at the records.
bool plainLessThan(QModelIndex const& left, QModelIndex const& right)
{
    QModelIndex const leftName = left.siblingAtColumn(3);
    QModelIndex const rightName = right.siblingAtColumn(3);
    if (QList<int>{0, 1, 2, 7, 8}.contains(left.column())) {
        int const leftNumber = left.data(Qt::UserRole).toInt();
        int const rightNumber = right.data(Qt::UserRole).toInt();
        return leftNumber == rightNumber ? plainLessThan(leftName, rightName) : leftNumber < rightNumber;
    }
    QString const leftText = left.data().toString();
    QString const rightText = right.data().toString();
    if (leftText == rightText && left.column() != 3) {
        return plainLessThan(leftName, rightName);
    }
    return leftText < rightText;
}

/// The model's rows as the proxy shows them.
QList<int> rowsOf(QAbstractProxyModel const& proxy)
{
    QList<int> rows;
    for (int row = 0; row < proxy.rowCount(); ++row) {
        rows.append(proxy.mapToSource(proxy.index(row, 0)).row());
    }
    return rows;
}

/// The rows in the order of the cells' values; equal ones stay as they stand in the model.
QList<int> plainOrder(Model const& model, int column, Qt::SortOrder order)
{
    QList<int> rows(model.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    std::stable_sort(rows.begin(), rows.end(), [&](int left, int right) {
        bool const ascends = order == Qt::AscendingOrder;
        return plainLessThan(
            model.index(ascends ? left : right, column), model.index(ascends ? right : left, column));
    });
    return rows;
}

/// Whether each row may stand where it does; equal ones may stand in any order.
bool standsInOrder(QAbstractProxyModel const& proxy, int column, Qt::SortOrder order)
{
    QList<int> rows(proxy.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
    return std::is_sorted(rows.begin(), rows.end(), [&](int left, int right) {
        bool const ascends = order == Qt::AscendingOrder;
        return plainLessThan(
            proxy.index(ascends ? left : right, column), proxy.index(ascends ? right : left, column));
    });
}

} // namespace

class TestPackageTableSort : public QObject
{
    Q_OBJECT

private:
    TestEngine engine;
    Model model{&engine, nullptr};
    SortFilterProxyModel proxy{PackageTable::All, true, &engine, nullptr};

private Q_SLOTS:
    void initTestCase() { proxy.setSourceModel(&model); }

    void init()
    {
        engine.drop();
        model.reset();
        proxy.sort(3);
    }

    void agreesWithTheValuesOfTheCells()
    {
        QRandomGenerator random(4711);
        QStringList const words{"", "a", "A", "b", "B", "ab", "1", "10", "9", QString(QChar(0xfc))};
        auto const word = [&] { return words[random.bounded(int(words.size()))]; };
        QList<quint64> const numbers{0, 1, 2, 0x7fffffff, 0x80000000, 0xffffffff, 0x100000000, 0x180000001};
        for (int row = 0; row < 120; ++row) {
            Package::Entry& entry = engine.add(
                word(), static_cast<Package::State>(random.bounded(3)),
                static_cast<Package::Kind>(random.bounded(3)));
            entry.action = static_cast<Package::Action>(random.bounded(4));
            entry.verRel = word();
            entry.repo = word();
            entry.arch = word();
            entry.size = numbers[random.bounded(int(numbers.size()))];
            auto const time = static_cast<long long>(numbers[random.bounded(int(numbers.size()))]);
            entry.buildTime = random.bounded(2) ? time : -time;
        }
        model.reset();
        for (int column = 0; column < 9; ++column) {
            for (int left = 0; left < model.rowCount(); ++left) {
                for (int right = 0; right < model.rowCount(); ++right) {
                    QModelIndex const leftCell = model.index(left, column);
                    QModelIndex const rightCell = model.index(right, column);
                    QCOMPARE(proxy.lessThan(leftCell, rightCell), plainLessThan(leftCell, rightCell));
                }
            }
        }
    }

    void manyRowsStandAsTheValuesOfTheCellsTell()
    {
        QRandomGenerator random(1742);
        // Beginnings of every length that others share, ends of all kinds, and characters beyond Latin-1.
        QStringList pieces{"lib",           "python3-", "a", "A", "-", "0", "12", QString(1, QChar(0)),
                           QString(40, 'x')};
        for (int const unit : {0xfc, 0xff, 0x100, 0x1fd, 0x1fe, 0x1ff, 0x200, 0xd83d, 0xe000, 0xffff}) {
            // A surrogate alone is no text.
            pieces.append(unit == 0xd83d ? QString::fromUcs4(U"\U0001f600") : QString(QChar(unit)));
        }
        auto const text = [&](int most) {
            QString result;
            for (int count = random.bounded(most + 1); count > 0; --count) {
                result += pieces[random.bounded(int(pieces.size()))];
            }
            return result;
        };
        auto const fill = [&](int rows) {
            for (int row = 0; row < rows; ++row) {
                Package::Entry& entry = engine.add(
                    text(4), static_cast<Package::State>(random.bounded(3)),
                    static_cast<Package::Kind>(random.bounded(3)));
                entry.action = static_cast<Package::Action>(random.bounded(4));
                entry.verRel = text(3);
                entry.repo = text(1);
                entry.arch = text(1);
                entry.size = random.bounded(100) + (quint64(random.bounded(4)) << 31);
                entry.buildTime = random.bounded(-100, 100);
            }
        };
        // Of the larger number several processors find the ranks.
        for (int const rows : {700, 4500}) {
            engine.drop();
            fill(rows);
            model.reset();
            for (int column = 0; column < 9; ++column) {
                for (Qt::SortOrder const order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
                    proxy.sort(column, order);
                    QVERIFY(standsInOrder(proxy, column, order));
                    proxy.clear();
                    QCOMPARE(rowsOf(proxy), plainOrder(model, column, order));
                }
            }
        }
        // Marks come and go without a reset.
        for (Package::Entry* const entry : engine.entries) {
            entry->action = static_cast<Package::Action>(random.bounded(4));
        }
        proxy.sort(0);
        QVERIFY(standsInOrder(proxy, 0, Qt::AscendingOrder));
    }

    void numbersSortByValueAndNotByText()
    {
        for (quint64 const size : {quint64(900), quint64(1000), quint64(20)}) {
            Package::Entry& entry = engine.add(QString::number(size), Package::Available);
            entry.size = size;
            entry.sizeText = QString::number(size);
        }
        model.reset();
        proxy.sort(7);
        QCOMPARE(namesOf(proxy), (QStringList{"20", "900", "1000"}));
        proxy.sort(7, Qt::DescendingOrder);
        QCOMPARE(namesOf(proxy), (QStringList{"1000", "900", "20"}));
    }

    void sizesFromTwoGigabytesSortAmongSmallAndNegativeValues()
    {
        engine.add("small", Package::Available).size = 10;
        engine.add("two", Package::Available).size = quint64(2) << 30;
        engine.add("four", Package::Available).size = (quint64(4) << 30) + 5;
        model.reset();
        proxy.sort(7);
        QCOMPARE(namesOf(proxy), (QStringList{"two", "four", "small"}));
    }

    void tiesBreakOnName()
    {
        for (QString const name : {"c", "a", "b"}) {
            Package::Entry& entry = engine.add(name, Package::Available);
            entry.repo = "base";
            entry.arch = "noarch";
        }
        engine.add("0", Package::Available).repo = "updates";
        model.reset();
        proxy.sort(2);
        QCOMPARE(namesOf(proxy), (QStringList{"0", "a", "b", "c"}));
        proxy.sort(5);
        QCOMPARE(namesOf(proxy), (QStringList{"a", "b", "c", "0"}));
    }

    void textsSortByCodeUnit()
    {
        for (QString const name : {"b", "B", "a", "Z"}) {
            engine.add(name, Package::Available);
        }
        model.reset();
        proxy.sort(3);
        QCOMPARE(namesOf(proxy), (QStringList{"B", "Z", "a", "b"}));
    }

    void suitesStandBeforeGroupsBeforePackages()
    {
        engine.add("package", Package::Available);
        engine.add("group", Package::Available, Package::Group);
        engine.add("suite", Package::Available, Package::Suite);
        model.reset();
        proxy.sort(2);
        QCOMPARE(namesOf(proxy), (QStringList{"suite", "group", "package"}));
    }

    void orderSurvivesResetsAndChangesOfFilter()
    {
        for (QString const name : {"b", "c", "a"}) {
            engine.add(name, Package::UpToDate);
        }
        model.reset();
        proxy.sort(3, Qt::DescendingOrder);
        QStringList const expected{"c", "b", "a"};
        QCOMPARE(namesOf(proxy), expected);
        model.reset();
        QCOMPARE(namesOf(proxy), expected);
        proxy.setStateFilter(PackageTable::Removable);
        QCOMPARE(namesOf(proxy), expected);
        proxy.setFilterRegExp("[abc]");
        QCOMPARE(namesOf(proxy), expected);
        proxy.setFilter(false);
        QCOMPARE(namesOf(proxy), expected);
        proxy.setFilter(true);
        proxy.setStateFilter(PackageTable::All);
        proxy.setFilterRegExp("");

        engine.drop();
        model.reset();
        QCOMPARE(namesOf(proxy), QStringList());
        for (QString const name : {"y", "z", "x"}) {
            engine.add(name, Package::UpToDate);
        }
        model.reset();
        QCOMPARE(namesOf(proxy), (QStringList{"z", "y", "x"}));
        QCOMPARE(proxy.sortColumn(), 3);
        QCOMPARE(proxy.sortOrder(), Qt::DescendingOrder);
    }

    void aRowStaysInItsPlaceWhenItsMarkChanges()
    {
        for (QString const name : {"a", "b", "c"}) {
            engine.add(name, Package::OutOfDate);
        }
        model.reset();
        proxy.sort(0);
        model.toggleAction(model.index(2, 0));
        QCOMPARE(namesOf(proxy), (QStringList{"a", "b", "c"}));
        proxy.sort(0);
        QCOMPARE(namesOf(proxy), (QStringList{"c", "a", "b"}));
    }

    void indexesWithoutAModelAreNeverLess()
    {
        engine.add("a", Package::Available);
        model.reset();
        for (int column : {0, 1, 2, 7, 8}) {
            QVERIFY(!proxy.lessThan(model.index(0, column), QModelIndex()));
        }
        QVERIFY(!proxy.lessThan(model.index(0, 3), QModelIndex()));
        QVERIFY(!proxy.lessThan(QModelIndex(), QModelIndex()));
    }
};

QTEST_MAIN(TestPackageTableSort)
#include "tst_packagetablesort.moc"
