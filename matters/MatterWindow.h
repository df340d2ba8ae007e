// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HDialog.h"

#include <QString>
#include <QTimer>
#include <functional>

class ListTable;
class ScriptReader;
class YumIO;

/// The base of the windows that stand beside the main window, one for each matter: a table that is read
/// through the script whenever the window is shown, and again by `reload`, and below it the chosen row in
/// full. It remembers its size. Owned by its parent widget, GUI thread.
class MatterWindow : public HDialog
{
    Q_OBJECT

public:
    /// An apply, or several; answers whether something was applied.
    using Job = std::function<bool()>;

    /// Takes part in what the main window allows: nothing while a job is in progress.
    void setReady(bool ready);

public Q_SLOTS:
    /// Reads everything again, as soon as nothing is in the way; the same row stays chosen.
    void reload();

Q_SIGNALS:
    /// A reading takes long enough to be noticed, and is over.
    void busy(bool begins);
    /// The user wants something done. Whoever has this done sees to what stands around an apply.
    void applies(MatterWindow::Job const& job);

protected:
    /// `name`: that of the window in the user's settings. The engine isn't owned; it outlives this window, or
    /// the time for which that is shown.
    MatterWindow(QString const& name, YumIO* yumIO, QWidget* parent);

    /// To be called once, in the constructor of the window, when it has its table and its reader.
    void begin(ListTable* table, ScriptReader const* reader);

    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

    /// Reads what the table shows, and has the row chosen that was. Never during a job: the interpreter may
    /// be asked what the script can do.
    virtual void readAll() = 0;
    /// Shows the chosen row in full.
    virtual void showChosen() = 0;
    /// Enables what can be done now.
    virtual void enableControls() = 0;
    /// The font or the style is another one.
    virtual void takeLooks() = 0;

    /// Whether nothing is in the way of a reading.
    [[nodiscard]] bool mayRead() const;
    /// Whether the main window is idle.
    [[nodiscard]] bool isReady() const { return ready; }
    /// Has the chosen row shown in full, or shortly where that can't be read now.
    void showChosenNow();
    /// The same behind a pause, in which another row may be chosen.
    void showChosenSoon() { choice.start(); }
    /// Has this done around which somebody else sees to what belongs around an apply.
    void apply(Job const& job);

    YumIO* yumIO;

private:
    ListTable* table = nullptr;
    QTimer choice;  ///< runs from the choice of a row until that is read, since arrows run through many
    QTimer waiting; ///< runs while something is in the way of a reading
    bool ready = true;
};
