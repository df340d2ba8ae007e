// SPDX-License-Identifier: GPL-2.0-or-later
// Evaluation, lookup, values and conversions. Calls, exceptions and the interpreter's life have their own
// files.
#include "RecordingPython.h"

#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <optional>

class TestPython : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void statementsRunInMain();
    void failedStatementOnlyLeavesItsTraceback();
    void expressionGivesItsValue();
    void failedExpressionIsReported();
    void composedTextsHaveNoLimit();

    void lookupFindsGlobalsOfMain();
    void lookupFallsBackOnImport();
    void lookupPrefersMainToImport();
    void lookupWalksModulesAndDictionaries();
    void lookupDoesNotReachAttributes();
    void lookupOfAnUnknownNameReportsTheComponent_data();
    void lookupOfAnUnknownNameReportsTheComponent();
    void lookupOfAVeryLongNameIsReportedWhole();
    void lookupIgnoresWhyAnImportFailed();
    void lookupAnswersABorrowedReference();

    void valueOfModuleAndDictionary();
    void missingKeyIsSilent();
    void valueOfAnUnknownNameIsReportedTwice();
    void valueOfWhatHoldsNothingIsNull();
    void assignSetsModuleAndDictionaryItems();
    void assignThatFailsIsReported();
    void assignGlobalSetsAndIgnoresFailure();
    void versionIsThatOfTheInterpreter();

    void stringOfStrAndBytes();
    void stringOfNoneIsSilentlyNull();
    void stringOfNullIsReported();
    void stringOfAnotherTypeIsReported();
    void stringWithLoneSurrogatesKeepsTheRest();
    void repairedStringsLiveAsLongAsTheirObjects();

    void leftOverExceptionNeitherDisturbsNorCounts();
    void debuggerGetsTheObjectAndTheTerminal();
    void sigintHandlerIsSwitched();

private:
    RecordingPython python;
    std::optional<Python::PyGILStateWrapper> lock;
    QTemporaryDir modules;
};

void TestPython::initTestCase()
{
    // A program that a shell starts in the background is told to ignore it.
    std::signal(SIGINT, SIG_DFL);
    QVERIFY(modules.isValid());
    auto const addModule = [this](char const* name, QByteArray const& text) {
        QFile file(modules.filePath(QLatin1String(name)));
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    };
    QVERIFY(addModule("cli.py", "name = 'cli'\n"));
    QVERIFY(addModule("vembroken.py", "raise ValueError('broken module')\n"));
    QVERIFY(addModule("vemshadow.py", "where = 'imported'\n"));
    QVERIFY(python.initialize());
    Python::PyGILStateWrapper const guard(true);
    PyRef const directory = PyRef::steal(PyUnicode_FromString(qUtf8Printable(modules.path())));
    python.pyAssignGlobal("moduleDirectory", directory.get());
    python.py("import sys\nsys.dont_write_bytecode = True\nsys.path.insert(0, moduleDirectory)");
}

void TestPython::init()
{
    lock.emplace(true);
    python.captureStderr();
}

void TestPython::cleanup()
{
    PyErr_Clear();
    python.errors.clear();
    lock.reset();
}

void TestPython::statementsRunInMain()
{
    python.py("import os\nstatementResult = __name__");
    QCOMPARE(python.text("statementResult"), QStringLiteral("__main__"));
    QCOMPARE(python.errors, QStringList());
}

void TestPython::failedStatementOnlyLeavesItsTraceback()
{
    python.py("raise KeyError('statement')");
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(python.errors, QStringList());
    QVERIFY(python.takeStderr().endsWith(QLatin1String("KeyError: 'statement'\n")));
    python.py("1 +");
    QVERIFY(python.takeStderr().contains(QLatin1String("SyntaxError")));
    QCOMPARE(python.errors, QStringList());
}

void TestPython::expressionGivesItsValue()
{
    python.py("base = 20");
    PyRef const value = python.pyr("base * 2 + 2");
    QCOMPARE(PyLong_AsLong(value.get()), 42);
}

void TestPython::failedExpressionIsReported()
{
    QVERIFY(!python.pyr("1 / 0"));
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: python exception occurred from C code\n")));
    QVERIFY(python.takeStderr().endsWith(QLatin1String("ZeroDivisionError: division by zero\n")));
    QVERIFY(!PyErr_Occurred());
}

