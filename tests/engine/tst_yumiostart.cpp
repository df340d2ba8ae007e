// SPDX-License-Identifier: GPL-2.0-or-later
#include "LifecycleTest.h"

#include <QApplication>
#include <QDir>
#include <csignal>

class TestYumIOStart final : public LifecycleTest
{
    Q_OBJECT

private Q_SLOTS:
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
    QVERIFY(!engine->initialize());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unable to execute YumIO.py"});
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

int main(int argc, char* argv[])
{
    QApplication const app(argc, argv);
    TestYumIOStart test;
    return LifecycleTest::runAlone(test, argc, argv);
}

#include "tst_yumiostart.moc"
