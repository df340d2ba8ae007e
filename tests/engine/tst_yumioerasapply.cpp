// SPDX-License-Identifier: GPL-2.0-or-later
// One apply from the marks to the end of the transaction, with every release's forms: run once per release.
#include "EngineTest.h"
#include "EraForm.h"
#include "engine/TransactionWeight.h"

namespace
{

/// Of the transaction that the test applies: hazel and ivy are put in beside elm, which obsoletes birch,
/// alder is updated from its copy on disk, and cedar removed.
constexpr Steps elm = 500, hazel = 50000, ivy = 20000, alder = 200000, oldAlder = 100000, cedar = 30000,
                birch = 60000;
constexpr Steps bytesToFetch = minimumWeight + hazel + ivy;
constexpr Steps bytesInAll = bytesToFetch + alder;
constexpr Steps workInAll = minimumWeight + 3 * hazel + 3 * ivy + 3 * alder + oldAlder / 5 + cedar + birch;

} // namespace

class TestYumIOErasApply final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void applyRunsFromSolvingToTheEnd();
    void refusedApplyLeavesTheMarks();
    void updateIsInstalledWhereTheScriptTellsWhatItReplaces();

private:
    static EraForm const& form() { return eraForm(era().toStdString()); }
    void expectSolving(Progress& model) const;
    void expectTransaction(Progress& model) const;
    void markForApply();
};

void TestYumIOErasApply::markForApply()
{
    package("alder")->action = Package::Update;
    package("elm")->action = Package::Install;
    package("cedar")->action = Package::Remove;
    group("Shrubs")->action = Package::Install;
}

void TestYumIOErasApply::expectSolving(Progress& model) const
{
    // Two for the update, one for each of the others; alder and hazel lack their headers.
    Steps packages = 5;
    Steps headers = form().headers ? 2 : 0;
    model.startTotal("Checking Dependencies: Total Progress", 10000);
    model.startItem("Preparing", 100, 1);
    model.setupItemActs(9900, packages + headers * 10);
    Steps act = packages;
    Steps const firstPass = packages;
    model.startItemAct("Resolve Dependencies", 1, act);
    packages += 1;
    headers += form().headers ? 1 : 0;
    model.changeItemActs(firstPass + headers * 10);
    if (form().headers) {
        for (char const* const name : {"hazel-4-2", "ivy-1.0-1"}) {
            act += 10;
            model.startItemAct(QStringLiteral("Downloading %1.noarch header").arg(name), 3000, act);
            model.setItemValue(3000);
        }
    }
    model.changeItemActs(firstPass + packages + headers * 10);
    act += packages;
    model.startItemAct("Resolve Dependencies", 1, act);
    model.endItemActs();
    model.reset();
}

void TestYumIOErasApply::expectTransaction(Progress& model) const
{
    Steps const fetchSteps = bytesToFetch * 24000 / bytesInAll;
    model.startTotal(
        "Running Transaction: Total Progress",
        fetchSteps + (form().presto ? 2000 : 0) + (form().transTest ? 2000 : 0) + 9100);
    model.startItem("Preparing", 100, 1);
    model.setupItemActs(fetchSteps, bytesToFetch);
    // The position counts on from where solving ended.
    Steps act = (form().headers ? 20 : 0) + 5 + 6;
    auto const step = [&](QString const& text, Steps weight, Steps max) {
        act += weight;
        model.startItemAct(text, max, act);
        model.setItemValue(max);
    };
    step("Downloading elm-1.0-1.noarch", minimumWeight, elm);
    step("Downloading hazel-4-2.noarch", hazel, hazel);
    step("Downloading ivy-1.0-1.noarch", ivy, ivy);
    model.endItemActs();
    if (form().presto) {
        model.startItem("Finishing RPM rebuild from deltas", 2000, form().rebuilds ? 3 : 1);
        model.setItemValue(form().rebuilds ? 3 : 1);
    }
    act = 0;
    if (form().transTest) {
        model.startItem("Preparing to Test Transaction", 1000, 1);
        model.setupItemActs(1000, workInAll / 20);
        step("Transaction Test", workInAll / 20, 6);
        model.endItemActs();
        act = 0;
    }
    model.startItem("Preparing to Run Transaction", 1000, 1);
    model.setupItemActs(8000, workInAll + workInAll / 20);
    bool const events = form().events;
    if (!events) {
        step("Transaction Test", workInAll / 20, 6);
    }
    step("Installing ivy", 3 * ivy, ivy);
    // An obsoleting package counts as an update where the release tells it.
    step(events ? "Updating elm" : "Installing elm", minimumWeight, elm);
    step("Installing hazel", 3 * hazel, hazel);
    step("Updating alder", 3 * alder, alder);
    step("Removing cedar", cedar, events ? cedar : 9);
    step("Completing update for: alder", oldAlder / 5, events ? oldAlder : 9);
    // What is obsoleted has no newer version of its own to clean up after.
    step(events ? "Completing update for: birch" : "Removing birch", events ? 0 : birch, events ? birch : 9);
    model.endItemActs();
}

