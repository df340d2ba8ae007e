// SPDX-License-Identifier: GPL-2.0-or-later
#include "shell/PackageWords.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

QString PackageWords::understood(QString const& word)
{
    QString path = word;
    if (word.contains(QLatin1String("://"))) {
        QUrl const address(word);
        if (address.scheme() == QLatin1String("https") && !address.host().isEmpty()) {
            return address.toString(QUrl::FullyEncoded);
        }
        // Desktops hand files over this way, too.
        path = address.isLocalFile() ? address.toLocalFile() : QString();
    }
    QFileInfo const file(path);
    bool const isPackage = path.endsWith(QLatin1String(".rpm"), Qt::CaseInsensitive) && file.isFile();
    return isPackage && file.isReadable() ? file.absoluteFilePath() : QString();
}

QStringList PackageWords::dragged(QMimeData const& data)
{
    QStringList words;
    for (QUrl const& address : data.urls()) {
        QString const word = understood(address.toString(QUrl::FullyEncoded));
        if (!word.isEmpty()) {
            words.append(word);
        }
    }
    return words;
}
