// SPDX-License-Identifier: GPL-2.0-or-later
#include "LifecycleTest.h"
#include "base/Application.h"
#include "engine/WorkThreads.h"
#include "tests/Eventually.h"

#include <QApplication>
#include <QProcess>
#include <QSemaphore>
#include <QTimer>
#include <csignal>

class TestYumIOLifecycle final : public LifecycleTest
{
    Q_OBJECT

public:
    /// Runs a job that never ends, with a helper script that another process has written.
    static int hang(QString const& job);

private Q_SLOTS:
    void endGivesTheLockBack();
    void endWithoutLockUnlocksNothing();
    void endAfterARefusedLockUnlocksNothing();
    void lockThatCannotBeGivenBackIsReported();
    void streamsArePutBackAtTheEnd();
    void endReleasesThePackages();
    void exitHandlersFindNoEngine();

    void interruptEndsTheProcessAtOnce_data();
    void interruptEndsTheProcessAtOnce();
    void jobsPutTheInterruptBackToItsDefault();
    void childSignalsGoToTheWorkerAlone();
    void transactionWaitsAtTheGate();
    void guiThreadWorksOnDuringAJob();
    void jobRunsToItsEndAfterTheEventLoopsWereEnded();
    void failedRenewalLeavesAnEngineThatReports();
    void exitInARenewalIsQuiet();
    void renewalServesEvents();
};

void TestYumIOLifecycle::endGivesTheLockBack()
{
    writeScript();
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    engine->clear();
    QVERIFY(engine->collect({}));
    engine.reset();
    QCOMPARE(calls().count("lock"), 1);
    QCOMPARE(calls().count("unlock"), 1);
    QCOMPARE(calls().constLast(), QStringLiteral("unlock"));
}

void TestYumIOLifecycle::endWithoutLockUnlocksNothing()
{
    writeScript();
    QVERIFY(engine->initialize());
    engine.reset();
    QCOMPARE(calls(), QStringList{"YumIO()"});
}

void TestYumIOLifecycle::endAfterARefusedLockUnlocksNothing()
{
    writeScript("standin.fail('lock', standin.LockError('held by 42'))");
    QVERIFY(engine->initialize());
    QVERIFY(!engine->collect({}));
    engine.reset();
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to obtain yum lock"});
    QCOMPARE(calls(), (QStringList{"YumIO()", "lock"}));
}

void TestYumIOLifecycle::lockThatCannotBeGivenBackIsReported()
{
    writeScript("standin.fail('unlock', standin.LockError('vanished'))");
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    engine.reset();
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "Unable to release yum lock", {"Close"}}}));
}

void TestYumIOLifecycle::streamsArePutBackAtTheEnd()
{
    writeScript("import atexit\n"
                "atexit.register(lambda: standin.note(\n"
                "    str(sys.stdout is sys.__stdout__ and sys.stderr is sys.__stderr__)))");
    QVERIFY(engine->initialize());
    engine.reset();
    QCOMPARE(calls().constLast(), QStringLiteral("True"));
}

void TestYumIOLifecycle::endReleasesThePackages()
{
    writeScript("import atexit, gc\n"
                "from standinpackages import Package\n"
                "def count():\n"
                "    standin.world = standin.namespace = None\n"
                "    gc.collect()\n"
                "    standin.note(str(sum(isinstance(one, Package) for one in gc.get_objects())))\n"
                "atexit.register(count)");
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    QVERIFY(engine->count() > 0);
    engine.reset();
    QCOMPARE(calls().constLast(), QStringLiteral("0"));
}

void TestYumIOLifecycle::exitHandlersFindNoEngine()
{
    writeScript("import atexit\n"
                "def leave():\n"
                "    try:\n"
                "        yumIOC.log(0, 'too late')\n"
                "    except RuntimeError as error:\n"
                "        standin.note('refused')\n"
                "atexit.register(leave)");
    QVERIFY(engine->initialize());
    engine.reset();
    QCOMPARE(calls().constLast(), QStringLiteral("refused"));
}

