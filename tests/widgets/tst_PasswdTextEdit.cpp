// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdTextEdit.h"

#include "HeardTexts.h"
#include "PasswdUser.h"

#include <QAccessible>
#include <QClipboard>
#include <QLineEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using PasswdUser::mask;

class tst_PasswdTextEdit : public QObject
{
    Q_OBJECT

    void putCursor(int position)
    {
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(position);
        edit->setTextCursor(cursor);
    }

private Q_SLOTS:
    void init()
    {
        edit = std::make_unique<PasswdTextEdit>(PasswdUser::eachPattern(), nullptr);
        edit->resize(600, 120);
        edit->show();
        QVERIFY(QTest::qWaitForWindowActive(edit.get()));
        edit->setFocus();
    }

    void cleanup() { edit.reset(); }

    void eachAddressIsMaskedByItsLength()
    {
        QString const pattern = QStringLiteral("http://x/?key=%1&a\nhttp://y/\nhttp://z/?key=%2&b\nkey=%3&");
        QString const real = pattern.arg(QStringLiteral("a%20b"), QStringLiteral("c"), QStringLiteral("de"));

        edit->setRealPlainText(real);

        QCOMPARE(edit->toPlainText(), pattern.arg(mask(5), mask(1), mask(2)));
        QCOMPARE(edit->realPlainText(), real);
    }

    void anEmptyPasswordShowsTheTextUnchanged()
    {
        edit->setRealPlainText(QStringLiteral("key=&a\nkey=b&"));

        QCOMPARE(edit->toPlainText(), QStringLiteral("key=&a\nkey=%1&").arg(mask(1)));
    }

    void typedLinesAreMasked()
    {
        QTest::keyClicks(edit.get(), QStringLiteral("key=ab&"));
        QTest::keyClick(edit.get(), Qt::Key_Return);
        QTest::keyClicks(edit.get(), QStringLiteral("key=c&"));

        QCOMPARE(edit->toPlainText(), QStringLiteral("key=%1&\nkey=%2&").arg(mask(2), mask(1)));
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=ab&\nkey=c&"));
    }

