// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HAbstractTableModel.h"

#include <QFont>
#include <QIcon>

class QWidget;
class YumConfIO;
class YumIO;

namespace Repo
{
struct Entry;
}

namespace RepoEditor
{

/// The columns of the editor's table, in the order in which they stand at first.
enum Column
{
    SessionColumn,
    PermanentColumn,
    IdentifierColumn,
    NameColumn,
    ColumnCount
};

/// The repositories of the configuration as a table: a row for each element of `YumConfIO::repos`, in the
/// order of that list, of which this holds no copy. The configuration may change the list on its own, and
/// `reset` has to follow; until then rows that the list no longer has show nothing. Child of the editor's
/// window; GUI thread.
class Model final : public HAbstractTableModel
{
    Q_OBJECT

public:
    /// Neither is owned; both must outlive the model.
    Model(YumIO* yumIO, YumConfIO* yumConfIO, QObject* parent);

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override;
    /// Asking what the session does with an identifier that it doesn't know makes it known as not enabled.
    [[nodiscard]] QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(
        int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The font of the table, of which words that aren't the user's are written in italics.
    void setViewFont(QFont const& font);

    /// Appends a repository to the configuration; answers its row.
    int addRow(Repo::Entry const& entry);
    /// Takes a repository out of the configuration. Always true, also for a row that isn't there.
    bool removeRow(int row, QModelIndex const& parent);
    /// Makes views read the whole list anew.
    void reset();
    /// The row's first cell.
    [[nodiscard]] QModelIndex createIndex(int row) const;

    // What a user does to a row. Each does nothing for an index that names no repository.

    /// Turns over whether this session uses the repository, at once.
    void toggleUse(QModelIndex const& index);
    /// Turns over what the row shows as the permanent state. The configuration then states it, whatever it
    /// left to the default before.
    void toggleEnabled(QModelIndex const& index);
    /// Opens the repository in the user's browser. Rows at and behind the number of packages are passed over.
    void browse(QModelIndex const& index, QWidget* parent);

    /// Makes views read the row anew.
    void dataChanged(int row);

Q_SIGNALS:
    /// The session uses a repository that it didn't use before, or the other way around.
    void useChanged();
    /// The configuration has a change that no file has.
    void configChanged();

private:
    [[nodiscard]] Repo::Entry* entryAt(QModelIndex const& index) const;
    [[nodiscard]] QVariant decoration(Repo::Entry const& entry, int column) const;
    [[nodiscard]] QString toolTip(Repo::Entry const& entry, int column) const;
    [[nodiscard]] QString spoken(Repo::Entry const& entry, int column) const;
    [[nodiscard]] static QString stateText(int column, bool isOn);
    [[nodiscard]] bool isEnabled(Repo::Entry const& entry) const;
    void cellChanged(int row, int column);

    YumIO* yumIO;
    YumConfIO* yumConfIO;
    QFont italicFont;
    QIcon noneBoxIcon;
    QIcon checkBoxIcon;
};

} // namespace RepoEditor
