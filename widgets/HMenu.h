// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMenu>

class QMenuBar;

/// A menu that can be torn off and that shows the tool tips of its actions, those of its submenus too.
/// Owned by the menu bar, GUI thread.
class HMenu : public QMenu
{
    Q_OBJECT

public:
    HMenu(QString const& title, QMenuBar* parent);

protected:
    bool event(QEvent* event) override;

private:
    [[nodiscard]] QAction* deepestActiveAction() const;
};
