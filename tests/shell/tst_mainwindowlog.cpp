// SPDX-License-Identifier: GPL-2.0-or-later
// The log from the start, and as the last window that is left. VEM_TEST_WAY tells how it is closed then.
#include "ShellTest.h"
#include "bridge/Python.h"
#include "services/LogWindow.h"

#include <QApplication>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

class MainWindowLogTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        window->logFlag = true;
        qApp->installEventFilter(this);
        QVERIFY(openWindow());
        qApp->removeEventFilter(this);
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const found = qobject_cast<Log::Window*>(widget)) {
                log = found;
            }
        }
        QVERIFY(log);
    }

    // Whoever asks for the log wants to see what the start says.
    void logShowsBeforeTheEngineBegins()
    {
        QVERIFY(log->isVisible());
        QVERIFY(!startedBeforeTheLogShowed);
    }

    void mainWindowStaysWhenTheLogIsClosed()
    {
        QSignalSpy const lastClosed(qApp, &QGuiApplication::lastWindowClosed);
        closeLog();
        QVERIFY(!log->isVisible());
        QCoreApplication::processEvents();
        QCOMPARE(lastClosed.count(), 0);
        QVERIFY(window->isVisible());
        window->displayLog();
        QVERIFY(log->isVisible());
    }

    // Nobody could see the process after that, and it would keep the lock.
    void programEndsWithTheLogWhenThatIsItsLastWindow()
    {
        bool logOutlivedTheMainWindow = false;
        QTimer::singleShot(0, this, [&] {
            window->close();
            // Behind whatever the closing has brought about.
            QTimer::singleShot(0, this, [&] {
                logOutlivedTheMainWindow = log->isVisible();
                way == QLatin1String("quit") ? window->quit() : closeLog();
            });
        });
        QTimer::singleShot(20000, qApp, [] { QCoreApplication::exit(1); });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(logOutlivedTheMainWindow);
        delete window;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<Log::Window*>(watched)) {
            startedBeforeTheLogShowed = Python::initialized;
        }
        return ShellTest::eventFilter(watched, event);
    }

private:
    void closeLog() const
    {
        if (way == QLatin1String("button")) {
            log->findChild<QPushButton*>()->click();
        } else if (way == QLatin1String("window manager")) {
            log->close();
        } else {
            QTest::keyClick(log, Qt::Key_Escape);
        }
    }

    QString const way = qEnvironmentVariable("VEM_TEST_WAY");
    Log::Window* log = nullptr;
    bool startedBeforeTheLogShowed = true;
};

QTEST_MAIN(MainWindowLogTest)
#include "tst_mainwindowlog.moc"
