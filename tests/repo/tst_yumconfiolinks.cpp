// SPDX-License-Identifier: GPL-2.0-or-later
// Files and directories that have several paths, and links that lead out of the managed root.
#include "BoxAnswer.h"
#include "ConfFiles.h"

#include <QTest>

#include <cerrno>

#include <unistd.h>

using ConfFiles::content;
using ConfFiles::names;

namespace
{

constexpr char const* some = "/etc/yum.repos.d/some.repo";

} // namespace

class TestYumConfIOLinks : public QObject
{
    Q_OBJECT

    std::unique_ptr<ConfRoot> root;
    std::unique_ptr<BoxAnswer> boxes;

    void link(QByteArray const& path, QByteArray const& target) const
    {
        root->makeDirectory(path.left(path.lastIndexOf('/')));
        QCOMPARE(::symlink(target.constData(), root->onDisk(path).constData()), 0);
    }

    [[nodiscard]] bool isLink(QByteArray const& path) const
    {
        return QFileInfo(QFile::decodeName(root->onDisk(path))).isSymLink();
    }

private Q_SLOTS:
    void init()
    {
        root = std::make_unique<ConfRoot>();
        boxes = std::make_unique<BoxAnswer>(QMessageBox::Yes);
    }

    void cleanup()
    {
        boxes.reset();
        root.reset();
    }

    void otherPathOfAFileIsThatFile_data()
    {
        QTest::addColumn<QByteArray>("path");
        for (char const* const path :
             {"/etc/yum.repos.d//some.repo", "/etc/../etc/./yum.repos.d/some.repo", "/folder/some.repo",
              "/etc/link.repo", "/etc/hard.repo", "/../etc/yum.repos.d/some.repo"})
            QTest::newRow(path) << QByteArray(path);
    }

    void otherPathOfAFileIsThatFile();
    void otherPathOfANewFileIsThatFile();
    void otherPathOfTheMainFileIsThatFile();
    void fileIsReadOnce();
    void linkStaysAndItsTargetIsWritten();
    void unusedLinkGoesWithoutItsTarget();
    void unusedLinkAndItsUnusedTargetGoWithoutAWord();
    void directoryWithTwoNamesIsOne_data();
    void directoryWithTwoNamesIsOne();
    void absoluteLinksStayInside();
    void linksToTheHostLeadNowhere();
};

void TestYumConfIOLinks::otherPathOfAFileIsThatFile()
{
    QFETCH(QByteArray, path);
    QVERIFY(root->readRepoFile("[a]\n[b]\n"));
    link("/folder", "/etc/yum.repos.d");
    link("/etc/link.repo", "yum.repos.d/some.repo");
    QCOMPARE(::link(root->onDisk(some).constData(), root->onDisk("/etc/hard.repo").constData()), 0);
    root->conf.repos[1].file = QString::fromLatin1(path);
    root->conf.repos += newRepo(QStringLiteral("c"), QString::fromLatin1(path));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(boxes->texts, QStringList());
    QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>{"some.repo"});
    QCOMPARE(content(*root, some), QByteArray("[c]\n\n[a]\n\n[b]\n"));

    // All of its repositories by the other path.
    QVERIFY(root->conf.read(nullptr));
    for (Repo::Entry& entry : root->conf.repos)
        entry.file = QString::fromLatin1(path);
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>{"some.repo"});
    QCOMPARE(content(*root, some), QByteArray("[c]\n\n[a]\n\n[b]\n"));
}

void TestYumConfIOLinks::otherPathOfANewFileIsThatFile()
{
    QVERIFY(root->readRepoFile("[a]\n"));
    link("/etc/dangling", "yum.repos.d/z.repo");
    root->conf.repos += newRepo(QStringLiteral("x"), QStringLiteral("/etc/yum.repos.d//z.repo"));
    root->conf.repos += newRepo(QStringLiteral("y"), QStringLiteral("/etc/yum.repos.d/z.repo"));
    root->conf.repos += newRepo(QStringLiteral("z"), QStringLiteral("/etc/dangling"));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(names(*root, "/etc/yum.repos.d"), (QList<QByteArray>{"some.repo", "z.repo"}));
    QCOMPARE(content(*root, "/etc/yum.repos.d/z.repo"), QByteArray("[x]\n\n[y]\n\n[z]\n"));
    QVERIFY(isLink("/etc/dangling"));
}

