// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "base/Application.h"
#include "services/CaptureSink.h"
#include "services/Log.h"
#include "services/YumIOCapturers.h"
#include "services/YumIOCapturersMinion.h"
#include "services/YumIOCapturersUser.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QSemaphore>
#include <QTemporaryFile>
#include <QTest>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

// While a capture stands, what QtTest prints goes to the capture: nothing is verified meanwhile.

namespace
{

/// Files captured text as the engine does.
class LogSink final : public CaptureSink
{
public:
    void writeStdout(QString const& text) override { log.addStream(text, Log::Output, 0, stdoutBuffer); }
    void writeStderr(QString const& text) override { log.addStream(text, Log::Error, 0, stderrBuffer); }
    void error(QString const& text) override { errors.append(text); }

    QStringList lines(Log::Kind kind)
    {
        QMutexLocker<QMutex> const locker(&log);
        QStringList result;
        for (Log::Entry const& entry : std::as_const(log)) {
            if (entry.kind == kind) {
                result.append(entry.text);
            }
        }
        return result;
    }
    QStringList output() { return lines(Log::Output); }

    Log::EntryList log;
    QString stdoutBuffer;
    QString stderrBuffer;
    QStringList errors;
};

/// Stays in its first call for a while, to see whether another thread comes in meanwhile.
class SlowSink final : public CaptureSink
{
public:
    void writeStdout(QString const& text) override
    {
        if (calls++ == 0) {
            entered.release();
            overlapped = secondCall.tryAcquire(1, 200);
        } else {
            secondCall.release();
        }
        received += text;
    }
    void writeStderr(QString const&) override {}
    void error(QString const&) override {}

    QSemaphore entered;
    QSemaphore secondCall;
    std::atomic<int> calls = 0;
    bool overlapped = false;
    QString received;
};

void put(int fd, QByteArray const& bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        ssize_t const count = ::write(fd, bytes.constData() + written, size_t(bytes.size() - written));
        if (count <= 0) {
            return;
        }
        written += count;
    }
}

void shell(char const* command)
{
    static_cast<void>(!std::system(command));
}

bool sameFile(struct stat const& one, struct stat const& other)
{
    return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

struct stat statOf(int fd)
{
    struct stat result = {};
    ::fstat(fd, &result);
    return result;
}

QStringList openDescriptors()
{
    return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System, QDir::Name);
}

void serveDeferredDeletes()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestYumIOCapturers final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void childrensOutputReachesTheLog();
    void lastLineWithoutLineFeedIsNotFiled();
    void outputOfTheLastMomentIsThereWhenTheGuardIsGone();
    void textThatStdioHoldsIsNotLost();
    void drainingBringsWhatWasWrittenBefore();
    void captureMayEndBeforeTheEventLoopTurns();
    void moreThanAPipeHoldsArrivesInOrder();
    void linesStayInOrderWhileTwoThreadsRead();
    void piecesAreHandedOverOneAtATime();
    void descriptorsLeadBackAfterwards();
    void nothingStaysOpen();
    void guardsRestoreTheMember();

    void characterMayBeCutByTheEndOfAPiece();
    void brokenBytesDoNotStopTheStream();
    void lateChildHangsNothing();
    void childThatNeverStopsWritingHangsNothing();
    void endDoesNotWaitForListenersOfTheLog();

    void failureToOpenThePipesIsReported_data();
    void failureToOpenThePipesIsReported();
    void failureToRestoreIsReportedAndTheReaderStays();

private:
    struct stat stdoutBefore = {};
    struct stat stderrBefore = {};
};

void TestYumIOCapturers::initTestCase()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    stdoutBefore = statOf(STDOUT_FILENO);
    stderrBefore = statOf(STDERR_FILENO);
}

void TestYumIOCapturers::cleanup()
{
    serveDeferredDeletes();
    QVERIFY(sameFile(statOf(STDOUT_FILENO), stdoutBefore));
    QVERIFY(sameFile(statOf(STDERR_FILENO), stderrBefore));
}

