// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <QApplication>
#include <QMessageBox>

class TestYumIOReports final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void errorIsLoggedThenShown();
    void warningIsLoggedThenShown();
    void lineFeedAtTheEndGivesAnEmptyLine();
    void errorNumberGetsALineOfItsOwn();
    void workerWaitsForTheUser();

    void reportWithoutMarkHoldsItselfAlone();
    void reportHoldsTheErrorLinesSinceTheMark();
    void lastExpectedTypeSetsTheMark();
    void clearingForgetsTheMark();
    void valueStandsBeforeTheWords();
    void exceptionWithoutWordsGivesAnEmptyLine();
    void failedJobLeavesTheMarkUntilTheNextGuardedCall();
    void failedCallShowsWhatWasPrinted();
    void unexpectedExceptionShowsItsTracebackInTheLog();

    void streamsAreFiledByLine();
    void stderrLinesTakeTheirKindAndLevel();
    void logTakesLevelAndText();
    void onlyTheWholePrefixFeedsTheSolver();
    void printingReachesTheLog();
    void wrongArgumentsRaise_data();
    void wrongArgumentsRaise();
    void callsOutsideAJobDoNothing_data();
    void callsOutsideAJobDoNothing();
    void failureWithoutExceptionBecomesOne();

private:
    /// Raises within a frame that expects it, like a guarded call of the script that fails.
    void raiseExpected(QString const& exception);
};

void TestYumIOReports::raiseExpected(QString const& exception)
{
    PyRef const thrower = engine->object(
        QStringLiteral("__import__('types').SimpleNamespace(go=lambda: (_ for _ in ()).throw(%1))")
            .arg(exception));
    engine->pyExceptStart();
    engine->pyExceptExpect(engine->pyLookup("yum.Errors.YumBaseError"));
    PyRef const result = engine->pyMethodCall(thrower.get(), "go", "()");
    QVERIFY(engine->pyExceptMatches(result.get(), engine->pyLookup("yum.Errors.YumBaseError")));
}

void TestYumIOReports::errorIsLoggedThenShown()
{
    QStringList logged;
    auto icon = QMessageBox::NoIcon;
    boxes->whileShown([&] {
        logged = engine->logLines(Log::Error);
        icon = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->icon();
    });
    engine->error(QStringLiteral("a fault"));
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "a fault", {"OK"}}}));
    QCOMPARE(logged, QStringList{"a fault"});
    QCOMPARE(icon, QMessageBox::Critical);
}

void TestYumIOReports::warningIsLoggedThenShown()
{
    QStringList logged;
    auto icon = QMessageBox::NoIcon;
    boxes->whileShown([&] {
        logged = engine->logLines(Log::Warning);
        icon = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())->icon();
    });
    engine->warning(QStringLiteral("a doubt"));
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Warning", "a doubt", {"OK"}}}));
    QCOMPARE(logged, QStringList{"a doubt"});
    QCOMPARE(icon, QMessageBox::Warning);
}

void TestYumIOReports::lineFeedAtTheEndGivesAnEmptyLine()
{
    engine->error("a fault\n");
    engine->warning("a doubt\n");
    QCOMPARE(engine->logLines(), (QStringList{"a fault", "", "a doubt", ""}));
    QCOMPARE(boxes->takeTexts(), (QStringList{"a fault\n", "a doubt\n"}));
}

void TestYumIOReports::errorNumberGetsALineOfItsOwn()
{
    engine->log(Log::Error, 0, QStringLiteral("repo: [Errno 14] no mirror"));
    QCOMPARE(engine->logLines(), (QStringList{"repo:", "[Errno 14] no mirror"}));
}

void TestYumIOReports::workerWaitsForTheUser()
{
    SCRIPT("def answer():\n"
           "    yumIOC.collectProgress(1, 2, 3)\n"
           "    standin.note('went on')\n"
           "standin.instead('setupRepos', answer)");
    QStringList callsWhileShown;
    bool waited = false;
    boxes->whileShown([&] {
        // The engine's lock is held by the waiting worker, so nothing can be asked of the script now.
        waited = engine->jobs.progress != nullptr && engine->entries.isEmpty();
    });
    QVERIFY(engine->collect({}));
    QVERIFY(waited);
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: unexpected progress name"});
    QVERIFY(engine->calls().contains("went on"));
}

