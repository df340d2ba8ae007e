// SPDX-License-Identifier: GPL-2.0-or-later
// What the user is told when a file can't be read, and what stands in memory after it.
#include "BoxReader.h"
#include "ConfRoot.h"
#include "Unprivileged.h"

#include <QTest>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

/// The words of a box, with the number and name of `cause` behind them.
QString told(char const* message, int cause)
{
    return QStringLiteral("%1; errno = %2 (%3).")
        .arg(QString::fromUtf8(message))
        .arg(cause)
        .arg(QString::fromLocal8Bit(std::strerror(cause)));
}

/// Makes a file that can be looked at but not opened, by root neither.
bool makeSocket(QByteArray const& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    std::copy(path.cbegin(), path.cend(), address.sun_path);
    int const descriptor = ::socket(AF_UNIX, SOCK_STREAM, 0);
    bool const isMade =
        descriptor >= 0 && ::bind(descriptor, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
    ::close(descriptor);
    return isMade;
}

} // namespace

class TestYumConfIOFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingMainFileIsTold();
    void unreadableMainFileIsTold();
    void repositoryFileThatCannotBeLookedAtIsTold();
    void anythingButAFileIsToldOnceAndLeftAlone_data();
    void anythingButAFileIsToldOnceAndLeftAlone();
    void mainFileThatIsAPipeIsTold();
    void filesThatMayNotBeReadAreTold();
    void readErrorOfARepositoryFileIsTold();
    void malformedHeadIsTold_data();
    void malformedHeadIsTold();
    void malformedHeadLosesTheSectionBeforeIt();
    void linesOfFilesAreShownAsPlainText();
    void readAfterAFaultBeginsAfresh();
};

void TestYumConfIOFaults::missingMainFileIsTold()
{
    BoxReader boxes;
    ConfRoot root;
    QVERIFY(root.readMain("[main]\ncachedir=/c\n[a]\n"));
    root.remove("/etc/yum.conf");

    QWidget window;
    QVERIFY(!root.conf.read(&window));
    QCOMPARE(boxes.texts, QStringList(told("Unable to read yum configuration file /etc/yum.conf", ENOENT)));
    QCOMPARE(boxes.captions, QStringList(QStringLiteral("VEM Repository Editor Error")));
    QCOMPARE(boxes.icons, QList<QMessageBox::Icon>{QMessageBox::Critical});
    QCOMPARE(boxes.buttons, QList<QMessageBox::StandardButtons>{QMessageBox::Ok});
    QCOMPARE(boxes.parents, QList<QWidget*>{&window});
    QVERIFY(root.conf.repos.isEmpty());
    QCOMPARE(root.conf.cachedir, QStringLiteral("/var/cache/yum"));
}

void TestYumConfIOFaults::unreadableMainFileIsTold()
{
    BoxReader boxes;
    ConfRoot root;
    root.makeDirectory("/etc/yum/yum.conf");
    QVERIFY(!root.conf.read(nullptr));
    QCOMPARE(
        boxes.texts,
        QStringList(told("Error reading repository configuration file /etc/yum/yum.conf", EISDIR)));
}

void TestYumConfIOFaults::repositoryFileThatCannotBeLookedAtIsTold()
{
    BoxReader boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[a]\n");
    root.makeDirectory("/etc/yum.repos.d");
    QVERIFY(QFile::link(
        QStringLiteral("nowhere"), QFile::decodeName(root.onDisk("/etc/yum.repos.d/dangling.repo"))));
    QVERIFY(!root.conf.read(nullptr));
    QCOMPARE(
        boxes.texts,
        QStringList(
            told("Unable to stat repository configuration file /etc/yum.repos.d/dangling.repo", ENOENT)));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
}

void TestYumConfIOFaults::anythingButAFileIsToldOnceAndLeftAlone_data()
{
    QTest::addColumn<QByteArray>("kind");
    for (char const* const kind : {"pipe", "socket", "device", "link"})
        QTest::newRow(kind) << QByteArray(kind);
}

