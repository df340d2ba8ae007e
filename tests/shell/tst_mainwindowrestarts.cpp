// SPDX-License-Identifier: GPL-2.0-or-later
// The restarts' window: what it tells, and what it has restarted.
#include "ShellTest.h"
#include "restarts/RestartsWindow.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

class MainWindowRestartsTest : public ShellTest
{
    Q_OBJECT

    [[nodiscard]] Restarts::Window* restarts() const { return window->findChild<Restarts::Window*>(); }
    [[nodiscard]] QString head() const { return restarts()->findChild<QPlainTextEdit*>()->toPlainText(); }

    [[nodiscard]] QTableView* list(QString const& name) const
    {
        for (QTableView* const table : restarts()->findChildren<QTableView*>()) {
            if (table->accessibleName() == name) {
                return table;
            }
        }
        return nullptr;
    }

    [[nodiscard]] QStringList rows(QString const& name) const
    {
        QAbstractItemModel const* const model = list(name)->model();
        QStringList found;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < model->columnCount(); ++column) {
                cells.append(model->index(row, column).data().toString());
            }
            found.append(cells.join(QLatin1Char('|')));
        }
        return found;
    }

    [[nodiscard]] QPushButton* restartButton() const
    {
        for (QPushButton* const found : restarts()->findChildren<QPushButton*>()) {
            if (found->text() == QLatin1String("&Restart These Services")) {
                return found;
            }
        }
        return nullptr;
    }

    void advise(QByteArray const& statements)
    {
        QCOMPARE(script(QString::fromUtf8(statements)), QString());
        restarts()->reload();
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("TZ", "UTC");
        qputenv(
            "VEM_TEST_STATEMENTS",
            "def file(path, gone=False):\n"
            "    return dict(path=path, package='lamp-2-1.noarch', gone=gone)\n"
            "def process(pid, unit, *files, own=False):\n"
            "    return dict(pid=pid, user=0, userName='root', command='/usr/bin/lamp --lit', "
            "started=1700000000,\n"
            "        unit=unit, own=own, files=list(files))\n"
            "def unit(name, obstacle='', own=False):\n"
            "    return dict(unit=name, own=own, user='', pids=[], obstacle=obstacle)\n"
            "advice = dict(running=True, note='', since=1700000000, unread=3,\n"
            "    reboot=[dict(name='kernel', version='6-1', installed=1700000060)],\n"
            "    processes=[process(7, 'lamp.service', file('/usr/bin/lamp'), file('/usr/lib/oil', True)),\n"
            "        process(8, 'dbus.service', file('/usr/bin/bus')), process(9, '', file('/usr/bin/x')),\n"
            "        process(10, 'lamp.service', file('/usr/bin/y'), own=True)],\n"
            "    units=[unit('lamp.service'), unit('dbus.service', 'All rests on it.'),\n"
            "        unit('lamp.service', 'Of a session.', True)])\n"
            "restarted = []\n"
            "def restart(units):\n"
            "    restarted.append(list(units))\n"
            "    return [dict(unit=unit, done=unit != 'bad.service', text='It fell over: ' + unit) for unit "
            "in "
            "units]\n"
            "standin.instead('restartAdvice', lambda: advice)\n"
            "standin.instead('restartServices', restart)\n");
        makeWindow();
        QVERIFY(openWindow());
        action(QStringLiteral("Restarts"))->trigger();
        QVERIFY(restarts());
        EVENTUALLY_COMPARE(rows(QStringLiteral("Processes")).size(), qsizetype(4));
        // It is a dialog itself.
        boxes->take();
    }

    void cleanupTestCase() { delete window; }

    void whatTheWholeSystemNeedsIsTold()
    {
        QVERIFY(head().contains(QLatin1String("The system is to be started anew.")));
        QVERIFY(head().contains(QLatin1String("kernel 6-1 (2023-11-14 22:14:20)")));
        QVERIFY(head().contains(QLatin1String("for lack of rights: 3")));
    }

    void processesAndTheirFilesShow()
    {
        QVERIFY(
            rows(QStringLiteral("Processes"))
                .contains(QStringLiteral("lamp.service|/usr/bin/lamp --lit|7|root|2023-11-14 22:13:20|2")));
        QTableView* const processes = list(QStringLiteral("Processes"));
        for (int row = 0; row < 4; ++row) {
            if (processes->model()->index(row, 2).data().toInt() == 7) {
                processes->setCurrentIndex(processes->model()->index(row, 0));
            }
            if (processes->model()->index(row, 2).data().toInt() == 8) {
                QCOMPARE(
                    processes->model()->index(row, 0).data(Qt::ToolTipRole).toString(),
                    QStringLiteral("All rests on it."));
            }
        }
        EVENTUALLY_COMPARE(
            rows(QStringLiteral("Files")), QStringList(
                                               {QStringLiteral("/usr/bin/lamp|lamp-2-1.noarch|Replaced"),
                                                QStringLiteral("/usr/lib/oil|lamp-2-1.noarch|Removed")}));
    }

    void onlyWhatCanBeRestartedIsAndOnlyOnceAgreed()
    {
        QVERIFY(restartButton()->isEnabled());
        boxes->press({QStringLiteral("Cancel")});
        restartButton()->click();
        QCOMPARE(value(QStringLiteral("restarted")), QStringLiteral("[]"));
        boxes->take();
        boxes->press({QStringLiteral("OK")});
        restartButton()->click();
        QCOMPARE(value(QStringLiteral("restarted")), QStringLiteral("[['lamp.service']]"));
        QVERIFY(boxes->take().value(0).text.contains(QLatin1String("lamp.service")));
    }

    void whatDoesNotComeBackIsTold()
    {
        advise("advice['units'].append(unit('bad.service'))\n"
               "advice['processes'].append(process(11, 'bad.service', file('/usr/bin/z')))");
        boxes->press({QStringLiteral("OK")});
        restartButton()->click();
        QCOMPARE(boxes->take().value(1).text, QStringLiteral("It fell over: bad.service"));
    }

    void nothingToRestartIsSaid()
    {
        advise("advice.update(reboot=[], processes=[], units=[], unread=0)");
        EVENTUALLY_COMPARE(
            head(), QStringLiteral("The system need not be started anew.\n"
                                   "No process uses files that have been replaced."));
        QVERIFY(!restartButton()->isEnabled());
        advise("advice['note'] = 'Another system.'");
        EVENTUALLY_COMPARE(head(), QStringLiteral("Another system."));
    }

    void failureToReadIsReported()
    {
        advise("standin.fail('restartAdvice', standin.YumBaseError('torn database'))");
        EVENTUALLY_VERIFY(head().isEmpty());
        QVERIFY(boxes->take().value(0).text.contains(QLatin1String("torn database")));
    }

    void aScriptThatCannotTellLeavesTheEntryGrey()
    {
        QCOMPARE(script(QStringLiteral("standin.without('restartAdvice')")), QString());
        window->refresh();
        QVERIFY(!action(QStringLiteral("Restarts"))->isEnabled());
        QVERIFY(action(QStringLiteral("Restarts"))->toolTip().contains(QLatin1String("too old")));
    }
};

QTEST_MAIN(MainWindowRestartsTest)
#include "tst_mainwindowrestarts.moc"
