// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/HistoryPackagesModel.h"

#include "services/TransactionDetails.h"
#include "widgets/Fonts.h"

namespace History
{

PackagesModel::PackagesModel(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void PackagesModel::show(Whole const& transaction)
{
    beginResetModel();
    packages = transaction.packages;
    groups = transaction.groups;
    endResetModel();
}

void PackagesModel::setFont(QFont const& font)
{
    bold = Fonts::makeBold(font);
    if (rowCount() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::FontRole});
    }
}

int PackagesModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(packages.size() + groups.size());
}

int PackagesModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant PackagesModel::data(QModelIndex const& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    bool const isPackage = index.row() < packages.size();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return isPackage ? cell(packages.at(index.row()), index.column())
                         : cell(groups.at(index.row() - packages.size()), index.column());
    case Qt::FontRole:
        return isPackage && packages.at(index.row()).failed ? QVariant(bold) : QVariant();
    default:
        return {};
    }
}

QString PackagesModel::cell(Package const& package, int column)
{
    switch (column) {
    case ActionColumn:
        return package.failed ? tr("%1: failed").arg(Words::of(package.action)) : Words::of(package.action);
    case NameColumn:
        return package.name;
    case VersionColumn:
        return TransactionDetails::versions(package.oldVersion, package.newVersion);
    case ArchitectureColumn:
        return package.arch;
    case RepositoryColumn:
        return package.repository;
    case ReasonColumn:
        return Words::of(package.reason);
    default:
        return {};
    }
}

QString PackagesModel::cell(Group const& group, int column)
{
    switch (column) {
    case ActionColumn:
        return Words::of(group.action);
    case NameColumn:
        return tr("Group %1").arg(group.name.isEmpty() ? group.id : group.name);
    default:
        return {};
    }
}

QVariant PackagesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    bool const tip = role == Qt::ToolTipRole;
    switch (section) {
    case ActionColumn:
        return tip ? tr("What was done to the package") : tr("Change");
    case NameColumn:
        return tip ? tr("Name of the package") : tr("Name");
    case VersionColumn:
        return tip ? tr("Version before, and the version that took its place") : tr("Version");
    case ArchitectureColumn:
        return tip ? tr("Architecture of the package") : tr("Architecture");
    case RepositoryColumn:
        return tip ? tr("Where the package came from") : tr("Repository");
    case ReasonColumn:
        return tip ? tr("Why the package was installed") : tr("Reason");
    default:
        return {};
    }
}

} // namespace History
