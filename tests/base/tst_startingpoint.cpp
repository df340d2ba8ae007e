// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/StartingPoint.h"
#include "tests/bridge/ChildProcess.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

namespace
{

bool isNullDevice(int descriptor)
{
    struct stat there = {};
    struct stat null = {};
    return ::fstat(descriptor, &there) == 0 && ::stat("/dev/null", &null) == 0 &&
           there.st_rdev == null.st_rdev && (::fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDWR;
}

bool isOpen(int descriptor)
{
    return ::fcntl(descriptor, F_GETFD) >= 0;
}

struct stat status(char const* path)
{
    struct stat answer = {};
    ::stat(path, &answer);
    return answer;
}

/// What a child process of a test says of itself.
void verifyExit(int status)
{
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
}

} // namespace

/// Each test in a process of its own, since what is remembered is remembered once.
class StartingPointTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void closedDescriptorsAreOpenedOnTheNullDevice()
    {
        verifyExit(statusOfChild([] {
            ::close(STDIN_FILENO);
            ::close(STDOUT_FILENO);
            ::close(STDERR_FILENO);
            StartingPoint::remember();
            return isNullDevice(0) && isNullDevice(1) && isNullDevice(2) ? 0 : 1;
        }));
    }

    void openDescriptorsStayAndAreInherited()
    {
        verifyExit(statusOfChild([] {
            ::close(STDIN_FILENO);
            struct stat before = {};
            struct stat after = {};
            ::fstat(STDOUT_FILENO, &before);
            int const flags = ::fcntl(STDOUT_FILENO, F_GETFL);
            StartingPoint::remember();
            ::fstat(STDOUT_FILENO, &after);
            bool const same = before.st_ino == after.st_ino && ::fcntl(STDOUT_FILENO, F_GETFL) == flags;
            return same && ::fcntl(STDIN_FILENO, F_GETFD) == 0 ? 0 : 1;
        }));
    }

    void childGetsTheDescriptorsOfTheStart()
    {
        QTemporaryDir const folder;
        QByteArray const name = QFile::encodeName(folder.filePath(QStringLiteral("output")));
        verifyExit(statusOfChild([&name] {
            int const output = ::open(name.constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
            ::dup2(output, STDERR_FILENO);
            StartingPoint::remember();
            int pipes[2];
            if (::pipe(pipes) != 0) {
                return 2;
            }
            ::dup2(pipes[1], STDERR_FILENO);
            StartingPoint::restoreInChild();
            bool const closed = !isOpen(pipes[0]) && !isOpen(pipes[1]) && !isOpen(output);
            return closed && ::write(STDERR_FILENO, "words", 5) == 5 ? 0 : 1;
        }));
        QFile output(QFile::decodeName(name));
        QVERIFY(output.open(QIODevice::ReadOnly));
        QCOMPARE(output.readAll(), QByteArray("words"));
    }

    void childStandsInTheRootAndDirectoryOfTheStart()
    {
        if (::geteuid() != 0) {
            QSKIP("Only root changes its root.");
        }
        QTemporaryDir const folder;
        QByteArray const name = QFile::encodeName(folder.path());
        verifyExit(statusOfChild([&name] {
            if (::chdir(name.constData()) != 0) {
                return 2;
            }
            struct stat const root = status("/");
            struct stat const place = status(".");
            StartingPoint::remember();
            if (::chroot(name.constData()) != 0 || ::chdir("/") != 0 || status("/").st_ino == root.st_ino) {
                return 3;
            }
            StartingPoint::restoreInChild();
            bool const back = status("/").st_ino == root.st_ino && status("/").st_dev == root.st_dev;
            return back && status(".").st_ino == place.st_ino ? 0 : 1;
        }));
    }

    void childGetsNoSignalActionsAndNoMask()
    {
        verifyExit(statusOfChild([] {
            std::signal(SIGPIPE, SIG_IGN);
            std::signal(SIGXFSZ, SIG_IGN);
            sigset_t set;
            sigemptyset(&set);
            sigaddset(&set, SIGCHLD);
            ::sigprocmask(SIG_BLOCK, &set, nullptr);
            StartingPoint::restoreInChild();
            ::sigprocmask(SIG_BLOCK, nullptr, &set);
            bool const open = sigismember(&set, SIGCHLD) == 0;
            return open && std::signal(SIGPIPE, SIG_DFL) == SIG_DFL &&
                           std::signal(SIGXFSZ, SIG_DFL) == SIG_DFL
                       ? 0
                       : 1;
        }));
    }
};

QTEST_GUILESS_MAIN(StartingPointTest)
#include "tst_startingpoint.moc"
