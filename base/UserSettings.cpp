// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/UserSettings.h"

#include <QFile>
#include <QSettings>
#include <memory>

namespace
{

QString damaged; // where it is now

std::unique_ptr<QSettings> openFile()
{
    return std::make_unique<QSettings>(
        QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vem"), QStringLiteral("vem"));
}

std::unique_ptr<QSettings> open()
{
    std::unique_ptr<QSettings> settings = openFile();
    if (settings->status() == QSettings::FormatError) {
        // Written to, it would lose whatever can still be read in it.
        QString const name = settings->fileName();
        QString const aside = name + QLatin1String(".damaged");
        QFile::remove(aside);
        if (QFile::rename(name, aside)) {
            damaged = aside;
        }
        settings = openFile();
    }
    return settings;
}

} // namespace

QVariant UserSettings::value(QString const& key, QVariant const& fallback)
{
    return open()->value(key, fallback);
}

void UserSettings::setValue(QString const& key, QVariant const& value)
{
    open()->setValue(key, value);
}

void UserSettings::remove(QString const& key)
{
    open()->remove(key);
}

QString UserSettings::putAside()
{
    return damaged;
}
