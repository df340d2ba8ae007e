// SPDX-License-Identifier: GPL-2.0-or-later
// Programs that are started and forgotten.
#include "BoxAnswer.h"
#include "Launches.h"
#include "repo/Execute.h"
#include "tests/Eventually.h"

#include <QTest>

#include <array>
#include <cerrno>
#include <csignal>

#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

/// Which fork from now on fails; 0: none. A forked process counts on.
int failingFork = 0;

/// Leads standard error into a file for as long as it lives.
class ErrorOutput
{
public:
    explicit ErrorOutput(QString const& path)
        : file(path),
          saved(::dup(STDERR_FILENO))
    {
        if (file.open(QIODevice::ReadWrite | QIODevice::Truncate))
            ::dup2(file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        ::dup2(saved, STDERR_FILENO);
        ::close(saved);
    }
    ErrorOutput(ErrorOutput const&) = delete;
    ErrorOutput& operator=(ErrorOutput const&) = delete;

    QByteArray text()
    {
        QFile written(file.fileName());
        return written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
    }

private:
    QFile file;
    int saved;
};

void execute(QWidget* parent, QByteArrayList words)
{
    QList<char*> arguments;
    for (QByteArray& word : words)
        arguments += word.data();
    arguments += nullptr;
    Execute::execute(parent, arguments.constData());
}

/// Whether this process has a child, running or not.
bool hasChild()
{
    siginfo_t info;
    return ::waitid(P_ALL, 0, &info, WEXITED | WNOHANG | WNOWAIT) == 0;
}

} // namespace

/// In place of the library's, which has no reason to fail in a test.
extern "C" pid_t fork() noexcept
{
    if (failingFork > 0 && --failingFork == 0) {
        errno = EAGAIN;
        return -1;
    }
    using Fork = pid_t (*)();
    static auto const real = reinterpret_cast<Fork>(::dlsym(RTLD_NEXT, "fork"));
    return real();
}

class TestExecute : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { failingFork = 0; }

    void programGetsItsArgumentsAsTheyAre();
    void nobodyWaitsForTheProgram();
    void programInheritsNothingButTheStandardDescriptors();
    void programIsNotSearchedFor();
    void missingProgramIsToldOnStandardErrorOnly();
    void failingForkIsToldInABox();
    void failingSecondForkIsToldOnStandardErrorOnly();
};

void TestExecute::programGetsItsArgumentsAsTheyAre()
{
    BoxAnswer const boxes;
    Launches launches;
    launches.add(QStringLiteral("program"));
    QByteArrayList const words{
        launches.path(QStringLiteral("program")).toLocal8Bit(), "a b", "$(x)", "", "\xe4*"};
    execute(nullptr, words);
    EVENTUALLY_COMPARE(launches.started(), words);
    QCOMPARE(boxes.texts, QStringList());
}

void TestExecute::nobodyWaitsForTheProgram()
{
    Launches launches;
    // Ends only when the test says so.
    launches.add(
        QStringLiteral("program"), "echo $PPID > parent\nwhile [ ! -e end ]; do sleep 0.05; done\n: > ended");
    execute(nullptr, {launches.path(QStringLiteral("program")).toLocal8Bit()});
    EVENTUALLY_VERIFY(!launches.started().isEmpty());
    QVERIFY(!hasChild());
    QVERIFY(!QFile::exists(launches.path(QStringLiteral("ended"))));

    QFile parent(launches.path(QStringLiteral("parent")));
    EVENTUALLY_VERIFY(parent.size() > 0);
    QVERIFY(parent.open(QIODevice::ReadOnly));
    QVERIFY(parent.readAll().trimmed().toLongLong() != ::getpid());

    QFile end(launches.path(QStringLiteral("end")));
    QVERIFY(end.open(QIODevice::WriteOnly));
    EVENTUALLY_VERIFY(QFile::exists(launches.path(QStringLiteral("ended"))));
}

