// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

/// Files of the share directory: icons, pixmaps, the helper script and the outside commands.
class Share
{
public:
    /// The absolute name of the file `path` below the share directory: the environment variable VEMSHARE
    /// when it is set (an empty value counts as set), else "/usr/share/vem". The variable is read at every
    /// call. The file need not exist. Any thread.
    [[nodiscard]] static QString absolute(QString const& path);
};
