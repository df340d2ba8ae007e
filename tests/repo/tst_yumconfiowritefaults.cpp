// SPDX-License-Identifier: GPL-2.0-or-later
// What the user is asked and told while the configuration is written, and what is on the disk after it.
#include "BoxAnswer.h"
#include "ConfFiles.h"
#include "Unprivileged.h"

#include <QTest>

#include <cerrno>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using ConfFiles::content;
using ConfFiles::names;

namespace
{

constexpr char const* emptyIdWords = "A repository has no Identifier.  It will be removed.";
constexpr char const* sharedIdWords =
    "Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each "
    "Identifier.";

QString sharedIds(char const* ids)
{
    return QString::fromLatin1(sharedIdWords).arg(QString::fromLatin1(ids));
}

/// The words about a file whose content isn't known.
QString unread(char const* file)
{
    return QStringLiteral("The file %1 has not been read, or not to its end.  Nothing is written, so that "
                          "nothing in it is lost.")
        .arg(QString::fromLatin1(file));
}

void link(ConfRoot const& root, QByteArray const& path, char const* target)
{
    QCOMPARE(::symlink(target, root.onDisk(path).constData()), 0);
}

/// A disk of a few pages, mounted below a root for as long as this lives.
class SmallDisk
{
public:
    explicit SmallDisk(QByteArray const& where)
        : directory(where),
          isMounted(::mount("none", where.constData(), "tmpfs", MS_NOSUID, "size=32k") == 0)
    {
    }
    ~SmallDisk()
    {
        if (isMounted)
            ::umount2(directory.constData(), MNT_DETACH);
    }
    SmallDisk(SmallDisk const&) = delete;
    SmallDisk& operator=(SmallDisk const&) = delete;

    explicit operator bool() const { return isMounted; }

private:
    QByteArray directory;
    bool isMounted;
};

} // namespace

class TestYumConfIOWriteFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void identifiersAreAskedAbout_data();
    void identifiersAreAskedAbout();
    void questionOffersNoFirst();
    void identifiersAreShownAsPlainText();
    void anythingButYesChangesNothing_data();
    void anythingButYesChangesNothing();
    void firstOfAnIdentifierIsKept();
    void twoFilesWithOneIdentifier();
    void whatYesRemovedIsGoneEvenIfWritingFails();

    void missingDirectoryIsTold();
    void directoryInPlaceOfAFileIsTold();
    void fileThatMayNotBeWrittenIsTold();
    void directoryThatCouldNotBeListedKeepsItsFiles();
    void fullDiskIsTold();
    void fullDiskOfTheMainFileIsTold();
    void fullDiskKeepsWhatTheFileHeld();
    void failureEndsTheWriting();
    void pathWithANulByteIsTold();
    void danglingLinkEndsTheCleaningUp();
    void danglingLinkOfARepositoryIsWrittenThrough();
    void fileThatCannotBeDeletedEndsTheCleaningUp();

    void unreadFilesAreKept();
    void fileThatWasReadInPartIsKept();
    void unreadMainFileIsKept();
    void readThatWorksAgainEndsTheKeeping();
    void unreadFileIsNotWritten();
    void otherFileIsNotWritten();
    void fileThatWasWrittenIsKnown();

    void longestLineSurvives();
};

void TestYumConfIOWriteFaults::init()
{
    errno = 0;
}

void TestYumConfIOWriteFaults::identifiersAreAskedAbout_data()
{
    QTest::addColumn<QString>("ids");
    QTest::addColumn<QString>("question");
    auto const row = [](char const* ids, QString const& question) {
        QTest::newRow(ids) << QString::fromLatin1(ids) << question;
    };
    QString const empty = QString::fromLatin1(emptyIdWords);
    row("", empty);
    row("a,", empty);
    row("a,a", sharedIds("a"));
    row("a,b,a", sharedIds("a"));
    row("a,a,a", sharedIds("a, a, a"));
    row("a,b,b,a", sharedIds("a, b"));
    row(",a,a", empty + u'\n' + sharedIds("a"));
    // Empty identifiers share theirs too, though the list of one such pair shows nothing.
    row(",", empty);
    row(",,", empty + u'\n' + sharedIds(", , "));
}

