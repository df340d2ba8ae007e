// SPDX-License-Identifier: GPL-2.0-or-later
// What a write makes of the files: their content, their names, and which of them go.
#include "BoxAnswer.h"
#include "ConfFiles.h"

#include <QSignalSpy>
#include <QTest>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using ConfFiles::content;
using ConfFiles::names;

namespace
{

constexpr char const* buffetUrl = "http://h/buffet?login=ann&key=secret&path=p";

int permissions(ConfRoot const& root, QByteArray const& path)
{
    struct stat status
    {
    };
    return ::stat(root.onDisk(path).constData(), &status) == 0 ? int(status.st_mode & 07777) : -1;
}

} // namespace

class TestYumConfIOWrite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void optionsComeInAFixedOrder();
    void switchesAreWrittenUnlessTheyAreTheDefault_data();
    void switchesAreWrittenUnlessTheyAreTheDefault();
    void urlsStandOnLinesOfTheirOwn();
    void emptyOptionsAreNotWritten();
    void mainFileIsKeptVerbatim();
    void repositoriesOfTheMainFileStandBelowItsOptions();
    void lastRepositoryOfTheMainFileLeavesItsOptionsAlone();
    void newMainFileTakesTheMainOptions();
    void thirdMainFileIsWritten();
    void mainFileThatIsALinkIsWrittenThrough();
    void noRepositoriesLeaveTheMainFileAlone();
    void sectionsKeepTheirOrderAndAreParted();
    void positionsDecideTheOrderInAFile();
    void filesAreOrderedByName();
    void listKeepsItsOrder();
    void newRepositoriesGetAFile();
    void relativeFilesStayRelativeWithoutDirectories();
    void fileNamesAreThoseOfTheDisk();
    void otherOptionsWithoutALineFeedAreWrittenSo();
    void removedSectionLeavesTheOthers();
    void filesWithoutARepositoryAreDeleted();
    void directoriesStay();
    void allBytesSurvive();
    void linksOwnersAndPermissionsStay();
    void securityContextStays_data();
    void securityContextStays();
    void fileBecomesItsOwnersWithAddedCredentials_data();
    void fileBecomesItsOwnersWithAddedCredentials();
    void newFileWithCredentialsIsForItsOwnerOnly_data();
    void newFileWithCredentialsIsForItsOwnerOnly();
    void fileThatGetsShorterLosesItsOldEnd();
    void writeEmitsNothing();
    void writingTwiceChangesNothing();

private:
    ConfRoot& root() { return *current; }

    std::unique_ptr<ConfRoot> current;
    std::unique_ptr<BoxAnswer> boxes;
};

void TestYumConfIOWrite::init()
{
    current = std::make_unique<ConfRoot>();
    boxes = std::make_unique<BoxAnswer>();
}

void TestYumConfIOWrite::cleanup()
{
    QStringList const texts = boxes->texts;
    boxes.reset();
    current.reset();
    QCOMPARE(texts, QStringList());
}

void TestYumConfIOWrite::optionsComeInAFixedOrder()
{
    QVERIFY(root().readRepoFile("[a]\nz=1\n# note\ngpgcheck : 0\nenabled=yes\nmirrorlist= "
                                "http://m\n\nbaseurl = http://b\nname\t=\tA B \n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(
        content(root(), "/etc/yum.repos.d/some.repo"),
        QByteArray(
            "[a]\nname=A B \nbaseurl=http://b\nmirrorlist=http://m\nenabled=1\ngpgcheck=0\nz=1\n# note\n"));
}

void TestYumConfIOWrite::switchesAreWrittenUnlessTheyAreTheDefault_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no") << 0 << QByteArray("=0\n");
    QTest::newRow("default") << 1 << QByteArray();
    QTest::newRow("yes") << 2 << QByteArray("=1\n");
}

