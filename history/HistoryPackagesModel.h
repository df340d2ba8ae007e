// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "history/HistoryTransaction.h"
#include "widgets/HAbstractTableModel.h"

#include <QFont>

namespace History
{

/// The table of what one transaction did: its packages, and behind them its groups. Owned by its QObject
/// parent, GUI thread.
class PackagesModel final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        ActionColumn,
        NameColumn,
        VersionColumn,
        ArchitectureColumn,
        RepositoryColumn,
        ReasonColumn,
        ColumnCount
    };

    explicit PackagesModel(QObject* parent);

    void show(Whole const& transaction);
    /// What has failed stands out in this font, made bold.
    void setFont(QFont const& font);

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] static QString cell(Package const& package, int column);
    [[nodiscard]] static QString cell(Group const& group, int column);

    QList<Package> packages;
    QList<Group> groups;
    QFont bold;
};

} // namespace History
