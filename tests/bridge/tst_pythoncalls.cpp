// SPDX-License-Identifier: GPL-2.0-or-later
#include "RecordingPython.h"

#include <QtTest>

#include <optional>

namespace
{

QString const unexpected = QStringLiteral("Internal error: python exception occurred from C code\n");

} // namespace

class TestPythonCalls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void callPassesArgumentsAndAnswersTheResult();
    void callOfAnUnknownNameGivesTwoReports();
    void callOfWhatIsNotCallableIsReported();
    void callThatRebindsItsOwnNameIsSafe();
    void argumentsThatCannotBeBuiltAreReported();
    void formatThatMakesNoTupleIsReported();
    void methodPassesArgumentsAndAnswersTheResult();
    void methodOfNullIsReported();
    void missingMethodIsReportedAndItsErrorStaysSet();
    void methodThatIsNotCallableIsReported();
    void longNamesAreReportedWhole();
    void failedCallIsReportedOnce();
    void everyReferenceIsGivenBack();

private:
    RecordingPython python;
    std::optional<Python::PyGILStateWrapper> lock;
};

void TestPythonCalls::initTestCase()
{
    QVERIFY(python.initialize());
    Python::PyGILStateWrapper const guard(true);
    python.py("def echo(*args): return args\n"
              "def fail(*args): raise KeyError('failed')\n"
              "class Engine:\n"
              "    plain = 5\n"
              "    def apply(self, *args): return args\n"
              "    def fail(self, *args): raise KeyError('failed')\n"
              "engine = Engine()\n"
              "number = 3\n");
}

void TestPythonCalls::init()
{
    lock.emplace(true);
    python.captureStderr();
}

void TestPythonCalls::cleanup()
{
    PyErr_Clear();
    python.errors.clear();
    lock.reset();
}

void TestPythonCalls::callPassesArgumentsAndAnswersTheResult()
{
    PyRef const none = python.pyCall("echo", "()");
    QCOMPARE(PyTuple_Size(none.get()), 0);
    PyRef const some = python.pyCall("echo", "(s,l,O)", "text", 7L, Py_None);
    QCOMPARE(PyTuple_Size(some.get()), 3);
    QCOMPARE(python.pyString(PyTuple_GetItem(some.get(), 0)), "text");
    QCOMPARE(PyLong_AsLong(PyTuple_GetItem(some.get(), 1)), 7);
    QCOMPARE(PyTuple_GetItem(some.get(), 2), Py_None);
    QCOMPARE(python.errors, QStringList());
}

void TestPythonCalls::callOfAnUnknownNameGivesTwoReports()
{
    QVERIFY(!python.pyCall("no.such", "()"));
    QCOMPARE(
        python.takeErrors(), QStringList(
                                 {QStringLiteral("Internal error: no not found\n"),
                                  QStringLiteral("Internal error: no.such not found\n")}));
    QVERIFY(!PyErr_Occurred());
}

void TestPythonCalls::callOfWhatIsNotCallableIsReported()
{
    QVERIFY(!python.pyCall("number", "()"));
    QCOMPARE(python.takeErrors(), QStringList(QStringLiteral("Internal error: number not callable\n")));
}

void TestPythonCalls::callThatRebindsItsOwnNameIsSafe()
{
    python.py("class Once:\n"
              "    def __call__(self):\n"
              "        global once\n"
              "        del once\n"
              "        return self\n"
              "once = Once()\n");
    PyRef const result = python.pyCall("once", "()");
    QVERIFY(result);
    QCOMPARE(referencesTo(result.get()), 1);
}

