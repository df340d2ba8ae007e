// SPDX-License-Identifier: GPL-2.0-or-later
// The log window as a window: what it looks like, when it shows, how it is closed.
#include "LogWindowTest.h"
#include "Worker.h"

#include <QLabel>
#include <QPushButton>

class TestLogWindow final : public LogWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void lookOfTheWindow();
    void controlsHaveAccessibleNames();
    void focusStartsInTheTextAndGoesOnFromThere();
    void shownWindowHoldsTheWholeLog();
    void shownWindowFollowsTheLog();
    void shownWindowFollowsWorkers();
    void hiddenWindowHoldsNothingAndIsNotConnected();
    void showingAgainRendersEverythingAtTheChosenLevel();
    void lineFiledWhileTheWindowComesUpIsNotForgotten();
    void everyWayToCloseHides_data();
    void everyWayToCloseHides();
    void escapeDoesNotReachTheOwner();
    void otherKeysAreLeftToOthers();
};

void TestLogWindow::lookOfTheWindow()
{
    QCOMPARE(window->windowTitle(), QStringLiteral("VEM Log"));
    QVERIFY(window->isWindow());
    QVERIFY(!window->parentWidget());
    QVERIFY(textEdit->isReadOnly());
    QVERIFY(textEdit->tabChangesFocus());
    QCOMPARE(textEdit->lineWrapMode(), QTextEdit::NoWrap);
    QCOMPARE(textEdit->wordWrapMode(), QTextOption::NoWrap);
    QCOMPARE(levelBox->minimum(), 0);
    QCOMPARE(levelBox->maximum(), 10);
    QCOMPARE(levelBox->value(), 2);
    QCOMPARE(
        levelBox->toolTip(), QStringLiteral("Threshold beyond which more detailed log messages are omitted.\n"
                                            "Higher levels show more detail.\n"
                                            "The valid range is 0 .. 10.\n"
                                            "The default is 2.\n"
                                            "Higher levels contain debug information.\n"
                                            "This corresponds to yum's debuglevel (-d) option."));
    auto const* const close = window->findChild<QPushButton*>();
    QCOMPARE(close->text(), QStringLiteral("&Close"));
    QCOMPARE(close->toolTip(), QStringLiteral("Close the Log Window"));
}

void TestLogWindow::controlsHaveAccessibleNames()
{
    QCOMPARE(textEdit->accessibleName(), QStringLiteral("Log"));
    QCOMPARE(levelBox->accessibleName(), QStringLiteral("Detail level"));
    auto const* const label = window->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(label->text(), QStringLiteral("Detail level"));
    QCOMPARE(label->buddy(), levelBox);
}

void TestLogWindow::focusStartsInTheTextAndGoesOnFromThere()
{
    QList<QWidget const*> order;
    for (QWidget const* next = window->nextInFocusChain(); next != window.get();
         next = next->nextInFocusChain()) {
        if (next->focusPolicy() & Qt::TabFocus && !next->focusProxy()) {
            order.append(next);
        }
    }
    QCOMPARE(order, QList<QWidget const*>({textEdit, levelBox, window->findChild<QPushButton*>()}));
}

void TestLogWindow::shownWindowHoldsTheWholeLog()
{
    log.add(Log::Info, 0, QStringLiteral("one\ntwo"));
    window->show();
    QCOMPARE(lines(), QStringList({"one", "two"}));
}

void TestLogWindow::shownWindowFollowsTheLog()
{
    window->show();
    log.add(Log::Info, 0, QStringLiteral("one"));
    QCOMPARE(lines(), QStringList({"one"}));
    log.add(Log::Error, 0, QStringLiteral("two"));
    QCOMPARE(lines(), QStringList({"one", "two"}));
}

void TestLogWindow::shownWindowFollowsWorkers()
{
    window->show();
    runOnWorker([this] {
        log.add(Log::Info, 0, QStringLiteral("one"));
        log.add(Log::Info, 0, QStringLiteral("two"));
    });
    QCOMPARE(lines(), QStringList({"one", "two"}));
}

void TestLogWindow::hiddenWindowHoldsNothingAndIsNotConnected()
{
    window->show();
    log.add(Log::Info, 0, QStringLiteral("one"));
    window->hide();
    QVERIFY(lines().isEmpty());
    log.add(Log::Info, 0, QStringLiteral("two"));
    QVERIFY(lines().isEmpty());
}

void TestLogWindow::showingAgainRendersEverythingAtTheChosenLevel()
{
    window->show();
    levelBox->setValue(4);
    window->hide();
    log.add(Log::Info, 4, QStringLiteral("at level 4"));
    log.add(Log::Info, 5, QStringLiteral("at level 5"));
    log.add(Log::Info, 0, QStringLiteral("at level 0"));
    window->show();
    QCOMPARE(lines(), QStringList({"at level 4", "at level 0"}));
    log.add(Log::Info, 0, QStringLiteral("later"));
    QCOMPARE(lines(), QStringList({"at level 4", "at level 0", "later"}));
}

/// A round of events runs between the first rendering and the connection; a line may come in it.
void TestLogWindow::lineFiledWhileTheWindowComesUpIsNotForgotten()
{
    log.add(Log::Info, 0, QStringLiteral("one"));
    QMetaObject::invokeMethod(
        this, [this] { log.add(Log::Info, 0, QStringLiteral("two")); }, Qt::QueuedConnection);
    window->show();
    QCOMPARE(lines(), QStringList({"one", "two"}));
}

void TestLogWindow::everyWayToCloseHides_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("button") << QStringLiteral("button");
    QTest::newRow("window manager") << QStringLiteral("window manager");
    QTest::newRow("Escape in the text") << QStringLiteral("Escape in the text");
    QTest::newRow("Escape in the level box") << QStringLiteral("Escape in the level box");
}

void TestLogWindow::everyWayToCloseHides()
{
    QFETCH(QString, way);
    log.add(Log::Info, 0, QStringLiteral("one"));
    window->show();
    if (way == QStringLiteral("button")) {
        QTest::mouseClick(window->findChild<QPushButton*>(), Qt::LeftButton);
    } else if (way == QStringLiteral("Escape in the text")) {
        QTest::keyClick(textEdit, Qt::Key_Escape);
    } else if (way == QStringLiteral("Escape in the level box")) {
        QTest::keyClick(levelBox, Qt::Key_Escape);
    } else {
        window->close();
    }
    QVERIFY(window->isHidden());
    QVERIFY(lines().isEmpty());
    window->show();
    QCOMPARE(lines(), QStringList({"one"}));
}

void TestLogWindow::escapeDoesNotReachTheOwner()
{
    window->show();
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    escape.ignore();
    QCoreApplication::sendEvent(window.get(), &escape);
    QVERIFY(escape.isAccepted());
    QVERIFY(window->isHidden());
}

void TestLogWindow::otherKeysAreLeftToOthers()
{
    window->show();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_F5, Qt::NoModifier);
    QCoreApplication::sendEvent(window.get(), &key);
    QVERIFY(!key.isAccepted());
    QVERIFY(window->isVisible());
}

QTEST_MAIN(TestLogWindow)
#include "tst_logwindow.moc"