void TestYumConfIOLinks::otherPathOfTheMainFileIsThatFile()
{
    QVERIFY(root->readMain("[main]\na=b\n[m]\n"));
    root->conf.repos += newRepo(QStringLiteral("n"), QStringLiteral("/etc//yum.conf"));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(content(*root, "/etc/yum.conf"), QByteArray("[main]\na=b\n[n]\n\n[m]\n"));

    // A new one that takes its place.
    root->makeDirectory("/etc/yum");
    root->conf.repos += newRepo(QStringLiteral("o"), QStringLiteral("/etc//yum/yum.conf"));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(content(*root, "/etc/yum/yum.conf"), QByteArray("[main]\na=b\n[o]\n"));
}

void TestYumConfIOLinks::fileIsReadOnce()
{
    root->write("/etc/yum.conf", "[main]\n[m]\n");
    root->write("/srv/kept", "[a]\nname=A\n");
    for (char const* const path :
         {"/etc/yum.repos.d/x.repo", "/etc/yum.repos.d/y.repo", "/etc/yum/repos.d/z.repo"})
        link(path, "/srv/kept");
    link("/etc/yum.repos.d/main.repo", "../yum.conf");
    QVERIFY(root->conf.read(nullptr));
    QCOMPARE(root->ids(), QStringList({QStringLiteral("m"), QStringLiteral("a")}));
    root->conf.repos[1].name = QStringLiteral("B");
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(boxes->texts, QStringList());
    QCOMPARE(content(*root, "/srv/kept"), QByteArray("[a]\nname=B\n"));
    QCOMPARE(content(*root, "/etc/yum.conf"), QByteArray("[main]\n[m]\n"));
    QCOMPARE(names(*root, "/etc/yum.repos.d"), (QList<QByteArray>{"main.repo", "x.repo", "y.repo"}));
    QCOMPARE(names(*root, "/etc/yum/repos.d"), QList<QByteArray>{"z.repo"});
}

void TestYumConfIOLinks::linkStaysAndItsTargetIsWritten()
{
    root->write("/etc/yum.conf", "");
    root->write("/etc/yum.repos.d/real.repo", "[a]\n");
    link("/etc/yum/repos.d/link.repo", "../../yum.repos.d/real.repo");
    QVERIFY(root->conf.read(nullptr));
    QCOMPARE(root->conf.repos[0].file, QStringLiteral("/etc/yum/repos.d/link.repo"));
    root->conf.repos[0].name = QStringLiteral("A");
    QVERIFY(root->conf.write(nullptr));
    QVERIFY(isLink("/etc/yum/repos.d/link.repo"));
    QVERIFY(!isLink("/etc/yum.repos.d/real.repo"));
    QCOMPARE(content(*root, "/etc/yum.repos.d/real.repo"), QByteArray("[a]\nname=A\n"));
}

void TestYumConfIOLinks::unusedLinkGoesWithoutItsTarget()
{
    root->write("/etc/yum.conf", "");
    root->write("/srv/kept", "[a]\n");
    link("/etc/yum.repos.d/link.repo", "/srv/kept");
    QVERIFY(root->conf.read(nullptr));
    root->conf.repos.clear();
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>());
    QCOMPARE(content(*root, "/srv/kept"), QByteArray("[a]\n"));
}

void TestYumConfIOLinks::unusedLinkAndItsUnusedTargetGoWithoutAWord()
{
    root->write("/etc/yum.conf", "");
    // Whichever the directories give first.
    root->write("/etc/yum/repos.d/real.repo", "[a]\n");
    link("/etc/yum.repos.d/link.repo", "../yum/repos.d/real.repo");
    root->write("/etc/yum.repos.d/other.repo", "[b]\n");
    link("/etc/yum/repos.d/far.repo", "../../yum.repos.d/other.repo");
    QVERIFY(root->conf.read(nullptr));
    root->conf.repos.clear();
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(boxes->texts, QStringList());
    QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>());
    QCOMPARE(names(*root, "/etc/yum/repos.d"), QList<QByteArray>());
}