void TestYumConfIOWriteFaults::identifiersAreAskedAbout()
{
    QFETCH(QString, ids);
    QFETCH(QString, question);
    BoxAnswer boxes(QMessageBox::No);
    ConfRoot root;
    QVERIFY(root.readMain("[main]\n"));
    for (QString const& id : ids.split(u','))
        root.conf.repos += newRepo(id);
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts, QStringList(question + QStringLiteral("  Proceed?")));
}

void TestYumConfIOWriteFaults::questionOffersNoFirst()
{
    BoxAnswer boxes(QMessageBox::No);
    ConfRoot root;
    QVERIFY(root.readRepoFile("[]\n"));
    QWidget window;
    QVERIFY(!root.conf.write(&window));
    QCOMPARE(boxes.captions, QStringList(QStringLiteral("Repository Editor")));
    QCOMPARE(boxes.icon, QMessageBox::Critical);
    QCOMPARE(boxes.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(boxes.defaultButton, QMessageBox::No);
    QCOMPARE(boxes.parent, &window);
}

void TestYumConfIOWriteFaults::identifiersAreShownAsPlainText()
{
    BoxAnswer boxes(QMessageBox::No);
    ConfRoot root;
    QVERIFY(root.readRepoFile("[<b>%1</b>]\n[<b>%1</b>]\n"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.format, Qt::PlainText);
    QCOMPARE(boxes.texts, QStringList(sharedIds("<b>%1</b>") + QStringLiteral("  Proceed?")));
}

void TestYumConfIOWriteFaults::anythingButYesChangesNothing_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("no") << QMessageBox::No;
    QTest::newRow("escape") << QMessageBox::NoButton;
}

void TestYumConfIOWriteFaults::anythingButYesChangesNothing()
{
    QFETCH(QMessageBox::StandardButton, answer);
    BoxAnswer boxes(answer);
    ConfRoot root;
    QByteArray const text = "lost\n[a]\n[a]\n";
    QVERIFY(root.readRepoFile(text));
    root.conf.repos += newRepo(QStringLiteral("new"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(root.ids().join(u' '), QStringLiteral("a a new"));
    QCOMPARE(root.conf.repos[2].file, QString());
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), text);
    QCOMPARE(boxes.texts.size(), 1);
}

void TestYumConfIOWriteFaults::firstOfAnIdentifierIsKept()
{
    BoxAnswer boxes(QMessageBox::Yes);
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\nname=1\n[]\n[b]\n[a]\nname=2\n[a]\nname=3\n[]\n[c]\n"));
    // The first of the list, wherever it stands in the file.
    root.conf.repos[0].filePosition = 10.0;
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(root.ids().join(u' '), QStringLiteral("a b c"));
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), QByteArray("[b]\n\n[c]\n\n[a]\nname=1\n"));
    QCOMPARE(boxes.texts.size(), 1);
}

void TestYumConfIOWriteFaults::twoFilesWithOneIdentifier()
{
    BoxAnswer boxes(QMessageBox::Yes);
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one /etc/two\n");
    root.write("/etc/one/x.repo", "[a]\nname=1\n");
    root.write("/etc/two/y.repo", "[a]\nname=2\n");
    QVERIFY(root.conf.read(nullptr));
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(boxes.texts, QStringList(sharedIds("a") + QStringLiteral("  Proceed?")));
    QCOMPARE(content(root, "/etc/one/x.repo"), QByteArray("[a]\nname=1\n"));
    QCOMPARE(names(root, "/etc/two"), QList<QByteArray>());
}

