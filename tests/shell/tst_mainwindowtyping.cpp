// SPDX-License-Identifier: GPL-2.0-or-later
// The table follows what is typed into the line, and the status line tells of it.
#include "ShellTest.h"
#include "tests/Eventually.h"

#include "base/UserSettings.h"
#include "shell/StatusLine.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

class MainWindowTypingTest : public ShellTest
{
    Q_OBJECT

    QComboBox* mode() const { return window->findChildren<QComboBox*>().at(0); }
    QLineEdit* expression() const { return window->findChild<QLineEdit*>(); }

    void type(QString const& text) const
    {
        expression()->selectAll();
        QTest::keyClicks(expression(), text);
    }

    QString status() const
    {
        QStringList words;
        for (QLabel const* const label : window->findChild<StatusLine*>()->findChildren<QLabel*>()) {
            if (label->isVisible() && !label->text().isEmpty()) {
                words.append(label->text());
            }
        }
        return words.join(QLatin1Char('|'));
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
        mode()->setCurrentIndex(0);
        window->findChildren<QComboBox*>().at(1)->setCurrentIndex(3); // all states
        expression()->setText(QStringLiteral(".*"));
        QTest::keyClick(expression(), Qt::Key_Return);
        QCOMPARE(names().size(), 8);
    }

    void theFirstLettersTakeThePlaceOfWhatMatchesEverything()
    {
        QCOMPARE(window->focusWidget(), expression());
        expression()->selectAll();
        QCOMPARE(expression()->selectedText(), QStringLiteral(".*"));
        QTest::keyClicks(window->focusWidget(), QStringLiteral("^e"));
        EVENTUALLY_COMPARE(names(), QStringList{QStringLiteral("elm")});
        QCOMPARE(status(), QStringLiteral("1 of 12 shown"));
    }

    void anExpressionThatDoesNotCompileLeavesTheTable()
    {
        type(QStringLiteral("^elm"));
        EVENTUALLY_COMPARE(names(), QStringList{QStringLiteral("elm")});
        type(QStringLiteral("^elm("));
        EVENTUALLY_VERIFY(status().contains(QStringLiteral("at letter 5 of the expression: (")));
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
        // Asked for, it matches everything.
        QTest::keyClick(expression(), Qt::Key_Return);
        QCOMPARE(names().size(), 8);
        QVERIFY(status().contains(QStringLiteral("at letter 5")));
        QTest::keyClicks(expression(), QStringLiteral(")"));
        EVENTUALLY_COMPARE(names(), QStringList{QStringLiteral("elm")});
        QVERIFY(!status().contains(QStringLiteral("at letter")));
    }

    void aSearchWaitsUntilItIsAskedFor()
    {
        mode()->setCurrentIndex(1);
        type(QStringLiteral("^elm"));
        QTest::qWait(400);
        QCOMPARE(names().size(), 8);
        QTest::keyClick(expression(), Qt::Key_Return);
        EVENTUALLY_COMPARE(names(), QStringList{QStringLiteral("elm")});
    }

    void lettersMayBeOfAnyCase()
    {
        type(QStringLiteral("^ELM"));
        EVENTUALLY_COMPARE(names(), QStringList());
        action(QStringLiteral("Match Case"))->trigger();
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), true).toBool(), false);
        mode()->setCurrentIndex(1);
        QCOMPARE(names(), QStringList{QStringLiteral("elm")});
        action(QStringLiteral("Match Case"))->trigger();
        QCOMPARE(names(), QStringList());
        QCOMPARE(UserSettings::value(QStringLiteral("table/matchCase"), false).toBool(), true);
    }

    void whatIsTypedBeforeARefreshIsFollowedBehindIt()
    {
        type(QStringLiteral("^elm"));
        window->refresh();
        EVENTUALLY_COMPARE(names(), QStringList{QStringLiteral("elm")});
    }

    void theStatusLineCountsRows()
    {
        table()->selectAll();
        QCOMPARE(status(), QStringLiteral("8 of 12 shown|8 selected"));
        table()->clearSelection();
        QCOMPARE(status(), QStringLiteral("8 of 12 shown"));
    }
};

QTEST_MAIN(MainWindowTypingTest)
#include "tst_mainwindowtyping.moc"
