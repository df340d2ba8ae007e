// SPDX-License-Identifier: GPL-2.0-or-later
// Which files are read and below which root.
#include "BoxReader.h"
#include "ConfRoot.h"

#include <QSignalSpy>
#include <QTest>

#include <dirent.h>

namespace
{

/// The names in a directory, in the order in which it gives them.
QList<QByteArray> listed(QByteArray const& directory)
{
    QList<QByteArray> names;
    if (DIR* const stream = ::opendir(directory.constData())) {
        while (dirent const* const item = ::readdir(stream))
            names += item->d_name;
        ::closedir(stream);
    }
    return names;
}

} // namespace

class TestYumConfIO : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void readingTellsTheDefaults();
    void mainFileIsTheFirstThatExists();
    void mainFileDecidesTheDefaults_data();
    void mainFileDecidesTheDefaults();
    void linkToTheThirdMainFileCountsAsTheSecond();
    void linkToNowhereIsNoMainFile();
    void mainFileOfTheHostCountsWithoutRoot_data();
    void mainFileOfTheHostCountsWithoutRoot();
    void pathsKeepTheirTextBelowARoot();
    void relativeDirectoriesLieBelowTheRoot();
    void rootIsLookedUpAtEachRead();
    void onlyNamesThatEndInRepoAreRead();
    void directoriesAreSkipped();
    void missingDirectoriesArePassedOver();
    void filesComeInTheOrderOfTheDirectory();
    void directoryListedTwiceIsReadOnce();
    void namesOfAnyBytesAreRead();
    void everyReadStartsFromTheDefaults();
    void changedIsEmittedByWholeReadsOnly();
};

void TestYumConfIO::startsEmpty()
{
    ConfRoot root;
    QVERIFY(root.conf.cachedir.isEmpty());
    QVERIFY(root.conf.reposdirs.isEmpty());
    QVERIFY(root.conf.repos.isEmpty());
    QVERIFY(root.conf.mainOptions.isEmpty());
    QCOMPARE(root.conf.mainEnabled, true);
    QCOMPARE(root.conf.mainGpgcheck, false);
    QCOMPARE(&root.conf.reposEnabled, &root.reposEnabled);
    QCOMPARE(&root.conf.usedOptions, &root.usedOptions);
}

void TestYumConfIO::readingTellsTheDefaults()
{
    ConfRoot root;
    QVERIFY(root.readMain(""));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/var/cache/yum"));
    QCOMPARE(
        root.conf.reposdirs,
        QStringList({QStringLiteral("/etc/yum/repos.d"), QStringLiteral("/etc/yum.repos.d")}));
    QCOMPARE(root.conf.mainEnabled, true);
    QCOMPARE(root.conf.mainGpgcheck, false);
    QVERIFY(root.conf.mainOptions.isEmpty());
}

void TestYumConfIO::mainFileIsTheFirstThatExists()
{
    ConfRoot root;
    QCOMPARE(root.conf.fileName(), "/etc/yum.conf");
    root.write("/etc/dnf/dnf.conf", "[third]\n");
    QCOMPARE(root.conf.fileName(), "/etc/dnf/dnf.conf");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("third")));
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/etc/dnf/dnf.conf"));

    root.write("/etc/yum.conf", "[old]\n");
    QCOMPARE(root.conf.fileName(), "/etc/yum.conf");
    root.write("/etc/yum/yum.conf", "[new]\n");
    QCOMPARE(root.conf.fileName(), "/etc/yum/yum.conf");

    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("new")));
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/etc/yum/yum.conf"));
}

void TestYumConfIO::mainFileDecidesTheDefaults_data()
{
    QStringList const yum{QStringLiteral("/etc/yum/repos.d"), QStringLiteral("/etc/yum.repos.d")};
    QStringList const dnf{QStringLiteral("/etc/yum.repos.d"), QStringLiteral("/etc/distro.repos.d")};
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<QStringList>("reposdirs");
    QTest::addColumn<QString>("cachedir");
    QTest::newRow("first") << QByteArray("/etc/yum/yum.conf") << yum << QStringLiteral("/var/cache/yum");
    QTest::newRow("second") << QByteArray("/etc/yum.conf") << yum << QStringLiteral("/var/cache/yum");
    QTest::newRow("third") << QByteArray("/etc/dnf/dnf.conf") << dnf << QStringLiteral("/var/cache/dnf");
}

