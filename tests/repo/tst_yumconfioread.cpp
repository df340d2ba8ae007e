// SPDX-License-Identifier: GPL-2.0-or-later
// The grammar of configuration files: what each line does to the records and texts in memory.
#include "ConfRoot.h"

#include <QTest>

class TestYumConfIORead : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainOptionsAreTakenApart();
    void mainSwitchesAreOffAtExactlyZero_data();
    void mainSwitchesAreOffAtExactlyZero();
    void reposdirIsSplitAtCommasAndBlanks_data();
    void reposdirIsSplitAtCommasAndBlanks();
    void mainSectionIsKeptVerbatim();
    void linesAboveTheMainHeadCountAsTheMainSections();
    void lastLineNeedsNoLineFeed();
    void mainFileCanHoldRepositories();
    void secondMainHeadIsARepositoryOnlyBehindAnother();

    void namedOptionsFillTheRecord();
    void sectionWithoutOptionsHasDefaults();
    void repositorySwitchesHaveThreeValues_data();
    void repositorySwitchesHaveThreeValues();
    void optionTwiceTakesItsLastValue();
    void optionNamesCompareExactly_data();
    void optionNamesCompareExactly();
    void valuesKeepTrailingWhiteSpaceOnly();
    void emptyLinesAreDroppedAndCommentsKept();
    void textAboveTheFirstSectionIsDropped();
    void continuationLinesJoinWithALineFeed_data();
    void continuationLinesJoinWithALineFeed();
    void urlsStandOnePerLine_data();
    void urlsStandOnePerLine();
    void sectionNamesAreKeptAsTheyStand_data();
    void sectionNamesAreKeptAsTheyStand();
    void sectionsAreNumberedWithinTheirFile();
    void bytesBecomeTheCharactersOfTheSameValue();
};

void TestYumConfIORead::mainOptionsAreTakenApart()
{
    ConfRoot root;
    QVERIFY(root.readMain("[main]\ncachedir = /srv/cache\nenabled=0\ngpgcheck=1\nreposdir:/a /b\n"));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/srv/cache"));
    QCOMPARE(root.conf.mainEnabled, false);
    QCOMPARE(root.conf.mainGpgcheck, true);
    QCOMPARE(root.conf.reposdirs, QStringList({QStringLiteral("/a"), QStringLiteral("/b")}));
}

void TestYumConfIORead::mainSwitchesAreOffAtExactlyZero_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("no") << QByteArray("no") << true;
    QTest::newRow("00") << QByteArray("00") << true;
    QTest::newRow("trailing blank") << QByteArray("0 ") << true;
    QTest::newRow("nothing") << QByteArray("") << true;
}

void TestYumConfIORead::mainSwitchesAreOffAtExactlyZero()
{
    QFETCH(QByteArray, value);
    ConfRoot root;
    QVERIFY(root.readMain("[main]\nenabled=" + value + "\ngpgcheck=" + value + "\n"));
    QTEST(root.conf.mainEnabled, "on");
    QTEST(root.conf.mainGpgcheck, "on");
}

void TestYumConfIORead::reposdirIsSplitAtCommasAndBlanks_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QStringList>("directories");
    QStringList const two{QStringLiteral("/a"), QStringLiteral("/b")};
    QTest::newRow("blank") << QByteArray("/a /b") << two;
    QTest::newRow("comma and blank") << QByteArray("/a, /b") << two;
    QTest::newRow("comma") << QByteArray("/a,/b") << two;
    QTest::newRow("many") << QByteArray(",,/a  ,  /b, ") << two;
    QTest::newRow("none") << QByteArray("") << QStringList();
    QTest::newRow("tab does not separate") << QByteArray("/a\t/b") << QStringList(QStringLiteral("/a\t/b"));
    QTest::newRow("line feed stays in the name")
        << QByteArray("/a\n  /b") << QStringList({QStringLiteral("/a\n"), QStringLiteral("/b")});
    QTest::newRow("line feed and tab stay in the name")
        << QByteArray("/a\n\t/b") << QStringList(QStringLiteral("/a\n\t/b"));
}

void TestYumConfIORead::reposdirIsSplitAtCommasAndBlanks()
{
    QFETCH(QByteArray, value);
    ConfRoot root;
    QVERIFY(root.readMain("[main]\nreposdir=" + value + "\n"));
    QTEST(root.conf.reposdirs, "directories");
}

void TestYumConfIORead::mainSectionIsKeptVerbatim()
{
    QByteArray const text =
        " = 0\n# first\n\n[main]\ncachedir : /c \n#enabled=0\nplugins=1\n cachedir=/indented\n"
        "exclude=a\n\tb\n   \nanything at all\n\n";
    ConfRoot root;
    QVERIFY(root.readMain(text));
    QCOMPARE(root.conf.mainOptions, QString::fromLatin1(text));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/c "));
    QCOMPARE(root.conf.mainEnabled, true);
    QVERIFY(root.conf.repos.isEmpty());
}

