// SPDX-License-Identifier: GPL-2.0-or-later
#include "history/HistoryModel.h"

#include "matters/Moments.h"
#include "widgets/Fonts.h"

#include <algorithm>

namespace History
{

Model::Model(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void Model::setTransactions(QList<Transaction> const& all)
{
    beginResetModel();
    transactions = all;
    endResetModel();
}

int Model::rowOf(int number) const
{
    auto const found =
        std::find_if(transactions.begin(), transactions.end(), [number](Transaction const& transaction) {
            return transaction.number == number;
        });
    return found == transactions.end() ? -1 : static_cast<int>(found - transactions.begin());
}

int Model::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(transactions.size());
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
    Transaction const& transaction = transactions.at(index.row());
    bool const bad = transaction.result == Result::Failed || transaction.result == Result::CutOff;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cell(transaction, index.column());
    case Qt::FontRole:
        return bad ? QVariant(bold) : QVariant();
    case Qt::DecorationRole:
        return bad && index.column() == ResultColumn ? QVariant(warning) : QVariant();
    default:
        return {};
    }
}

QVariant Model::cell(Transaction const& transaction, int column)
{
    switch (column) {
    case NumberColumn:
        return transaction.number;
    case BeginColumn:
        return Moments::moment(transaction.begun);
    case UserColumn:
        return transaction.user;
    case ResultColumn:
        return Words::of(transaction.result);
    case CountsColumn:
        return Words::counts(transaction);
    case CommandColumn:
        return transaction.command;
    case CommentColumn:
        return transaction.comment;
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
    case NumberColumn:
        return tip ? tr("Number of the transaction, as the package library counts") : tr("Number");
    case BeginColumn:
        return tip ? tr("When the transaction began") : tr("Begin");
    case UserColumn:
        return tip ? tr("Who had logged in") : tr("User");
    case ResultColumn:
        return tip ? tr("What came of the transaction") : tr("Result");
    case CountsColumn:
        return tip ? tr("What was done to how many packages and groups") : tr("Changes");
    case CommandColumn:
        return tip ? tr("Command line of the program that did it") : tr("Command");
    case CommentColumn:
        return tip ? tr("What the user has noted") : tr("Comment");
    default:
        return {};
    }
}

void Model::setLooks(QFont const& font, QIcon const& sign)
{
    bold = Fonts::makeBold(font);
    warning = sign;
    if (!transactions.isEmpty()) {
        Q_EMIT dataChanged(
            index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::FontRole, Qt::DecorationRole});
    }
}

Proxy::Proxy(Model* model, QObject* parent)
    : HSortFilterProxyModel(Model::NumberColumn, parent),
      history(model)
{
    setSourceModel(model);
}

void Proxy::show(std::optional<QSet<int>> const& numbers)
{
    shown = numbers;
    filterChanged();
}

bool Proxy::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    if (left.column() == Model::CountsColumn) {
        int const leftCount = history->transaction(left.row()).count();
        int const rightCount = history->transaction(right.row()).count();
        if (leftCount != rightCount) {
            return leftCount < rightCount;
        }
    }
    return HSortFilterProxyModel::lessThan(left, right);
}

bool Proxy::filterAcceptsRow(int row, QModelIndex const&) const
{
    return !shown || shown->contains(history->transaction(row).number);
}

} // namespace History
