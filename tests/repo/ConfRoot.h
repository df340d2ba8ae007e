// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/YumConfIO.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>
#include <cstdlib>

/// An empty managed system below a temporary directory, which VEMROOT names for as long as this lives, and a
/// configuration object over it.
class ConfRoot
{
public:
    ConfRoot() { qputenv("VEMROOT", directory.path().toLocal8Bit()); }
    ~ConfRoot() { qunsetenv("VEMROOT"); }
    ConfRoot(ConfRoot const&) = delete;
    ConfRoot& operator=(ConfRoot const&) = delete;

    /// Where the absolute `path` of the managed system lies on the disk; the bytes of a file's name.
    [[nodiscard]] QByteArray onDisk(QByteArray const& path) const
    {
        return directory.path().toLocal8Bit() + path;
    }

    void makeDirectory(QByteArray const& path) const
    {
        QVERIFY(QDir().mkpath(QFile::decodeName(onDisk(path))));
    }

    /// Makes the file `path` with its directories. By the C library, which takes any bytes as a name.
    void write(QByteArray const& path, QByteArray const& content) const
    {
        makeDirectory(path.left(path.lastIndexOf('/')));
        std::FILE* const file = std::fopen(onDisk(path).constData(), "w");
        QVERIFY(file);
        QCOMPARE(std::fwrite(content.constData(), 1, size_t(content.size()), file), size_t(content.size()));
        QCOMPARE(std::fclose(file), 0);
    }

    /// Lets any user look below the root; what stands there keeps its own permissions.
    void openToAll() const
    {
        QVERIFY(QFile::setPermissions(
            directory.path(),
            QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther));
    }

    void setPermissions(QByteArray const& path, QFile::Permissions permissions) const
    {
        QVERIFY(QFile::setPermissions(QFile::decodeName(onDisk(path)), permissions));
    }

    void remove(QByteArray const& path) const { QCOMPARE(std::remove(onDisk(path).constData()), 0); }

    /// Reads a system of a main file alone.
    bool readMain(QByteArray const& content)
    {
        write("/etc/yum.conf", content);
        return conf.read(nullptr);
    }

    /// Reads a system of an empty main file and one repository file.
    bool readRepoFile(QByteArray const& content)
    {
        write("/etc/yum.conf", "");
        write("/etc/yum.repos.d/some.repo", content);
        return conf.read(nullptr);
    }

    /// Reads `content` as a repository file and gives its only section; an empty entry when there are more.
    Repo::Entry readOne(QByteArray const& content)
    {
        bool const isRead = readRepoFile(content);
        return isRead && conf.repos.size() == 1 ? conf.repos.first() : Repo::Entry();
    }

    [[nodiscard]] QStringList ids() const
    {
        QStringList result;
        for (Repo::Entry const& entry : conf.repos)
            result += entry.id;
        return result;
    }

    QList<YumRepoEnabled> usedOptions;
    QHash<QString, bool> reposEnabled;
    YumConfIO conf{usedOptions, reposEnabled};

private:
    QTemporaryDir directory;
};
