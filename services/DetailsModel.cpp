// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/DetailsModel.h"

#include "widgets/Fonts.h"

using Row = TransactionDetails::Row;
using Action = TransactionDetails::Action;
using Why = TransactionDetails::Why;

namespace
{

constexpr TransactionDetails::Warnings serious = TransactionDetails::Unmarked |
                                                 TransactionDetails::Protected | TransactionDetails::Running |
                                                 TransactionDetails::Older;

} // namespace

DetailsModel::DetailsModel(QList<Row> transaction, QFont const& font, QObject* parent)
    : HAbstractTableModel(parent),
      rows(std::move(transaction))
{
    setFont(font);
}

int DetailsModel::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int DetailsModel::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DetailsModel::data(QModelIndex const& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    Row const& row = rows.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return cell(row, index.column());
    case Qt::ToolTipRole:
        return toolTip(row, index.column());
    case Qt::FontRole:
        return (row.warnings & serious) ? QVariant(bold) : QVariant();
    default:
        return {};
    }
}

QVariant DetailsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole)) {
        return {};
    }
    bool const tip = role == Qt::ToolTipRole;
    switch (section) {
    case ActionColumn:
        return tip ? tr("What happens to the package") : tr("Action");
    case NameColumn:
        return tip ? tr("Name of the package") : tr("Name");
    case VersionColumn:
        return tip ? tr("Installed version, and the version that takes its place") : tr("Version");
    case ArchitectureColumn:
        return tip ? tr("Architecture of the package") : tr("Architecture");
    case RepositoryColumn:
        return tip ? tr("Where the package comes from") : tr("Repository");
    case SizeColumn:
        return tip ? tr("What is downloaded; of a package that goes, what it takes on the disk") : tr("Size");
    case WhyColumn:
        return tip ? tr("Why the package is part of the transaction") : tr("Why");
    default:
        return {};
    }
}

void DetailsModel::setFont(QFont const& font)
{
    bold = Fonts::makeBold(font);
    if (!rows.isEmpty()) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::FontRole});
    }
}

QString DetailsModel::cell(Row const& row, int column) const
{
    switch (column) {
    case ActionColumn:
        return words(row.action);
    case NameColumn:
        return row.name;
    case VersionColumn:
        return TransactionDetails::versions(row.oldVersion, row.newVersion);
    case ArchitectureColumn:
        return row.arch;
    case RepositoryColumn:
        return row.repository;
    case SizeColumn:
        return row.sizeText;
    case WhyColumn:
        return reason(row);
    default:
        return {};
    }
}

QString DetailsModel::toolTip(Row const& row, int column) const
{
    QStringList lines(cell(row, column));
    for (TransactionDetails::Warning const warning :
         {TransactionDetails::Protected, TransactionDetails::Running, TransactionDetails::Unmarked,
          TransactionDetails::Older, TransactionDetails::Unchecked}) {
        if (row.warnings & warning) {
            lines.append(sentence(warning).arg(row.name));
        }
    }
    return lines.join(QLatin1Char('\n'));
}

QString DetailsModel::words(Action action)
{
    switch (action) {
    case Action::Install:
        return tr("Install");
    case Action::Update:
        return tr("Update");
    case Action::Downgrade:
        return tr("Downgrade");
    case Action::Reinstall:
        return tr("Reinstall");
    case Action::Remove:
        return tr("Remove");
    case Action::Replace:
        return tr("Replace");
    }
    return {};
}

QString DetailsModel::reason(Row const& row)
{
    QString const whom = listed(row.whom, row.more);
    QString text;
    switch (row.why) {
    case Why::Marked:
        text = tr("marked");
        break;
    case Why::Required:
        text = tr("required by %1").arg(whom);
        break;
    case Why::Recommended:
        text = tr("recommended by %1").arg(whom);
        break;
    case Why::Together:
        text = tr("goes together with %1").arg(whom);
        break;
    case Why::Needs:
        text = tr("needs %1").arg(whom);
        break;
    case Why::Supplanted:
        text = tr("replaced by %1").arg(whom);
        break;
    case Why::Unneeded:
        text = tr("no longer needed");
        break;
    case Why::Surplus:
        text = tr("one version too many");
        break;
    case Why::Solver:
        text = tr("to resolve dependencies");
        break;
    }
    return row.replaces.isEmpty() ? text
                                  : tr("%1; replaces %2").arg(text, row.replaces.join(QLatin1String(", ")));
}

QString DetailsModel::sentence(TransactionDetails::Warning warning)
{
    switch (warning) {
    case TransactionDetails::Unmarked:
        return tr("Removed without being marked: %1");
    case TransactionDetails::Protected:
        return tr("Protected, and goes all the same: %1");
    case TransactionDetails::Running:
        return tr("The running kernel goes: %1");
    case TransactionDetails::Older:
        return tr("Older than the installed version: %1");
    case TransactionDetails::Unchecked:
        return tr("Signature not checked, by the configuration of the repository: %1");
    }
    return {};
}

QString DetailsModel::listed(QStringList const& names, int more)
{
    QString const text = names.join(QLatin1String(", "));
    return more > 0 ? tr("%1 and %2 more").arg(text).arg(more) : text;
}

DetailsProxy::DetailsProxy(DetailsModel* model, QObject* parent)
    : HSortFilterProxyModel(DetailsModel::NameColumn, parent),
      details(model)
{
    setSourceModel(model);
}

bool DetailsProxy::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    if (left.column() == DetailsModel::SizeColumn) {
        long long const one = details->row(left.row()).size;
        long long const other = details->row(right.row()).size;
        if (one != other) {
            return one < other;
        }
    }
    return HSortFilterProxyModel::lessThan(left, right);
}
