// SPDX-License-Identifier: GPL-2.0-or-later
#include "tests/Eventually.h"
#include "widgets/HTextEdit.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>

namespace
{

class Edit : public HTextEdit
{
public:
    using HTextEdit::HTextEdit;

    void leave(Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusOut, reason);
        focusOutEvent(&event);
    }

    [[nodiscard]] QSize scrollAreaHint() const { return QAbstractScrollArea::sizeHint(); }
};

} // namespace

class tst_HTextEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hintCountsCharactersAndLines();
    void minusOneKeepsTheSizeOfAScrollArea();
    void screenLimitsTheHint();
    void leavingEndsEditing();
    void leavingForAPopupDoesNotEndEditing();
    void ownContextMenuDoesNotEndEditing();
    void popupOfAnotherWidgetEndsEditing();
    void compactLinesStandWithoutSpace();
    void everyByteComesBack();
    void typedLinesArePartedByLineFeeds();
};

void tst_HTextEdit::hintCountsCharactersAndLines()
{
    HTextEdit const edit(20, 3, nullptr);

    QCOMPARE(
        edit.sizeHint(),
        QSize(
            2 * edit.frameWidth() + 20 * edit.fontMetrics().horizontalAdvance(QLatin1Char('n')),
            2 * edit.frameWidth() + 3 * edit.fontMetrics().lineSpacing()));
}

void tst_HTextEdit::minusOneKeepsTheSizeOfAScrollArea()
{
    Edit const plain(nullptr);
    QCOMPARE(plain.sizeHint(), plain.scrollAreaHint());

    Edit const wide(50, -1, nullptr);
    QCOMPARE(wide.sizeHint().height(), wide.scrollAreaHint().height());
    QVERIFY(wide.sizeHint().width() != wide.scrollAreaHint().width());

    Edit const high(-1, 20, nullptr);
    QCOMPARE(high.sizeHint().width(), high.scrollAreaHint().width());
    QVERIFY(high.sizeHint().height() != high.scrollAreaHint().height());
}

void tst_HTextEdit::screenLimitsTheHint()
{
    HTextEdit edit(100, 24, nullptr);
    QSize const screen = edit.screen()->geometry().size();
    QFont font = edit.font();
    font.setPixelSize(screen.height());
    edit.setFont(font);

    QCOMPARE(edit.sizeHint(), QSize(screen.width() * 9 / 10, screen.height() * 9 / 10));
}

void tst_HTextEdit::leavingEndsEditing()
{
    Edit edit(nullptr);
    QSignalSpy const finished(&edit, &HTextEdit::editingFinished);

    edit.leave(Qt::TabFocusReason);
    QCOMPARE(finished.count(), 1);
    edit.leave(Qt::ActiveWindowFocusReason);
    QCOMPARE(finished.count(), 2);
}

void tst_HTextEdit::leavingForAPopupDoesNotEndEditing()
{
    Edit edit(nullptr);
    QSignalSpy const finished(&edit, &HTextEdit::editingFinished);

    edit.leave(Qt::PopupFocusReason);

    QCOMPARE(finished.count(), 0);
}

void tst_HTextEdit::ownContextMenuDoesNotEndEditing()
{
    Edit edit(nullptr);
    edit.setPlainText(QStringLiteral("text"));
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QSignalSpy const finished(&edit, &HTextEdit::editingFinished);

    QContextMenuEvent event(
        QContextMenuEvent::Mouse, QPoint(5, 5), edit.viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(edit.viewport(), &event);
    EVENTUALLY_VERIFY(QApplication::activePopupWidget());
    edit.leave(Qt::OtherFocusReason);
    QCOMPARE(finished.count(), 0);
    QApplication::activePopupWidget()->close();
    EVENTUALLY_VERIFY(!QApplication::activePopupWidget());

    QMenu menu(&edit);
    menu.addAction(QStringLiteral("Copy"));
    menu.popup(edit.mapToGlobal(QPoint(5, 5)));
    EVENTUALLY_COMPARE(QApplication::activePopupWidget(), &menu);
    edit.leave(Qt::OtherFocusReason);
    QCOMPARE(finished.count(), 0);
    menu.close();
}

void tst_HTextEdit::popupOfAnotherWidgetEndsEditing()
{
    Edit edit(nullptr);
    QWidget other;
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    QMenu menu(&other);
    menu.addAction(QStringLiteral("Copy"));
    menu.popup(other.mapToGlobal(QPoint(5, 5)));
    EVENTUALLY_COMPARE(QApplication::activePopupWidget(), &menu);
    QSignalSpy const finished(&edit, &HTextEdit::editingFinished);

    edit.leave(Qt::OtherFocusReason);

    QCOMPARE(finished.count(), 1);
    menu.close();
}

void tst_HTextEdit::compactLinesStandWithoutSpace()
{
    HTextEdit edit(nullptr);

    edit.appendCompact(QStringLiteral("<p>one</p>"));
    edit.appendCompact(QStringLiteral("<p>two</p>"));

    QCOMPARE(edit.toPlainText(), QStringLiteral("one\ntwo"));
    for (QTextBlock block = edit.document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat().topMargin(), 0.0);
        QCOMPARE(block.blockFormat().bottomMargin(), 0.0);
    }
}

void tst_HTextEdit::everyByteComesBack()
{
    QString bytes;
    for (ushort code = 0; code < 256; ++code) {
        bytes += QChar(code);
    }
    HTextEdit edit(nullptr);
    edit.setVerbatim(bytes + QStringLiteral("\r\n") + bytes + u'\n');

    QCOMPARE(edit.verbatim(), bytes + QStringLiteral("\r\n") + bytes + u'\n');
    QVERIFY(edit.toPlainText().contains(QChar(0x240d)));
}

void tst_HTextEdit::typedLinesArePartedByLineFeeds()
{
    HTextEdit edit(nullptr);
    QTest::keyClicks(&edit, QStringLiteral("a"));
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, QStringLiteral("b"));
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&edit, QStringLiteral("c"));

    QCOMPARE(edit.verbatim(), QStringLiteral("a\nb\nc"));
}

QTEST_MAIN(tst_HTextEdit)
#include "tst_HTextEdit.moc"
