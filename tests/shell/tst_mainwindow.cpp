// SPDX-License-Identifier: GPL-2.0-or-later
// The main window at work, over a stand-in for the helper script.
#include "ShellTest.h"
#include "tests/Eventually.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QTextEdit>
#include <QTimer>

namespace
{

QWidget* logWindow()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (widget->windowTitle() == QLatin1String("VEM Log")) {
            return widget;
        }
    }
    return nullptr;
}

class EventCount final : public QObject
{
    Q_DISABLE_COPY_MOVE(EventCount)

public:
    EventCount(QWidget* watched, QEvent::Type counted)
        : type(counted)
    {
        watched->installEventFilter(this);
    }

    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == type;
        return QObject::eventFilter(watched, event);
    }

private:
    QEvent::Type const type;
};

} // namespace

class MainWindowTest : public ShellTest
{
    Q_OBJECT

    QComboBox* mode() const { return window->findChildren<QComboBox*>().at(0); }
    QComboBox* stateFilter() const { return window->findChildren<QComboBox*>().at(1); }
    QLineEdit* expression() const { return window->findChild<QLineEdit*>(); }
    QCheckBox* groups() const { return window->findChild<QCheckBox*>(); }

    void apply(QString const& text)
    {
        expression()->setFocus();
        expression()->setText(text);
        QTest::keyClick(expression(), Qt::Key_Return);
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        QVERIFY(openWindow());
    }

    void cleanupTestCase() { delete window; }

    void init()
    {
        QCOMPARE(script(QStringLiteral("standin.reset()")), QString());
        mode()->setCurrentIndex(0);
        stateFilter()->setCurrentIndex(3);
        groups()->setChecked(false);
        apply(QStringLiteral(".*"));
        window->refresh();
        window->clearActions();
        forgetCalls();
    }

    void cleanup() { QCOMPARE(boxes->take(), QList<Boxes::Box>()); }

    void collectsAndShowsEveryPackage()
    {
        QCOMPARE(
            names(), QStringList(
                         {QStringLiteral("fir"), QStringLiteral("alder"), QStringLiteral("birch"),
                          QStringLiteral("cedar"), QStringLiteral("dogwood"), QStringLiteral("elm"),
                          QStringLiteral("hazel"), QStringLiteral("ivy")}));
    }

    void stateFilterChoosesRows()
    {
        stateFilter()->setCurrentIndex(0);
        QCOMPARE(names(), QStringList({QStringLiteral("alder"), QStringLiteral("dogwood")}));
        stateFilter()->setCurrentIndex(2);
        QVERIFY(names().contains(QStringLiteral("cedar")) && names().contains(QStringLiteral("alder")));
        QVERIFY(!names().contains(QStringLiteral("elm")));
    }

    void groupsShowOnRequest()
    {
        groups()->setChecked(true);
        QVERIFY(names().contains(QStringLiteral("Trees")));
        QVERIFY(!names().contains(QStringLiteral("Hidden")));
        groups()->setChecked(false);
        QVERIFY(!names().contains(QStringLiteral("Trees")));
    }

    void aTextThatNobodyTypesWaitsForTheButton()
    {
        qsizetype const all = names().size();
        expression()->setText(QStringLiteral("^elm"));
        QCOMPARE(names().size(), all);
        QTest::mouseClick(button(QStringLiteral("Filter")), Qt::LeftButton);
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
    }

    void modeSetsTextsOfTheLine()
    {
        mode()->setCurrentIndex(1);
        QVERIFY(button(QStringLiteral("Search")));
        QCOMPARE(
            expression()->toolTip(),
            QStringLiteral("Regular expression to compare to all fields of a package"));
        QCOMPARE(
            button(QStringLiteral("Search"))->toolTip(),
            QStringLiteral("Perform the search for the regular expression specified to the left"));
        mode()->setCurrentIndex(0);
        QCOMPARE(
            button(QStringLiteral("Filter"))->toolTip(),
            QStringLiteral("Apply the filter specified to the left"));
    }

    void searchForNothingOrEverythingLoadsNothing()
    {
        mode()->setCurrentIndex(1);
        for (QString const& text : {QStringLiteral(".*"), QString()}) {
            apply(text);
            QVERIFY(!calls().contains(QStringLiteral("collectFileLists")));
            QVERIFY(mode()->toolTip().endsWith(QLatin1String("(Must load extra data.)")));
        }
    }

