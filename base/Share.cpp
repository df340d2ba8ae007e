// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Share.h"

#include <QFile>
#include <cstdlib>

QString Share::absolute(QString const& path)
{
    char const* const directory = std::getenv("VEMSHARE");
    return QStringLiteral("%1/%2").arg(
        directory ? QFile::decodeName(directory) : QStringLiteral("/usr/share/vem"), path);
}
