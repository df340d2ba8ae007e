// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"
#include "engine/RowDetails.h"
#include "widgets/HAbstractTableModel.h"
#include "widgets/Severity.h"

#include <QColor>
#include <QIcon>
#include <QList>
#include <QPointer>
#include <optional>

class QPalette;
class QWidget;
class YumConfIO;
class YumIO;

namespace PackageTable
{

namespace Describe
{
class Dialog;
}

/// The engine's list of packages, groups and suites as a table, one column for each of enum Column, and the
/// place where a user's marks land. It holds no rows of its own: row n is the n-th entry of the engine, read
/// when it is asked for. Owned by the main window; GUI thread only. The engine's list must not be rebuilt
/// while the table can paint, and `reset` must follow each rebuild.
///
/// All indexes are in this model's own terms. An index that is invalid or whose row has vanished is
/// harmless everywhere: nothing happens.
class Model : public HAbstractTableModel
{
    Q_OBJECT

public:
    /// `yumIO` is not owned and must outlive the model.
    Model(YumIO* yumIO, QObject* parent);

    /// Hands on the configuration that descriptions and repository browsing use; not owned. Comes before
    /// the first `describe` or `browse`.
    void setYumConfIO(YumConfIO* yumConfIO);

    // The base's answer in a third of its time: sorting 66,000 rows asks two million times.
    QModelIndex index(int row, int column, QModelIndex const& parent = QModelIndex()) const override;
    int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    /// The state of the entry of that row; `UpToDate` when there is no such row.
    [[nodiscard]] Package::State getState(int row) const;

    /// The text that the cell shows, without the detour of a QVariant; empty when there is no such row. The
    /// column is one from NameColumn on.
    [[nodiscard]] Package::Text const& text(int row, int column) const;
    /// The picture that the cell shows, as a number from 0 to 3; 0 when there is no such row. The column is
    /// one before NameColumn.
    [[nodiscard]] int picture(int row, int column) const;

    /// Marks the entry of the index's row. Emits nothing: the caller sees to the repaint.
    void setAction(QModelIndex const& index, Package::Action action);
    /// Marks each row of the list that fits: Install stands for an update where there is one, and None takes
    /// marks away.
    void markAll(QList<QModelIndex> const& rows, Package::Action wanted);
    /// Whether `markAll` would mark that row, or take its mark away.
    [[nodiscard]] bool wouldMark(QModelIndex const& index, Package::Action wanted) const;
    /// What a click in the Action cell does: goes on to the next action that fits the entry's state.
    void toggleAction(QModelIndex const& index);

    /// To be called whenever the engine's list has been rebuilt.
    void reset();

    /// Shows the description of the entry as a modal dialog. The dialog is made by the first call, over the
    /// `parent` of that call, and used again. What takes long to read is read by a job before, see `busy`.
    void describe(QModelIndex const& index, QWidget* parent);
    /// A column shows from now on, or no longer: what it shows is loaded by a job, see `busy`.
    void showColumn(int column, bool shown);
    /// Something else than the column needs the advisories from now on, or no longer: they are loaded
    /// likewise.
    void useAdvisories(bool used);
    /// Marks every update that a security advisory names. False where no repository tells of advisories.
    /// These are loaded likewise.
    bool setUpdateSecurity();
    /// Shows the repository of the entry in the user's browser; `parent` is the parent of error messages.
    void browse(QModelIndex const& index, QWidget* parent);

    /// Chooses the colours of an enabled or disabled table. Emits nothing: the next repaint takes them up.
    void setEnabled(bool enabled);
    /// Chooses the colours that can be read on the rows of a table with this palette. Emits nothing either.
    void setPalette(QPalette const& palette);
    /// Takes the signs of that table's style. Emits nothing either.
    void setSigns(QWidget const* table);

public Q_SLOTS:
    /// Marks each row of the list that can be updated or installed for just that, whatever its mark was;
    /// rows that are up to date keep theirs.
    void setSelected(QList<QModelIndex> const& rows);
    /// Marks everything that can be updated, shown or not, for update.
    void setUpdateAll();
    /// Takes away all marks.
    void clearActions();

Q_SIGNALS:
    /// `describe` or `showColumn` begins, or has ended, a job of the engine: events are served meanwhile, and
    /// until its end nobody may ask for another job or rebuild the list.
    void busy(bool begins);

private:
    struct StateColors
    {
        QColor enabled, disabled;
    };

    /// The entry of that row; null when there is none.
    Package::Entry* entryAt(QModelIndex const& index) const;
    /// The mark that `markAll` gives; nothing for none.
    static std::optional<Package::Action> fitting(Package::Entry const& entry, Package::Action wanted);
    void mark(int row, Package::Entry& entry, Package::Action action);
    QVariant decoration(int row, Package::Entry const& entry, int column) const;
    QVariant foreground(Package::Entry const& entry) const;
    QVariant toolTip(int row, Package::Entry const& entry, int column) const;
    static QString stateToolTip(Package::Entry const& entry);
    /// Where a transaction that was cut off has left more than one version of the package: which. Else empty.
    QString installedVersions(Package::Entry const& entry) const;
    [[nodiscard]] QIcon severitySign(int row) const;
    void want(Package::Detail detail, bool wanted);
    QVariant rawValue(Package::Entry* entry, int row, int column) const;

    YumIO* yumIO;
    YumConfIO* yumConfIO = nullptr;
    QPointer<Describe::Dialog> describeDialog; ///< made at the first use; owned by the widget given then
    bool enabled = true;
    QIcon outOfDateIcon, upToDateIcon, doubledIcon;
    QIcon noneBoxIcon, updateBoxIcon, installBoxIcon, removeBoxIcon;
    QIcon suiteIcon, groupIcon, packageIcon;
    SeveritySigns severitySigns;
    bool showsAdvisories = false; ///< in their column
    bool usesAdvisories = false;  ///< elsewhere
    StateColors outOfDateColors, upToDateColors, availableColors;
};

} // namespace PackageTable
