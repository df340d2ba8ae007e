// SPDX-License-Identifier: GPL-2.0-or-later
// A search that takes its time: packages that answer slowly.
#include "ShellTest.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>

class MainWindowSearchTest : public ShellTest
{
    Q_OBJECT

    QComboBox* mode() const { return window->findChildren<QComboBox*>().at(0); }
    QLineEdit* expression() const { return window->findChild<QLineEdit*>(); }

    void search(QString const& text)
    {
        expression()->setText(text);
        QTest::keyClick(expression(), Qt::Key_Return);
    }

private Q_SLOTS:
    void initTestCase()
    {
        makeWindow();
        QVERIFY(openWindow());
        mode()->setCurrentIndex(1);
        window->findChildren<QComboBox*>().at(1)->setCurrentIndex(3); // all states
        QCOMPARE(
            script(QStringLiteral("import time\n"
                                  "kind = type(next(iter(standin.world.updates)))\n"
                                  "original = kind.returnSimple\n"
                                  "asked = []\n"
                                  "delay = 0.004\n"
                                  "def slowly(self, key):\n"
                                  "    asked.append(key)\n"
                                  "    time.sleep(delay)\n"
                                  "    return original(self, key)\n"
                                  "kind.returnSimple = slowly\n")),
            QString());
        window->refresh();
    }

    // A new collection: what a search has read it keeps.
    void init()
    {
        search(QStringLiteral(".*"));
        window->refresh();
        script(QStringLiteral("asked.clear()"));
    }

    void cleanupTestCase() { delete window; }

    void theWindowIsBusyAndServesEventsWhileItSearches()
    {
        int ticks = 0;
        QStringList faults;
        QTimer timer;
        auto const searching = [] { return value(QStringLiteral("len(asked)")).toInt() > 0; };
        connect(table()->model(), &QAbstractItemModel::modelAboutToBeReset, &timer, [&] {
            if (searching()) {
                timer.stop();
            }
        });
        connect(&timer, &QTimer::timeout, this, [&] {
            if (!searching()) {
                return;
            }
            ++ticks;
            if (table()->isEnabled() || action(QStringLiteral("Quit"))->isEnabled()) {
                faults.append(QStringLiteral("controls are enabled"));
            }
            if (!QApplication::overrideCursor() ||
                QApplication::overrideCursor()->shape() != Qt::BusyCursor) {
                faults.append(QStringLiteral("the cursor isn't busy"));
            }
            if (!action(QStringLiteral("Log"))->isEnabled()) {
                faults.append(QStringLiteral("the log can't be opened"));
            }
            if (names().isEmpty()) {
                faults.append(QStringLiteral("the table is empty before the search is done"));
            }
        });
        timer.start(0);
        search(QStringLiteral("matches nothing"));
        timer.stop();
        QCOMPARE(faults, QStringList());
        QVERIFY2(ticks >= 3, qPrintable(QString::number(ticks)));
        QCOMPARE(names(), QStringList());
        QVERIFY(table()->isEnabled());
        QVERIFY(!QApplication::overrideCursor());
    }

    void aKeyPressedMeanwhileStartsNothing()
    {
        bool pressed = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (!pressed && value(QStringLiteral("len(asked)")).toInt() > 0) {
                pressed = true;
                expression()->setText(QStringLiteral("elm"));
                QTest::keyClick(expression(), Qt::Key_Return);
            }
        });
        timer.start(0);
        search(QStringLiteral("matches nothing either"));
        timer.stop();
        QVERIFY(pressed);
        QCoreApplication::processEvents();
        QCOMPARE(names(), QStringList());
    }

    void escapeStopsItAndWhatItHasFoundIsShown()
    {
        QStringList const all = names();
        script(QStringLiteral("delay = 0.02"));
        QPushButton* const stop = button(QStringLiteral("Stop"));
        bool pressed = false;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] {
            if (!pressed && !names().isEmpty() && names().size() < all.size()) {
                pressed = true;
                QVERIFY(stop->isEnabled());
                QTest::keyClick(window, Qt::Key_Escape);
            }
        });
        timer.start(0);
        search(QStringLiteral("[a-z]"));
        timer.stop();
        script(QStringLiteral("delay = 0.004"));
        QVERIFY(pressed);
        QVERIFY(!stop->isEnabled());
        QVERIFY(table()->isEnabled());
        QVERIFY(!names().isEmpty() && names().size() < all.size());
        QString const told =
            QStringLiteral("The search was stopped: only what it had found by then is shown");
        auto const isTold = [&] {
            QList<QLabel*> const labels = window->findChildren<QLabel*>();
            return std::ranges::any_of(labels, [&](QLabel* label) { return label->text() == told; });
        };
        QVERIFY(isTold());
        // Given again, it goes on with the rest.
        search(QStringLiteral("[a-z]"));
        QCOMPARE(names(), all);
        QVERIFY(!isTold());
    }

    // As the window manager closes it.
    void closingTheWindowMeanwhileEndsTheProgram()
    {
        QTimer watch;
        connect(&watch, &QTimer::timeout, this, [this, &watch] {
            if (value(QStringLiteral("len(asked)")).toInt() > 0) {
                watch.stop();
                window->close();
            }
        });
        watch.start(0);
        QTimer::singleShot(0, this, [this] { search(QStringLiteral("no such thing")); });
        QApplication::exec();
        QVERIFY(!window->isVisible());
        QVERIFY2(table()->isEnabled(), "the slot that began the search has come to its end");
        QCOMPARE(names(), QStringList());
    }
};

QTEST_MAIN(MainWindowSearchTest)
#include "tst_mainwindowsearch.moc"
