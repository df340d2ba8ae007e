// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "ConfRoot.h"

#include <QFile>

#include <algorithm>
#include <fstream>
#include <iterator>

#include <dirent.h>

/// What lies on the disk below a root, in bytes.
namespace ConfFiles
{

/// The content of a file of the managed system; a telling text when there is none.
inline QByteArray content(ConfRoot const& root, QByteArray const& path)
{
    std::ifstream file(root.onDisk(path).constData(), std::ios::binary);
    if (!file)
        return "(no file " + path + ")";
    std::string const bytes{std::istreambuf_iterator<char>(file), {}};
    return QByteArray(bytes.data(), qsizetype(bytes.size()));
}

/// The names in a directory, sorted.
inline QList<QByteArray> names(ConfRoot const& root, QByteArray const& directory)
{
    QList<QByteArray> found;
    if (DIR* const stream = ::opendir(root.onDisk(directory).constData())) {
        while (dirent const* const item = ::readdir(stream)) {
            QByteArray const name = item->d_name;
            if (name != "." && name != "..")
                found += name;
        }
        ::closedir(stream);
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace ConfFiles

/// A repository as the editor makes it.
inline Repo::Entry newRepo(QString const& id, QString const& file = QString())
{
    Repo::Entry entry;
    entry.id = id;
    entry.file = file;
    return entry;
}
