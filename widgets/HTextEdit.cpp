// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HTextEdit.h"

#include "widgets/Sizing.h"

#include <QApplication>
#include <QFocusEvent>
#include <QTextBlock>

namespace
{

constexpr QChar carriageReturn = u'\r';
constexpr QChar symbolOfCarriageReturn(0x240d);

} // namespace

HTextEdit::HTextEdit(QWidget* parent)
    : QTextEdit(parent)
{
}

HTextEdit::HTextEdit(int columnsToShow, int rowsToShow, QWidget* parent)
    : QTextEdit(parent),
      columns(columnsToShow),
      rows(rowsToShow)
{
}

QSize HTextEdit::sizeHint() const
{
    QSize hint = QAbstractScrollArea::sizeHint();
    if (columns != -1) {
        hint.setWidth(frameWidth() + Sizing::columns(this, columns) + frameWidth());
    }
    if (rows != -1) {
        hint.setHeight(frameWidth() + rows * fontMetrics().lineSpacing() + frameWidth());
    }
    return hint.boundedTo(Sizing::screenLimit(this));
}

void HTextEdit::setVerbatim(QString text)
{
    setPlainText(text.replace(carriageReturn, symbolOfCarriageReturn));
}

QString HTextEdit::verbatim() const
{
    return document()
        ->toRawText()
        .replace(QChar::ParagraphSeparator, u'\n')
        .replace(QChar::LineSeparator, u'\n')
        .replace(symbolOfCarriageReturn, carriageReturn);
}

void HTextEdit::appendCompact(QString const& text)
{
    append(text);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    QTextBlockFormat format = cursor.blockFormat();
    format.setTopMargin(0);
    format.setBottomMargin(0);
    cursor.setBlockFormat(format);
    cursor.endEditBlock();
}

void HTextEdit::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason && !hasOpenPopup()) {
        Q_EMIT editingFinished();
    }
    QTextEdit::focusOutEvent(event);
}

// The toolkit opens the context menu on the viewport.
bool HTextEdit::hasOpenPopup() const
{
    QWidget const* const popup = QApplication::activePopupWidget();
    return popup && (popup->parentWidget() == this || popup->parentWidget() == viewport());
}