void TestYumConfIORead::linesAboveTheMainHeadCountAsTheMainSections()
{
    ConfRoot root;
    QVERIFY(root.readMain("gpgcheck=1\n[main]\n"));
    QCOMPARE(root.conf.mainGpgcheck, true);
    QCOMPARE(root.conf.mainOptions, QStringLiteral("gpgcheck=1\n[main]\n"));
}

void TestYumConfIORead::lastLineNeedsNoLineFeed()
{
    ConfRoot root;
    QVERIFY(root.readMain("[main]\ngpgcheck=1"));
    QCOMPARE(root.conf.mainOptions, QStringLiteral("[main]\ngpgcheck=1\n"));
    QCOMPARE(root.conf.mainGpgcheck, true);

    QCOMPARE(root.readOne("[a]\nname=A").name, QStringLiteral("A"));
    QCOMPARE(root.readOne("[a]").id, QStringLiteral("a"));
    QCOMPARE(root.readOne("[a]\nname=A\n  more").name, QStringLiteral("A\n  more"));
}

void TestYumConfIORead::mainFileCanHoldRepositories()
{
    ConfRoot root;
    QVERIFY(root.readMain("[main]\nplugins=1\n\n[a]\nname=A\n#note\n[b]\nname=B\ncachedir=/x\n"));
    QCOMPARE(root.conf.mainOptions, QStringLiteral("[main]\nplugins=1\n\n"));
    QCOMPARE(root.ids(), QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    QCOMPARE(root.conf.repos[0].name, QStringLiteral("A"));
    QCOMPARE(root.conf.repos[0].otherOptions, QStringLiteral("#note\n"));
    QCOMPARE(root.conf.repos[0].file, QStringLiteral("/etc/yum.conf"));
    QCOMPARE(root.conf.repos[0].filePosition, 1.0);
    QCOMPARE(root.conf.repos[1].filePosition, 2.0);
    QCOMPARE(root.conf.repos[1].otherOptions, QStringLiteral("cachedir=/x\n"));
    QCOMPARE(root.conf.cachedir, QStringLiteral("/var/cache/yum"));
}

void TestYumConfIORead::secondMainHeadIsARepositoryOnlyBehindAnother()
{
    ConfRoot root;
    QVERIFY(root.readMain("[main]\n[main]\ngpgcheck=1\n[a]\n[main]\ngpgcheck=0\n"));
    QCOMPARE(root.conf.mainOptions, QStringLiteral("[main]\n[main]\ngpgcheck=1\n"));
    QCOMPARE(root.conf.mainGpgcheck, true);
    QCOMPARE(root.ids(), QStringList({QStringLiteral("a"), QStringLiteral("main")}));
    QCOMPARE(root.conf.repos[1].gpgcheck, qint32(Repo::No));
}

void TestYumConfIORead::namedOptionsFillTheRecord()
{
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[base]\nname=The Base\nbaseurl=http://h/base\n"
                                           "mirrorlist=http://h/mirrors\nenabled=0\ngpgcheck=1\n"
                                           "gpgkey=file:///key\n");
    QCOMPARE(entry.id, QStringLiteral("base"));
    QCOMPARE(entry.name, QStringLiteral("The Base"));
    QCOMPARE(entry.baseurl, QStringLiteral("http://h/base"));
    QCOMPARE(entry.mirrorlist, QStringLiteral("http://h/mirrors"));
    QCOMPARE(entry.enabled, qint32(Repo::No));
    QCOMPARE(entry.gpgcheck, qint32(Repo::Yes));
    QCOMPARE(entry.otherOptions, QStringLiteral("gpgkey=file:///key\n"));
    QCOMPARE(entry.file, QStringLiteral("/etc/yum.repos.d/some.repo"));
    QCOMPARE(entry.filePosition, 1.0);
}

void TestYumConfIORead::sectionWithoutOptionsHasDefaults()
{
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[bare]\n");
    QCOMPARE(entry.id, QStringLiteral("bare"));
    // The numbers are those of the form's combo boxes.
    QCOMPARE(entry.enabled, 1);
    QCOMPARE(entry.gpgcheck, 1);
    QVERIFY(entry.name.isNull());
    QVERIFY(entry.baseurl.isNull());
    QVERIFY(entry.mirrorlist.isNull());
    QVERIFY(entry.otherOptions.isNull());
}

void TestYumConfIORead::repositorySwitchesHaveThreeValues_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<qint32>("state");
    auto const row = [](char const* line, qint32 state) { QTest::newRow(line) << QByteArray(line) << state; };
    row("%=0", 0);
    row("% = 0", 0);
    row("% : 0", 0);
    row("%:0", 0);
    row("%\t=\t0", 0);
    row("% = 0 ", 2);
    row("%=1", 2);
    row("%=no", 2);
    row("%=false", 2);
    row("%=00", 2);
    row("%=", 2);
    row("#%=0", 1);
}

