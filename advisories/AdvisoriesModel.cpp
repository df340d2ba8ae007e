// SPDX-License-Identifier: GPL-2.0-or-later
#include "advisories/AdvisoriesModel.h"

#include "matters/Moments.h"
#include "widgets/Fonts.h"

#include <QWidget>
#include <algorithm>

namespace Advisories
{

Model::Model(QObject* parent)
    : HAbstractTableModel(parent)
{
}

void Model::setAdvisories(QList<Advisory> const& all)
{
    beginResetModel();
    advisories = all;
    endResetModel();
}

int Model::rowOf(QString const& identifier) const
{
    auto const found =
        std::find_if(advisories.begin(), advisories.end(), [&identifier](Advisory const& advisory) {
            return advisory.identifier == identifier;
        });
    return found == advisories.end() ? -1 : static_cast<int>(found - advisories.begin());
}

int Model::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(advisories.size());
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
    Advisory const& advisory = advisories.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole:
        return cell(advisory, index.column());
    case Qt::FontRole:
        return advisory.open ? QVariant(bold) : QVariant();
    case Qt::DecorationRole:
        return index.column() == SeverityColumn ? QVariant(signs.of(advisory.severity)) : QVariant();
    default:
        return {};
    }
}

QVariant Model::cell(Advisory const& advisory, int column)
{
    switch (column) {
    case StateColumn:
        return advisory.open ? tr("Open") : tr("Carried out");
    case KindColumn:
        return Words::of(advisory.kind);
    case SeverityColumn:
        return Words::severity(advisory);
    case IdentifierColumn:
        return advisory.identifier;
    case IssuedColumn:
        return Moments::day(advisory.issued);
    case CountColumn:
        return advisory.count;
    case TitleColumn:
        return advisory.title;
    case CvesColumn:
        return advisory.cves.join(QLatin1String(", "));
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
    case StateColumn:
        return tip ? tr("Whether a newer version of an installed package is advised") : tr("State");
    case KindColumn:
        return tip ? tr("What the advisory is about") : tr("Type");
    case SeverityColumn:
        return tip ? tr("How grave it is, as the repository words it") : tr("Severity");
    case IdentifierColumn:
        return tip ? tr("Name of the advisory") : tr("Identifier");
    case IssuedColumn:
        return tip ? tr("When the advisory was issued") : tr("Issued");
    case CountColumn:
        return tip ? tr("How many versions of packages it names") : tr("Packages");
    case TitleColumn:
        return tip ? tr("What it says in short") : tr("Title");
    case CvesColumn:
        return tip ? tr("Known vulnerabilities that it is about") : tr("CVEs");
    default:
        return {};
    }
}

void Model::setLooks(QWidget const* window)
{
    bold = Fonts::makeBold(window->font());
    signs.take(window);
    if (!advisories.isEmpty()) {
        Q_EMIT dataChanged(
            index(0, 0), index(rowCount() - 1, ColumnCount - 1), {Qt::FontRole, Qt::DecorationRole});
    }
}

Proxy::Proxy(Model* source, QObject* parent)
    : HSortFilterProxyModel(Model::IdentifierColumn, parent),
      model(source)
{
    setSourceModel(source);
}

void Proxy::show(Show wanted, QString const& wantedText)
{
    which = wanted;
    text = wantedText;
    filterChanged();
}

bool Proxy::lessThan(QModelIndex const& left, QModelIndex const& right) const
{
    if (left.column() == Model::SeverityColumn) {
        Severity const one = model->advisory(left.row()).severity;
        Severity const other = model->advisory(right.row()).severity;
        if (one != other) {
            return one < other;
        }
    }
    return HSortFilterProxyModel::lessThan(left, right);
}

bool Proxy::filterAcceptsRow(int row, QModelIndex const&) const
{
    Advisory const& advisory = model->advisory(row);
    bool const isWanted =
        which == All || (advisory.open && (which == Open || advisory.kind == Kind::Security));
    auto const holds = [this](QString const& part) { return part.contains(text, Qt::CaseInsensitive); };
    return isWanted && (holds(advisory.identifier) || holds(advisory.title) ||
                        std::any_of(advisory.cves.begin(), advisory.cves.end(), holds));
}

} // namespace Advisories