void TestYumIOReports::reportWithoutMarkHoldsItselfAlone()
{
    engine->log(Log::Error, 0, QStringLiteral("earlier"));
    engine->pythonException(QStringLiteral("It failed"));
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"VEM Yum Error", "It failed", {"Close"}}}));
    QCOMPARE(engine->logLines(), (QStringList{"earlier", "It failed"}));
}

void TestYumIOReports::reportHoldsTheErrorLinesSinceTheMark()
{
    TestEngine::PyGILStateWrapper const lock(true);
    engine->log(Log::Error, 0, QStringLiteral("earlier"));
    engine->pyExceptStart();
    engine->pyExceptExpect(engine->pyLookup("yum.Errors.YumBaseError"));
    engine->log(Log::Error, 0, QStringLiteral("first"));
    engine->log(Log::Error, 2, QStringLiteral("second"));
    engine->log(Log::Error, 3, QStringLiteral("too detailed"));
    engine->log(Log::Info, 0, QStringLiteral("a note"));
    engine->log(Log::Warning, 0, QStringLiteral("a warning"));
    engine->log(Log::Output, 0, QStringLiteral("some output"));
    engine->log(Log::Action, 0, QStringLiteral("a heading"));
    engine->pythonException(QStringLiteral("It failed"));
    QCOMPARE(boxes->takeTexts(), QStringList{"first\nsecond\nIt failed"});
}

void TestYumIOReports::lastExpectedTypeSetsTheMark()
{
    TestEngine::PyGILStateWrapper const lock(true);
    engine->pyExceptStart();
    engine->pyExceptExpect(engine->pyLookup("yum.Errors.RepoError"));
    QCOMPARE(engine->logMark, 0);
    engine->log(Log::Error, 0, QStringLiteral("between"));
    engine->pyExceptExpect(engine->pyLookup("bdb.BdbQuit"));
    QCOMPARE(engine->logMark, 1);
    engine->pythonException(QStringLiteral("It failed"));
    QCOMPARE(boxes->takeTexts(), QStringList{"It failed"});
}

void TestYumIOReports::clearingForgetsTheMark()
{
    TestEngine::PyGILStateWrapper const lock(true);
    engine->pyExceptStart();
    engine->pyExceptExpect(engine->pyLookup("bdb.BdbQuit"));
    engine->pyExceptClear();
    QCOMPARE(engine->logMark, -1);
}

void TestYumIOReports::valueStandsBeforeTheWords()
{
    TestEngine::PyGILStateWrapper const lock(true);
    raiseExpected("yum.Errors.RepoError('no mirror')");
    engine->log(Log::Error, 0, QStringLiteral("logged later"));
    engine->pythonExceptionV(QStringLiteral("It failed"));
    QCOMPARE(boxes->takeTexts(), QStringList{"logged later\nno mirror\nIt failed"});
    // The exception was taken.
    raiseExpected("yum.Errors.RepoError('[Errno 5] a: [Errno 7] b')");
    engine->pythonException(QStringLiteral("It failed"));
    engine->pythonExceptionV(QStringLiteral("Once more"));
    QCOMPARE(
        boxes->takeTexts(), (QStringList{"It failed", "It failed\n[Errno 5] a:\n[Errno 7] b\nOnce more"}));
    engine->pythonExceptionV(QStringLiteral("And again"));
    QVERIFY(boxes->takeTexts().constFirst().endsWith("Once more\nAnd again"));
}

void TestYumIOReports::exceptionWithoutWordsGivesAnEmptyLine()
{
    TestEngine::PyGILStateWrapper const lock(true);
    for (QString const& exception :
         {QStringLiteral("yum.Errors.RepoError()"), QStringLiteral("yum.Errors.RepoError(None)")}) {
        raiseExpected(exception);
        engine->pythonExceptionV(QStringLiteral("It failed"));
        QCOMPARE(boxes->takeTexts(), QStringList{"\nIt failed"});
    }
}

