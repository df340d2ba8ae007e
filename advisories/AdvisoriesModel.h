// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "advisories/Advisory.h"
#include "widgets/HAbstractTableModel.h"
#include "widgets/HSortFilterProxyModel.h"

#include <QFont>

class QWidget;

namespace Advisories
{

/// The table of all advisories, one a row, the latest first. Owned by its QObject parent, GUI thread.
class Model final : public HAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        StateColumn,
        KindColumn,
        SeverityColumn,
        IdentifierColumn,
        IssuedColumn,
        CountColumn,
        TitleColumn,
        CvesColumn,
        ColumnCount
    };

    explicit Model(QObject* parent);

    void setAdvisories(QList<Advisory> const& all);
    [[nodiscard]] Advisory const& advisory(int row) const { return advisories.at(row); }
    /// The row of the advisory with this identifier; -1 where there is none.
    [[nodiscard]] int rowOf(QString const& identifier) const;

    [[nodiscard]] int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(QModelIndex const& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Takes font and signs of this window: what is open stands in bold, and grave ones have a sign.
    void setLooks(QWidget const* window);

private:
    [[nodiscard]] static QVariant cell(Advisory const& advisory, int column);

    QList<Advisory> advisories;
    QFont bold;
    SeveritySigns signs;
};

/// Sorts that table, severities by their gravity, and shows what is asked for.
class Proxy final : public HSortFilterProxyModel
{
    Q_OBJECT

public:
    /// What shows; the values are the indexes of the combo that chooses it.
    enum Show
    {
        OpenSecurity,
        Open,
        All
    };

    Proxy(Model* model, QObject* parent);

    /// Of these only those with the text in their identifier, title or CVEs, whatever the case.
    void show(Show which, QString const& text);

    [[nodiscard]] bool lessThan(QModelIndex const& left, QModelIndex const& right) const override;

protected:
    [[nodiscard]] bool filterAcceptsRow(int row, QModelIndex const& parent) const override;

private:
    Model const* model;
    Show which = Open;
    QString text;
};

} // namespace Advisories
