// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableMarks.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableRowWalk.h"

namespace PackageTable
{

namespace
{

/// Of all its versions that are installed.
long long presentSize(Package::Entry const& entry)
{
    long long size = entry.state == Package::UpToDate ? static_cast<long long>(entry.size) : 0;
    for (Package::Entry const* link = entry.installed; link; link = link->installed) {
        size += static_cast<long long>(link->size);
    }
    return size;
}

} // namespace

MarkCounts::MarkCounts(YumIO& yumIO)
{
    QList<Package::Entry const*> incoming;
    long long goes = 0;
    walkMarks(yumIO, [&](int, Package::Entry const& entry) {
        if (entry.action == Package::None) {
            return;
        }
        if (entry.action == Package::Remove) {
            ++removals;
            goes += presentSize(entry);
            return;
        }
        ++(entry.action == Package::Install ? installs : updates);
        bytes += entry.size;
        if (entry.kind != Package::Group) {
            incoming.append(&entry);
            goes += entry.action == Package::Update ? presentSize(entry) : 0;
        }
    });
    std::optional<long long> const comes = yumIO.installedSize(incoming);
    if (comes) {
        onDisk = *comes - goes;
    }
}

Marks::Marks(YumIO const& yumIO)
{
    walkMarks(yumIO, [this](int, Package::Entry const& entry) {
        if (entry.action != Package::None) {
            marks.emplace(rowOf(entry), entry.action);
        }
    });
}

qsizetype Marks::restore(YumIO const& yumIO, Model& model) const
{
    auto lost = static_cast<qsizetype>(marks.size());
    for (int row = 0; row < yumIO.count() && lost > 0; ++row) {
        auto const mark = marks.find(rowOf(*yumIO[row]));
        if (mark != marks.cend()) {
            model.setAction(model.index(row, ActionColumn), mark->second);
            --lost;
        }
    }
    return lost;
}

Marks::Row Marks::rowOf(Package::Entry const& entry)
{
    return {entry.kind, entry.state, entry.name, entry.verRel, entry.arch};
}

} // namespace PackageTable
