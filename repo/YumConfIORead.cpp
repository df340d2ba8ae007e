// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's reading: directories, files, lines, options.
#include "repo/YumConfIO.h"

#include <QRegularExpression>

#include <cerrno>
#include <memory>

#include <dirent.h>
#include <sys/stat.h>

namespace
{

struct FileCloser
{
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};

struct DirectoryCloser
{
    void operator()(DIR* directory) const { closedir(directory); }
};

using File = std::unique_ptr<std::FILE, FileCloser>;
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

/// Opens for reading; the descriptor does not pass to programs started meanwhile.
File openFile(QByteArray const& diskName)
{
    return File(std::fopen(diskName.constData(), "re"));
}

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t';
}

/// Only "0" is off: "no", "false" and "00" count as on.
bool isOn(QString const& value)
{
    return value != u'0';
}

} // namespace

bool YumConfIO::read(QWidget* window)
{
    parent = window;
    mainOptions.clear();
    MainFile const& file = mainFile();
    cachedir = file.cachedir;
    reposdirs = file.reposdirs;
    mainEnabled = true;
    mainGpgcheck = false;
    repos.clear();
    generated.clear();

    {
        QString const path = QString::fromLatin1(file.path);
        unfinishedFile = path;
        File const stream = openFile(diskName(path));
        if (!stream) {
            error(tr("Unable to read yum configuration file %1").arg(path));
            return false;
        }
        if (!readConfFile(stream.get()))
            return false;
        unfinishedFile.clear();
    }

    for (QString const& directory : std::as_const(reposdirs)) {
        if (!readDirectory(directory))
            return false;
    }

    Q_EMIT changed();
    return true;
}

/// Reads the ".repo" files of `directory`, in the order in which it lists them. One that can't be opened is
/// passed over: of the default directories only one exists as a rule.
bool YumConfIO::readDirectory(QString const& directory)
{
    Directory const stream(opendir(diskName(directory).constData()));
    if (!stream)
        return true;

    while (dirent const* const item = ::readdir(stream.get())) {
        QString const name = QString::fromLatin1(item->d_name);
        if (name.endsWith(QLatin1String(".repo")) && !readDirectoryFile(directory + u'/' + name))
            return false;
    }
    return true;
}

bool YumConfIO::readDirectoryFile(QString const& path)
{
    unfinishedFile = path;
    QByteArray const name = diskName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0) {
        error(tr("Unable to stat repository configuration file %1").arg(path));
        return false;
    }
    if (S_ISDIR(status.st_mode)) {
        unfinishedFile.clear();
        return true;
    }

    File const stream = openFile(name);
    if (!stream) {
        error(tr("Unable to read repository configuration file %1").arg(path));
        return false;
    }
    qsizetype const first = repos.size();
    if (!readRepoFile(stream.get(), path))
        return false;
    if (generated.contains(path))
        generated[path] = contentOf(path, repos.mid(first));
    unfinishedFile.clear();
    return true;
}

/// Reads the main section, then what repositories the main file holds. Lines before "[main]" are treated as
/// if they stood inside it.
bool YumConfIO::readConfFile(std::FILE* stream)
{
    for (;;) {
        QString line;
        ReadResult const result = readLogicalLine(stream, QString::fromLatin1(fileName()), line);
        if (result == ReadError)
            return false;
        if (result == EndOfFile)
            break;

        if (line != QLatin1String("[main]")) {
            if (line.startsWith(u'[')) {
                unreadLine(line);
                break;
            }
            QString value;
            if (isOption(line, QStringLiteral("cachedir"), value))
                cachedir = value;
            else if (isOption(line, QStringLiteral("reposdir"), value))
                reposdirs = value.replace(u',', u' ').split(u' ', Qt::SkipEmptyParts);
            else if (isOption(line, QStringLiteral("enabled"), value))
                mainEnabled = isOn(value);
            else if (isOption(line, QStringLiteral("gpgcheck"), value))
                mainGpgcheck = isOn(value);
        }
        mainOptions += line + u'\n';
    }
    return readRepoFile(stream, QString::fromLatin1(fileName()));
}

/// Reads the sections of a file up to its end. What stands above the first head goes into an entry that is
/// dropped; it tells whether a program writes the file.
bool YumConfIO::readRepoFile(std::FILE* stream, QString const& file)
{
    Repo::Entry entry;
    entry.file = file;
    bool inSection = false;
    bool isNew = false;

    for (;;) {
        QString line;
        ReadResult const result = readLogicalLine(stream, file, line);
        if (result == ReadError)
            return false;
        bool const isOver = result == EndOfFile;
        if (!inSection && (isOver || line.startsWith(u'[')) && isGenerated(file, entry.otherOptions))
            generated.insert(file, QByteArray());
        if (isOver) {
            if (inSection)
                finishEntry(entry, isNew);
            return true;
        }

        if (!line.startsWith(u'[')) {
            readRepoOption(line, isNew, entry);
            continue;
        }

        if (!line.endsWith(u']')) {
            error(tr("Malformed section name in line: %1").arg(line));
            return false;
        }
        if (inSection)
            finishEntry(entry, isNew);

        Repo::Entry next;
        next.id = line.mid(1, line.size() - 2);
        next.file = file;
        next.filePosition = entry.filePosition + 1.0;
        entry = next;
        isNew = !reposEnabled.contains(entry.id);
        if (isNew)
            reposEnabled.insert(entry.id, mainEnabled);
        inSection = true;
    }
}