void TestPython::composedTextsHaveNoLimit()
{
    QByteArray const longText(50000, 'x');
    PyRef const value = python.pyrf("len('%s') + %d", longText.constData(), 1);
    QCOMPARE(PyLong_AsLong(value.get()), 50001);
    python.pyf("%s = %s", "composed", "'%'");
    QCOMPARE(python.text("composed"), QStringLiteral("%"));
    python.pyf("composed = '%s'", longText.constData());
    QCOMPARE(python.text("composed"), QString::fromLatin1(longText));
}

void TestPython::lookupFindsGlobalsOfMain()
{
    python.py("marker = object()");
    QCOMPARE(python.pyLookup("marker"), PyDict_GetItemString(Python::main_dict, "marker"));
    QVERIFY(python.pyLookup("marker"));
}

void TestPython::lookupFallsBackOnImport()
{
    python.py("import builtins\nsys.modules['exceptions'] = builtins\ndel builtins");
    QVERIFY(!PyDict_GetItemString(Python::main_dict, "exceptions"));
    QCOMPARE(python.pyLookup("exceptions.SystemExit"), PyExc_SystemExit);
    QVERIFY(PyExceptionClass_Check(python.pyLookup("bdb.BdbQuit")));
    QCOMPARE(python.errors, QStringList());
}

void TestPython::lookupPrefersMainToImport()
{
    python.py("vemshadow = {'where': 'main'}");
    QCOMPARE(python.pyString(python.pyLookup("vemshadow.where")), "main");
    python.py("del vemshadow");
    QCOMPARE(python.pyString(python.pyLookup("vemshadow.where")), "imported");
}

void TestPython::lookupWalksModulesAndDictionaries()
{
    python.py("import types\n"
              "lib = types.ModuleType('lib')\n"
              "lib.Errors = type('SubModule', (types.ModuleType,), {})('Errors')\n"
              "lib.Errors.table = {'deep': {'key': 'found'}}\n");
    QCOMPARE(python.pyString(python.pyLookup("lib.Errors.table.deep.key")), "found");
    QCOMPARE(python.errors, QStringList());
}

void TestPython::lookupDoesNotReachAttributes()
{
    python.py("class Holder: member = 1\nholder = Holder()\nnumber = 3");
    for (char const* name : {"Holder.member", "holder.member", "number.real"}) {
        QVERIFY(!python.pyLookup(name));
    }
    QCOMPARE(python.takeErrors().size(), 3);
    QVERIFY(!PyErr_Occurred());
}

void TestPython::lookupOfAnUnknownNameReportsTheComponent_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("component");
    QTest::newRow("first component") << QByteArray("no.such") << QStringLiteral("no");
    QTest::newRow("member of a module") << QByteArray("sys.nothing") << QStringLiteral("nothing");
    QTest::newRow("member of a missing member")
        << QByteArray("sys.nothing.more") << QStringLiteral("nothing");
    QTest::newRow("empty") << QByteArray("") << QString();
    QTest::newRow("trailing dot") << QByteArray("sys.") << QString();
    QTest::newRow("leading dot") << QByteArray(".sys") << QString();
    QTest::newRow("not UTF-8") << QByteArray("na\xffme") << QString::fromUtf8("na\xffme");
}

void TestPython::lookupOfAnUnknownNameReportsTheComponent()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, component);
    QVERIFY(!python.pyLookup(name.constData()));
    QCOMPARE(
        python.takeErrors(), QStringList(QStringLiteral("Internal error: %1 not found\n").arg(component)));
    QVERIFY(!PyErr_Occurred());
}

void TestPython::lookupOfAVeryLongNameIsReportedWhole()
{
    QByteArray const name(20000, 'n');
    QVERIFY(!python.pyLookup(name.constData()));
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: %1 not found\n").arg(QString::fromLatin1(name))));
}

void TestPython::lookupIgnoresWhyAnImportFailed()
{
    QVERIFY(!python.pyLookup("vembroken.member"));
    QCOMPARE(python.takeErrors(), QStringList(QStringLiteral("Internal error: vembroken not found\n")));
    QCOMPARE(python.takeStderr(), QString());
    QVERIFY(!PyErr_Occurred());
}

