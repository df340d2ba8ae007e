// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's writing: the check of identifiers, the files, the removal of those out of use.
#include "repo/YumConfIO.h"

#include "base/ManagedRoot.h"
#include "repo/Credentials.h"
#include "repo/OutputFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <optional>
#include <utility>

#include <sys/stat.h>

namespace
{

/// The text byte for byte, NUL bytes too: each character is the byte that it was read from.
void put(std::FILE* stream, QString const& text)
{
    QByteArray const bytes = text.toLatin1();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stream);
}

void putOption(std::FILE* stream, char const* name, QString const& value)
{
    std::fprintf(stream, "%s=", name);
    put(stream, value);
    std::fputc('\n', stream);
}

void putSwitch(std::FILE* stream, char const* name, qint32 value)
{
    if (value != Repo::Default)
        std::fprintf(stream, "%s=%s\n", name, value == Repo::Yes ? "1" : "0");
}

QSet<QString> credentialsOf(QByteArray const& content)
{
    return credentialsIn(QString::fromLatin1(content));
}

/// Replaces what a file holds. Who comes to hold a credential that it didn't hold is its owner's only from
/// then on; otherwise whoever opened a file to others has chosen that.
bool replaceContent(OutputFile& output, QByteArray const& content)
{
    bool const isPrivate = !credentialsOf(output.content()).contains(credentialsOf(content));
    return (!isPrivate || output.makePrivate()) && output.write(content);
}

QByteArray identity(QString const& file)
{
    return ManagedRoot::identity(file.toLatin1());
}

} // namespace

bool YumConfIO::write(QWidget* window)
{
    parent = window;
    if (!checkErrors())
        return false;
    cleanupWrite(repos);

    QList<FileEntries> const files = entriesByFile();
    if (QString const file = unreadFile(files); !file.isEmpty()) {
        tell(tr("The file %1 has not been read, or not to its end.  Nothing is written, so that "
                "nothing in it is lost.")
                 .arg(file));
        return false;
    }
    if (!confirmGenerated(files))
        return false;

    bool isMainWritten = false;
    for (FileEntries const& entries : files) {
        QString const file = entries.first().file;
        if (!isAsGenerated(file, entries) && !writeFile(file, entries))
            return false;
        isMainWritten = isMainWritten || isMainFile(file);
    }
    QString const mainFile = QString::fromLatin1(fileName());
    if (!isMainWritten && !writeFile(mainFile, {}))
        return false;

    noteWritten(files);
    // What a failed read did not get to is not out of use.
    if (!isAllKnown())
        return true;
    // Asked now that all of them are there.
    QSet<QByteArray> used{identity(mainFile)};
    for (FileEntries const& entries : files)
        used.insert(identity(entries.first().file));
    for (auto file = generated.cbegin(); file != generated.cend(); ++file)
        used.insert(identity(file.key()));
    removeUnusedFiles(used);
    return true;
}

/// Whether the last read met every file there was, so that one without repositories here is out of use.
bool YumConfIO::isAllKnown() const
{
    return unfinishedFile.isEmpty() && isAllListed;
}

/// The paths of the files whose content is known, by what they are now.
QHash<QByteArray, QString> YumConfIO::knownFiles() const
{
    QHash<QByteArray, QString> known;
    for (auto file = filesRead.cbegin(); file != filesRead.cend(); ++file)
        known.insert(ManagedRoot::identity(file.key()), file.value());
    return known;
}

/// The first of the files to be written that holds what isn't known here; empty if there is none.
QString YumConfIO::unreadFile(QList<FileEntries> const& files) const
{
    QHash<QByteArray, QString> const known = knownFiles();
    QStringList targets{QString::fromLatin1(fileName())};
    for (FileEntries const& entries : files)
        targets += entries.first().file;
    for (QString const& file : std::as_const(targets)) {
        struct stat status = {};
        bool const isThere = ManagedRoot::inspect(file.toLatin1(), status) && !S_ISDIR(status.st_mode);
        if (file == unfinishedFile || (isThere && !known.contains(identity(file))))
            return file;
    }
    return QString();
}

bool YumConfIO::isMainFile(QString const& file)
{
    return identity(file) == ManagedRoot::identity(fileName());
}

QList<YumConfIO::FileEntries> YumConfIO::entriesByFile() const
{
    QList<Repo::Entry> sorted = repos;
    std::stable_sort(sorted.begin(), sorted.end(), filePositionLessThan);
    QList<FileEntries> files;
    for (Repo::Entry const& entry : std::as_const(sorted)) {
        if (files.isEmpty() || files.constLast().constFirst().file != entry.file)
            files.append(FileEntries());
        files.last().append(entry);
    }
    return files;
}