void TestYumIOCapturers::childrensOutputReachesTheLog()
{
    LogSink sink;
    runOnWorker([&] {
        YumIOCapturers const capturers(&sink);
        shell("echo to output; echo to error >&2; echo to output again");
    });
    QCOMPARE(sink.output(), QStringList({QStringLiteral("to output"), QStringLiteral("to output again")}));
    QCOMPARE(sink.lines(Log::Error), QStringList(QStringLiteral("to error")));
    QVERIFY(sink.errors.isEmpty());
}

void TestYumIOCapturers::lastLineWithoutLineFeedIsNotFiled()
{
    LogSink sink;
    runOnWorker([&] {
        YumIOCapturers const capturers(&sink);
        shell("printf 'complete\\nincomplete'");
    });
    serveDeferredDeletes();
    QCOMPARE(sink.output(), QStringList(QStringLiteral("complete")));
    QCOMPARE(sink.stdoutBuffer, QStringLiteral("incomplete"));
}

void TestYumIOCapturers::outputOfTheLastMomentIsThereWhenTheGuardIsGone()
{
    LogSink sink;
    QStringList whenGone;
    runOnWorker([&] {
        {
            YumIOCapturers const capturers(&sink);
            put(STDOUT_FILENO, "first\n");
            shell("echo last");
        }
        whenGone = sink.output();
    });
    QCOMPARE(whenGone, QStringList({QStringLiteral("first"), QStringLiteral("last")}));
}

void TestYumIOCapturers::textThatStdioHoldsIsNotLost()
{
    LogSink sink;
    QStringList whenGone;
    runOnWorker([&] {
        {
            YumIOCapturers const capturers(&sink);
            std::fputs("through stdio\n", stdout);
        }
        whenGone = sink.output();
    });
    QCOMPARE(whenGone, QStringList(QStringLiteral("through stdio")));
}

void TestYumIOCapturers::drainingBringsWhatWasWrittenBefore()
{
    LogSink sink;
    QStringList drained;
    QStringList errorsDrained;
    // The reader's own thread, which has no event loop yet, reads nothing meanwhile.
    {
        YumIOCapturers capturers(&sink);
        put(STDOUT_FILENO, "first\n");
        put(STDERR_FILENO, "fault\n");
        std::fputs("through stdio\n", stdout);
        capturers.drain();
        drained = sink.output();
        errorsDrained = sink.lines(Log::Error);
        put(STDOUT_FILENO, "after\n");
    }
    serveDeferredDeletes();
    QCOMPARE(drained, QStringList({QStringLiteral("first"), QStringLiteral("through stdio")}));
    QCOMPARE(errorsDrained, QStringList(QStringLiteral("fault")));
    QCOMPARE(sink.output().constLast(), QStringLiteral("after"));
}

void TestYumIOCapturers::captureMayEndBeforeTheEventLoopTurns()
{
    LogSink sink;
    {
        YumIOCapturers const capturers(&sink);
        put(STDOUT_FILENO, "failed at once\n");
    }
    serveDeferredDeletes();
    QCOMPARE(sink.output(), QStringList(QStringLiteral("failed at once")));
}

