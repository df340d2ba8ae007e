// SPDX-License-Identifier: GPL-2.0-or-later
// Start, jobs and end of the engine. A process starts its interpreter once, so each function runs in a
// process of its own: without arguments this program starts itself for each.
#include "EngineTest.h"
#include "base/Application.h"

#include <QApplication>
#include <QDir>
#include <QMetaMethod>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>

class TestYumIOLifecycle final : public QObject
{
    Q_OBJECT

public:
    /// Runs a job that never ends, with a helper script that another process has written.
    static int hang(QString const& job);

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void startGivesTheScriptItsSurroundings();
    void secondStartDoesNothing();
    void missingScript();
    void scriptWithASyntaxError();
    void scriptThatRaises();
    void scriptWithoutTheClass();
    void constructorThatExits();
    void constructorThatRaises();
    void failedStartMayBeTriedAgain();
    void missingRpmModule();
    void engineThatNeverStarted();

    void endGivesTheLockBack();
    void endWithoutLockUnlocksNothing();
    void endAfterARefusedLockUnlocksNothing();
    void lockThatCannotBeGivenBackIsReported();
    void streamsArePutBackAtTheEnd();
    void endReleasesThePackages();

    void interruptEndsTheProcessAtOnce_data();
    void interruptEndsTheProcessAtOnce();
    void jobsPutTheInterruptBackToItsDefault();
    void childSignalsGoToTheWorkerAlone();
    void guiThreadWorksOnDuringAJob();
    void jobRunsToItsEndAfterTheEventLoopsWereEnded();
    void failedRenewalLeavesAnEngineThatReports();
    void exitInARenewalIsQuiet();

private:
    /// Writes a helper script that lets go of the lock and behaves like a current release, then does `more`.
    void writeScript(QString const& more = QString());
    void writeText(QString const& text);
    bool start();
    QStringList calls() const;

    QTemporaryDir directory;
    HProgressBar totalBar;
    HProgressBar itemBar;
    std::unique_ptr<Boxes> boxes;
    std::unique_ptr<TestEngine> engine;
};

void TestYumIOLifecycle::initTestCase()
{
    QVERIFY(QDir(directory.path()).mkpath("python"));
    qputenv("VEMSHARE", directory.path().toLocal8Bit());
    boxes = std::make_unique<Boxes>();
    engine = std::make_unique<TestEngine>();
    engine->setup(nullptr, &totalBar, &itemBar);
}

void TestYumIOLifecycle::cleanup()
{
    engine.reset();
    QCOMPARE(boxes->takeTexts(), QStringList());
}

void TestYumIOLifecycle::writeText(QString const& text)
{
    QFile file(directory.filePath("python/YumIO.py"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write(text.toUtf8()) == text.toUtf8().size());
}

void TestYumIOLifecycle::writeScript(QString const& more)
{
    writeText(QStringLiteral("import sys\n"
                             "sys.dont_write_bytecode = True\n"
                             "sys.path.insert(0, '%1')\n"
                             "import standin\n"
                             "standin.install(globals(), standin.Era('3.2.19'))\n"
                             "standin.calls_file = '%2'\n"
                             "%3\n")
                  .arg(QStringLiteral(VEM_TEST_SOURCE "/standins"), directory.filePath("calls"), more));
}

bool TestYumIOLifecycle::start()
{
    return engine->initialize();
}

QStringList TestYumIOLifecycle::calls() const
{
    QFile file(directory.filePath("calls"));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
               : QStringList();
}

void TestYumIOLifecycle::startGivesTheScriptItsSurroundings()
{
    writeScript("import signal, rpm\n"
                "standin.note(repr(sys.argv))\nstandin.note(__file__)\nstandin.note(__name__)\n"
                "standin.note(str(signal.getsignal(signal.SIGINT) is signal.SIG_DFL))");
    QVERIFY(start());
    QCOMPARE(
        calls(),
        (QStringList{
            "['vem', 'info']", directory.filePath("python/YumIO.py"), "__main__", "True", "YumIO()"}));
    struct sigaction action = {};
    QCOMPARE(sigaction(SIGINT, nullptr, &action), 0);
    QVERIFY(action.sa_handler == SIG_DFL);
}

void TestYumIOLifecycle::secondStartDoesNothing()
{
    writeScript("standin.note('script')");
    QVERIFY(start());
    QVERIFY(start());
    QCOMPARE(calls(), (QStringList{"script", "YumIO()"}));
}

void TestYumIOLifecycle::missingScript()
{
    QVERIFY(!start());
    QCOMPARE(
        boxes->take(),
        (QList<Boxes::Box>{{"VEM Yum Error", "Internal error: unable to open YumIO.py", {"OK"}}}));
}

void TestYumIOLifecycle::scriptWithASyntaxError()
{
    writeText("class YumIO(:\n");
    QVERIFY(!start());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unable to execute YumIO.py"});
}

void TestYumIOLifecycle::scriptThatRaises()
{
    writeScript("1/0");
    QVERIFY(!start());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unable to execute YumIO.py"});
    QVERIFY(!engine->logLines(Log::Error).filter("ZeroDivisionError").isEmpty());
}

void TestYumIOLifecycle::scriptWithoutTheClass()
{
    writeScript("del YumIO");
    QVERIFY(!start());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: cannot find python YumIO"});
    // Nothing to renew, then.
    engine->clear();
}

void TestYumIOLifecycle::constructorThatExits()
{
    writeScript("def construct(self):\n"
                "    yumIOC.errorlog(0, 'no configuration')\n"
                "    print('at all', file=sys.stderr)\n"
                "    sys.exit(1)\n"
                "YumIO.__init__ = construct");
    QVERIFY(!start());
    QCOMPARE(
        boxes->take(),
        (QList<Boxes::Box>{{"VEM Yum Error", "no configuration\nat all\nUnable to initialize", {"Close"}}}));
}

void TestYumIOLifecycle::constructorThatRaises()
{
    writeScript("YumIO.__init__ = lambda self: 1/0");
    QVERIFY(!start());
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: cannot create python yumIO"}));
}

void TestYumIOLifecycle::failedStartMayBeTriedAgain()
{
    QVERIFY(!start());
    boxes->take();
    writeScript();
    QVERIFY(start());
    QVERIFY(engine->collect({}));
}

void TestYumIOLifecycle::missingRpmModule()
{
    QDir(directory.path()).mkpath("modules");
    QFile module(directory.filePath("modules/rpm.py"));
    QVERIFY(module.open(QIODevice::WriteOnly));
    module.write("raise ImportError('not here')\n");
    module.close();
    qputenv("PYTHONPATH", directory.filePath("modules").toLocal8Bit());
    qputenv("PYTHONDONTWRITEBYTECODE", "1");
    writeScript();
    QVERIFY(!start());
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: cannot find python rpm module"}));
    QCOMPARE(calls(), QStringList());
}

void TestYumIOLifecycle::engineThatNeverStarted()
{
    engine->clear();
    QCOMPARE(engine->count(), 0);
    engine->error(QStringLiteral("a fault"));
    QCOMPARE(boxes->takeTexts(), QStringList{"a fault"});
}

void TestYumIOLifecycle::endGivesTheLockBack()
{
    writeScript();
    QVERIFY(start());
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
    QVERIFY(start());
    engine.reset();
    QCOMPARE(calls(), QStringList{"YumIO()"});
}

void TestYumIOLifecycle::endAfterARefusedLockUnlocksNothing()
{
    writeScript("standin.fail('lock', standin.LockError('held by 42'))");
    QVERIFY(start());
    QVERIFY(!engine->collect({}));
    engine.reset();
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to obtain yum lock"});
    QCOMPARE(calls(), (QStringList{"YumIO()", "lock"}));
}

void TestYumIOLifecycle::lockThatCannotBeGivenBackIsReported()
{
    writeScript("standin.fail('unlock', standin.LockError('vanished'))");
    QVERIFY(start());
    QVERIFY(engine->collect({}));
    engine.reset();
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "Unable to release yum lock", {"Close"}}}));
}

