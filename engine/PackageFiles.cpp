// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/PackageFiles.h"

void PackageFiles::open(QStringList const& words)
{
    for (QString const& word : words) {
        close(word);
        files.append({word, {}, true});
    }
}

QStringList PackageFiles::words() const
{
    QStringList found;
    for (File const& file : files) {
        found.append(file.word);
    }
    return found;
}

void PackageFiles::settle(QString const& word, QString const& name)
{
    for (File& file : files) {
        if (file.word == word) {
            file.name = name;
        }
    }
}

void PackageFiles::close(QString const& word)
{
    files.removeIf([&word](File const& file) { return file.word == word; });
}

void PackageFiles::closeFresh()
{
    files.removeIf([](File const& file) { return file.fresh; });
}

void PackageFiles::closeNamed(QStringList const& names)
{
    files.removeIf([&names](File const& file) { return names.contains(file.name); });
}

QStringList PackageFiles::takeFresh()
{
    QStringList names;
    for (File& file : files) {
        if (file.fresh && !file.name.isEmpty()) {
            file.fresh = false;
            names.append(file.name);
        }
    }
    return names;
}
