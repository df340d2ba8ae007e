// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/PasswdEvents.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

bool PasswdEvents::isMouse(QEvent const* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
        return true;
    default:
        return false;
    }
}

bool PasswdEvents::isGeometry(QEvent const* event)
{
    return event->type() == QEvent::Move || event->type() == QEvent::Resize;
}

bool PasswdEvents::isInput(QEvent const* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        int const key = static_cast<QKeyEvent const*>(event)->key();
        return key != Qt::Key_Tab && key != Qt::Key_Backtab;
    }
    case QEvent::InputMethod:
        return true;
    default:
        return isMouse(event);
    }
}

void PasswdEvents::passOn(QEvent* event, std::function<void(QEvent*)> const& twin)
{
    if (event->type() != QEvent::InputMethod) {
        twin(event);
        return;
    }
    auto const* const input = static_cast<QInputMethodEvent const*>(event);
    QInputMethodEvent commit;
    commit.setCommitString(input->commitString(), input->replacementStart(), input->replacementLength());
    twin(&commit);
}
