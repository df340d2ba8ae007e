// SPDX-License-Identifier: GPL-2.0-or-later
#include "LifecycleTest.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTimer>
#include <csignal>

#include <unistd.h>

class TestYumIOStart final : public LifecycleTest
{
    Q_OBJECT

private Q_SLOTS:
    void startGivesTheScriptItsSurroundings();
    void secondStartDoesNothing();
    void preloadingServesEvents();
    void failedPreloadIsLeftToTheScript();
    void missingScript();
    void scriptWithASyntaxError();
    void scriptThatRaises();
    void scriptWithoutTheClass();
    void constructorThatExits();
    void constructorThatRaises();
    void failedStartMayBeTriedAgain();
    void missingRpmModule();
    void engineThatNeverStarted();
    void scriptThatDoesNotKnowWhetherOneCanOnlyLook();
    void changeableSystemIsNotAskedAbout();
    void unchangeableSystemIsOfferedForLooking();
    void questionThatFailsIsNoObstacle();
    void scriptThatDoesNotTellItsLibrary();
    void scriptTellsItsLibrary();
    void libraryThatCannotBeToldIsNoObstacle();
};

void TestYumIOStart::startGivesTheScriptItsSurroundings()
{
    writeScript("import signal, rpm\n"
                "standin.note(repr(sys.argv))\nstandin.note(__file__)\nstandin.note(__name__)\n"
                "standin.note(str(signal.getsignal(signal.SIGINT) is signal.SIG_DFL))");
    QVERIFY(engine->initialize());
    QCOMPARE(
        calls(),
        (QStringList{
            "['vem', 'info']", directory.filePath("python/YumIO.py"), "__main__", "True", "YumIO()"}));
    struct sigaction action = {};
    QCOMPARE(sigaction(SIGINT, nullptr, &action), 0);
    QVERIFY(action.sa_handler == SIG_DFL);
}

void TestYumIOStart::secondStartDoesNothing()
{
    writeScript("standin.note('script')");
    QVERIFY(engine->initialize());
    QVERIFY(engine->initialize());
    QCOMPARE(calls(), (QStringList{"script", "YumIO()"}));
}

void TestYumIOStart::preloadingServesEvents()
{
    writeScript("standin.note(str(preloaded))");
    QString const gate = directory.filePath("gate");
    QFile preload(directory.filePath("python/preload.py"));
    QVERIFY(preload.open(QIODevice::WriteOnly));
    preload.write(QStringLiteral("import os, threading, time, __main__\n"
                                 "end = time.monotonic() + 20\n"
                                 "while not os.path.exists('%1') and time.monotonic() < end:\n"
                                 "    time.sleep(0.01)\n"
                                 "__main__.preloaded = (\n"
                                 "    os.path.exists('%1'),\n"
                                 "    threading.current_thread() is threading.main_thread(),\n"
                                 "    os.path.basename(__file__), 'YumIO' in globals())\n")
                      .arg(gate)
                      .toUtf8());
    preload.close();
    QTimer::singleShot(0, this, [&gate] { QVERIFY(QFile(gate).open(QIODevice::WriteOnly)); });
    QVERIFY(engine->initialize());
    QCOMPARE(calls(), (QStringList{"(True, False, 'preload.py', False)", "YumIO()"}));
    QVERIFY(preload.remove());
}

void TestYumIOStart::failedPreloadIsLeftToTheScript()
{
    writeScript();
    QFile preload(directory.filePath("python/preload.py"));
    QVERIFY(preload.open(QIODevice::WriteOnly));
    preload.write("import no_such_module\n");
    preload.close();
    QVERIFY(engine->initialize());
    QCOMPARE(calls(), QStringList{"YumIO()"});
    QVERIFY(engine->collect({}));
    QVERIFY(preload.remove());
}

void TestYumIOStart::missingScript()
{
    QVERIFY(!engine->initialize());
    QCOMPARE(
        boxes->take(),
        (QList<Boxes::Box>{{"VEM Yum Error", "Internal error: unable to open YumIO.py", {"OK"}}}));
}

void TestYumIOStart::scriptWithASyntaxError()
{
    writeText("class YumIO(:\n");
    // The script is what leads errors into the log; before it runs, they go to the terminal.
    QFile terminal(directory.filePath("terminal"));
    QVERIFY(terminal.open(QIODevice::ReadWrite | QIODevice::Truncate));
    int const saved = ::dup(STDERR_FILENO);
    ::dup2(terminal.handle(), STDERR_FILENO);
    bool const started = engine->initialize();
    ::dup2(saved, STDERR_FILENO);
    ::close(saved);
    QVERIFY(!started);
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unable to execute YumIO.py"});
    QVERIFY(terminal.seek(0));
    QByteArray const traceback = terminal.readAll();
    QVERIFY2(traceback.contains("line 1\n    class YumIO(:"), traceback.constData());
    QVERIFY2(traceback.contains("SyntaxError: "), traceback.constData());
}

