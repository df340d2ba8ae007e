// SPDX-License-Identifier: GPL-2.0-or-later
#include "restarts/RestartsFilesModel.h"

namespace Restarts
{

FilesModel::FilesModel(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void FilesModel::show(QList<File> const& those)
{
    beginResetModel();
    files = those;
    endResetModel();
}

int FilesModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(files.size());
}

int FilesModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FilesModel::data(QModelIndex const& index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    File const& file = files.at(index.row());
    switch (index.column()) {
    case PathColumn:
        return file.path;
    case PackageColumn:
        return file.package;
    case StateColumn:
        return file.gone ? tr("Removed") : tr("Replaced");
    default:
        return {};
    }
}

QVariant FilesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    bool const tip = role == Qt::ToolTipRole;
    switch (section) {
    case PathColumn:
        return tip ? tr("Path of the file") : tr("File");
    case PackageColumn:
        return tip ? tr("Package that the file belongs to now") : tr("Package");
    case StateColumn:
        return tip ? tr("Whether the file that the process uses is there in another version, or gone")
                   : tr("State");
    default:
        return {};
    }
}

} // namespace Restarts
