// SPDX-License-Identifier: GPL-2.0-or-later
#include "RecordingPython.h"

#include "bridge/YumIOC.h"
#include "bridge/YumIOHost.h"

#include <QtTest>

#include <functional>
#include <optional>
#include <stdexcept>
#include <thread>

namespace
{

/// Answers every function of the module by `answer`, None unless a test says otherwise, and records the call.
class RecordingHost : public YumIOHost
{
public:
    // clang-format off
    PyObject* stdoutWrite(PyObject* self, PyObject* args) override { return called("stdoutWrite", self, args); }
    PyObject* stderrWrite(PyObject* self, PyObject* args) override { return called("stderrWrite", self, args); }
    PyObject* log(PyObject* self, PyObject* args) override { return called("log", self, args); }
    PyObject* warninglog(PyObject* self, PyObject* args) override { return called("warninglog", self, args); }
    PyObject* errorlog(PyObject* self, PyObject* args) override { return called("errorlog", self, args); }
    PyObject* collectProgress(PyObject* self, PyObject* args) override { return called("collectProgress", self, args); }
    PyObject* collectGrabMeterStart(PyObject* self, PyObject* args) override { return called("collectGrabMeterStart", self, args); }
    PyObject* collectGrabMeterUpdate(PyObject* self, PyObject* args) override { return called("collectGrabMeterUpdate", self, args); }
    PyObject* collectGrabMeterEnd(PyObject* self, PyObject* args) override { return called("collectGrabMeterEnd", self, args); }
    PyObject* applyGrabMeterStart(PyObject* self, PyObject* args) override { return called("applyGrabMeterStart", self, args); }
    PyObject* applyGrabMeterUpdate(PyObject* self, PyObject* args) override { return called("applyGrabMeterUpdate", self, args); }
    PyObject* applyGrabMeterEnd(PyObject* self, PyObject* args) override { return called("applyGrabMeterEnd", self, args); }
    PyObject* dsTsCheck(PyObject* self, PyObject* args) override { return called("dsTsCheck", self, args); }
    PyObject* dsRestartLoop(PyObject* self, PyObject* args) override { return called("dsRestartLoop", self, args); }
    PyObject* userconfirm(PyObject* self, PyObject* args) override { return called("userconfirm", self, args); }
    PyObject* confirmKey(PyObject* self, PyObject* args) override { return called("confirmKey", self, args); }
    PyObject* reportDownloadSize(PyObject* self, PyObject* args) override { return called("reportDownloadSize", self, args); }
    PyObject* listTransaction(PyObject* self, PyObject* args) override { return called("listTransaction", self, args); }
    PyObject* transactionDetails(PyObject* self, PyObject* args) override { return called("transactionDetails", self, args); }
    PyObject* tsInitCallback(PyObject* self, PyObject* args) override { return called("tsInitCallback", self, args); }
    PyObject* tsCallback(PyObject* self, PyObject* args) override { return called("tsCallback", self, args); }
    PyObject* tsEvent(PyObject* self, PyObject* args) override { return called("tsEvent", self, args); }
    PyObject* scriptRuns(PyObject* self, PyObject* args) override { return called("scriptRuns", self, args); }
    PyObject* postTransactionOutput(PyObject* self, PyObject* args) override { return called("postTransactionOutput", self, args); }
    // clang-format on

    QByteArray lastReport() const override { return report; }

    QStringList calls; ///< "name(arguments)", the arguments as Python writes them; "name" without a tuple
    PyObject* lastSelf = nullptr;
    std::function<PyObject*(PyObject* args)> answer;
    QByteArray report;

private:
    PyObject* called(char const* name, PyObject* self, PyObject* args)
    {
        PyRef const text = PyRef::steal(args ? PyObject_Repr(args) : PyUnicode_FromString(""));
        calls.append(QLatin1String(name) + QString::fromUtf8(PyUnicode_AsUTF8(text.get())));
        lastSelf = self;
        return answer ? answer(args) : PyRef::borrow(Py_None).release();
    }
};

} // namespace