void TestYumIOCapturers::moreThanAPipeHoldsArrivesInOrder()
{
    LogSink sink;
    runOnWorker([&] {
        YumIOCapturers const capturers(&sink);
        shell("seq 1 100000");
    });
    QStringList const lines = sink.output();
    QCOMPARE(lines.size(), 100'000);
    for (int line = 0; line < lines.size(); ++line) {
        QCOMPARE(lines.at(line), QString::number(line + 1));
    }
}

void TestYumIOCapturers::linesStayInOrderWhileTwoThreadsRead()
{
    LogSink sink;
    int expected = 0;
    for (int round = 0; round < 50; ++round) {
        runOnWorker([&] {
            YumIOCapturers const capturers(&sink);
            for (int line = 0; line < 2000; ++line) {
                put(STDOUT_FILENO, QByteArray::number(expected++) + '\n');
            }
        });
    }
    QStringList const lines = sink.output();
    QCOMPARE(lines.size(), expected);
    for (int line = 0; line < lines.size(); ++line) {
        QCOMPARE(lines.at(line), QString::number(line));
    }
}

void TestYumIOCapturers::piecesAreHandedOverOneAtATime()
{
    SlowSink sink;
    runOnWorker([&] {
        YumIOCapturers const capturers(&sink);
        put(STDOUT_FILENO, "first\n");
        sink.entered.acquire();
        put(STDOUT_FILENO, "second\n");
    });
    QVERIFY(!sink.overlapped);
    QCOMPARE(sink.received, QStringLiteral("first\nsecond\n"));
}

void TestYumIOCapturers::descriptorsLeadBackAfterwards()
{
    LogSink sink;
    struct stat during = {};
    struct stat after = {};
    runOnWorker([&] {
        {
            YumIOCapturers const capturers(&sink);
            during = statOf(STDOUT_FILENO);
        }
        after = statOf(STDOUT_FILENO);
    });
    QVERIFY(S_ISFIFO(during.st_mode));
    QVERIFY(!sameFile(during, stdoutBefore));
    QVERIFY(sameFile(after, stdoutBefore));
}

void TestYumIOCapturers::nothingStaysOpen()
{
    LogSink sink;
    runOnWorker([&] { YumIOCapturers const capturers(&sink); });
    serveDeferredDeletes();
    QStringList const before = openDescriptors();
    for (int round = 0; round < 5; ++round) {
        runOnWorker([&] {
            YumIOCapturers const capturers(&sink);
            put(STDOUT_FILENO, "line\n");
        });
        serveDeferredDeletes();
    }
    QCOMPARE(openDescriptors(), before);
}

void TestYumIOCapturers::guardsRestoreTheMember()
{
    LogSink sink;
    YumIOCapturers* member = nullptr;
    bool installed = false;
    runOnWorker([&] {
        YumIOCapturersUser const user(member, &sink);
        installed = member != nullptr;
        put(STDOUT_FILENO, "captured\n");
    });
    QVERIFY(installed);
    QVERIFY(!member);
    QCOMPARE(sink.output(), QStringList(QStringLiteral("captured")));
}

void TestYumIOCapturers::characterMayBeCutByTheEndOfAPiece()
{
    LogSink sink;
    int out[2];
    int err[2];
    QVERIFY(::pipe2(out, O_CLOEXEC | O_NONBLOCK) == 0);
    QVERIFY(::pipe2(err, O_CLOEXEC | O_NONBLOCK) == 0);
    {
        YumIOCapturersMinion minion(&sink, out[0], err[0]);
        put(out[1], "caf\xc3");
        put(err[1], "\xe2\x82");
        minion.readStdout();
        minion.readStderr();
        put(out[1], "\xa9\n");
        put(err[1], "\xac\n");
        minion.readStdout();
        minion.readStderr();
    }
    ::close(out[1]);
    ::close(err[1]);
    QCOMPARE(sink.output(), QStringList(QString::fromUtf8("caf\xc3\xa9")));
    QCOMPARE(sink.lines(Log::Error), QStringList(QString::fromUtf8("\xe2\x82\xac")));
}

void TestYumIOCapturers::brokenBytesDoNotStopTheStream()
{
    LogSink sink;
    runOnWorker([&] {
        YumIOCapturers const capturers(&sink);
        put(STDOUT_FILENO, QByteArray("bad \xff byte\nzero \0 byte\ngood\n", 28));
    });
    QStringList const lines = sink.output();
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.at(0), QStringLiteral("bad \ufffd byte"));
    QCOMPARE(lines.at(1).size(), 11);
    QCOMPARE(lines.at(2), QStringLiteral("good"));
}

/// A daemon that a scriptlet has started still holds the write end when the transaction is over.
void TestYumIOCapturers::lateChildHangsNothing()
{
    LogSink sink;
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    {
        YumIOCapturers const capturers(&sink);
        child.start(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("echo early; read x; echo late")});
        child.waitForStarted();
        while (sink.output().isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
    }
    serveDeferredDeletes();
    QCOMPARE(sink.output(), QStringList(QStringLiteral("early")));
    QCOMPARE(child.state(), QProcess::Running);
    child.write("go on\n");
    child.closeWriteChannel();
    QVERIFY(child.waitForFinished(10000));
    QCOMPARE(sink.output(), QStringList(QStringLiteral("early")));
}