void TestPython::lookupAnswersABorrowedReference()
{
    PyObject* const module = python.pyLookup("cli");
    PyObject* const type = python.pyLookup("bdb.BdbQuit");
    Py_ssize_t const moduleBefore = referencesTo(module);
    Py_ssize_t const typeBefore = referencesTo(type);
    for (int round = 0; round < 100; ++round) {
        QCOMPARE(python.pyLookup("cli"), module);
        QCOMPARE(python.pyLookup("bdb.BdbQuit"), type);
        QVERIFY(python.pyValue("cli", "name"));
    }
    QCOMPARE(referencesTo(module), moduleBefore);
    QCOMPARE(referencesTo(type), typeBefore);
}

void TestPython::valueOfModuleAndDictionary()
{
    python.py("table = {'key': 'item'}");
    QCOMPARE(python.pyString(python.pyValue("table", "key")), "item");
    QCOMPARE(python.pyString(python.pyValue("cli", "name")), "cli");
    QCOMPARE(python.errors, QStringList());
}

void TestPython::missingKeyIsSilent()
{
    QVERIFY(!python.pyValue("cli", "__version__"));
    QCOMPARE(python.errors, QStringList());
    QVERIFY(!PyErr_Occurred());
}

void TestPython::valueOfAnUnknownNameIsReportedTwice()
{
    QVERIFY(!python.pyValue("no.such", "key"));
    QCOMPARE(
        python.takeErrors(), QStringList(
                                 {QStringLiteral("Internal error: no not found\n"),
                                  QStringLiteral("Internal error: no.such not found\n")}));
}

void TestPython::valueOfWhatHoldsNothingIsNull()
{
    python.py("number = 3");
    QVERIFY(!python.pyValue("number", "key"));
    QVERIFY(!PyErr_Occurred());
}

void TestPython::assignSetsModuleAndDictionaryItems()
{
    python.py("table = {}");
    PyRef const value = PyRef::steal(PyList_New(0));
    python.pyAssign("sys", "vemAssigned", value.get());
    python.pyAssign("table", "key", value.get());
    QCOMPARE(referencesTo(value.get()), 3);
    QCOMPARE(python.pyValue("sys", "vemAssigned"), value.get());
    QCOMPARE(python.pyValue("table", "key"), value.get());
    QCOMPARE(python.errors, QStringList());
}

void TestPython::assignThatFailsIsReported()
{
    python.py("number = 3");
    python.pyAssign("number", "key", Py_None);
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: python exception occurred from C code\n")));
    python.pyAssign("sys", "vemNothing", nullptr);
    QCOMPARE(
        python.takeErrors(), QStringList(QStringLiteral("Internal error: cannot assign sys.vemNothing\n")));
    python.pyAssign("no.such", "key", Py_None);
    QCOMPARE(python.takeErrors().last(), QStringLiteral("Internal error: no.such not found\n"));
    QVERIFY(!PyErr_Occurred());
}

void TestPython::assignGlobalSetsAndIgnoresFailure()
{
    PyRef const value = PyRef::steal(PyList_New(0));
    python.pyAssignGlobal("assigned", value.get());
    QCOMPARE(python.pyLookup("assigned"), value.get());
    QCOMPARE(referencesTo(value.get()), 2);
    python.pyAssignGlobal("assigned\xff", value.get());
    python.pyAssignGlobal("assigned", nullptr);
    QCOMPARE(python.pyLookup("assigned"), value.get());
    QCOMPARE(python.errors, QStringList());
    QVERIFY(!PyErr_Occurred());
}

void TestPython::versionIsThatOfTheInterpreter()
{
    QCOMPARE(python.pyVersion(), long(Py_Version));
}

void TestPython::stringOfStrAndBytes()
{
    PyRef const text = python.pyr("'gr\\xfc\\xdfe \\U0001f40d'");
    QCOMPARE(
        python.pyString(text.get()), "gr\xc3\xbc\xc3\x9f"
                                     "e \xf0\x9f\x90\x8d");
    PyRef const bytes = python.pyr("b'raw \\xff'");
    QCOMPARE(python.pyString(bytes.get()), "raw \xff");
    PyRef const empty = python.pyr("''");
    QCOMPARE(python.pyString(empty.get()), "");
    QCOMPARE(python.errors, QStringList());
}

