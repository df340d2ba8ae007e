// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

/// One file of the managed system that is written anew, in place: links, owner and permissions of a file that
/// exists stay unless it is made private. A value on the stack of the writer; any thread.
///
/// What the file held is kept until there is room for what it is to hold, so that a full disk does not cost
/// the user the file. Each operation answers false with errno saying why; nothing is reported here.
class OutputFile final
{
public:
    OutputFile() = default;
    OutputFile(OutputFile const&) = delete;
    OutputFile& operator=(OutputFile const&) = delete;
    /// Closes what a failure left open.
    ~OutputFile();

    /// Opens for writing and creates what isn't there, for its owner only where `isPrivate` says so. The
    /// content stays. Anything but a regular file is refused.
    [[nodiscard]] bool open(QByteArray const& path, bool isPrivate);

    /// What the file holds; empty when it may not be read.
    [[nodiscard]] QByteArray content() const;

    /// Makes the file its owner's only, whatever it was.
    [[nodiscard]] bool makePrivate();

    /// Makes `content` all that the file holds.
    [[nodiscard]] bool write(QByteArray const& content);

    /// Sees to it that the content is on the disk, which may fail as late as here, and closes.
    [[nodiscard]] bool close();

private:
    bool reserve(qint64 size);
    bool writeAll(QByteArray const& content);

    int descriptor = -1;
    qint64 oldSize = 0; ///< bytes that the file held when it was opened
};
