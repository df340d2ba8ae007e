// SPDX-License-Identifier: GPL-2.0-or-later
// The editor's table as a user of mouse and keyboard has it.
#include "BoxReader.h"
#include "ConfRoot.h"

#include "repo/RepoEditorContextMenu.h"
#include "repo/RepoEditorModel.h"
#include "repo/RepoEditorView.h"
#include "tests/ClickEntry.h"
#include "tests/packagetable/TestEngine.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

using RepoEditor::ContextMenu;
using RepoEditor::Model;
using RepoEditor::View;

class RepoEditorViewTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<TestEngine> engine;
    std::unique_ptr<Model> model;
    std::unique_ptr<QWidget> window;
    View* view = nullptr;

    QStringList shownIds() const
    {
        QStringList ids;
        for (int row = 0; row < view->model()->rowCount(); ++row) {
            ids.append(view->model()->index(row, 2).data().toString());
        }
        return ids;
    }

    QModelIndex cell(QString const& id, int column) const
    {
        return view->model()->index(static_cast<int>(shownIds().indexOf(id)), column);
    }

    QPoint place(QString const& id, int column) const { return view->visualRect(cell(id, column)).center(); }

    void click(QString const& id, int column) const
    {
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place(id, column));
    }

    void clickHeader(int column) const
    {
        QHeaderView* const header = view->horizontalHeader();
        QPoint const point(header->sectionViewportPosition(column) + 8, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, point);
    }

    /// Opens the context menu by `open`, picks the action of that text, if any, and answers what there was.
    static QStringList choose(QString const& text, std::function<void()> const& open)
    {
        QStringList offered;
        QTimer::singleShot(0, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (!menu) {
                return;
            }
            for (QAction* const action : menu->actions()) {
                offered.append(action->text());
                if (action->text() == text) {
                    clickEntry(menu, action);
                }
            }
            menu->close();
        });
        open();
        QCoreApplication::processEvents();
        return offered;
    }

    QStringList rightClick(QPoint const& point, QString const& text = {}) const
    {
        return choose(text, [&] {
            QContextMenuEvent event(QContextMenuEvent::Mouse, point, view->viewport()->mapToGlobal(point));
            QApplication::sendEvent(view->viewport(), &event);
        });
    }

    QPoint pointBelowTheRows() const
    {
        return {view->viewport()->width() - 5, view->viewport()->height() - 5};
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        engine = std::make_unique<TestEngine>();
        QVERIFY(root->readRepoFile("[middle]\nname=a\n[last]\nname=c\n[Upper]\nname=b\nenabled=0\n"));
        model = std::make_unique<Model>(engine.get(), &root->conf, nullptr);
        window = std::make_unique<QWidget>();
        auto* const layout = new QVBoxLayout(window.get());
        view = new View(model.get(), window.get());
        layout->addWidget(view);
        window->resize(500, 300);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        view->setFocus();
    }

    void cleanup()
    {
        window.reset();
        model.reset();
        engine.reset();
        root.reset();
    }

    void looksAsATableOfTheHouse()
    {
        QVERIFY(!view->showGrid());
        QCOMPARE(view->gridStyle(), Qt::NoPen);
        QVERIFY(view->alternatingRowColors());
        QVERIFY(!view->tabKeyNavigation());
        QVERIFY(view->verticalHeader()->isHidden());
        QVERIFY(view->horizontalHeader()->stretchLastSection());
        QVERIFY(view->horizontalHeader()->sectionsMovable());
        QCOMPARE(view->selectionBehavior(), QAbstractItemView::SelectItems);
        QCOMPARE(view->accessibleName(), QStringLiteral("Repositories"));
    }

    void headerClicksSortAndTurnTheOrder()
    {
        clickHeader(2);
        QCOMPARE(shownIds(), (QStringList{"Upper", "last", "middle"}));
        clickHeader(2);
        QCOMPARE(shownIds(), (QStringList{"middle", "last", "Upper"}));
        clickHeader(3);
        QCOMPARE(shownIds(), (QStringList{"middle", "Upper", "last"}));
    }

    void headersOfTheBoxesSortNothing()
    {
        clickHeader(2);
        QStringList const sorted = shownIds();
        for (int const column : {0, 1, 0, 0, 1}) {
            clickHeader(column);
            QCOMPARE(shownIds(), sorted);
        }
    }

    void rowsAreThoseOfTheConfigurationHoweverTheTableIsSorted()
    {
        for (int const turns : {1, 2}) {
            clickHeader(2);
            for (int row = 0; row < 3; ++row) {
                QString const id = root->conf.repos[row].id;
                click(id, 2);
                QCOMPARE(view->currentRow(), row);
                QCOMPARE(view->selectedRows(), QList<QModelIndex>{model->index(row, 2)});
                view->setCurrentRow(row);
                QCOMPARE(view->currentIndex(), cell(id, 0));
            }
            Q_UNUSED(turns)
        }
        view->setCurrentRow(-1);
        QCOMPARE(view->currentRow(), -1);
        QVERIFY(view->selectedRows().isEmpty());
    }

    void clicksOnBoxesTurnThemOverAndNothingElse()
    {
        clickHeader(2);
        click("Upper", 0);
        QVERIFY(root->reposEnabled.value("Upper"));
        QCOMPARE(root->conf.repos[2].enabled, 0);
        click("Upper", 1);
        QVERIFY(root->reposEnabled.value("Upper"));
        QCOMPARE(root->conf.repos[2].enabled, 2);
        click("Upper", 2);
        click("Upper", 3);
        QVERIFY(root->reposEnabled.value("Upper"));
        QCOMPARE(root->conf.repos[2].enabled, 2);
        QVERIFY(root->reposEnabled.value("middle") && root->reposEnabled.value("last"));
    }

    void spaceTurnsOverTheCurrentBox()
    {
        view->setCurrentRow(2);
        QTest::keyClick(view, Qt::Key_Space);
        QVERIFY(root->reposEnabled.value("Upper"));
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Space);
        QCOMPARE(root->conf.repos[2].enabled, 2);
        QTest::keyClick(view, Qt::Key_Right);
        QTest::keyClick(view, Qt::Key_Space);
        QVERIFY(root->reposEnabled.value("Upper"));
        QCOMPARE(root->conf.repos[2].enabled, 2);
    }

    void movesToAnotherRowAreTold()
    {
        view->setCurrentRow(-1);
        QSignalSpy moves(view, qOverload<int, int>(&View::currentChanged));
        click("last", 2);
        click("last", 3);
        click("middle", 3);
        view->setCurrentRow(-1);
        QCOMPARE(moves.count(), 3);
        QCOMPARE(moves.at(0), (QVariantList{1, -1}));
        QCOMPARE(moves.at(1), (QVariantList{0, 1}));
        QCOMPARE(moves.at(2), (QVariantList{-1, 0}));
    }

    void theCurrentRowStaysInSight()
    {
        for (int number = 0; number < 100; ++number) {
            Repo::Entry entry;
            entry.id = QStringLiteral("z%1").arg(number);
            model->addRow(entry);
        }
        view->setCurrentRow(102);
        QVERIFY(view->viewport()->rect().contains(view->visualRect(view->currentIndex())));
    }

    void doubleClickTellsTheRow()
    {
        clickHeader(2);
        QSignalSpy const activated(view, &View::activated);
        click("last", 3);
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place("last", 3));
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.at(0).at(0).toModelIndex(), model->index(1, 3));
    }

    void boxesHaveNoContextMenu()
    {
        QVERIFY(rightClick(place("last", 0)).isEmpty());
        QVERIFY(rightClick(place("last", 1)).isEmpty());
    }

    void contextMenuEditsTheRowUnderTheMouse()
    {
        clickHeader(2);
        QSignalSpy const edited(view->getContextMenu(), qOverload<QModelIndex>(&ContextMenu::edit));
        QCOMPARE(rightClick(place("last", 2), "Edit"), (QStringList{"Edit", "Browse Repository"}));
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.at(0).at(0).toModelIndex(), model->index(1, 2));
    }

    void contextMenuBrowsesTheRowUnderTheMouse()
    {
        BoxReader boxes;
        for (char const* const name : {"one", "two"}) {
            engine->add(QString::fromLatin1(name), Package::Available);
        }
        rightClick(place("Upper", 3), "Browse Repository");
        QCOMPARE(boxes.texts, QStringList()); // as many packages as rows are within reach
        rightClick(place("last", 3), "Browse Repository");
        QCOMPARE(boxes.texts, QStringList{"Repository configuration has no URL"});
        QCOMPARE(boxes.parents, QList<QWidget*>{view});
    }

    void menuBelowTheLastRowNamesNoRow()
    {
        BoxReader boxes;
        for (int number = 0; number < 5; ++number) {
            engine->add(QString::number(number), Package::Available);
        }
        QSignalSpy const edited(view->getContextMenu(), qOverload<QModelIndex>(&ContextMenu::edit));
        QVERIFY(!view->indexAt(pointBelowTheRows()).isValid());
        QCOMPARE(
            rightClick(pointBelowTheRows(), "Browse Repository"), (QStringList{"Edit", "Browse Repository"}));
        QCOMPARE(boxes.texts, QStringList());
        rightClick(pointBelowTheRows(), "Edit");
        QCOMPARE(edited.count(), 1);
        QVERIFY(!edited.at(0).at(0).toModelIndex().isValid());
    }

    void menuKeyOpensTheMenuOfTheCurrentCell()
    {
        view->setCurrentIndex(cell("Upper", 3));
        QSignalSpy const edited(view->getContextMenu(), qOverload<QModelIndex>(&ContextMenu::edit));
        choose("Edit", [&] {
            QPoint const point = view->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
            QContextMenuEvent event(QContextMenuEvent::Keyboard, point, view->mapToGlobal(point));
            QApplication::sendEvent(view, &event);
        });
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.at(0).at(0).toModelIndex(), model->index(2, 3));
    }
};

QTEST_MAIN(RepoEditorViewTest)
#include "tst_repoeditorview.moc"
