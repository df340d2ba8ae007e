// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <unistd.h>

class TestYumIOApply final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void nothingMarkedGivesEmptyLists();
    void marksAreSplitIntoThreeLists();
    void suitesGoAlongAndGroupsDoNot();
    void updateWithoutInstalledVersionStopsTheApply();
    void updateThatReplacesOthersIsInstalled();
    void headersOnDiskAreNotCounted();
    void entriesWithoutPackageAreReported();

    void onlyAcceptingConfirms_data();
    void onlyAcceptingConfirms();
    void onlyAnAgreementImportsAKey_data();
    void onlyAnAgreementImportsAKey();
    void interpreterIsFreeWhileAKeyIsAskedAbout();
    void barsAreEmptyWhileTheUserIsAsked();
    void emptyTransactionHasNothingToFetch();
    void questionMayBeAskedAgain();

    void expectedErrorIsShownWithItsLines();
    void barsStandWhileAFailureIsTold();
    void expectedErrorIsShownWithTheLastOutput_data();
    void expectedErrorIsShownWithTheLastOutput();
    void brokenPipeIsToldAsSuch_data();
    void brokenPipeIsToldAsSuch();
    void otherExceptionsEndWellForTheEngine_data();
    void otherExceptionsEndWellForTheEngine();
    void unexpectedExceptionAfterConsentStillRebuilds();
    void missingApplyIsReported();
    void failedFlushChangesNothing();
    void applyWorksAgainAfterAFailure();
    void everyApplyStartsFromNothing();

    void outputOfChildrenIsCaptured();
    void descriptorsAreBackAfterAFailure();

private:
    /// Has the script's apply run `body`, which knows `installs`, `updates` and `removes`.
    void applyDoes(QString const& body);
    QStringList callsOf(QString const& prefix) { return engine->calls().filter(prefix); }
};

void TestYumIOApply::init()
{
    EngineTest::init();
    QVERIFY(collected());
}

void TestYumIOApply::applyDoes(QString const& body)
{
    QString indented = body;
    indented.replace(QLatin1Char('\n'), QStringLiteral("\n    "));
    QCOMPARE(
        engine->script(QStringLiteral("import os, sys\n"
                                      "def apply(installs, updates, removes):\n    %1\n"
                                      "standin.instead('apply', apply)")
                           .arg(indented)),
        QString());
}

void TestYumIOApply::nothingMarkedGivesEmptyLists()
{
    applyDoes("standin.note(repr((installs, updates, removes)))");
    QVERIFY(!engine->apply());
    QCOMPARE(engine->calls(), (QStringList{"apply", "([], [], [])", "flush"}));
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startTotal("Checking Dependencies: Total Progress", 10000);
                 model.startItem("Preparing", 100, 1);
                 model.reset();
             }));
}

void TestYumIOApply::marksAreSplitIntoThreeLists()
{
    package("alder")->action = Package::Remove;
    package("cedar")->action = Package::Remove;
    package("elm")->action = Package::Install;
    package("dogwood")->action = Package::Install;
    applyDoes("standin.note(' '.join(sorted(str(one.pkgtup[:4]) for one in removes)))\n"
              "standin.note(' '.join(sorted(one.name for one in installs)))\n"
              "standin.note(str(updates))");
    QVERIFY(!engine->apply());
    // What can be updated is removed in the version that is installed.
    QCOMPARE(
        engine->calls(), (QStringList{
                             "apply", "('alder', 'x86_64', '0', '1.0') ('cedar', 'noarch', '0', '1.0')",
                             "dogwood elm", "[]", "flush"}));
    QCOMPARE(engine->run.nPkgs, 4U);

    engine->script("standin.calls.clear()");
    for (Package::Entry* const entry : *engine) {
        entry->action = Package::None;
    }
    package("alder")->action = Package::Update;
    applyDoes("standin.note(repr([type(one) for one in updates]))\n"
              "standin.note(repr([one.printVer() for one in updates[0]]))");
    QVERIFY(!engine->apply());
    QCOMPARE(engine->calls(), (QStringList{"apply", "[<class 'list'>]", "['2.0-1', '1.0-1']", "flush"}));
    QCOMPARE(engine->run.nPkgs, 2U);
}