/// Takes one logical line of a section. The section's own `enabled` overrules the main section's for the
/// session of a repository that is seen for the first time.
void YumConfIO::readRepoOption(QString const& line, bool isNew, Repo::Entry& entry)
{
    QString value;
    if (isOption(line, QStringLiteral("name"), value)) {
        entry.name = value;
    } else if (isOption(line, QStringLiteral("baseurl"), value)) {
        entry.baseurl = value;
    } else if (isOption(line, QStringLiteral("mirrorlist"), value)) {
        entry.mirrorlist = value;
    } else if (isOption(line, QStringLiteral("enabled"), value)) {
        entry.enabled = isOn(value) ? Repo::Yes : Repo::No;
        if (isNew)
            reposEnabled[entry.id] = entry.enabled == Repo::Yes;
    } else if (isOption(line, QStringLiteral("gpgcheck"), value)) {
        entry.gpgcheck = isOn(value) ? Repo::Yes : Repo::No;
    } else if (!line.isEmpty()) {
        entry.otherOptions += line + u'\n';
    }
}

/// The section of `entry` is complete. The command line comes last, since it overrules the section.
void YumConfIO::finishEntry(Repo::Entry& entry, bool isNew)
{
    cleanupRead(entry);
    if (isNew)
        applyUsedOptions(entry);
    repos.append(entry);
}

/// A logical line is a physical one with all that follow it and begin with a blank or a tab.
YumConfIO::ReadResult YumConfIO::readLogicalLine(std::FILE* stream, QString const& file, QString& line)
{
    if (unreadLines.isEmpty()) {
        ReadResult const result = readLine(stream, file, line);
        if (result != Line)
            return result;
    } else {
        line = unreadLines.takeFirst();
        // With another line waiting behind it, it has been through here before and is complete.
        if (!unreadLines.isEmpty())
            return Line;
    }

    for (;;) {
        QString next;
        switch (readLine(stream, file, next)) {
        case ReadError:
            return ReadError;
        case EndOfFile:
            unreadLines.clear();
            return Line;
        case Line:
            break;
        }
        if (next.isEmpty() || !isBlank(next.front())) {
            unreadLines.append(next);
            return Line;
        }
        line += u'\n' + next;
    }
}

/// Reads up to a line feed, which is not part of the line. A last line without one counts unless it is empty.
YumConfIO::ReadResult YumConfIO::readLine(std::FILE* stream, QString const& file, QString& line)
{
    line.clear();
    for (;;) {
        errno = 0;
        int const byte = std::getc(stream);
        if (byte == '\n')
            return Line;
        if (byte != EOF) {
            line += QLatin1Char(static_cast<char>(byte));
            continue;
        }
        if (errno == 0)
            return line.isEmpty() ? EndOfFile : Line;
        error(tr("Error reading repository configuration file %1").arg(file));
        return ReadError;
    }
}

void YumConfIO::unreadLine(QString const& line)
{
    unreadLines.prepend(line);
}

/// Whether `line` sets `option`; its value goes to `value`. The option's name has to fill the line up to the
/// separator, so that one behind a comment sign matches nothing.
bool YumConfIO::isOption(QString const& line, QString const& option, QString& value)
{
    static QRegularExpression const separator(QStringLiteral("[:=]"));
    qsizetype const at = line.indexOf(separator);
    if (at < 0)
        return false;

    qsizetype length = at;
    while (length > 0 && isBlank(line[length - 1]))
        --length;
    if (QStringView(line).first(length) != option)
        return false;

    qsizetype start = at + 1;
    while (start < line.size() && isBlank(line[start]))
        ++start;
    value = line.mid(start);
    return true;
}

/// Puts each URL on a line of its own: in files blanks, tabs and line feeds part them.
void YumConfIO::cleanupRead(Repo::Entry& entry)
{
    static QRegularExpression const gap(QStringLiteral("[ \\t\\n]+"));
    entry.baseurl.replace(gap, QStringLiteral("\n"));
}

/// Whether subscription-manager writes the file anew whenever it likes: by its name, or by what it puts above
/// the first section.
bool YumConfIO::isGenerated(QString const& file, QString const& head)
{
    static QRegularExpression const mark(
        QStringLiteral("^#.*managed by.*subscription-manager"),
        QRegularExpression::MultilineOption | QRegularExpression::CaseInsensitiveOption);
    return file.endsWith(QLatin1String("/redhat.repo")) || head.contains(mark);
}
