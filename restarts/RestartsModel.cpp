// SPDX-License-Identifier: GPL-2.0-or-later
#include "restarts/RestartsModel.h"

#include "matters/Moments.h"

#include <algorithm>

namespace Restarts
{

Model::Model(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void Model::setProcesses(QList<Process> const& all)
{
    beginResetModel();
    processes = all;
    endResetModel();
}

int Model::rowOf(int pid) const
{
    auto const found =
        std::ranges::find_if(processes, [pid](Process const& process) { return process.pid == pid; });
    return found == processes.end() ? -1 : static_cast<int>(found - processes.begin());
}

int Model::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(processes.size());
}

int Model::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant Model::data(QModelIndex const& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    Process const& process = processes.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cell(process, index.column());
    case Qt::ToolTipRole:
        return index.column() == UnitColumn && !process.obstacle.isEmpty() ? QVariant(process.obstacle)
                                                                           : cell(process, index.column());
    default:
        return {};
    }
}

QVariant Model::cell(Process const& process, int column)
{
    switch (column) {
    case UnitColumn:
        return process.unit;
    case CommandColumn:
        return process.command;
    case PidColumn:
        return process.pid;
    case UserColumn:
        return process.user;
    case StartedColumn:
        return Moments::moment(process.started);
    case FilesColumn:
        return static_cast<int>(process.files.size());
    default:
        return {};
    }
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    bool const tip = role == Qt::ToolTipRole;
    switch (section) {
    case UnitColumn:
        return tip ? tr("Unit of systemd that the process belongs to") : tr("Service");
    case CommandColumn:
        return tip ? tr("Command that runs") : tr("Command");
    case PidColumn:
        return tip ? tr("Number of the process") : tr("Process");
    case UserColumn:
        return tip ? tr("Whose process it is") : tr("User");
    case StartedColumn:
        return tip ? tr("When the process began") : tr("Started");
    case FilesColumn:
        return tip ? tr("How many files it uses that have been replaced") : tr("Files");
    default:
        return {};
    }
}

} // namespace Restarts
