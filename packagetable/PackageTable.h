// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

/// The table of packages: model, filter and search, view and context menus.
namespace PackageTable
{

/// How the regular expression is tried on a row. The values equal the item indexes of the combo that
/// chooses it.
enum Mode
{
    Filter = 0, ///< on the text that the table shows
    Search = 1, ///< on every field of the package, one by one
};

/// Which rows may show, by their state. The values equal the item indexes of the combo that chooses it.
enum StateFilter
{
    Updatable = 0,
    Installable = 1,
    Removable = 2,
    All = 3,
    Marked = 4,          ///< by its mark, whatever its state and kind
    SecurityUpdates = 5, ///< updates that a security advisory names; needs `Model::useAdvisories`
};

} // namespace PackageTable
