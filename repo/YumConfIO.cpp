// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's object: where its files are, what the command line does to the session flags. The
// reading of the files stands in YumConfIORead.cpp, the writing in YumConfIOWrite.cpp.
#include "repo/YumConfIO.h"

#include "base/ManagedRoot.h"

#include <algorithm>
#include <array>

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
        return ManagedRoot::inspect(file.path, status);
    });
    return found != files.end() ? *found : files[1];
}

/// The repository directories; one that is listed by several paths is taken once, by the first.
QStringList YumConfIO::directories() const
{
    QStringList once;
    QSet<QByteArray> met;
    for (QString const& directory : reposdirs) {
        QByteArray const identity = ManagedRoot::identity(directory.toLatin1());
        if (!met.contains(identity))
            once += directory;
        met.insert(identity);
    }
    return once;
}

void YumConfIO::applyUsedOptions(Repo::Entry const& entry)
{
    for (YumRepoEnabled const& request : usedOptions) {
        if (request.matches(entry.id))
            reposEnabled[entry.id] = request.enabled;
    }
}
