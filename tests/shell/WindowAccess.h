// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

class QWidget;

/// What can be told of a window for those who hear it, and for those whose eyes want contrast.
namespace WindowAccess
{

/// The controls that the keyboard can stand on, as the accessibility tree tells them, that have no name, and
/// those with a tool tip that have no description.
QStringList unheard(QWidget& window);

/// The texts of labels, links, buttons and empty fields that stand out from their ground by less than
/// readable letters have to. What is disabled may be faint.
QStringList faint(QWidget& window);

} // namespace WindowAccess
