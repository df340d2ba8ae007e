// SPDX-License-Identifier: GPL-2.0-or-later
// The two context menus, opened on the real view by the event that a right click sends.
#include "TestEngine.h"
#include "tests/ClickEntry.h"

#include "packagetable/PackageTableActionContextMenu.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableOtherContextMenu.h"
#include "packagetable/PackageTableView.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

using PackageTable::Model;
using PackageTable::View;

namespace
{

/// What an open menu offers, and where it stands.
struct Offer
{
    QStringList entries; ///< visible ones
    QStringList enabled;
    QStringList withIcon;
    QPoint position;
    QMenu* menu = nullptr; ///< still there when it is closed
};

} // namespace

class TestPackageTableContextMenus : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<Model> model;
    std::unique_ptr<QWidget> window;
    View* view = nullptr;

    QPoint pointOf(int modelRow, int column) const
    {
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            QModelIndex const cell = view->model()->index(row, column);
            if (cell.siblingAtColumn(3).data() == model->index(modelRow, 3).data()) {
                return view->visualRect(cell).center();
            }
        }
        return {};
    }

    /// Runs `open`, which is to run a menu; notes down what the menu offers, chooses the entry of that text,
    /// if any, and closes it.
    static Offer choose(QString const& text, std::function<void()> const& open)
    {
        Offer offer;
        QTimer::singleShot(0, [&] {
            offer.menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!offer.menu) {
                return;
            }
            offer.position = offer.menu->pos();
            QAction* chosen = nullptr;
            for (QAction* const action : offer.menu->actions()) {
                if (action->isSeparator()) {
                    // What follows is about the selection.
                    break;
                }
                if (action->isVisible()) {
                    offer.entries.append(action->text());
                }
                if (action->isVisible() && action->isEnabled()) {
                    offer.enabled.append(action->text());
                }
                if (!action->icon().isNull()) {
                    offer.withIcon.append(action->text());
                }
                chosen = action->text() == text ? action : chosen;
            }
            if (chosen) {
                clickEntry(offer.menu, chosen);
            }
            offer.menu->close();
        });
        open();
        return offer;
    }

    Offer rightClick(QPoint const& point, QString const& text = QString()) const
    {
        return choose(text, [&] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
            QApplication::sendEvent(view->viewport(), &event);
        });
    }

    Package::Action action(int modelRow) const { return engine->entries[modelRow]->action; }

