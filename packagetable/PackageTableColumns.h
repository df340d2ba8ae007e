// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/YumIO.h"

#include <QString>
#include <optional>

namespace PackageTable
{

/// The columns of the table, in their order in the model.
enum Column
{
    ActionColumn,
    StateColumn,
    KindColumn,
    NameColumn,
    VersionColumn,
    RepositoryColumn,
    ArchitectureColumn,
    SizeColumn,
    BuildTimeColumn,
    SummaryColumn,
    InstalledVersionColumn,
    InstalledSizeColumn,
    GroupColumn,
    LicenceColumn,
    VendorColumn,
    ReasonColumn,
    AdvisoryColumn,
    ColumnCount,
};

/// What the engine must load of all rows before the column can show anything; nothing for the columns that
/// are there with the rows.
[[nodiscard]] std::optional<Package::Detail> columnDetail(int column);

/// The text that `column` shows in a row of the engine. `column` is one from NameColumn on.
[[nodiscard]] Package::Text const& columnText(YumIO const& yumIO, int row, int column);
/// The same, for a column without a detail.
[[nodiscard]] Package::Text const& columnText(Package::Entry const& entry, int column);

/// Whether `column` sorts by a number, and not by its text.
[[nodiscard]] bool isNumericColumn(int column);

/// A column's name in what is remembered of the user: the same in all languages and releases.
[[nodiscard]] QString columnId(int column);
/// -1 for what is no column's name.
[[nodiscard]] int columnOfId(QString const& name);

/// Whether somebody who has arranged nothing sees the column.
[[nodiscard]] bool isShownAtFirst(int column);

/// The number by which `column` sorts; 0 for a column that sorts by its text. Sizes and build times keep
/// their low 32 bits only, as a signed number.
[[nodiscard]] int columnNumber(YumIO const& yumIO, int row, int column);
/// The same, for a column without a detail.
[[nodiscard]] int columnNumber(Package::Entry const& entry, int column);

} // namespace PackageTable
