// SPDX-License-Identifier: GPL-2.0-or-later
// Where paths of the managed system lead, by the kernel's own call and by hand.
#include "base/Descriptor.h"
#include "base/ManagedRoot.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

namespace
{

/// Takes openat2 away from this thread, for good: it fails as on a kernel that lacks it (ENOSYS), or in a
/// sandbox that doesn't know it (EPERM).
bool loseTheCall(unsigned int fault)
{
    sock_filter filter[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat2, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | fault),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    sock_fprog program = {4, filter};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0 &&
           syscall(SYS_openat2, AT_FDCWD, ".", nullptr, 0) < 0 && errno == static_cast<int>(fault);
}

/// What a file holds, or the name of the error.
QByteArray content(QByteArray const& path)
{
    Descriptor const descriptor(ManagedRoot::open(path, O_RDONLY));
    if (!descriptor)
        return strerrorname_np(errno);
    char bytes[100];
    ssize_t const count = ::read(descriptor.get(), bytes, sizeof bytes);
    return count < 0 ? QByteArray(strerrorname_np(errno)) : QByteArray(bytes, count);
}

QByteArray fault(bool isDone)
{
    return isDone ? QByteArray("done") : QByteArray(strerrorname_np(errno));
}

} // namespace

class ManagedRootTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> directory;

    [[nodiscard]] QString onDisk(char const* path) const { return directory->path() + QLatin1String(path); }

    void make(char const* path, char const* text) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(onDisk(path)).path()));
        QFile file(onDisk(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    void link(char const* path, QString const& target) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(onDisk(path)).path()));
        QVERIFY(QFile::link(target, onDisk(path)));
    }

    [[nodiscard]] QByteArray onDiskContent(char const* path) const
    {
        QFile file(onDisk(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    /// Runs `work` as the row of the test wants it; false where openat2 can't be taken away.
    [[nodiscard]] static bool run(std::function<void()> const& work)
    {
        QFETCH(int, fault);
        bool isRun = true;
        std::thread([&] {
            isRun = fault == 0 || loseTheCall(static_cast<unsigned int>(fault));
            if (isRun)
                work();
        }).join();
        return isRun;
    }

    static void ways()
    {
        QTest::addColumn<int>("fault");
        QTest::newRow("by the kernel") << 0;
        QTest::newRow("without the call") << ENOSYS;
        QTest::newRow("in a sandbox") << EPERM;
    }

private Q_SLOTS:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir().mkpath(onDisk("/root/etc")));
        make("/secret", "of the host");
        qputenv("VEMROOT", QFile::encodeName(onDisk("/root")));
    }

    void cleanup()
    {
        qunsetenv("VEMROOT");
        directory.reset();
    }

    void linksAreFollowedInside_data() { ways(); }
    void linksAreFollowedInside();
    void whatIsMadeIsMadeInside_data() { ways(); }
    void whatIsMadeIsMadeInside();
    void linkItselfIsRemoved_data() { ways(); }
    void linkItselfIsRemoved();
    void faultsAreTold_data() { ways(); }
    void faultsAreTold();

    void resolvedPathHasNoLinks();
    void identityTellsFilesApart();
    void withoutARootPathsAreThoseOfTheSystem();
};

void ManagedRootTest::linksAreFollowedInside()
{
    make("/root/etc/file", "inside");
    make("/root/secret", "own");
    link("/root/etc/relative", QStringLiteral("file"));
    link("/root/etc/absolute", QStringLiteral("/etc/file"));
    link("/root/etc/above", QStringLiteral("../../../../secret"));
    link("/root/etc/host", onDisk("/secret"));
    link("/root/etc/chain", QStringLiteral("absolute"));
    link("/root/folder", QStringLiteral("/etc"));
    link("/root/self", QStringLiteral("/"));
    QByteArrayList found;
    if (!run([&] {
            for (char const* const path :
                 {"/etc/file", "etc//./file", "/etc/relative", "/etc/absolute", "/etc/above", "/etc/host",
                  "/etc/chain", "/folder/chain", "/folder/../secret", "/../../secret", "/self/self/secret"})
                found += content(path);
        }))
        QSKIP("no right to filter system calls");
    QCOMPARE(
        found, (QByteArrayList{
                   "inside", "inside", "inside", "inside", "own", "ENOENT", "inside", "inside", "own", "own",
                   "own"}));
}

void ManagedRootTest::whatIsMadeIsMadeInside()
{
    link("/root/etc/dangling", QStringLiteral("/made"));
    link("/root/etc/host", onDisk("/secret"));
    make("/root/other/file", "");
    QByteArrayList done;
    if (!run([&] {
            for (char const* const path : {"/etc/dangling", "/etc/host", "/new", "/other/../second"}) {
                Descriptor const file(ManagedRoot::open(path, O_WRONLY | O_CREAT, 0640));
                done += fault(file && ::write(file.get(), "x", 1) == 1);
            }
        }))
        QSKIP("no right to filter system calls");
    QCOMPARE(done, (QByteArrayList{"done", "ENOENT", "done", "done"}));
    QCOMPARE(onDiskContent("/secret"), QByteArray("of the host"));
    for (char const* const path : {"/root/made", "/root/new", "/root/second"})
        QCOMPARE(onDiskContent(path), QByteArray("x"));
    struct stat status = {};
    QVERIFY(ManagedRoot::inspect("/new", status));
    QCOMPARE(int(status.st_mode & 0777), 0640);
}

