// SPDX-License-Identifier: GPL-2.0-or-later
#include "WindowTexts.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QTableView>
#include <QToolButton>

namespace
{

constexpr QChar opening = u'⟦';
constexpr QChar closing = u'⟧';

template <typename Widget>
QList<Widget*> shown(QWidget const& window)
{
    QList<Widget*> found;
    for (Widget* const widget : window.findChildren<Widget*>()) {
        if (widget->window() == &window && widget->isVisibleTo(&window)) {
            found.append(widget);
        }
    }
    return found;
}

QString sizes(QString const& text, QSize has, QSize wants)
{
    return QStringLiteral("\"%1\": %2 x %3 of %4 x %5")
        .arg(text)
        .arg(has.width())
        .arg(has.height())
        .arg(wants.width())
        .arg(wants.height());
}

void addCut(QStringList& found, QWidget const& widget, QString const& text, QSize wants)
{
    if (!text.isEmpty() && (widget.width() < wants.width() || widget.height() < wants.height())) {
        found.append(sizes(text, widget.size(), wants));
    }
}

void addCutHeaders(QStringList& found, QHeaderView const& header)
{
    for (int section = 0; section < header.count(); ++section) {
        int const wants = header.sectionSizeHint(section);
        if (!header.isSectionHidden(section) && header.sectionSize(section) < wants) {
            found.append(sizes(
                header.model()->headerData(section, header.orientation()).toString(),
                QSize(header.sectionSize(section), header.height()), QSize(wants, header.height())));
        }
    }
}

QStringList clashes(QStringList const& texts)
{
    QMap<QString, QStringList> byKey;
    for (QString const& text : texts) {
        QString const key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty()) {
            byKey[key].append(text);
        }
    }
    QStringList found;
    for (auto at = byKey.cbegin(); at != byKey.cend(); ++at) {
        if (at->size() > 1) {
            found.append(QStringLiteral("%1: %2").arg(at.key(), at->join(QStringLiteral(", "))));
        }
    }
    return found;
}

void addUnmarked(QStringList& found, QString const& text)
{
    bool const hasLetters =
        std::any_of(text.cbegin(), text.cend(), [](QChar letter) { return letter.isLetter(); });
    if (hasLetters && !(text.contains(opening) && text.contains(closing))) {
        found.append(text);
    }
}

} // namespace

QString WindowTexts::marked(QString const& text)
{
    return opening + text + closing;
}

QStringList WindowTexts::cut(QWidget const& window)
{
    QStringList found;
    for (QAbstractButton const* const button : shown<QAbstractButton>(window)) {
        auto const* const tool = qobject_cast<QToolButton const*>(button);
        // The words of a picture are for those who can't see it.
        if (!tool || tool->toolButtonStyle() != Qt::ToolButtonIconOnly) {
            addCut(found, *button, button->text(), button->sizeHint());
        }
    }
    for (QLabel const* const label : shown<QLabel>(window)) {
        int const height =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        int const width = label->wordWrap() ? 0 : label->sizeHint().width();
        addCut(found, *label, label->text(), QSize(width, height));
    }
    for (QComboBox const* const combo : shown<QComboBox>(window)) {
        addCut(found, *combo, combo->currentText(), combo->sizeHint());
    }
    for (QGroupBox const* const group : shown<QGroupBox>(window)) {
        addCut(found, *group, group->title(), group->minimumSizeHint());
    }
    for (QTableView const* const table : shown<QTableView>(window)) {
        addCutHeaders(found, *table->horizontalHeader());
    }
    for (QMenuBar const* const bar : shown<QMenuBar>(window)) {
        addCut(found, *bar, QStringLiteral("menu bar"), bar->minimumSizeHint());
        for (QAction* const action : bar->actions()) {
            if (!bar->rect().contains(bar->actionGeometry(action))) {
                found.append(sizes(action->text(), bar->size(), bar->actionGeometry(action).size()));
            }
        }
    }
    return found;
}

QStringList WindowTexts::cut(QMenu& menu)
{
    QStringList found;
    addCut(found, menu, menu.title(), menu.sizeHint());
    for (QAction* const action : menu.actions()) {
        if (action->isVisible() && !menu.rect().contains(menu.actionGeometry(action))) {
            found.append(sizes(action->text(), menu.size(), menu.actionGeometry(action).size()));
        }
    }
    return found;
}

QStringList WindowTexts::clashes(QWidget const& window)
{
    QStringList texts;
    for (QAbstractButton const* const button : shown<QAbstractButton>(window)) {
        texts.append(button->text());
    }
    for (QLabel const* const label : shown<QLabel>(window)) {
        if (label->buddy()) {
            texts.append(label->text());
        }
    }
    for (QGroupBox const* const group : shown<QGroupBox>(window)) {
        texts.append(group->title());
    }
    for (QMenuBar const* const bar : shown<QMenuBar>(window)) {
        for (QAction const* const action : bar->actions()) {
            texts.append(action->text());
        }
    }
    return ::clashes(texts);
}

QStringList WindowTexts::clashes(QMenu const& menu)
{
    QStringList texts;
    for (QAction const* const action : menu.actions()) {
        if (action->isVisible()) {
            texts.append(action->text());
        }
    }
    return ::clashes(texts);
}

QStringList WindowTexts::unmarked(QWidget const& window)
{
    QStringList found;
    addUnmarked(found, window.windowTitle());
    for (QWidget const* const widget : shown<QWidget>(window)) {
        addUnmarked(found, widget->toolTip());
        addUnmarked(found, widget->accessibleName());
    }
    for (QAbstractButton const* const button : shown<QAbstractButton>(window)) {
        addUnmarked(found, button->text());
    }
    for (QLabel const* const label : shown<QLabel>(window)) {
        addUnmarked(found, label->text());
    }
    for (QComboBox const* const combo : shown<QComboBox>(window)) {
        for (int item = 0; item < combo->count(); ++item) {
            addUnmarked(found, combo->itemText(item));
        }
    }
    for (QGroupBox const* const group : shown<QGroupBox>(window)) {
        addUnmarked(found, group->title());
    }
    for (QTableView const* const table : shown<QTableView>(window)) {
        for (int column = 0; column < table->model()->columnCount(); ++column) {
            addUnmarked(found, table->model()->headerData(column, Qt::Horizontal).toString());
            addUnmarked(
                found, table->model()->headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString());
        }
    }
    return found;
}

QStringList WindowTexts::unmarked(QMenu const& menu)
{
    QStringList found;
    addUnmarked(found, menu.title());
    for (QAction const* const action : menu.actions()) {
        addUnmarked(found, action->text());
        addUnmarked(found, action->toolTip());
    }
    return found;
}
