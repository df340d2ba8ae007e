// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableExpressionEdit.h"

#include "packagetable/PackageTableSortFilterProxyModel.h"
#include "packagetable/PosixRegex.h"

#include <QAction>
#include <QCompleter>
#include <QEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>
#include <QStringListModel>
#include <QStyle>
#include <algorithm>
#include <chrono>
#include <optional>

namespace PackageTable
{

namespace
{

/// So long does nobody pause between two letters of a word.
constexpr std::chrono::milliseconds pauseTime(120);
constexpr int expressionsKept = 20;
/// The picture that says "Match Case", in pixels of a display without scaling.
constexpr int pictureSize = 16;
constexpr qreal lettersSize = 11; ///< of its letters, at most

} // namespace

ExpressionEdit::ExpressionEdit(QString const& expression, QWidget* parent)
    : QLineEdit(expression, parent),
      matchCase(new QAction(tr("Match Case"), this)),
      wrong(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition)),
      used(new QStringListModel(this)),
      offer(new QCompleter(used, this))
{
    setClearButtonEnabled(true);
    if (auto* const clearing = findChild<QAction*>(QStringLiteral("_q_qlineeditclearaction"))) {
        // The toolkit's own action has no words for those who can't see it.
        clearing->setText(tr("Clear"));
        clearing->setToolTip(tr("Clear the expression"));
    }

    wrong->setText(tr("Not Valid"));
    wrong->setVisible(false);

    matchCase->setCheckable(true);
    matchCase->setChecked(true);
    matchCase->setShortcut(QKeySequence(tr("Ctrl+M")));
    matchCase->setToolTip(tr("Whether capital and small letters differ (%1)")
                              .arg(matchCase->shortcut().toString(QKeySequence::NativeText)));
    addAction(matchCase, TrailingPosition);
    showMatchesCase();
    connect(matchCase, &QAction::toggled, this, [this](bool matches) {
        showMatchesCase();
        Q_EMIT matchesCaseChanged(matches);
    });

    offer->setWidget(this);
    offer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    connect(offer, qOverload<QString const&>(&QCompleter::activated), this, &ExpressionEdit::choose);

    pause.setSingleShot(true);
    pause.setInterval(pauseTime);
    connect(&pause, &QTimer::timeout, this, &ExpressionEdit::handlePause);
    // What the program writes is applied by the program.
    connect(this, &QLineEdit::textEdited, &pause, qOverload<>(&QTimer::start));
    connect(this, &QLineEdit::editingFinished, this, &ExpressionEdit::remember);
}

bool ExpressionEdit::matchesCase() const
{
    return matchCase->isChecked();
}

void ExpressionEdit::setMatchesCase(bool matches)
{
    matchCase->setChecked(matches);
}

QString ExpressionEdit::fault() const
{
    return faultWords;
}

void ExpressionEdit::taken()
{
    pause.stop();
    findFault();
}

void ExpressionEdit::choose(QString const& expression)
{
    setText(expression);
    Q_EMIT chosen();
}

// Not each beginning of a word at which somebody has paused.
void ExpressionEdit::remember()
{
    findFault();
    QString const expression = text();
    if (!faultWords.isEmpty() || SortFilterProxyModel::essentialPart(expression).isEmpty()) {
        return;
    }
    QStringList expressions = used->stringList();
    expressions.removeOne(expression);
    expressions.prepend(expression);
    used->setStringList(expressions.mid(0, expressionsKept));
}

void ExpressionEdit::handlePause()
{
    if (!isEnabled()) {
        // The rows are being collected anew.
        pause.start();
        return;
    }
    findFault();
    if (faultWords.isEmpty()) {
        Q_EMIT paused();
    }
}

void ExpressionEdit::findFault()
{
    // What is redundant in front isn't looked at.
    QString const expression = SortFilterProxyModel::essentialPart(text());
    std::optional<PosixRegex::Fault> const found = PosixRegex::fault(expression);
    QString words = found ? found->words : QString();
    if (found && found->at) {
        qsizetype const place = text().indexOf(expression) + *found->at;
        //: %1 is what the system's library says is wrong, %2 the number of the letter, from 1, %3 the letter
        words = tr("%1, at letter %2 of the expression: %3")
                    .arg(found->words, QString::number(place + 1), text().mid(place, 1));
    }
    if (words == faultWords) {
        return;
    }
    faultWords = words;
    setAccessibleDescription(faultWords);
    wrong->setToolTip(faultWords);
    wrong->setVisible(!faultWords.isEmpty());
    Q_EMIT faultChanged(faultWords);
}

void ExpressionEdit::showMatchesCase()
{
    matchCase->setIcon(caseIcon());
}

// The toolkit's buttons in a line don't show whether they are down, so the picture does: framed where letters
// have to be of the same case, faint where they need not.
QIcon ExpressionEdit::caseIcon() const
{
    // As outlines, which keep their distance from the frame on any display and with any letters.
    QPainterPath letters;
    letters.addText(0, 0, font(), QStringLiteral("Aa"));
    QRectF const bounds = letters.boundingRect();
    QColor const color =
        palette().color(QPalette::Active, matchesCase() ? QPalette::Text : QPalette::PlaceholderText);
    QIcon icon;
    for (qreal const scale : {1.0, 1.5, 2.0, 3.0}) {
        QPixmap picture((QSizeF(pictureSize, pictureSize) * scale).toSize());
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        QRectF const whole(0.5, 0.5, pictureSize - 1, pictureSize - 1);
        if (matchesCase()) {
            painter.setPen(color);
            painter.drawRoundedRect(whole, 2, 2);
        }
        if (!bounds.isEmpty()) {
            qreal const factor = std::min(lettersSize / bounds.width(), lettersSize / bounds.height());
            painter.translate(whole.center());
            painter.scale(factor, factor);
            painter.translate(-bounds.center());
            painter.fillPath(letters, color);
        }
        painter.end();
        icon.addPixmap(picture);
    }
    return icon;
}

// The line has the keyboard from the start, and the window's own keys go before what the toolkit has for
// lines, such as Ctrl+E for its end.
bool ExpressionEdit::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        QKeySequence const pressed(static_cast<QKeyEvent*>(event)->keyCombination());
        auto const actions = window()->findChildren<QAction*>();
        if (std::ranges::any_of(actions, [&](QAction const* action) {
                return action->shortcutContext() == Qt::WindowShortcut && action->shortcut() == pressed;
            })) {
            event->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void ExpressionEdit::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showMatchesCase();
    }
}

void ExpressionEdit::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier && used->rowCount() > 0) {
        offer->complete();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace PackageTable
