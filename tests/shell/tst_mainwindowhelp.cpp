// SPDX-License-Identifier: GPL-2.0-or-later
// The Help menu: which outside commands it starts, and with what.
#include "ShellTest.h"
#include "tests/Eventually.h"
#include "tests/repo/Launches.h"

#include <QAction>
#include <QKeySequence>
#include <QTest>

class MainWindowHelpTest : public ShellTest
{
    Q_OBJECT

    Launches launches;

    QByteArray command(char const* name) const
    {
        return QFile::encodeName(launches.path(QString::fromLatin1(name)));
    }

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("VEM_TEST_STATEMENTS", "packageLibrary = lambda: 'pantry <3.4>'\n");
        makeWindow();
        QVERIFY(openWindow());
        launches.add(QStringLiteral("webbrowser"));
        launches.add(QStringLiteral("mimeviewer"));
        qputenv("VEMSHARE", QFile::encodeName(launches.path(QString())));
    }

    void init() { launches.forget(); }

    void manualOpensInTheBrowser()
    {
        action(QStringLiteral("Manual (html)"))->trigger();
        EVENTUALLY_VERIFY(!launches.started().isEmpty());
        verifyManualInTheBrowser();
    }

    void helpKeyOpensTheSame()
    {
        QCOMPARE(action(QStringLiteral("Manual (html)"))->shortcut(), QKeySequence(Qt::Key_F1));
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(window, Qt::Key_F1);
        EVENTUALLY_VERIFY(!launches.started().isEmpty());
        verifyManualInTheBrowser();
    }

    void manualOpensInTheViewerOfItsType()
    {
        action(QStringLiteral("Manual (PDF)"))->trigger();
        EVENTUALLY_VERIFY(!launches.started().isEmpty());
        QCOMPARE(
            launches.started(),
            (QByteArrayList{
                command("mimeviewer"), "application/pdf", "/usr/share/doc/vem-1.7.2/manual.pdf"}));
    }

    void aboutTellsWhatTheProgramWorksWith()
    {
        action(QStringLiteral("About"))->trigger();
        QString const text = boxes->takeTexts().value(0);
        QVERIFY(text.contains(QStringLiteral("<h3>VEM 1.7.2</h3>")));
        QVERIFY(text.endsWith(
            QStringLiteral("<li>Install or update suites of packages</li></ul>"
                           "<p>Package library: pantry &lt;3.4&gt;</p>"
                           "<p>Web page: <a "
                           "href=\"https://vem.example.org/\">https://vem.example.org/</a></p>")));
    }

    // A command that isn't there is told on the terminal; the window goes on.
    void commandsThatAreMissingAreHarmless()
    {
        QByteArray const share = qgetenv("VEMSHARE");
        qputenv("VEMSHARE", "/nowhere");
        action(QStringLiteral("Manual (html)"))->trigger();
        action(QStringLiteral("Manual (PDF)"))->trigger();
        qputenv("VEMSHARE", share);
        QCOMPARE(launches.started(), QByteArrayList());
        QVERIFY(window->isVisible() && window->isEnabled());
    }

    void browserOutlivesTheProgramsWindow()
    {
        launches.add(QStringLiteral("webbrowser"), "while [ ! -e end ]; do sleep 0.05; done\n: > ended");
        action(QStringLiteral("Manual (html)"))->trigger();
        EVENTUALLY_VERIFY(!launches.started().isEmpty());
        window->quit();
        QVERIFY(!window->isVisible());
        delete window;
        QVERIFY(!QFile::exists(launches.path(QStringLiteral("ended"))));
        QVERIFY(QFile(launches.path(QStringLiteral("end"))).open(QIODevice::WriteOnly));
        EVENTUALLY_VERIFY(QFile::exists(launches.path(QStringLiteral("ended"))));
    }

private:
    void verifyManualInTheBrowser() const
    {
        QCOMPARE(
            launches.started(),
            (QByteArrayList{command("webbrowser"), "/usr/share/doc/vem-1.7.2/html/index.html"}));
    }
};

QTEST_MAIN(MainWindowHelpTest)
#include "tst_mainwindowhelp.moc"
