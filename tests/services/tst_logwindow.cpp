// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/Log.h"
#include "services/LogWindow.h"
#include "widgets/Colors.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <memory>

class TestLogWindow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { application = qobject_cast<QApplication*>(QCoreApplication::instance()); }
    void init();
    void cleanup() { window.reset(); }

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

    void detailLevelFilters();
    void kindsHaveTheirMarkUp_data();
    void kindsHaveTheirMarkUp();
    void lineAfterAHeadingIsNoHeading();
    void spacingAndTagsShowAsTyped();
    void htmlProtectLeavesTheAmpersand();
    void linesStandWithoutSpaceBetweenThem();

    void showsTheEndFirst();
    void staysWhereTheUserHasScrolled();
    void newLinesArePaintedWhileTheGuiThreadIsBusy();
    void floodFromAWorkerArrivesCompletely();
    void manyLinesAreQuick();

private:
    [[nodiscard]] QStringList lines() const
    {
        QString const text = textEdit->toPlainText().replace(QChar::Nbsp, u' ');
        return text.isEmpty() ? QStringList() : text.split(u'\n');
    }
    [[nodiscard]] QTextCharFormat formatOfLine(int line) const;

    Log::EntryList log;
    QWidget owner;
    std::unique_ptr<Log::Window> window;
    QTextEdit* textEdit = nullptr;
    QSpinBox* levelBox = nullptr;
};

void TestLogWindow::init()
{
    log.clear();
    window = std::make_unique<Log::Window>(log, &owner);
    textEdit = window->findChild<QTextEdit*>();
    levelBox = window->findChild<QSpinBox*>();
    QVERIFY(textEdit);
    QVERIFY(levelBox);
}

QTextCharFormat TestLogWindow::formatOfLine(int line) const
{
    QTextBlock const block = textEdit->document()->findBlockByNumber(line);
    return block.begin().fragment().charFormat();
}

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

void TestLogWindow::detailLevelFilters()
{
    log.add(Log::Info, 0, QStringLiteral("at 0"));
    log.add(Log::Info, 3, QStringLiteral("at 3"));
    log.add(Log::Info, 2, QStringLiteral("at 2"));
    window->show();
    QCOMPARE(lines(), QStringList({"at 0", "at 2"}));
    levelBox->setValue(3);
    QCOMPARE(lines(), QStringList({"at 0", "at 3", "at 2"}));
    levelBox->setValue(0);
    QCOMPARE(lines(), QStringList({"at 0"}));
    log.add(Log::Info, 1, QStringLiteral("at 1"));
    QCOMPARE(lines(), QStringList({"at 0"}));
    levelBox->setValue(1);
    QCOMPARE(lines(), QStringList({"at 0", "at 1"}));
}

void TestLogWindow::kindsHaveTheirMarkUp_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<unsigned>("level");
    QTest::addColumn<QString>("colour");
    QTest::addColumn<bool>("heading");
    QTest::newRow("info") << int(Log::Info) << 0U << QString() << false;
    QTest::newRow("info at 9") << int(Log::Info) << 9U << QString() << false;
    QTest::newRow("info at 10") << int(Log::Info) << 10U << Colors::minor() << false;
    QTest::newRow("output") << int(Log::Output) << 0U << Colors::ok() << false;
    QTest::newRow("warning") << int(Log::Warning) << 0U << Colors::warning() << false;
    QTest::newRow("error") << int(Log::Error) << 0U << Colors::error() << false;
    QTest::newRow("action") << int(Log::Action) << 0U << Colors::action() << true;
    QTest::newRow("any other") << 17 << 0U << Colors::error() << false;
}

