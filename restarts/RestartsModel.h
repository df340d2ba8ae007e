// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "restarts/RestartsAdvice.h"
#include "widgets/HAbstractTableModel.h"

namespace Restarts
{

/// The table of the processes that still use replaced files. Owned by its QObject parent, GUI thread.
class Model final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        UnitColumn,
        CommandColumn,
        PidColumn,
        UserColumn,
        StartedColumn,
        FilesColumn,
        ColumnCount
    };

    explicit Model(QObject* parent);

    void setProcesses(QList<Process> const& all);
    [[nodiscard]] Process const& process(int row) const { return processes.at(row); }
    /// The row of the process with this number; -1 where there is none.
    [[nodiscard]] int rowOf(int pid) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QVariant cell(Process const& process, int column);

    QList<Process> processes;
};

} // namespace Restarts
