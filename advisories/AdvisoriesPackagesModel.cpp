// SPDX-License-Identifier: GPL-2.0-or-later
#include "advisories/AdvisoriesPackagesModel.h"

#include "widgets/Fonts.h"

namespace Advisories
{

PackagesModel::PackagesModel(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void PackagesModel::show(QList<Package> const& those)
{
    beginResetModel();
    packages = those;
    endResetModel();
}

void PackagesModel::setFont(QFont const& font)
{
    bold = Fonts::makeBold(font);
    if (!packages.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::FontRole});
    }
}

int PackagesModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(packages.size());
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
    Package const& package = packages.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cell(package, index.column());
    case Qt::FontRole:
        return package.open ? QVariant(bold) : QVariant();
    default:
        return {};
    }
}

QString PackagesModel::cell(Package const& package, int column)
{
    switch (column) {
    case NameColumn:
        return package.name;
    case VersionColumn:
        return package.version;
    case InstalledColumn:
        return package.installed;
    case ArchitectureColumn:
        return package.arch;
    case StateColumn:
        return package.open                  ? tr("Open")
               : package.installed.isEmpty() ? tr("Not installed")
                                             : tr("Carried out");
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
    case NameColumn:
        return tip ? tr("Name of the package") : tr("Name");
    case VersionColumn:
        return tip ? tr("Version that the advisory names") : tr("Version");
    case InstalledColumn:
        return tip ? tr("Version that is installed") : tr("Installed");
    case ArchitectureColumn:
        return tip ? tr("Architecture of the package") : tr("Architecture");
    case StateColumn:
        return tip ? tr("Whether what is installed is older") : tr("State");
    default:
        return {};
    }
}

} // namespace Advisories
