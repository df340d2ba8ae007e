// SPDX-License-Identifier: GPL-2.0-or-later
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class MainWindowCloseTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    // As the window manager closes it: the program ends, but not before the job, whose question then finds no
    // one who could answer.
    void closingTheWindowDuringAnApplyRefusesItAndEndsTheProgramBehindTheJob()
    {
        makeWindow();
        QVERIFY(openWindow());
        QTemporaryDir directory;
        QString const flag = directory.filePath(QStringLiteral("closed"));
        script(QStringLiteral("import os, time\n"
                              "answers = []\n"
                              "def waiting(*lists):\n"
                              "    while not os.path.exists('%1'): time.sleep(0.005)\n"
                              "    answers.append(yumIOC.userconfirm())\n"
                              "standin.instead('apply', waiting)")
                   .arg(flag));
        forgetCalls();

        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [this, &watch] {
            if (calls().contains(QStringLiteral("apply"))) {
                watch.stop();
                window->close();
            }
        });
        watch.start(5);
        connect(qApp, &QGuiApplication::lastWindowClosed, this, [this, flag] {
            // Behind the end of the event loops, which this announces.
            QTimer::singleShot(0, this, [flag] {
                QFile file(flag);
                QVERIFY(file.open(QIODevice::WriteOnly));
            });
        });
        QTimer::singleShot(0, window, &MainWindow::apply);
        QApplication::exec();

        QVERIFY(!window->isVisible());
        QCOMPARE(value(QStringLiteral("answers")), QStringLiteral("[0]"));
        QCOMPARE(calls(), QStringList({QStringLiteral("apply"), QStringLiteral("flush")}));
        QVERIFY2(table()->isEnabled(), "the slot that began the job has come to its end");
        delete window;
    }
};

QTEST_MAIN(MainWindowCloseTest)
#include "tst_mainwindowclose.moc"
