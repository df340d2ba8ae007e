// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAbstractTableModel>

/// The base of every table's model. A subclass gives rowCount, columnCount and data; a
/// HSortFilterProxyModel stands between it and the view. Owned by its QObject parent, GUI thread.
class HAbstractTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit HAbstractTableModel(QObject* parent);

    /// Resets the model without a change of what it holds: proxies drop their mapping, look for their
    /// sort column again and filter anew; views drop their selection and current index.
    void forceSortColumnRediscovery();
};