void TestYumIOApply::suitesGoAlongAndGroupsDoNot()
{
    package("fir")->action = Package::Install;
    group("Hidden");
    group("Garden")->action = Package::Remove;
    group("Stones")->action = Package::None;
    applyDoes("standin.note(repr(([one.name for one in installs], updates, removes)))");
    QVERIFY(!engine->apply());
    QVERIFY(engine->calls().contains("(['fir'], [], [])"));
}

void TestYumIOApply::updateWithoutInstalledVersionStopsTheApply()
{
    package("elm")->action = Package::Install;
    package("dogwood")->action = Package::Update;
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to find installed version for package update dogwood"});
    QCOMPARE(engine->calls(), QStringList());
    QCOMPARE(package("elm")->action, Package::Install);
    QCOMPARE(package("dogwood")->action, Package::Update);
}

void TestYumIOApply::updateThatReplacesOthersIsInstalled()
{
    engine->clear();
    SCRIPT("standin.replacing('dogwood', 'cedar', 'birch')\nstandin.replacing('alder', 'cedar')\n"
           "standin.world.find('updates', 'dogwood').local_hdr = None");
    QVERIFY(collected());
    QCOMPARE(package("dogwood")->replaces, "cedar 1.0-1 (noarch), birch 1:3.1-2 (noarch)");
    for (Package::Entry* const entry : *engine) {
        if (entry->kind != Package::Group && entry->state == Package::OutOfDate) {
            entry->action = Package::Update;
        }
    }
    applyDoes("standin.note(' '.join(one.name for one in installs))\n"
              "standin.note(' '.join(new.name for new, _old in updates))\n"
              "standin.note(repr(removes))");
    QVERIFY(!engine->apply());
    // One that is installed itself is an update as any, whatever else it replaces.
    QCOMPARE(engine->calls(), (QStringList{"apply", "dogwood", "alder", "[]", "flush"}));
    QCOMPARE(engine->run.nPkgs, 3U);
    QCOMPARE(engine->run.nHdrs, 1U);
    QCOMPARE(package("dogwood")->action, Package::Update);
}

void TestYumIOApply::headersOnDiskAreNotCounted()
{
    SCRIPT("standin.world.find('available', 'hazel').local_hdr = None\n"
           "standin.world.find('updates', 'alder').local_hdr = '/no/such/file'");
    package("alder")->action = Package::Update;
    package("hazel")->action = Package::Install;
    package("elm")->action = Package::Install;
    package("cedar")->action = Package::Remove;
    applyDoes("yumIOC.dsTsCheck()");
    QVERIFY(!engine->apply());
    QCOMPARE(engine->run.nHdrs, 2U);
    QCOMPARE(engine->progressRecord.lines, told([](Progress& model) {
                 model.startTotal("Checking Dependencies: Total Progress", 10000);
                 model.startItem("Preparing", 100, 1);
                 model.setupItemActs(9900, 5 + 2 * 10);
                 model.startItemAct("Resolve Dependencies", 1, 5);
                 model.reset();
             }));
}

void TestYumIOApply::entriesWithoutPackageAreReported()
{
    {
        TestEngine::PyGILStateWrapper const lock(true);
        package("elm")->pyObject.reset();
        package("cedar")->pyObject.reset();
        package("alder")->pyObject.reset();
        package("alder")->installed->pyObject.reset();
    }
    package("elm")->action = Package::Install;
    package("cedar")->action = Package::Remove;
    package("alder")->action = Package::Update;
    applyDoes("standin.note(repr((installs, updates, removes)))");
    QVERIFY(!engine->apply());
    QStringList reports = boxes->takeTexts();
    reports.removeAll("Internal error: method localHdr call attemped with NULL self\n");
    reports.sort();
    QCOMPARE(
        reports,
        (QStringList{
            "Unable to add new package to pair for updated package alder",
            "Unable to add old package to pair for updated package alder",
            "Unable to add package cedar to removes list", "Unable to add package elm to installs list"}));
    QVERIFY(engine->calls().contains("([], [[]], [])"));
    QCOMPARE(engine->run.nPkgs, 4U);
}

