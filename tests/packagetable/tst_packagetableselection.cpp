// SPDX-License-Identifier: GPL-2.0-or-later
// What is done with all selected rows at a time, and the table's keys.
#include "ViewTest.h"
#include "tests/ClickEntry.h"
#include "tests/Eventually.h"

#include "packagetable/PackageTableMarks.h"
#include "packagetable/PackageTableSelectionActions.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <QSignalSpy>
#include <QTimer>

using PackageTable::View;

class TestPackageTableSelection : public QObject, private ViewTest
{
    Q_OBJECT

    Package::Action action(int modelRow) const { return engine->entries[modelRow]->action; }

    QList<Package::Action> actions() const
    {
        QList<Package::Action> all;
        for (int row = 0; row < engine->count(); ++row) {
            all.append(action(row));
        }
        return all;
    }

    /// The entries behind the line of the menu of that column; clicks the one that begins so.
    QStringList entriesOf(int column, QString const& beginning = QString())
    {
        QStringList texts;
        QTimer::singleShot(0, view, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu);
            QAction* chosen = nullptr;
            for (QAction* const entry : menu->actions()) {
                if (entry->isSeparator()) {
                    texts.clear();
                } else {
                    texts.append(
                        entry->isEnabled() ? entry->text() : QStringLiteral("(%1)").arg(entry->text()));
                }
                chosen = !beginning.isEmpty() && entry->text().startsWith(beginning) ? entry : chosen;
            }
            if (chosen) {
                clickEntry(menu, chosen);
            }
            menu->close();
        });
        QPoint const point = view->visualRect(cell(0, column)).center();
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
        QApplication::sendEvent(view->viewport(), &event);
        return texts;
    }

private Q_SLOTS:
    void init() { open(); }

    void theMenusOfAllColumnsSayHowManyRowsTheyConcern()
    {
        view->selectAll();
        engine->entries[2]->action = Package::Remove;
        QStringList const expected{
            QStringLiteral("Install/Update of Selected: 4"), QStringLiteral("Remove Selected: 3"),
            QStringLiteral("No Action for Selected: 1")};
        for (int column = 0; column < 9; ++column) {
            QCOMPARE(entriesOf(column), expected);
        }
        view->clearSelection();
        QCOMPARE(
            entriesOf(3),
            QStringList(
                {QStringLiteral("(Install/Update of Selected: 0)"), QStringLiteral("(Remove Selected: 0)"),
                 QStringLiteral("(No Action for Selected: 0)")}));
    }

    void anEntryMarksWhatFits()
    {
        view->selectAll();
        QSignalSpy const changes(view, &View::stateChanged);
        entriesOf(3, QStringLiteral("Install"));
        QCOMPARE(
            actions(),
            QList<Package::Action>(
                {Package::Update, Package::Install, Package::None, Package::Install, Package::Update}));
        entriesOf(0, QStringLiteral("Remove"));
        QCOMPARE(
            actions(),
            QList<Package::Action>(
                {Package::Remove, Package::Install, Package::Remove, Package::Install, Package::Remove}));
        entriesOf(5, QStringLiteral("No Action"));
        QCOMPARE(actions(), QList<Package::Action>(5, Package::None));
        QVERIFY(changes.count() >= 3);
        QCOMPARE(changes.first().first().toInt(), -1);
    }

    void keysDoTheSame_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Package::Action>("expected");
        QTest::newRow("+") << Qt::Key_Plus << Package::Update;
        QTest::newRow("-") << Qt::Key_Minus << Package::Remove;
        QTest::newRow("Delete") << Qt::Key_Delete << Package::Remove;
        QTest::newRow("Backspace") << Qt::Key_Backspace << Package::None;
    }

    void keysDoTheSame()
    {
        QFETCH(Qt::Key const, key);
        engine->entries[0]->action = key == Qt::Key_Backspace ? Package::Remove : Package::None;
        // A menu that has greyed an entry out leaves the key.
        view->clearSelection();
        entriesOf(3);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        view->setFocus();
        EVENTUALLY_COMPARE(QApplication::focusWidget(), view);
        view->selectRow(cell(0, 3).row());
        QTest::keyClick(view, key);
        QTEST(action(0), "expected");
        QCOMPARE(action(1), Package::None);
    }

    void keysWorkBeforeAnyMenuHasBeenOpened()
    {
        QMenu menu;
        view->actions()->fill(menu);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        view->setFocus();
        EVENTUALLY_COMPARE(QApplication::focusWidget(), view);
        view->selectRow(cell(0, 3).row());
        QTest::keyClick(view, Qt::Key_Plus);
        QCOMPARE(action(0), Package::Update);
        QTest::keyClick(view, Qt::Key_Backspace);
        QCOMPARE(action(0), Package::None);
    }

    void whatIsTypedIsLookedForAmongTheNames()
    {
        view->setFocus();
        view->setCurrentIndex(cell(0, 1));
        QTest::keyClicks(view, QStringLiteral("au"));
        QCOMPARE(view->currentIndex().data().toString(), QStringLiteral("audit"));
    }

    void ctrlASelectsAllRows()
    {
        view->setFocus();
        view->setCurrentIndex(cell(0, 3));
        QTest::keyClick(view, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(view->selectedRows().size(), 5);
    }

    void marksComeBackToRowsThatAreTheSame()
    {
        engine->entries[0]->action = Package::Update;
        engine->entries[1]->action = Package::Install;
        PackageTable::Marks const marks(*engine);
        collect(QStringLiteral("zsh"));
        QCOMPARE(marks.restore(*engine, *model), 1);
        QCOMPARE(action(0), Package::Update);
        QCOMPARE(action(1), Package::None);
        collect(QStringLiteral("bash"));
        engine->entries[0]->verRel = QStringLiteral("another");
        engine->entries[1]->state = Package::UpToDate;
        QCOMPARE(marks.restore(*engine, *model), 2);
        QCOMPARE(actions(), QList<Package::Action>(5, Package::None));
    }
};

QTEST_MAIN(TestPackageTableSelection)
#include "tst_packagetableselection.moc"
