// SPDX-License-Identifier: GPL-2.0-or-later
#include "services/DownloadRate.h"

#include <algorithm>
#include <cmath>

namespace
{

constexpr qint64 window = 5000;   ///< a rate of that long is steady, and follows a change soon enough
constexpr qint64 shortest = 1000; ///< of less, a rate jumps
constexpr double milliseconds = 1000;
constexpr long long most = 1LL << 60; ///< bytes; whoever tells of more makes it up

long long plausible(long long bytes)
{
    return std::clamp(bytes, 0LL, most);
}

} // namespace

void DownloadRate::startFile(long long size, qint64 now)
{
    before = plausible(before + fileSize);
    fileSize = plausible(size);
    inFile = 0;
    add(now);
}

void DownloadRate::update(long long bytes, qint64 now)
{
    inFile = plausible(bytes);
    add(now);
}

void DownloadRate::add(qint64 now)
{
    samples.push_back({now, before + inFile});
    // One stands at the beginning of the window or before it.
    while (samples.size() > 2 && samples[1].time <= now - window) {
        samples.pop_front();
    }
}

std::optional<double> DownloadRate::bytesPerSecond() const
{
    if (samples.empty()) {
        return {};
    }
    qint64 const time = samples.back().time - samples.front().time;
    if (time < shortest) {
        return {};
    }
    // Of a file that was fetched anew less is there than before.
    long long const bytes = std::max(0LL, samples.back().bytes - samples.front().bytes);
    return static_cast<double>(bytes) * milliseconds / static_cast<double>(time);
}

std::optional<long long> DownloadRate::secondsLeft(long long total) const
{
    std::optional<double> const rate = bytesPerSecond();
    long long const left = plausible(total) - before - inFile;
    if (!rate || *rate < 1 || left <= 0) {
        return {};
    }
    return std::llround(std::ceil(static_cast<double>(left) / *rate));
}
