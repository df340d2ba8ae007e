// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HDialog.h"

#include <QHash>
#include <QPalette>
#include <QString>

class QHBoxLayout;
class QLabel;
class QModelIndex;
class QPushButton;
class YumConfIO;
class YumIO;

namespace Repo
{
struct Entry;
}

namespace RepoEditor
{

class ConfigDialog;
class Model;
class View;

/// The modal window in which a user switches repositories on and off, for this session or permanently, and
/// adds, copies, edits and removes them. It works on `YumConfIO::repos` itself and writes files only on
/// Apply and OK; what it does to the session's flags is in force at once. Each showing begins with reading
/// the configuration.
///
/// Made by the main window on first use and kept as its child; GUI thread, while the engine is idle.
class Dialog final : public HDialog
{
    Q_OBJECT

public:
    /// Neither the engine nor the configuration is owned; both must outlive the last showing.
    Dialog(YumIO* yumIO, YumConfIO* yumConfIO, QWidget* parent);

    /// Shows the window and comes back when it is closed: at once when the configuration can't be read, which
    /// the user has been told then. If `forceReposChanged` is set, such a failure counts as a closing.
    int exec() override;

    /// Showing reads the configuration, and a failure leaves the window hidden. Hiding tells what the showing
    /// has changed.
    void setVisible(bool visible) override;

    bool forceReposChanged = false; ///< tell of a change at the next closing even if there was none

Q_SIGNALS:
    /// The window has closed and the engine's repositories are no longer those of the configuration.
    void reposChanged();

public Q_SLOTS:
    // What the table tells.
    void useChanged();
    void configChanged();
    void currentChanged(int current, int previous);

    // What the user does to a repository. Each needs a current row, or the row of the index, and does nothing
    // without one.
    void browse();
    void edit();
    void edit(QModelIndex const& index);
    void add();
    void copy();
    /// Removes the selected rows one by one. Rows that have moved up in between are not followed.
    void remove();

    /// Does nothing: a single repository can only be reset while it is being edited.
    void reset();
    /// Reads the files anew and gives the session the flags that it had when the window was opened.
    void resetAll();
    void cancel();
    /// Writes the files. False when that failed or the user declined; all is as before then.
    bool apply();
    void ok();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QHBoxLayout* createEntryButtons();
    QHBoxLayout* createDialogButtons();
    QPushButton* createButton(QString const& text, QString const& toolTip);

    void editRow(int row);
    /// Shows the form for `entry`. True when the user has accepted a change, which `entry` then holds.
    bool execForm(Repo::Entry& entry);
    void addAccepted(Repo::Entry entry);
    /// The current row's element; null without one.
    [[nodiscard]] Repo::Entry* currentEntry() const;
    void resetModel();

    [[nodiscard]] bool hasEmptyId() const;
    /// The first identifier that a later repository has too; empty without one.
    [[nodiscard]] QString getDuplicateId() const;
    void updateStatusLabel();
    void setStatus(QPalette const& palette, QString const& text);
    /// Makes the last repository of that identifier the current row, if there is one.
    void setEntryToOldId(QString const& id);
    void setEntryHasChanged(bool changed);
    void setConfigHasChanged(bool changed);
    void updateChangeButtons();

    QWidget* parent;
    Model* model;
    View* view;
    QPushButton* browseButton = nullptr;
    QPushButton* editButton = nullptr;
    QPushButton* copyButton = nullptr;
    QPushButton* removeButton = nullptr;
    QLabel* statusLabel = nullptr;
    QPushButton* resetAllButton = nullptr;
    QPushButton* applyButton = nullptr;
    ConfigDialog* configDialog; ///< serves every edit
    QPalette initialPalette;    ///< of the status label
    YumIO* yumIO;
    YumConfIO* yumConfIO;
    QHash<QString, bool> savedReposEnabled; ///< the session's flags at the last opening
    bool useChangedFlag = false;            ///< a session flag was turned over since the opening or reset
    bool entryHasChanged = false;
    bool configHasChanged = false; ///< the repositories have changes that the files don't have
    bool appliedFlag = false;      ///< the files were written since the opening
};

} // namespace RepoEditor
