// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/Log.h"
#include "services/LogLineWriter.h"
#include "services/LogWindow.h"
#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QThread>
#include <QTimer>
#include <memory>
#include <utility>

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
    void coloursFollowThePalette();
    void lineAfterAHeadingIsNoHeading();
    void spacingAndTagsShowAsTyped();
    void htmlProtectLeavesTheAmpersand();
    void linesStandWithoutSpaceBetweenThem();

    void showsTheEndFirst();
    void staysWhereTheUserHasScrolled();
    void newLinesArePaintedWhileTheGuiThreadIsBusy();
    void floodFromAWorkerArrivesCompletely();
    void everyNewLineKeepsTheEndInSight();
    void signalsOnTheirWayDontFillAHiddenWindow();

    void longLogIsRenderedInShares();
    void longLogIsRenderedAnewInShares();
    void floodLeavesTheEventLoopItsTurns();
    void hidingAndDeletingInTheMiddleIsSafe();

    void linesLookAsTheirMarkUpTells_data();
    void linesLookAsTheirMarkUpTells();
    void everyCharacterReadsAsInMarkUp();

private:
    [[nodiscard]] QStringList lines() const
    {
        QString const text = textEdit->toPlainText().replace(QChar::Nbsp, u' ');
        return text.isEmpty() ? QStringList() : text.split(u'\n');
    }
    [[nodiscard]] QTextCharFormat formatOfLine(int line) const;
    void fillLog(int count);
    [[nodiscard]] int turnsUntilComplete(int count);

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

void TestLogWindow::coloursFollowThePalette()
{
    for (Log::Kind const kind : {Log::Output, Log::Warning, Log::Error, Log::Action}) {
        log.add(kind, 0, QStringLiteral("a line"));
    }
    window->show();
    QPalette const light = QApplication::palette();
    QPalette const dark = Contrast::darkPalette();
    QApplication::setPalette(dark);
    QTRY_COMPARE(textEdit->palette().color(QPalette::Base), dark.color(QPalette::Base));
    QTRY_COMPARE(lines().size(), 4);
    for (int line = 0; line < 4; ++line) {
        QColor const colour = formatOfLine(line).foreground().color();
        QVERIFY2(
            Contrast::ratio(colour, dark.color(QPalette::Base)) >= Contrast::legible,
            qPrintable(colour.name()));
    }
    QApplication::setPalette(light);
    QTRY_COMPARE(formatOfLine(2).foreground().color(), QColor(Colors::error()));
    QCOMPARE(lines().size(), 4);
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
    QTRY_COMPARE(textEdit->document()->blockCount(), count);
    QStringList const shown = lines();
    QCOMPARE(shown.size(), count);
    for (int line = 0; line < count; ++line) {
        QCOMPARE(shown.at(line), QString::number(line));
    }
}

