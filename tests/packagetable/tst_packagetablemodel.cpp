// SPDX-License-Identifier: GPL-2.0-or-later
#include "TestEngine.h"

#include "base/Share.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"
#include "widgets/Colors.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using PackageTable::Model;

namespace
{

/// A table's rows have no rows below them, which the model doesn't say when it is asked for the number: no
/// view of a table asks. The tester does.
class FlatModel : public Model
{
public:
    using Model::createIndex;
    using Model::Model;
    int rowCount(QModelIndex const& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : Model::rowCount();
    }
};

QImage imageOf(QVariant const& decoration)
{
    return qvariant_cast<QIcon>(decoration).pixmap(16).toImage();
}

QImage imageOf(char const* name)
{
    return Share::icon(QStringLiteral("icons/%1.png").arg(QLatin1String(name))).pixmap(16).toImage();
}

QList<int> rowsOf(QSignalSpy const& dataChanged)
{
    QList<int> rows;
    for (QList<QVariant> const& emission : dataChanged) {
        auto const topLeft = emission[0].toModelIndex();
        auto const bottomRight = emission[1].toModelIndex();
        if (topLeft != bottomRight || topLeft.column() != PackageTable::ActionColumn) {
            return {-1};
        }
        rows.append(topLeft.row());
    }
    return rows;
}

} // namespace

class TestPackageTableModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsTheRulesOfModels()
    {
        TestEngine engine;
        FlatModel model(&engine, nullptr);
        QAbstractItemModelTester const tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        engine.add("bash", Package::OutOfDate);
        engine.add("zsh", Package::Available);
        model.reset();
        model.setUpdateAll();
        model.clearActions();
        engine.drop();
        model.reset();
    }

    void hasARowForEachEntryAndAllColumnsWhateverTheParent()
    {
        TestEngine engine;
        Model const model(&engine, nullptr);
        QCOMPARE(model.rowCount(), 0);
        engine.add("bash", Package::OutOfDate);
        engine.add("zsh", Package::Available);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.rowCount(model.index(1, 3)), 2);
        QCOMPARE(model.columnCount(), int{PackageTable::ColumnCount});
        QCOMPARE(model.columnCount(model.index(1, 3)), int{PackageTable::ColumnCount});
    }

    void everyCellIsEnabledAndSelectableAndNotEditable()
    {
        TestEngine engine;
        engine.add("bash", Package::OutOfDate);
        Model const model(&engine, nullptr);
        for (int column = 0; column < 9; ++column) {
            Qt::ItemFlags const flags = model.flags(model.index(0, column));
            QVERIFY(flags.testFlag(Qt::ItemIsEnabled));
            QVERIFY(flags.testFlag(Qt::ItemIsSelectable));
            QVERIFY(!flags.testFlag(Qt::ItemIsEditable));
        }
    }

    void namesItsColumns_data()
    {
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("toolTip");
        QTest::newRow("0") << "Action"
                           << "Action to be performed on the package, if any: Update, Install, Remove";
        QTest::newRow("1")
            << "State"
            << "Indicates whether the package is Installed or not and, if installed, whether it "
               "is Up-to-date or not";
        QTest::newRow("2")
            << "Kind"
            << "Whether the package is an ordinary package, a suite of packages, or a group of packages";
        QTest::newRow("3") << "Name"
                           << "Name of the package";
        QTest::newRow("4") << "Version"
                           << "Version and release of the package as version-release;\nIf the Epoch is "
                              "non-zero, includes it as epoch:version-release";
        QTest::newRow("5") << "Repository"
                           << "Repository from which the most recent version of the package is available";
        QTest::newRow("6") << "Architecture"
                           << "Architecture for which the package is applicable, or \"noarch\" for "
                              "general-purpose packages";
        QTest::newRow("7") << "Size"
                           << "Size of the package";
        QTest::newRow("8") << "Build Time"
                           << "Date and time at which the package was created";
    }

    void namesItsColumns()
    {
        TestEngine engine;
        Model const model(&engine, nullptr);
        int const section = QByteArray(QTest::currentDataTag()).toInt();
        QTEST(model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(), "title");
        QTEST(model.headerData(section, Qt::Horizontal, Qt::ToolTipRole).toString(), "toolTip");
    }

    void hasNoOtherHeaders()
    {
        TestEngine engine;
        engine.add("bash", Package::OutOfDate);
        Model const model(&engine, nullptr);
        QVERIFY(!model.headerData(PackageTable::ColumnCount, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).isValid());
        QVERIFY(!model.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
        QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::DecorationRole).isValid());
        QVERIFY(!model.headerData(0, Qt::Horizontal, Qt::UserRole).isValid());
    }

    void showsTheTextsOfTheEntry()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::OutOfDate);
        entry.verRel = "5.2-1";
        entry.repo = "updates";
        entry.arch = "x86_64";
        entry.sizeText = "1.0Kb";
        entry.summary = "The shell";
        entry.buildTimeText = "Thu Jan  1 00:00:00 1970";
        Model const model(&engine, nullptr);
        for (int column : {0, 1, 2}) {
            QVERIFY(!model.index(0, column).data().isValid());
        }
        QStringList texts;
        for (int column = 3; column < 9; ++column) {
            QCOMPARE(model.index(0, column).data().typeId(), int(QMetaType::QString));
            texts += model.index(0, column).data().toString();
        }
        QStringList const expected{"bash", "5.2-1", "updates", "x86_64", "1.0Kb", "Thu Jan  1 00:00:00 1970"};
        QCOMPARE(texts, expected);
    }

    void drawsTheAction()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::OutOfDate);
        Model const model(&engine, nullptr);
        QModelIndex const cell = model.index(0, 0);
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("noneBox"));
        QVERIFY(!cell.data(Qt::ToolTipRole).isValid());
        entry.action = Package::Update;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("updateBox"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Update package");
        entry.action = Package::Install;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("installBox"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Install package");
        entry.action = Package::Remove;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("removeBox"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Remove package");
    }

    void drawsTheState()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::OutOfDate);
        Model const model(&engine, nullptr);
        QModelIndex const cell = model.index(0, 1);
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("out-of-date"));
        QCOMPARE(
            cell.data(Qt::ToolTipRole).toString(), "Package is available to update an out-of-date version");
        entry.state = Package::UpToDate;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("up-to-date"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Package is installed and up-to-date");
        entry.state = Package::Available;
        QVERIFY(!cell.data(Qt::DecorationRole).isValid());
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Package is available for installation");
    }

    void toolTipsNameWhatAnUpdateReplaces()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("led", Package::OutOfDate);
        entry.verRel = "2.0-1";
        entry.replaces = "candle 1.0-1 (noarch), torch 3-1 (noarch)";
        Model const model(&engine, nullptr);
        auto const toolTip = [&model](int column) {
            return model.index(0, column).data(Qt::ToolTipRole).toString();
        };
        QCOMPARE(toolTip(1), "Package is available to replace candle 1.0-1 (noarch), torch 3-1 (noarch)");
        QCOMPARE(toolTip(4), "Available: 2.0-1\nReplaces: candle 1.0-1 (noarch), torch 3-1 (noarch)\n");

        entry.installed = new Package::Entry;
        entry.installed->verRel = "1.0-1";
        QCOMPARE(toolTip(1), "Package is available to update an out-of-date version");
        QCOMPARE(toolTip(4), "Available: 2.0-1\nInstalled: 1.0-1\n");
    }

    void drawsTheKind()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::OutOfDate);
        Model const model(&engine, nullptr);
        QModelIndex const cell = model.index(0, 2);
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("package"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Ordinary package");
        entry.kind = Package::Suite;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("suite"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Suite of packages");
        entry.kind = Package::Group;
        QCOMPARE(imageOf(cell.data(Qt::DecorationRole)), imageOf("group"));
        QCOMPARE(cell.data(Qt::ToolTipRole).toString(), "Group of packages");
    }

    void picturesDiffer()
    {
        QList<QImage> images;
        for (char const* const name :
             {"out-of-date", "up-to-date", "noneBox", "updateBox", "installBox", "removeBox", "suite",
              "group", "package"}) {
            QImage const image = imageOf(name);
            QVERIFY2(!image.isNull(), name);
            QVERIFY2(!images.contains(image), name);
            images.append(image);
        }
    }

    void textColumnsHaveNeitherPictureNorToolTip()
    {
        TestEngine engine;
        engine.add("bash", Package::Available);
        Model const model(&engine, nullptr);
        for (int column = 3; column < 9; ++column) {
            QVERIFY(!model.index(0, column).data(Qt::DecorationRole).isValid());
            QVERIFY(!model.index(0, column).data(Qt::ToolTipRole).isValid());
        }
    }

    void versionToolTipListsTheUpdateAndWhatIsInstalled()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("kernel", Package::OutOfDate);
        entry.verRel = "6.3-1";
        entry.installed = new Package::Entry;
        entry.installed->state = Package::UpToDate;
        entry.installed->verRel = "6.2-1";
        entry.installed->installed = new Package::Entry;
        entry.installed->installed->state = Package::UpToDate;
        entry.installed->installed->verRel = "6.1-1";
        Model const model(&engine, nullptr);
        QCOMPARE(
            model.index(0, 4).data(Qt::ToolTipRole).toString(),
            "Available: 6.3-1\nInstalled: 6.2-1\nInstalled: 6.1-1\n");

        entry.installed->state = static_cast<Package::State>(3);
        QCOMPARE(model.index(0, 4).data(Qt::ToolTipRole).toString(), "Available: 6.3-1\nInstalled: 6.1-1\n");

        for (Package::State const state : {Package::Available, Package::UpToDate}) {
            entry.state = state;
            QVERIFY(!model.index(0, 4).data(Qt::ToolTipRole).isValid());
        }
    }

    void coloursRowsByStateAndEnabling()
    {
        TestEngine engine;
        engine.add("old", Package::OutOfDate);
        engine.add("new", Package::Available);
        engine.add("same", Package::UpToDate);
        Model model(&engine, nullptr);
        auto const colour = [&](int row, int column = 3) {
            return qvariant_cast<QColor>(model.index(row, column).data(Qt::ForegroundRole));
        };
        for (int column = 2; column < 9; ++column) {
            QCOMPARE(colour(0, column), QColor(Colors::error()));
            QCOMPARE(colour(1, column), QColor(Colors::minor()));
            // No value at all: an invalid colour would be drawn as black.
            QVERIFY(!model.index(2, column).data(Qt::ForegroundRole).isValid());
        }
        for (int column : {0, 1}) {
            QVERIFY(!model.index(0, column).data(Qt::ForegroundRole).isValid());
        }
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.setEnabled(false);
        QCOMPARE(colour(0), QColor(Colors::errorDisabled()));
        QCOMPARE(colour(1), QColor(Colors::minorDisabled()));
        QVERIFY(!colour(2).isValid());
        model.setEnabled(true);
        QCOMPARE(colour(0), QColor(Colors::error()));
        QCOMPARE(changes.count(), 0);
    }

    void givesRawValues()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::UpToDate, Package::Group);
        entry.action = Package::Remove;
        entry.size = 5'000'000'000ULL;
        entry.buildTime = -5'000'000'000LL;
        Model const model(&engine, nullptr);
        auto const raw = [&](int column) { return model.index(0, column).data(Qt::UserRole); };
        QCOMPARE(raw(0), QVariant(2));
        QCOMPARE(raw(1), QVariant(2));
        QCOMPARE(raw(2), QVariant(1));
        for (int column = 3; column < 7; ++column) {
            QCOMPARE(raw(column).metaType().name(), "Package::Entry*");
            QCOMPARE(qvariant_cast<Package::Entry*>(raw(column)), &entry);
        }
        QCOMPARE(raw(7), QVariant(5'000'000'000ULL));
        QCOMPARE(raw(7).typeId(), int(QMetaType::ULongLong));
        QCOMPARE(raw(8), QVariant(-5'000'000'000LL));
        QCOMPARE(raw(8).typeId(), int(QMetaType::LongLong));
    }

    void hasNothingForOtherRolesOrCells()
    {
        TestEngine engine;
        engine.add("bash", Package::OutOfDate);
        FlatModel const model(&engine, nullptr);
        for (int column = 0; column < 9; ++column) {
            for (int role :
                 {int(Qt::EditRole), int(Qt::FontRole), int(Qt::BackgroundRole), int(Qt::CheckStateRole),
                  int(Qt::SizeHintRole), Qt::UserRole + 1}) {
                QVERIFY(!model.data(model.index(0, column), role).isValid());
            }
        }
        for (int role :
             {int(Qt::DisplayRole), int(Qt::DecorationRole), int(Qt::ToolTipRole), int(Qt::ForegroundRole),
              int(Qt::UserRole)}) {
            QVERIFY(!model.data(QModelIndex(), role).isValid());
            QVERIFY(!model.data(model.createIndex(0, PackageTable::ColumnCount), role).isValid());
            QVERIFY(!model.data(model.createIndex(1, 3), role).isValid());
        }
    }

    void clickCyclesThroughTheActionsThatFit_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QList<int>>("next"); // of Update, Install, Remove, None
        QTest::newRow("OutOfDate") << int(Package::OutOfDate)
                                   << QList<int>{
                                          Package::Remove, Package::None, Package::None, Package::Update};
        QTest::newRow("Available") << int(Package::Available)
                                   << QList<int>{
                                          Package::None, Package::None, Package::None, Package::Install};
        QTest::newRow("UpToDate") << int(Package::UpToDate)
                                  << QList<int>{Package::None, Package::None, Package::None, Package::Remove};
    }

    void clickCyclesThroughTheActionsThatFit()
    {
        QFETCH(int const, state);
        QFETCH(QList<int> const, next);
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", static_cast<Package::State>(state));
        Model model(&engine, nullptr);
        for (int present = 0; present < 4; ++present) {
            entry.action = static_cast<Package::Action>(present);
            model.toggleAction(model.index(0, 0));
            QCOMPARE(int(entry.action), next[present]);
        }
    }

    void outOfDateRowRunsUpdateRemoveNoneUpdate()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::OutOfDate);
        Model model(&engine, nullptr);
        for (Package::Action const expected :
             {Package::Update, Package::Remove, Package::None, Package::Update}) {
            model.toggleAction(model.index(0, 0));
            QCOMPARE(entry.action, expected);
        }
    }

    void toggleTellsTheActionCellWhicheverColumnWasMeant()
    {
        TestEngine engine;
        engine.add("a", Package::OutOfDate);
        engine.add("b", Package::OutOfDate);
        Model model(&engine, nullptr);
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.toggleAction(model.index(1, 5));
        QCOMPARE(rowsOf(changes), QList<int>{1});
    }

    void setActionStoresWithoutAWord()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("bash", Package::UpToDate);
        FlatModel model(&engine, nullptr);
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.setAction(model.index(0, 0), Package::Remove);
        QCOMPARE(entry.action, Package::Remove);
        model.setAction(model.index(0, 8), Package::None);
        QCOMPARE(entry.action, Package::None);
        model.setAction(model.createIndex(0, PackageTable::ColumnCount), Package::Remove);
        QCOMPARE(entry.action, Package::None);
        QCOMPARE(changes.count(), 0);
    }

    void setSelectedMarksWhatCanBeUpdatedOrInstalled()
    {
        TestEngine engine;
        Package::Entry& outOfDate = engine.add("a", Package::OutOfDate);
        Package::Entry& available = engine.add("b", Package::Available);
        Package::Entry& upToDate = engine.add("c", Package::UpToDate);
        Package::Entry& untouched = engine.add("d", Package::OutOfDate);
        outOfDate.action = Package::Remove;
        upToDate.action = Package::Remove;
        Model model(&engine, nullptr);
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.setSelected({model.index(2, 0), model.index(1, 4), model.index(0, 0)});
        QCOMPARE(outOfDate.action, Package::Update);
        QCOMPARE(available.action, Package::Install);
        QCOMPARE(upToDate.action, Package::Remove);
        QCOMPARE(untouched.action, Package::None);
        QCOMPARE(rowsOf(changes), (QList<int>{1, 0}));
    }

    void setUpdateAllMarksEverythingOutOfDate()
    {
        TestEngine engine;
        Package::Entry& package = engine.add("a", Package::OutOfDate);
        Package::Entry& available = engine.add("b", Package::Available);
        Package::Entry& upToDate = engine.add("c", Package::UpToDate);
        Package::Entry& group = engine.add("d", Package::OutOfDate, Package::Group);
        package.action = Package::Update;
        available.action = Package::Install;
        upToDate.action = Package::Remove;
        group.action = Package::Remove;
        Model model(&engine, nullptr);
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.setUpdateAll();
        QCOMPARE(package.action, Package::Update);
        QCOMPARE(available.action, Package::Install);
        QCOMPARE(upToDate.action, Package::Remove);
        QCOMPARE(group.action, Package::Update);
        QCOMPARE(rowsOf(changes), (QList<int>{0, 3}));
    }

    void clearActionsTellsOnlyTheRowsThatChange()
    {
        TestEngine engine;
        for (Package::Action const action :
             {Package::Update, Package::None, Package::Remove, Package::Install}) {
            engine.add("a", Package::OutOfDate).action = action;
        }
        Model model(&engine, nullptr);
        QSignalSpy const changes(&model, &Model::dataChanged);
        model.clearActions();
        for (Package::Entry const* entry : engine.entries) {
            QCOMPARE(entry->action, Package::None);
        }
        QCOMPARE(rowsOf(changes), (QList<int>{0, 2, 3}));
    }

    void onlyCellsOfTheTableHaveIndexes()
    {
        TestEngine engine;
        engine.add("a", Package::OutOfDate);
        Model const model(&engine, nullptr);
        QVERIFY(model.index(0, 0).isValid());
        QCOMPARE(model.index(0, 8).column(), 8);
        QVERIFY(!model.index(1, 0).isValid());
        QVERIFY(!model.index(0, PackageTable::ColumnCount).isValid());
        QVERIFY(!model.index(-1, 0).isValid());
        QVERIFY(!model.index(0, -1).isValid());
    }

    void manyMarksAreSetAndToldRowByRow()
    {
        TestEngine engine;
        QList<int> outOfDate;
        QList<int> markable;
        QModelIndexList all;
        Model model(&engine, nullptr);
        for (int row = 0; row < 500; ++row) {
            Package::State const state = row % 3 == 0 ? Package::OutOfDate : Package::Available;
            engine.add(QString::number(row), row % 7 == 0 ? Package::UpToDate : state);
        }
        for (int row = 0; row < 500; ++row) {
            all.append(model.index(row, 0));
            Package::State const state = model.getState(row);
            if (state == Package::OutOfDate) {
                outOfDate.append(row);
            }
            if (state != Package::UpToDate) {
                markable.append(row);
            }
        }
        // A row that has gone since.
        engine.dropLast();
        markable.removeAll(499);
        outOfDate.removeAll(499);

        QSignalSpy changes(&model, &Model::dataChanged);
        model.setSelected(all);
        QCOMPARE(rowsOf(changes), markable);
        changes.clear();
        model.setUpdateAll();
        QCOMPARE(rowsOf(changes), outOfDate);
        changes.clear();
        model.clearActions();
        QCOMPARE(rowsOf(changes), markable);
    }

    void resetTellsTheViews()
    {
        TestEngine engine;
        Model model(&engine, nullptr);
        QSignalSpy const resets(&model, &Model::modelReset);
        engine.add("bash", Package::OutOfDate);
        model.reset();
        QCOMPARE(resets.count(), 1);
        QCOMPARE(model.index(0, 3).data().toString(), "bash");
    }

    void tellsTheStateOfARow()
    {
        TestEngine engine;
        engine.add("a", Package::OutOfDate);
        engine.add("b", Package::Available);
        Model const model(&engine, nullptr);
        QCOMPARE(model.getState(0), Package::OutOfDate);
        QCOMPARE(model.getState(1), Package::Available);
    }

    void invalidAndVanishedIndexesAreHarmless()
    {
        TestEngine engine;
        Package::Entry& entry = engine.add("a", Package::OutOfDate);
        engine.add("b", Package::OutOfDate);
        Model model(&engine, nullptr);
        QModelIndex const vanished = model.index(1, 0);
        engine.dropLast();
        QSignalSpy const changes(&model, &Model::dataChanged);
        for (QModelIndex const& index : {QModelIndex(), vanished}) {
            model.setAction(index, Package::Remove);
            model.toggleAction(index);
            model.setSelected({index});
            model.describe(index, nullptr);
            model.browse(index, nullptr);
            static_cast<void>(model.getState(index.row()));
            QVERIFY(!model.data(index, Qt::DecorationRole).isValid());
        }
        QCOMPARE(entry.action, Package::None);
        QCOMPARE(changes.count(), 0);
    }
};

QTEST_MAIN(TestPackageTableModel)
#include "tst_packagetablemodel.moc"