void TestYumConfIORead::repositorySwitchesHaveThreeValues()
{
    QFETCH(QByteArray, line);
    ConfRoot root;
    QTEST(root.readOne("[a]\n" + QByteArray(line).replace("%", "enabled") + '\n').enabled, "state");
    QTEST(root.readOne("[a]\n" + QByteArray(line).replace("%", "gpgcheck") + '\n').gpgcheck, "state");
}

void TestYumConfIORead::optionTwiceTakesItsLastValue()
{
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[a]\nname=one\nenabled=0\nname=two\nenabled=1\n");
    QCOMPARE(entry.name, QStringLiteral("two"));
    QCOMPARE(entry.enabled, qint32(Repo::Yes));
    QVERIFY(entry.otherOptions.isNull());
}

void TestYumConfIORead::optionNamesCompareExactly_data()
{
    QTest::addColumn<QByteArray>("line");
    auto const row = [](char const* line) { QTest::newRow(line) << QByteArray(line); };
    row("Name=A");
    row("NAME=A");
    row("names=A");
    row("nam=A");
    row("my name=A");
    row("#name=A");
    row("# name = A");
    row("name");
    row("na:me=A");
    row("=name");
    row(":");
    row("= 0");
    row(":name=A");
}

void TestYumConfIORead::optionNamesCompareExactly()
{
    QFETCH(QByteArray, line);
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[a]\n" + line + '\n');
    QCOMPARE(entry.id, QStringLiteral("a"));
    QVERIFY(entry.name.isNull());
    QCOMPARE(entry.otherOptions, QString::fromLatin1(line) + u'\n');
}

void TestYumConfIORead::valuesKeepTrailingWhiteSpaceOnly()
{
    ConfRoot root;
    QCOMPARE(root.readOne("[a]\nname \t = \t A = b: c \t\n").name, QStringLiteral("A = b: c \t"));
}

void TestYumConfIORead::emptyLinesAreDroppedAndCommentsKept()
{
    ConfRoot root;
    QVERIFY(root.readRepoFile("[a]\n\n# one\nname=A\n\n\nx=1\n;two\n\n[b]\n"));
    QCOMPARE(root.conf.repos.size(), 2);
    QCOMPARE(root.conf.repos[0].otherOptions, QStringLiteral("# one\nx=1\n;two\n"));
    QVERIFY(root.conf.repos[1].otherOptions.isNull());
}

void TestYumConfIORead::textAboveTheFirstSectionIsDropped()
{
    ConfRoot root;
    Repo::Entry const entry = root.readOne("# header\nname=stray\nenabled=0\n[a]\nx=1\n");
    QCOMPARE(entry.id, QStringLiteral("a"));
    QVERIFY(entry.name.isNull());
    QCOMPARE(entry.enabled, qint32(Repo::Default));
    QCOMPARE(entry.otherOptions, QStringLiteral("x=1\n"));
    QCOMPARE(root.reposEnabled, (QHash<QString, bool>{{QStringLiteral("a"), true}}));

    QVERIFY(root.readRepoFile("# nothing but\nname=text\n"));
    QVERIFY(root.conf.repos.isEmpty());
}

void TestYumConfIORead::continuationLinesJoinWithALineFeed_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("otherOptions");
    QTest::newRow("blank") << QByteArray("name=A\n b\n") << QStringLiteral("A\n b") << QString();
    QTest::newRow("tab") << QByteArray("name=A\n\tb\n") << QStringLiteral("A\n\tb") << QString();
    QTest::newRow("several") << QByteArray("name=A\n  b\n \tc\nx=1\n") << QStringLiteral("A\n  b\n \tc")
                             << QStringLiteral("x=1\n");
    QTest::newRow("line of blanks") << QByteArray("name=A\n   \nx=1\n") << QStringLiteral("A\n   ")
                                    << QStringLiteral("x=1\n");
    QTest::newRow("indented comment")
        << QByteArray("name=A\n # c\n") << QStringLiteral("A\n # c") << QString();
    QTest::newRow("empty line ends") << QByteArray("name=A\n\nx=1\n") << QStringLiteral("A")
                                     << QStringLiteral("x=1\n");
    QTest::newRow("empty line is continued itself")
        << QByteArray("name=A\n\n b\n") << QStringLiteral("A") << QStringLiteral("\n b\n");
    QTest::newRow("unknown option") << QByteArray("x=1\n  name=A\n") << QString()
                                    << QStringLiteral("x=1\n  name=A\n");
}