void TestYumIOReports::failedJobLeavesTheMarkUntilTheNextGuardedCall()
{
    SCRIPT("standin.fail('lock', yum.Errors.LockError('held by 42'))");
    QVERIFY(!engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to obtain yum lock"});
    QCOMPARE(engine->logMark, 1);
    engine->pythonException(QStringLiteral("Also"));
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to obtain yum lock\nAlso"});
    TestEngine::PyGILStateWrapper const lock(true);
    engine->pyExceptStart();
    engine->pyExceptExpect(engine->pyLookup("bdb.BdbQuit"));
    QCOMPARE(engine->logMark, 3);
    engine->pyExceptClear();
}

void TestYumIOReports::failedCallShowsWhatWasPrinted()
{
    SCRIPT("import sys\n"
           "def answer():\n"
           "    yumIOC.log(0, 'a note')\n"
           "    yumIOC.errorlog(1, 'base: [Errno 4] no route')\n"
           "    yumIOC.errorlog(3, 'too detailed')\n"
           "    print('a hint', file=sys.stderr)\n"
           "    print('an output')\n"
           "    raise yum.Errors.RepoError('no mirror left')\n"
           "standin.instead('setupRepos', answer)");
    QVERIFY(!engine->collect({}));
    QCOMPARE(
        boxes->take(), (QList<Boxes::Box>{
                           {"VEM Yum Error",
                            "base:\n[Errno 4] no route\na hint\nno mirror left\nUnable to initialize",
                            {"Close"}}}));
    QVERIFY(engine->logLines(Log::Output).contains("an output"));
}

void TestYumIOReports::unexpectedExceptionShowsItsTracebackInTheLog()
{
    SCRIPT("standin.fail('collectUpdates', ValueError('no such thing'))");
    QVERIFY(!engine->collect({}));
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: python exception occurred from C code\n",
                                "Internal error: execution of yumIO.collectUpdates failed"}));
    QStringList const errors = engine->logLines(Log::Error);
    QVERIFY(errors.contains("Traceback (most recent call last):"));
    QVERIFY(errors.contains("ValueError: no such thing"));
}

void TestYumIOReports::streamsAreFiledByLine()
{
    SCRIPT("yumIOC.stdoutWrite('one\\ntw')\nyumIOC.stderrWrite('bad')\nyumIOC.stdoutWrite('o\\n\\nthree')");
    QCOMPARE(engine->logLines(Log::Output), (QStringList{"one", "two", ""}));
    QCOMPARE(engine->logLines(Log::Error), QStringList());
    SCRIPT("yumIOC.stderrWrite('\\n')");
    QCOMPARE(engine->logLines(Log::Error), QStringList{"bad"});
}

void TestYumIOReports::stderrLinesTakeTheirKindAndLevel()
{
    engine->stderrKind = Log::Info;
    engine->stderrLevel = 2;
    SCRIPT("yumIOC.stderrWrite('a line\\n')");
    engine->stderrKind = Log::Error;
    engine->stderrLevel = 0;
    SCRIPT("yumIOC.stderrWrite('another\\n')");
    QCOMPARE(engine->logLines(Log::Info), QStringList{"a line (2)"});
    QCOMPARE(engine->logLines(Log::Error), QStringList{"another"});
}

void TestYumIOReports::logTakesLevelAndText()
{
    SCRIPT("yumIOC.log(5, 'caf\\u00e9\\nnext')\nyumIOC.errorlog(2, 'fault')\nyumIOC.log(-1, 'odd')\n"
           "yumIOC.warninglog(1, 'skipped')");
    QCOMPARE(
        engine->logLines(),
        (QStringList{
            QStringLiteral("caf\u00e9 (5)"), "next (5)", "fault (2)",
            QStringLiteral("odd (%1)").arg(std::numeric_limits<unsigned>::max()), "skipped (1)"}));
    QCOMPARE(engine->logEntries.at(0).kind, Log::Info);
    QCOMPARE(engine->logEntries.at(2).kind, Log::Error);
    QCOMPARE(engine->logEntries.at(4).kind, Log::Warning);
}

void TestYumIOReports::onlyTheWholePrefixFeedsTheSolver()
{
    SCRIPT("yumIOC.log(2, 'TSINFO:Updating x y')\nyumIOC.log(2, ' TSINFO: Updating x y')\n"
           "yumIOC.log(2, 'tsinfo: Updating x y')\nyumIOC.errorlog(2, 'TSINFO: Updating x y')");
    QCOMPARE(boxes->takeTexts(), QStringList());
    SCRIPT("yumIOC.log(2, 'TSINFO: Updating x y')");
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: TSINFO mentions unknown package: x"});
    QVERIFY(engine->logLines(Log::Info).contains("TSINFO: Updating x y (2)"));
}

void TestYumIOReports::printingReachesTheLog()
{
    TestEngine::PyGILStateWrapper const lock(true);
    SCRIPT("import sys\nprint('said')\nprint('complained', file=sys.stderr)");
    QCOMPARE(engine->logLines(Log::Output), QStringList{"said"});
    QCOMPARE(engine->logLines(Log::Error), QStringList{"complained"});
}

