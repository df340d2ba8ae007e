// SPDX-License-Identifier: GPL-2.0-or-later
// What an apply shows outside the main window: the log, the task bar, a notification.
#include "FakeDesktop.h"
#include "ShellTest.h"
#include "services/LogWindow.h"
#include "tests/Eventually.h"

#include <QAction>
#include <QApplication>
#include <QScreen>

class MainWindowApplyTest : public ShellTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        fake = std::make_unique<FakeDesktop>();
        makeWindow();
        QVERIFY(openWindow());
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
    }

    void cleanupTestCase()
    {
        delete window;
        fake.reset();
    }

    void startIsShownInTheTaskBar()
    {
        EVENTUALLY_VERIFY(
            !fake->progress.isEmpty() && fake->progress.last().endsWith(QLatin1String(" none")));
        QVERIFY(fake->progress.size() > 2);
    }

    void whoIsThereIsNotNotified()
    {
        fake->progress.clear();
        applyOne();
        QTest::qWait(100);
        QCOMPARE(fake->notifications.size(), 0);
        QVERIFY(fake->progress.size() > 2);
        QVERIFY(fake->progress.last().endsWith(QLatin1String(" none")));
        QVERIFY(!log());
    }

    void logOpensBesideWithoutTakingTheKeyboardWhereThatIsWanted()
    {
        QRect const screen = window->screen()->availableGeometry();
        window->move(screen.topLeft());
        EVENTUALLY_VERIFY(window->frameGeometry().left() < screen.left() + 100);
        QAction* const wanted = action(QStringLiteral("Open Log With Each Apply"));
        QVERIFY(wanted && !wanted->isChecked());
        wanted->trigger();
        bool hadKeyboard = true;
        boxes->whileShown([&] {
            QVERIFY(log() && log()->isVisible());
            hadKeyboard = log()->isActiveWindow();
        });
        applyOne();
        QVERIFY(!hadKeyboard);
        QVERIFY(!log()->frameGeometry().intersects(QRect(window->pos(), window->size())));
        QVERIFY(screen.contains(log()->geometry()));
        // Asked for by the user it is to be read at once.
        log()->hide();
        window->displayLog();
        QVERIFY(QTest::qWaitForWindowActive(log()));
        log()->hide();
        wanted->trigger();
        applyOne();
        QVERIFY(!log()->isVisible());
    }

    void whoIsAwayIsNotifiedOfTheQuestion()
    {
        window->showMinimized();
        EVENTUALLY_VERIFY(QGuiApplication::applicationState() != Qt::ApplicationActive);
        applyOne();
        EVENTUALLY_VERIFY(!fake->notifications.isEmpty());
        QCOMPARE(fake->notifications.first().body, QStringLiteral("An answer is waited for."));
        QVERIFY(!fake->notifications.first().summary.isEmpty());
    }

private:
    static Log::Window* log()
    {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (auto* const found = qobject_cast<Log::Window*>(widget)) {
                return found;
            }
        }
        return nullptr;
    }

    void applyOne()
    {
        clickAction(QStringLiteral("alder"));
        window->apply();
        QVERIFY(!boxes->take().isEmpty());
    }

    std::unique_ptr<FakeDesktop> fake;
};

QTEST_MAIN(MainWindowApplyTest)
#include "tst_mainwindowapply.moc"