void TestPythonCalls::argumentsThatCannotBeBuiltAreReported()
{
    QVERIFY(!python.pyCall("echo", "(s)", "not UTF-8: \xff"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
    QVERIFY(!python.pyMethodCall(python.pyLookup("engine"), "apply", "(O)", static_cast<PyObject*>(nullptr)));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
    QVERIFY(!PyErr_Occurred());
}

void TestPythonCalls::formatThatMakesNoTupleIsReported()
{
    QVERIFY(!python.pyCall("echo", "s", "text"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
    QVERIFY(python.takeStderr().contains(QLatin1String("TypeError")));
    QVERIFY(!python.pyCall("echo", ""));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
}

void TestPythonCalls::methodPassesArgumentsAndAnswersTheResult()
{
    PyRef const list = PyRef::steal(PyList_New(0));
    PyRef const result =
        python.pyMethodCall(python.pyLookup("engine"), "apply", "(O,O,O)", list.get(), Py_None, list.get());
    QCOMPARE(PyTuple_Size(result.get()), 3);
    QCOMPARE(PyTuple_GetItem(result.get(), 2), list.get());
    QCOMPARE(python.errors, QStringList());
}

void TestPythonCalls::methodOfNullIsReported()
{
    QVERIFY(!python.pyMethodCall(nullptr, "apply", "()"));
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: method apply call attemped with NULL self\n")));
}

void TestPythonCalls::missingMethodIsReportedAndItsErrorStaysSet()
{
    // What was set before doesn't hide it.
    PyErr_SetString(PyExc_KeyError, "left over");
    QVERIFY(!python.pyMethodCall(python.pyLookup("engine"), "collectFileLists", "()"));
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: method collectFileLists not found\n")));
    QVERIFY(PyErr_ExceptionMatches(PyExc_AttributeError));
}

void TestPythonCalls::methodThatIsNotCallableIsReported()
{
    QVERIFY(!python.pyMethodCall(python.pyLookup("engine"), "plain", "()"));
    QCOMPARE(python.takeErrors(), QStringList(QStringLiteral("Internal error: method plain not callable\n")));
    QVERIFY(!PyErr_Occurred());
}

void TestPythonCalls::longNamesAreReportedWhole()
{
    QByteArray const name(5000, 'm');
    QVERIFY(!python.pyMethodCall(python.pyLookup("engine"), name.constData(), "()"));
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: method %1 not found\n").arg(QString::fromLatin1(name))));
}

void TestPythonCalls::failedCallIsReportedOnce()
{
    QVERIFY(!python.pyCall("fail", "()"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
    QVERIFY(!python.pyMethodCall(python.pyLookup("engine"), "fail", "()"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
    QVERIFY(!PyErr_Occurred());
}

void TestPythonCalls::everyReferenceIsGivenBack()
{
    PyRef const argument = PyRef::steal(PyList_New(0));
    PyObject* const engine = python.pyLookup("engine");
    PyObject* const echo = python.pyLookup("echo");
    auto const rounds = [&] {
        for (int round = 0; round < 100; ++round) {
            python.pyCall("echo", "(O)", argument.get());
            python.pyCall("fail", "(O)", argument.get());
            python.pyCall("number", "(O)", argument.get());
            python.pyMethodCall(engine, "apply", "(O)", argument.get());
            python.pyMethodCall(engine, "fail", "(O)", argument.get());
            python.pyMethodCall(engine, "missing", "(O)", argument.get());
            PyErr_Clear();
        }
        // The last traceback is kept by the interpreter in sys.last_traceback or by the caught exception.
        python.py("import gc\ngc.collect()");
    };
    rounds();
    PyRef const countExpression = python.pyr("sys.getrefcount(engine)");
    Py_ssize_t const engineBefore = referencesTo(engine);
    Py_ssize_t const echoBefore = referencesTo(echo);
    rounds();
    PyRef const countAfter = python.pyr("sys.getrefcount(engine)");
    QCOMPARE(referencesTo(argument.get()), 1);
    QCOMPARE(referencesTo(engine), engineBefore);
    QCOMPARE(referencesTo(echo), echoBefore);
    QCOMPARE(PyLong_AsLong(countAfter.get()), PyLong_AsLong(countExpression.get()));
}

QTEST_GUILESS_MAIN(TestPythonCalls)
#include "tst_pythoncalls.moc"