void TestYumConfIOLinks::directoryWithTwoNamesIsOne_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("relative") << QByteArray("../yum.repos.d");
    QTest::newRow("absolute") << QByteArray("/etc/yum.repos.d");
}

void TestYumConfIOLinks::directoryWithTwoNamesIsOne()
{
    QFETCH(QByteArray, target);
    root->write("/etc/yum.conf", "[main]\n");
    root->write("/etc/yum.repos.d/a.repo", "lost\n[a]\n");
    root->write("/etc/yum.repos.d/unused", "x");
    link("/etc/yum/repos.d", target);
    QVERIFY(root->conf.read(nullptr));
    QCOMPARE(root->ids(), QStringList(QStringLiteral("a")));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(boxes->texts, QStringList());
    QCOMPARE(names(*root, "/etc/yum.repos.d"), QList<QByteArray>{"a.repo"});
    QCOMPARE(content(*root, "/etc/yum.repos.d/a.repo"), QByteArray("[a]\n"));
}

void TestYumConfIOLinks::absoluteLinksStayInside()
{
    // The names of the host's own files, to be met below the root.
    root->write("/etc/dnf/dnf.conf", "[main]\nreposdir=/srv/repos\n");
    link("/etc/yum.conf", "/etc/dnf/dnf.conf");
    link("/srv/repos", "/etc/yum.repos.d");
    root->write("/etc/real/one", "[a]\n");
    link("/etc/yum.repos.d/one.repo", "/etc/real/one");
    QVERIFY(root->conf.read(nullptr));
    QCOMPARE(root->conf.repos.size(), 1);
    QCOMPARE(root->conf.repos[0].file, QStringLiteral("/srv/repos/one.repo"));
    root->conf.repos[0].name = QStringLiteral("A");
    root->conf.repos += newRepo(QStringLiteral("new"));
    QVERIFY(root->conf.write(nullptr));
    QCOMPARE(boxes->texts, QStringList());
    QCOMPARE(content(*root, "/etc/real/one"), QByteArray("[a]\nname=A\n"));
    QCOMPARE(content(*root, "/etc/dnf/dnf.conf"), QByteArray("[main]\nreposdir=/srv/repos\n"));
    QCOMPARE(names(*root, "/etc/yum.repos.d"), (QList<QByteArray>{"new.repo", "one.repo"}));
}

void TestYumConfIOLinks::linksToTheHostLeadNowhere()
{
    QTemporaryDir host;
    QByteArray const outside = QFile::encodeName(host.path());
    auto const file = [&](char const* name) { return host.filePath(QString::fromLatin1(name)); };
    for (char const* const name : {"a.repo", "unused"}) {
        QFile made(file(name));
        QVERIFY(made.open(QIODevice::WriteOnly));
        made.write("[host]\n");
    }
    root->write("/etc/yum.conf", "[main]\n");
    link("/etc/yum.repos.d", outside);
    QByteArray above;
    for (qsizetype at = root->onDisk("/etc").count('/'); at > 0; --at)
        above += "../";
    link("/etc/yum/repos.d", above + outside.mid(1));
    QVERIFY(root->conf.read(nullptr));
    QCOMPARE(root->ids(), QStringList());
    root->conf.repos += newRepo(QStringLiteral("a"), QStringLiteral("/etc/yum.repos.d/a.repo"));
    QVERIFY(!root->conf.write(nullptr));
    QCOMPARE(
        boxes->texts, QStringList(BoxAnswer::told(
                          "Unable to write repository configuration file /etc/yum.repos.d/a.repo", ENOENT)));
    root->conf.repos.clear();
    QVERIFY(root->conf.write(nullptr));
    QVERIFY(QFileInfo::exists(file("unused")));
    QFile left(file("a.repo"));
    QVERIFY(left.open(QIODevice::ReadOnly));
    QCOMPARE(left.readAll(), QByteArray("[host]\n"));
}

QTEST_MAIN(TestYumConfIOLinks)
#include "tst_yumconfiolinks.moc"
