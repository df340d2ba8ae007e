// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's object: where its files are, what the command line does to the session flags. The
// reading of the files stands in YumConfIORead.cpp, the writing in YumConfIOWrite.cpp.
#include "repo/YumConfIO.h"

#include <sys/stat.h>

YumConfIO::YumConfIO(QList<YumRepoEnabled> const& requests, QHash<QString, bool>& sessionFlags)
    : usedOptions(requests),
      reposEnabled(sessionFlags)
{
}

char const* YumConfIO::fileName()
{
    static constexpr char const* preferred = "/etc/yum/yum.conf";
    static constexpr char const* fallback = "/etc/yum.conf";

    struct stat status = {};
    return stat(diskName(QString::fromLatin1(preferred)).constData(), &status) == 0 ? preferred : fallback;
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