void TestYumConfIOWriteFaults::whatYesRemovedIsGoneEvenIfWritingFails()
{
    BoxAnswer boxes(QMessageBox::Yes);
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n[a]\n[]\n"));
    root.conf.repos += newRepo(QStringLiteral("new"), QStringLiteral("/nowhere/new.repo"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(root.ids().join(u' '), QStringLiteral("a new"));
    QCOMPARE(boxes.texts.size(), 2);
}

void TestYumConfIOWriteFaults::missingDirectoryIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n"));
    root.conf.repos += newRepo(QStringLiteral("new"));
    QWidget window;
    QVERIFY(!root.conf.write(&window));
    QCOMPARE(
        boxes.texts, QStringList(BoxAnswer::told(
                         "Unable to write repository configuration file /etc/yum/repos.d/new.repo", ENOENT)));
    QCOMPARE(boxes.captions, QStringList(QStringLiteral("VEM Repository Editor Error")));
    QCOMPARE(boxes.parent, &window);
    QCOMPARE(root.conf.repos[1].file, QStringLiteral("/etc/yum/repos.d/new.repo"));
}

void TestYumConfIOWriteFaults::directoryInPlaceOfAFileIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n"));
    root.makeDirectory("/etc/yum.repos.d/x.repo");
    root.conf.repos += newRepo(QStringLiteral("x"), QStringLiteral("/etc/yum.repos.d/x.repo"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(
        boxes.texts, QStringList(BoxAnswer::told(
                         "Unable to write repository configuration file /etc/yum.repos.d/x.repo", EISDIR)));
}

void TestYumConfIOWriteFaults::fileThatMayNotBeWrittenIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.repos.d/unused", "x");
    QVERIFY(root.readRepoFile("[a]\n"));
    root.openToAll();
    root.setPermissions("/etc/yum.repos.d/some.repo", QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    root.conf.repos[0].name = QStringLiteral("changed");
    bool isWritten = true;
    {
        Unprivileged const user;
        if (!user)
            QSKIP("Root can't become another user here.");
        isWritten = root.conf.write(nullptr);
    }
    QVERIFY(!isWritten);
    QCOMPARE(
        boxes.texts,
        QStringList(BoxAnswer::told(
            "Unable to write repository configuration file /etc/yum.repos.d/some.repo", EACCES)));
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), "[a]\n");
    QCOMPARE(names(root, "/etc/yum.repos.d"), (QList<QByteArray>{"some.repo", "unused"}));
}

// As after a directory that isn't there, the reading goes on without a word; but nobody knows what is out of
// use.
void TestYumConfIOWriteFaults::directoryThatCouldNotBeListedKeepsItsFiles()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/yum.repos.d /shut\n");
    root.write("/etc/yum.repos.d/some.repo", "[a]\n");
    root.write("/shut/other.repo", "[b]\n");
    root.openToAll();
    root.setPermissions("/shut", QFile::WriteOwner | QFile::ExeOwner);
    {
        Unprivileged const user;
        if (!user)
            QSKIP("Root can't become another user here.");
        QVERIFY(root.conf.read(nullptr));
    }
    QCOMPARE(root.conf.repos.size(), 1);
    root.setPermissions("/shut", QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(content(root, "/shut/other.repo"), "[b]\n");
    QCOMPARE(boxes.texts, QStringList());

    QVERIFY(root.conf.read(nullptr));
    root.conf.repos.removeLast();
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(names(root, "/shut"), QList<QByteArray>());
}

void TestYumConfIOWriteFaults::fullDiskIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.makeDirectory("/etc/yum.repos.d");
    SmallDisk const disk(root.onDisk("/etc/yum.repos.d"));
    if (!disk)
        QSKIP("no right to mount a small disk");
    root.write("/etc/yum.repos.d/unused", "x");
    QVERIFY(root.readRepoFile("[a]\n"));
    root.conf.repos += newRepo(QStringLiteral("full"), QStringLiteral("/etc/yum.repos.d/full.repo"));
    root.conf.repos.last().otherOptions = QString(100000, u'x');
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(
        boxes.texts,
        QStringList(BoxAnswer::told(
            "Unable to write repository configuration file /etc/yum.repos.d/full.repo", ENOSPC)));
    QCOMPARE(names(root, "/etc/yum.repos.d"), (QList<QByteArray>{"full.repo", "some.repo", "unused"}));
}

