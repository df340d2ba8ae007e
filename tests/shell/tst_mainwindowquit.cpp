// SPDX-License-Identifier: GPL-2.0-or-later
#include "ShellTest.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

class MainWindowQuitTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    void quitHidesTheLogClosesTheWindowAndGivesTheLockBack()
    {
        makeWindow();
        window->logFlag = true;
        QVERIFY(openWindow());
        QTemporaryDir directory;
        QString const record = directory.filePath(QStringLiteral("calls"));
        script(QStringLiteral("standin.calls_file = '%1'").arg(record));

        QWidget* log = nullptr;
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (widget->windowTitle() == QLatin1String("VEM Log")) {
                log = widget;
            }
        }
        QVERIFY(log && log->isVisible());

        action(QStringLiteral("Quit"))->trigger();
        QVERIFY(!log->isVisible());
        QVERIFY(!window->isVisible());
        QFile calls(record);
        QVERIFY(calls.open(QIODevice::ReadOnly));
        QVERIFY(calls.readAll().contains("unlock"));
        delete window;
    }
};

QTEST_MAIN(MainWindowQuitTest)
#include "tst_mainwindowquit.moc"
