// SPDX-License-Identifier: GPL-2.0-or-later
// The button that stops, over a stand-in that knows how to be stopped.
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

class MainWindowStopTest : public ShellTest
{
    Q_OBJECT

private:
    /// Waits in a method until a stop is wanted, at most for seconds.
    static QString waiting(char const* method, char const* error)
    {
        return QStringLiteral("def waiting(*lists):\n"
                              "    global waits\n"
                              "    waits = True\n"
                              "    wanted, _, _ = select.select([wish], [], [], 20)\n"
                              "    waits = False\n"
                              "    usual('%1')\n"
                              "    raise standin.%2('Stopped' if wanted else 'never stopped')\n"
                              "standin.instead('%1', waiting)\n")
            .arg(QLatin1String(method), QLatin1String(error));
    }

    /// Starts something by a click, and meets the state of the button while the stand-in waits.
    void meanwhile(QString const& clicked, bool possible, QString const& tip, bool escape)
    {
        QPushButton* const stop = button(QStringLiteral("Stop"));
        QTimer watch;
        int met = 0;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (value(QStringLiteral("waits")) != QLatin1String("True")) {
                return;
            }
            watch.stop();
            ++met;
            QCOMPARE(stop->isEnabled(), possible);
            QCOMPARE(stop->toolTip(), tip);
            QCOMPARE(stop->accessibleDescription(), tip);
            if (!possible) {
                script(QStringLiteral("waits = False"));
                return;
            }
            if (escape) {
                // Shown as a press of the button, which takes a moment.
                QTest::keyClick(window, Qt::Key_Escape);
                return;
            }
            stop->click();
            QVERIFY(!stop->isEnabled());
            QCOMPARE(stop->toolTip(), QStringLiteral("It is being stopped"));
        });
        watch.start(5);
        button(clicked)->click();
        QCOMPARE(met, 1);
        QVERIFY(table()->isEnabled());
        QVERIFY(!stop->isEnabled());
        QCOMPARE(stop->toolTip(), QStringLiteral("Nothing is going on that could be stopped"));
        QCOMPARE(boxes->takeTexts(), QStringList());
    }

    QString const stops = QStringLiteral("Stops what is going on; nothing has been changed yet (Escape)");

private Q_SLOTS:
    void initTestCase()
    {
        qputenv(
            "VEM_TEST_STATEMENTS", "import select, time\n"
                                   "waits = False\n"
                                   "def stopBy(descriptor):\n"
                                   "    global wish\n"
                                   "    wish = descriptor\n"
                                   "YumIO.stayOnDisk = lambda self: standin.note('stayOnDisk')\n"
                                   "originals = dict(vars(YumIO))\n"
                                   "def usual(method):\n"
                                   "    setattr(YumIO, method, originals[method])\n");
        makeWindow();
        QVERIFY(openWindow());
        QVERIFY(!button(QStringLiteral("Stop"))->isEnabled());
    }

    void aRefreshThatIsStoppedShowsWhatWasThereWithItsMarks()
    {
        QStringList const before = names();
        clickAction(QStringLiteral("alder"));
        QString const mark = tipOfAction(QStringLiteral("alder"));
        script(waiting("setupRepos", "RepoError"));
        forgetCalls();
        meanwhile(QStringLiteral("Refresh"), true, stops, true);
        QCOMPARE(names(), before);
        QCOMPARE(tipOfAction(QStringLiteral("alder")), mark);
        QCOMPARE(calls().filter(QStringLiteral("stayOnDisk")).size(), 1);
        QCOMPARE(calls().filter(QStringLiteral("setupRepos")).size(), 2);
    }

    void anApplyThatIsStoppedKeepsTheMarks()
    {
        QString const mark = tipOfAction(QStringLiteral("alder"));
        script(waiting("apply", "YumBaseError"));
        forgetCalls();
        meanwhile(QStringLiteral("Apply Actions"), true, stops, false);
        QCOMPARE(tipOfAction(QStringLiteral("alder")), mark);
        QVERIFY(!calls().contains(QStringLiteral("setupRepos")));
    }

    void nothingStopsWhatRpmHasBegun()
    {
        script(QStringLiteral("def working(*lists):\n"
                              "    global waits\n"
                              "    yumIOC.tsInitCallback(1)\n"
                              "    waits = True\n"
                              "    deadline = time.monotonic() + 20\n"
                              "    while waits and time.monotonic() < deadline: time.sleep(0.005)\n"
                              "    assert not select.select([wish], [], [], 0)[0]\n"
                              "standin.instead('apply', working)"));
        meanwhile(
            QStringLiteral("Apply Actions"), false,
            QStringLiteral("Packages are being changed: what has begun comes to its end"), false);
    }

    void aFailureAfterAStopIsToldAgain()
    {
        script(QStringLiteral("standin.fail('apply', standin.YumBaseError('No wind.'))"));
        button(QStringLiteral("Apply Actions"))->click();
        QCOMPARE(boxes->takeTexts(), QStringList{QStringLiteral("No wind.\nError applying changes")});
    }

    void cleanupTestCase() { delete window; }
};

QTEST_MAIN(MainWindowStopTest)
#include "tst_mainwindowstop.moc"