void TestLogWindow::kindsHaveTheirMarkUp()
{
    QFETCH(int, kind);
    QFETCH(unsigned, level);
    QFETCH(QString, colour);
    QFETCH(bool, heading);
    levelBox->setValue(10);
    log.add(static_cast<Log::Kind>(kind), level, QStringLiteral("a line"));
    window->show();
    QCOMPARE(lines(), QStringList({"a line"}));
    QTextCharFormat const format = formatOfLine(0);
    QCOMPARE(format.hasProperty(QTextFormat::ForegroundBrush), !colour.isEmpty());
    if (!colour.isEmpty()) {
        QCOMPARE(format.foreground().color(), QColor(colour));
    }
    QCOMPARE(textEdit->document()->firstBlock().blockFormat().headingLevel(), heading ? 2 : 0);
}

void TestLogWindow::lineAfterAHeadingIsNoHeading()
{
    log.add(Log::Action, 0, QStringLiteral("Initialization"));
    log.add(Log::Info, 0, QStringLiteral("plain"));
    window->show();
    log.add(Log::Info, 0, QStringLiteral("plain again"));
    for (int const line : {1, 2}) {
        QTextCharFormat const format = formatOfLine(line);
        QVERIFY(!format.hasProperty(QTextFormat::ForegroundBrush));
        QVERIFY(format.fontWeight() <= QFont::Normal);
        QVERIFY(!format.hasProperty(QTextFormat::FontSizeAdjustment));
    }
}

void TestLogWindow::spacingAndTagsShowAsTyped()
{
    log.add(Log::Info, 0, QStringLiteral("  two  blanks\tand <b>a tag</b> 5 > 4 %1"));
    window->show();
    QCOMPARE(lines(), QStringList({"  two  blanks\tand <b>a tag</b> 5 > 4 %1"}));
    QVERIFY(formatOfLine(0).fontWeight() <= QFont::Normal);
}

void TestLogWindow::htmlProtectLeavesTheAmpersand()
{
    QString text = QStringLiteral("<a b>\t&amp;");
    Log::Window::htmlProtect(text);
    QCOMPARE(text, QStringLiteral("&lt;a&#x0020;b&gt;&#x0009;&amp;"));
}

void TestLogWindow::linesStandWithoutSpaceBetweenThem()
{
    log.add(Log::Action, 0, QStringLiteral("heading"));
    log.add(Log::Info, 0, QStringLiteral("line"));
    window->show();
    for (QTextBlock block = textEdit->document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat().topMargin(), 0.0);
        QCOMPARE(block.blockFormat().bottomMargin(), 0.0);
    }
}

void TestLogWindow::showsTheEndFirst()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(50));
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindow::staysWhereTheUserHasScrolled()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QScrollBar* const bar = textEdit->verticalScrollBar();
    bar->setValue(10);
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(50));
    QCOMPARE(bar->value(), 10);
}

void TestLogWindow::newLinesArePaintedWhileTheGuiThreadIsBusy()
{
    window->show();
    bool served = false;
    QMetaObject::invokeMethod(
        this, [&served] { served = true; }, Qt::QueuedConnection);
    log.emitAppended();
    QVERIFY(!served);
    log.add(Log::Info, 0, QStringLiteral("new"));
    QVERIFY(served);
}

void TestLogWindow::floodFromAWorkerArrivesCompletely()
{
    constexpr int count = 3000;
    window->show();
    runOnWorker([this] {
        for (int line = 0; line < count; ++line) {
            log.add(Log::Output, 0, QString::number(line));
        }
    });
    QStringList const shown = lines();
    QCOMPARE(shown.size(), count);
    for (int line = 0; line < count; ++line) {
        QCOMPARE(shown.at(line), QString::number(line));
    }
}

void TestLogWindow::manyLinesAreQuick()
{
    for (int line = 0; line < 20'000; ++line) {
        log.add(Log::Info, 0, QStringLiteral("Processing a dependency of some package, line %1").arg(line));
    }
    QElapsedTimer timer;
    timer.start();
    window->show();
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(textEdit->document()->blockCount(), 20'000);
}

QTEST_MAIN(TestLogWindow)
#include "tst_logwindow.moc"
