// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QMenu;
class QWidget;

/// What can be told of the words in a window by looking at its widgets.
namespace WindowTexts
{

/// Wraps `text` in marks that no text of the program has.
QString marked(QString const& text);

/// The buttons, labels, lists and column headers that are narrower or lower than their words, each with the
/// words.
QStringList cut(QWidget const& window);
/// The menu's entries that are.
QStringList cut(QMenu& menu);

/// Letters that would do two things in the window, by Alt and the letter, each with its texts.
QStringList clashes(QWidget const& window);
/// The same for the letters alone while the menu is open.
QStringList clashes(QMenu const& menu);

/// All words of the window, its tool tips and its menus that aren't marked.
QStringList unmarked(QWidget const& window);
QStringList unmarked(QMenu const& menu);

} // namespace WindowTexts