void TestYumConfIOWriteFaults::fullDiskOfTheMainFileIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.makeDirectory("/etc");
    SmallDisk const disk(root.onDisk("/etc"));
    if (!disk)
        QSKIP("no right to mount a small disk");
    root.write("/etc/yum.repos.d/unused", "x");
    QVERIFY(root.readMain("[main]\n"));
    root.conf.mainOptions = QString(100000, u'x');
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(
        boxes.texts,
        QStringList(BoxAnswer::told("Unable to write repository configuration file /etc/yum.conf", ENOSPC)));
    QCOMPARE(names(root, "/etc/yum.repos.d"), QList<QByteArray>{"unused"});
}

void TestYumConfIOWriteFaults::fullDiskKeepsWhatTheFileHeld()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.makeDirectory("/etc/yum.repos.d");
    SmallDisk const disk(root.onDisk("/etc/yum.repos.d"));
    if (!disk)
        QSKIP("no right to mount a small disk");

    QVERIFY(root.readRepoFile("[a]\nname=A\n"));
    root.conf.repos[0].otherOptions = QString(100000, u'x');
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(
        boxes.texts,
        QStringList(BoxAnswer::told(
            "Unable to write repository configuration file /etc/yum.repos.d/some.repo", ENOSPC)));
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), QByteArray("[a]\nname=A\n"));

    // The room is free again for what fits.
    root.conf.repos[0].otherOptions = QStringLiteral("x\n");
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), QByteArray("[a]\nname=A\nx\n"));
}

void TestYumConfIOWriteFaults::failureEndsTheWriting()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one\n[m]\n");
    for (char const* const path : {"/etc/one/a.repo", "/etc/one/z.repo"})
        root.write(path, QByteArray("lost\n[") + path[9] + "]\n");
    root.write("/etc/one/unused", "x");
    QVERIFY(root.conf.read(nullptr));
    root.makeDirectory("/etc/one/k.repo");
    root.conf.repos += newRepo(QStringLiteral("k"));
    QVERIFY(!root.conf.write(nullptr));

    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(content(root, "/etc/one/a.repo"), QByteArray("[a]\n"));
    QCOMPARE(content(root, "/etc/one/z.repo"), QByteArray("lost\n[z]\n"));
    QCOMPARE(names(root, "/etc/one"), (QList<QByteArray>{"a.repo", "k.repo", "unused", "z.repo"}));
}

void TestYumConfIOWriteFaults::pathWithANulByteIsTold()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.repos.d/a", "x");
    QVERIFY(root.readRepoFile("[a]\n"));
    QString const path = QStringLiteral("/etc/yum.repos.d/a") + QChar::Null;
    root.conf.repos += newRepo(QStringLiteral("b"), path);
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(content(root, "/etc/yum.repos.d/a"), QByteArray("x"));
}

void TestYumConfIOWriteFaults::danglingLinkEndsTheCleaningUp()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one /etc/two\n");
    root.makeDirectory("/etc/one");
    root.write("/etc/two/unused", "x");
    QVERIFY(root.conf.read(nullptr));
    link(root, "/etc/one/dangling", "nowhere");
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(
        boxes.texts, QStringList(BoxAnswer::told(
                         "Unable to stat repository configuration file /etc/one/dangling", ENOENT)));
    QCOMPARE(names(root, "/etc/one"), QList<QByteArray>{"dangling"});
    QCOMPARE(names(root, "/etc/two"), QList<QByteArray>{"unused"});
}