class TestYumIOC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void scriptImportsTheModule();
    void moduleHasExactlyTheNamedFunctions();
    void functionReachesTheOperationOfItsName_data();
    void functionReachesTheOperationOfItsName();
    void functionWithoutArgumentsTakesNone_data();
    void functionWithoutArgumentsTakesNone();
    void resultIsHandedToTheScript();
    void argumentsThatDoNotParseAreATypeError();
    void nullWithoutExceptionBecomesRuntimeError_data();
    void nullWithoutExceptionBecomesRuntimeError();
    void nullWithExceptionPassesUnchanged();
    void exceptionBesideAGoodAnswerIsDropped();
    void thrownExceptionNeverReachesPython();
    void secondRegistrationOnlyChangesTheHost();
    void withoutAHostTheScriptGetsAnError();
    void functionIsAnsweredOnTheCallingThread();
    void everyReferenceIsGivenBack();

private:
    /// Runs `call` in the script and answers "Type: text" of what it raises, "" if it raises nothing.
    QString raisedBy(char const* call);

    RecordingPython python;
    RecordingHost host;
    std::optional<Python::PyGILStateWrapper> lock;
};

void TestYumIOC::initTestCase()
{
    QVERIFY(python.initialize());
    Python::PyGILStateWrapper const guard(true);
    QVERIFY(!YumIOC::moduleRegistered);
    YumIOC::initialize(&host);
    QVERIFY(YumIOC::moduleRegistered);
    QCOMPARE(YumIOC::yumIO, &host);
    python.py("import yumIOC\n"
              "def raised(function):\n"
              "    try: function()\n"
              "    except BaseException as error: return type(error).__name__ + ': ' + str(error)\n"
              "    return ''\n");
}

void TestYumIOC::init()
{
    lock.emplace(true);
    python.captureStderr();
}

void TestYumIOC::cleanup()
{
    YumIOC::initialize(&host);
    host.calls.clear();
    host.answer = nullptr;
    host.report.clear();
    python.errors.clear();
    lock.reset();
}

QString TestYumIOC::raisedBy(char const* call)
{
    PyRef const answer = python.pyrf("raised(lambda: %s)", call);
    return QString::fromUtf8(python.pyString(answer.get()));
}

void TestYumIOC::scriptImportsTheModule()
{
    python.py("import yumIOC as again");
    QCOMPARE(python.takeStderr(), QString());
    QCOMPARE(python.text("str(again is sys.modules['yumIOC'])"), QStringLiteral("True"));
    QCOMPARE(python.text("yumIOC.__name__"), QStringLiteral("yumIOC"));
    QCOMPARE(python.text("str(yumIOC.__doc__)"), QStringLiteral("None"));
    QCOMPARE(python.text("str(yumIOC.log.__doc__)"), QStringLiteral("None"));
    QVERIFY(python.pyLookup("yumIOC.userconfirm"));
}

void TestYumIOC::moduleHasExactlyTheNamedFunctions()
{
    QCOMPARE(
        python.text("' '.join(name for name in vars(yumIOC) if not name.startswith('__'))"),
        QStringLiteral(
            "stdoutWrite stderrWrite log warninglog errorlog collectProgress collectGrabMeterStart "
            "collectGrabMeterUpdate collectGrabMeterEnd applyGrabMeterStart applyGrabMeterUpdate "
            "applyGrabMeterEnd dsTsCheck dsRestartLoop userconfirm confirmKey reportDownloadSize "
            "listTransaction transactionDetails tsInitCallback tsCallback tsEvent scriptRuns "
            "postTransactionOutput"));
}

void TestYumIOC::functionReachesTheOperationOfItsName_data()
{
    QTest::addColumn<QString>("call");
    for (char const* call :
         {"stdoutWrite('out',)",
          "stderrWrite('err',)",
          "log(2, 'TSINFO: x')",
          "warninglog(1, 'skipped')",
          "errorlog(0, 'gr\u00fc\u00df')",
          "collectProgress(-1, -1, None)",
          "collectGrabMeterStart('u', 'a', 'b', 5, None)",
          "collectGrabMeterUpdate(9,)",
          "collectGrabMeterEnd(9,)",
          "applyGrabMeterStart('u', None, None, 5000000000, 't')",
          "applyGrabMeterUpdate(9,)",
          "applyGrabMeterEnd(9,)",
          "confirmKey('l', 'r', 'p', 'u', 'f', 'k', 5, 0)",
          "reportDownloadSize([],)",
          "listTransaction(1,)",
          "transactionDetails([], 1, -5000000000, None)",
          "tsInitCallback(0,)",
          "tsCallback(1, 2, 3, ({'name': 'n'},), None)",
          "tsEvent('p', 1, 2, 3, 4, 5)",
          "scriptRuns('elm',)",
          "postTransactionOutput(1,)"}) {
        QTest::newRow(call) << QString::fromUtf8(call);
    }
}

