// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Log.h"

#include <QWidget>

class HTextEdit;
class QSpinBox;

namespace Log
{

/// The log as coloured text, up to a detail level that the user chooses: a window of its own, made on
/// first use by the main window. It holds text and follows the log only while it is shown. GUI thread.
class Window final : public QWidget
{
    Q_OBJECT

public:
    /// `log` is not owned and outlives the window. `owner` is the window that this one belongs to; it
    /// doesn't become the parent, so that this stays a top-level window which the caller has to delete.
    Window(EntryList& log, QWidget* owner);

public Q_SLOTS:
    /// Showing renders the whole log and scrolls to its end; hiding drops the text.
    void setVisible(bool visible) override;

    /// Renders what has come since the last time, and lets the window paint.
    void appended();

    /// Renders everything anew under the threshold that stands in the level box.
    void levelChanged(int level);

public:
    /// Makes plain text fit for HTML: tags show as typed, blanks and tabs keep their number. The
    /// ampersand stays, so an entity that is spelled out shows as its character.
    static void htmlProtect(QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void render(QList<Entry> const& news);
    void scrollToEnd();

    QWidget* parent;
    QSpinBox* levelBox;
    EntryList* entries;
    HTextEdit* textEdit;
    int shownCount = 0;
    bool painting = false;
};

} // namespace Log
