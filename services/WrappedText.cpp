// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/WrappedText.h"

#include "widgets/Sizing.h"

#include <QEvent>
#include <QTextDocument>

#include <algorithm>
#include <cmath>
#include <memory>

namespace
{

constexpr int columns = 56; ///< a fingerprint of forty digits in groups fits into one line
constexpr int mostLines = 6;

} // namespace

WrappedText::WrappedText(QString const& text, QWidget* parent)
    : QTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setFrameStyle(QFrame::NoFrame);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    viewport()->setAutoFillBackground(false);
    document()->setDocumentMargin(0);
    setPlainText(text);
    takeColor();
}

QSize WrappedText::sizeHint() const
{
    int const width = Sizing::columns(this, columns);
    return {width, heightForWidth(width)};
}

QSize WrappedText::minimumSizeHint() const
{
    return {Sizing::columns(this, columns / 2), fontMetrics().lineSpacing()};
}

int WrappedText::heightForWidth(int width) const
{
    std::unique_ptr<QTextDocument> const copy(document()->clone());
    copy->setTextWidth(width);
    int const lines = static_cast<int>(std::ceil(copy->size().height()));
    return std::min(lines, mostLines * fontMetrics().lineSpacing());
}

void WrappedText::changeEvent(QEvent* event)
{
    QTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        takeColor();
    }
}

void WrappedText::takeColor()
{
    QPalette own(palette());
    if (own.color(QPalette::Text) != own.color(QPalette::WindowText)) {
        own.setColor(QPalette::Text, own.color(QPalette::WindowText));
        setPalette(own);
    }
}
