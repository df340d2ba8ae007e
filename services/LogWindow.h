// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/Log.h"

#include <QWidget>
#include <memory>

class HTextEdit;
class QSpinBox;
class QTimer;

namespace Log
{

class LineWriter;

/// The log as coloured text, up to a detail level that the user chooses: a window of its own, made on
/// first use by the main window. It holds text and follows the log only while it is shown.
/// The log may be long and grow fast: lines are rendered for a few milliseconds in each turn of the event
/// loop, and what is left waits for the next turn. GUI thread.
class Window final : public QWidget
{
    Q_OBJECT

public:
    /// `log` is not owned and outlives the window. `owner` is the window that this one belongs to; it
    /// doesn't become the parent, so that this stays a top-level window which the caller has to delete.
    Window(EntryList& log, QWidget* owner);
    ~Window() override;

public Q_SLOTS:
    /// Showing renders the whole log and scrolls to its end; hiding drops the text. A long log goes on
    /// to be rendered after this has returned.
    void setVisible(bool visible) override;

    /// Renders what has come since the last time, and lets the window paint. What is more than one turn of
    /// the event loop may take follows in the next ones.
    void appended();

    /// Renders everything anew under the threshold that stands in the level box, in the same way.
    void levelChanged(int level);

public:
    /// Makes plain text fit for HTML: tags show as typed, blanks and tabs keep their number. The
    /// ampersand stays, so an entity that is spelled out shows as its character.
    static void htmlProtect(QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// Forgets what was rendered: it starts over with the log's first record.
    void startOver();
    /// Renders until there is nothing more or this turn of the event loop has had its share. Answers
    /// whether anything was new.
    bool renderShare();
    [[nodiscard]] bool isBehind() const;
    void nextTurn();
    void spend(qint64 nanoseconds);
    void letPaint();
    void scrollToEnd();

    QWidget* parent;
    QSpinBox* levelBox;
    EntryList* entries;
    HTextEdit* textEdit;
    std::unique_ptr<LineWriter> writer;
    int shownCount = 0;
    bool following = false; ///< this window is on show, or just about to be
    bool atEnd = true;      ///< the end is in sight and stays so when lines come
    bool painting = false;
    QTimer* turn;         ///< runs until the present turn of the event loop is over
    qint64 turnSpent = 0; ///< nanoseconds that it has been rendering
};

} // namespace Log