    void choosingSearchWithAnExpressionLoadsAtOnceAndOnlyOnce()
    {
        expression()->setText(QStringLiteral("oak"));
        mode()->setCurrentIndex(1);
        QCOMPARE(calls().count(QStringLiteral("collectFileLists")), 1);
        QCOMPARE(calls().count(QStringLiteral("collectOtherData")), 1);
        EVENTUALLY_VERIFY(mode()->toolTip().endsWith(QLatin1String("considerably slower.")));
        apply(QStringLiteral("ash"));
        QCOMPARE(calls().count(QStringLiteral("collectFileLists")), 1);
    }

    void extraDataThatCannotBeLoadedAreToldOfOnce()
    {
        apply(QStringLiteral("^elm"));
        script(QStringLiteral("for name in 'collectFileLists', 'collectOtherData':\n"
                              "    standin.fail(name, standin.YumBaseError('the cellar is locked'))"));
        mode()->setCurrentIndex(1);
        QCOMPARE(boxes->take().size(), 2);
        QCOMPARE(calls().count(QStringLiteral("collectFileLists")), 1);
        QCOMPARE(calls().count(QStringLiteral("collectOtherData")), 1);
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
    }

    void theExpressionInForceStaysWhenTheModeChanges()
    {
        apply(QStringLiteral("^elm"));
        expression()->setText(QStringLiteral(".*"));
        mode()->setCurrentIndex(1);
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
    }

    void aSearchInForceSurvivesARefresh()
    {
        mode()->setCurrentIndex(1);
        apply(QStringLiteral("^/usr/bin/birch$"));
        QCOMPARE(names(), QStringList{QStringLiteral("birch")});
        forgetCalls();
        window->refresh();
        QCOMPARE(names(), QStringList{QStringLiteral("birch")});
        QCOMPARE(calls().count(QStringLiteral("collectFileLists")), 1);
    }

    void busyWindowDisablesAllButWindowsAndHelp()
    {
        // Looked at in the middle of a collection.
        QStringList seen;
        QTemporaryDir directory;
        QString const flag = directory.filePath(QStringLiteral("go"));
        script(QStringLiteral("import os, time\n"
                              "def waiting():\n"
                              "    while not os.path.exists('%1'): time.sleep(0.005)\n"
                              "    return iter(standin.world.updates)\n"
                              "standin.instead('collectUpdates', waiting)")
                   .arg(flag));
        QTimer::singleShot(50, this, [&] {
            for (QString const& text :
                 {QStringLiteral("Quit"), QStringLiteral("Edit Configuration"),
                  QStringLiteral("Clean Headers"), QStringLiteral("Clean Packages"),
                  QStringLiteral("Clean XML Metadata"), QStringLiteral("Clean Pickled Data"),
                  QStringLiteral("Clean All"), QStringLiteral("Log"), QStringLiteral("Manual (html)"),
                  QStringLiteral("About")}) {
                if (action(text)->isEnabled()) {
                    seen.append(text);
                }
            }
            if (table()->isEnabled()) {
                seen.append(QStringLiteral("table"));
            }
            if (!QApplication::overrideCursor() ||
                QApplication::overrideCursor()->shape() != Qt::BusyCursor) {
                seen.append(QStringLiteral("ready cursor"));
            }
            QFile file(flag);
            QVERIFY(file.open(QIODevice::WriteOnly));
        });
        window->refresh();
        QCOMPARE(
            seen,
            QStringList({QStringLiteral("Log"), QStringLiteral("Manual (html)"), QStringLiteral("About")}));
        QVERIFY(table()->isEnabled());
        QVERIFY(action(QStringLiteral("Quit"))->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }

    void theKeyboardStaysWhereItWasThroughABusyTime()
    {
        mode()->setCurrentIndex(1);
        expression()->setFocus();
        apply(QStringLiteral("elm"));
        QCOMPARE(window->focusWidget(), expression());
        table()->setFocus();
        window->refresh();
        QCOMPARE(window->focusWidget(), table());
    }

    void pickledDataCanBeCleanedOnlyWhereThereIsAny()
    {
        bool const hasPickles = era() == QLatin1String("2.9.1");
        QCOMPARE(action(QStringLiteral("Clean Pickled Data"))->isEnabled(), hasPickles);
        QVERIFY(action(QStringLiteral("Clean All"))->isEnabled());
    }

    void applyButtonFollowsTheMarks()
    {
        QPushButton* const apply = button(QStringLiteral("Apply Actions"));
        QVERIFY(!apply->isEnabled());
        clickAction(QStringLiteral("alder"));
        QVERIFY(apply->isEnabled());
        clickAction(QStringLiteral("elm"));
        clickAction(QStringLiteral("alder"));
        clickAction(QStringLiteral("alder"));
        QVERIFY2(apply->isEnabled(), "elm is still marked");
        clickAction(QStringLiteral("elm"));
        QVERIFY(!apply->isEnabled());
        QTest::mouseClick(button(QStringLiteral("Set Update of All Out-of-Date")), Qt::LeftButton);
        QVERIFY(apply->isEnabled());
        QTest::mouseClick(button(QStringLiteral("Clear Actions")), Qt::LeftButton);
        QVERIFY(!apply->isEnabled());
    }

    void applyButtonFollowsTheContextMenu()
    {
        QPushButton* const apply = button(QStringLiteral("Apply Actions"));
        QVERIFY(!apply->isEnabled());
        chooseAction(QStringLiteral("alder"), QStringLiteral("&Update"));
        QVERIFY(apply->isEnabled());
        chooseAction(QStringLiteral("alder"), QStringLiteral("&No Action"));
        QVERIFY(!apply->isEnabled());
    }

    void applyButtonStaysEnabledThroughARebuild()
    {
        clickAction(QStringLiteral("alder"));
        window->cleanHeaders();
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QString());
        QVERIFY(button(QStringLiteral("Apply Actions"))->isEnabled());
        QTest::mouseClick(button(QStringLiteral("Clear Actions")), Qt::LeftButton);
    }