void TestYumConfIOWrite::switchesAreWrittenUnlessTheyAreTheDefault()
{
    QFETCH(int, value);
    QFETCH(QByteArray, line);
    QVERIFY(root().readRepoFile("[a]\n[b]\n"));
    root().conf.repos[0].enabled = value;
    root().conf.repos[1].gpgcheck = value;
    QVERIFY(root().conf.write(nullptr));
    QByteArray const enabled = line.isEmpty() ? line : "enabled" + line;
    QByteArray const gpgcheck = line.isEmpty() ? line : "gpgcheck" + line;
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), "[a]\n" + enabled + "\n[b]\n" + gpgcheck);
}

void TestYumConfIOWrite::urlsStandOnLinesOfTheirOwn()
{
    QVERIFY(root().readRepoFile("[a]\nbaseurl=http://1 http://2\n  http://3\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(
        content(root(), "/etc/yum.repos.d/some.repo"),
        QByteArray("[a]\nbaseurl=http://1\n        http://2\n        http://3\n"));
}

void TestYumConfIOWrite::emptyOptionsAreNotWritten()
{
    QVERIFY(root().readRepoFile("[a]\nname=\nbaseurl=\nmirrorlist=\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[a]\n"));
}

void TestYumConfIOWrite::mainFileIsKeptVerbatim()
{
    QByteArray const text =
        "# above\n\n[main]\ncachedir = /c \nreposdir=/etc/one, /etc/two\n\n\n# note\nenabled:0\nx\n  y\n";
    root().makeDirectory("/etc/one");
    QVERIFY(root().readMain(text));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), text);
}

