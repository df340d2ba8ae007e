// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdLineEdit.h"

#include "widgets/Fonts.h"
#include "widgets/PasswdEvents.h"
#include "widgets/PasswdMask.h"
#include "widgets/PasswdQuiet.h"

#include <QContextMenuEvent>
#include <QResizeEvent>

#include <utility>

PasswdLineEdit::PasswdLineEdit(QRegularExpression const& regExp, QWidget* parent)
    : QLineEdit(parent),
      pattern(QRegularExpression::anchoredPattern(regExp.pattern()), regExp.patternOptions()),
      shadow(std::make_unique<QLineEdit>())
{
    // The mask keeps the layout of the text.
    setFont(Fonts::makeFixed(font()));
    connect(shadow.get(), &QLineEdit::textChanged, this, &PasswdLineEdit::textChanged);
    connect(this, &QLineEdit::textChanged, this, &PasswdLineEdit::adopt);
    shadow->setFont(font());
    shadow->setGeometry(geometry());
    // A drop would go to the shown text alone.
    setAcceptDrops(false);
}

void PasswdLineEdit::setRealText(QString const& text)
{
    PasswdQuiet const quiet(this, shadow.get());
    shadow->setText(text);
}

QString PasswdLineEdit::realText() const
{
    return shadow->text();
}

bool PasswdLineEdit::event(QEvent* event)
{
    if (!PasswdEvents::isInput(event)) {
        bool const answer = QLineEdit::event(event);
        if (PasswdEvents::isGeometry(event)) {
            shadow->event(event);
        }
        return answer;
    }
    PasswdQuiet const quiet(this, shadow.get());
    ++busy;
    follow();
    bool const answer = QLineEdit::event(event);
    if (PasswdEvents::isMouse(event)) {
        // The shadow is never painted, so it doesn't scroll; only positions in the text tell the place.
        follow();
    }
    PasswdEvents::passOn(event, [this](QEvent* same) { shadow->event(same); });
    follow();
    --busy;
    return answer;
}

void PasswdLineEdit::follow()
{
    if (text().size() != shadow->text().size()) {
        return;
    }
    int const start = selectionStart();
    if (start < 0) {
        if (shadow->hasSelectedText() || shadow->cursorPosition() != cursorPosition()) {
            shadow->setCursorPosition(cursorPosition());
        }
    } else if (cursorPosition() == start) {
        shadow->setSelection(selectionEnd(), -selectionLength());
    } else {
        shadow->setSelection(start, selectionLength());
    }
}

void PasswdLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    shadow->setGeometry(geometry());
}

void PasswdLineEdit::contextMenuEvent(QContextMenuEvent*) {}

void PasswdLineEdit::textChanged(QString const& text)
{
    showMasked(text);
    Q_EMIT realTextChanged(text);
}

void PasswdLineEdit::showMasked(QString const& text)
{
    ++busy;
    int const position = shadow->cursorPosition();
    setText(masked(text));
    setCursorPosition(position);
    shadow->setCursorPosition(position);
    --busy;
    QString const before = std::exchange(told, this->text());
    PasswdQuiet::tell(this, before, told);
}

QString PasswdLineEdit::masked(QString const& text) const
{
    QString shown = text;
    if (QRegularExpressionMatch const match = pattern.match(text); match.hasMatch()) {
        PasswdMask::cover(shown, match, this);
    }
    return shown;
}

void PasswdLineEdit::adopt(QString const& edited)
{
    if (busy > 0) {
        return;
    }
    // The toolkit tells the text only after this.
    PasswdQuiet::untilEventsAreServed(this, shadow.get());
    int const position = cursorPosition();
    QString const before = shadow->text();
    QString const real = PasswdMask::adopt(before, masked(before), edited, this);
    setRealText(real);
    if (real == before) {
        // No change for the shadow, but what is masked was shown.
        showMasked(real);
    }
    setCursorPosition(position);
}