void TestPython::stringOfNoneIsSilentlyNull()
{
    QCOMPARE(python.pyString(Py_None), nullptr);
    QCOMPARE(python.errors, QStringList());
}

void TestPython::stringOfNullIsReported()
{
    QCOMPARE(python.pyString(nullptr), nullptr);
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: pyString passed NULL python object\n")));
}

void TestPython::stringOfAnotherTypeIsReported()
{
    PyRef const number = PyRef::steal(PyLong_FromLong(3));
    QCOMPARE(python.pyString(number.get()), nullptr);
    QCOMPARE(
        python.takeErrors(),
        QStringList(QStringLiteral("Internal error: python exception occurred from C code\n")));
    QVERIFY(python.takeStderr().contains(QLatin1String("TypeError")));
    QVERIFY(!PyErr_Occurred());
}

void TestPython::stringWithLoneSurrogatesKeepsTheRest()
{
    PyRef const text = python.pyr("'Jos' + b'\\xe9'.decode('utf-8', 'surrogateescape') + ' \\ud800'");
    QCOMPARE(python.pyString(text.get()), "Jos? ?");
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(python.errors, QStringList());
    QCOMPARE(python.takeStderr(), QString());
}

void TestPython::repairedStringsLiveAsLongAsTheirObjects()
{
    PyRef const first = python.pyr("'first \\udce9'");
    PyRef const second = python.pyr("'second \\udce9'");
    char const* const firstText = python.pyString(first.get());
    char const* const secondText = python.pyString(second.get());
    QCOMPARE(firstText, "first ?");
    QCOMPARE(secondText, "second ?");
    QCOMPARE(python.pyString(first.get()), firstText);
}

void TestPython::leftOverExceptionNeitherDisturbsNorCounts()
{
    python.py("table = {}\ndef useC(): return len(sorted([2, 1]))");
    PyErr_SetString(PyExc_KeyError, "left over");
    PyRef const called = python.pyCall("useC", "()");
    QCOMPARE(PyLong_AsLong(called.get()), 2);
    PyRef const method = python.pyMethodCall(python.pyLookup("table"), "keys", "()");
    QVERIFY(method);
    python.py("afterwards = len('abc')");
    PyRef const evaluated = python.pyr("afterwards");
    QCOMPARE(PyLong_AsLong(evaluated.get()), 3);
    QVERIFY(!python.pyValue("table", "missing"));
    QVERIFY(python.pyVersion() > 0);
    QCOMPARE(python.pyString(Py_None), nullptr);
    QCOMPARE(python.errors, QStringList());
    QVERIFY(PyErr_ExceptionMatches(PyExc_KeyError));
}

void TestPython::debuggerGetsTheObjectAndTheTerminal()
{
    python.py("class FakePdb:\n"
              "    def set_trace(self):\n"
              "        global traced\n"
              "        traced = (dbg, sys.stdout is sys.__stdout__, sys.stderr is sys.__stderr__)\n"
              "        raise KeyError('quit')\n"
              "sys.modules['pdb'] = FakePdb()\n");
    PyRef const subject = PyRef::steal(PyList_New(0));
    PyErr_SetString(PyExc_KeyError, "left over");
    python.pyDebug(subject.get());
    QVERIFY(!PyErr_Occurred());
    QCOMPARE(PyTuple_GetItem(python.pyLookup("traced"), 0), subject.get());
    QCOMPARE(python.text("str(traced[1:])"), QStringLiteral("(True, True)"));
    python.py("del sys.modules['pdb']");
}

void TestPython::sigintHandlerIsSwitched()
{
    python.setEnablePythonSIGINTHandler(false);
    struct sigaction action = {};
    sigaction(SIGINT, nullptr, &action);
    QVERIFY(action.sa_handler == SIG_DFL); // NOLINT(performance-no-int-to-ptr)
    python.setEnablePythonSIGINTHandler(true);
    sigaction(SIGINT, nullptr, &action);
    QVERIFY(action.sa_handler != SIG_DFL); // NOLINT(performance-no-int-to-ptr)
    QCOMPARE(
        python.text("str(signal.getsignal(signal.SIGINT) is signal.default_int_handler)"),
        QStringLiteral("True"));
    QCOMPARE(python.takeStderr(), QString());
}

QTEST_GUILESS_MAIN(TestPython)
#include "tst_python.moc"
