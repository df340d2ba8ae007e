// SPDX-License-Identifier: GPL-2.0-or-later
// The functions of this file tell one life of the interpreter, in their order.
#include "RecordingPython.h"

#include "ChildProcess.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <future>
#include <memory>
#include <thread>

class TestPythonLifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void guardWithoutAnInterpreterDoesNothing();
    void failedStartIsReportedAndCanBeRepeated();
    void startIgnoresAnotherPythonOnThePath();
    void startLeavesTheLockToOthers();
    void secondInitializeTouchesNothing();
    void startKeepsTheInterpretersSigintHandler();
    void guardTakesAndGivesUpTheLock();
    void guardMadeWithFalseDoesNothing();
    void guardsNest();
    void releasedGuardLetsAnotherThreadIn();
    void workersCallPython();
    void exceptionFramesDoNotCareWhichThreadTheyAreUsedOn();
    void endRunsExitHandlersDespiteAnExceptionLeftOver();
    void guardAfterTheEndDoesNothing();

private:
    /// What `expression` gives on a thread of its own.
    QString textOnThread(char const* expression);

    QTemporaryDir directory;
    std::unique_ptr<RecordingPython> python;
};

void TestPythonLifecycle::initTestCase()
{
    QVERIFY(directory.isValid());
    // A program that a shell starts in the background is told to ignore it, and so would be the interpreter.
    std::signal(SIGINT, SIG_DFL);
    qunsetenv("PYTHONHOME");
    python = std::make_unique<RecordingPython>();
}

QString TestPythonLifecycle::textOnThread(char const* expression)
{
    QString result;
    std::thread worker([&] {
        Python::PyGILStateWrapper const lock(true);
        result = python->text(expression);
    });
    worker.join();
    return result;
}

void TestPythonLifecycle::guardWithoutAnInterpreterDoesNothing()
{
    Python::PyGILStateWrapper lock(true);
    QVERIFY(!Py_IsInitialized());
    lock.release();
    lock.ensure();
}

void TestPythonLifecycle::failedStartIsReportedAndCanBeRepeated()
{
    int const status = statusOfChild([this] {
        qputenv("PYTHONHOME", directory.filePath(QStringLiteral("nowhere")).toUtf8());
        bool const started = python->initialize() || python->initialize();
        bool const reported =
            python->errors.value(0).startsWith(QLatin1String("Internal error: cannot start python: "));
        python.reset();
        return !started && reported && !Python::initialized ? 0 : 1;
    });
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 0);
}

void TestPythonLifecycle::startIgnoresAnotherPythonOnThePath()
{
    // The shape by which an interpreter recognises an installation of its own version.
    QString const library = QStringLiteral("lib/python%1.%2").arg(PY_MAJOR_VERSION).arg(PY_MINOR_VERSION);
    QDir const root(directory.path());
    QVERIFY(root.mkpath(QStringLiteral("bin")) && root.mkpath(library + QStringLiteral("/lib-dynload")));
    QFile landmark(root.filePath(library + QStringLiteral("/os.py")));
    QVERIFY(landmark.open(QIODevice::WriteOnly));
    QVERIFY(QFile::copy(QStringLiteral("/bin/sh"), root.filePath(QStringLiteral("bin/python3"))));
    qputenv("PATH", root.filePath(QStringLiteral("bin")).toUtf8() + ':' + qgetenv("PATH"));

    QVERIFY(python->initialize());
    QVERIFY(Python::initialized);
    QCOMPARE(python->errors, QStringList());
    Python::PyGILStateWrapper const lock(true);
    python->py("import sys");
    QCOMPARE(python->text("sys.prefix"), QStringLiteral("/usr"));
    QCOMPARE(python->text("sys.base_exec_prefix"), QStringLiteral("/usr"));
    QCOMPARE(python->text("sys.executable"), QStringLiteral("/usr/bin/python3"));
    QVERIFY(!python->text("repr(sys.path)").contains(directory.path()));
}

void TestPythonLifecycle::startLeavesTheLockToOthers()
{
    QVERIFY(!PyGILState_Check());
    QCOMPARE(textOnThread("str(6 * 7)"), QStringLiteral("42"));
}

void TestPythonLifecycle::secondInitializeTouchesNothing()
{
    PyObject* const dictionary = Python::main_dict;
    {
        Python::PyGILStateWrapper const lock(true);
        python->py("kept = defaultSigIntSigaction\ndefaultSigIntSigaction = 'mine'");
        QVERIFY(python->initialize());
        QVERIFY(PyGILState_Check());
        QCOMPARE(python->text("defaultSigIntSigaction"), QStringLiteral("mine"));
        python->py("defaultSigIntSigaction = kept");
    }
    QVERIFY(python->initialize());
    QVERIFY(!PyGILState_Check());
    QCOMPARE(Python::main_dict, dictionary);
}