void TestYumIOApply::onlyAcceptingConfirms_data()
{
    QTest::addColumn<bool>("accepted");
    QTest::newRow("OK") << true;
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << false;
}

void TestYumIOApply::onlyAcceptingConfirms()
{
    QFETCH(bool, accepted);
    applyDoes("standin.note(repr(yumIOC.userconfirm()))");
    boxes->press({QTest::currentDataTag()});
    QCOMPARE(engine->apply(), accepted);
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"Apply", "", {"OK", "Cancel"}}}));
    QVERIFY(engine->calls().contains(accepted ? "1" : "0"));
    QCOMPARE(
        engine->logLines(Log::Action),
        (QStringList{"Applying", accepted ? "Applying: OK" : "Not Applying: Canceled"}));
    QVERIFY(engine->calls().contains("flush"));
}

void TestYumIOApply::onlyAnAgreementImportsAKey_data()
{
    QTest::addColumn<bool>("agreed");
    QTest::newRow("Import Key") << true;
    QTest::newRow("Cancel") << false;
    QTest::newRow("Escape") << false;
}

void TestYumIOApply::onlyAnAgreementImportsAKey()
{
    QFETCH(bool, agreed);
    applyDoes("standin.note(repr(yumIOC.confirmKey('file:///key', 'base', 'elm', 'Ada', '653B6A0B', '6A0B', "
              "5, 0)))");
    boxes->press({QTest::currentDataTag()});
    engine->apply();
    QList<Boxes::Box> const seen = boxes->take();
    QCOMPARE(seen.size(), 1);
    QCOMPARE(seen.at(0).caption, QStringLiteral("Import Key"));
    QCOMPARE(seen.at(0).buttons, (QStringList{"Import Key", "Cancel"}));
    QVERIFY(engine->calls().contains(agreed ? "1" : "0"));
    QCOMPARE(
        engine->logLines(Log::Action),
        (QStringList{"Applying", agreed ? "Key 653B6A0B: OK" : "Key 653B6A0B: Canceled"}));
}

// The script's other threads go on, and so does the window that wants to ask the interpreter something.
void TestYumIOApply::interpreterIsFreeWhileAKeyIsAskedAbout()
{
    applyDoes("yumIOC.confirmKey('http://host/key', 'base', '', '', '', '', 0, 0)");
    QString caption;
    boxes->whileShown([&] { caption = engine->value("'free'"); });
    engine->apply();
    QCOMPARE(boxes->take().value(0).caption, QStringLiteral("Fetch Key"));
    QCOMPARE(caption, QStringLiteral("free"));
    // What only says where a key is, and isn't one yet, isn't noted.
    QCOMPARE(engine->logLines(Log::Action), QStringList("Applying"));
}

void TestYumIOApply::barsAreEmptyWhileTheUserIsAsked()
{
    package("elm")->action = Package::Install;
    applyDoes("yumIOC.dsTsCheck()\nyumIOC.userconfirm()");
    QString shown = QStringLiteral("not asked");
    bool enabled = true;
    boxes->whileShown([&] {
        shown = totalBar->text() + itemBar->text();
        enabled = totalBar->isEnabled() || itemBar->isEnabled();
    });
    engine->apply();
    QCOMPARE(boxes->take().size(), 1);
    QCOMPARE(shown, QString());
    QVERIFY(!enabled);
}

void TestYumIOApply::emptyTransactionHasNothingToFetch()
{
    SCRIPT("standin.instead('usesPresto', lambda: False)");
    applyDoes("yumIOC.userconfirm()");
    QVERIFY(engine->apply());
    boxes->take();
    QCOMPARE(engine->run.downloadActs, 0U);
    QVERIFY(engine->progressRecord.lines.contains("== Running Transaction: Total Progress, 9100 steps"));
}

