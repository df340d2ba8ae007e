// SPDX-License-Identifier: GPL-2.0-or-later
// The history's window: what it shows, finds and offers, and what it makes of answers that are none.
#include "ShellTest.h"
#include "history/HistoryWindow.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

class MainWindowHistoryTest : public ShellTest
{
    Q_OBJECT

    [[nodiscard]] History::Window* history() const { return window->findChild<History::Window*>(); }

    template <typename Widget>
    [[nodiscard]] Widget* named(QString const& name) const
    {
        for (Widget* const widget : history()->findChildren<Widget*>()) {
            if (widget->accessibleName() == name) {
                return widget;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QPushButton* pushButton(QString const& text) const
    {
        for (QPushButton* const found : history()->findChildren<QPushButton*>()) {
            if (found->text().remove(u'&') == text) {
                return found;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QTableView* transactions() const { return named<QTableView>(QStringLiteral("History")); }
    [[nodiscard]] QTableView* packages() const { return named<QTableView>(QStringLiteral("Packages")); }
    [[nodiscard]] QLineEdit* searchEdit() const { return history()->findChild<QLineEdit*>(); }

    static QStringList row(QTableView const* view, int at)
    {
        QStringList cells;
        for (int column = 0; column < view->model()->columnCount(); ++column) {
            cells.append(view->model()->index(at, column).data().toString());
        }
        return cells;
    }

    [[nodiscard]] QStringList numbers() const
    {
        QStringList found;
        for (int at = 0; at < transactions()->model()->rowCount(); ++at) {
            found.append(row(transactions(), at).first());
        }
        return found;
    }

    [[nodiscard]] QString head() const
    {
        return named<QPlainTextEdit>(QStringLiteral("Transaction"))->toPlainText();
    }

    static void run(QByteArray const& statements)
    {
        QCOMPARE(script(QString::fromUtf8(statements)), QString());
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        qputenv(
            "VEM_TEST_STATEMENTS",
            "def head(number, result='done', **more):\n"
            "    return dict(number=number, begun=1700000000 + number, ended=0, user=None, "
            "userName='keeper',\n"
            "        command='vem <b>', comment='', result=result, counts={'install': number, 'groups': 1}, "
            "**more)\n"
            "def whole(number):\n"
            "    package = dict(name='alder', arch='noarch', old='1-1', new='2-1', action='upgrade',\n"
            "        reason='dependency', repository='harbour', state='failed')\n"
            "    group = dict(id='trees', name='', action='install', environment=False)\n"
            "    return head(number, packages=[package] * number, groups=[group], output=['out'], "
            "errors=['err'])\n"
            "asked = []\n"
            "def wish(*words):\n"
            "    asked.append(words)\n"
            "    return [] if words[2] else ['No repository has alder-1-1.']\n"
            "past = [head(3, 'cut off'), head(2, 'failed'), head(1)]\n"
            "standin.instead('historyList', lambda: past)\n"
            "standin.instead('historyOf', whole)\n"
            "standin.instead('historySearch', lambda text: [2] if text == 'alder' else [])\n"
            "standin.instead('historyExport', lambda number, form: f'{number} {form}')\n"
            "standin.instead('applyHistory', wish)\n");
        makeWindow();
        QVERIFY(openWindow());
        action(QStringLiteral("History"))->trigger();
        QVERIFY(history());
        EVENTUALLY_COMPARE(numbers(), (QStringList{"3", "2", "1"}));
        // It is a dialog itself.
        boxes->take();
    }

    void cleanupTestCase() { delete window; }

    void eachTransactionIsALineAndTheLatestShowsInFull()
    {
        QCOMPARE(
            row(transactions(), 2),
            (QStringList{
                "1", "2023-11-14 22:13:21", "keeper", "Done", "Installed: 1, Groups: 1", "vem <b>", ""}));
        QCOMPARE(
            head(), QStringLiteral(
                        "Transaction 3: Done\nBegun: 2023-11-14 22:13:23\nUser: keeper\nCommand: vem <b>"));
        QCOMPARE(packages()->model()->rowCount(), 4);
        QCOMPARE(
            row(packages(), 0),
            (QStringList{"Updated: failed", "alder", "1-1 \u2192 2-1", "noarch", "harbour", "dependency"}));
        QCOMPARE(row(packages(), 3).mid(0, 2), (QStringList{"Installed", "Group trees"}));
        QCOMPARE(
            named<QPlainTextEdit>(QStringLiteral("Script Output"))->toPlainText(),
            QStringLiteral("err\nout"));
    }

    void whatCameToNoGoodEndStandsOut()
    {
        auto const standsOut = [this](int at) {
            QAbstractItemModel const& model = *transactions()->model();
            return qvariant_cast<QFont>(model.index(at, 0).data(Qt::FontRole)).bold() &&
                   !qvariant_cast<QIcon>(model.index(at, 3).data(Qt::DecorationRole)).isNull();
        };
        QVERIFY(standsOut(0));
        QVERIFY(standsOut(1));
        QVERIFY(!standsOut(2));
        QCOMPARE(row(transactions(), 0).at(3), QStringLiteral("Cut off"));
        QCOMPARE(row(transactions(), 1).at(3), QStringLiteral("Failed"));
    }

    void transactionIsReadOnceItIsChosen()
    {
        transactions()->setFocus();
        transactions()->selectRow(0);
        QTest::keyClick(transactions(), Qt::Key_Down);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 2:")));
        QCOMPARE(packages()->model()->rowCount(), 3);
        QTest::keyClick(transactions(), Qt::Key_Up);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 3:")));
    }

    void searchShowsWhatFitsAndKeepsTheChoice()
    {
        transactions()->selectRow(1);
        QTest::keyClicks(searchEdit(), QStringLiteral("alder"));
        EVENTUALLY_COMPARE(numbers(), QStringList{"2"});
        searchEdit()->setText(QStringLiteral("nothing"));
        EVENTUALLY_COMPARE(numbers(), QStringList());
        EVENTUALLY_COMPARE(head(), QStringLiteral("No transaction fits the search."));
        QVERIFY(!pushButton(QStringLiteral("Undo This"))->isEnabled());
        QVERIFY(!pushButton(QStringLiteral("Export"))->isEnabled());
        searchEdit()->clear();
        EVENTUALLY_COMPARE(numbers(), (QStringList{"3", "2", "1"}));
    }

    void choiceOutlastsAReloadDuringASearch()
    {
        run("standin.instead('historySearch', lambda text: [3, 1])");
        searchEdit()->setText(QStringLiteral("ash"));
        EVENTUALLY_COMPARE(numbers(), (QStringList{"3", "1"}));
        transactions()->selectRow(1);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 1:")));
        history()->reload();
        QCOMPARE(numbers(), (QStringList{"3", "1"}));
        QVERIFY(head().startsWith(QLatin1String("Transaction 1:")));
        searchEdit()->clear();
        EVENTUALLY_COMPARE(numbers(), (QStringList{"3", "2", "1"}));
    }

    void lastTransactionHasNothingBehindItToRollBack()
    {
        transactions()->selectRow(0);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 3:")));
        QVERIFY(pushButton(QStringLiteral("Undo This"))->isEnabled());
        QVERIFY(!pushButton(QStringLiteral("Roll Back To Here"))->isEnabled());
        transactions()->selectRow(2);
        EVENTUALLY_VERIFY(pushButton(QStringLiteral("Roll Back To Here"))->isEnabled());
    }

    void whatCannotBeDoneIsToldAndTheRestDoneOnDemand_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("asked");
        QTest::newRow("left alone") << "Undo This"
                                    << "Cancel"
                                    << "[('undo', 1, False)]";
        QTest::newRow("gone on") << "Roll Back To Here"
                                 << "OK"
                                 << "[('rollback', 1, False), ('rollback', 1, True)]";
        QTest::newRow("again") << "Redo"
                               << "OK"
                               << "[('redo', 1, False), ('redo', 1, True)]";
    }

    void whatCannotBeDoneIsToldAndTheRestDoneOnDemand()
    {
        QFETCH(QString, button);
        QFETCH(QString, answer);
        QFETCH(QString, asked);
        transactions()->selectRow(2);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 1:")));
        boxes->press({answer});
        pushButton(button)->click();
        QCOMPARE(value(QStringLiteral("asked")), asked);
        QList<Boxes::Box> const shown = boxes->take();
        QCOMPARE(shown.size(), 1);
        QCOMPARE(shown.first().caption, QStringLiteral("History"));
        QVERIFY2(
            shown.first().text.contains(
                QLatin1String("Not all of it can be done:\n\nNo repository has alder-1-1.")),
            qPrintable(shown.first().text));
        run("asked.clear()");
        EVENTUALLY_VERIFY(pushButton(button)->isEnabled());
    }

    void applyIsFollowedByTheHistoryAsItIsThen()
    {
        run("def confirmed(*words):\n"
            "    import yumIOC\n"
            "    yumIOC.userconfirm()\n"
            "    past.insert(0, head(4))\n"
            "    return []\n"
            "standin.instead('applyHistory', confirmed)");
        transactions()->selectRow(1);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 2:")));
        forgetCalls();
        boxes->press({QStringLiteral("OK")});
        pushButton(QStringLiteral("Undo This"))->click();
        EVENTUALLY_COMPARE(numbers(), (QStringList{"4", "3", "2", "1"}));
        QCOMPARE(boxes->take().first().caption, QStringLiteral("Apply"));
        QVERIFY2(head().startsWith(QLatin1String("Transaction 2:")), "the same one stays chosen");
        run("past.pop(0)\nstandin.instead('applyHistory', wish)");
        window->refresh();
        EVENTUALLY_COMPARE(numbers(), (QStringList{"3", "2", "1"}));
    }

    void failureOfAReadingIsReported()
    {
        run("standin.fail('historyOf', standin.YumBaseError('a damaged page'))");
        transactions()->selectRow(2);
        EVENTUALLY_COMPARE(packages()->model()->rowCount(), 0);
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{QStringLiteral("a damaged page\nUnable to read the history of transactions")});
        QCOMPARE(head(), QString());
        run("standin.instead('historyOf', whole)");
        transactions()->selectRow(1);
        EVENTUALLY_VERIFY(head().startsWith(QLatin1String("Transaction 2:")));
    }

    void answerThatIsNoneIsReportedBesideAnEmptyTable_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("number") << QByteArray("1");
        QTest::newRow("nothing") << QByteArray("None");
        QTest::newRow("foreign object") << QByteArray("[object()]");
    }

    void answerThatIsNoneIsReportedBesideAnEmptyTable()
    {
        QFETCH(QByteArray, answer);
        run("standin.instead('historyList', lambda: " + answer + ")");
        history()->reload();
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{QStringLiteral("Internal error: execution of yumIO.historyList failed")});
        QCOMPARE(numbers(), QStringList());
        QCOMPARE(head(), QStringLiteral("No transaction is known."));
        run("standin.instead('historyList', lambda: past)");
        history()->reload();
        QCOMPARE(numbers(), (QStringList{"3", "2", "1"}));
    }

    void fieldsThatAreNoneAreEmpty()
    {
        run("standin.instead('historyList', lambda: [{}, {'counts': 3, 'number': 'x', 'begun': 1.5}, "
            "'text'])");
        history()->reload();
        QCOMPARE(numbers(), (QStringList{"0", "0", "0"}));
        QCOMPARE(row(transactions(), 1), (QStringList{"0", "", "", "Cut off", "", "", ""}));
        run("standin.instead('historyList', lambda: past)");
        history()->reload();
        QCOMPARE(numbers(), (QStringList{"3", "2", "1"}));
    }

    void readingThatLastsTurnsTheWindowsGrey()
    {
        run("import time\n"
            "def slowly():\n"
            "    time.sleep(0.5)\n"
            "    return past\n"
            "standin.instead('historyList', slowly)");
        bool grey = false;
        QTimer::singleShot(300, this, [&] { grey = !table()->isEnabled() && !transactions()->isEnabled(); });
        history()->reload();
        QVERIFY(grey);
        QVERIFY(table()->isEnabled() && transactions()->isEnabled());
        QCOMPARE(numbers(), (QStringList{"3", "2", "1"}));
        run("standin.instead('historyList', lambda: past)");
    }

    void isGreyForWhomeverMayNotChangeAnything()
    {
        run("whyNoChange = lambda: 'The trees are painted.'");
        window->refresh();
        EVENTUALLY_COMPARE(
            pushButton(QStringLiteral("Undo This"))->toolTip(), QStringLiteral("The trees are painted."));
        for (char const* const text : {"Undo This", "Redo", "Roll Back To Here"}) {
            QVERIFY(!pushButton(QLatin1String(text))->isEnabled());
        }
        QVERIFY(pushButton(QStringLiteral("Export"))->isEnabled());
        run("del whyNoChange");
        window->refresh();
        EVENTUALLY_VERIFY(pushButton(QStringLiteral("Undo This"))->isEnabled());
    }

    void olderScriptTurnsTheActionGreyAndSaysWhy()
    {
        history()->close();
        run("standin.without('historyList')");
        window->refresh();
        QVERIFY(!action(QStringLiteral("History"))->isEnabled());
        QCOMPARE(
            action(QStringLiteral("History"))->toolTip(),
            QStringLiteral("The helper script in use is too old to tell the history"));
    }
};

QTEST_MAIN(MainWindowHistoryTest)
#include "tst_mainwindowhistory.moc"
