// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Share.h"

#include <QFile>
#include <QPixmap>
#include <cstdlib>

QString Share::absolute(QString const& path)
{
    char const* const directory = std::getenv("VEMSHARE");
    return QStringLiteral("%1/%2").arg(
        directory ? QFile::decodeName(directory) : QStringLiteral("/usr/share/vem"), path);
}

QIcon Share::icon(QString const& path)
{
    QIcon icon;
    QString const file = absolute(path);
    QPixmap const normal(file);
    if (!normal.isNull()) {
        icon.addPixmap(normal);
    }
    QString doubled = file;
    doubled.insert(doubled.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
    // The suffix makes the toolkit give the picture a device pixel ratio of 2.
    QPixmap const large(doubled);
    if (!large.isNull()) {
        icon.addPixmap(large);
    }
    return icon;
}
