// SPDX-License-Identifier: GPL-2.0-or-later
#include "RecordingPython.h"

#include <QtTest>

#include <optional>

namespace
{

QString const unexpected = QStringLiteral("Internal error: python exception occurred from C code\n");

} // namespace

class TestPythonExceptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(python.initialize()); }
    void init();
    void cleanup();

    void expectedExceptionStaysSetForTheCaller();
    void subclassOfAnExpectedTypeIsExpected();
    void eachTypeOfTheFrameIsExpected();
    void exceptionWithoutAFrameIsReported();
    void exceptionOutsideTheFrameShowsTracebackAndReport();
    void frameHidesThoseBelow();
    void frameLeftBehindCountsAgainWhenItIsOnTop();
    void successfulCallMatchesNothing();
    void nullTypeIsReportedAndMatchesNothing();
    void expectingWithoutAFrameOpensOne();
    void clearForgetsTheExceptionAndSurvivesAnEmptyStack();
    void startForgetsWhatAnEarlierCallLeft();
    void displayWithoutStandardErrorIsHarmless();
    void valueIsAnInstanceAndNoLongerSet();
    void valueOfNothingIsEmpty();
    void displayValueIsTheAttributeValueOrTheText();
    void displayValueThatCannotBeMadeIsReported();
    void everyReferenceIsGivenBack();

private:
    PyRef fail(char const* call) { return python.pyCall(call, "()"); }

    RecordingPython python;
    std::optional<Python::PyGILStateWrapper> lock;
};

void TestPythonExceptions::init()
{
    lock.emplace(true);
    python.captureStderr();
    python.py("class LockError(Exception): pass\n"
              "class HeldError(LockError): pass\n"
              "class RepoError(Exception): pass\n"
              "class ValueCarrier(Exception): value = 'the value'\n"
              "def failLock(): raise LockError('held by 12')\n"
              "def failHeld(): raise HeldError('held')\n"
              "def failRepo(): raise RepoError('mirror')\n"
              "def succeed(): return 7\n");
}

void TestPythonExceptions::cleanup()
{
    // Frames that a test has left behind go with its object's stack.
    for (int frame = 0; frame < 5; ++frame) {
        python.pyExceptClear();
    }
    python.errors.clear();
    python.expectedCount = 0;
    lock.reset();
}

void TestPythonExceptions::expectedExceptionStaysSetForTheCaller()
{
    PyObject* const lockError = python.pyLookup("LockError");
    python.pyExceptStart();
    python.pyExceptExpect(lockError);
    PyRef const result = fail("failLock");
    QVERIFY(!result);
    QVERIFY(python.pyExceptMatches(result.get(), lockError));
    QVERIFY(!python.pyExceptMatches(result.get(), python.pyLookup("RepoError")));
    QVERIFY(python.pyExceptMatches(result.get(), lockError));
    QCOMPARE(python.expectedCount, 1);
    QCOMPARE(python.errors, QStringList());
    QCOMPARE(python.takeStderr(), QString());
}

void TestPythonExceptions::subclassOfAnExpectedTypeIsExpected()
{
    PyObject* const lockError = python.pyLookup("LockError");
    python.pyExceptStart();
    python.pyExceptExpect(lockError);
    PyRef const result = fail("failHeld");
    QVERIFY(python.pyExceptMatches(result.get(), lockError));
    QCOMPARE(python.errors, QStringList());
}

void TestPythonExceptions::eachTypeOfTheFrameIsExpected()
{
    for (char const* function : {"failLock", "failRepo"}) {
        python.pyExceptStart();
        python.pyExceptExpect(python.pyLookup("LockError"));
        python.pyExceptExpect(python.pyLookup("RepoError"));
        QVERIFY(!fail(function));
        QVERIFY(PyErr_Occurred());
        python.pyExceptClear();
    }
    QCOMPARE(python.errors, QStringList());
    QCOMPARE(python.expectedCount, 2);
}

void TestPythonExceptions::exceptionWithoutAFrameIsReported()
{
    QVERIFY(!fail("failLock"));
    QCOMPARE(python.errors, QStringList(unexpected));
    QVERIFY(!PyErr_Occurred());
}

void TestPythonExceptions::exceptionOutsideTheFrameShowsTracebackAndReport()
{
    PyObject* const lockError = python.pyLookup("LockError");
    python.pyExceptStart();
    python.pyExceptExpect(lockError);
    PyRef const result = fail("failRepo");
    QVERIFY(!python.pyExceptMatches(result.get(), lockError));
    QVERIFY(!python.pyExceptMatches(result.get(), python.pyLookup("RepoError")));
    QCOMPARE(python.errors, QStringList(unexpected));
    QString const traceback = python.takeStderr();
    QVERIFY2(
        traceback.startsWith(QLatin1String("Traceback (most recent call last):\n")), qPrintable(traceback));
    QVERIFY2(traceback.contains(QLatin1String("in failRepo")), qPrintable(traceback));
    QVERIFY2(traceback.endsWith(QLatin1String("RepoError: mirror\n")), qPrintable(traceback));
}

void TestPythonExceptions::frameHidesThoseBelow()
{
    python.pyExceptStart();
    python.pyExceptExpect(python.pyLookup("LockError"));
    python.pyExceptStart();
    python.pyExceptExpect(python.pyLookup("RepoError"));
    QVERIFY(!fail("failLock"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));

    python.pyExceptStart();
    QVERIFY(!fail("failRepo"));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
}

