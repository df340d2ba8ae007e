// SPDX-License-Identifier: GPL-2.0-or-later
// Collection and queries with every release's forms: run once per release.
#include "EngineTest.h"
#include "EraForm.h"

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
    void cleaningAllIncludesPicklesWhereThereAre();

private:
    static EraForm const& form() { return eraForm(era().toStdString()); }
    QString columns(Package::Entry const* entry);
    void expectLoading(Progress& model, QString const& contents) const;
};

/// The columns of an entry and of the chain behind it.
QString TestYumIOEras::columns(Package::Entry const* entry)
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
            lines.append(columns(entry));
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