private Q_SLOTS:
    void init()
    {
        engine = std::make_unique<TestEngine>();
        model = std::make_unique<Model>(engine.get(), nullptr);
        engine->add("coreutils", Package::OutOfDate);
        engine->add("bash", Package::Available);
        engine->add("audit", Package::UpToDate);
        window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(window.get());
        view = new View(model.get(), PackageTable::All, true, engine.get(), window.get());
        layout->addWidget(view);
        window->resize(1000, 400);
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }

    void cleanup()
    {
        window.reset();
        model.reset();
        engine.reset();
    }

    void actionMenuOffersWhatFitsTheState_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("enabled");
        QTest::newRow("OutOfDate") << 0 << QStringList{"&Update", "&Remove", "&No Action"};
        QTest::newRow("Available") << 1 << QStringList{"&Install", "&No Action"};
        QTest::newRow("UpToDate") << 2 << QStringList{"&Remove", "&No Action"};
    }

    void actionMenuOffersWhatFitsTheState()
    {
        QFETCH(int const, row);
        Offer const offer = rightClick(pointOf(row, 0));
        QCOMPARE(offer.entries, (QStringList{"&Update", "&Install", "&Remove", "&No Action"}));
        QTEST(offer.enabled, "enabled");
        QCOMPARE(offer.withIcon, (QStringList{"&Update", "&Install", "&Remove"}));
    }

    void chosenActionIsStoredAndTold()
    {
        QSignalSpy const changes(model.get(), &Model::dataChanged);
        QSignalSpy const stateChanges(view, &View::stateChanged);
        rightClick(pointOf(0, 0), "&Update");
        QCOMPARE(action(0), Package::Update);
        rightClick(pointOf(0, 0), "&Remove");
        QCOMPARE(action(0), Package::Remove);
        rightClick(pointOf(0, 0), "&No Action");
        QCOMPARE(action(0), Package::None);
        rightClick(pointOf(1, 0), "&Install");
        QCOMPARE(action(1), Package::Install);
        QCOMPARE(action(0), Package::None);
        QCOMPARE(changes.count(), 0);
        QList<int> rows;
        for (QList<QVariant> const& arguments : stateChanges) {
            rows.append(arguments.first().toInt());
        }
        QCOMPARE(rows, (QList<int>{0, 0, 0, 1}));
    }

    void disabledEntryChoosesNothing()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        rightClick(pointOf(1, 0), "&Remove");
        QCOMPARE(action(1), Package::None);
        QCOMPARE(stateChanges.count(), 0);
    }

    void closedMenuChangesNothing()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        rightClick(pointOf(0, 0));
        QCOMPARE(action(0), Package::None);
        QCOMPARE(stateChanges.count(), 0);
    }

    void aRowThatIsGoneByTheTimeOfTheChoiceIsTold()
    {
        QSignalSpy const stateChanges(view, &View::stateChanged);
        QTimer::singleShot(0, [this] {
            engine->drop();
            model->reset();
        });
        rightClick(pointOf(0, 0), "&Update");
        QCOMPARE(stateChanges.count(), 1);
        QCOMPARE(stateChanges.first().first().toInt(), -1);
    }

    void otherColumnsOfferToDescribe()
    {
        for (int column : {1, 2, 3, 4, 6, 7, 8}) {
            QCOMPARE(rightClick(pointOf(0, column)).entries, QStringList{"&Describe"});
        }
    }

    void repositoryColumnOffersToBrowseToo()
    {
        Offer const offer = rightClick(pointOf(0, 5));
        QCOMPARE(offer.entries, (QStringList{"&Describe", "Browse Repository"}));
        QCOMPARE(offer.enabled, offer.entries);
    }

    void movedColumnKeepsItsMenu()
    {
        view->horizontalHeader()->moveSection(5, 0);
        QCOMPARE(rightClick(pointOf(0, 5)).entries, (QStringList{"&Describe", "Browse Repository"}));
        QCOMPARE(rightClick(pointOf(0, 0)).entries.first(), "&Update");
        QCOMPARE(rightClick(pointOf(0, 3)).entries, QStringList{"&Describe"});
    }

    void belowTheLastRowThereIsNothingToDescribe()
    {
        QPoint const below(20, view->viewport()->height() - 5);
        QVERIFY(!view->indexAt(below).isValid());
        rightClick(pointOf(0, 5));
        QCOMPARE(rightClick(below).entries, QStringList{"&Describe"});
        rightClick(below, "&Describe");
        QVERIFY(!QApplication::activeModalWidget());
    }

    void menusAreMadeOnceAndOpenAtThePointer()
    {
        Offer const first = rightClick(pointOf(0, 0));
        Offer const second = rightClick(pointOf(1, 0));
        QVERIFY(first.menu);
        QCOMPARE(second.menu, first.menu);
        QVERIFY(!first.menu->parent());
        QCOMPARE(first.position, view->viewport()->mapToGlobal(pointOf(0, 0)));
        QCOMPARE(rightClick(pointOf(0, 3)).menu, rightClick(pointOf(1, 4)).menu);
    }

    void aListRebuiltBelowTheOpenMenuIsLeftAlone()
    {
        PackageTable::ActionContextMenu actionMenu(model.get());
        PackageTable::OtherContextMenu otherMenu(model.get(), view);
        QTimer::singleShot(0, [&] { model->reset(); });
        choose(QString(), [&] { actionMenu.exec(model->index(0, 0), QPoint()); });
        actionMenu.handleRemoveAction();
        QCOMPARE(action(0), Package::None);
        otherMenu.handleDescribeAction();
        otherMenu.handleBrowseAction();
    }

    void invalidIndexesAreHarmless()
    {
        PackageTable::ActionContextMenu actionMenu(model.get());
        choose("&Remove", [&] { actionMenu.exec(QModelIndex(), QPoint()); });
        PackageTable::OtherContextMenu otherMenu(model.get(), view);
        choose("&Describe", [&] { otherMenu.exec(QModelIndex(), QPoint()); });
        otherMenu.handleBrowseAction();
        for (int row : {0, 1, 2}) {
            QCOMPARE(action(row), Package::None);
        }
    }
};

QTEST_MAIN(TestPackageTableContextMenus)
#include "tst_packagetablecontextmenus.moc"
