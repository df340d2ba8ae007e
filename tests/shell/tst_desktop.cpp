// SPDX-License-Identifier: GPL-2.0-or-later
#include "FakeDesktop.h"
#include "shell/Desktop.h"
#include "tests/Eventually.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QWidget>

class DesktopTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QGuiApplication::setDesktopFileName(QStringLiteral("org.example.vem")); }

    void taskBarShowsWholePercentsUntilTheJobIsOver()
    {
        FakeDesktop fake;
        QWidget window;
        Desktop desktop(&window);
        for (int const value : {0, 1, 2, 500, 501, 1000}) {
            desktop.showProgress(value, 0, 1000);
        }
        desktop.clearProgress();
        desktop.clearProgress();
        desktop.showProgress(5, 0, 10);
        // A bar that has been rewound, and one of which nobody knows the end.
        desktop.showProgress(-1, 0, 10);
        desktop.showProgress(0, 0, 0);
        QStringList expected;
        for (auto const* const shown : {"0", "50", "100", "none", "50", "none"}) {
            expected.append(QStringLiteral("application://org.example.vem.desktop ") + QLatin1String(shown));
        }
        EVENTUALLY_COMPARE(fake.progress, expected);
    }

    void withoutAnybodyWhoListensNothingHappens()
    {
        QWidget window;
        Desktop desktop(&window);
        desktop.notify(QStringLiteral("Done"), QString());
        QTest::qWait(100);
        // Not as the replacement of one that never was.
        FakeDesktop fake;
        desktop.notify(QStringLiteral("Done"), QString());
        EVENTUALLY_COMPARE(fake.notifications.size(), 1);
        QCOMPARE(fake.notifications.first().replaced, 0U);
    }

    void notificationTellsWhoLooksElsewhereAndGoesWhenTheUserIsBack()
    {
        FakeDesktop fake;
        QWidget window;
        Desktop desktop(&window);
        desktop.notify(QStringLiteral("Question"), QStringLiteral("a < b & c"));
        EVENTUALLY_COMPARE(fake.notifications.size(), 1);
        FakeDesktop::Notification const first = fake.notifications.first();
        QCOMPARE(first.summary, QStringLiteral("Question"));
        QCOMPARE(first.body, QStringLiteral("a < b & c"));
        QCOMPARE(first.replaced, 0U);
        QCOMPARE(
            first.hints.value(QStringLiteral("desktop-entry")).toString(), QStringLiteral("org.example.vem"));
        // Its answer has to be here before the next one can take its place.
        QTest::qWait(100);
        desktop.notify(QStringLiteral("Done"), QString());
        EVENTUALLY_COMPARE(fake.notifications.size(), 2);
        QCOMPARE(fake.notifications.last().replaced, 7U);
        QTest::qWait(100);

        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        EVENTUALLY_COMPARE(fake.closed, QList<uint>{7});
        desktop.notify(QStringLiteral("Seen"), QString());
        QTest::qWait(100);
        QCOMPARE(fake.notifications.size(), 2);
    }

    void clickBringsTheWindowForward()
    {
        FakeDesktop fake;
        QWidget window;
        Desktop desktop(&window);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        window.showMinimized();
        EVENTUALLY_VERIFY(QGuiApplication::applicationState() != Qt::ApplicationActive);
        desktop.notify(QStringLiteral("Done"), QString());
        EVENTUALLY_COMPARE(fake.notifications.size(), 1);
        QTest::qWait(100);
        // Somebody else's.
        fake.click(99, QStringLiteral("theirs"));
        QTest::qWait(100);
        QVERIFY(window.isMinimized());
        fake.click(7, QStringLiteral("ours"));
        EVENTUALLY_VERIFY(!window.isMinimized() && window.isActiveWindow());
    }

    void withoutABusNothingHappens()
    {
        QByteArray const address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
        QByteArray const runtime = qgetenv("XDG_RUNTIME_DIR");
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        // A bus that somebody starts makes a folder there.
        QTemporaryDir const nobodys;
        QVERIFY(nobodys.isValid());
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(nobodys.path()));
        QTest::failOnWarning(QRegularExpression(QStringLiteral(".")));
        QWidget window;
        Desktop desktop(&window);
        desktop.showProgress(1, 0, 2);
        desktop.notify(QStringLiteral("Done"), QString());
        desktop.clearProgress();
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        qputenv("XDG_RUNTIME_DIR", runtime);
    }
};

QTEST_MAIN(DesktopTest)
#include "tst_desktop.moc"