void TestLogWindow::everyNewLineKeepsTheEndInSight()
{
    log.add(Log::Info, 0, QStringLiteral("line\n").repeated(500));
    window->show();
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    int const before = bar->maximum();
    for (int line = 0; line < 50; ++line) {
        log.add(Log::Info, 0, QString::number(line));
    }
    QTRY_VERIFY(bar->maximum() > before + 49 * textEdit->fontMetrics().height());
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindow::signalsOnTheirWayDontFillAHiddenWindow()
{
    window->show();
    std::unique_ptr<QThread> const worker(
        QThread::create([this] { log.add(Log::Info, 0, QStringLiteral("one")); }));
    worker->start();
    worker->wait();
    window->hide();
    QCoreApplication::processEvents();
    QVERIFY(lines().isEmpty());
    window->show();
    QCOMPARE(lines(), QStringList({"one"}));
}

void TestLogWindow::fillLog(int count)
{
    for (int line = 0; line < count; ++line) {
        log.append({line % 50 == 0 ? Log::Action : Log::Info, 0, QStringLiteral("Line %1").arg(line)});
    }
}

/// All lines are there, in order; how many turns the event loop had until then.
int TestLogWindow::turnsUntilComplete(int count)
{
    int turns = 0;
    QTimer heart;
    heart.setInterval(0);
    connect(&heart, &QTimer::timeout, this, [&turns] { ++turns; });
    heart.start();
    QDeadlineTimer const deadline(60'000);
    auto const complete = [this, count] {
        return textEdit->document()->lastBlock().text() == QStringLiteral("Line %1").arg(count - 1);
    };
    while (!complete() && !deadline.hasExpired()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QStringList const shown = lines();
    for (int line = 0; line < shown.size(); ++line) {
        if (shown.at(line) != QStringLiteral("Line %1").arg(line)) {
            return -1;
        }
    }
    return shown.size() == count ? turns : -1;
}

void TestLogWindow::longLogIsRenderedInShares()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(textEdit->document()->blockCount() < count);
    QVERIFY(turnsUntilComplete(count) > 3);
    QScrollBar const* const bar = textEdit->verticalScrollBar();
    QTRY_VERIFY(bar->maximum() > count * textEdit->fontMetrics().height() * 9 / 10);
    QCOMPARE(bar->value(), bar->maximum());
}

void TestLogWindow::longLogIsRenderedAnewInShares()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(turnsUntilComplete(count) >= 0);
    levelBox->setValue(3);
    QVERIFY(textEdit->document()->blockCount() < count);
    QVERIFY(turnsUntilComplete(count) > 3);
    // A change in the middle starts over.
    levelBox->setValue(4);
    levelBox->setValue(5);
    QVERIFY(turnsUntilComplete(count) > 3);
}

void TestLogWindow::floodLeavesTheEventLoopItsTurns()
{
    constexpr int count = 30'000;
    window->show();
    std::unique_ptr<QThread> const worker(QThread::create([this] {
        for (int line = 0; line < count; ++line) {
            log.add(Log::Output, 0, QStringLiteral("Line %1").arg(line));
        }
    }));
    worker->start();
    // All signals are delivered in one turn; what they call for must not be done in that turn.
    worker->wait();
    int const turns = turnsUntilComplete(count);
    QVERIFY2(turns > 3, qPrintable(QString::number(turns)));
}

void TestLogWindow::hidingAndDeletingInTheMiddleIsSafe()
{
    constexpr int count = 30'000;
    fillLog(count);
    window->show();
    QVERIFY(textEdit->document()->blockCount() < count);
    window->hide();
    QCoreApplication::processEvents();
    QVERIFY(lines().isEmpty());
    window->show();
    QVERIFY(turnsUntilComplete(count) >= 0);
    levelBox->setValue(3);
    QVERIFY(textEdit->document()->blockCount() < count);
    window.reset();
    QCoreApplication::processEvents();
}

void TestLogWindow::linesLookAsTheirMarkUpTells_data()
{
    QTest::addColumn<Log::Kind>("first");
    QTest::addColumn<QString>("cursor");
    for (Log::Kind const first : {Log::Info, Log::Output, Log::Action}) {
        for (QString const& cursor :
             {QStringLiteral("end"), QStringLiteral("start"), QStringLiteral("middle"),
              QStringLiteral("selection")}) {
            QTest::addRow("after kind %d, cursor at %s", int(first), qPrintable(cursor)) << first << cursor;
        }
    }
}

/// The plain rule is HTextEdit::appendCompact() with the mark-up of each line. It is held against the
/// window by the documents' HTML, which tells all formats, and by what each line's fragments hold.
void TestLogWindow::linesLookAsTheirMarkUpTells()
{
    QFETCH(Log::Kind, first);
    QFETCH(QString, cursor);
    QList<Log::Entry> all{{first, 0, QStringLiteral("first")}};
    QStringList const texts{
        QStringLiteral("plain"),
        QString(),
        QStringLiteral("  two  blanks\tand a tab "),
        QStringLiteral(" "),
        QStringLiteral("<b>tag</b>"),
        QStringLiteral("&amp; &lt; &nosuch; a & b"),
        QStringLiteral("\u00e4\u4e2d\u05d0\U0001F600"),
        QStringLiteral("a\rb"),
        QString(5000, u'x')};
    for (QString const& text : texts) {
        for (int const kind : {0, 1, 4, 4, 0, 2, 3, 17, 0, 4, 1}) {
            all.append({static_cast<Log::Kind>(kind), 0, text});
        }
        all.append({Log::Info, 10, text});
    }
    auto const putCursor = [&cursor](QTextEdit& edit) {
        if (cursor == QStringLiteral("end")) {
            return;
        }
        QTextCursor place = edit.textCursor();
        place.setPosition(cursor == QStringLiteral("start") ? 0 : 2);
        if (cursor == QStringLiteral("selection")) {
            place.setPosition(4, QTextCursor::KeepAnchor);
        }
        edit.setTextCursor(place);
    };

    levelBox->setValue(10);
    window->show();
    log.append(all.first());
    log.emitAppended();
    putCursor(*textEdit);
    // As one batch, and once more line by line.
    log.append(all.mid(1));
    log.emitAppended();
    for (Log::Entry const& entry : std::as_const(all)) {
        log.append(entry);
        log.emitAppended();
    }

    HTextEdit plain(100, 24, nullptr);
    plain.setReadOnly(true);
    plain.document()->setDefaultStyleSheet(textEdit->document()->defaultStyleSheet());
    plain.appendCompact(Log::LineWriter::markUp(all.first(), plain.palette()));
    putCursor(plain);
    for (Log::Entry const& entry : all.mid(1) + all) {
        plain.appendCompact(Log::LineWriter::markUp(entry, plain.palette()));
    }

    QTRY_COMPARE(textEdit->document()->blockCount(), plain.document()->blockCount());
    QCOMPARE(textEdit->document()->toRawText(), plain.document()->toRawText());
    QCOMPARE(textEdit->document()->toHtml(), plain.document()->toHtml());
    QTextBlock expected = plain.document()->begin();
    for (QTextBlock block = textEdit->document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat(), expected.blockFormat());
        QCOMPARE(block.charFormat(), expected.charFormat());
        QTextBlock::iterator expectedPart = expected.begin();
        for (QTextBlock::iterator part = block.begin(); !part.atEnd(); ++part, ++expectedPart) {
            QCOMPARE(part.fragment().text(), expectedPart.fragment().text());
            QCOMPARE(part.fragment().charFormat(), expectedPart.fragment().charFormat());
        }
        QVERIFY(expectedPart.atEnd());
        expected = expected.next();
    }
    QCOMPARE(textEdit->textCursor().position(), plain.textCursor().position());
    QCOMPARE(textEdit->textCursor().anchor(), plain.textCursor().anchor());
    QCOMPARE(textEdit->textCursor().charFormat(), plain.textCursor().charFormat());
}

