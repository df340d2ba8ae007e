// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableColumns.h"

#include <algorithm>
#include <array>
#include <limits>

namespace PackageTable
{

namespace
{

constexpr std::array<char const*, ColumnCount> columnIds{
    "action",       "state",   "kind",      "name",    "version",          "repository",
    "architecture", "size",    "buildTime", "summary", "installedVersion", "installedSize",
    "group",        "licence", "vendor",    "reason",  "advisory"};

// Of what is installed; an update has it behind it.
Package::Text const& installedVersion(Package::Entry const& entry)
{
    static Package::Text const none;
    if (entry.installed) {
        return entry.installed->verRel;
    }
    return entry.state == Package::UpToDate ? entry.verRel : none;
}

} // namespace

Package::Text const& columnText(Package::Entry const& entry, int column)
{
    using Package::Entry;
    if (column == InstalledVersionColumn) {
        return installedVersion(entry);
    }
    static constexpr std::array<Package::Text Entry::*, InstalledVersionColumn - NameColumn> fields{
        &Entry::name,     &Entry::verRel,        &Entry::repo,   &Entry::arch,
        &Entry::sizeText, &Entry::buildTimeText, &Entry::summary};
    Q_ASSERT(column >= NameColumn && column <= InstalledVersionColumn);
    return entry.*fields[static_cast<size_t>(column - NameColumn)];
}

std::optional<Package::Detail> columnDetail(int column)
{
    using Package::Detail;
    switch (column) {
    case InstalledSizeColumn:
        return Detail::InstalledSize;
    case GroupColumn:
        return Detail::Group;
    case LicenceColumn:
        return Detail::Licence;
    case VendorColumn:
        return Detail::Vendor;
    case ReasonColumn:
        return Detail::Reason;
    case AdvisoryColumn:
        return Detail::Advisory;
    default:
        return std::nullopt;
    }
}

Package::Text const& columnText(YumIO const& yumIO, int row, int column)
{
    std::optional<Package::Detail> const detail = columnDetail(column);
    return detail ? yumIO.details(*detail).text(row) : columnText(*yumIO[row], column);
}

QString columnId(int column)
{
    return QLatin1String(columnIds.at(static_cast<size_t>(column)));
}

int columnOfId(QString const& name)
{
    auto const* const found =
        std::ranges::find_if(columnIds, [&](char const* id) { return name == QLatin1String(id); });
    return found == columnIds.end() ? -1 : static_cast<int>(found - columnIds.begin());
}

bool isShownAtFirst(int column)
{
    return column <= BuildTimeColumn;
}

bool isNumericColumn(int column)
{
    switch (column) {
    case ActionColumn:
    case StateColumn:
    case KindColumn:
    case SizeColumn:
    case BuildTimeColumn:
    case InstalledSizeColumn:
    case AdvisoryColumn:
        return true;
    default:
        return false;
    }
}

int columnNumber(YumIO const& yumIO, int row, int column)
{
    std::optional<Package::Detail> const detail = columnDetail(column);
    if (!detail) {
        return columnNumber(*yumIO[row], column);
    }
    constexpr long long most = std::numeric_limits<int>::max();
    return static_cast<int>(std::min(yumIO.details(*detail).number(row), most));
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
