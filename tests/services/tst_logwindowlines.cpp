// SPDX-License-Identifier: GPL-2.0-or-later
// How the lines of the log look.
#include "LogWindowTest.h"
#include "services/LogLineWriter.h"
#include "tests/Eventually.h"
#include "tests/widgets/Contrast.h"
#include "widgets/Colors.h"
#include "widgets/HTextEdit.h"

class TestLogWindowLines final : public LogWindowTest
{
    Q_OBJECT

private Q_SLOTS:
    void detailLevelFilters();
    void kindsHaveTheirMarkUp_data();
    void kindsHaveTheirMarkUp();
    void coloursFollowThePalette();
    void lineAfterAHeadingIsNoHeading();
    void spacingAndTagsShowAsTyped();
    void htmlProtectLeavesTheAmpersand();
    void linesStandWithoutSpaceBetweenThem();
    void linesLookAsTheirMarkUpTells_data();
    void linesLookAsTheirMarkUpTells();
    void everyCharacterReadsAsInMarkUp();
};

void TestLogWindowLines::detailLevelFilters()
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

void TestLogWindowLines::kindsHaveTheirMarkUp_data()
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

void TestLogWindowLines::kindsHaveTheirMarkUp()
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

void TestLogWindowLines::coloursFollowThePalette()
{
    for (Log::Kind const kind : {Log::Output, Log::Warning, Log::Error, Log::Action}) {
        log.add(kind, 0, QStringLiteral("a line"));
    }
    window->show();
    QPalette const light = QApplication::palette();
    QPalette const dark = Contrast::darkPalette();
    QApplication::setPalette(dark);
    EVENTUALLY_COMPARE(textEdit->palette().color(QPalette::Base), dark.color(QPalette::Base));
    EVENTUALLY_COMPARE(lines().size(), 4);
    for (int line = 0; line < 4; ++line) {
        QColor const colour = formatOfLine(line).foreground().color();
        QVERIFY2(
            Contrast::ratio(colour, dark.color(QPalette::Base)) >= Contrast::legible,
            qPrintable(colour.name()));
    }
    QApplication::setPalette(light);
    EVENTUALLY_COMPARE(formatOfLine(2).foreground().color(), QColor(Colors::error()));
    QCOMPARE(lines().size(), 4);
}

void TestLogWindowLines::lineAfterAHeadingIsNoHeading()
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

void TestLogWindowLines::spacingAndTagsShowAsTyped()
{
    log.add(Log::Info, 0, QStringLiteral("  two  blanks\tand <b>a tag</b> 5 > 4 %1"));
    window->show();
    QCOMPARE(lines(), QStringList({"  two  blanks\tand <b>a tag</b> 5 > 4 %1"}));
    QVERIFY(formatOfLine(0).fontWeight() <= QFont::Normal);
}

void TestLogWindowLines::htmlProtectLeavesTheAmpersand()
{
    QString text = QStringLiteral("<a b>\t&amp;");
    Log::Window::htmlProtect(text);
    QCOMPARE(text, QStringLiteral("&lt;a&#x0020;b&gt;&#x0009;&amp;"));
}

void TestLogWindowLines::linesStandWithoutSpaceBetweenThem()
{
    log.add(Log::Action, 0, QStringLiteral("heading"));
    log.add(Log::Info, 0, QStringLiteral("line"));
    window->show();
    for (QTextBlock block = textEdit->document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat().topMargin(), 0.0);
        QCOMPARE(block.blockFormat().bottomMargin(), 0.0);
    }
}

void TestLogWindowLines::linesLookAsTheirMarkUpTells_data()
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
void TestLogWindowLines::linesLookAsTheirMarkUpTells()
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

    EVENTUALLY_COMPARE(textEdit->document()->blockCount(), plain.document()->blockCount());
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

void TestLogWindowLines::everyCharacterReadsAsInMarkUp()
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
        // Half a pair is no character, and none comes out of a text that was decoded.
        if (unit != U'\n' && !QChar::isSurrogate(unit)) {
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

QTEST_MAIN(TestLogWindowLines)
#include "tst_logwindowlines.moc"