void TestLogWindow::everyCharacterReadsAsInMarkUp()
{
    HTextEdit quick(100, 24, nullptr);
    HTextEdit plain(100, 24, nullptr);
    Log::LineWriter writer(quick);
    for (HTextEdit* const edit : {&quick, &plain}) {
        edit->setUndoRedoEnabled(false);
        edit->document()->setDefaultStyleSheet(textEdit->document()->defaultStyleSheet());
    }
    QList<Log::Entry> all{{Log::Info, 0, QStringLiteral("first")}, {Log::Info, 0, QStringLiteral("second")}};
    for (char32_t unit = 0; unit < 0x10000; unit += unit < 0x3000 || unit >= 0xF000 ? 1 : 0x41) {
        if (unit != U'\n') {
            all.append({Log::Info, 0, u'a' + QString(QChar(static_cast<char16_t>(unit))) + u'b'});
        }
    }
    writer.append(all, 0);
    QTextCursor block(plain.document());
    block.beginEditBlock();
    for (Log::Entry const& entry : std::as_const(all)) {
        plain.appendCompact(Log::LineWriter::markUp(entry, plain.palette()));
    }
    block.endEditBlock();
    QStringList const shown = quick.document()->toRawText().split(QChar::ParagraphSeparator);
    QStringList const expected = plain.document()->toRawText().split(QChar::ParagraphSeparator);
    QCOMPARE(shown.size(), expected.size());
    for (qsizetype line = 0; line < shown.size(); ++line) {
        QCOMPARE(shown.at(line), expected.at(line));
    }
}

QTEST_MAIN(TestLogWindow)
#include "tst_logwindow.moc"
