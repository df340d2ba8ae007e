// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "advisories/Advisory.h"
#include "widgets/HAbstractTableModel.h"

#include <QFont>

namespace Advisories
{

/// The table of the packages that one advisory names. Owned by its QObject parent, GUI thread.
class PackagesModel final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NameColumn,
        VersionColumn,
        InstalledColumn,
        ArchitectureColumn,
        StateColumn,
        ColumnCount
    };

    explicit PackagesModel(QObject* parent);

    void show(QList<Package> const& those);
    /// What is open stands in this font, made bold.
    void setFont(QFont const& font);

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString cell(Package const& package, int column);

    QList<Package> packages;
    QFont bold;
};

} // namespace Advisories
