// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "services/TransactionDetails.h"
#include "widgets/HAbstractTableModel.h"
#include "widgets/HSortFilterProxyModel.h"

#include <QFont>

/// The table of a transaction's packages, one a row. Owned by its QObject parent, GUI thread.
class DetailsModel final : public HAbstractTableModel
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
        SizeColumn,
        WhyColumn,
        ColumnCount
    };

    /// `font` is that of the table; rows that want attention have it in bold.
    DetailsModel(QList<TransactionDetails::Row> transaction, QFont const& font, QObject* parent);

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    [[nodiscard]] TransactionDetails::Row const& row(int at) const { return rows.at(at); }

    void setFont(QFont const& font);

    /// The words of an action.
    [[nodiscard]] static QString words(TransactionDetails::Action action);
    /// Why the package is in the transaction.
    [[nodiscard]] static QString reason(TransactionDetails::Row const& row);
    /// What a warning says, with "%1" where names of packages go.
    [[nodiscard]] static QString sentence(TransactionDetails::Warning warning);
    /// The names, and how many there are besides.
    [[nodiscard]] static QString listed(QStringList const& names, int more);

private:
    [[nodiscard]] QString cell(TransactionDetails::Row const& row, int column) const;
    [[nodiscard]] QString toolTip(TransactionDetails::Row const& row, int column) const;

    QList<TransactionDetails::Row> const rows;
    QFont bold;
};

/// Sorts that table: sizes by their bytes, all else by its words.
class DetailsProxy final : public HSortFilterProxyModel
{
    Q_OBJECT

public:
    DetailsProxy(DetailsModel* model, QObject* parent);

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

private:
    DetailsModel const* details;
};
