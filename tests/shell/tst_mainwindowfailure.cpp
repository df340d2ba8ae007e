// SPDX-License-Identifier: GPL-2.0-or-later
#include "ShellTest.h"
#include "tests/Eventually.h"

#include <QApplication>
#include <QTemporaryDir>
#include <QTest>

class MainWindowFailureTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    void aMissingHelperScriptIsReportedAndTheProgramQuits()
    {
        makeWindow();
        QTemporaryDir const empty;
        qputenv("VEMSHARE", QFile::encodeName(empty.path()));
        window->show();
        EVENTUALLY_VERIFY(!window->isVisible());
        QList<Boxes::Box> const seen = boxes->take();
        QCOMPARE(seen.size(), 1);
        QCOMPARE(seen.first().caption, QStringLiteral("VEM Yum Error"));
        QCOMPARE(seen.first().text, QStringLiteral("Internal error: unable to open YumIO.py"));
        delete window;
    }
};

QTEST_MAIN(MainWindowFailureTest)
#include "tst_mainwindowfailure.moc"
