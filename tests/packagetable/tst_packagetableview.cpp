// SPDX-License-Identifier: GPL-2.0-or-later
#include "ViewTest.h"
#include "tests/Eventually.h"

#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QProxyStyle>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

using PackageTable::Model;
using PackageTable::View;

class TestPackageTableView : public QObject, private ViewTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { open(); }

    void cleanup() { close(); }

    void looksAsATableOfPackages()
    {
        QCOMPARE(view->accessibleName(), "Packages");
        QVERIFY(!view->showGrid());
        QCOMPARE(view->gridStyle(), Qt::NoPen);
        QCOMPARE(view->selectionBehavior(), QAbstractItemView::SelectRows);
        QVERIFY(view->alternatingRowColors());
        QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
        QVERIFY(view->verticalHeader()->isHidden());
        QVERIFY(view->horizontalHeader()->isVisible());
        QVERIFY(view->horizontalHeader()->sectionsMovable());
        QVERIFY(view->horizontalHeader()->sectionsClickable());
        QVERIFY(view->horizontalHeader()->isSortIndicatorShown());
        QCOMPARE(view->horizontalHeader()->selectionBehavior(), QAbstractItemView::SelectColumns);
    }

    void asksForTenRowsAtLeast()
    {
        int const frames = 2 * view->frameWidth();
        int const header = view->horizontalHeader()->sizeHint().height();
        QCOMPARE(view->sizeHint().height(), frames + header + 10 * view->rowHeight(0));
    }

    void startsSortedByKindAndName()
    {
        QCOMPARE(names(), (QStringList{"everything", "desktop", "audit", "bash", "coreutils"}));
    }

    void showsWhatIsAskedForAtFirst()
    {
        View other(model.get(), PackageTable::Installable, false, engine.get(), nullptr);
        QCOMPARE(other.model()->rowCount(), 1);
    }

    void clickOnTheActionCellCycles()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        for (Package::Action const expected :
             {Package::Update, Package::Remove, Package::None, Package::Update}) {
            click(cell(0, 0));
            QCOMPARE(action(0), expected);
        }
        click(cell(1, 0));
        QCOMPARE(action(1), Package::Install);
        click(cell(2, 0));
        QCOMPARE(action(2), Package::Remove);
        QList<int> rows;
        for (QList<QVariant> const& emission : stateChanges) {
            rows.append(emission[0].toInt());
        }
        QCOMPARE(rows, (QList<int>{0, 0, 0, 0, 1, 2}));
    }

    void theSpaceBarDoesWhatAClickDoes()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        view->setCurrentIndex(cell(0, 0));
        for (Package::Action const expected : {Package::Update, Package::Remove, Package::None}) {
            QTest::keyClick(view, Qt::Key_Space);
            QCOMPARE(action(0), expected);
        }
        QCOMPARE(stateChanges.count(), 3);
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(action(0), Package::None);
        view->setCurrentIndex(QModelIndex());
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(stateChanges.count(), 3);
    }

    void spaceBarHeldDownMarksOnce()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        view->setCurrentIndex(cell(0, 0));
        QTest::keyPress(view, Qt::Key_Space);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
        QCoreApplication::sendEvent(view, &repeated);
        QTest::keyRelease(view, Qt::Key_Space);
        QCOMPARE(action(0), Package::Update);
        QCOMPARE(stateChanges.count(), 1);
    }

    void onlyTabMakesARowCurrentInATableWithoutOne_data()
    {
        QTest::addColumn<Qt::FocusReason>("reason");
        QTest::addColumn<int>("row");
        QTest::newRow("Tab") << Qt::TabFocusReason << 0;
        QTest::newRow("Shift+Tab") << Qt::BacktabFocusReason << 0;
        QTest::newRow("by the program") << Qt::OtherFocusReason << -1;
        QTest::newRow("closed menu") << Qt::PopupFocusReason << -1;
        QTest::newRow("menu bar") << Qt::MenuBarFocusReason << -1;
        QTest::newRow("window") << Qt::ActiveWindowFocusReason << -1;
    }

    void onlyTabMakesARowCurrentInATableWithoutOne()
    {
        QFETCH(Qt::FocusReason, reason);
        QSignalSpy const moves(view, qOverload<int, int>(&View::currentChanged));
        model->reset();
        QFocusEvent event(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(view, &event);
        QTEST(view->currentIndex().row(), "row");
        // Keys that mark are about selected rows.
        QCOMPARE(view->selectionModel()->isRowSelected(0), view->currentIndex().isValid());
        QCOMPARE(moves.isEmpty(), !view->currentIndex().isValid());
        // The arrows still find into the table.
        QTest::keyClick(view, Qt::Key_Down);
        QVERIFY(view->currentIndex().isValid());
    }

    void tabLeavesTheTable()
    {
        auto* const field = new QLineEdit(window.get());
        window->layout()->addWidget(field);
        field->show();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        view->setFocus();
        view->setCurrentIndex(cell(0, 0));
        QTest::keyClick(view, Qt::Key_Tab);
        QVERIFY(field->hasFocus());
        QTest::keyClick(field, Qt::Key_Backtab);
        QVERIFY(view->hasFocus());
        QCOMPARE(view->currentIndex(), cell(0, 0));
    }

    void rowsDoNotMoveBelowTheMouseWhenSortedByAction()
    {
        clickHeader(0);
        QModelIndex const place = cell(0, 0);
        for (Package::Action const expected : {Package::Update, Package::Remove, Package::None}) {
            click(place);
            QCOMPARE(action(0), expected);
        }
    }

    void clickElsewhereOnlySelects()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        for (int column = 1; column < 9; ++column) {
            click(cell(0, column));
        }
        QCOMPARE(action(0), Package::None);
        QCOMPARE(stateChanges.count(), 0);
        QCOMPARE(view->selectedRows(), QList<QModelIndex>{model->index(0, 0)});
    }

    void selectedRowsAreTheModelsRows()
    {
        click(cell(0, 3));
        QTest::mouseClick(
            view->viewport(), Qt::LeftButton, Qt::ControlModifier, view->visualRect(cell(3, 3)).center());
        QList<int> rows;
        for (QModelIndex const& index : view->selectedRows()) {
            QCOMPARE(index.model(), model.get());
            rows.append(index.row());
        }
        std::sort(rows.begin(), rows.end());
        QCOMPARE(rows, (QList<int>{0, 3}));
    }

    void headerClickSortsAndTheSecondReverses()
    {
        clickHeader(3);
        QStringList ascending{"audit", "bash", "coreutils", "desktop", "everything"};
        QCOMPARE(names(), ascending);
        clickHeader(3);
        std::reverse(ascending.begin(), ascending.end());
        QCOMPARE(names(), ascending);
        clickHeader(2);
        QCOMPARE(names().first(), "everything");
        QVERIFY(view->horizontalHeader()->isSortIndicatorShown());
    }

    void movingTheCurrentCellTellsTheModelsRows()
    {
        view->selectionModel()->clearCurrentIndex();
        QSignalSpy const moves(view, qOverload<int, int>(&View::currentChanged));
        view->setCurrentIndex(cell(2, 3));
        view->setCurrentIndex(cell(0, 3));
        view->selectionModel()->clearCurrentIndex();
        QCOMPARE(moves.count(), 3);
        QCOMPARE(moves[0], (QList<QVariant>{2, -1}));
        QCOMPARE(moves[1], (QList<QVariant>{0, 2}));
        QCOMPARE(moves[2], (QList<QVariant>{-1, 0}));
    }

    void movingWithinARowTellsNothing()
    {
        view->setCurrentIndex(cell(2, 3));
        QSignalSpy const moves(view, qOverload<int, int>(&View::currentChanged));
        QTest::keyClick(view, Qt::Key_Right);
        QCOMPARE(view->currentIndex(), cell(2, 4));
        QCOMPARE(moves.count(), 0);
        QTest::keyClick(view, Qt::Key_Down);
        QCOMPARE(view->currentIndex(), cell(1, 4));
        QCOMPARE(moves.count(), 1);
    }

    void theCurrentCellStaysInSightOfTheKeyboard()
    {
        for (int row = 0; row < 200; ++row) {
            engine->add(QStringLiteral("package-%1").arg(row), Package::Available);
        }
        model->reset();
        view->setCurrentIndex(view->model()->index(0, 3));
        for (Qt::Key const key : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_Down}) {
            QTest::keyClick(view, key);
            QVERIFY(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
        }
        QVERIFY(view->verticalScrollBar()->value() > 0);
    }

    void filtersLikeItsProxy()
    {
        view->stateFilterChanged(PackageTable::Removable);
        QCOMPARE(names(), (QStringList{"everything", "audit", "coreutils"}));
        view->stateFilterChanged(PackageTable::All);
        view->groupsFilterChanged(false);
        QCOMPARE(names(), (QStringList{"everything", "audit", "bash", "coreutils"}));
        view->filtersearch("^b");
        QCOMPARE(names(), QStringList{"bash"});
        view->setFilter(false);
        QCOMPARE(names().count(), 5);
        view->setFilter(true);
        for (Package::Entry* const entry : engine->entries) {
            entry->summary = "A summary";
        }
        view->filtersearch("^A summary$");
        QCOMPARE(names(), QStringList());
        view->setMode(PackageTable::Search);
        QCOMPARE(names().count(), 4);
    }

    void everyChangeOfWhatShowsClearsTheSelectionAndKeepsTheMarks()
    {
        click(cell(0, 0));
        auto const select = [this] {
            click(cell(0, 3));
            QVERIFY(view->currentIndex().isValid());
            QCOMPARE(view->selectedRows().count(), 1);
        };
        QSignalSpy const moves(view, qOverload<int, int>(&View::currentChanged));
        auto const isCleared = [this] {
            return !view->currentIndex().isValid() && view->selectedRows().isEmpty() &&
                   action(0) == Package::Update;
        };
        select();
        view->stateFilterChanged(PackageTable::Removable);
        QVERIFY(isCleared());
        select();
        view->groupsFilterChanged(false);
        QVERIFY(isCleared());
        select();
        view->filtersearch("core");
        QVERIFY(isCleared());
        select();
        view->filtersearch("core");
        QVERIFY(isCleared());
        select();
        view->filtersearch("^coreutils$|core");
        QVERIFY(isCleared());
        view->filtersearch("");
        select();
        view->setMode(PackageTable::Search);
        QVERIFY(isCleared());
    }

    void resizeFitsRowsThatDoNotShow()
    {
        collect(QString(60, 'W'));
        view->resizeColumnsToContents();
        int const wide = view->columnWidth(3);
        collect("bash");
        view->resizeColumnsToContents();
        QVERIFY(view->columnWidth(3) < wide);
        collect(QString(60, 'W'));
        view->stateFilterChanged(PackageTable::Removable);
        view->resizeColumnsToContents();
        QCOMPARE(view->columnWidth(3), wide);
        QCOMPARE(names(), (QStringList{"everything", "audit", "coreutils"}));
    }

    void resizeTakesUpWhatHasChangedSinceTheLastOne()
    {
        view->resizeColumnsToContents();
        QVERIFY(columnsFitAllRows());
        int const width = view->columnWidth(3);

        QFont font = view->font();
        font.setPointSize(3 * font.pointSize());
        view->setFont(font);
        view->resizeColumnsToContents();
        QVERIFY(view->columnWidth(3) > width);
        QVERIFY(columnsFitAllRows());

        class Roomy : public QProxyStyle
        {
        public:
            int pixelMetric(
                PixelMetric metric, QStyleOption const* option, QWidget const* widget) const override
            {
                int const room = metric == PM_FocusFrameHMargin ? 40 : 0;
                return room + QProxyStyle::pixelMetric(metric, option, widget);
            }
        };
        int const large = view->columnWidth(3);
        Roomy roomy;
        view->setStyle(&roomy);
        view->resizeColumnsToContents();
        QVERIFY(view->columnWidth(3) > large);
        QVERIFY(columnsFitAllRows());
        view->setStyle(nullptr);

        engine->add(QString(60, 'W'), Package::Available);
        model->reset();
        view->resizeColumnsToContents();
        QVERIFY(columnsFitAllRows());
    }

    void measuringAheadChangesNothing()
    {
        view->stateFilterChanged(PackageTable::Removable);
        QSignalSpy const resets(view->model(), &QAbstractItemModel::modelReset);
        view->horizontalHeader()->resizeSection(3, 77);
        view->selectAll();
        bool served = false;
        QTimer::singleShot(0, view, [&] { served = true; });
        view->measureColumns();
        QVERIFY(served);
        QCOMPARE(resets.count(), 0);
        QCOMPARE(view->columnWidth(3), 77);
        QCOMPARE(view->selectedRows().count(), 3);
        view->resizeColumnsToContents();
        QVERIFY(columnsFitAllRows());
    }

    void resizedColumnsAreAsWideAsTheCellsOfAllRowsNeed()
    {
        QRandomGenerator random(20);
        for (int row = 0; row < 300; ++row) {
            Package::Entry& entry =
                engine->add(QString(random.bounded(30), QChar('a' + random.bounded(26))), Package::Available);
            entry.state = static_cast<Package::State>(random.bounded(3));
            entry.action = static_cast<Package::Action>(random.bounded(4));
            entry.verRel = QString::number(random.generate());
            entry.repo = QString(random.bounded(20), QChar(random.bounded(0x20, 0x250)));
            entry.arch = random.bounded(2) ? "noarch" : "x86_64";
            entry.sizeText = QStringLiteral("%1Kb").arg(random.bounded(1000) / 10.0);
            entry.buildTimeText = QStringLiteral("Thu Jan %1 1970").arg(random.bounded(32), 2);
        }
        model->reset();
        HTableView plain(QStyleOptionViewItem::Left, 10, 10, window.get());
        plain.setShowGrid(false);
        plain.setModel(model.get());
        for (int column = 0; column < 9; ++column) {
            QCOMPARE(view->sizeHintForColumn(column), plain.sizeHintForColumn(column));
        }
        view->stateFilterChanged(PackageTable::Updatable);
        view->groupsFilterChanged(false);
        view->filtersearch("nothing is called so");
        view->resizeColumnsToContents();
        for (int column = 0; column < 9; ++column) {
            QCOMPARE(
                view->columnWidth(column),
                std::max(plain.sizeHintForColumn(column), view->horizontalHeader()->sectionSizeHint(column)));
        }
    }

    void resizeCountsTheRowsThatDoNotShowForTheHeight()
    {
        for (int row = 0; row < 30; ++row) {
            engine->add(QString::number(row), Package::UpToDate);
        }
        View other(model.get(), PackageTable::Updatable, true, engine.get(), nullptr);
        QVERIFY(other.model()->rowCount() < 30);
        other.resizeColumnsToContents();
        int const around = 2 * other.frameWidth() + other.horizontalHeader()->sizeHint().height();
        QCOMPARE(other.sizeHint().height(), around + 35 * other.verticalHeader()->defaultSectionSize());
    }

    void resizeWhileTheRowsAreBeingMadeAnewIsHarmless()
    {
        engine->drop();
        for (int column = 0; column < 9; ++column) {
            QVERIFY(view->sizeHintForColumn(column) >= 0);
        }
        view->resizeColumnsToContents();
        QCOMPARE(names(), QStringList());
    }

    void resizeFiltersAndSortsOnce()
    {
        QSignalSpy const resets(view->model(), &QAbstractItemModel::modelReset);
        view->resizeColumnsToContents();
        QCOMPARE(resets.count(), 1);
    }

    void updateAllAlsoMarksWhatTheFilterHides()
    {
        view->filtersearch("nothing is called so");
        QCOMPARE(names(), QStringList());
        model->setUpdateAll();
        QCOMPARE(action(0), Package::Update);
        QCOMPARE(action(1), Package::None);
        QCOMPARE(action(4), Package::Update);
    }

    // No interpreter runs in this test: whatever asked Python would end it.
    void cellsAndPaintingNeedNoInterpreter()
    {
        QVERIFY(!window->grab().isNull());
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            for (int column = 0; column < 9; ++column) {
                for (int role = 0; role <= Qt::UserRole; ++role) {
                    static_cast<void>(view->model()->index(row, column).data(role));
                }
            }
        }
        clickHeader(7);
        QCOMPARE(names().size(), 5);
    }

    void resizeKeepsTheFilterOffThatWasOff()
    {
        view->stateFilterChanged(PackageTable::Removable);
        view->setFilter(false);
        view->resizeColumnsToContents();
        QCOMPARE(names().count(), 5);
    }

    void resizeClearsSelectionAndCurrentCellWithoutASignal()
    {
        click(cell(0, 3));
        QSignalSpy const moves(view, qOverload<int, int>(&View::currentChanged));
        view->resizeColumnsToContents();
        QVERIFY(!view->currentIndex().isValid());
        QVERIFY(view->selectedRows().isEmpty());
        QCOMPARE(moves.count(), 0);
    }

    void coloursFollowTheEnabling()
    {
        auto const colour = [this] { return qvariant_cast<QColor>(cell(0, 3).data(Qt::ForegroundRole)); };
        QCOMPARE(colour(), QColor(Colors::error()));
        window->setEnabled(false);
        QCOMPARE(colour(), QColor(Colors::errorDisabled()));
        window->setEnabled(true);
        QCOMPARE(colour(), QColor(Colors::error()));
    }

    void coloursFollowThePalette()
    {
        auto const colour = [this](int row) {
            return qvariant_cast<QColor>(cell(row, 3).data(Qt::ForegroundRole));
        };
        QPalette const light = QApplication::palette();
        QPalette const dark = Contrast::darkPalette();
        QApplication::setPalette(dark);
        EVENTUALLY_COMPARE(view->palette().color(QPalette::Base), dark.color(QPalette::Base));
        for (bool const enabled : {true, false}) {
            window->setEnabled(enabled);
            for (QColor const& ground : Contrast::rowGrounds(dark)) {
                QVERIFY(Contrast::ratio(colour(0), ground) >= Contrast::legible);
                QVERIFY(Contrast::ratio(colour(1), ground) >= Contrast::legible);
            }
        }
        QApplication::setPalette(light);
        window->setEnabled(true);
        EVENTUALLY_COMPARE(colour(0), QColor(Colors::error()));
        QCOMPARE(colour(1), QColor(Colors::minor()));
    }

    void selectedRowsHaveTheColourOfSelections()
    {
        QPalette palette = window->palette();
        palette.setColor(QPalette::Highlight, Qt::black);
        palette.setColor(QPalette::HighlightedText, Qt::white);
        window->setPalette(palette);
        click(cell(1, 3));
        QRect const row = view->visualRect(cell(0, 3));
        auto const hasRed = [&] {
            QImage const picture = view->viewport()->grab(row).toImage();
            for (int y = 0; y < picture.height(); ++y) {
                for (int x = 0; x < picture.width(); ++x) {
                    QColor const pixel = picture.pixelColor(x, y);
                    if (pixel.red() > pixel.green() + 100) {
                        return true;
                    }
                }
            }
            return false;
        };
        QVERIFY(hasRed());
        view->selectRow(cell(0, 3).row());
        QVERIFY(!hasRed());
    }

    void columnsStayWhereTheUserMovedThem()
    {
        view->horizontalHeader()->moveSection(5, 0);
        view->horizontalHeader()->resizeSection(3, 123);
        model->reset();
        view->filtersearch("a");
        QCOMPARE(view->horizontalHeader()->visualIndex(5), 0);
        QCOMPARE(view->horizontalHeader()->sectionSize(3), 123);
        click(cell(0, 5));
        QCOMPARE(action(0), Package::None);
    }

    void describeWithoutACurrentRowDoesNothing()
    {
        view->selectionModel()->clearCurrentIndex();
        view->describe();
        view->handleActivated(QModelIndex());
        QVERIFY(!QApplication::activeModalWidget());
    }
};

QTEST_MAIN(TestPackageTableView)
#include "tst_packagetableview.moc"