    void resizeButtonFitsTheColumns()
    {
        auto const* const view = qobject_cast<QTableView*>(table());
        window->resize();
        int const fitting = view->columnWidth(3);
        qobject_cast<QTableView*>(table())->setColumnWidth(3, 10);
        QTest::mouseClick(button(QStringLiteral("Resize")), Qt::LeftButton);
        QCOMPARE(view->columnWidth(3), fitting);
    }

    // Rows are drawn from what was read once, not from the objects that a job may be using.
    void windowIsPaintedWhileAJobHoldsTheInterpreter()
    {
        QTemporaryDir const directory;
        QString const begun = directory.filePath(QStringLiteral("begun"));
        QString const done = directory.filePath(QStringLiteral("done"));
        script(QStringLiteral("import ctypes\n"
                              "def holding(*lists):\n"
                              "    open('%1', 'w').close()\n"
                              "    ctypes.PyDLL(None).usleep(500000)\n"
                              "    open('%2', 'w').close()\n"
                              "standin.instead('apply', holding)")
                   .arg(begun, done));
        int painted = 0;
        QTimer painter;
        connect(&painter, &QTimer::timeout, this, [&] {
            bool const holding = QFile::exists(begun) && !QFile::exists(done);
            table()->viewport()->repaint();
            painted += holding && !QFile::exists(done);
        });
        painter.start(5);
        window->apply();
        QVERIFY(QFile::exists(done));
        QVERIFY2(painted > 2, QByteArray::number(painted).constData());
    }

    void describeButtonFollowsTheCurrentRowAndSurvivesARefresh()
    {
        table()->setCurrentIndex(table()->model()->index(0, 3));
        QPushButton* const describe = button(QStringLiteral("Describe"));
        QVERIFY(describe->isEnabled());
        QTest::mouseClick(button(QStringLiteral("Refresh")), Qt::LeftButton);
        QVERIFY(describe->isEnabled());
        QVERIFY(!table()->currentIndex().isValid());
        QTest::mouseClick(describe, Qt::LeftButton);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    void noRowIsCurrentBehindARebuildAskedForByKeyboard_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("Refresh") << false;
        QTest::newRow("Cache menu") << true;
    }

    void noRowIsCurrentBehindARebuildAskedForByKeyboard()
    {
        QFETCH(bool, byMenu);
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        table()->setFocus();
        table()->setCurrentIndex(table()->model()->index(1, 0));
        if (byMenu) {
            action(QStringLiteral("Clean Headers"))->trigger();
        } else {
            // A button that is pressed by its key comes up again a moment later.
            QTest::keyClick(window, Qt::Key_F, Qt::AltModifier);
        }
        EVENTUALLY_VERIFY(calls().contains(QStringLiteral("collectAll")) && table()->isEnabled());
        QVERIFY(table()->hasFocus());
        QVERIFY(!table()->currentIndex().isValid());
        QTest::keyClick(table(), Qt::Key_Space);
        QVERIFY(!names().isEmpty());
        for (QString const& name : names()) {
            QCOMPARE(tipOfAction(name), QString());
        }
    }