int TestYumIOLifecycle::hang(QString const& job)
{
    TestEngine engine;
    HProgressBar total;
    HProgressBar item;
    engine.setup(nullptr, &total, &item);
    if (!engine.initialize() || !engine.collect({})) {
        return 1;
    }
    return job == QLatin1String("apply") ? engine.apply() : engine.collectFileLists();
}

void TestYumIOLifecycle::interruptEndsTheProcessAtOnce_data()
{
    QTest::addColumn<QString>("job");
    QTest::addColumn<QString>("wait");
    QTest::newRow("loading, waiting") << "collectFileLists"
                                      << "import time; time.sleep(200)";
    QTest::newRow("loading, computing") << "collectFileLists"
                                        << "while True: pass";
    QTest::newRow("applying, waiting") << "apply"
                                       << "import time; time.sleep(200)";
    QTest::newRow("applying, asking") << "apply"
                                      << "yumIOC.userconfirm()";
}

void TestYumIOLifecycle::interruptEndsTheProcessAtOnce()
{
    QFETCH(QString, job);
    QFETCH(QString, wait);
    QFile::remove(directory.filePath("calls"));
    writeScript(QStringLiteral("def wait(*lists):\n"
                               "    standin.note('waiting')\n"
                               "    %2\n"
                               "standin.instead('%1', wait)")
                    .arg(job, wait));
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(), {"hang", job});
    QVERIFY(process.waitForStarted());
    EVENTUALLY_VERIFY_WITHIN(calls().contains("waiting"), 30000);
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), SIGINT), 0);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit);
    QCOMPARE(process.exitCode(), SIGINT);
    QVERIFY(!calls().contains("unlock"));
    QCOMPARE(calls().constLast(), QStringLiteral("waiting"));
}

void TestYumIOLifecycle::jobsPutTheInterruptBackToItsDefault()
{
    writeScript("import signal\nsignal.signal(signal.SIGINT, signal.default_int_handler)");
    QVERIFY(engine->initialize());
    QCOMPARE(engine->value("signal.getsignal(signal.SIGINT) is signal.SIG_DFL"), QStringLiteral("False"));
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->value("signal.getsignal(signal.SIGINT) is signal.SIG_DFL"), QStringLiteral("True"));
}

void TestYumIOLifecycle::childSignalsGoToTheWorkerAlone()
{
    writeScript("import os, signal, threading\n"
                "def blocked(thread):\n"
                "    with open(f'/proc/self/task/{thread}/status') as status:\n"
                "        mask = next(line for line in status if line.startswith('SigBlk:'))\n"
                "    return bool(int(mask.split()[1], 16) >> (signal.SIGCHLD - 1) & 1)\n"
                "def apply(*lists):\n"
                "    standin.note(str(blocked(os.getpid())) + str(blocked(threading.get_native_id())))\n"
                "    standin.note(str(os.system('exit 3') >> 8))\n"
                "standin.instead('apply', apply)");
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    auto const blockedHere = [] {
        sigset_t mask;
        pthread_sigmask(SIG_SETMASK, nullptr, &mask);
        return sigismember(&mask, SIGCHLD) == 1;
    };
    for (int round = 0; round < 5; ++round) {
        QVERIFY(!engine->apply());
        QVERIFY(!blockedHere());
    }
    QCOMPARE(calls().count("TrueFalse"), 5);
    QCOMPARE(calls().count("3"), 5);
    sigset_t child;
    sigemptyset(&child);
    sigaddset(&child, SIGCHLD);
    pthread_sigmask(SIG_BLOCK, &child, nullptr);
    engine->apply();
    QVERIFY(blockedHere());
    pthread_sigmask(SIG_UNBLOCK, &child, nullptr);
}