void TestYumConfIOFaults::anythingButAFileIsToldOnceAndLeftAlone()
{
    QFETCH(QByteArray, kind);
    BoxReader boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[a]\n");
    root.makeDirectory("/etc/yum/repos.d");
    QByteArray const place = root.onDisk("/etc/yum/repos.d/odd.repo");
    if (kind == "pipe")
        QCOMPARE(::mkfifo(place.constData(), 0600), 0);
    if (kind == "socket")
        QVERIFY(makeSocket(place));
    if (kind == "device" && ::mknod(place.constData(), S_IFCHR | 0600, makedev(1, 3)) != 0)
        QSKIP("no right to make devices");
    if (kind == "link") {
        QCOMPARE(::mkfifo(root.onDisk("/pipe").constData(), 0600), 0);
        QVERIFY(QFile::link(QStringLiteral("/pipe"), QFile::decodeName(place)));
    }
    root.write("/etc/yum.repos.d/later.repo", "[later]\n");

    QStringList const words(
        QStringLiteral("/etc/yum/repos.d/odd.repo is not a regular file.  It is neither read nor changed."));
    for (int time = 0; time < 2; ++time) {
        QVERIFY(root.conf.read(nullptr));
        QCOMPARE(root.ids(), QStringList({QStringLiteral("a"), QStringLiteral("later")}));
        QVERIFY(root.conf.write(nullptr));
        QCOMPARE(boxes.texts, words);
    }
    QVERIFY(QFileInfo(QFile::decodeName(place)).isSymLink() || QFileInfo::exists(QFile::decodeName(place)));

    // Nor is it written.
    root.conf.repos.last().file = QStringLiteral("/etc/yum/repos.d/odd.repo");
    QVERIFY(!root.conf.write(nullptr));
    QCOMPARE(boxes.texts.size(), 2);
}

void TestYumConfIOFaults::mainFileThatIsAPipeIsTold()
{
    BoxReader boxes;
    ConfRoot root;
    root.makeDirectory("/etc");
    QCOMPARE(::mkfifo(root.onDisk("/etc/yum.conf").constData(), 0600), 0);
    for (int time = 1; time <= 2; ++time) {
        QVERIFY(!root.conf.read(nullptr));
        QCOMPARE(boxes.texts.size(), time);
        QCOMPARE(
            boxes.texts.last(),
            QStringLiteral("/etc/yum.conf is not a regular file.  It is neither read nor changed."));
    }
}

void TestYumConfIOFaults::filesThatMayNotBeReadAreTold()
{
    BoxReader boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[a]\n");
    root.write("/etc/yum.repos.d/secret.repo", "[secret]\n");
    root.openToAll();
    root.setPermissions("/etc/yum.repos.d/secret.repo", {});
    bool isRead = true;
    {
        Unprivileged const user;
        if (!user)
            QSKIP("Root can't become another user here.");
        isRead = root.conf.read(nullptr);
    }
    QVERIFY(!isRead);
    QCOMPARE(
        boxes.texts,
        QStringList(
            told("Unable to read repository configuration file /etc/yum.repos.d/secret.repo", EACCES)));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));

    boxes.texts.clear();
    root.setPermissions("/etc/yum.conf", {});
    {
        Unprivileged const user;
        isRead = root.conf.read(nullptr);
    }
    QVERIFY(!isRead);
    QCOMPARE(boxes.texts, QStringList(told("Unable to read yum configuration file /etc/yum.conf", EACCES)));
    QCOMPARE(root.ids(), QStringList());
}

void TestYumConfIOFaults::readErrorOfARepositoryFileIsTold()
{
    BoxReader boxes;
    ConfRoot root;
    root.write("/etc/yum.conf", "[a]\n");
    root.write("/etc/yum/repos.d/memory.repo", "");
    root.write("/etc/yum.repos.d/later.repo", "[later]\n");
    // The first page of a process is never mapped, so this opens well and can't be read.
    QByteArray const memory = root.onDisk("/etc/yum/repos.d/memory.repo");
    if (::mount("/proc/self/mem", memory.constData(), nullptr, MS_BIND, nullptr) != 0)
        QSKIP("no right to mount");
    bool const isRead = root.conf.read(nullptr);
    ::umount2(memory.constData(), MNT_DETACH);
    QVERIFY(!isRead);
    QCOMPARE(
        boxes.texts,
        QStringList(told("Error reading repository configuration file /etc/yum/repos.d/memory.repo", EIO)));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
}