    void replacingAPasswordCharacterLooksAlike()
    {
        edit->setRealPlainText(QStringLiteral("one\nkey=abc&"));
        QString const shown = edit->toPlainText();
        putCursor(9);

        QTest::keyClick(edit.get(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(edit.get(), Qt::Key_X);

        QCOMPARE(edit->toPlainText(), shown);
        QCOMPARE(edit->realPlainText(), QStringLiteral("one\nkey=axc&"));
        QCOMPARE(edit->textCursor().position(), 10);
    }

    void aClickIntoAScrolledTextEditsWhatIsSeen()
    {
        QStringList lines;
        for (int at = 0; at < 40; ++at) {
            lines += QStringLiteral("line %1 key=abc&").arg(at);
        }
        QString const real = lines.join(QLatin1Char('\n'));
        edit->setRealPlainText(real);
        edit->verticalScrollBar()->setValue(edit->verticalScrollBar()->maximum() / 2);

        QTest::mouseClick(edit->viewport(), Qt::LeftButton, {}, QPoint(40, 40));
        int const seen = edit->textCursor().position();
        QVERIFY(seen > 200);
        int const scrolled = edit->verticalScrollBar()->value();
        QTest::keyClick(edit.get(), Qt::Key_Z);

        QCOMPARE(edit->realPlainText(), QString(real).insert(seen, QLatin1Char('z')));
        QCOMPARE(edit->verticalScrollBar()->value(), scrolled);
    }

    void clickingTheSelectionAndMovingLeavesTheText()
    {
        edit->setRealPlainText(QStringLiteral("key=abc&"));
        edit->selectAll();

        QTest::mousePress(edit->viewport(), Qt::LeftButton, {}, QPoint(20, 12));
        QTest::mouseMove(edit->viewport(), QPoint(20, 100));
        QTest::mouseRelease(edit->viewport(), Qt::LeftButton, {}, QPoint(20, 100));

        QCOMPARE(edit->realPlainText(), QStringLiteral("key=abc&"));
        QCOMPARE(edit->toPlainText(), QStringLiteral("key=%1&").arg(mask(3)));
    }

    void copyTakesTheRealText()
    {
        edit->setRealPlainText(QStringLiteral("key=abc&\nend"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Copy));

        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("key=abc&\nend"));
    }

    void cutPasteAndUndoKeepTheRealText()
    {
        edit->setRealPlainText(QStringLiteral("key=abc&"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Cut));
        QCOMPARE(edit->realPlainText(), QString());
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=abc&"));

        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Undo));
        QCOMPARE(edit->realPlainText(), QString());
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Redo));
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=abc&"));
        QCOMPARE(edit->toPlainText(), QStringLiteral("key=%1&").arg(mask(3)));
    }

    void pastedMarkupIsPlainText()
    {
        auto* const data = new QMimeData;
        data->setHtml(QStringLiteral("<b>key=abc&amp;</b>"));
        data->setText(QStringLiteral("key=abc&"));
        QApplication::clipboard()->setMimeData(data);
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));

        QCOMPARE(edit->realPlainText(), QStringLiteral("key=abc&"));
        QVERIFY(!edit->textCursor().charFormat().font().bold());
    }

    void textOfAnInputMethodArrives()
    {
        edit->setRealPlainText(QStringLiteral("key=&"));
        putCursor(4);

        PasswdUser::compose(edit.get(), QStringLiteral("\u00e9"));

        QCOMPARE(edit->realPlainText(), QStringLiteral("key=\u00e9&"));
        QCOMPARE(edit->toPlainText(), QStringLiteral("key=%1&").arg(mask(1)));
    }

    void textSetThroughAccessibilityIsReal()
    {
        edit->setRealPlainText(QStringLiteral("http://x/?key=abc&"));
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(edit.get());
        QVERIFY(accessible && accessible->editableTextInterface());

        accessible->editableTextInterface()->replaceText(7, 8, QStringLiteral("host"));

        QCOMPARE(edit->realPlainText(), QStringLiteral("http://host/?key=abc&"));
        QCOMPARE(edit->toPlainText(), QStringLiteral("http://host/?key=%1&").arg(mask(3)));
    }

    void theRealTextSetThroughAccessibilityStaysMasked()
    {
        QString const real = QStringLiteral("http://x/?key=abc&");
        edit->setRealPlainText(real);
        QAccessibleEditableTextInterface* const accessible =
            QAccessible::queryAccessibleInterface(edit.get())->editableTextInterface();
        accessible->replaceText(0, static_cast<int>(real.size()), real);

        QCOMPARE(edit->toPlainText(), QStringLiteral("http://x/?key=%1&").arg(mask(3)));
        QCOMPARE(edit->realPlainText(), real);
    }

    void readersHearWhatIsShown()
    {
        HeardTexts const reader;
        edit->setRealPlainText(QStringLiteral("key=abc&"));
        QCOMPARE(reader.texts, QStringList(QStringLiteral("key=%1&").arg(mask(3))));
        putCursor(8);
        QTest::keyClicks(edit.get(), QStringLiteral("z"));
        QCOMPARE(reader.texts.last(), QStringLiteral("z"));
        putCursor(5);
        QTest::keyClicks(edit.get(), QStringLiteral("z"));
        QCOMPARE(reader.texts.last(), mask(1));

        QCOMPARE(edit->realPlainText(), QStringLiteral("key=azbc&z"));
        QCOMPARE(reader.texts.size(), 3);
        QCOMPARE(reader.tellers, QList<QObject*>{edit.get()});
    }

    void readersNeverHearWhatIsMasked()
    {
        HeardTexts const reader;
        QTest::keyClicks(edit.get(), QStringLiteral("key=&"));
        putCursor(4);
        QApplication::clipboard()->setText(QStringLiteral("secret"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        PasswdUser::compose(edit.get(), QStringLiteral("composed"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Undo));
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=secret&"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Cut));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=secret&"));

        QVERIFY2(!reader.contain(QStringLiteral("secret")), qPrintable(reader.texts.join(u'\n')));
        QVERIFY2(!reader.contain(QStringLiteral("composed")), qPrintable(reader.texts.join(u'\n')));
        QCOMPARE(reader.tellers, QList<QObject*>{edit.get()});
    }

    void everyByteComesBack()
    {
        QString bytes;
        for (ushort code = 1; code < 256; ++code) {
            bytes += QChar(code);
        }
        QString const real = bytes + QStringLiteral("key=a\u00a0b\r\n&") + bytes;
        edit->setRealPlainText(real);
        QCOMPARE(edit->realPlainText(), real);

        putCursor(0);
        QTest::keyClick(edit.get(), Qt::Key_Z);
        QCOMPARE(edit->realPlainText(), u'z' + real);
    }

    void aNewFontLeavesTheText()
    {
        edit->setRealPlainText(QStringLiteral("key=abc&"));
        QSignalSpy const changed(edit.get(), &PasswdTextEdit::realTextChanged);

        QFont font = edit->font();
        font.setPointSize(font.pointSize() + 4);
        edit->setFont(font);

        QCOMPARE(changed.count(), 0);
        QCOMPARE(edit->realPlainText(), QStringLiteral("key=abc&"));
    }

    void listenersHearWhenBothTextsAreFinal()
    {
        QStringList heard;
        connect(edit.get(), &PasswdTextEdit::realTextChanged, this, [&] {
            heard += edit->toPlainText() + u' ' + edit->realPlainText();
        });

        edit->setRealPlainText(QStringLiteral("key=abc&"));

        QCOMPARE(heard, QStringList(QStringLiteral("key=%1& key=abc&").arg(mask(3))));
    }

    void tabLeavesTheField()
    {
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        auto* const inner = new PasswdTextEdit(PasswdUser::eachPattern(), &window);
        auto* const next = new QLineEdit(&window);
        layout->addWidget(inner);
        layout->addWidget(next);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        inner->setFocus();

        QTest::keyClick(inner, Qt::Key_Tab);
        QCOMPARE(window.focusWidget(), next);
        QTest::keyClick(next, Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(window.focusWidget(), inner);
        QCOMPARE(inner->realPlainText(), QString());
    }

    void rightClickOpensNoMenu()
    {
        QPoint const at = edit->viewport()->rect().center();
        QTest::mouseClick(edit->viewport(), Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, edit->viewport()->mapToGlobal(at));
        QApplication::sendEvent(edit->viewport(), &event);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }

    void droppedTextDoesNothing()
    {
        QVERIFY(!PasswdUser::drop(edit->viewport(), QStringLiteral("dropped")));

        QCOMPARE(edit->toPlainText(), QString());
        QCOMPARE(edit->realPlainText(), QString());
    }

    void theHintCountsCharactersAndLines()
    {
        PasswdTextEdit const sized(PasswdUser::eachPattern(), 20, 3, nullptr);

        QCOMPARE(
            sized.sizeHint(),
            QSize(
                2 * sized.frameWidth() + 20 * sized.fontMetrics().horizontalAdvance(QLatin1Char('n')),
                2 * sized.frameWidth() + 3 * sized.fontMetrics().lineSpacing()));
    }

    void onlyTheFieldShows()
    {
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        auto* const inner = new PasswdTextEdit(PasswdUser::eachPattern(), &window);
        layout->addWidget(inner);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCOMPARE(window.findChildren<QTextEdit*>(), QList<QTextEdit*>{inner});
        for (QWidget const* const widget : QApplication::allWidgets()) {
            if (qobject_cast<QTextEdit const*>(widget) && widget != inner && widget != edit.get()) {
                QVERIFY(!widget->isVisible());
            }
        }
    }

private:
    std::unique_ptr<PasswdTextEdit> edit;
};

QTEST_MAIN(tst_PasswdTextEdit)
#include "tst_PasswdTextEdit.moc"
