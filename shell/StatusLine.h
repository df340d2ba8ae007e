// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QLabel;

/// The line below the main window's buttons: how many rows show and are selected, and a word on what is
/// wrong. Owned by its parent; GUI thread.
class StatusLine final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    void setRows(qsizetype shown, qsizetype all);
    void setSelected(qsizetype selected);
    /// A warning that stays until the next one; empty for none.
    void setWarning(QString const& words);

private:
    QLabel* rows;
    QLabel* selected;
    QLabel* sign;
    QLabel* warning;
};