void TestPythonLifecycle::startKeepsTheInterpretersSigintHandler()
{
    Python::PyGILStateWrapper const lock(true);
    QCOMPARE(python->text("defaultSigIntSigaction.__name__"), QStringLiteral("default_int_handler"));
}

void TestPythonLifecycle::guardTakesAndGivesUpTheLock()
{
    {
        Python::PyGILStateWrapper lock(true);
        QVERIFY(PyGILState_Check());
        lock.release();
        QVERIFY(!PyGILState_Check());
        lock.release();
        lock.ensure();
        lock.ensure();
        QVERIFY(PyGILState_Check());
    }
    QVERIFY(!PyGILState_Check());
    {
        Python::PyGILStateWrapper lock(true);
        lock.release();
    }
    QVERIFY(!PyGILState_Check());
}

void TestPythonLifecycle::guardMadeWithFalseDoesNothing()
{
    Python::PyGILStateWrapper lock(false);
    QVERIFY(!PyGILState_Check());
    lock.ensure();
    QVERIFY(!PyGILState_Check());
    lock.release();
}

void TestPythonLifecycle::guardsNest()
{
    Python::PyGILStateWrapper const outer(true);
    {
        Python::PyGILStateWrapper const inner(true);
        QVERIFY(PyGILState_Check());
    }
    QVERIFY(PyGILState_Check());
}

void TestPythonLifecycle::releasedGuardLetsAnotherThreadIn()
{
    Python::PyGILStateWrapper lock(true);
    std::promise<void> entered;
    std::future<void> inside = entered.get_future();
    std::thread worker([&] {
        Python::PyGILStateWrapper const own(true);
        entered.set_value();
    });
    lock.release();
    bool const cameIn = inside.wait_for(std::chrono::seconds(30)) == std::future_status::ready;
    worker.join();
    lock.ensure();
    QVERIFY(cameIn);
    QVERIFY(PyGILState_Check());
}

void TestPythonLifecycle::workersCallPython()
{
    {
        Python::PyGILStateWrapper const lock(true);
        python->py("import threading\ncounter = []\ndef count(n):\n    counter.append(n)\n    return "
                   "len(counter)\n");
    }
    auto const job = [this] {
        for (long round = 0; round < 200; ++round) {
            Python::PyGILStateWrapper const lock(true);
            python->pyCall("count", "(l)", round);
        }
    };
    std::unique_ptr<QThread> const first(QThread::create(job));
    first->start();
    std::thread second(job);
    job();
    second.join();
    QVERIFY(first->wait());
    QCOMPARE(textOnThread("str(len(counter))"), QStringLiteral("600"));
    QCOMPARE(
        textOnThread("str(threading.current_thread() is threading.main_thread())"), QStringLiteral("False"));
    QCOMPARE(python->errors, QStringList());
}

void TestPythonLifecycle::exceptionFramesDoNotCareWhichThreadTheyAreUsedOn()
{
    bool matched = false;
    bool successMatched = true;
    std::thread worker([&] {
        Python::PyGILStateWrapper const lock(true);
        python->py("def failWorker(): raise KeyError('worker')");
        PyObject* const keyError = python->pyLookup("builtins.KeyError");
        python->pyExceptStart();
        python->pyExceptExpect(keyError);
        PyRef const failed = python->pyCall("failWorker", "()");
        matched = python->pyExceptMatches(failed.get(), keyError);
        python->pyExceptClear();
        PyRef const worked = python->pyCall("count", "(l)", 0L);
        successMatched = python->pyExceptMatches(worked.get(), keyError);
    });
    worker.join();
    QVERIFY(matched);
    QVERIFY(!successMatched);
    QCOMPARE(python->errors, QStringList());
}

void TestPythonLifecycle::endRunsExitHandlersDespiteAnExceptionLeftOver()
{
    QString const trace = directory.filePath(QStringLiteral("ended"));
    QFile complaints(directory.filePath(QStringLiteral("stderr")));
    {
        Python::PyGILStateWrapper const lock(true);
        python->pyf(
            "import atexit\n"
            "def atEnd():\n"
            "    with open('%s', 'w') as file: file.write('ended')\n"
            "atexit.register(atEnd)\n"
            "sys.stderr = open('%s', 'w')\n",
            qUtf8Printable(trace), qUtf8Printable(complaints.fileName()));
        PyErr_SetString(PyExc_KeyError, "left over");
    }
    python.reset();
    QVERIFY(!Py_IsInitialized());
    QVERIFY(!Python::initialized);
    QCOMPARE(Python::main_dict, nullptr);
    QFile file(trace);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("ended"));
    QVERIFY(complaints.open(QIODevice::ReadOnly));
    QCOMPARE(complaints.readAll(), QByteArray());
}

void TestPythonLifecycle::guardAfterTheEndDoesNothing()
{
    Python::PyGILStateWrapper lock(true);
    lock.release();
    RecordingPython const neverStarted;
    QVERIFY(!Python::initialized);
}

QTEST_GUILESS_MAIN(TestPythonLifecycle)
#include "tst_pythonlifecycle.moc"