void TestPythonExceptions::frameLeftBehindCountsAgainWhenItIsOnTop()
{
    PyObject* const lockError = python.pyLookup("LockError");
    python.pyExceptStart();
    python.pyExceptExpect(lockError);
    python.pyExceptStart();
    python.pyExceptClear();
    PyRef const result = fail("failLock");
    QVERIFY(python.pyExceptMatches(result.get(), lockError));
    QCOMPARE(python.errors, QStringList());
}

void TestPythonExceptions::successfulCallMatchesNothing()
{
    PyObject* const lockError = python.pyLookup("LockError");
    python.pyExceptStart();
    python.pyExceptExpect(lockError);
    QVERIFY(!fail("failLock"));
    PyRef const result = python.pyCall("succeed", "()");
    QCOMPARE(PyLong_AsLong(result.get()), 7);
    QVERIFY(!python.pyExceptMatches(result.get(), lockError));
}

void TestPythonExceptions::nullTypeIsReportedAndMatchesNothing()
{
    python.pyExceptStart();
    python.pyExceptExpect(nullptr);
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: pyExceptExpect called with NULL\n")));
    PyRef const result = fail("failLock");
    QVERIFY(!python.pyExceptMatches(result.get(), nullptr));
    QCOMPARE(python.takeErrors(), QStringList(unexpected));
}

void TestPythonExceptions::expectingWithoutAFrameOpensOne()
{
    python.pyExceptExpect(python.pyLookup("LockError"));
    QVERIFY(!fail("failLock"));
    QCOMPARE(python.errors, QStringList());
}

void TestPythonExceptions::clearForgetsTheExceptionAndSurvivesAnEmptyStack()
{
    PyErr_SetString(PyExc_KeyError, "left over");
    python.pyExceptClear();
    QVERIFY(!PyErr_Occurred());
    python.pyExceptClear();
}

void TestPythonExceptions::startForgetsWhatAnEarlierCallLeft()
{
    PyErr_SetString(PyExc_KeyError, "left over");
    python.pyExceptStart();
    python.pyExceptExpect(PyExc_KeyError);
    QVERIFY(!python.pyExceptMatches(nullptr, PyExc_KeyError));
}

void TestPythonExceptions::displayWithoutStandardErrorIsHarmless()
{
    python.py("sys.stderr = None");
    QVERIFY(!fail("failLock"));
    python.py("del sys.stderr");
    QVERIFY(!fail("failLock"));
    python.captureStderr();
    QCOMPARE(python.errors, QStringList({unexpected, unexpected}));
    python.errors.clear();
    python.exceptionError();
    QCOMPARE(python.errors, QStringList(unexpected));
}

void TestPythonExceptions::valueIsAnInstanceAndNoLongerSet()
{
    // Set in the lazy form: a class and an argument.
    PyErr_SetString(PyExc_KeyError, "vendor");
    PyRef const value = python.pyExceptValue();
    QVERIFY(value);
    QVERIFY(PyObject_IsInstance(value.get(), PyExc_KeyError) == 1);
    QVERIFY(!PyErr_Occurred());
}

void TestPythonExceptions::valueOfNothingIsEmpty()
{
    QVERIFY(!python.pyExceptValue());
    QVERIFY(!python.pyExceptValuef());
    QCOMPARE(python.errors, QStringList());
}

void TestPythonExceptions::displayValueIsTheAttributeValueOrTheText()
{
    PyErr_SetString(python.pyLookup("ValueCarrier"), "the text");
    PyRef const attribute = python.pyExceptValuef();
    QCOMPARE(python.pyString(attribute.get()), "the value");

    PyErr_SetString(python.pyLookup("LockError"), "the text");
    PyRef const text = python.pyExceptValuef();
    QCOMPARE(python.pyString(text.get()), "the text");
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(python.errors, QStringList());
}

void TestPythonExceptions::displayValueThatCannotBeMadeIsReported()
{
    python.py("class Mute(Exception):\n    def __str__(self): raise RuntimeError('no words')\n");
    PyErr_SetString(python.pyLookup("Mute"), "x");
    QVERIFY(!python.pyExceptValuef());
    QCOMPARE(python.errors, QStringList(unexpected));
}

void TestPythonExceptions::everyReferenceIsGivenBack()
{
    python.py("theError = LockError('one')\ndef failOne(): raise theError.with_traceback(None)\n");
    PyObject* const instance = python.pyLookup("theError");
    PyObject* const type = python.pyLookup("LockError");
    auto const rounds = [&] {
        for (int round = 0; round < 100; ++round) {
            python.pyExceptStart();
            python.pyExceptExpect(type);
            PyRef const result = fail("failOne");
            python.pyExceptMatches(result.get(), type);
            PyRef const value = python.pyExceptValue();
            python.pyExceptClear();
            fail("failOne");
        }
        python.py("theError.__traceback__ = None");
        python.takeStderr();
    };
    rounds();
    Py_ssize_t const instanceBefore = referencesTo(instance);
    Py_ssize_t const typeBefore = referencesTo(type);
    rounds();
    QCOMPARE(referencesTo(instance), instanceBefore);
    QCOMPARE(referencesTo(type), typeBefore);
}

QTEST_GUILESS_MAIN(TestPythonExceptions)
#include "tst_pythonexceptions.moc"