void TestYumIOApply::questionMayBeAskedAgain()
{
    applyDoes("yumIOC.userconfirm()\nyumIOC.userconfirm()");
    boxes->press({"OK", "Cancel"});
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->take().size(), 2);
}

void TestYumIOApply::expectedErrorIsShownWithItsLines()
{
    package("elm")->action = Package::Install;
    applyDoes("yumIOC.userconfirm()\n"
              "yumIOC.errorlog(0, 'elm: [Errno 256] no more mirrors')\n"
              "print('a hint', file=sys.stderr)\n"
              "raise yum.Errors.YumBaseError('nothing fetched')");
    QVERIFY(!engine->apply());
    QList<Boxes::Box> const seen = boxes->take();
    QCOMPARE(seen.size(), 2);
    QCOMPARE(
        seen.at(1), (Boxes::Box{
                        "VEM Yum Error",
                        "elm:\n[Errno 256] no more mirrors\na hint\nnothing fetched\nError applying changes",
                        {"Close"}}));
    QVERIFY(!engine->calls().contains("flush"));
    QCOMPARE(package("elm")->action, Package::Install);
    QCOMPARE(engine->count(), 12);
    QVERIFY(!engine->jobs.progress);
    QVERIFY(!engine->jobs.capturers);
}

// How far it came is a part of the answer to what went wrong.
void TestYumIOApply::barsStandWhileAFailureIsTold()
{
    package("elm")->action = Package::Install;
    applyDoes("yumIOC.dsTsCheck()\nraise yum.Errors.YumBaseError('no way')");
    QString total;
    bool enabled = false;
    boxes->whileShown([&] {
        total = totalBar->text();
        enabled = totalBar->isEnabled();
    });
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    QVERIFY2(total.startsWith(QLatin1String("Checking Dependencies: Total Progress")), qUtf8Printable(total));
    QVERIFY(enabled);
}

void TestYumIOApply::expectedErrorIsShownWithTheLastOutput_data()
{
    QTest::addColumn<QString>("exception");
    QTest::addColumn<QString>("report");
    QTest::newRow("error of the library") << "yum.Errors.YumBaseError('it broke')"
                                          << "it broke\nError applying changes";
    QTest::newRow("broken pipe") << "BrokenPipeError(32, 'x')"
                                 << "Error applying changes: Exiting on Broken Pipe";
}

void TestYumIOApply::expectedErrorIsShownWithTheLastOutput()
{
    QFETCH(QString, exception);
    applyDoes(
        "os.system('echo of a child >&2')\nos.write(1, b'no fault\\n')\nos.write(2, b'last words\\n')\n"
        "raise " +
        exception);
    QVERIFY(!engine->apply());
    QFETCH(QString, report);
    QCOMPARE(boxes->takeTexts(), QStringList{"of a child\nlast words\n" + report});
    QVERIFY(engine->logLines(Log::Output).contains("no fault"));
}

void TestYumIOApply::brokenPipeIsToldAsSuch_data()
{
    QTest::addColumn<QString>("exception");
    QTest::newRow("BrokenPipeError(32, 'Broken pipe')") << "BrokenPipeError(32, 'Broken pipe')";
    QTest::newRow("IOError('gone')") << "IOError('gone')";
    QTest::newRow("FileNotFoundError('x')") << "FileNotFoundError('x')";
}

void TestYumIOApply::brokenPipeIsToldAsSuch()
{
    QFETCH(QString, exception);
    applyDoes("raise " + exception);
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Error applying changes: Exiting on Broken Pipe"});
    QVERIFY(!engine->calls().contains("flush"));
}

void TestYumIOApply::otherExceptionsEndWellForTheEngine_data()
{
    QTest::addColumn<QString>("exception");
    QTest::newRow("ValueError('odd')") << "ValueError('odd')";
    QTest::newRow("KeyboardInterrupt()") << "KeyboardInterrupt()";
    QTest::newRow("SystemExit(3)") << "SystemExit(3)";
    QTest::newRow("type('Odd', (Exception,), {'__str__': lambda self: 1/0})()")
        << "type('Odd', (Exception,), {'__str__': lambda self: 1/0})()";
}