void TestYumIOReports::wrongArgumentsRaise_data()
{
    QTest::addColumn<QString>("exception");
    auto const row = [](char const* call, char const* exception = "TypeError") {
        QTest::newRow(call) << QString::fromLatin1(exception);
    };
    row("stdoutWrite()");
    row("stdoutWrite(5)");
    row("stderrWrite(b'bytes')");
    row("stderrWrite('a\\0b')", "ValueError");
    row("stderrWrite('a\\udce9')", "UnicodeEncodeError");
    row("log('text')");
    row("log('1', 'text')");
    row("log(2**70, 'text')", "OverflowError");
    row("warninglog(1)");
    row("errorlog(1)");
    row("errorlog(1, None)");
    row("collectProgress(1, 2)");
    row("collectProgress('1', 2, 'x')");
    row("collectGrabMeterStart('f', 'u', 'b', 1)");
    row("collectGrabMeterStart(None, 'u', 'b', 1, None)");
    row("collectGrabMeterUpdate('1')");
    row("collectGrabMeterEnd(None)");
    row("applyGrabMeterStart('f', 'u', 'b', None, None)");
    row("applyGrabMeterStart('f', 'u', 'b', 2**70, None)", "OverflowError");
    row("applyGrabMeterUpdate()");
    row("applyGrabMeterEnd('1')");
    row("dsTsCheck(1)");
    row("dsRestartLoop(1)");
    row("userconfirm(1)");
    row("confirmKey()");
    row("confirmKey('l', 'r', 'p', 'u', 'f', 'k', '5', 0)");
    row("confirmKey('l', 'r', 'p', None, 'f', 'k', 5, 0)");
    row("reportDownloadSize()");
    row("reportDownloadSize(5)");
    row("listTransaction()");
    row("tsInitCallback(None)");
    row("tsCallback(1, 2, 3, None)");
    row("tsCallback('1', 2, 3, None, None)");
    row("tsEvent('x', 10, 1, 2, 3)");
    row("tsEvent('x', '10', 1, 2, 3, 4)");
    row("postTransactionOutput()");
}

void TestYumIOReports::wrongArgumentsRaise()
{
    QString const raised = engine->script(QStringLiteral("yumIOC.") + QTest::currentDataTag());
    QFETCH(QString, exception);
    QVERIFY2(raised.contains("\n" + exception + ": "), qPrintable(raised));
}

void TestYumIOReports::callsOutsideAJobDoNothing_data()
{
    QTest::addColumn<QString>("answer");
    QTest::newRow("collectProgress(1, 2, 'x')") << "None";
    QTest::newRow("collectProgress(-1, -1, None)") << "None";
    QTest::newRow("collectGrabMeterStart('f', 'u', 'b', 1, None)") << "None";
    QTest::newRow("collectGrabMeterUpdate(5)") << "None";
    QTest::newRow("collectGrabMeterEnd(5)") << "None";
    QTest::newRow("applyGrabMeterStart('f', 'u', 'b', 5, 'x')") << "None";
    QTest::newRow("applyGrabMeterUpdate(5)") << "None";
    QTest::newRow("applyGrabMeterEnd(5)") << "None";
    QTest::newRow("dsTsCheck()") << "None";
    QTest::newRow("dsRestartLoop()") << "None";
    QTest::newRow("userconfirm()") << "0";
    QTest::newRow("confirmKey('l', 'r', 'p', 'u', 'f', 'k', 5, 0)") << "0";
    QTest::newRow("tsInitCallback(0)") << "None";
    QTest::newRow("tsInitCallback(1)") << "None";
    QTest::newRow("tsCallback(2, 0, 5, ({'name': 'x'}, ''), None)") << "None";
    QTest::newRow("tsEvent('x', 40, 0, 1, 1, 1)") << "None";
}

void TestYumIOReports::callsOutsideAJobDoNothing()
{
    QTEST(engine->value(QStringLiteral("yumIOC.") + QTest::currentDataTag()), "answer");
}

void TestYumIOReports::failureWithoutExceptionBecomesOne()
{
    QString const raised = engine->script("yumIOC.listTransaction(object())");
    QVERIFY2(raised.contains("\nRuntimeError: Internal error: "), qPrintable(raised));
    QVERIFY(!boxes->takeTexts().isEmpty());
}

QTEST_MAIN(TestYumIOReports)
#include "tst_yumioreports.moc"
