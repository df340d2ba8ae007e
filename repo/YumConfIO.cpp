// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's object: where its files are, what the command line does to the session flags. The
// reading of the files stands in YumConfIORead.cpp, the writing in YumConfIOWrite.cpp.
#include "repo/YumConfIO.h"

#include <algorithm>
#include <array>

#include <sys/stat.h>

YumConfIO::YumConfIO(QList<YumRepoEnabled> const& requests, QHash<QString, bool>& sessionFlags)
    : usedOptions(requests),
      reposEnabled(sessionFlags)
{
}

char const* YumConfIO::fileName()
{
    return mainFile().path;
}

YumConfIO::MainFile const& YumConfIO::mainFile()
{
    static QStringList const yumDirectories{
        QStringLiteral("/etc/yum/repos.d"), QStringLiteral("/etc/yum.repos.d")};
    static QString const yumCache = QStringLiteral("/var/cache/yum");
    // Where the library's older name still has a file, whoever made that file meant it; a system that never
    // had one has only the newer. The helper script holds the same table (vemyum/configuration.py).
    static std::array<MainFile, 3> const files{{
        {"/etc/yum/yum.conf", yumDirectories, yumCache},
        {"/etc/yum.conf", yumDirectories, yumCache},
        {"/etc/dnf/dnf.conf",
         {QStringLiteral("/etc/yum.repos.d"), QStringLiteral("/etc/distro.repos.d")},
         QStringLiteral("/var/cache/dnf")},
    }};

    auto const found = std::find_if(files.begin(), files.end(), [](MainFile const& file) {
        struct stat status = {};
        return stat(diskName(QString::fromLatin1(file.path)).constData(), &status) == 0;
    });
    return found != files.end() ? *found : files[1];
}

QByteArray YumConfIO::diskName(QString const& path)
{
    QByteArray const root = qgetenv("VEMROOT");
    QByteArray name = path.toLatin1();
    if (root.isEmpty())
        return name;
    return name.startsWith('/') ? root + name : root + '/' + name;
}

void YumConfIO::applyUsedOptions(Repo::Entry const& entry)
{
    for (YumRepoEnabled const& request : usedOptions) {
        if (request.matches(entry.id))
            reposEnabled[entry.id] = request.enabled;
    }
}
