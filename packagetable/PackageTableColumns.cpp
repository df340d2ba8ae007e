// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableColumns.h"

#include <array>

namespace PackageTable
{

QString const& columnText(Package::Entry const& entry, int column)
{
    using Package::Entry;
    static constexpr std::array<QString Entry::*, ColumnCount - NameColumn> fields{
        &Entry::name, &Entry::verRel, &Entry::repo, &Entry::arch, &Entry::sizeText, &Entry::buildTimeText};
    Q_ASSERT(column >= NameColumn && column < ColumnCount);
    return entry.*fields[static_cast<size_t>(column - NameColumn)];
}

bool isNumericColumn(int column)
{
    switch (column) {
    case ActionColumn:
    case StateColumn:
    case KindColumn:
    case SizeColumn:
    case BuildTimeColumn:
        return true;
    default:
        return false;
    }
}

int columnNumber(Package::Entry const& entry, int column)
{
    switch (column) {
    case ActionColumn:
        return entry.action;
    case StateColumn:
        return entry.state;
    case KindColumn:
        return entry.kind;
    case SizeColumn:
        return static_cast<int>(entry.size);
    case BuildTimeColumn:
        return static_cast<int>(entry.buildTime);
    default:
        return 0;
    }
}

} // namespace PackageTable
