// SPDX-License-Identifier: GPL-2.0-or-later
// From collection to apply with every release's forms: run once per release.
#include "EngineTest.h"
#include "engine/TransactionWeight.h"
#include "services/Progress.h"

#include <algorithm>

namespace
{

/// What differs from release to release, as far as it shows.
struct Form
{
    char const* version;
    long number;
    bool distribGroups;
    bool pickledCache;
    bool transTest;
    bool onePass;
    bool sqlite;
    bool headers;
    bool events;
    bool presto;
    bool rebuilds;
};

constexpr Form forms[] = {
    // version, number, distrib groups, pickled, test, one pass, sqlite, headers, events, presto, rebuilds
    {"2.2.1", 20201, false, true, true, false, false, true, false, false, false},
    {"2.3.1", 20301, false, true, true, false, false, true, false, false, false},
    {"2.4.0", 20400, false, true, true, false, true, true, false, false, false},
    {"2.5.0", 20500, true, true, true, false, true, true, false, false, false},
    {"2.9.1", 20901, true, true, true, false, false, false, false, false, false},
    {"3.0.6", 30006, true, false, true, false, true, false, false, false, false},
    {"3.1.6", 30106, true, false, true, false, false, false, false, false, false},
    {"3.1.7", 30107, true, false, true, true, false, false, false, false, false},
    {"3.2.2", 30202, true, false, true, true, true, false, false, true, false},
    {"3.2.3", 30203, true, false, false, true, true, false, false, false, false},
    {"3.2.19", 30219, true, false, false, true, true, false, true, true, true},
    {"4.14.0", 41400, true, false, false, true, true, false, true, false, false},
};

/// Of the transaction that the test applies: hazel and ivy are put in beside elm, which obsoletes birch,
/// alder is updated from its copy on disk, and cedar removed.
constexpr Steps elm = 500, hazel = 50000, ivy = 20000, alder = 200000, oldAlder = 100000, cedar = 30000,
                birch = 60000;
constexpr Steps bytesToFetch = minimumWeight + hazel + ivy;
constexpr Steps bytesInAll = bytesToFetch + alder;
constexpr Steps workInAll = minimumWeight + 3 * hazel + 3 * ivy + 3 * alder + oldAlder / 5 + cedar + birch;

} // namespace

class TestYumIOEras final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void versionDecidesTheForms();
    void collectionMergesPackagesByName();
    void collectionTellsTheStateOfGroups();
    void collectionCallsTheScriptInOrder();
    void loadingFollowsTheOrderOfTheRelease();
    void extraDataIsLoadedOnce();
    void detailsComeFromEitherForm();
    void groupsTellTheirMembers();
    void applyRunsFromSolvingToTheEnd();
    void refusedApplyLeavesTheMarks();
    void cleaningAllIncludesPicklesWhereThereAre();

private:
    static Form const& form();
    QString told(Package::Entry const* entry);
    void expectLoading(Progress& model, QString const& contents) const;
    void expectSolving(Progress& model) const;
    void expectTransaction(Progress& model) const;
    void markForApply();
};

Form const& TestYumIOEras::form()
{
    auto const found = std::find_if(
        std::begin(forms), std::end(forms), [](Form const& one) { return era() == one.version; });
    return found == std::end(forms) ? forms[0] : *found;
}

/// The columns of an entry and of the chain behind it.
QString TestYumIOEras::told(Package::Entry const* entry)
{
    QStringList links;
    for (Package::Entry const* link = entry; link; link = link->installed) {
        links.append(QStringList{
            link->name, link->verRel, link->arch, link->repo, engine->getState(*link), engine->getKind(*link),
            link->sizeText, link->summary, link->buildTimeText}
                         .join(QLatin1Char('|')));
    }
    return links.join(QStringLiteral(" <- "));
}

void TestYumIOEras::versionDecidesTheForms()
{
    QCOMPARE(era(), QString::fromLatin1(form().version));
    QCOMPARE(engine->yumVersionStr(), era());
    QCOMPARE(engine->yumVersion(), form().number);
    QCOMPARE(engine->hasDistribGroups(), form().distribGroups);
    QCOMPARE(engine->hasPickledCache(), form().pickledCache);
    QCOMPARE(engine->hasTransTest(), form().transTest);
    TestEngine::PyGILStateWrapper const lock(true);
    QCOMPARE(engine->usesSqlite(), form().sqlite);
    QCOMPARE(engine->usesPresto(), form().presto);
}

