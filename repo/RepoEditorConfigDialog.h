// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/RepoEditorConfig.h"
#include "widgets/HDialog.h"

#include <QPalette>

#include <memory>

class QLabel;
class QPushButton;
class YumConfIO;

namespace RepoEditor
{

/// The modal window around the form of one repository, made once for all of them: disabled until it is given
/// the first. Owned by its parent widget, GUI thread.
class ConfigDialog final : public HDialog
{
    Q_OBJECT

public:
    ConfigDialog(YumConfIO* yumConfIO, QWidget* parent);
    ~ConfigDialog() override;

    /// The repository to edit, which has to outlive the run. It changes only when the dialog is accepted,
    /// which it is only if something changed that can be written as it looks; the session's flag of its
    /// identifier follows it then.
    void setEntry(Repo::Entry* entry);

    void setVisible(bool visible) override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void changed();
    void reset();
    void cancel();
    void ok();

private:
    QPushButton* createButton(QString const& text, QString const& toolTip);
    void updateStatusLabel();
    void setHasChanged(bool value);

    QLabel* statusLabel = nullptr;
    QPushButton* resetButton = nullptr;
    std::unique_ptr<Config> config;
    QPalette initialPalette; ///< the status label's, without a problem
    YumConfIO* yumConfIO;
    Repo::Entry* entry = nullptr; ///< not owned
    bool hasChanged = false;
};

} // namespace RepoEditor
