// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <optional>

#include <sys/stat.h>

/// The files of the managed system: those below the directory that the environment variable VEMROOT names,
/// this machine's own without it.
///
/// Paths are bytes, as the managed system sees them. Below VEMROOT they are resolved as for a process whose
/// root directory that is: neither an absolute symbolic link nor ".." leads out of it, and a relative path
/// begins at the root. Without VEMROOT all is as the system calls have it. The variable is read at every
/// call. Failures are told by errno. Any thread.
namespace ManagedRoot
{

/// open(2), never passed on to other programs. The caller closes the descriptor; -1 for a failure.
[[nodiscard]] int open(QByteArray const& path, int flags, mode_t mode = 0);

/// stat(2): links are followed.
[[nodiscard]] bool inspect(QByteArray const& path, struct stat& status);

/// The names in a directory, in the order in which it gives them, without "." and ".."; nothing, rather than
/// a part of them, where it can't be read to its end.
[[nodiscard]] std::optional<QByteArrayList> names(QByteArray const& directory);

/// unlink(2): of a link, the link itself goes.
[[nodiscard]] bool unlink(QByteArray const& path);

/// The absolute path without links and dots, as the managed system sees it. What isn't there, or can't be
/// looked at, is kept as it is written.
[[nodiscard]] QByteArray resolved(QByteArray const& path);

/// The same for all paths of one file or directory, and different for different ones: the device and inode
/// of what is there, else the resolved path.
[[nodiscard]] QByteArray identity(QByteArray const& path);

} // namespace ManagedRoot