void TestYumIOC::functionReachesTheOperationOfItsName()
{
    QFETCH(QString, call);
    QCOMPARE(raisedBy(qUtf8Printable(QStringLiteral("yumIOC.") + call)), QString());
    QCOMPARE(host.calls, QStringList(call));
    QCOMPARE(host.lastSelf, python.pyLookup("yumIOC"));
}

void TestYumIOC::functionWithoutArgumentsTakesNone_data()
{
    QTest::addColumn<QString>("name");
    for (char const* name : {"dsTsCheck", "dsRestartLoop", "userconfirm"}) {
        QTest::newRow(name) << QString::fromUtf8(name);
    }
}

void TestYumIOC::functionWithoutArgumentsTakesNone()
{
    QFETCH(QString, name);
    QCOMPARE(raisedBy(qUtf8Printable(QStringLiteral("yumIOC.%1()").arg(name))), QString());
    QCOMPARE(host.calls, QStringList(name));
    QVERIFY(raisedBy(qUtf8Printable(QStringLiteral("yumIOC.%1(1)").arg(name)))
                .startsWith(QLatin1String("TypeError")));
    QCOMPARE(host.calls, QStringList(name));
}

void TestYumIOC::resultIsHandedToTheScript()
{
    host.answer = [](PyObject*) { return PyLong_FromLong(1); };
    PyRef const answer = python.pyr("yumIOC.userconfirm()");
    QCOMPARE(PyLong_AsLong(answer.get()), 1);
    host.answer = nullptr;
    PyRef const none = python.pyr("yumIOC.log(0, 'x')");
    QCOMPARE(none.get(), Py_None);
}

void TestYumIOC::argumentsThatDoNotParseAreATypeError()
{
    host.answer = [](PyObject* args) -> PyObject* {
        long level = 0;
        char const* text = nullptr;
        return PyArg_ParseTuple(args, "ls", &level, &text) ? PyRef::borrow(Py_None).release() : nullptr;
    };
    host.report = "another report";
    QVERIFY(raisedBy("yumIOC.log('no number', 'text')").startsWith(QLatin1String("TypeError: ")));
    QVERIFY(raisedBy("yumIOC.log()").startsWith(QLatin1String("TypeError: ")));
    QVERIFY(raisedBy("yumIOC.log(level=1, text='x')").startsWith(QLatin1String("TypeError: ")));
    QCOMPARE(raisedBy("yumIOC.log(1, 'text')"), QString());
}

void TestYumIOC::nullWithoutExceptionBecomesRuntimeError_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QString>("raised");
    QTest::newRow("words") << QByteArray("Internal error: no lists")
                           << QStringLiteral("RuntimeError: Internal error: no lists");
    QTest::newRow("UTF-8") << QByteArray("f\xc3\xbcnf") << QString::fromUtf8("RuntimeError: f\xc3\xbcnf");
    QTest::newRow("not UTF-8") << QByteArray("f\xfcnf") << QString::fromUtf8("RuntimeError: f\xef\xbf\xbdnf");
    QTest::newRow("no words") << QByteArray() << QStringLiteral("RuntimeError: ");
    QTest::newRow("percent signs") << QByteArray("100% %s") << QStringLiteral("RuntimeError: 100% %s");
}

void TestYumIOC::nullWithoutExceptionBecomesRuntimeError()
{
    QFETCH(QByteArray, report);
    QFETCH(QString, raised);
    host.report = report;
    host.answer = [](PyObject*) -> PyObject* { return nullptr; };
    QCOMPARE(raisedBy("yumIOC.listTransaction(1)"), raised);
}

void TestYumIOC::nullWithExceptionPassesUnchanged()
{
    host.report = "another report";
    host.answer = [](PyObject*) -> PyObject* {
        PyErr_SetString(PyExc_KeyError, "own");
        return nullptr;
    };
    QCOMPARE(raisedBy("yumIOC.listTransaction(1)"), QStringLiteral("KeyError: 'own'"));
}