void TestYumIOApply::otherExceptionsEndWellForTheEngine()
{
    QFETCH(QString, exception);
    applyDoes("raise " + exception);
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(engine->calls().contains("flush"));
}

void TestYumIOApply::unexpectedExceptionAfterConsentStillRebuilds()
{
    applyDoes("yumIOC.userconfirm()\n1/0");
    QVERIFY(engine->apply());
    QCOMPARE(boxes->take().size(), 2);
}

void TestYumIOApply::missingApplyIsReported()
{
    SCRIPT("standin.without('apply')");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method apply not found\n"});
}

void TestYumIOApply::failedFlushChangesNothing()
{
    applyDoes("yumIOC.userconfirm()");
    SCRIPT("standin.fail('flush', ValueError('odd'))");
    QVERIFY(engine->apply());
    QCOMPARE(boxes->take().size(), 2);
    engine->clear();
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(engine->collect({}));
}

void TestYumIOApply::applyWorksAgainAfterAFailure()
{
    applyDoes("raise yum.Errors.YumBaseError('once')");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    applyDoes("raise OSError('twice')");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Error applying changes: Exiting on Broken Pipe"});
    applyDoes("yumIOC.userconfirm()");
    QVERIFY(engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    engine->clear();
    QVERIFY(engine->collect({}));
}

void TestYumIOApply::everyApplyStartsFromNothing()
{
    package("elm")->action = Package::Install;
    applyDoes("import types\n"
              "from standintransaction import Member, TsInfo\n"
              "holder = types.SimpleNamespace(tsInfo=TsInfo(standin.era, updated=[\n"
              "    Member(standin.world.find('updates', 'alder'))]))\n"
              "yumIOC.dsTsCheck()\n"
              "yumIOC.listTransaction(holder)\n"
              "yumIOC.userconfirm()\n"
              "yumIOC.applyGrabMeterStart(None, None, None, 3, '<delta rebuild>')\n"
              "yumIOC.tsEvent('cedar', 40, 0, 1, 5, 5)");
    for (int round = 0; round < 2; ++round) {
        QVERIFY(engine->apply());
        QCOMPARE(
            boxes->takeTexts(),
            QStringList{"Transaction to be performed:\n\tUpdate: alder 2.0-1 (x86_64) [updates]\n"});
        QCOMPARE(engine->run.totalBytes, 200000ULL);
        QCOMPARE(engine->run.actsDone, 1ULL + 30000);
        QVERIFY(engine->run.updateNames.isEmpty());
    }
    applyDoes("pass");
    QVERIFY(!engine->apply());
    QVERIFY(!engine->run.deltaRebuild);
    QCOMPARE(engine->run.lastEventPkg, 0ULL);
    QCOMPARE(engine->run.totalBytes, 0ULL);
}

void TestYumIOApply::outputOfChildrenIsCaptured()
{
    applyDoes("os.write(1, b'from a scriptlet\\n')\n"
              "os.system('echo from a child; echo complaint of a child >&2')");
    QVERIFY(!engine->apply());
    QCOMPARE(engine->logLines(Log::Output), (QStringList{"from a scriptlet", "from a child"}));
    QCOMPARE(engine->logLines(Log::Error), QStringList{"complaint of a child"});
}

void TestYumIOApply::descriptorsAreBackAfterAFailure()
{
    auto const target = [](int descriptor) {
        char path[4096] = {};
        QByteArray const link = "/proc/self/fd/" + QByteArray::number(descriptor);
        return ::readlink(link.constData(), path, sizeof path - 1) > 0 ? QByteArray(path) : QByteArray();
    };
    QByteArray const before = target(1) + target(2);
    applyDoes("standin.note(os.readlink('/proc/self/fd/1'))\nraise yum.Errors.YumBaseError('x')");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    QVERIFY(engine->calls().constLast().startsWith("pipe:"));
    QCOMPARE(target(1) + target(2), before);
}

QTEST_MAIN(TestYumIOApply)
#include "tst_yumioapply.moc"
