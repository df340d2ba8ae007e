// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/Eventually.h"
#include "widgets/HMenu.h"

#include <QApplication>
#include <QHelpEvent>
#include <QMenuBar>
#include <QTest>
#include <QToolTip>

class tst_HMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void canBeTornOff();
    void showsAToolTipThatSaysMoreThanTheText();
    void hidesAToolTipThatOnlyRepeatsTheText_data();
    void hidesAToolTipThatOnlyRepeatsTheText();
    void noActiveActionShowsNothing();
    void showsTheToolTipOfTheActiveSubmenuEntry();
    void submenuWithoutAnActiveEntryLeavesItsOwnToolTip();

private:
    void askForToolTip();

    std::unique_ptr<QMenuBar> bar;
    HMenu* menu = nullptr;
};

void tst_HMenu::init()
{
    bar = std::make_unique<QMenuBar>();
    menu = new HMenu(QStringLiteral("&Program"), bar.get());
}

void tst_HMenu::cleanup()
{
    QToolTip::hideText();
    bar.reset();
    EVENTUALLY_VERIFY(!QToolTip::isVisible());
}

void tst_HMenu::askForToolTip()
{
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), QPoint(50, 60));
    QApplication::sendEvent(menu, &event);
}

void tst_HMenu::canBeTornOff()
{
    QVERIFY(menu->isTearOffEnabled());
    QCOMPARE(menu->title(), QStringLiteral("&Program"));
    QCOMPARE(menu->parent(), bar.get());
}

void tst_HMenu::showsAToolTipThatSaysMoreThanTheText()
{
    QAction* const action = menu->addAction(QStringLiteral("&Quit"));
    action->setToolTip(QStringLiteral("Leave the program"));
    menu->setActiveAction(action);

    askForToolTip();

    QCOMPARE(QToolTip::text(), QStringLiteral("Leave the program"));
}

void tst_HMenu::hidesAToolTipThatOnlyRepeatsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("toolkit's own") << QStringLiteral("&Edit...") << QString();
    QTest::newRow("given") << QStringLiteral("&Edit...") << QStringLiteral("Edit");
    QTest::newRow("several marks") << QStringLiteral("A&&B...C...") << QStringLiteral("ABC");
}

void tst_HMenu::hidesAToolTipThatOnlyRepeatsTheText()
{
    QFETCH(QString, text);
    QFETCH(QString, toolTip);
    QAction* const action = menu->addAction(text);
    action->setToolTip(toolTip);
    menu->setActiveAction(action);

    askForToolTip();

    QCOMPARE(QToolTip::text(), QString());
}

void tst_HMenu::noActiveActionShowsNothing()
{
    menu->addAction(QStringLiteral("Quit"))->setToolTip(QStringLiteral("Leave the program"));

    askForToolTip();

    QCOMPARE(QToolTip::text(), QString());
}

void tst_HMenu::showsTheToolTipOfTheActiveSubmenuEntry()
{
    QMenu* const submenu = menu->addMenu(QStringLiteral("More"));
    submenu->menuAction()->setToolTip(QStringLiteral("More entries"));
    QAction* const action = submenu->addAction(QStringLiteral("Deep"));
    action->setToolTip(QStringLiteral("Further down"));
    menu->setActiveAction(submenu->menuAction());
    submenu->setActiveAction(action);

    askForToolTip();

    QCOMPARE(QToolTip::text(), QStringLiteral("Further down"));
}

void tst_HMenu::submenuWithoutAnActiveEntryLeavesItsOwnToolTip()
{
    QMenu* const submenu = menu->addMenu(QStringLiteral("More"));
    submenu->menuAction()->setToolTip(QStringLiteral("More entries"));
    submenu->addAction(QStringLiteral("Deep"));
    menu->setActiveAction(submenu->menuAction());
    submenu->setActiveAction(nullptr);

    askForToolTip();

    QCOMPARE(QToolTip::text(), QStringLiteral("More entries"));
}

QTEST_MAIN(tst_HMenu)
#include "tst_HMenu.moc"