void TestYumConfIO::mainFileDecidesTheDefaults()
{
    QFETCH(QByteArray, file);
    QFETCH(QStringList, reposdirs);
    QFETCH(QString, cachedir);
    ConfRoot root;
    root.write(file, "[main]\n");
    root.write("/etc/yum/repos.d/one.repo", "[one]\n");
    root.write("/etc/yum.repos.d/two.repo", "[two]\n");
    root.write("/etc/distro.repos.d/three.repo", "[three]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.reposdirs, reposdirs);
    QCOMPARE(root.conf.cachedir, cachedir);
    bool const isThird = file == "/etc/dnf/dnf.conf";
    QStringList const expected = isThird ? QStringList{QStringLiteral("two"), QStringLiteral("three")}
                                         : QStringList{QStringLiteral("one"), QStringLiteral("two")};
    QCOMPARE(root.ids(), expected);

    root.write(file, "[main]\nreposdir=/etc/yum/repos.d\ncachedir=/srv/cache\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.reposdirs, QStringList(QStringLiteral("/etc/yum/repos.d")));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/srv/cache"));
}

void TestYumConfIO::linkToTheThirdMainFileCountsAsTheSecond()
{
    ConfRoot root;
    root.write("/etc/dnf/dnf.conf", "[main]\n[inside]\n");
    QVERIFY(QFile::link(QStringLiteral("dnf/dnf.conf"), QFile::decodeName(root.onDisk("/etc/yum.conf"))));
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/etc/yum.conf"));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/var/cache/yum"));
}

void TestYumConfIO::linkToNowhereIsNoMainFile()
{
    ConfRoot root;
    root.write("/etc/dnf/dnf.conf", "");
    QVERIFY(QFile::link(QStringLiteral("nowhere"), QFile::decodeName(root.onDisk("/etc/yum.conf"))));
    QCOMPARE(root.conf.fileName(), "/etc/dnf/dnf.conf");
}

void TestYumConfIO::mainFileOfTheHostCountsWithoutRoot_data()
{
    QTest::addColumn<bool>("isSet");
    QTest::newRow("unset") << false;
    QTest::newRow("empty") << true;
}

void TestYumConfIO::mainFileOfTheHostCountsWithoutRoot()
{
    QFETCH(bool, isSet);
    ConfRoot root;
    QByteArray expected;
    for (char const* const file : {"/etc/yum/yum.conf", "/etc/yum.conf", "/etc/dnf/dnf.conf"}) {
        bool const isThere = QFileInfo::exists(QString::fromLatin1(file));
        if (isThere && expected.isEmpty())
            expected = file;
        // Below the root the other way round, so that a stale root shows.
        if (!isThere)
            root.write(file, "");
    }
    if (expected.isEmpty())
        expected = "/etc/yum.conf";
    if (isSet)
        qputenv("VEMROOT", "");
    else
        qunsetenv("VEMROOT");
    QCOMPARE(root.conf.fileName(), expected.constData());
}

void TestYumConfIO::pathsKeepTheirTextBelowARoot()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/srv/my.repos\ncachedir=/srv/cache\n");
    root.write("/srv/my.repos/one.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.reposdirs, QStringList(QStringLiteral("/srv/my.repos")));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/srv/cache"));
    QCOMPARE(root.conf.repos.size(), 1);
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/srv/my.repos/one.repo"));
}

void TestYumConfIO::relativeDirectoriesLieBelowTheRoot()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=my.repos\n");
    root.write("/my.repos/one.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.repos.size(), 1);
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("my.repos/one.repo"));
}

void TestYumConfIO::rootIsLookedUpAtEachRead()
{
    ConfRoot root;
    QVERIFY(root.readMain("[a]\n"));
    root.write("/other/etc/yum.conf", "[b]\n");
    qputenv("VEMROOT", root.onDisk("/other/"));
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("b")));
}

