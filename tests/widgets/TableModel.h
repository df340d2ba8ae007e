// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "widgets/HAbstractTableModel.h"

#include <QMap>

/// A table of the display values given to it, with other roles cell by cell. Counts how often the number of
/// its rows is asked for.
class TableModel : public HAbstractTableModel
{
public:
    using Rows = QList<QVariantList>;

    explicit TableModel(Rows initialRows, QObject* parent = nullptr)
        : HAbstractTableModel(parent),
          rows(std::move(initialRows))
    {
    }

    [[nodiscard]] int rowCount(QModelIndex const& parent = {}) const override
    {
        ++rowCountCalls;
        return parent.isValid() ? 0 : static_cast<int>(rows.size());
    }

    [[nodiscard]] int columnCount(QModelIndex const& parent = {}) const override
    {
        return parent.isValid() || rows.isEmpty() ? 0 : static_cast<int>(rows.first().size());
    }

    [[nodiscard]] QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid()) {
            return {};
        }
        return role == Qt::DisplayRole ? rows.at(index.row()).at(index.column())
                                       : otherRoles.value({index.row(), index.column()}).value(role);
    }

    [[nodiscard]] Qt::ItemFlags flags(QModelIndex const& index) const override
    {
        Qt::ItemFlags flags = HAbstractTableModel::flags(index);
        flags.setFlag(Qt::ItemIsSelectable, selectable && index.isValid());
        return flags;
    }

    void setRows(Rows newRows)
    {
        beginResetModel();
        rows = std::move(newRows);
        endResetModel();
    }

    /// Against the rules: without a word to anybody.
    void silentlyTakeRows(Rows newRows) { rows = std::move(newRows); }

    QMap<std::pair<int, int>, QMap<int, QVariant>> otherRoles;
    bool selectable = true;
    mutable int rowCountCalls = 0;

private:
    Rows rows;
};
