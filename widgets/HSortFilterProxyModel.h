// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSortFilterProxyModel>

class HAbstractTableModel;
class QRegularExpression;

/// A proxy that sorts by the displayed values in their real type, decides ties by one fixed second
/// column, and stands sorted again after every change of its filter. Owned by its QObject parent, GUI
/// thread.
class HSortFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    /// `secondarySortColumn`: the source column that decides between rows that are equal in the sorted one.
    HSortFilterProxyModel(int secondarySortColumn, QObject* parent);

    /// The table to sort and filter; not owned. A proxy must not be given any other kind of model.
    void setSourceModel(HAbstractTableModel* model);

    /// The four operations after which rows may come, go and move. Each resets the source model, which also
    /// clears the selection and the current index of the views, and then sorts as before. What the source
    /// holds isn't touched. A change of 66,000 rows costs one pass and not one signal for each run of rows.
    void filterChanged();
    void clear();
    /// Keeps the pattern options of the expression that is replaced, so its case sensitivity too.
    void setFilterRegExp(QString const& pattern);
    void setFilterRegExp(QRegularExpression const& expression);

    /// The expression that rows are filtered by.
    [[nodiscard]] QRegularExpression filterRegExp() const;

    /// Whether the source cell `left` sorts before `right`: by the display values, in the type of the left
    /// one; equal cells by their rows' cells in the secondary column.
    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

    /// Sorts the rows that show, unless they stand in that order since a moment ago, after a change of
    /// filter.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// The cell of the secondary column in the row of `index`, in the model of `index`. Invalid when the
    /// index has no model or the model has no such column.
    [[nodiscard]] QModelIndex createSecondarySortIndex(QModelIndex const& index) const;

protected:
    /// Called when the source has got other rows by a reset that isn't one of this proxy's own, just before
    /// the rows are filtered and sorted anew. Does nothing here.
    virtual void sourceWasRefilled();

private:
    // A plain item model has no forceSortColumnRediscovery(); giving one is a mistake the compiler finds.
    using QSortFilterProxyModel::setSourceModel;

    template <class Expression>
    void changeExpression(Expression const& expression);
    void rebuild();

    int const secondarySortColumn;
    QMetaObject::Connection refilling;
    int knownColumns = 0;       ///< how many the source had when this was sorted
    bool rebuilding = false;    ///< the source is being reset by this proxy
    bool sortedByReset = false; ///< that reset has sorted as before
    // Hides the base's operation of the same name, which is QAbstractProxyModel::sourceModel() here.
    HAbstractTableModel* sourceModel = nullptr;
};
