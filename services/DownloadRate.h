// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QtGlobal>

#include <deque>
#include <optional>

/// How fast files come in that are fetched one behind the other, by what the last seconds have brought. A
/// value; times are milliseconds of any clock that only goes forward, sizes are bytes.
class DownloadRate final
{
public:
    /// The next file begins: the one before it is there whole.
    void startFile(long long size, qint64 now);
    /// So much of the file is there.
    void update(long long bytes, qint64 now);

    /// Bytes in a second; nothing as long as there is too little to tell it by, 0 for a standstill.
    [[nodiscard]] std::optional<double> bytesPerSecond() const;
    /// How many seconds it takes until `total` bytes are there at this rate; nothing where that can't be
    /// told.
    [[nodiscard]] std::optional<long long> secondsLeft(long long total) const;

private:
    struct Sample
    {
        qint64 time;
        long long bytes;
    };

    void add(qint64 now);

    std::deque<Sample> samples; ///< the oldest first
    long long before = 0;       ///< all files but the present one
    long long fileSize = 0;
    long long inFile = 0;
};
