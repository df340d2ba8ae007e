// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "restarts/RestartsAdvice.h"
#include "widgets/HAbstractTableModel.h"

namespace Restarts
{

/// The table of the replaced files that one process uses. Owned by its QObject parent, GUI thread.
class FilesModel final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        PathColumn,
        PackageColumn,
        StateColumn,
        ColumnCount
    };

    explicit FilesModel(QObject* parent);

    void show(QList<File> const& those);

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<File> files;
};

} // namespace Restarts