void TestYumConfIORead::continuationLinesJoinWithALineFeed()
{
    QFETCH(QByteArray, text);
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[a]\n" + text);
    QCOMPARE(entry.id, QStringLiteral("a"));
    QTEST(entry.name, "name");
    QTEST(entry.otherOptions, "otherOptions");
}

void TestYumConfIORead::urlsStandOnePerLine_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QString>("urls");
    QTest::newRow("one") << QByteArray("http://a") << QStringLiteral("http://a");
    QTest::newRow("indented line") << QByteArray("http://a\n        http://b")
                                   << QStringLiteral("http://a\nhttp://b");
    QTest::newRow("blank") << QByteArray("http://a http://b") << QStringLiteral("http://a\nhttp://b");
    QTest::newRow("tabs and blanks") << QByteArray("http://a \t \n\t http://b")
                                     << QStringLiteral("http://a\nhttp://b");
    QTest::newRow("comma stays") << QByteArray("http://a,http://b") << QStringLiteral("http://a,http://b");
    QTest::newRow("trailing blank") << QByteArray("http://a ") << QStringLiteral("http://a\n");
    QTest::newRow("all on further lines")
        << QByteArray("\n  http://a\n  http://b") << QStringLiteral("\nhttp://a\nhttp://b");
    QTest::newRow("indented comment is a URL")
        << QByteArray("http://a\n  #http://b") << QStringLiteral("http://a\n#http://b");
}

void TestYumConfIORead::urlsStandOnePerLine()
{
    QFETCH(QByteArray, value);
    ConfRoot root;
    // The first section is finished by the next head, the last one by the end of the file.
    QVERIFY(root.readRepoFile("[a]\nbaseurl=" + value + "\n[b]\nbaseurl=" + value + "\n"));
    QCOMPARE(root.conf.repos.size(), 2);
    QTEST(root.conf.repos[0].baseurl, "urls");
    QTEST(root.conf.repos[1].baseurl, "urls");

    QCOMPARE(
        root.readOne("[a]\nmirrorlist=http://m  http://n\n").mirrorlist,
        QStringLiteral("http://m  http://n"));
}

void TestYumConfIORead::sectionNamesAreKeptAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("head");
    QTest::addColumn<QString>("id");
    QTest::newRow("plain") << QByteArray("[a]") << QStringLiteral("a");
    QTest::newRow("blanks") << QByteArray("[ a b ]") << QStringLiteral(" a b ");
    QTest::newRow("nothing") << QByteArray("[]") << QString();
    QTest::newRow("brackets") << QByteArray("[[a]]") << QStringLiteral("[a]");
    QTest::newRow("separator") << QByteArray("[name=x]") << QStringLiteral("name=x");
    QTest::newRow("over two lines") << QByteArray("[a\n b]") << QStringLiteral("a\n b");
}

void TestYumConfIORead::sectionNamesAreKeptAsTheyStand()
{
    QFETCH(QByteArray, head);
    ConfRoot root;
    QVERIFY(root.readRepoFile(head + "\nname=A\n"));
    QCOMPARE(root.conf.repos.size(), 1);
    QTEST(root.conf.repos[0].id, "id");
    QCOMPARE(root.conf.repos[0].name, QStringLiteral("A"));
}

void TestYumConfIORead::sectionsAreNumberedWithinTheirFile()
{
    ConfRoot root;
    root.write("/etc/yum.conf", "[main]\n[m]\n");
    root.write("/etc/yum/repos.d/one.repo", "[a]\n[b]\n[c]\n");
    root.write("/etc/yum.repos.d/two.repo", "[d]\n[e]\n");
    QVERIFY(root.conf.read(nullptr));
    QStringList places;
    for (Repo::Entry const& entry : root.conf.repos)
        places += QStringLiteral("%1 %2 %3").arg(entry.id, entry.file).arg(entry.filePosition);
    QCOMPARE(
        places,
        QStringList(
            {QStringLiteral("m /etc/yum.conf 1"), QStringLiteral("a /etc/yum/repos.d/one.repo 1"),
             QStringLiteral("b /etc/yum/repos.d/one.repo 2"), QStringLiteral("c /etc/yum/repos.d/one.repo 3"),
             QStringLiteral("d /etc/yum.repos.d/two.repo 1"),
             QStringLiteral("e /etc/yum.repos.d/two.repo 2")}));
}

void TestYumConfIORead::bytesBecomeTheCharactersOfTheSameValue()
{
    QByteArray every;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n')
            every += char(byte);
    }
    ConfRoot root;
    Repo::Entry const entry = root.readOne("[a]\nname=x" + every + "\n");
    QCOMPARE(entry.name, u'x' + QString::fromLatin1(every));
    QCOMPARE(entry.name.toLatin1(), 'x' + every);
}

QTEST_GUILESS_MAIN(TestYumConfIORead)
#include "tst_yumconfioread.moc"