void TestYumConfIOFaults::malformedHeadIsTold_data()
{
    QTest::addColumn<QByteArray>("head");
    auto const row = [](char const* head) { QTest::newRow(head) << QByteArray(head); };
    row("[a");
    row("[");
    row("[a] ");
    row("[a]x");
    row("[a]\n name=A");
    row("[a]\n   ");
    row("[main] ");
}

void TestYumConfIOFaults::malformedHeadIsTold()
{
    QFETCH(QByteArray, head);
    QString const words = QStringLiteral("Malformed section name in line: ") + QString::fromLatin1(head);
    static QRegularExpression const suffix(
        QStringLiteral("^; errno = \\d+ \\(.+\\)\\.\nThe file is (.+)\\.$"));

    BoxReader boxes;
    ConfRoot root;
    QVERIFY(!root.readMain(head + "\n"));
    QVERIFY(!root.readRepoFile(head + "\n"));
    QCOMPARE(boxes.texts.size(), 2);
    QStringList files;
    for (QString const& text : std::as_const(boxes.texts)) {
        QVERIFY2(text.startsWith(words), qPrintable(text));
        QRegularExpressionMatch const match = suffix.match(text.mid(words.size()));
        QVERIFY2(match.hasMatch(), qPrintable(text));
        files += match.captured(1);
    }
    QCOMPARE(
        files, QStringList({QStringLiteral("/etc/yum.conf"), QStringLiteral("/etc/yum.repos.d/some.repo")}));
    QCOMPARE(boxes.captions.last(), QStringLiteral("VEM Repository Editor Error"));
}

void TestYumConfIOFaults::malformedHeadLosesTheSectionBeforeIt()
{
    BoxReader boxes;
    ConfRoot root;
    QVERIFY(!root.readRepoFile("[a]\n[b]\n[c\n[d]\n"));
    QCOMPARE(boxes.texts.size(), 1);
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
}

void TestYumConfIOFaults::linesOfFilesAreShownAsPlainText()
{
    BoxReader boxes;
    ConfRoot root;
    QVERIFY(!root.readMain("[<b>%1 %2</b>\n"));
    QCOMPARE(boxes.formats, QList<Qt::TextFormat>{Qt::PlainText});
    QVERIFY2(
        boxes.texts.value(0).startsWith(QStringLiteral("Malformed section name in line: [<b>%1 %2</b>; ")),
        qPrintable(boxes.texts.value(0)));
}

void TestYumConfIOFaults::readAfterAFaultBeginsAfresh()
{
    BoxReader boxes;
    ConfRoot root;
    QByteArray const main = "[main]\nreposdir=/etc/one\n";
    root.write("/etc/yum.conf", main);
    root.write("/etc/one/some.repo", "[broken\nleft over\n");
    root.write("/etc/yum.repos.d/other.repo", "[other]\n");
    QVERIFY(!root.conf.read(nullptr));

    root.write("/etc/one/some.repo", "[a]\n");
    QVERIFY(root.conf.read(nullptr));
    QCOMPARE(root.ids(), QStringList(QStringLiteral("a")));
    QCOMPARE(root.conf.mainOptions, QString::fromLatin1(main));
    QCOMPARE(root.conf.reposdirs, QStringList(QStringLiteral("/etc/one")));
    QVERIFY(root.conf.write(nullptr));
    QVERIFY(QFileInfo::exists(QFile::decodeName(root.onDisk("/etc/yum.repos.d/other.repo"))));
    QCOMPARE(boxes.texts.size(), 1);
}

QTEST_MAIN(TestYumConfIOFaults)
#include "tst_yumconfiofaults.moc"
