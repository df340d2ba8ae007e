// SPDX-License-Identifier: GPL-2.0-or-later
// The start on a system whose packages can't be changed, with a user who gives the answer that
// VEM_TEST_ANSWER names.
#include "ShellTest.h"
#include "shell/StatusLine.h"
#include "tests/Eventually.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <algorithm>

class MainWindowLookingTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    void theUserLooksOrLeaves()
    {
        QString const answer = qEnvironmentVariable("VEM_TEST_ANSWER", QStringLiteral("Look"));
        qputenv(
            "VEM_TEST_STATEMENTS", "whyOnlyLooking = whyNoChange = lambda: 'The trees are painted.'\n"
                                   "standin.fail('apply', standin.YumBaseError(whyOnlyLooking()))\n");
        makeWindow();
        boxes->press({answer});
        window->show();
        if (answer == QLatin1String("Look")) {
            EVENTUALLY_VERIFY_WITHIN(table()->isVisible() && table()->isEnabled(), 20000);
        } else {
            EVENTUALLY_VERIFY(!window->isVisible());
        }
        QCOMPARE(
            boxes->take(), (QList<Boxes::Box>{
                               {QStringLiteral("VEM Looking Only"),
                                QStringLiteral("The trees are painted."),
                                {QStringLiteral("Look"), QStringLiteral("Quit")}}}));
        if (answer == QLatin1String("Look")) {
            QCOMPARE(names(), QStringList({QStringLiteral("alder"), QStringLiteral("dogwood")}));
            auto const labels = window->findChild<StatusLine*>()->findChildren<QLabel*>();
            QVERIFY(std::ranges::any_of(labels, [](QLabel const* label) {
                return label->isVisible() && label->text() == QLatin1String("Looking only") &&
                       label->toolTip() == QLatin1String("The trees are painted.");
            }));
            clickAction(QStringLiteral("alder"));
            QString const mark = tipOfAction(QStringLiteral("alder"));
            button(QStringLiteral("Apply Actions"))->click();
            QCOMPARE(
                boxes->takeTexts(),
                QStringList{QStringLiteral("The trees are painted.\nError applying changes")});
            QVERIFY(table()->isEnabled());
            QCOMPARE(tipOfAction(QStringLiteral("alder")), mark);
        }
        delete window;
    }
};

QTEST_MAIN(MainWindowLookingTest)
#include "tst_mainwindowlooking.moc"
