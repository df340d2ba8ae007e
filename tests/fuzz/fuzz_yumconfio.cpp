// SPDX-License-Identifier: GPL-2.0-or-later
// A libFuzzer target: any bytes as configuration files, read, written, read and written again, and held
// against a second opinion on what has to come of them. An input is the main file and up to four repository
// files, parted by form feeds.
#include "ReferenceConf.h"
#include "repo/YumConfIO.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace
{

constexpr qsizetype mostRepoFiles = 4;
int errorsTold = 0;

using Files = std::map<QByteArray, QByteArray>; ///< path to content

void require(bool holds, char const* property, QByteArray const& where = QByteArray())
{
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s %s\n", property, where.toPercentEncoding(" \n=:[]#/").constData());
    std::abort();
}

/// The managed system on the disk, which each input begins anew.
class Root
{
public:
    Root()
    {
        require(QDir(folder.path()).mkpath(QStringLiteral("etc/yum.repos.d")), "a folder can be made");
        require(QDir(folder.path()).mkpath(QStringLiteral("etc/yum/repos.d")), "a folder can be made");
        qputenv("VEMROOT", folder.path().toLocal8Bit());
    }

    void begin(Files const& files) const
    {
        for (auto const& [path, text] : onDisk()) {
            if (files.count(path) == 0)
                QFile::remove(folder.path() + QString::fromLatin1(path));
        }
        for (auto const& [path, text] : files) {
            QFile file(folder.path() + QString::fromLatin1(path));
            require(file.open(QIODevice::WriteOnly | QIODevice::Truncate), "a file can be made", path);
            file.write(text);
        }
    }

    [[nodiscard]] Files onDisk() const
    {
        Files files;
        for (QByteArray const directory : {"/etc", "/etc/yum", "/etc/yum.repos.d", "/etc/yum/repos.d"}) {
            QDir const found(folder.path() + QString::fromLatin1(directory));
            for (QString const& name : found.entryList(QDir::Files | QDir::Hidden)) {
                QFile file(found.filePath(name));
                require(file.open(QIODevice::ReadOnly), "a file can be read");
                files[directory + '/' + name.toLocal8Bit()] = file.readAll();
            }
        }
        return files;
    }

    /// The repository files of a directory, in the order in which it lists them.
    [[nodiscard]] QByteArrayList listed(QByteArray const& directory) const
    {
        QByteArrayList paths;
        QDir const found(folder.path() + QString::fromLatin1(directory));
        for (QString const& name : found.entryList(QDir::Files | QDir::Hidden, QDir::Unsorted))
            paths += directory + '/' + name.toLocal8Bit();
        return paths;
    }

private:
    QTemporaryDir folder;
};

Files filesOf(QByteArray const& input)
{
    static std::array<QByteArray, mostRepoFiles> const names{
        "/etc/yum.repos.d/a.repo", "/etc/yum/repos.d/.repo", "/etc/yum.repos.d/b.repo",
        "/etc/yum.repos.d/x.repos"};
    QByteArrayList const parts = input.split('\f');
    Files files{{"/etc/yum.conf", parts.first()}};
    for (qsizetype at = 1; at < std::min(parts.size(), mostRepoFiles + 1); ++at)
        files[names[size_t(at - 1)]] = parts[at];
    return files;
}

/// The directories, each once, whatever it is called.
QByteArrayList plain(QByteArrayList const& directories)
{
    QByteArrayList once;
    for (QByteArray const& directory : directories) {
        QByteArray const path = QDir::cleanPath(u'/' + QString::fromLatin1(directory)).toLatin1();
        if (!once.contains(path))
            once += path;
    }
    return once;
}

bool isRepoFile(QByteArray const& path)
{
    return path.endsWith(".repo");
}

/// The session's flags after the first read of all files: the first section of an identifier settles it.
QHash<QString, bool> expectedSession(QList<ReferenceConf::Section> const& sections, bool mainEnabled)
{
    QHash<QString, bool> session;
    for (ReferenceConf::Section const& section : sections) {
        QString const id = QString::fromLatin1(section.id);
        if (!session.contains(id))
            session[id] = section.enabled.isEmpty() ? mainEnabled : section.enabled.last();
    }
    return session;
}

/// What has to be on the disk after a write: each identifier once, as the first section that has it.
Files expectedFiles(Root const& root, Files const& files, ReferenceConf const& main)
{
    QByteArrayList order{"/etc/yum.conf"};
    for (QByteArray const& directory : main.reposdirs)
        order += root.listed(directory);

    Files expected;
    QByteArrayList ids;
    for (QByteArray const& path : order) {
        bool const isMain = path == order.first();
        if (!isMain && !isRepoFile(path))
            continue;
        ReferenceConf const file(files.at(path), isMain ? ReferenceConf::MainFile : ReferenceConf::RepoFile);
        QByteArray sections;
        for (ReferenceConf::Section const& section : file.sections) {
            if (section.id.isEmpty() || ids.contains(section.id))
                continue;
            ids += section.id;
            sections += (sections.isEmpty() ? "" : "\n") + section.written;
        }
        if (isMain || !sections.isEmpty())
            expected[path] = file.formed(file.mainOptions + sections);
    }
    // A directory that isn't one of the configuration's is left alone.
    for (auto const& [path, text] : files) {
        if (!main.reposdirs.contains(path.left(path.lastIndexOf('/'))))
            expected.insert({path, text});
    }
    return expected;
}

QList<ReferenceConf::Section> allSections(Root const& root, Files const& files, ReferenceConf const& main)
{
    QList<ReferenceConf::Section> sections = main.sections;
    for (QByteArray const& directory : main.reposdirs) {
        for (QByteArray const& path : root.listed(directory)) {
            if (isRepoFile(path))
                sections += ReferenceConf(files.at(path), ReferenceConf::RepoFile).sections;
        }
    }
    return sections;
}

bool areWellFormed(Files const& files, ReferenceConf const& main)
{
    return main.isWellFormed && std::all_of(files.begin(), files.end(), [&](auto const& file) {
               return !isRepoFile(file.first) ||
                      !main.reposdirs.contains(file.first.left(file.first.lastIndexOf('/'))) ||
                      ReferenceConf(file.second, ReferenceConf::RepoFile).isWellFormed;
           });
}

void requireFiles(Files const& expected, Files const& found, char const* property)
{
    for (auto const& [path, text] : expected) {
        auto const at = found.find(path);
        require(at != found.end(), property, path + " is gone");
        require(at->second == text, property, path + " is " + at->second + " and not " + text);
    }
    require(expected.size() == found.size(), property, "a file is still there");
}

/// After a read that failed, a write neither deletes nor touches what was not read.
void writeAfterFault(Root const& root, Files const& files, YumConfIO& conf)
{
    conf.write(nullptr);
    Files const left = root.onDisk();
    require(left.size() == files.size(), "a write after a fault deletes nothing");
    for (auto const& [path, text] : files) {
        bool const isMain = path == "/etc/yum.conf";
        if (isMain || isRepoFile(path)) {
            ReferenceConf const file(text, isMain ? ReferenceConf::MainFile : ReferenceConf::RepoFile);
            require(
                file.isWellFormed || left.at(path) == text, "a file that can't be read is left alone", path);
        }
    }
}

void readAndWrite(Root const& root, Files const& files)
{
    ReferenceConf main(files.at("/etc/yum.conf"), ReferenceConf::MainFile);
    // What stands before ".." has to be there, which names don't tell.
    for (QByteArray const& directory : main.reposdirs) {
        if (directory.contains(".."))
            return;
    }
    root.begin(files);

    QList<YumRepoEnabled> const requests;
    QHash<QString, bool> session;
    YumConfIO conf(requests, session);
    errorsTold = 0;
    bool const isRead = conf.read(nullptr);
    QByteArrayList found;
    for (QString const& directory : std::as_const(conf.reposdirs))
        found += directory.toLatin1();
    require(found == main.reposdirs, "the directories are those of the main file");

    main.reposdirs = plain(main.reposdirs);
    bool const isOurs =
        std::all_of(main.reposdirs.begin(), main.reposdirs.end(), [](QByteArray const& directory) {
            return directory == "/etc/yum.repos.d" || directory == "/etc/yum/repos.d";
        });
    if (!isOurs)
        return;
    require(isRead == areWellFormed(files, main), "what has all its brackets can be read, and nothing else");
    require(errorsTold == (isRead ? 0 : 1), "a fault is told once");
    if (!isRead) {
        writeAfterFault(root, files, conf);
        return;
    }

    require(
        session == expectedSession(allSections(root, files, main), main.mainEnabled), "the session's flags");
    Files const expected = expectedFiles(root, files, main);
    require(conf.write(nullptr), "what was read can be written");
    requireFiles(expected, root.onDisk(), "a write keeps what it is to keep:");

    require(conf.read(nullptr), "what was written can be read");
    require(conf.write(nullptr), "what was read again can be written");
    requireFiles(expected, root.onDisk(), "another round changes nothing:");
    require(errorsTold == 0, "a good round tells nothing");
}

} // namespace

// Instead of a user in front of message boxes: one who looks on, and says Yes.

void YumConfIO::error(QString const&, QString const&)
{
    ++errorsTold;
}

void YumConfIO::tell(QString const&)
{
    ++errorsTold;
}

bool YumConfIO::confirm(QString const&)
{
    return true;
}

extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, size_t size)
{
    static Root const root;
    readAndWrite(root, filesOf(QByteArray(reinterpret_cast<char const*>(data), qsizetype(size))));
    return 0;
}
