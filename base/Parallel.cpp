// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Parallel.h"

#include <algorithm>
#include <system_error>
#include <thread>
#include <vector>

namespace Parallel
{

namespace
{

/// To start and to await a thread costs as much as some hundred rows.
constexpr std::size_t fewestOfAPart = 2048;
/// Memory doesn't deliver faster than this many ask.
constexpr std::size_t mostParts = 4;

} // namespace

void forParts(std::size_t count, Work const& work)
{
    // To ask costs a look into a file of the kernel's.
    static std::size_t const processors = std::max(std::thread::hardware_concurrency(), 1U);
    std::size_t const parts =
        std::clamp<std::size_t>(count / fewestOfAPart, 1, std::min(processors, mostParts));
    std::vector<std::thread> others;
    std::size_t begin = 0;
    for (std::size_t part = 1; part < parts; ++part) {
        std::size_t const end = count * part / parts;
        try {
            others.emplace_back([&work, begin, end] { work(begin, end); });
        } catch (std::system_error const&) {
            // The system has no thread to give: the rest is this thread's.
            break;
        }
        begin = end;
    }
    work(begin, count);
    for (std::thread& other : others) {
        other.join();
    }
}

} // namespace Parallel
