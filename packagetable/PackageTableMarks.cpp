// SPDX-License-Identifier: GPL-2.0-or-later
#include "packagetable/PackageTableMarks.h"

#include "engine/YumIO.h"
#include "packagetable/PackageTableColumns.h"
#include "packagetable/PackageTableModel.h"
#include "packagetable/PackageTableRowWalk.h"

namespace PackageTable
{

MarkCounts::MarkCounts(YumIO const& yumIO)
{
    walkMarks(yumIO, [this](int, Package::Entry const& entry) {
        if (entry.action == Package::Remove) {
            ++removals;
        } else if (entry.action != Package::None) {
            ++(entry.action == Package::Install ? installs : updates);
            bytes += entry.size;
        }
    });
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
