// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "history/HistoryTransaction.h"
#include "widgets/HAbstractTableModel.h"
#include "widgets/HSortFilterProxyModel.h"

#include <QFont>
#include <QIcon>
#include <QSet>
#include <optional>

namespace History
{

/// The table of all transactions, one a row, the latest first. Owned by its QObject parent, GUI thread.
class Model final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        NumberColumn,
        BeginColumn,
        UserColumn,
        ResultColumn,
        CountsColumn,
        CommandColumn,
        CommentColumn,
        ColumnCount
    };

    explicit Model(QObject* parent);

    void setTransactions(QList<Transaction> const& all);
    [[nodiscard]] Transaction const& transaction(int row) const { return transactions.at(row); }
    /// The row of the transaction with this number; -1 where there is none.
    [[nodiscard]] int rowOf(int number) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Those that came to no good end stand out: in this font, made bold, and by a sign.
    void setLooks(QFont const& font, QIcon const& sign);

private:
    [[nodiscard]] static QVariant cell(Transaction const& transaction, int column);

    QList<Transaction> transactions;
    QFont bold;
    QIcon warning;
};

/// Sorts that table, and shows only the transactions that are asked for.
class Proxy final : public HSortFilterProxyModel
{
    Q_OBJECT

public:
    Proxy(Model* model, QObject* parent);

    /// Shows those with these numbers; all for nothing.
    void show(std::optional<QSet<int>> const& numbers);

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, QModelIndex const& parent) const override;

private:
    Model const* history;
    std::optional<QSet<int>> shown;
};

} // namespace History