/// Whether the repositories of a generated file, some or none, are what it holds.
bool YumConfIO::isAsGenerated(QString const& file, FileEntries const& entries) const
{
    auto const at = generated.constFind(file);
    return at != generated.cend() && at.value() == contentOf(file, entries);
}

/// Asks, once, about all generated files that a write would change or remove. True if there are none.
bool YumConfIO::confirmGenerated(QList<FileEntries> const& files)
{
    QStringList changed;
    QSet<QString> holding;
    for (FileEntries const& entries : files) {
        QString const file = entries.first().file;
        holding.insert(file);
        if ((generated.contains(file) || isGenerated(file)) && !isAsGenerated(file, entries))
            changed += file;
    }
    for (auto file = generated.cbegin(); file != generated.cend(); ++file) {
        if (isAllKnown() && !holding.contains(file.key()) && !isAsGenerated(file.key(), {}))
            changed += file.key();
    }
    if (changed.isEmpty())
        return true;
    changed.sort();
    return confirm(
        tr("subscription-manager generates these files and will write them anew, without the changes made "
           "here: %1.  Its own command, \"subscription-manager repo-override\", makes lasting ones.")
            .arg(changed.join(QStringLiteral(", "))) +
        tr("  Proceed?"));
}

/// What the generated files hold from now on. One that is to be removed is none any more.
void YumConfIO::noteWritten(QList<FileEntries> const& files)
{
    QHash<QString, QByteArray> const before = std::exchange(generated, {});
    for (FileEntries const& entries : files) {
        QString const file = entries.first().file;
        if (before.contains(file) || isGenerated(file))
            generated.insert(file, contentOf(file, entries));
    }
    for (auto file = before.cbegin(); file != before.cend(); ++file) {
        if (file.value().isEmpty() && !generated.contains(file.key()))
            generated.insert(file.key(), QByteArray());
    }
}

bool YumConfIO::filePositionLessThan(Repo::Entry const& a, Repo::Entry const& b)
{
    if (a.file != b.file)
        return a.file < b.file;
    return a.filePosition < b.filePosition;
}

/// Asks about identifiers that are missing or repeated. On Yes the repositories that can't be kept are gone
/// from `repos`; anything else answers false and changes nothing.
bool YumConfIO::checkErrors()
{
    QString message;
    if (hasEmptyId())
        message = tr("A repository has no Identifier.  It will be removed.");
    if (QString const ids = getDuplicateId(); !ids.isEmpty()) {
        if (!message.isEmpty())
            message += u'\n';
        message +=
            tr("Two or more repositories have the same Identifier(s), %1.  Only one repository will be "
               "applied for each Identifier.")
                .arg(ids);
    }
    if (message.isEmpty())
        return true;
    message += tr("  Proceed?");
    if (!confirm(message))
        return false;

    QList<Repo::Entry> kept;
    QSet<QString> ids;
    for (Repo::Entry const& entry : std::as_const(repos)) {
        if (entry.id.isEmpty() || ids.contains(entry.id))
            continue;
        ids.insert(entry.id);
        kept.append(entry);
    }
    repos = kept;
    return true;
}

bool YumConfIO::hasEmptyId() const
{
    return std::any_of(
        repos.cbegin(), repos.cend(), [](Repo::Entry const& entry) { return entry.id.isEmpty(); });
}

/// The identifier of each pair of repositories that share one, so that one used three times is named thrice.
QString YumConfIO::getDuplicateId() const
{
    QStringList ids;
    for (auto entry = repos.cbegin(); entry != repos.cend(); ++entry) {
        auto const sharing = std::count_if(
            entry + 1, repos.cend(), [entry](Repo::Entry const& other) { return other.id == entry->id; });
        for (auto pair = sharing; pair > 0; --pair)
            ids += entry->id;
    }
    return ids.join(QStringLiteral(", "));
}

/// Gives each repository the full path of its file: of several paths of one, the one that it was read by.
void YumConfIO::cleanupWrite(QList<Repo::Entry>& entries) const
{
    QHash<QByteArray, QString> paths = knownFiles();
    for (Repo::Entry& entry : entries) {
        if (entry.file.isEmpty())
            entry.file = entry.id + QStringLiteral(".repo");
        if (!entry.file.startsWith(u'/') && !reposdirs.isEmpty())
            entry.file = reposdirs.first() + u'/' + entry.file;
        // The name that the disk is going to know: under any other the removal of unused files would not
        // recognise the file, and two names that become one there would overwrite each other.
        entry.file = QString::fromLatin1(entry.file.toLatin1());
        QString& path = paths[identity(entry.file)];
        if (path.isNull())
            path = entry.file;
        entry.file = path;
    }
}

