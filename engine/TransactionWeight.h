// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <algorithm>

// Work units of the transaction's progress, from sizes in bytes. The floor keeps many tiny packages from
// weighing nothing; unpacking costs more than fetching, and cleaning up an old version little.

constexpr unsigned long long minimumWeight = 10240;

/// Acts of a header that is fetched while solving: as much as ten packages of one solver pass.
constexpr unsigned int actsPerHeader = 10;

/// Steps of the total that are set aside for rebuilding packages from deltas.
constexpr unsigned long long deltaSteps = 2000;

/// Downloading or removing a package.
constexpr unsigned long long weightOfSize(unsigned long long size)
{
    return std::max(size, minimumWeight);
}

constexpr unsigned long long weightOfInstalling(unsigned long long size)
{
    return std::max(3 * size, minimumWeight);
}

/// Erasing the old version at the end of an update.
constexpr unsigned long long weightOfCleanup(unsigned long long installedSize)
{
    return std::max(installedSize / 5, minimumWeight);
}