void TestYumConfIOWriteFaults::danglingLinkOfARepositoryIsWrittenThrough()
{
    BoxAnswer boxes;
    ConfRoot root;
    QVERIFY(root.readMain("[main]\nreposdir=/etc/one\n"));
    root.makeDirectory("/etc/one");
    link(root, "/etc/one/a.repo", "../target");
    root.conf.repos += newRepo(QStringLiteral("a"));
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(content(root, "/etc/target"), QByteArray("[a]\n"));
    QCOMPARE(boxes.texts, QStringList());
}

void TestYumConfIOWriteFaults::fileThatCannotBeDeletedEndsTheCleaningUp()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one /etc/two\n");
    root.write("/etc/one/busy", "x");
    root.write("/etc/two/unused", "x");
    QVERIFY(root.conf.read(nullptr));
    // What something is mounted on can't be deleted.
    QByteArray const busy = root.onDisk("/etc/one/busy");
    if (::mount(busy.constData(), busy.constData(), nullptr, MS_BIND, nullptr) != 0)
        QSKIP("no right to mount");
    bool const isWritten = root.conf.write(nullptr);
    ::umount2(busy.constData(), MNT_DETACH);
    QVERIFY(isWritten);
    QCOMPARE(
        boxes.texts,
        QStringList(BoxAnswer::told("Unable to unlink repository configuration file /etc/one/busy", EBUSY)));
    QCOMPARE(names(root, "/etc/two"), QList<QByteArray>{"unused"});
}

void TestYumConfIOWriteFaults::unreadFilesAreKept()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one /etc/two /etc/three\n");
    root.write("/etc/one/a.repo", "[a]\n");
    root.write("/etc/two/broken.repo", "[broken\n");
    root.write("/etc/three/c.repo", "[c]\n");
    QVERIFY(!root.conf.read(nullptr));
    root.conf.repos[0].name = QStringLiteral("A");
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(content(root, "/etc/one/a.repo"), QByteArray("[a]\nname=A\n"));
    QCOMPARE(content(root, "/etc/two/broken.repo"), QByteArray("[broken\n"));
    QCOMPARE(content(root, "/etc/three/c.repo"), QByteArray("[c]\n"));
}

void TestYumConfIOWriteFaults::fileThatWasReadInPartIsKept()
{
    BoxAnswer boxes;
    ConfRoot root;
    QByteArray const text = "[a]\n[b]\n[c\n[d]\n";
    QVERIFY(!root.readRepoFile(text));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.last(), unread("/etc/yum.repos.d/some.repo"));
    QCOMPARE(content(root, "/etc/yum.repos.d/some.repo"), text);
}

void TestYumConfIOWriteFaults::unreadMainFileIsKept()
{
    BoxAnswer boxes;
    ConfRoot root;
    QByteArray const text = "[main]\na=b\n[c\n";
    root.write("/etc/yum.repos.d/a.repo", "[a]\n");
    QVERIFY(!root.readMain(text));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.last(), unread("/etc/yum.conf"));
    QCOMPARE(content(root, "/etc/yum.conf"), text);
    QCOMPARE(content(root, "/etc/yum.repos.d/a.repo"), QByteArray("[a]\n"));
}

void TestYumConfIOWriteFaults::readThatWorksAgainEndsTheKeeping()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.repos.d/unused", "x");
    root.makeDirectory("/etc/yum.repos.d/directory.repo");
    QVERIFY(!root.readRepoFile("[a\n"));
    QVERIFY(root.readRepoFile("[a]\nname=A\n"));
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(names(root, "/etc/yum.repos.d"), (QList<QByteArray>{"directory.repo", "some.repo"}));
}

