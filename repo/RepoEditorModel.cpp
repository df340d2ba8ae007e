// SPDX-License-Identifier: GPL-2.0-or-later
#include "repo/RepoEditorModel.h"

#include "base/Share.h"
#include "engine/YumIO.h"
#include "repo/RepoBrowse.h"
#include "repo/YumConfIO.h"

#include <array>

namespace RepoEditor
{

namespace
{

struct ColumnHeader
{
    char const* title;
    char const* toolTip;
};

constexpr std::array<ColumnHeader, ColumnCount> columnHeaders{{
    {QT_TRANSLATE_NOOP("RepoEditor::Model", "Sess"),
     QT_TRANSLATE_NOOP(
         "RepoEditor::Model", "Whether or not the repository is used during this session.\n"
                              "It overrides the persistent Enabled flag in the repository configuration.")},
    {QT_TRANSLATE_NOOP("RepoEditor::Model", "Perm"),
     QT_TRANSLATE_NOOP(
         "RepoEditor::Model", "Whether or not the repository is configured to be enabled by default.\n"
                              "It can be overridden for a particular session.")},
    {QT_TRANSLATE_NOOP("RepoEditor::Model", "Identifier"),
     QT_TRANSLATE_NOOP("RepoEditor::Model", "Unique identifier for the repository")},
    {QT_TRANSLATE_NOOP("RepoEditor::Model", "Name"),
     QT_TRANSLATE_NOOP("RepoEditor::Model", "Description of the repository")},
}};

} // namespace

Model::Model(YumIO* engine, YumConfIO* configuration, QObject* parent)
    : HAbstractTableModel(parent),
      yumIO(engine),
      yumConfIO(configuration),
      noneBoxIcon(Share::icon(QStringLiteral("icons/noneBox.png"))),
      checkBoxIcon(Share::icon(QStringLiteral("icons/checkBox.png")))
{
}

int Model::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(yumConfIO->repos.size());
}

int Model::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Repo::Entry* Model::entryAt(QModelIndex const& index) const
{
    if (!index.isValid() || index.row() >= yumConfIO->repos.size()) {
        return nullptr;
    }
    return &yumConfIO->repos[index.row()];
}

QVariant Model::data(QModelIndex const& index, int role) const
{
    Repo::Entry const* const entry = entryAt(index);
    if (!entry) {
        return {};
    }
    int const column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        if (column == IdentifierColumn) {
            return entry->id.isEmpty() ? tr("(new)") : entry->id;
        }
        return column == NameColumn ? QVariant(entry->name) : QVariant();
    case Qt::DecorationRole:
        return decoration(*entry, column);
    case Qt::ToolTipRole:
        return column <= PermanentColumn ? QVariant(toolTip(*entry, column)) : QVariant();
    case Qt::AccessibleTextRole:
        return column <= PermanentColumn ? QVariant(spoken(*entry, column)) : QVariant();
    case Qt::FontRole:
        return column == IdentifierColumn && entry->id.isEmpty() ? QVariant(italicFont) : QVariant();
    default:
        return {};
    }
}

QVariant Model::decoration(Repo::Entry const& entry, int column) const
{
    switch (column) {
    case SessionColumn:
        return yumConfIO->reposEnabled[entry.id] ? checkBoxIcon : noneBoxIcon;
    case PermanentColumn:
        return isEnabled(entry) ? checkBoxIcon : noneBoxIcon;
    default:
        return {};
    }
}

// Both columns ask the session: the tips turn together, and the icon alone tells the permanent state.
QString Model::toolTip(Repo::Entry const& entry, int column) const
{
    return stateText(column, yumConfIO->reposEnabled[entry.id]);
}

// Who does not see the icon gets to hear what it shows.
QString Model::spoken(Repo::Entry const& entry, int column) const
{
    bool const isOn = column == SessionColumn ? yumConfIO->reposEnabled[entry.id] : isEnabled(entry);
    return stateText(column, isOn);
}

QString Model::stateText(int column, bool isOn)
{
    if (column == SessionColumn) {
        return isOn ? tr("Repository is enabled for this session")
                    : tr("Repository is not enabled for this session");
    }
    return isOn ? tr("Repository is configured to be enabled")
                : tr("Repository is not configured to be enabled");
}

bool Model::isEnabled(Repo::Entry const& entry) const
{
    return entry.enabled == Repo::Yes || (entry.enabled == Repo::Default && yumConfIO->mainEnabled);
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    ColumnHeader const& header = columnHeaders[static_cast<size_t>(section)];
    switch (role) {
    case Qt::DisplayRole:
        return tr(header.title);
    case Qt::ToolTipRole:
        return tr(header.toolTip);
    default:
        return {};
    }
}

void Model::setViewFont(QFont const& font)
{
    italicFont = font;
    italicFont.setItalic(true);
}

int Model::addRow(Repo::Entry const& entry)
{
    int const row = rowCount();
    beginInsertRows({}, row, row);
    yumConfIO->repos.append(entry);
    endInsertRows();
    return row;
}

bool Model::removeRow(int row, QModelIndex const& parent)
{
    if (row >= 0 && row < rowCount(parent)) {
        beginRemoveRows(parent, row, row);
        yumConfIO->repos.removeAt(row);
        endRemoveRows();
    }
    return true;
}

void Model::reset()
{
    beginResetModel();
    endResetModel();
}

QModelIndex Model::createIndex(int row) const
{
    return index(row, 0);
}

void Model::toggleUse(QModelIndex const& index)
{
    if (Repo::Entry const* const entry = entryAt(index)) {
        bool& isUsed = yumConfIO->reposEnabled[entry->id];
        isUsed = !isUsed;
        cellChanged(index.row(), SessionColumn);
        Q_EMIT useChanged();
    }
}

void Model::toggleEnabled(QModelIndex const& index)
{
    if (Repo::Entry* const entry = entryAt(index)) {
        entry->enabled = isEnabled(*entry) ? Repo::No : Repo::Yes;
        cellChanged(index.row(), PermanentColumn);
        Q_EMIT configChanged();
    }
}

void Model::browse(QModelIndex const& index, QWidget* parent)
{
    Repo::Entry const* const entry = entryAt(index);
    if (entry && index.row() < yumIO->count()) {
        RepoBrowse::browse(parent, *entry, yumIO);
    }
}

void Model::dataChanged(int row)
{
    Q_EMIT QAbstractItemModel::dataChanged(index(row, SessionColumn), index(row, NameColumn));
}

void Model::cellChanged(int row, int column)
{
    QModelIndex const changed = index(row, column);
    Q_EMIT QAbstractItemModel::dataChanged(changed, changed);
}

} // namespace RepoEditor
