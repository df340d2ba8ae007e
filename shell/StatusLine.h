// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QTimer>
#include <QWidget>

class QLabel;

namespace PackageTable
{
struct MarkCounts;
}

/// The line below the main window's buttons: how many rows show, are selected and marked, what is
/// wrong, how old it is, and what can't be had. Owned by its parent; GUI thread.
class StatusLine final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    void setRows(qsizetype shown, qsizetype all);
    void setSelected(qsizetype selected);
    void setMarks(PackageTable::MarkCounts const& counts);
    /// That the table lacks something.
    void setIncomplete(bool lacks);
    /// When each repository was found to be current, see YumIO::repositoryTimes. The oldest is told by its
    /// age.
    void setRepositoryTimes(QMap<QString, qint64> const& times);
    /// Why packages can't be changed; empty where they can.
    void setLooking(QString const& reason);
    /// A warning that stays until the next one; empty for none.
    void setWarning(QString const& words);

    /// No wider than the screen, whatever there is to tell.
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The marks have been clicked.
    void marksWanted();
    /// What the table lacks is to be told once more.
    void incompleteWanted();

protected:
    bool event(QEvent* event) override;

private:
    class Link;

    void tellAge();

    QLabel* rows;
    QLabel* selected;
    Link* marks;
    QLabel* sign;
    QLabel* warning;
    Link* incomplete;
    QLabel* age;
    QTimer ageing;
    qint64 oldest = 0; ///< seconds since 1970; 0 where nobody tells
    QLabel* looking;
};
