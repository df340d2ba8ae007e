// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <functional>

/// Shares work on many rows out among the processors, for work that the caller waits for.
namespace Parallel
{

using Work = std::function<void(std::size_t begin, std::size_t end)>;

/// Calls `work` for parts that together cover the numbers from 0 up to `count`, each of them once. The parts
/// run at the same time, one of them on this thread, unless there are few numbers. Returns when all are
/// done; no event is served meanwhile. Any thread. `work` throws nothing, and no part touches what another
/// one writes.
void forParts(std::size_t count, Work const& work);

} // namespace Parallel
