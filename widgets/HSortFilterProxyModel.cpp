// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/HSortFilterProxyModel.h"

#include "widgets/HAbstractTableModel.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace
{

enum class Order
{
    Less,
    Equal,
    Neither
};

template <class Value>
Order compare(Value const& left, Value const& right)
{
    return left < right ? Order::Less : left == right ? Order::Equal : Order::Neither;
}

Order compare(QVariant const& left, QVariant const& right)
{
    switch (left.typeId()) {
    case QMetaType::Int:
        return compare(left.toInt(), right.toInt());
    case QMetaType::UInt:
        return compare(left.toUInt(), right.toUInt());
    case QMetaType::LongLong:
        return compare(left.toLongLong(), right.toLongLong());
    case QMetaType::ULongLong:
        return compare(left.toULongLong(), right.toULongLong());
    case QMetaType::Double:
        return compare(left.toDouble(), right.toDouble());
    case QMetaType::QChar:
        return compare(left.toChar(), right.toChar());
    case QMetaType::QDate:
        return compare(left.toDate(), right.toDate());
    case QMetaType::QTime:
        return compare(left.toTime(), right.toTime());
    case QMetaType::QDateTime:
        return compare(left.toDateTime(), right.toDateTime());
    default:
        return compare(left.toString(), right.toString());
    }
}

} // namespace

HSortFilterProxyModel::HSortFilterProxyModel(int secondarySortColumnToUse, QObject* parent)
    : QSortFilterProxyModel(parent),
      secondarySortColumn(secondarySortColumnToUse)
{
}

void HSortFilterProxyModel::setSourceModel(HAbstractTableModel* model)
{
    disconnect(refilling);
    QSortFilterProxyModel::setSourceModel(model);
    sourceModel = model;
    if (model) {
        refilling = connect(model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
            if (!rebuilding) {
                sourceWasRefilled();
            }
        });
    }
    sourceWasRefilled();
}

void HSortFilterProxyModel::sourceWasRefilled() {}

void HSortFilterProxyModel::filterChanged()
{
    rebuild();
}

void HSortFilterProxyModel::clear()
{
    rebuild();
}

void HSortFilterProxyModel::setFilterRegExp(QString const& pattern)
{
    changeExpression(pattern);
}

void HSortFilterProxyModel::setFilterRegExp(QRegularExpression const& expression)
{
    changeExpression(expression);
}

QRegularExpression HSortFilterProxyModel::filterRegExp() const
{
    return filterRegularExpression();
}

bool HSortFilterProxyModel::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    Order const order = compare(left.data(Qt::DisplayRole), right.data(Qt::DisplayRole));
    if (order != Order::Equal || left.column() == secondarySortColumn) {
        return order == Order::Less;
    }
    QModelIndex const secondaryRight = createSecondarySortIndex(right);
    QModelIndex const secondaryLeft = createSecondarySortIndex(left);
    // Without a secondary cell the next round would stand here again, and so on for ever.
    return secondaryLeft.isValid() && lessThan(secondaryLeft, secondaryRight);
}

QModelIndex HSortFilterProxyModel::createSecondarySortIndex(QModelIndex const& index) const
{
    QAbstractItemModel const* const model = index.model();
    return model ? model->index(index.row(), secondarySortColumn, QModelIndex()) : QModelIndex();
}

// The base answers a new expression by removing and inserting every run of rows by itself while the views
// follow each step, which takes minutes on a large selected table. While no source is set there is nothing
// to remove. The views hear nothing of this and are told by the reset of the source.
template <class Expression>
void HSortFilterProxyModel::changeExpression(Expression const& expression)
{
    {
        QSignalBlocker const blocker(this);
        QSortFilterProxyModel::setSourceModel(nullptr);
        setFilterRegularExpression(expression);
        QSortFilterProxyModel::setSourceModel(sourceModel);
    }
    rebuild();
}

void HSortFilterProxyModel::sort(int column, Qt::SortOrder order)
{
    bool const stands = sortedByReset && column == sortColumn() && order == sortOrder();
    if (stands) {
        // Without a view nobody has asked yet; the rows are filtered now and not at some later question.
        static_cast<void>(rowCount());
    } else {
        QSortFilterProxyModel::sort(column, order);
    }
    knownColumns = sourceModel ? sourceModel->columnCount() : 0;
}

// The reset makes the base drop its mapping and leaves the rows to be filtered and sorted anew at the first
// question, by the column that it knew before. Only a column that has come with the reset isn't sorted by
// yet.
void HSortFilterProxyModel::rebuild()
{
    bool const known = sortColumn() < knownColumns;
    if (sourceModel) {
        QScopedValueRollback const guard(rebuilding, true);
        sourceModel->forceSortColumnRediscovery();
    }
    QScopedValueRollback const guard(sortedByReset, known);
    sort(sortColumn(), sortOrder());
}
