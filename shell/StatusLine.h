// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QLabel;

namespace PackageTable
{
struct MarkCounts;
}

/// The line below the main window's buttons: how many rows show, are selected and marked, and a word on what
/// is wrong. Owned by its parent; GUI thread.
class StatusLine final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    void setRows(qsizetype shown, qsizetype all);
    void setSelected(qsizetype selected);
    void setMarks(PackageTable::MarkCounts const& counts);
    /// A warning that stays until the next one; empty for none.
    void setWarning(QString const& words);

Q_SIGNALS:
    /// The marks have been clicked.
    void marksWanted();

private:
    QLabel* rows;
    QLabel* selected;
    QLabel* marks;
    QLabel* sign;
    QLabel* warning;
};