void ManagedRootTest::linkItselfIsRemoved()
{
    make("/root/etc/file", "inside");
    link("/root/etc/absolute", QStringLiteral("/etc/file"));
    link("/root/etc/host", onDisk("/secret"));
    link("/root/folder", QStringLiteral("/etc"));
    QByteArrayList done;
    if (!run([&] {
            for (char const* const path : {"/folder/absolute", "/folder/host", "/folder/none"})
                done += fault(ManagedRoot::unlink(path));
        }))
        QSKIP("no right to filter system calls");
    QCOMPARE(done, (QByteArrayList{"done", "done", "ENOENT"}));
    QCOMPARE(
        QDir(onDisk("/root/etc")).entryList(QDir::Files | QDir::System), QStringList(QStringLiteral("file")));
    QCOMPARE(onDiskContent("/secret"), QByteArray("of the host"));
}

void ManagedRootTest::faultsAreTold()
{
    make("/root/etc/file", "inside");
    link("/root/etc/loop", QStringLiteral("loop"));
    QByteArrayList found;
    if (!run([&] {
            for (QByteArray const path : {"/none", "/none/file", "/etc/file/x", "/etc/loop", "/etc/loop/x"})
                found += content(path);
            found += content(QByteArray("/etc/file\0x", 11));
            found += fault(Descriptor(ManagedRoot::open("/etc/file", O_RDONLY | O_DIRECTORY)).get() >= 0);
            struct stat status = {};
            found += fault(ManagedRoot::inspect("/etc", status));
            found += fault(ManagedRoot::inspect("/none", status));
        }))
        QSKIP("no right to filter system calls");
    QCOMPARE(
        found, (QByteArrayList{
                   "ENOENT", "ENOENT", "ENOTDIR", "ELOOP", "ELOOP", "EINVAL", "ENOTDIR", "done", "ENOENT"}));
}

void ManagedRootTest::resolvedPathHasNoLinks()
{
    make("/root/etc/file", "");
    link("/root/etc/absolute", QStringLiteral("/etc/../etc/file"));
    link("/root/folder", QStringLiteral("/etc"));
    link("/root/etc/dangling", QStringLiteral("../made"));
    QCOMPARE(ManagedRoot::resolved("//folder/./absolute"), QByteArray("/etc/file"));
    QCOMPARE(ManagedRoot::resolved("/etc/dangling"), QByteArray("/made"));
    QCOMPARE(ManagedRoot::resolved("etc/file"), QByteArray("/etc/file"));
    QCOMPARE(ManagedRoot::resolved("/../folder/none/./x/../y"), QByteArray("/etc/none/y"));
    QCOMPARE(ManagedRoot::resolved("/"), QByteArray("/"));
}

void ManagedRootTest::identityTellsFilesApart()
{
    make("/root/etc/file", "");
    make("/root/etc/other", "");
    link("/root/folder", QStringLiteral("/etc"));
    QCOMPARE(ManagedRoot::identity("/folder//file"), ManagedRoot::identity("/etc/file"));
    QVERIFY(ManagedRoot::identity("/etc/other") != ManagedRoot::identity("/etc/file"));
    QCOMPARE(ManagedRoot::identity("/folder/new"), ManagedRoot::identity("/etc/../etc/new"));
    QVERIFY(ManagedRoot::identity("/etc/new") != ManagedRoot::identity("/etc/newer"));
    QByteArray const cut("/etc/file\0", 10);
    QVERIFY(ManagedRoot::identity(cut) != ManagedRoot::identity("/etc/file"));
}

void ManagedRootTest::withoutARootPathsAreThoseOfTheSystem()
{
    make("/file", "outside");
    link("/link", onDisk("/file"));
    qputenv("VEMROOT", "");
    QByteArray const folder = QFile::encodeName(directory->path());
    QByteArray const canonical = QFile::encodeName(QDir(directory->path()).canonicalPath());
    QCOMPARE(content(folder + "/link"), QByteArray("outside"));
    QCOMPARE(ManagedRoot::resolved(folder + "/./link"), canonical + "/file");
    QCOMPARE(ManagedRoot::identity(folder + "/link"), ManagedRoot::identity(folder + "//file"));
    QByteArray const here = QFile::encodeName(QDir(QDir::currentPath()).canonicalPath());
    QCOMPARE(ManagedRoot::resolved("no such file"), here + "/no such file");
    QVERIFY(ManagedRoot::unlink(folder + "/link"));
    QCOMPARE(onDiskContent("/file"), QByteArray("outside"));
}

QTEST_GUILESS_MAIN(ManagedRootTest)
#include "tst_managedroot.moc"