void TestYumIOLifecycle::streamsArePutBackAtTheEnd()
{
    writeScript("import atexit\n"
                "atexit.register(lambda: standin.note(\n"
                "    str(sys.stdout is sys.__stdout__ and sys.stderr is sys.__stderr__)))");
    QVERIFY(start());
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
    QVERIFY(start());
    QVERIFY(engine->collect({}));
    QVERIFY(engine->count() > 0);
    engine.reset();
    QCOMPARE(calls().constLast(), QStringLiteral("0"));
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
    QTRY_VERIFY_WITH_TIMEOUT(calls().contains("waiting"), 30000);
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
    QVERIFY(start());
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
    QVERIFY(start());
    QVERIFY(engine->collect({}));
    auto const blockedHere = [] {
        sigset_t mask;
        pthread_sigmask(SIG_SETMASK, nullptr, &mask);
        return sigismember(&mask, SIGCHLD) == 1;
    };
    // Whenever it is asked: the transaction begins behind a gate.
    for (int round = 0; round < 50; ++round) {
        QVERIFY(!engine->apply());
        QVERIFY(!blockedHere());
    }
    QCOMPARE(calls().count("TrueFalse"), 50);
    QCOMPARE(calls().count("3"), 50);
    sigset_t child;
    sigemptyset(&child);
    sigaddset(&child, SIGCHLD);
    pthread_sigmask(SIG_BLOCK, &child, nullptr);
    engine->apply();
    QVERIFY(blockedHere());
    pthread_sigmask(SIG_UNBLOCK, &child, nullptr);
}

void TestYumIOLifecycle::guiThreadWorksOnDuringAJob()
{
    writeScript("import threading\n"
                "touched = threading.Event()\n"
                "standin.instead('setupRepos', lambda: standin.note(str(touched.wait(30))))");
    QVERIFY(start());
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
    QVERIFY(start());
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
    QVERIFY(start());
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
    QVERIFY(start());
    engine->script("def construct(self):\n    sys.exit(3)\nYumIO.__init__ = construct");
    // The start expected it, and nothing has replaced that since.
    engine->clear();
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method lock call attemped with NULL self\n"});
}

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    application = &app;
    if (argc == 3 && QByteArray(argv[1]) == "hang") {
        return TestYumIOLifecycle::hang(QString::fromLocal8Bit(argv[2]));
    }
    if (argc > 1) {
        TestYumIOLifecycle test;
        return QTest::qExec(&test, argc, argv);
    }
    int failures = 0;
    QMetaObject const& meta = TestYumIOLifecycle::staticMetaObject;
    for (int at = meta.methodOffset(); at < meta.methodCount(); ++at) {
        QByteArray const name = meta.method(at).name();
        bool const isTest = !name.endsWith("_data") && name != "initTestCase" && name != "cleanup";
        if (isTest && QProcess::execute(app.applicationFilePath(), {QString::fromLatin1(name)}) != 0) {
            ++failures;
        }
    }
    return failures;
}

#include "tst_yumiolifecycle.moc"