void TestYumIOEras::collectionMergesPackagesByName()
{
    QVERIFY(engine->collect({}));
    QStringList lines;
    for (Package::Entry const* const entry : *engine) {
        if (entry->kind != Package::Group) {
            lines.append(told(entry));
        }
    }
    lines.sort();
    QString const built = QStringLiteral("|Fri Jan  2 00:00:00 1970");
    QCOMPARE(
        lines,
        (QStringList{
            "alder|2.0-1|x86_64|updates|Available for update|Ordinary package|195Kb|A tree called alder" +
                built +
                " <- alder|1.0-1|x86_64|installed|Installed|Ordinary package|98Kb|A tree called alder" +
                built +
                " <- alder|0.9-1|x86_64|installed|Installed|Ordinary package|88Kb|A tree called alder" +
                built,
            "birch|1:3.1-2|noarch|installed|Installed|Ordinary package|59Kb|A tree called birch" + built,
            "cedar|1.0-1|noarch|installed|Installed|Ordinary package|29Kb|A tree called cedar" + built,
            "dogwood|5.0-1|noarch|updates|Available for update|Ordinary package|15Kb|A tree called dogwood" +
                built,
            "elm|1.0-1|noarch|base|Available for installation|Ordinary package|500b|A tree called elm" +
                built,
            "fir|2:1.5-3.1|noarch|base|Available for installation|Suite of packages|68Kb|A tree called fir" +
                built,
            "hazel|00:4-2|noarch|base|Available for installation|Ordinary package|49Kb|A tree called hazel" +
                built,
            "ivy|1.0-1|noarch|base|Available for installation|Ordinary package|20Kb|A tree called ivy" +
                built}));
    QCOMPARE(engine->count(), 12);
    QCOMPARE(engine->entryHash.size(), 12);
}

void TestYumIOEras::collectionTellsTheStateOfGroups()
{
    QVERIFY(engine->collect({}));
    // Its mandatory alder can be updated; with Stones that is only a default member.
    QCOMPARE(engine->getState(*group("Trees")), QStringLiteral("Available for update"));
    QCOMPARE(engine->getState(*group("Stones")), QStringLiteral("Installed"));
    QCOMPARE(engine->getState(*group("Shrubs")), QStringLiteral("Available for installation"));
    // Groups in groups are known to the older releases only; Garden holds Trees.
    QCOMPARE(group("Garden")->state, form().distribGroups ? Package::UpToDate : Package::OutOfDate);
    QVERIFY(!group("Hidden"));
    QCOMPARE(engine->getKind(*group("Trees")), QStringLiteral("Group of packages"));
    QCOMPARE(engine->logLines(Log::Action), QStringList{"Initialization"});
}

void TestYumIOEras::collectionCallsTheScriptInOrder()
{
    QVERIFY(engine->collect({{"testing", true}, {"unheard-of", true}}));
    QStringList calls = engine->calls();
    calls.removeAll("usesPresto");
    QCOMPARE(
        calls, (QStringList{
                   "lock", "enableRepo(testing)", "setupRepos", "setupTs", "collectUpdates", "collectAll",
                   "setupTsGroup", "collectGroupInfo"}));
    QVERIFY(engine->locked);
    QCOMPARE(engine->repoNames, (QStringList{"base", "updates", "testing"}));
}

void TestYumIOEras::expectLoading(Progress& model, QString const& contents) const
{
    model.setupItemActs(14000, 10);
    auto const act = [&](Steps at, QString const& message, QString const& repo, Steps max) {
        model.startItemAct(message.arg(contents, repo), max, at);
    };
    auto const index = [&](Steps block, QString const& repo) {
        act(block + 1, "Downloading repository %1 mirror list for %2", repo, 1);
        act(block + 2, "Downloading repository %1 repomd for %2", repo, 3000);
        model.setItemValue(3000);
    };
    // Where nothing is converted the position jumps over the act.
    auto const data = [&](Steps block, QString const& repo) {
        act(block + 1, "Downloading repository %1 for %2", repo, 40000);
        model.setItemValue(40000);
        if (form().sqlite) {
            act(block + 2, "Converting repository %1 for %2", repo, 100);
            model.setItemValue(100);
        }
        Steps const parsed = form().sqlite ? 1 : 100;
        act(block + 3, "Reading repository %1 for %2", repo, parsed);
        model.setItemValue(parsed);
    };
    if (form().onePass) {
        index(0, "base");
        data(2, "base");
        index(5, "updates");
        data(7, "updates");
    } else {
        index(0, "base");
        index(2, "updates");
        data(4, "base");
        data(7, "updates");
    }
    model.endItemActs();
}

void TestYumIOEras::loadingFollowsTheOrderOfTheRelease()
{
    QVERIFY(engine->collect({}));
    ProgressRecord expected;
    {
        Progress model(totalBar.get(), itemBar.get());
        expected.follow(&model);
        model.startTotal("Initializing: Total Progress", 24000);
        model.startItem("Preparing", 100, 1);
        model.startItem("Reading repositories", 900, 1);
        expectLoading(model, "contents");
        model.startItem("Collecting updatable packages", 4000, 1);
        model.startItem("Collecting installed and available packages", 4000, 1);
        model.startItem("Collecting groups", 1000, 1);
    }
    QCOMPARE(engine->progressRecord.lines, expected.lines);
    QVERIFY(expected.lines.contains("Collecting groups, up to 1, from step 23000"));
}