void TestYumConfIO::onlyNamesThatEndInRepoAreRead()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "");
    for (char const* const name :
         {".repo", "a.repo", "b.repos", "c.REPO", "d.repo.bak", "repo", "e.rep", "xrepo", "f.repo~"})
        root.write(QByteArray("/etc/yum.repos.d/") + name, QByteArray("[") + name + "]\n");
    QVERIFY(root.conf.read(nullptr));
    QStringList ids = root.ids();
    ids.sort();
    QCOMPARE(ids, QStringList({QStringLiteral(".repo"), QStringLiteral("a.repo")}));
}

void TestYumConfIO::directoriesAreSkipped()
{
    ConfRoot root;
    root.makeDirectory("/etc/yum.repos.d/directory.repo");
    QVERIFY(root.readRepoFile("[a]\n"));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
}

void TestYumConfIO::missingDirectoriesArePassedOver()
{
    BoxReader boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/missing /etc/yum.conf /there\n");
    root.write("/there/some.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
    QCOMPARE(boxes.texts, QStringList());
}

void TestYumConfIO::filesComeInTheOrderOfTheDirectory()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "");
    for (char const* const name : {"m", "z", "a", "q", "c", "x"})
        root.write(QByteArray("/etc/yum.repos.d/") + name + ".repo", QByteArray("[") + name + "]\n");
    QStringList expected;
    for (QByteArray const& name : listed(root.onDisk("/etc/yum.repos.d"))) {
        if (name.endsWith(".repo"))
            expected += QString::fromLatin1(name.chopped(5));
    }
    QCOMPARE(expected.size(), 6);
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), expected);
}

void TestYumConfIO::directoryListedTwiceIsReadOnce()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\nreposdir=/r /r/\n");
    root.write("/r/some.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.conf.repos.size(), 1);
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/r/some.repo"));
    QCOMPARE(root.conf.reposdirs, QStringList({QStringLiteral("/r"), QStringLiteral("/r/")}));
}

void TestYumConfIO::namesOfAnyBytesAreRead()
{
    ConfRoot root;
    // One name is no valid UTF-8, the other is: both are bytes, as the text of the main file is.
    root.write("/etc/yum.conf", "[main]\nreposdir=/d\xc3\xa9p\xc3\xb4t\n");
    root.write("/d\xc3\xa9p\xc3\xb4t/\xe9.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
    QCOMPARE(root.conf.repos[0].file.toLatin1(), QByteArray("/d\xc3\xa9p\xc3\xb4t/\xe9.repo"));
}

void TestYumConfIO::everyReadStartsFromTheDefaults()
{
    ConfRoot root;
    QVERIFY(root.readMain("[main]\ncachedir=/c\nreposdir=/r\nenabled=0\ngpgcheck=1\n[a]\n"));
    QVERIFY(root.readMain("[b]\n"));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/var/cache/yum"));
    QCOMPARE(
        root.conf.reposdirs,
        QStringList({QStringLiteral("/etc/yum/repos.d"), QStringLiteral("/etc/yum.repos.d")}));
    QCOMPARE(root.conf.mainEnabled, true);
    QCOMPARE(root.conf.mainGpgcheck, false);
    QVERIFY(root.conf.mainOptions.isEmpty());
    QCOMPARE(root.ids(), QStringList(QStringLiteral("b")));
}

void TestYumConfIO::changedIsEmittedByWholeReadsOnly()
{
    BoxReader boxes;
    ConfRoot root;
    QSignalSpy changed(&root.conf, &YumConfIO::changed);
    QVERIFY(root.readMain("[main]\n"));
    QCOMPARE(changed.size(), 1);
    QVERIFY(!root.readMain("[broken\n"));
    QCOMPARE(changed.size(), 1);
    QVERIFY(root.readMain("[main]\n"));
    QCOMPARE(changed.size(), 2);
}

QTEST_MAIN(TestYumConfIO)
#include "tst_yumconfio.moc"