void TestYumIOStart::scriptThatRaises()
{
    writeScript("1/0");
    QVERIFY(!engine->initialize());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unable to execute YumIO.py"});
    QVERIFY(!engine->logLines(Log::Error).filter("ZeroDivisionError").isEmpty());
}

void TestYumIOStart::scriptWithoutTheClass()
{
    writeScript("del YumIO");
    QVERIFY(!engine->initialize());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: cannot find python YumIO"});
    // Nothing to renew, then.
    engine->clear();
}

void TestYumIOStart::constructorThatExits()
{
    writeScript("def construct(self):\n"
                "    yumIOC.errorlog(0, 'no configuration')\n"
                "    print('at all', file=sys.stderr)\n"
                "    sys.exit(1)\n"
                "YumIO.__init__ = construct");
    QVERIFY(!engine->initialize());
    QCOMPARE(
        boxes->take(),
        (QList<Boxes::Box>{{"VEM Yum Error", "no configuration\nat all\nUnable to initialize", {"Close"}}}));
}

void TestYumIOStart::constructorThatRaises()
{
    writeScript("YumIO.__init__ = lambda self: 1/0");
    QVERIFY(!engine->initialize());
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: cannot create python yumIO"}));
}

void TestYumIOStart::failedStartMayBeTriedAgain()
{
    QVERIFY(!engine->initialize());
    boxes->take();
    writeScript();
    QVERIFY(engine->initialize());
    QVERIFY(engine->collect({}));
}

void TestYumIOStart::missingRpmModule()
{
    QDir(directory.path()).mkpath("modules");
    QFile module(directory.filePath("modules/rpm.py"));
    QVERIFY(module.open(QIODevice::WriteOnly));
    module.write("raise ImportError('not here')\n");
    module.close();
    qputenv("PYTHONPATH", directory.filePath("modules").toLocal8Bit());
    qputenv("PYTHONDONTWRITEBYTECODE", "1");
    writeScript();
    QVERIFY(!engine->initialize());
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: cannot find python rpm module"}));
    QCOMPARE(calls(), QStringList());
}

void TestYumIOStart::engineThatNeverStarted()
{
    engine->clear();
    QCOMPARE(engine->count(), 0);
    engine->error(QStringLiteral("a fault"));
    QCOMPARE(boxes->takeTexts(), QStringList{"a fault"});
}

void TestYumIOStart::scriptThatDoesNotKnowWhetherOneCanOnlyLook()
{
    QVERIFY(engine->offerLooking());
    writeScript();
    QVERIFY(engine->initialize());
    QVERIFY(engine->offerLooking());
}

void TestYumIOStart::changeableSystemIsNotAskedAbout()
{
    writeScript("def whyOnlyLooking():\n    standin.note('why')");
    QVERIFY(engine->initialize());
    QVERIFY(engine->offerLooking());
    QCOMPARE(calls(), (QStringList{"YumIO()", "why"}));
}

void TestYumIOStart::unchangeableSystemIsOfferedForLooking()
{
    writeScript("whyOnlyLooking = lambda: 'The trees are painted.'");
    QVERIFY(engine->initialize());
    for (auto const& [press, goesOn] : {std::pair{"Look", true}, {"Quit", false}, {"Escape", false}}) {
        boxes->press({press});
        QCOMPARE(engine->offerLooking(), goesOn);
        QCOMPARE(
            boxes->take(),
            (QList<Boxes::Box>{{"VEM Looking Only", "The trees are painted.", {"Look", "Quit"}}}));
    }
}

void TestYumIOStart::questionThatFailsIsNoObstacle()
{
    writeScript("whyOnlyLooking = lambda: 1/0");
    QVERIFY(engine->initialize());
    QVERIFY(engine->offerLooking());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
}

void TestYumIOStart::scriptThatDoesNotTellItsLibrary()
{
    QCOMPARE(engine->packageLibrary(), QString());
    writeScript();
    QVERIFY(engine->initialize());
    QCOMPARE(engine->packageLibrary(), QString());
}

void TestYumIOStart::scriptTellsItsLibrary()
{
    writeScript("packageLibrary = lambda: 'pantry 3.4'");
    QVERIFY(engine->initialize());
    QCOMPARE(engine->packageLibrary(), QStringLiteral("pantry 3.4"));
}

void TestYumIOStart::libraryThatCannotBeToldIsNoObstacle()
{
    writeScript("packageLibrary = lambda: 1/0");
    QVERIFY(engine->initialize());
    QCOMPARE(engine->packageLibrary(), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
}

int main(int argc, char* argv[])
{
    QApplication const app(argc, argv);
    TestYumIOStart test;
    return LifecycleTest::runAlone(test, argc, argv);
}

#include "tst_yumiostart.moc"