void TestYumIOEras::extraDataIsLoadedOnce()
{
    QVERIFY(collected());
    QVERIFY(engine->collectFileLists());
    QVERIFY(engine->collectFileLists());
    QVERIFY(engine->collectOtherData());
    QVERIFY(engine->collectOtherData());
    QCOMPARE(engine->calls().filter("collect"), (QStringList{"collectFileLists", "collectOtherData"}));
    ProgressRecord expected;
    for (QString const& contents : QStringList{"file lists", "miscellaneous data"}) {
        Progress model(totalBar.get(), itemBar.get());
        expected.follow(&model);
        model.startTotal(QStringLiteral("Loading %1: Total Progress").arg(contents), 15000);
        model.startItem("Reading repositories", 1000, 1);
        expectLoading(model, contents);
    }
    QCOMPARE(engine->progressRecord.lines, expected.lines);
    QCOMPARE(engine->logLines(), (QStringList{"Collecting File Lists", "Collecting Miscellaneous data"}));
}

void TestYumIOEras::detailsComeFromEitherForm()
{
    QVERIFY(collected());
    Package::Entry const& available = *package("hazel");
    QCOMPARE(engine->getRequires(available), QStringLiteral("acorn\nbark >= 1:3.2-1\nbough <= 2.0"));
    QCOMPARE(engine->getProvides(available), QStringLiteral("hazel = 1.0-1"));
    QCOMPARE(engine->getObsoletes(available), QStringLiteral("weed < 4"));
    QCOMPARE(engine->getConflicts(available), QString());
    QCOMPARE(engine->getFiles(available), QStringLiteral("/usr/share/hazel/a\n/usr/share/hazel/b"));
    QCOMPARE(
        engine->getChangeLog(available),
        QStringLiteral("* Sat Jan  3 1970 Ash <ash@example.org>\n- second\n\n"
                       "* Fri Jan  2 1970 Ash <ash@example.org>\n- first"));
    QCOMPARE(engine->getDescription(available), QStringLiteral("First line of hazel\n\nlast line"));
    QCOMPARE(engine->getVendor(available), QString());
    QCOMPARE(engine->getPackager(available), QString());
    QCOMPARE(engine->getBinaryRpm(available), QStringLiteral("hazel-4-2.noarch.rpm"));

    Package::Entry const& installed = *package("alder")->installed;
    QCOMPARE(engine->getRequires(installed), QStringLiteral("acorn <= 5\nbark <= 2:1.0"));
    QCOMPARE(engine->getFiles(installed), QStringLiteral("/etc/a\n/usr/bin/b"));
}

void TestYumIOEras::groupsTellTheirMembers()
{
    QVERIFY(collected());
    bool const objects = form().distribGroups;
    QCOMPARE(engine->getMandatoryPkgs(*group("Stones")), QStringLiteral("birch\npebble"));
    QCOMPARE(engine->getDefaultPkgs(*group("Trees")), QStringLiteral("birch"));
    QCOMPARE(engine->getOptionalPkgs(*group("Trees")), QStringLiteral("elm"));
    QCOMPARE(engine->getConditionalPkgs(*group("Trees")), objects ? QStringLiteral("fir") : QString());
    QCOMPARE(
        engine->getRequiredGroups(*group("Garden")),
        objects ? QString() : QStringLiteral("Nowhere\nShrubs\nTrees"));
    QCOMPARE(engine->getDefaultMetaPkgs(*group("Trees")), objects ? QString() : QStringLiteral("meta-Trees"));
    QCOMPARE(engine->getOptionalMetaPkgs(*group("Trees")), QString());
}

void TestYumIOEras::markForApply()
{
    package("alder")->action = Package::Update;
    package("elm")->action = Package::Install;
    package("cedar")->action = Package::Remove;
    group("Shrubs")->action = Package::Install;
}

void TestYumIOEras::expectSolving(Progress& model) const
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

void TestYumIOEras::expectTransaction(Progress& model) const
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

void TestYumIOEras::applyRunsFromSolvingToTheEnd()
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

void TestYumIOEras::refusedApplyLeavesTheMarks()
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

void TestYumIOEras::cleaningAllIncludesPicklesWhereThereAre()
{
    QVERIFY(engine->cleanAll());
    QStringList expected{"cleanHeaders", "cleanPackages", "cleanMetadata"};
    if (form().pickledCache) {
        expected.append("cleanPickles");
    }
    QCOMPARE(engine->calls(), expected);
}

QTEST_MAIN(TestYumIOEras)
#include "tst_yumioeras.moc"
