// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HMenu.h"

#include <QHelpEvent>
#include <QMenuBar>
#include <QToolTip>

HMenu::HMenu(QString const& title, QMenuBar* parent)
    : QMenu(title, parent)
{
    setTearOffEnabled(true);
}

bool HMenu::event(QEvent* event)
{
    QAction const* const action = event->type() == QEvent::ToolTip ? deepestActiveAction() : nullptr;
    if (action && !action->toolTip().isEmpty()) {
        // An action without a tool tip of its own answers with its text, which the user sees already.
        QString const text = action->text().remove(QStringLiteral("...")).remove(QLatin1Char('&'));
        if (action->toolTip() != text) {
            QToolTip::showText(static_cast<QHelpEvent const*>(event)->globalPos(), action->toolTip());
        }
    }
    return QMenu::event(event);
}

QAction* HMenu::deepestActiveAction() const
{
    QAction* found = nullptr;
    for (QMenu const* menu = this; menu && menu->activeAction(); menu = found->menu()) {
        found = menu->activeAction();
    }
    return found;
}