    void describeKeepsTheWindowBusyUntilTheBuildHostIsRead()
    {
        apply(QStringLiteral("^elm "));
        QTemporaryDir directory;
        QString const flag = directory.filePath(QStringLiteral("go"));
        script(QStringLiteral("import os, time\n"
                              "elm = standin.world.find('available', 'elm')\n"
                              "simple = elm.returnSimple\n"
                              "def waiting(key):\n"
                              "    for turn in range(1000 if key == 'buildhost' else 0):\n"
                              "        if os.path.exists('%1'): break\n"
                              "        time.sleep(0.005)\n"
                              "    return simple(key)\n"
                              "elm.returnSimple = waiting")
                   .arg(flag));
        table()->setCurrentIndex(table()->model()->index(0, 3));
        bool enabled = true;
        QTimer::singleShot(50, this, [&] {
            enabled = table()->isEnabled() || action(QStringLiteral("Quit"))->isEnabled();
            QFile file(flag);
            QVERIFY(file.open(QIODevice::WriteOnly));
        });
        QTest::mouseClick(button(QStringLiteral("Describe")), Qt::LeftButton);
        QVERIFY(QFile::exists(flag));
        QVERIFY(!enabled);
        QVERIFY(table()->isEnabled());
        QCOMPARE(boxes->take().size(), 1);
        QCOMPARE(table()->currentIndex().row(), 0);
    }

    void refreshRebuildsAndKeepsFilterAndSort()
    {
        apply(QStringLiteral("^(alder|elm|ivy)"));
        QTest::mouseClick(button(QStringLiteral("Refresh")), Qt::LeftButton);
        QCOMPARE(
            names(), QStringList({QStringLiteral("alder"), QStringLiteral("elm"), QStringLiteral("ivy")}));
        QStringList const made = calls();
        QCOMPARE(made.count(QStringLiteral("flush")), 1);
        QCOMPARE(made.count(QStringLiteral("YumIO()")), 1);
        QCOMPARE(made.count(QStringLiteral("collectAll")), 1);
        QVERIFY2(!made.contains(QStringLiteral("lock")), "the lock is taken once for all");
    }