void TestYumConfIOWrite::repositoriesOfTheMainFileStandBelowItsOptions()
{
    QVERIFY(root().readMain("[main]\na=b\n\n[one]\n\n[two]\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), QByteArray("[main]\na=b\n\n[one]\n\n[two]\n"));

    root().conf.repos += newRepo(QStringLiteral("three"), QStringLiteral("/etc/yum.conf"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), QByteArray("[main]\na=b\n\n[three]\n\n[one]\n\n[two]\n"));
}

void TestYumConfIOWrite::lastRepositoryOfTheMainFileLeavesItsOptionsAlone()
{
    QVERIFY(root().readMain("[main]\na=b\n[one]\nname=One\n"));
    root().conf.repos.clear();
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.conf"), QByteArray("[main]\na=b\n"));
}

void TestYumConfIOWrite::newMainFileTakesTheMainOptions()
{
    // By being made it becomes the main file, in the place of the one that was read.
    QVERIFY(root().readMain("[main]\na=b\n"));
    root().makeDirectory("/etc/yum");
    root().conf.repos += newRepo(QStringLiteral("one"), QStringLiteral("/etc/yum/yum.conf"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum/yum.conf"), QByteArray("[main]\na=b\n[one]\n"));
    QCOMPARE(content(root(), "/etc/yum.conf"), QByteArray("[main]\na=b\n"));
}

void TestYumConfIOWrite::thirdMainFileIsWritten()
{
    root().write("/etc/dnf/dnf.conf", "[main]\na=b\n[one]\n");
    root().makeDirectory("/etc/yum.repos.d");
    root().write("/etc/distro.repos.d/old.repo", "");
    QVERIFY(root().conf.read(nullptr));
    root().conf.repos += newRepo(QStringLiteral("two"), QString());
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/dnf/dnf.conf"), QByteArray("[main]\na=b\n[one]\n"));
    QCOMPARE(content(root(), "/etc/yum.repos.d/two.repo"), QByteArray("[two]\n"));
    QCOMPARE(names(root(), "/etc/distro.repos.d"), QList<QByteArray>());
    QVERIFY(!QFileInfo::exists(QFile::decodeName(root().onDisk("/etc/yum.conf"))));
}

void TestYumConfIOWrite::mainFileThatIsALinkIsWrittenThrough()
{
    QString const link = QFile::decodeName(root().onDisk("/etc/yum.conf"));
    root().write("/etc/dnf/dnf.conf", "[main]\na=b\n");
    QVERIFY(QFile::link(QStringLiteral("dnf/dnf.conf"), link));
    QVERIFY(root().conf.read(nullptr));
    root().conf.repos += newRepo(QStringLiteral("one"), QStringLiteral("/etc/yum.conf"));
    QVERIFY(root().conf.write(nullptr));
    QVERIFY(QFileInfo(link).isSymbolicLink());
    QVERIFY(!QFileInfo(QFile::decodeName(root().onDisk("/etc/dnf/dnf.conf"))).isSymbolicLink());
    QCOMPARE(content(root(), "/etc/dnf/dnf.conf"), QByteArray("[main]\na=b\n[one]\n"));
}

void TestYumConfIOWrite::noRepositoriesLeaveTheMainFileAlone()
{
    root().write("/etc/yum/repos.d/other", "x");
    QVERIFY(root().readRepoFile("[a]\n"));
    root().conf.repos.clear();
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(names(root(), "/etc/yum.repos.d"), QList<QByteArray>());
    QCOMPARE(names(root(), "/etc/yum/repos.d"), QList<QByteArray>());
    QCOMPARE(content(root(), "/etc/yum.conf"), QByteArray());
}

void TestYumConfIOWrite::sectionsKeepTheirOrderAndAreParted()
{
    QVERIFY(root().readRepoFile("lost\n[c]\n\n\n\n[a]\n# of a\n[b]\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[c]\n\n[a]\n# of a\n\n[b]\n"));
}

void TestYumConfIOWrite::positionsDecideTheOrderInAFile()
{
    QVERIFY(root().readRepoFile("[a]\n[b]\n"));
    QString const file = QStringLiteral("/etc/yum.repos.d/some.repo");
    root().conf.repos += newRepo(QStringLiteral("between"), file);
    root().conf.repos.last().filePosition = 1.5;
    root().conf.repos += newRepo(QStringLiteral("top"), file);
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[top]\n\n[a]\n\n[between]\n\n[b]\n"));

    QVERIFY(root().conf.read(nullptr));
    QCOMPARE(root().ids().join(u' '), QStringLiteral("top a between b"));
    QCOMPARE(root().conf.repos[2].filePosition, 3.0);
}

void TestYumConfIOWrite::filesAreOrderedByName()
{
    Repo::Entry a = newRepo(QStringLiteral("a"), QStringLiteral("/f"));
    Repo::Entry b = newRepo(QStringLiteral("b"), QStringLiteral("/g"));
    a.filePosition = 2.0;
    b.filePosition = 1.0;
    QVERIFY(YumConfIO::filePositionLessThan(a, b));
    QVERIFY(!YumConfIO::filePositionLessThan(b, a));
    b.file = a.file;
    QVERIFY(!YumConfIO::filePositionLessThan(a, b));
    QVERIFY(YumConfIO::filePositionLessThan(b, a));
    QVERIFY(!YumConfIO::filePositionLessThan(a, a));
}

void TestYumConfIOWrite::listKeepsItsOrder()
{
    QVERIFY(root().readRepoFile("[b]\n[a]\n"));
    root().conf.repos.prepend(newRepo(QStringLiteral("z"), QStringLiteral("z.repo")));
    root().conf.repos.prepend(newRepo(QStringLiteral("c"), QStringLiteral("/etc/yum.repos.d/c")));
    root().makeDirectory("/etc/yum/repos.d");
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(root().ids().join(u' '), QStringLiteral("c z b a"));
}

void TestYumConfIOWrite::newRepositoriesGetAFile()
{
    QVERIFY(root().readMain("[main]\nreposdir=/etc/one /etc/two\n"));
    root().makeDirectory("/etc/one");
    root().conf.repos += newRepo(QStringLiteral("new"));
    root().conf.repos += newRepo(QStringLiteral("other"), QStringLiteral("named.txt"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(root().conf.repos[0].file, QStringLiteral("/etc/one/new.repo"));
    QCOMPARE(root().conf.repos[1].file, QStringLiteral("/etc/one/named.txt"));
    QCOMPARE(names(root(), "/etc/one"), (QList<QByteArray>{"named.txt", "new.repo"}));
    QCOMPARE(content(root(), "/etc/one/new.repo"), QByteArray("[new]\n"));
}

void TestYumConfIOWrite::relativeFilesStayRelativeWithoutDirectories()
{
    QVERIFY(root().readMain("[main]\nreposdir=\n"));
    root().conf.repos += newRepo(QStringLiteral("new"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(root().conf.repos[0].file, QStringLiteral("new.repo"));
    QCOMPARE(content(root(), "/new.repo"), QByteArray("[new]\n"));
}

void TestYumConfIOWrite::fileNamesAreThoseOfTheDisk()
{
    // Neither is in Latin-1, so that both mean one file, which must not be taken for one out of use.
    QVERIFY(root().readMain("[main]\nreposdir=/etc/one\n"));
    root().makeDirectory("/etc/one");
    root().conf.repos += newRepo(QStringLiteral("\u03a9"));
    root().conf.repos += newRepo(QStringLiteral("\u0416"));
    root().conf.repos += newRepo(QStringLiteral("\u00e4"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(names(root(), "/etc/one"), (QList<QByteArray>{"?.repo", "\xe4.repo"}));
    QCOMPARE(content(root(), "/etc/one/?.repo"), QByteArray("[?]\n\n[?]\n"));
    QCOMPARE(root().conf.repos[0].file, QStringLiteral("/etc/one/?.repo"));
    // The toolkit can't remove a name that isn't in its coding.
    root().remove("/etc/one/\xe4.repo");
}

void TestYumConfIOWrite::otherOptionsWithoutALineFeedAreWrittenSo()
{
    QVERIFY(root().readRepoFile("[a]\n[b]\n"));
    root().conf.repos[0].otherOptions = QStringLiteral("x=1");
    root().conf.repos[1].otherOptions = QStringLiteral("y=1");
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[a]\nx=1\n[b]\ny=1"));
}

void TestYumConfIOWrite::removedSectionLeavesTheOthers()
{
    QVERIFY(root().readRepoFile("[a]\nx=1\n[b]\ny=1\n[c]\nz=1\n"));
    root().conf.repos.removeAt(1);
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[a]\nx=1\n\n[c]\nz=1\n"));
    QVERIFY(root().conf.read(nullptr));
    QCOMPARE(root().conf.repos[1].filePosition, 2.0);
}

void TestYumConfIOWrite::filesWithoutARepositoryAreDeleted()
{
    root().write("/etc/yum.repos.d/empty.repo", "# no section\n");
    root().write("/etc/yum.repos.d/some.repo.saved", "[a]\n");
    root().write("/etc/yum.repos.d/note", "x");
    root().write("/etc/yum/repos.d/.hidden", "x");
    QVERIFY(root().readRepoFile("[a]\n[b]\n"));
    root().conf.repos[1].file = QStringLiteral("/etc/yum.repos.d/moved.repo");
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(names(root(), "/etc/yum.repos.d"), (QList<QByteArray>{"moved.repo", "some.repo"}));
    QCOMPARE(names(root(), "/etc/yum/repos.d"), QList<QByteArray>());

    root().conf.repos[0].file = root().conf.repos[1].file;
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(names(root(), "/etc/yum.repos.d"), QList<QByteArray>{"moved.repo"});
}

void TestYumConfIOWrite::directoriesStay()
{
    root().write("/etc/yum.repos.d/x.repo/inner", "x");
    QVERIFY(root().readRepoFile("[a]\n"));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(names(root(), "/etc/yum.repos.d"), (QList<QByteArray>{"some.repo", "x.repo"}));
    QCOMPARE(names(root(), "/etc/yum.repos.d/x.repo"), QList<QByteArray>{"inner"});
}

void TestYumConfIOWrite::allBytesSurvive()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\n')
            bytes += char(byte);
    }
    QByteArray const section = "[i" + bytes + "]\nname=n" + bytes + "\nx" + bytes + "\n";
    QByteArray const main = "[main]\n" + bytes + "\n";
    QVERIFY(root().readRepoFile(section));
    root().write("/etc/yum.conf", main);
    QVERIFY(root().conf.read(nullptr));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), section);
    QCOMPARE(content(root(), "/etc/yum.conf"), main);

    // What the disk can't hold becomes a question mark.
    root().conf.repos[0] = newRepo(QStringLiteral("a"), QStringLiteral("/etc/yum.repos.d/some.repo"));
    root().conf.repos[0].name = QStringLiteral("\u20ac\u00e4");
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[a]\nname=?\xe4\n"));
}

void TestYumConfIOWrite::linksOwnersAndPermissionsStay()
{
    root().write("/etc/kept", "[a]\n");
    root().write("/etc/yum.conf", "");
    root().makeDirectory("/etc/yum.repos.d");
    QByteArray const link = root().onDisk("/etc/yum.repos.d/link.repo");
    QCOMPARE(::symlink("../kept", link.constData()), 0);
    QCOMPARE(::chmod(root().onDisk("/etc/kept").constData(), 0664), 0);
    QVERIFY(root().conf.read(nullptr));
    root().conf.repos[0].name = QStringLiteral("A");
    QVERIFY(root().conf.write(nullptr));
    QVERIFY(QFileInfo(QFile::decodeName(link)).isSymLink());
    QCOMPARE(content(root(), "/etc/kept"), QByteArray("[a]\nname=A\n"));
    QCOMPARE(permissions(root(), "/etc/kept"), 0664);
}

void TestYumConfIOWrite::securityContextStays_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::newRow("repository file") << QByteArray("/etc/yum.repos.d/some.repo");
    QTest::newRow("main file") << QByteArray("/etc/yum.conf");
}

void TestYumConfIOWrite::securityContextStays()
{
    QFETCH(QByteArray, path);
    QVERIFY(root().readRepoFile("[a]\n"));
    QByteArray const file = root().onDisk(path);
    QByteArray const context = "system_u:object_r:etc_t:s0";
    char const* attribute = "security.selinux";
    auto const set = [&] {
        return ::setxattr(file.constData(), attribute, context.constData(), size_t(context.size()), 0) == 0;
    };
    // Not everybody may label a file, nor does each file system take labels; any other attribute shows it as
    // well.
    if (!set()) {
        attribute = "user.vem";
        if (!set())
            QSKIP("no right to label files here");
    }
    struct stat before = {};
    QCOMPARE(::stat(file.constData(), &before), 0);

    root().conf.repos[0].name = QStringLiteral("A");
    root().conf.mainOptions = QStringLiteral("[main]\n");
    QVERIFY(root().conf.write(nullptr));

    struct stat after = {};
    QCOMPARE(::stat(file.constData(), &after), 0);
    QCOMPARE(after.st_ino, before.st_ino);
    QVERIFY(after.st_size != before.st_size);
    QByteArray found(100, '\0');
    found.resize(::getxattr(file.constData(), attribute, found.data(), size_t(found.size())));
    QCOMPARE(found, context);
}

void TestYumConfIOWrite::fileBecomesItsOwnersWithAddedCredentials_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("modeAfter");
    QString const blank = QStringLiteral("http://h/buffet?u=&p=&path=/");
    QString const full = QString::fromLatin1(buffetUrl);
    auto const row = [](char const* name, QByteArray const& before, QString const& url,
                        QString const& options, int mode, int modeAfter) {
        QTest::newRow(name) << before << url << options << mode << modeAfter;
    };
    QString const password = QStringLiteral("password=x\n");
    row("address", "", full, {}, 0664, 0600);
    row("address, open to a group", "", full, {}, 0640, 0600);
    row("option", "", {}, password, 0644, 0600);
    row("user", "", QStringLiteral("http://me:x@host/"), {}, 0644, 0600);
    row("filled in", "mirrorlist=" + blank.toLatin1() + '\n', full, {}, 0644, 0600);
    row("a second one", "password=x\n", full, password, 0644, 0600);
    row("another", "password=y\n", {}, password, 0644, 0600);
    row("the same", "password=x\n", {}, password + QStringLiteral("cost=5\n"), 0644, 0644);
    row("one less", "proxy_password=y\npassword=x\n", {}, password, 0640, 0640);
    row("blank", "", blank, {}, 0644, 0644);
    row("none", "", QStringLiteral("http://h/"), {}, 0640, 0640);
}

void TestYumConfIOWrite::fileBecomesItsOwnersWithAddedCredentials()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, url);
    QFETCH(QString, options);
    QFETCH(int, mode);
    QVERIFY(root().readRepoFile("[a]\n" + before));
    char const* const file = "/etc/yum.repos.d/some.repo";
    QCOMPARE(::chmod(root().onDisk(file).constData(), static_cast<mode_t>(mode)), 0);
    root().conf.repos[0].mirrorlist = url;
    root().conf.repos[0].otherOptions = options;
    QVERIFY(root().conf.write(nullptr));
    QTEST(permissions(root(), file), "modeAfter");
}

void TestYumConfIOWrite::newFileWithCredentialsIsForItsOwnerOnly_data()
{
    QTest::addColumn<QString>("field");
    QTest::newRow("baseurl") << QStringLiteral("baseurl");
    QTest::newRow("mirrorlist") << QStringLiteral("mirrorlist");
    QTest::newRow("comment") << QStringLiteral("otherOptions");
    QTest::newRow("option") << QStringLiteral("password");
    QTest::newRow("option for the proxy") << QStringLiteral("proxy_password");
    QTest::newRow("user of an address") << QStringLiteral("user");
}

void TestYumConfIOWrite::newFileWithCredentialsIsForItsOwnerOnly()
{
    QFETCH(QString, field);
    QVERIFY(root().readMain("[main]\nreposdir=/etc/one\n"));
    root().makeDirectory("/etc/one");
    Repo::Entry secret = newRepo(QStringLiteral("secret"), QStringLiteral("shared.repo"));
    QString const url = QString::fromLatin1(buffetUrl);
    if (field == QLatin1String("baseurl"))
        secret.baseurl = QStringLiteral("http://plain\n") + url;
    else if (field == QLatin1String("mirrorlist"))
        secret.mirrorlist = url;
    else if (field.endsWith(QLatin1String("password")))
        secret.otherOptions = field + QStringLiteral("=x\n");
    else if (field == QLatin1String("user"))
        secret.baseurl = QStringLiteral("http://me:x@host/");
    else
        secret.otherOptions = QStringLiteral("#baseurl=") + url + u'\n';
    root().conf.repos += newRepo(QStringLiteral("first"), secret.file);
    root().conf.repos += secret;
    Repo::Entry open = newRepo(QStringLiteral("open"));
    open.baseurl = QStringLiteral("http://h/buffet?u=&p=&path=/");
    root().conf.repos += open;

    mode_t const before = ::umask(022);
    bool const isWritten = root().conf.write(nullptr);
    ::umask(before);
    QVERIFY(isWritten);
    QCOMPARE(permissions(root(), "/etc/one/shared.repo"), 0600);
    QCOMPARE(permissions(root(), "/etc/one/open.repo"), 0644);
}

void TestYumConfIOWrite::fileThatGetsShorterLosesItsOldEnd()
{
    QVERIFY(root().readRepoFile("[a]\nname=" + QByteArray(100000, 'x') + "\n"));
    root().conf.repos[0].name.clear();
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), QByteArray("[a]\n"));
}

void TestYumConfIOWrite::writeEmitsNothing()
{
    QVERIFY(root().readRepoFile("[a]\n"));
    QSignalSpy const changes(&root().conf, &YumConfIO::changed);
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(changes.count(), 0);
}

void TestYumConfIOWrite::writingTwiceChangesNothing()
{
    QVERIFY(root().readRepoFile("lost\n[b]\nname=B\nx\n y\n[a]\nbaseurl=1 2 \n"));
    QVERIFY(root().conf.write(nullptr));
    QByteArray const first = content(root(), "/etc/yum.repos.d/some.repo");
    QVERIFY(root().conf.read(nullptr));
    QVERIFY(root().conf.write(nullptr));
    QCOMPARE(content(root(), "/etc/yum.repos.d/some.repo"), first);
}

QTEST_MAIN(TestYumConfIOWrite)
#include "tst_yumconfiowrite.moc"
