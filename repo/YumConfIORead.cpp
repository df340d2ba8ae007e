// SPDX-License-Identifier: GPL-2.0-or-later
// The configuration's reading: directories, files, lines, options.
#include "repo/YumConfIO.h"

#include "base/Descriptor.h"
#include "base/ManagedRoot.h"
#include "repo/ConfText.h"

#include <QRegularExpression>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

/// All that a file holds; false for an error.
bool readAll(Descriptor const& file, QByteArray& content)
{
    constexpr qsizetype most = 65536;
    struct stat status = {};
    if (fstat(file.get(), &status) == 0)
        content.reserve(qsizetype(status.st_size) + most);
    for (;;) {
        qsizetype const before = content.size();
        content.resize(before + most);
        ssize_t const count = ::read(file.get(), content.data() + before, most);
        content.resize(before + (count > 0 ? count : 0));
        if (count == 0 || (count < 0 && errno != EINTR))
            return count == 0;
    }
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

/// A line that ends in CR LF, in a file where others don't, says the same without the CR.
QString withoutReturns(QString const& line)
{
    qsizetype length = line.size();
    while (length > 0 && line[length - 1] == u'\r')
        --length;
    return line.first(length);
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
    forms.clear();
    filesRead.clear();
    isAllListed = true;

    QSet<QByteArray> met;
    if (!readMainFile(QString::fromLatin1(file.path), met))
        return false;
    for (QString const& directory : directories()) {
        if (!readDirectory(directory, met))
            return false;
    }

    Q_EMIT changed();
    return true;
}

bool YumConfIO::readMainFile(QString const& path, QSet<QByteArray>& met)
{
    unfinishedFile = path;
    struct stat status = {};
    // To open what is no file might wait for ever, or set something going; a directory does neither.
    if (ManagedRoot::inspect(path.toLatin1(), status) && !S_ISREG(status.st_mode) &&
        !S_ISDIR(status.st_mode)) {
        tell(notRegular(path));
        return false;
    }
    Descriptor const file(ManagedRoot::open(path.toLatin1(), O_RDONLY | O_NONBLOCK));
    if (!file) {
        error(tr("Unable to read yum configuration file %1").arg(path));
        return false;
    }
    met.insert(ManagedRoot::identity(path.toLatin1()));
    return readFile(file, path, &YumConfIO::readConfFile);
}

/// Reads the ".repo" files of `directory`, in the order in which it lists them. One that can't be opened is
/// passed over: of the default directories only one exists as a rule.
bool YumConfIO::readDirectory(QString const& directory, QSet<QByteArray>& met)
{
    std::optional<QByteArrayList> const names = ManagedRoot::names(directory.toLatin1());
    if (!names) {
        isAllListed = isAllListed && (errno == ENOENT || errno == ENOTDIR);
        return true;
    }
    return std::all_of(names->cbegin(), names->cend(), [&](QByteArray const& name) {
        return !name.endsWith(".repo") ||
               readDirectoryFile(directory + u'/' + QString::fromLatin1(name), met);
    });
}

QString YumConfIO::notRegular(QString const& path)
{
    return tr("%1 is not a regular file.  It is neither read nor changed.").arg(path);
}

/// Reads one file, unless it has been `met` by another path.
bool YumConfIO::readDirectoryFile(QString const& path, QSet<QByteArray>& met)
{
    unfinishedFile = path;
    struct stat status = {};
    if (!ManagedRoot::inspect(path.toLatin1(), status)) {
        error(tr("Unable to stat repository configuration file %1").arg(path));
        return false;
    }
    QByteArray const identity = ManagedRoot::identity(path.toLatin1());
    if (S_ISDIR(status.st_mode) || met.contains(identity)) {
        unfinishedFile.clear();
        return true;
    }
    if (!S_ISREG(status.st_mode)) {
        if (!passedOver.contains(path))
            tell(notRegular(path));
        passedOver.insert(path);
        unfinishedFile.clear();
        return true;
    }

    Descriptor const file(ManagedRoot::open(path.toLatin1(), O_RDONLY | O_NONBLOCK));
    if (!file) {
        error(tr("Unable to read repository configuration file %1").arg(path));
        return false;
    }
    met.insert(identity);
    qsizetype const first = repos.size();
    if (!readFile(file, path, &YumConfIO::readRepoFile))
        return false;
    if (generated.contains(path))
        generated[path] = contentOf(path, repos.mid(first));
    return true;
}

/// Reads the whole of an open file, whose text `take` takes apart.
bool YumConfIO::readFile(Descriptor const& file, QString const& path, TakeText take)
{
    QByteArray content;
    if (!readAll(file, content)) {
        error(tr("Error reading repository configuration file %1").arg(path));
        return false;
    }
    ConfText text(content);
    forms.insert(path, text.form());
    if (!(this->*take)(text, path))
        return false;
    filesRead.insert(ManagedRoot::resolved(path.toLatin1()), path);
    unfinishedFile.clear();
    return true;
}

/// Reads the main section, then what repositories the main file holds. Lines before "[main]" are treated as
/// if they stood inside it.
bool YumConfIO::readConfFile(ConfText& text, QString const& file)
{
    QString line;
    while (text.takeLine(line)) {
        QString const head = withoutReturns(line);
        if (head != QLatin1String("[main]")) {
            if (head.startsWith(u'[')) {
                text.putBack();
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
    return readRepoFile(text, file);
}

/// Reads the sections of a file up to its end. What stands above the first head goes into an entry that is
/// dropped; it tells whether a program writes the file.
bool YumConfIO::readRepoFile(ConfText& text, QString const& file)
{
    Repo::Entry entry;
    entry.file = file;
    bool inSection = false;
    bool isNew = false;

    for (;;) {
        QString line;
        bool const isOver = !text.takeLine(line);
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

        QString const head = withoutReturns(line);
        if (!head.endsWith(u']')) {
            error(tr("Malformed section name in line: %1").arg(line), tr("\nThe file is %1.").arg(file));
            return false;
        }
        if (inSection)
            finishEntry(entry, isNew);

        Repo::Entry next;
        next.id = head.mid(1, head.size() - 2);
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
    value = withoutReturns(line.mid(start));
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
    QString const name = QStringLiteral("/redhat.repo");
    // By any path that leads to it.
    return file.endsWith(name) || ManagedRoot::resolved(file.toLatin1()).endsWith(name.toLatin1()) ||
           head.contains(mark);
}