    void cleanPackagesLeavesTableAndMarks()
    {
        clickAction(QStringLiteral("alder"));
        forgetCalls();
        action(QStringLiteral("Clean Packages"))->trigger();
        QCOMPARE(calls(), QStringList{QStringLiteral("cleanPackages")});
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QStringLiteral("Update package"));
    }

    void theOtherCleansRebuild_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("method");
        QTest::newRow("headers") << QStringLiteral("Clean Headers") << QStringLiteral("cleanHeaders");
        QTest::newRow("metadata") << QStringLiteral("Clean XML Metadata") << QStringLiteral("cleanMetadata");
        QTest::newRow("all") << QStringLiteral("Clean All") << QStringLiteral("cleanMetadata");
    }

    void theOtherCleansRebuild()
    {
        QFETCH(QString, entry);
        QFETCH(QString, method);
        action(entry)->trigger();
        QVERIFY(calls().contains(method));
        QCOMPARE(calls().count(QStringLiteral("collectAll")), 1);
        QCOMPARE(
            calls().contains(QStringLiteral("cleanPickles")),
            entry == QLatin1String("Clean All") && era() == QLatin1String("2.9.1"));
    }

    void aConfirmedApplyRebuilds()
    {
        clickAction(QStringLiteral("cedar"));
        forgetCalls();
        boxes->press({QStringLiteral("OK")});
        QTest::mouseClick(button(QStringLiteral("Apply Actions")), Qt::LeftButton);
        QCOMPARE(boxes->take().size(), 1);
        QVERIFY(calls().contains(QStringLiteral("apply")));
        QCOMPARE(calls().count(QStringLiteral("collectAll")), 1);
        QCOMPARE(tipOfAction(QStringLiteral("cedar")), QString());
    }

    void aCancelledApplyKeepsTableAndMarks()
    {
        clickAction(QStringLiteral("cedar"));
        forgetCalls();
        boxes->press({QStringLiteral("Cancel")});
        QTest::mouseClick(button(QStringLiteral("Apply Actions")), Qt::LeftButton);
        QCOMPARE(boxes->take().size(), 1);
        QCOMPARE(calls().count(QStringLiteral("collectAll")), 0);
        QCOMPARE(tipOfAction(QStringLiteral("cedar")), QStringLiteral("Remove package"));
        QVERIFY(table()->isEnabled());
    }

    void setSelectedMarksTheSelection()
    {
        table()->setSelectionMode(QAbstractItemView::ExtendedSelection);
        table()->selectAll();
        QTest::mouseClick(button(QStringLiteral("Set Install/Update of Selected")), Qt::LeftButton);
        QCOMPARE(tipOfAction(QStringLiteral("alder")), QStringLiteral("Update package"));
        QCOMPARE(tipOfAction(QStringLiteral("elm")), QStringLiteral("Install package"));
        QCOMPARE(tipOfAction(QStringLiteral("cedar")), QString());
        QVERIFY(button(QStringLiteral("Apply Actions"))->isEnabled());
    }

    void theLogOpensDuringACollectionAndGrows()
    {
        QTemporaryDir directory;
        QString const flag = directory.filePath(QStringLiteral("go"));
        script(QStringLiteral("import os, time\n"
                              "def waiting():\n"
                              "    yumIOC.log(0, 'halfway')\n"
                              "    while not os.path.exists('%1'): time.sleep(0.005)\n"
                              "    yumIOC.log(0, 'all the way')\n"
                              "    return iter(standin.world.updates)\n"
                              "standin.instead('collectUpdates', waiting)")
                   .arg(flag));
        QString during;
        QTimer::singleShot(50, this, [&] {
            action(QStringLiteral("Log"))->trigger();
            during = logWindow()->findChild<QTextEdit*>()->toPlainText();
            QFile file(flag);
            QVERIFY(file.open(QIODevice::WriteOnly));
        });
        window->refresh();
        QVERIFY(logWindow()->isVisible());
        QVERIFY(during.contains(QLatin1String("halfway")) && !during.contains(QLatin1String("all the way")));
        QVERIFY(logWindow()->findChild<QTextEdit*>()->toPlainText().contains(QLatin1String("all the way")));

        // A second time changes nothing: same window, same text, in the same place of the pile.
        QString const before = logWindow()->findChild<QTextEdit*>()->toPlainText();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        EventCount const raised(logWindow(), QEvent::ZOrderChange);
        action(QStringLiteral("Log"))->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(raised.count, 0);
        QVERIFY(window->isActiveWindow());
        QCOMPARE(logWindow()->findChild<QTextEdit*>()->toPlainText(), before);
        QVERIFY(logWindow()->isVisible());

        // Closed, it lives on and comes back complete.
        logWindow()->hide();
        script(QStringLiteral("yumIOC.log(0, 'while closed')"));
        action(QStringLiteral("Log"))->trigger();
        QVERIFY(logWindow()->findChild<QTextEdit*>()->toPlainText().contains(QLatin1String("while closed")));
        logWindow()->hide();
    }

    void cacheToolTipsNameTheDirectory()
    {
        QCOMPARE(
            action(QStringLiteral("Clean Headers"))->toolTip(),
            QStringLiteral("Clean RPM package headers cached locally in /var/cache/yum"));
        QCOMPARE(
            action(QStringLiteral("Clean All"))->toolTip(),
            QStringLiteral("Clean all data cached locally in /var/cache/yum"));
    }

    void aFailedCollectionLeavesAnEmptyTableAndAUsableWindow()
    {
        script(QStringLiteral("standin.fail('collectAll', standin.YumBaseError('the shelves are bare'))"));
        boxes->press({QStringLiteral("Close")});
        window->refresh();
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen.first().caption, QStringLiteral("VEM Yum Error"));
        QVERIFY(seen.first().text.contains(QLatin1String("the shelves are bare")));
        QCOMPARE(names(), QStringList());
        QVERIFY(table()->isEnabled());
    }

    void aFailedCollectionLoadsNothingForASearchInForce()
    {
        mode()->setCurrentIndex(1);
        apply(QStringLiteral("^elm"));
        script(QStringLiteral("standin.fail('collectAll', standin.YumBaseError('the shelves are bare'))"));
        forgetCalls();
        window->refresh();
        QCOMPARE(boxes->take().size(), 1);
        QVERIFY(!calls().contains(QStringLiteral("collectFileLists")));
        QVERIFY(!calls().contains(QStringLiteral("collectOtherData")));
    }

    void aScriptThatRaisesAnythingLeavesAUsableWindow_data()
    {
        QTest::addColumn<QString>("method");
        for (char const* const method :
             {"setupRepos", "setupTs", "collectUpdates", "collectAll", "setupTsGroup", "collectGroupInfo"}) {
            QTest::newRow(method) << QString::fromLatin1(method);
        }
    }

    void aScriptThatRaisesAnythingLeavesAUsableWindow()
    {
        QFETCH(QString, method);
        script(QStringLiteral("standin.fail('%1', ZeroDivisionError('oops'))").arg(method));
        window->refresh();
        QVERIFY(!boxes->take().isEmpty());
        QVERIFY(table()->isEnabled());
        script(QStringLiteral("standin.reset()"));
        window->refresh();
        QCOMPARE(names().size(), 8);
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_mainwindow.moc"
