// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "repo/ConfText.h"
#include "repo/RepoEntry.h"
#include "repo/YumRepoEnabled.h"

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QStringList>

#include <cstdio>

class Descriptor;
class QWidget;

/// The package library's configuration in memory: the main file, then every ".repo" file of every repository
/// directory. The few options that the system understands are taken apart; everything else is held as text,
/// line by line, so that a write gives the user's files back with their contents kept.
///
/// Owned by the main window, on the GUI thread, which its file work blocks.
///
/// Files are bytes: each byte is one character of the same value (Latin-1) here and goes back out as the
/// same byte, in texts and in paths alike. When the environment variable VEMROOT is set, the files are those
/// below that directory; paths keep their text everywhere but at the disk. Two paths of one file mean that
/// file: it is read once, and written and kept whichever of them a repository names.
///
/// A file that begins with a UTF-8 byte order mark, or whose lines all end in CR LF, keeps both.
class YumConfIO final : public QObject
{
    Q_OBJECT

public:
    /// Keeps references to both: `usedOptions` holds the requests of the command line, `reposEnabled` the
    /// session flags by repository identifier. They have to outlive this object.
    YumConfIO(QList<YumRepoEnabled> const& usedOptions, QHash<QString, bool>& reposEnabled);

    /// Reads everything anew; unwritten changes of `repos` are lost. True when all was read, and `changed()`
    /// has been emitted. When false the user has seen a message box over `window`, and the members hold the
    /// defaults and what was read up to the fault.
    bool read(QWidget* window);

    /// Writes every file that a repository of `repos` belongs to, and the main file, anew from memory, and
    /// deletes all other files of the repository directories. First the user is asked, over `window`, about
    /// missing and repeated identifiers; the answer Yes removes those from `repos`. New repositories get
    /// their file name. Emits nothing.
    ///
    /// A file that subscription-manager generates stays as it is, byte for byte, as long as its repositories
    /// are those that were read. Otherwise the user is asked, over `window`, before anything is written.
    ///
    /// True when the files were written; a failed deletion is told but changes nothing. When false the user
    /// has declined or has seen a message box, files later in the order were not touched and nothing was
    /// deleted.
    ///
    /// Only a new file is written, or one that the last read read whole: else the user is told, and nothing
    /// at all is written. After a read that failed nothing is deleted either.
    bool write(QWidget* window);

    /// The order of writing: by file, then by position in it. Equal positions have no order.
    [[nodiscard]] static bool filePositionLessThan(Repo::Entry const& a, Repo::Entry const& b);

    /// The path of the main file: the first that exists of "/etc/yum/yum.conf", "/etc/yum.conf" and
    /// "/etc/dnf/dnf.conf"; without any "/etc/yum.conf". Looked up at each call.
    [[nodiscard]] static char const* fileName();

    QString cachedir;          ///< the package library's cache directory
    QStringList reposdirs;     ///< the repository directories, in order
    bool mainEnabled = true;   ///< what Repo::Default means for a repository's `enabled`
    bool mainGpgcheck = false; ///< what Repo::Default means for a repository's `gpgcheck`
    QList<Repo::Entry> repos;  ///< all repositories of all files, in reading order; the editor works on it
    QList<YumRepoEnabled> const& usedOptions; ///< the command line's requests, in its order
    /// Identifier to whether the repository is used in this session. Nothing empties it: a flag, once set,
    /// stays across reads for as long as the program runs.
    QHash<QString, bool>& reposEnabled;
    QString mainOptions; ///< the main section's text, a line feed after each logical line

Q_SIGNALS:
    /// A read has wholly succeeded.
    void changed();

private:
    /// A main file, and the defaults of the options that it doesn't state.
    struct MainFile
    {
        char const* path;
        QStringList reposdirs;
        QString cachedir;
    };

    /// Takes the text of a file apart; false after a report.
    using TakeText = bool (YumConfIO::*)(ConfText& text, QString const& file);

    [[nodiscard]] static MainFile const& mainFile();
    [[nodiscard]] QStringList directories() const;
    bool readMainFile(QString const& path, QSet<QByteArray>& met);
    bool readDirectory(QString const& directory, QSet<QByteArray>& met);
    bool readDirectoryFile(QString const& path, QSet<QByteArray>& met);
    bool readFile(Descriptor const& file, QString const& path, TakeText take);
    [[nodiscard]] static QString notRegular(QString const& path);
    bool readConfFile(ConfText& text, QString const& file);
    bool readRepoFile(ConfText& text, QString const& file);
    static bool isOption(QString const& line, QString const& option, QString& value);
    void readRepoOption(QString const& line, bool isNew, Repo::Entry& entry);
    void finishEntry(Repo::Entry& entry, bool isNew);
    static void cleanupRead(Repo::Entry& entry);
    static bool isGenerated(QString const& file, QString const& head = QString());
    void applyUsedOptions(Repo::Entry const& entry);

    bool checkErrors();
    [[nodiscard]] bool hasEmptyId() const;
    [[nodiscard]] QString getDuplicateId() const;
    void cleanupWrite(QList<Repo::Entry>& entries) const;
    /// The repositories of one file in the order in which it is to hold them; never empty.
    using FileEntries = QList<Repo::Entry>;
    [[nodiscard]] QList<FileEntries> entriesByFile() const;
    [[nodiscard]] bool isAllKnown() const;
    [[nodiscard]] QHash<QByteArray, QString> knownFiles() const;
    [[nodiscard]] QString unreadFile(QList<FileEntries> const& files) const;
    [[nodiscard]] static bool isMainFile(QString const& file);
    bool confirmGenerated(QList<FileEntries> const& files);
    [[nodiscard]] bool isAsGenerated(QString const& file, FileEntries const& entries) const;
    void noteWritten(QList<FileEntries> const& files);
    bool writeFile(QString const& file, QList<Repo::Entry> const& entries);
    [[nodiscard]] QByteArray contentOf(QString const& file, QList<Repo::Entry> const& entries) const;
    static bool writeRepo(std::FILE* stream, Repo::Entry const& repo);
    bool removeUnusedFiles(QSet<QByteArray> const& used);
    bool findUnusedFiles(QString const& directory, QSet<QByteArray> const& used, QStringList& unused);

    /// Shows `message` with errno behind it, in a critical box over `parent`.
    void error(QString const& message, QString const& where = QString());
    /// Shows `message` alone in such a box.
    void tell(QString const& message);
    /// Asks in a critical box over `parent`; whether the answer was Yes.
    bool confirm(QString const& question);

    QWidget* parent = nullptr; ///< under the message boxes; not owned, set by each read and write
    /// The files that subscription-manager generates, and what a write would make of their repositories as
    /// they were read, or last written.
    QHash<QString, QByteArray> generated;
    QHash<QString, ConfForm> forms; ///< in what form each file was read
    /// The files that were read whole, or written since, by their resolved paths; the path that each was read
    /// by.
    QHash<QByteArray, QString> filesRead;
    QSet<QString> passedOver; ///< what is no regular file and was told
    QString unfinishedFile;   ///< the file in which the last read stopped; empty when it read everything
    bool isAllListed = true;  ///< no directory that is there kept its files from the last read
};