void TestYumIOErasApply::applyRunsFromSolvingToTheEnd()
{
    QVERIFY(collected());
    markForApply();
    boxes->press({"OK"});
    QVERIFY(engine->apply());

    QString const text = QStringLiteral("Transaction to be performed:\n"
                                        "\tInstall: elm 1.0-1 (noarch) [base]\n"
                                        "\tInstall: hazel 00:4-2 (noarch) [base]\n"
                                        "\tUpdate: alder 2.0-1 (x86_64) [updates]\n"
                                        "\tRemove: cedar 1.0-1 (noarch)\n"
                                        "Performing the following to resolve dependencies:\n"
                                        "\tInstall: ivy 1.0-1 (noarch) [base]\n"
                                        "Other Transactions:\n"
                                        "\tObsoleting: birch 1:3.1-2 (noarch) with elm 1.0-1 (noarch)\n"
                                        "Total download size: 69Kb\n");
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"Apply", text, {"OK", "Cancel"}}}));
    QCOMPARE(engine->run.totalBytes, bytesInAll);
    QCOMPARE(engine->run.downloadBytes, bytesToFetch);
    QCOMPARE(engine->run.transactionActs, workInAll);
    QStringList calls = engine->calls();
    calls.removeAll("usesPresto");
    QCOMPARE(
        calls,
        (QStringList{
            "apply", "installs elm-1.0-1.noarch.rpm, hazel-4-2.noarch.rpm",
            "updates alder-2.0-1.x86_64.rpm <- alder-1.0-1.x86_64.rpm", "removes cedar-1.0-1.noarch.rpm",
            "userconfirm: 1", "postTransactionOutput: ''", "flush"}));

    ProgressRecord expected;
    {
        Progress model(totalBar.get(), itemBar.get());
        expected.follow(&model);
        expectSolving(model);
        expectTransaction(model);
    }
    QCOMPARE(engine->progressRecord.lines, expected.lines);
    QCOMPARE(engine->logLines(Log::Action), (QStringList{"Applying", "Applying: OK"}));
    QCOMPARE(
        engine->logLines(Log::Info).filter("(1)"),
        (QStringList{
            "Installing ivy (1)", form().events ? "Updating elm (1)" : "Installing elm (1)",
            "Installing hazel (1)", "Updating alder (1)"}));
    QCOMPARE(engine->logLines(Log::Info).filter("For group").size(), 2);
    QVERIFY(engine->logLines().contains("For group Shrubs, marking package hazel for Install (4)"));
    QVERIFY(engine->logLines().contains("For group Shrubs, package elm already was marked for Install (4)"));
    QCOMPARE(engine->logLines(Log::Error), QStringList());
}

void TestYumIOErasApply::refusedApplyLeavesTheMarks()
{
    QVERIFY(collected());
    markForApply();
    boxes->press({"Cancel"});
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->take().size(), 1);
    QVERIFY(engine->calls().contains("userconfirm: 0"));
    QCOMPARE(engine->logLines(Log::Action), (QStringList{"Applying", "Not Applying: Canceled"}));
    QCOMPARE(package("alder")->action, Package::Update);
    QCOMPARE(package("hazel")->action, Package::None);
    QCOMPARE(group("Shrubs")->action, Package::Install);
    ProgressRecord expected;
    {
        Progress model(totalBar.get(), itemBar.get());
        expected.follow(&model);
        expectSolving(model);
    }
    QCOMPARE(engine->progressRecord.lines, expected.lines);
}

void TestYumIOErasApply::updateIsInstalledWhereTheScriptTellsWhatItReplaces()
{
    QVERIFY(collected());
    package("dogwood")->action = Package::Update;
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to find installed version for package update dogwood"});
    QCOMPARE(engine->calls(), QStringList());

    engine->clear();
    // One that answers to any name has not told it.
    SCRIPT("dogwood = standin.world.find('updates', 'dogwood')\n"
           "dogwood.replaces = [standin.world.find('installed', 'cedar')]");
    QVERIFY(collected());
    package("dogwood")->action = Package::Update;
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Unable to find installed version for package update dogwood"});

    engine->clear();
    SCRIPT("standin.replacing('dogwood', 'cedar')");
    QVERIFY(collected());
    package("dogwood")->action = Package::Update;
    boxes->press({"OK"});
    QVERIFY(engine->apply());
    QString const shown = QStringLiteral("\tInstall: dogwood 5.0-1 (noarch) [updates]\n");
    QVERIFY(boxes->takeTexts().first().contains(shown));
    QVERIFY(engine->calls().contains("installs dogwood-5.0-1.noarch.rpm"));
    QVERIFY(engine->calls().contains("updates "));
    QCOMPARE(engine->logLines(Log::Error), QStringList());
}

QTEST_MAIN(TestYumIOErasApply)
#include "tst_yumioerasapply.moc"
