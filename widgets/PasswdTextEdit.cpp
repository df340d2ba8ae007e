// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdTextEdit.h"

#include "widgets/Fonts.h"
#include "widgets/PasswdEvents.h"
#include "widgets/PasswdMask.h"
#include "widgets/PasswdQuiet.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>
#include <utility>

/// Opens to the field what a text edit keeps to itself.
class PasswdTextEdit::Shadow final : public HTextEdit
{
public:
    using HTextEdit::event;
    using HTextEdit::HTextEdit;
    using HTextEdit::setViewportMargins;
    using HTextEdit::viewportEvent;
};

PasswdTextEdit::PasswdTextEdit(QRegularExpression const& regExp, QWidget* parent)
    : HTextEdit(parent),
      pattern(regExp),
      shadow(std::make_unique<Shadow>(nullptr))
{
    init();
}

PasswdTextEdit::PasswdTextEdit(
    QRegularExpression const& regExp, int columnsToShow, int rowsToShow, QWidget* parent)
    : HTextEdit(columnsToShow, rowsToShow, parent),
      pattern(regExp),
      shadow(std::make_unique<Shadow>(columnsToShow, rowsToShow, nullptr))
{
    init();
}

PasswdTextEdit::~PasswdTextEdit() = default;

void PasswdTextEdit::init()
{
    // The mask keeps the layout of the text.
    setFont(Fonts::makeFixed(font()));
    connect(shadow.get(), &QTextEdit::textChanged, this, &PasswdTextEdit::textChanged);
    connect(this, &QTextEdit::textChanged, this, &PasswdTextEdit::adopt);
    setAcceptRichText(false);
    shadow->setAcceptRichText(false);
    setTabChangesFocus(true);
    // Only the shadow knows what to go back to.
    setUndoRedoEnabled(false);
    shadow->setFont(font());
    shadow->setGeometry(geometry());
    shadow->setViewportMargins(0, 0, 0, 0);
    // A drop would go to the shown text alone.
    setAcceptDrops(false);
}

void PasswdTextEdit::setRealPlainText(QString const& text)
{
    PasswdQuiet const quiet(this, shadow.get());
    shadow->setVerbatim(text);
}

QString PasswdTextEdit::realPlainText() const
{
    return shadow->verbatim();
}

bool PasswdTextEdit::event(QEvent* event)
{
    return handle(
        event, [&] { return HTextEdit::event(event); }, [&](QEvent* same) { shadow->event(same); });
}

bool PasswdTextEdit::viewportEvent(QEvent* event)
{
    preventDrag(event);
    return handle(
        event, [&] { return HTextEdit::viewportEvent(event); },
        [&](QEvent* same) { shadow->viewportEvent(same); });
}

template <typename Base, typename Twin>
bool PasswdTextEdit::handle(QEvent* event, Base const& base, Twin const& twin)
{
    if (!PasswdEvents::isInput(event)) {
        bool const answer = base();
        if (PasswdEvents::isGeometry(event)) {
            twin(event);
        }
        return answer;
    }
    PasswdQuiet const quiet(this, shadow.get());
    ++busy;
    follow();
    bool const answer = base();
    if (PasswdEvents::isMouse(event)) {
        follow();
    }
    PasswdEvents::passOn(event, twin);
    follow();
    --busy;
    return answer;
}

void PasswdTextEdit::preventDrag(QEvent const* event)
{
    if (event->type() != QEvent::MouseButtonPress) {
        return;
    }
    auto const* const press = static_cast<QMouseEvent const*>(event);
    if (press->button() != Qt::LeftButton || press->modifiers().testFlag(Qt::ShiftModifier)) {
        return;
    }
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection()) {
        cursor.clearSelection();
        // Setting the cursor scrolls to it, away from what is being pressed.
        int const scrolled = verticalScrollBar()->value();
        setTextCursor(cursor);
        verticalScrollBar()->setValue(scrolled);
    }
}

void PasswdTextEdit::follow()
{
    if (verbatim().size() != shadow->verbatim().size()) {
        return;
    }
    QTextCursor const shown = textCursor();
    QTextCursor cursor = shadow->textCursor();
    if (cursor.anchor() != shown.anchor() || cursor.position() != shown.position()) {
        cursor.setPosition(shown.anchor());
        cursor.setPosition(shown.position(), QTextCursor::KeepAnchor);
        shadow->setTextCursor(cursor);
    }
    shadow->verticalScrollBar()->setValue(verticalScrollBar()->value());
    shadow->horizontalScrollBar()->setValue(horizontalScrollBar()->value());
}

void PasswdTextEdit::resizeEvent(QResizeEvent* event)
{
    HTextEdit::resizeEvent(event);
    shadow->setGeometry(geometry());
    shadow->setViewportMargins(0, 0, 0, 0);
}

void PasswdTextEdit::contextMenuEvent(QContextMenuEvent*) {}

void PasswdTextEdit::textChanged()
{
    ++busy;
    int const position = shadow->textCursor().position();
    int const scrolled = verticalScrollBar()->value();
    setVerbatim(masked(shadow->verbatim()));
    verticalScrollBar()->setValue(scrolled);
    QTextCursor cursor = textCursor();
    cursor.setPosition(position);
    setTextCursor(cursor);
    cursor = shadow->textCursor();
    cursor.setPosition(position);
    shadow->setTextCursor(cursor);
    --busy;
    tellShown();
    Q_EMIT realTextChanged();
}

void PasswdTextEdit::tellShown()
{
    QString const before = std::exchange(told, verbatim());
    PasswdQuiet::tell(this, before, told);
}

QString PasswdTextEdit::masked(QString const& text) const
{
    QString shown = text;
    for (auto matches = pattern.globalMatch(text); matches.hasNext();) {
        PasswdMask::cover(shown, matches.next(), this);
    }
    return shown;
}

void PasswdTextEdit::adopt()
{
    QString const edited = verbatim();
    QString const shown = masked(shadow->verbatim());
    // A change of the font alone is told as one of the text.
    if (busy > 0 || edited == shown) {
        return;
    }
    // The toolkit has told it before this.
    told = edited;
    QString const real = PasswdMask::adopt(shadow->verbatim(), shown, edited, this);
    if (masked(real) == edited) {
        // Whoever edits may be about to go on at a place that setting the text would lose.
        PasswdQuiet const quiet(this, shadow.get());
        QSignalBlocker const silent(shadow.get());
        shadow->setVerbatim(real);
        follow();
        Q_EMIT realTextChanged();
    } else {
        int const position = textCursor().position();
        setRealPlainText(real);
        QTextCursor cursor = textCursor();
        cursor.setPosition(std::min(position, static_cast<int>(real.size())));
        setTextCursor(cursor);
    }
}
