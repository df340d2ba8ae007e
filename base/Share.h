// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>
#include <QString>

/// Files of the share directory: icons, pixmaps, the helper script and the outside commands.
class Share
{
public:
    /// The absolute name of the file `path` below the share directory: the environment variable VEMSHARE
    /// when it is set (an empty value counts as set), else "/usr/share/vem". The variable is read at every
    /// call. The file need not exist. Any thread.
    [[nodiscard]] static QString absolute(QString const& path);

    /// The picture `path` of the share directory with its "@2x" companion, both read at once: while rpm
    /// works below another root the process can't open files outside of it. Null when there is no such
    /// picture. GUI thread.
    [[nodiscard]] static QIcon icon(QString const& path);
};
