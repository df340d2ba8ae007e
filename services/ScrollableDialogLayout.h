// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QStyle>

class QDialog;
class QLabel;
class QPushButton;
class QTabWidget;

/// Lays out `dialog` as the scrollable dialogs look: a standard picture beside a text that scrolls, above
/// a centred row of buttons. Also makes it modal. Returns the label of the text; all widgets become the
/// dialog's own. With `pages`, which stand in the place of the text then, it becomes the first of them.
QLabel* layOutScrollableDialog(
    QDialog* dialog, QStyle::StandardPixmap picture, QString const& text, QList<QPushButton*> const& buttons,
    QTabWidget* pages = nullptr, QString const& title = QString());