void TestYumIOLifecycle::transactionWaitsAtTheGate()
{
    writeScript("standin.instead('apply', lambda *lists: None)");
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    QSemaphore begun;
    connect(
        &engine->logEntries, &Log::EntryList::appended, this, [&] { begun.release(); }, Qt::DirectConnection);
    QEventLoop loop;
    ApplyThread thread(engine.get(), loop, YumIO::ApplyOf::Marks);
    engine->jobs.blocker.prepare();
    thread.start();
    // Long enough for any worker that doesn't wait.
    QVERIFY(!begun.tryAcquire(1, 300));
    QVERIFY(!calls().contains("apply"));
    engine->jobs.blocker.release();
    EVENTUALLY_VERIFY(thread.isFinished());
    QVERIFY2(!thread.result, "nobody was asked");
    QVERIFY(calls().contains("apply"));
}

void TestYumIOLifecycle::guiThreadWorksOnDuringAJob()
{
    writeScript("import threading\n"
                "touched = threading.Event()\n"
                "standin.instead('setupRepos', lambda: standin.note(str(touched.wait(30))))");
    QVERIFY(engine->initialize());
    QTimer timer;
    // The worker holds the interpreter, but lets go of it where it waits.
    connect(&timer, &QTimer::timeout, this, [this] { engine->script("touched.set()"); });
    timer.start(1);
    QVERIFY(engine->collect({}));
    QVERIFY(calls().contains("True"));
}

void TestYumIOLifecycle::jobRunsToItsEndAfterTheEventLoopsWereEnded()
{
    writeScript("import threading\n"
                "ended = threading.Event()\n"
                "def wait():\n"
                "    ended.wait(30)\n"
                "    yumIOC.collectProgress(1, 2, 3)\n"
                "    standin.note('went on')\n"
                "standin.instead('setupRepos', wait)");
    QVERIFY(engine->initialize());
    QTimer::singleShot(0, this, [this] {
        QCoreApplication::exit(0);
        engine->script("ended.set()");
    });
    QVERIFY(engine->collect({}));
    QVERIFY(calls().contains("went on"));
    QCOMPARE(engine->count(), 12);
    boxes->take();
}

void TestYumIOLifecycle::failedRenewalLeavesAnEngineThatReports()
{
    writeScript();
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    engine->script("YumIO.__init__ = lambda self: 1/0");
    engine->clear();
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: yumIO.repos.repos not evaluable"});
    QVERIFY(!engine->apply());
    QVERIFY(!engine->collectFileLists());
    QVERIFY(!engine->cleanAll());
    boxes->take();
    engine->clear();
    boxes->take();
    engine.reset();
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method unlock call attemped with NULL self\n"});
}

void TestYumIOLifecycle::exitInARenewalIsQuiet()
{
    writeScript();
    QVERIFY(engine->initialize());
    engine->script("def construct(self):\n    sys.exit(3)\nYumIO.__init__ = construct");
    // The start expected it, and nothing has replaced that since.
    engine->clear();
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method lock call attemped with NULL self\n"});
}

void TestYumIOLifecycle::renewalServesEvents()
{
    writeScript();
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
    QString const gate = directory.filePath("gate");
    engine->script(QStringLiteral("import os, time\n"
                                  "construct = YumIO.__init__\n"
                                  "def wait(self):\n"
                                  "    end = time.monotonic() + 20\n"
                                  "    while not os.path.exists('%1') and time.monotonic() < end:\n"
                                  "        time.sleep(0.01)\n"
                                  "    standin.note(str(os.path.exists('%1')))\n"
                                  "    construct(self)\n"
                                  "YumIO.__init__ = wait")
                       .arg(gate));
    QTimer::singleShot(0, this, [&gate] { QVERIFY(QFile(gate).open(QIODevice::WriteOnly)); });
    engine->clear();
    QCOMPARE(calls().filter("True").size(), 1);
    QVERIFY(engine->collect({}));
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "hang") {
        application = &app;
        return TestYumIOLifecycle::hang(QString::fromLocal8Bit(argv[2]));
    }
    TestYumIOLifecycle test;
    return LifecycleTest::runAlone(test, argc, argv);
}

#include "tst_yumiolifecycle.moc"