void TestYumIOCapturers::childThatNeverStopsWritingHangsNothing()
{
    LogSink sink;
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedChannels);
    {
        YumIOCapturers const capturers(&sink);
        child.start(QStringLiteral("yes"), {QStringLiteral("again")});
        child.waitForStarted();
        while (sink.output().isEmpty()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 100);
        }
    }
    serveDeferredDeletes();
    QVERIFY(child.waitForFinished(10000));
    QCOMPARE(sink.output().constFirst(), QStringLiteral("again"));
}

/// A listener on the GUI thread may run an event loop, and that may need what the worker holds.
void TestYumIOCapturers::endDoesNotWaitForListenersOfTheLog()
{
    LogSink sink;
    QSemaphore listening;
    QSemaphore captureEnded;
    std::atomic<bool> endedMeanwhile = false;
    bool first = true;
    connect(&sink.log, &Log::EntryList::appended, this, [&] {
        if (first) {
            first = false;
            listening.release();
            endedMeanwhile = captureEnded.tryAcquire(1, 10000);
        }
    });
    runOnWorker([&] {
        {
            YumIOCapturers const capturers(&sink);
            put(STDOUT_FILENO, "first\n");
            listening.acquire();
            put(STDOUT_FILENO, "second\n");
        }
        captureEnded.release();
    });
    QVERIFY(endedMeanwhile);
    QCOMPARE(sink.output(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
}

void TestYumIOCapturers::failureToOpenThePipesIsReported_data()
{
    QTest::addColumn<int>("descriptorsLeft");
    QTest::newRow("no duplicates either") << 0;
    QTest::newRow("first pipe") << 3;
    QTest::newRow("second pipe") << 5;
}

void TestYumIOCapturers::failureToOpenThePipesIsReported()
{
    QFETCH(int, descriptorsLeft);
    LogSink sink;
    serveDeferredDeletes();
    QStringList const before = openDescriptors();

    // Fill the gaps below the highest descriptor, so that the limit counts what is left above it.
    QList<int> fillers;
    int highest = 0;
    for (QString const& name : before) {
        highest = std::max(highest, name.toInt());
    }
    int next = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    while (next < highest) {
        fillers.append(next);
        next = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    }
    ::close(next);

    rlimit old = {};
    QVERIFY(::getrlimit(RLIMIT_NOFILE, &old) == 0);
    rlimit const tight = {rlim_t(next) + rlim_t(descriptorsLeft), old.rlim_max};
    ::setrlimit(RLIMIT_NOFILE, &tight);
    {
        YumIOCapturers const capturers(&sink);
    }
    ::setrlimit(RLIMIT_NOFILE, &old);
    for (int const fd : std::as_const(fillers)) {
        ::close(fd);
    }
    QCOMPARE(
        sink.errors, QStringList(QStringLiteral("Unable to open pipe to capture rpm transaction output")));
    QCOMPARE(openDescriptors(), before);
}

void TestYumIOCapturers::failureToRestoreIsReportedAndTheReaderStays()
{
    // The reader goes on for the rest of the process, and so does what it writes to.
    static LogSink sink;
    QTemporaryFile terminal;
    QVERIFY(terminal.open());
    struct stat const terminalFile = statOf(terminal.handle());
    int const original = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3);
    std::fflush(stdout);
    ::dup2(terminal.handle(), STDOUT_FILENO);
    {
        YumIOCapturers const capturers(&sink);
        for (QString const& name : openDescriptors()) {
            int const fd = name.toInt();
            if (fd > STDERR_FILENO && fd != terminal.handle() && sameFile(statOf(fd), terminalFile)) {
                ::close(fd);
            }
        }
    }
    put(STDOUT_FILENO, "still captured\n");
    bool const stillRead = QTest::qWaitFor([] { return !sink.output().isEmpty(); });
    ::dup2(original, STDOUT_FILENO);
    ::close(original);
    QVERIFY(stillRead);
    QCOMPARE(sink.errors, QStringList(QStringLiteral("Unable to dup2 to restore stderr")));
    QCOMPARE(sink.output(), QStringList(QStringLiteral("still captured")));
}

QTEST_MAIN(TestYumIOCapturers)
#include "tst_yumiocapturers.moc"