void TestYumConfIOWriteFaults::unreadFileIsNotWritten()
{
    BoxAnswer boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/etc/one /etc/two /etc/three\n");
    root.write("/etc/one/a.repo", "lost\n[a]\n");
    root.write("/etc/two/broken.repo", "[broken\n");
    root.write("/etc/three/c.repo", "[c]\n");
    QVERIFY(!root.conf.read(nullptr));
    boxes.texts.clear();
    for (char const* const file : {"/etc/three/c.repo", "/etc/two/broken.repo", "/etc//three/c.repo"}) {
        root.conf.repos += newRepo(QStringLiteral("new"), QString::fromLatin1(file));
        QVERIFY(!root.conf.write(nullptr));
        QCOMPARE(boxes.texts, QStringList(unread(file)));
        boxes.texts.clear();
        root.conf.repos.removeLast();
    }
    // Not even what comes before it.
    QCOMPARE(content(root, "/etc/one/a.repo"), QByteArray("lost\n[a]\n"));
    QCOMPARE(content(root, "/etc/two/broken.repo"), QByteArray("[broken\n"));
    QCOMPARE(content(root, "/etc/three/c.repo"), QByteArray("[c]\n"));
}

void TestYumConfIOWriteFaults::otherFileIsNotWritten()
{
    BoxAnswer boxes;
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n"));
    root.write("/etc/fstab", "disks\n");
    root.write("/etc/yum.repos.d/since.repo", "[since]\n");
    for (char const* const file : {"/etc/fstab", "/etc/yum.repos.d/since.repo"}) {
        root.conf.repos[0].file = QString::fromLatin1(file);
        QVERIFY(!root.conf.write(nullptr));
        QCOMPARE(boxes.texts.takeLast(), unread(file));
    }
    QCOMPARE(content(root, "/etc/fstab"), QByteArray("disks\n"));
    QCOMPARE(names(root, "/etc/yum.repos.d"), (QList<QByteArray>{"since.repo", "some.repo"}));

    // A main file that has come since is another main file.
    root.conf.repos[0].file = QStringLiteral("/etc/yum.repos.d/some.repo");
    root.write("/etc/yum/yum.conf", "[main]\nnew\n");
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts, QStringList(unread("/etc/yum/yum.conf")));
    QCOMPARE(content(root, "/etc/yum/yum.conf"), QByteArray("[main]\nnew\n"));
}

void TestYumConfIOWriteFaults::fileThatWasWrittenIsKnown()
{
    BoxAnswer boxes;
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n"));
    root.conf.repos += newRepo(QStringLiteral("k"), QStringLiteral("/etc/yum.repos.d/k.repo"));
    root.conf.repos += newRepo(QStringLiteral("z"), QStringLiteral("/nowhere/z.repo"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.size(), 1);
    // What the first try has made is no other's.
    root.conf.repos.last().file = QStringLiteral("/etc/yum.repos.d/z.repo");
    QVERIFY(root.conf.write(nullptr));
    root.conf.repos.last().name = QStringLiteral("Z");
    QVERIFY(root.conf.write(nullptr));
    QCOMPARE(content(root, "/etc/yum.repos.d/z.repo"), QByteArray("[z]\nname=Z\n"));
    QCOMPARE(boxes.texts.size(), 1);

    // Once it is gone, what stands there is.
    root.conf.repos.removeLast();
    QVERIFY(root.conf.write(nullptr));
    root.write("/etc/yum.repos.d/z.repo", "[other]\n");
    root.conf.repos += newRepo(QStringLiteral("z"), QStringLiteral("/etc/yum.repos.d/z.repo"));
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.last(), unread("/etc/yum.repos.d/z.repo"));
}

void TestYumConfIOWriteFaults::longestLineSurvives()
{
    BoxAnswer boxes;
    ConfRoot root;
    QByteArray const text = "[a]\nname=A\n#" + QByteArray(100'000'000, 'x') + "\n";
    QVERIFY(root.readRepoFile(text));
    root.remove("/etc/yum.repos.d/some.repo");
    QVERIFY(root.conf.write(nullptr));
    QVERIFY(content(root, "/etc/yum.repos.d/some.repo") == text);
}

QTEST_MAIN(TestYumConfIOWriteFaults)
#include "tst_yumconfiowritefaults.moc"
