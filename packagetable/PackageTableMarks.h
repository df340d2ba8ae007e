// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/Package.h"

#include <map>
#include <optional>
#include <tuple>

class YumIO;

namespace PackageTable
{

class Model;

/// How many rows are marked, by what is wanted with them.
struct MarkCounts
{
    qsizetype installs = 0;
    qsizetype updates = 0;
    qsizetype removals = 0;
    unsigned long long bytes = 0; ///< the packages that installations and updates bring

    /// By how much the disk fills, below zero where it empties; nothing where that isn't known.
    std::optional<long long> onDisk;

    MarkCounts() = default;
    explicit MarkCounts(YumIO& yumIO);
    [[nodiscard]] qsizetype all() const { return installs + updates + removals; }
};

/// The marks of a list of packages, to be set again in the list that takes its place. GUI thread.
class Marks
{
public:
    explicit Marks(YumIO const& yumIO);

    /// Marks the rows that are the same as before: of the same package, version, architecture and state.
    /// Answers how many marks have no such row.
    [[nodiscard]] qsizetype restore(YumIO const& yumIO, Model& model) const;

private:
    using Row = std::tuple<Package::Kind, Package::State, Package::Text, Package::Text, Package::Text>;
    static Row rowOf(Package::Entry const& entry);

    std::map<Row, Package::Action> marks;
};

} // namespace PackageTable
