// SPDX-License-Identifier: GPL-2.0-or-later
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

class MainWindowCloseTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    // As the window manager closes it.
    void aWindowThatIsClosedWhileRpmWorksSaysSoAndEndsBehindIt()
    {
        makeWindow();
        QVERIFY(openWindow());
        QTemporaryDir directory;
        QString const begun = directory.filePath(QStringLiteral("begun"));
        QString const flag = directory.filePath(QStringLiteral("go-on"));
        script(QStringLiteral("import os, time\n"
                              "def working(*lists):\n"
                              "    yumIOC.tsInitCallback(0)\n"
                              "    yumIOC.tsInitCallback(1)\n"
                              "    open('%1', 'w').close()\n"
                              "    while not os.path.exists('%2'): time.sleep(0.005)\n"
                              "standin.instead('apply', working)")
                   .arg(begun, flag));

        QStringList words;
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [&] {
            if (!QFile::exists(begun)) {
                return;
            }
            watch.stop();
            for (int turn = 0; turn < 2; ++turn) {
                // The second time the word stands there already.
                QVERIFY(!window->close());
            }
            QVERIFY(window->isVisible());
            for (QMessageBox* const box : window->findChildren<QMessageBox*>()) {
                words += box->text();
                box->accept();
            }
            QVERIFY(QFile(flag).open(QIODevice::WriteOnly));
        });
        watch.start(5);
        window->apply();
        QCOMPARE(
            words,
            QStringList{"Packages are being installed, updated or removed.\nThat goes on to its end, and the "
                        "program ends behind it."});
        QVERIFY(!window->isVisible());
        delete window;
    }
};

QTEST_MAIN(MainWindowCloseTest)
#include "tst_mainwindowclose.moc"