void TestYumIOC::exceptionBesideAGoodAnswerIsDropped()
{
    host.answer = [](PyObject*) {
        PyErr_SetString(PyExc_KeyError, "left over");
        return PyLong_FromLong(1);
    };
    QCOMPARE(raisedBy("yumIOC.userconfirm()"), QString());
    QVERIFY(!PyErr_Occurred());
}

void TestYumIOC::thrownExceptionNeverReachesPython()
{
    host.answer = [](PyObject*) -> PyObject* { throw std::runtime_error("thrown"); };
    QCOMPARE(raisedBy("yumIOC.dsTsCheck()"), QStringLiteral("RuntimeError: thrown"));
    host.answer = [](PyObject*) -> PyObject* {
        PyErr_SetString(PyExc_KeyError, "left over");
        throw 7;
    };
    QCOMPARE(raisedBy("yumIOC.dsTsCheck()"), QStringLiteral("RuntimeError: yumIOC: the program failed"));
}

void TestYumIOC::secondRegistrationOnlyChangesTheHost()
{
    PyObject* const module = python.pyLookup("yumIOC");
    RecordingHost other;
    YumIOC::initialize(&other);
    QVERIFY(YumIOC::moduleRegistered);
    QCOMPARE(PyDict_GetItemString(PyImport_GetModuleDict(), "yumIOC"), module);
    QCOMPARE(raisedBy("yumIOC.dsTsCheck()"), QString());
    QCOMPARE(other.calls, QStringList(QStringLiteral("dsTsCheck")));
    QCOMPARE(host.calls, QStringList());
}

void TestYumIOC::withoutAHostTheScriptGetsAnError()
{
    YumIOC::initialize(nullptr);
    QCOMPARE(
        raisedBy("yumIOC.log(0, 'late')"),
        QStringLiteral("RuntimeError: yumIOC: the program no longer answers"));
    QCOMPARE(host.calls, QStringList());
}

void TestYumIOC::functionIsAnsweredOnTheCallingThread()
{
    std::thread::id answeredOn;
    bool lockHeld = false;
    host.answer = [&](PyObject*) {
        answeredOn = std::this_thread::get_id();
        lockHeld = PyGILState_Check();
        return PyRef::borrow(Py_None).release();
    };
    QString raised;
    std::thread worker([&] {
        Python::PyGILStateWrapper const own(true);
        raised = raisedBy("yumIOC.collectProgress(-1, -1, None)");
    });
    std::thread::id const expected = worker.get_id();
    lock->release();
    worker.join();
    lock->ensure();
    QCOMPARE(raised, QString());
    QVERIFY(answeredOn == expected);
    QVERIFY(lockHeld);
    QCOMPARE(host.calls, QStringList(QStringLiteral("collectProgress(-1, -1, None)")));
}

void TestYumIOC::everyReferenceIsGivenBack()
{
    python.py("marker = ['marker']");
    PyObject* const marker = python.pyLookup("marker");
    PyObject* const module = python.pyLookup("yumIOC");
    int call = 0;
    // A good answer, one beside an exception, a failure and a throw in turn.
    host.answer = [&](PyObject* args) -> PyObject* {
        switch (call++ % 4) {
        case 0:
            return PyRef::borrow(PyTuple_GetItem(args, 0)).release();
        case 1:
            PyErr_SetObject(PyExc_KeyError, PyTuple_GetItem(args, 0));
            return PyRef::borrow(PyTuple_GetItem(args, 0)).release();
        case 2:
            return nullptr;
        default:
            PyErr_SetObject(PyExc_KeyError, PyTuple_GetItem(args, 0));
            throw std::runtime_error("thrown");
        }
    };
    Py_ssize_t const markerBefore = referencesTo(marker);
    Py_ssize_t const moduleBefore = referencesTo(module);
    for (int round = 0; round < 100; ++round) {
        raisedBy("yumIOC.listTransaction(marker)");
    }
    QCOMPARE(call, 100);
    QCOMPARE(referencesTo(marker), markerBefore);
    QCOMPARE(referencesTo(module), moduleBefore);
}

QTEST_GUILESS_MAIN(TestYumIOC)
#include "tst_yumioc.moc"
