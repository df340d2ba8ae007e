// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdLineEdit.h"

#include "HeardTexts.h"
#include "PasswdUser.h"

#include <QAccessible>
#include <QClipboard>
#include <QTest>
#include <QVBoxLayout>

using PasswdUser::mask;

class tst_PasswdLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        edit = std::make_unique<PasswdLineEdit>(PasswdUser::onePattern(), nullptr);
        edit->resize(900, edit->sizeHint().height());
        edit->show();
        QVERIFY(QTest::qWaitForWindowActive(edit.get()));
        edit->setFocus();
    }

    void cleanup() { edit.reset(); }

    void maskHasTheLengthOfTheCodedPassword()
    {
        edit->setRealText(QStringLiteral("http://x/?key=a%20b&path=p"));

        QCOMPARE(edit->text(), QStringLiteral("http://x/?key=%1&path=p").arg(mask(5)));
        QCOMPARE(edit->realText(), QStringLiteral("http://x/?key=a%20b&path=p"));
    }

    void masksOnlyWhereThePatternFitsTheWhole()
    {
        edit = std::make_unique<PasswdLineEdit>(PasswdUser::eachPattern(), nullptr);

        edit->setRealText(QStringLiteral("x key=secret&"));
        QCOMPARE(edit->text(), QStringLiteral("x key=secret&"));
        edit->setRealText(QStringLiteral("key=secret&"));
        QCOMPARE(edit->text(), QStringLiteral("key=%1&").arg(mask(6)));
    }

    void anEmptyPasswordShowsTheTextUnchanged()
    {
        edit->setRealText(QStringLiteral("http://x/?key=&path=p"));

        QCOMPARE(edit->text(), QStringLiteral("http://x/?key=&path=p"));
    }

    void typedTextIsMaskedAsSoonAsThePatternFits()
    {
        QTest::keyClicks(edit.get(), QStringLiteral("http://x/?key=secret"));
        QCOMPARE(edit->text(), QStringLiteral("http://x/?key=secret"));
        QTest::keyClicks(edit.get(), QStringLiteral("&path=p"));

        QCOMPARE(edit->text(), QStringLiteral("http://x/?key=%1&path=p").arg(mask(6)));
        QCOMPARE(edit->realText(), QStringLiteral("http://x/?key=secret&path=p"));
    }

    void replacingAPasswordCharacterLooksAlike()
    {
        edit->setRealText(QStringLiteral("key=abc&"));
        QString const shown = edit->text();
        edit->setCursorPosition(5);

        QTest::keyClick(edit.get(), Qt::Key_Delete);
        QTest::keyClick(edit.get(), Qt::Key_X);

        QCOMPARE(edit->text(), shown);
        QCOMPARE(edit->realText(), QStringLiteral("key=axc&"));
        QCOMPARE(edit->cursorPosition(), 6);
    }

    void replacingASelectedCharacterLooksAlike()
    {
        edit->setRealText(QStringLiteral("key=abc&"));
        edit->setCursorPosition(5);

        QTest::keyClick(edit.get(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(edit.get(), Qt::Key_X);

        QCOMPARE(edit->realText(), QStringLiteral("key=axc&"));
    }

    void aClickBehindAScrolledTextEditsWhatIsSeen()
    {
        QString head = QString(300, QLatin1Char('x'));
        edit->setRealText(head + QStringLiteral("key=abc&end"));
        edit->grab(); // scrolls, which painting does

        QTest::mouseClick(edit.get(), Qt::LeftButton, {}, QPoint(edit->width() - 4, edit->height() / 2));
        int const seen = edit->cursorPosition();
        QVERIFY(seen > 300);
        QTest::keyClick(edit.get(), Qt::Key_Z);

        QCOMPARE(edit->realText(), head.append(QStringLiteral("key=abc&end")).insert(seen, QLatin1Char('z')));
    }

    void draggingOverTheTextSelectsInBoth()
    {
        edit->setRealText(QStringLiteral("key=abc&end"));
        int const middle = edit->height() / 2;
        QTest::mousePress(edit.get(), Qt::LeftButton, {}, QPoint(1, middle));
        QTest::mouseMove(edit.get(), QPoint(edit->width() - 2, middle));
        QTest::mouseRelease(edit.get(), Qt::LeftButton, {}, QPoint(edit->width() - 2, middle));
        QCOMPARE(edit->selectedText().size(), 11);

        QTest::keyClick(edit.get(), Qt::Key_Backspace);

        QCOMPARE(edit->realText(), QString());
        QCOMPARE(edit->text(), QString());
    }

    void copyTakesTheRealText()
    {
        edit->setRealText(QStringLiteral("key=abc&"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Copy));

        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("key=abc&"));
    }

    void cutAndPasteKeepTheRealText()
    {
        edit->setRealText(QStringLiteral("key=abc&"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Cut));
        QCOMPARE(edit->realText(), QString());
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));

        QCOMPARE(edit->realText(), QStringLiteral("key=abc&"));
        QCOMPARE(edit->text(), QStringLiteral("key=%1&").arg(mask(3)));
    }

    void undoBringsTheRealTextBack()
    {
        edit->setRealText(QStringLiteral("key=abc&"));
        edit->setCursorPosition(7);
        QTest::keyClick(edit.get(), Qt::Key_Backspace);
        QCOMPARE(edit->realText(), QStringLiteral("key=ab&"));

        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Undo));

        QCOMPARE(edit->realText(), QStringLiteral("key=abc&"));
        QCOMPARE(edit->text(), QStringLiteral("key=%1&").arg(mask(3)));
    }

    void textOfAnInputMethodArrives()
    {
        edit->setRealText(QStringLiteral("key=&"));
        edit->setCursorPosition(4);

        PasswdUser::compose(edit.get(), QStringLiteral("\u00e9"));

        QCOMPARE(edit->realText(), QStringLiteral("key=\u00e9&"));
        QCOMPARE(edit->text(), QStringLiteral("key=%1&").arg(mask(1)));
    }

    void textSetThroughAccessibilityIsReal()
    {
        edit->setRealText(QStringLiteral("http://x/?key=abc&path=p"));
        QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(edit.get());
        QVERIFY(accessible);
        QCOMPARE(accessible->text(QAccessible::Value), edit->text());

        accessible->setText(QAccessible::Value, QStringLiteral("http://y/?key=%1&path=q").arg(mask(3)));
        QCOMPARE(edit->realText(), QStringLiteral("http://y/?key=abc&path=q"));

        accessible->setText(QAccessible::Value, QStringLiteral("http://z/?key=other&path=q"));
        QCOMPARE(edit->realText(), QStringLiteral("http://z/?key=other&path=q"));
        QCOMPARE(edit->text(), QStringLiteral("http://z/?key=%1&path=q").arg(mask(5)));
    }

    void theRealTextSetThroughAccessibilityStaysMasked()
    {
        QString const real = QStringLiteral("http://x/?key=abc&path=p");
        edit->setRealText(real);
        HeardTexts const reader;
        QAccessible::queryAccessibleInterface(edit.get())->setText(QAccessible::Value, real);

        QCOMPARE(edit->text(), QStringLiteral("http://x/?key=%1&path=p").arg(mask(3)));
        QCOMPARE(edit->realText(), real);
        QVERIFY(!reader.contain(QStringLiteral("abc")));
    }

    void readersHearWhatIsShown()
    {
        HeardTexts const reader;
        edit->setRealText(QStringLiteral("key=abc&"));
        QCOMPARE(reader.texts, QStringList(QStringLiteral("key=%1&").arg(mask(3))));
        edit->setCursorPosition(8);
        QTest::keyClicks(edit.get(), QStringLiteral("z"));
        QCOMPARE(reader.texts.last(), QStringLiteral("z"));
        edit->setCursorPosition(5);
        QTest::keyClicks(edit.get(), QStringLiteral("z"));
        QCOMPARE(reader.texts.last(), mask(1));

        QCOMPARE(edit->realText(), QStringLiteral("key=azbc&z"));
        QCOMPARE(reader.texts.size(), 3);
        QCOMPARE(reader.tellers, QList<QObject*>{edit.get()});
    }

    void readersNeverHearWhatIsMasked()
    {
        HeardTexts const reader;
        QTest::keyClicks(edit.get(), QStringLiteral("key=&"));
        edit->setCursorPosition(4);
        QApplication::clipboard()->setText(QStringLiteral("secret"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        PasswdUser::compose(edit.get(), QStringLiteral("composed"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Undo));
        QCOMPARE(edit->realText(), QStringLiteral("key=secret&"));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::SelectAll));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Cut));
        QTest::keySequence(edit.get(), QKeySequence(QKeySequence::Paste));
        QCOMPARE(edit->realText(), QStringLiteral("key=secret&"));

        QVERIFY2(!reader.contain(QStringLiteral("secret")), qPrintable(reader.texts.join(u'\n')));
        QVERIFY2(!reader.contain(QStringLiteral("composed")), qPrintable(reader.texts.join(u'\n')));
        QCOMPARE(reader.tellers, QList<QObject*>{edit.get()});
    }

    void readersDoNotHearAgainWhatBecomesMasked()
    {
        HeardTexts const reader;
        QTest::keyClicks(edit.get(), QStringLiteral("key=secret&"));

        QCOMPARE(edit->text(), QStringLiteral("key=%1&").arg(mask(6)));
        QVERIFY(!reader.contain(QStringLiteral("secret")));
    }

    void listenersHearWhenBothTextsAreFinal()
    {
        QStringList heard;
        connect(edit.get(), &PasswdLineEdit::realTextChanged, this, [&](QString const& text) {
            heard += text + u' ' + edit->text() + u' ' + edit->realText();
        });

        edit->setRealText(QStringLiteral("key=abc&"));

        QCOMPARE(heard, QStringList(QStringLiteral("key=abc& key=%1& key=abc&").arg(mask(3))));
    }

    void rightClickOpensNoMenu()
    {
        QPoint const at = edit->rect().center();
        QTest::mouseClick(edit.get(), Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, edit->mapToGlobal(at));
        QApplication::sendEvent(edit.get(), &event);
        QCoreApplication::processEvents();

        QCOMPARE(QApplication::activePopupWidget(), nullptr);
    }

    void droppedTextDoesNothing()
    {
        QVERIFY(!PasswdUser::drop(edit.get(), QStringLiteral("dropped")));

        QCOMPARE(edit->text(), QString());
        QCOMPARE(edit->realText(), QString());
    }

    void onlyTheFieldShows()
    {
        QWidget window;
        auto* const layout = new QVBoxLayout(&window);
        auto* const inner = new PasswdLineEdit(PasswdUser::onePattern(), &window);
        layout->addWidget(inner);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));

        QCOMPARE(window.findChildren<QLineEdit*>(), QList<QLineEdit*>{inner});
        for (QWidget const* const widget : QApplication::allWidgets()) {
            if (qobject_cast<QLineEdit const*>(widget) && widget != inner && widget != edit.get()) {
                QVERIFY(!widget->isVisible());
            }
        }
    }

private:
    std::unique_ptr<PasswdLineEdit> edit;
};

QTEST_MAIN(tst_PasswdLineEdit)
#include "tst_PasswdLineEdit.moc"