/// Writes one file anew, `entries` being all that it is to hold. False after a report.
bool YumConfIO::writeFile(QString const& file, QList<Repo::Entry> const& entries)
{
    OutputFile output;
    bool const isPrivate = !credentialsOf(contentOf(file, entries)).isEmpty();
    bool isWritten = false;
    if (output.open(file.toLatin1(), isPrivate)) {
        filesRead.insert(ManagedRoot::resolved(file.toLatin1()), file);
        // The content comes after the opening, since a main file that is new decides which one is the main.
        isWritten = replaceContent(output, contentOf(file, entries)) && output.close();
    }
    if (!isWritten)
        error(tr("Unable to write repository configuration file %1").arg(file));
    return isWritten;
}

QByteArray YumConfIO::contentOf(QString const& file, QList<Repo::Entry> const& entries) const
{
    char* buffer = nullptr;
    size_t size = 0;
    std::FILE* const stream = open_memstream(&buffer, &size);
    if (!stream)
        qBadAlloc();
    if (isMainFile(file))
        put(stream, mainOptions);
    for (qsizetype at = 0; at < entries.size(); ++at) {
        if (at > 0)
            std::fputc('\n', stream);
        writeRepo(stream, entries[at]);
    }
    bool const isWhole = std::ferror(stream) == 0;
    if (std::fclose(stream) != 0 || !isWhole)
        qBadAlloc();
    std::unique_ptr<char, decltype(&std::free)> const owner(buffer, &std::free);
    return forms.value(file).bytesOf(QByteArray(buffer, static_cast<qsizetype>(size)));
}

/// Writes one section, the understood options first, in a fixed order. Always true.
bool YumConfIO::writeRepo(std::FILE* stream, Repo::Entry const& repo)
{
    put(stream, u'[' + repo.id + QStringLiteral("]\n"));
    if (!repo.name.isEmpty())
        putOption(stream, "name", repo.name);
    if (!repo.baseurl.isEmpty()) {
        QString urls = repo.baseurl;
        putOption(stream, "baseurl", urls.replace(u'\n', QStringLiteral("\n        ")));
    }
    if (!repo.mirrorlist.isEmpty())
        putOption(stream, "mirrorlist", repo.mirrorlist);
    putSwitch(stream, "enabled", repo.enabled);
    putSwitch(stream, "gpgcheck", repo.gpgcheck);
    put(stream, repo.otherOptions);
    return true;
}

/// Deletes every file of the repository directories that is none of the `used`, whatever its name. Of a link
/// only the link goes. The first failure is told and ends it.
bool YumConfIO::removeUnusedFiles(QSet<QByteArray> const& used)
{
    // All are looked at first: a file that is gone leaves links to it that can't be.
    QStringList unused;
    QStringList const folders = directories();
    bool const isAllSeen = std::all_of(folders.cbegin(), folders.cend(), [&](QString const& directory) {
        return findUnusedFiles(directory, used, unused);
    });
    bool const isRemoved = std::all_of(unused.cbegin(), unused.cend(), [this](QString const& path) {
        QByteArray const resolved = ManagedRoot::resolved(path.toLatin1());
        if (ManagedRoot::unlink(path.toLatin1())) {
            filesRead.remove(resolved);
            return true;
        }
        error(tr("Unable to unlink repository configuration file %1").arg(path));
        return false;
    });
    return isAllSeen && isRemoved;
}

/// False, after a report, where one can't be looked at.
bool YumConfIO::findUnusedFiles(QString const& directory, QSet<QByteArray> const& used, QStringList& unused)
{
    std::optional<QByteArrayList> const names = ManagedRoot::names(directory.toLatin1());
    for (QByteArray const& name : names.value_or(QByteArrayList())) {
        QString const path = directory + u'/' + QString::fromLatin1(name);
        struct stat status = {};
        if (!ManagedRoot::inspect(path.toLatin1(), status)) {
            error(tr("Unable to stat repository configuration file %1").arg(path));
            return false;
        }
        if (S_ISREG(status.st_mode) && !used.contains(identity(path)))
            unused += path;
    }
    return true;
}