// As it is while a job runs, which blocks a signal and holds files open that others would wait for.
void TestExecute::programInheritsNothingButTheStandardDescriptors()
{
    Launches const launches;
    QString const told = launches.path(QStringLiteral("told"));
    QByteArray const output = QFile::encodeName(told);
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    sigaddset(&blocked, SIGCHLD);
    ::pthread_sigmask(SIG_BLOCK, &blocked, &before);
    auto* const pipeAction = std::signal(SIGPIPE, SIG_IGN);
    auto* const sizeAction = std::signal(SIGXFSZ, SIG_IGN);
    int const inheritable = ::dup(STDERR_FILENO);
    execute(
        nullptr,
        {"/bin/sh", "-c",
         "{ echo $$; echo $(cut -d' ' -f6 /proc/$$/stat)\n"
         "  grep -E '^Sig(Blk|Ign)' /proc/self/status\n"
         "  for at in /proc/$$/fd/*; do [ -e $at ] && echo ${at##*/}; done } >\"$1\".new; mv \"$1\".new "
         "\"$1\"",
         "sh", output});
    ::close(inheritable);
    std::signal(SIGPIPE, pipeAction);
    std::signal(SIGXFSZ, sizeAction);
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);

    EVENTUALLY_VERIFY(QFile::exists(told));
    QFile file(told);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QByteArrayList lines = file.readAll().trimmed().split('\n');
    QVERIFY(lines.size() > 4);
    QByteArray const process = lines.takeFirst();
    QByteArray const session = lines.takeFirst();
    QVERIFY(session.toLongLong() != ::getsid(0));
    QVERIFY2(session != process, "who leads a session may get a terminal");
    QCOMPARE(lines.takeFirst(), QByteArray("SigBlk:\t0000000000000000"));
    QCOMPARE(lines.takeFirst(), QByteArray("SigIgn:\t0000000000000000"));
    // Where the shell saves its own output lies above 9.
    lines.removeIf([](QByteArray const& line) { return line.toInt() > 9; });
    QCOMPARE(lines, QByteArrayList({"0", "1", "2"}));
}

void TestExecute::programIsNotSearchedFor()
{
    Launches launches;
    ErrorOutput errors(launches.path(QStringLiteral("errors")));
    execute(nullptr, {"true"});
    EVENTUALLY_COMPARE(
        errors.text(), QByteArray("execv(\"true\", ...) failed; errno = 2 (No such file or directory)\n"));
}

void TestExecute::missingProgramIsToldOnStandardErrorOnly()
{
    BoxAnswer const boxes;
    Launches launches;
    ErrorOutput errors(launches.path(QStringLiteral("errors")));
    // However long its name is.
    QByteArray const missing = launches.path(QString(200, u'm')).toLocal8Bit();
    execute(nullptr, {missing, "argument"});
    EVENTUALLY_COMPARE(
        errors.text(), "execv(\"" + missing + "\", ...) failed; errno = 2 (No such file or directory)\n");
    QVERIFY(!hasChild());
    QCOMPARE(boxes.texts, QStringList());
}

void TestExecute::failingForkIsToldInABox()
{
    BoxAnswer const boxes;
    Launches launches;
    launches.add(QStringLiteral("program"));
    QWidget window;
    failingFork = 1;
    execute(&window, {launches.path(QStringLiteral("program")).toLocal8Bit()});
    QCOMPARE(
        boxes.texts, QStringList(QStringLiteral("fork() failed; errno = %1 (%2)")
                                     .arg(EAGAIN)
                                     .arg(QString::fromLocal8Bit(std::strerror(EAGAIN)))));
    QCOMPARE(boxes.captions, QStringList(QStringLiteral("Help")));
    QCOMPARE(boxes.icon, QMessageBox::Critical);
    QCOMPARE(boxes.buttons, QMessageBox::Ok);
    QCOMPARE(boxes.parent, &window);
    QVERIFY(!hasChild());
    QCOMPARE(launches.started(), QByteArrayList());
}

void TestExecute::failingSecondForkIsToldOnStandardErrorOnly()
{
    BoxAnswer const boxes;
    Launches launches;
    launches.add(QStringLiteral("program"));
    ErrorOutput errors(launches.path(QStringLiteral("errors")));
    failingFork = 2;
    execute(nullptr, {launches.path(QStringLiteral("program")).toLocal8Bit()});
    // The process between has ended by now.
    QCOMPARE(
        errors.text(), QByteArray("second fork() failed; errno = ") + QByteArray::number(EAGAIN) + " (" +
                           std::strerror(EAGAIN) + ")\n");
    QVERIFY(!hasChild());
    QCOMPARE(launches.started(), QByteArrayList());
    QCOMPARE(boxes.texts, QStringList());
}

QTEST_MAIN(TestExecute)
#include "tst_execute.moc"
