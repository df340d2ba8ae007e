// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

class TestYumIOGroupActions final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void groupsMarkTheirPackages_data();
    void groupsMarkTheirPackages();
    void optionalPackagesAreNotInstalledByAnUpdate();
    void installingTakesTheWholeTree();
    void unknownNamesAreSkipped();
    void groupsWithoutAMarkDoNothing();
    void suitesAreNotExpanded();
    void earlierGroupCountsForTheNext();
    void sharedPackageOfInstalledAndRemovedGroups();
    void removedGroupLeavesOutWhatWouldReplaceOthers();

    void conflictIsAskedWithThreeButtons_data();
    void conflictIsAskedWithThreeButtons();
    void secondConflictTellsOfTheFirst();
    void conflictWithAnotherGroupsMark();
    void unexpectedStateEndsTheApply();
    void canceledConflictEndsTheApply_data();
    void canceledConflictEndsTheApply();

    void brokenGroupsEndTheApply_data();
    void brokenGroupsEndTheApply();
    void brokenGroupsOfOldReleases();
    void removingABrokenGroupGoesOn();

private:
    /// Fills the table anew with groups of these mandatory packages.
    void collectGroups(QString const& groups);
    /// As the beginning of an apply; entries in the order of their names.
    bool resolve();
};

void TestYumIOGroupActions::init()
{
    EngineTest::init();
    collectGroups("Grove=['alder', 'birch', 'cedar', 'elm', 'nosuch'], Heath=['elm', 'cedar']");
}

void TestYumIOGroupActions::collectGroups(QString const& groups)
{
    QCOMPARE(
        engine->script(
            QStringLiteral("standin.world.groups = {name: standin.world.group(True, mandatory=names)\n"
                           "    for name, names in dict(%1).items()}")
                .arg(groups)),
        QString());
    engine->clear();
    QVERIFY(collected());
}

bool TestYumIOGroupActions::resolve()
{
    std::sort(engine->entries.begin(), engine->entries.end(), [](auto const* left, auto const* right) {
        return left->name < right->name;
    });
    for (Package::Entry* const entry : *engine) {
        entry->applyAction = entry->action;
        entry->applyCause = entry;
    }
    TestEngine::PyGILStateWrapper const lock(true);
    return engine->applyGroups();
}

void TestYumIOGroupActions::groupsMarkTheirPackages_data()
{
    QTest::addColumn<int>("groupAction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("line"); // in the log; empty: none
    auto const row = [](Package::Action groupAction, char const* name, Package::Action before,
                        Package::Action after, char const* line) {
        QTest::addRow("%d %s %d", groupAction, name, before)
            << int(groupAction) << QString::fromLatin1(name) << int(before) << int(after)
            << QString::fromLatin1(line);
    };
    using namespace Package;
    // alder is out of date, birch up to date, elm available.
    for (Action const groupAction : {Install, Update}) {
        row(groupAction, "alder", None, Update, "For group Grove, marking package alder for Update");
        row(groupAction, "elm", None, Install, "For group Grove, marking package elm for Install");
        row(groupAction, "birch", None, None, "");
        row(groupAction, "alder", Update, Update,
            "For group Grove, package alder already was marked for Update");
        row(groupAction, "alder", Install, Install,
            "For group Grove, package alder already was marked for Install");
        row(groupAction, "elm", Install, Install,
            "For group Grove, package elm already was marked for Install");
        row(groupAction, "birch", Update, Update,
            "For group Grove, package birch already was marked for Update");
    }
    row(Remove, "alder", None, Remove, "For group Grove, marking package alder for Remove");
    row(Remove, "birch", None, Remove, "For group Grove, marking package birch for Remove");
    row(Remove, "elm", None, None, "");
    // That it was marked already isn't told when removing.
    row(Remove, "birch", Remove, Remove, "For group Grove, marking package birch for Remove");
    row(Remove, "elm", Remove, Remove, "For group Grove, marking package elm for Remove");
}

void TestYumIOGroupActions::groupsMarkTheirPackages()
{
    QFETCH(int, groupAction);
    QFETCH(QString, name);
    QFETCH(int, before);
    QFETCH(QString, line);
    group("Grove")->action = static_cast<Package::Action>(groupAction);
    package(name)->action = static_cast<Package::Action>(before);
    QVERIFY(resolve());
    QTEST(int(package(name)->applyAction), "after");
    QCOMPARE(int(package(name)->action), before);
    QCOMPARE(package(name)->applyCause, package(name));
    QCOMPARE(
        engine->logLines(Log::Info).filter(" " + name + " "),
        line.isEmpty() ? QStringList() : QStringList{line + " (4)"});
    QCOMPARE(int(group("Grove")->applyAction), groupAction);
}

void TestYumIOGroupActions::optionalPackagesAreNotInstalledByAnUpdate()
{
    engine->setVersion("2.4.0");
    SCRIPT(
        "standin.become(groups='by name')\n"
        "standin.world.groups = {'Grove': standin.world.group(True, mandatory=['hazel'], default=['ivy'],\n"
        "    optional=['elm', 'alder', 'birch'])}");
    engine->clear();
    QVERIFY(collected());
    group("Grove")->action = Package::Update;
    QVERIFY(resolve());
    QCOMPARE(
        engine->logLines(Log::Info),
        (QStringList{
            "For group Grove, marking package hazel for Install (4)",
            "For group Grove, marking package ivy for Install (4)",
            "For group Grove, not marking package elm for Install, becuase the package is optional (4)",
            "For group Grove, marking package alder for Update (4)"}));
    QCOMPARE(package("elm")->applyAction, Package::None);
}

void TestYumIOGroupActions::installingTakesTheWholeTree()
{
    engine->setVersion("2.4.0");
    SCRIPT("standin.become(groups='by name')\n"
           "standin.world.groups = {'Grove': standin.world.group(False, mandatory=['hazel'], "
           "optional=['elm'])}");
    engine->clear();
    QVERIFY(collected());
    group("Grove")->action = Package::Install;
    QVERIFY(resolve());
    QCOMPARE(package("elm")->applyAction, Package::Install);
    // Old releases name the required ones alone when a group is to be removed.
    package("hazel")->state = package("elm")->state = Package::UpToDate;
    group("Grove")->action = Package::Remove;
    QVERIFY(resolve());
    QCOMPARE(package("hazel")->applyAction, Package::Remove);
    QCOMPARE(package("elm")->applyAction, Package::None);
}

void TestYumIOGroupActions::unknownNamesAreSkipped()
{
    collectGroups("Grove=['nosuch', 'Grove', 'elsewhere']");
    for (Package::Action const action : {Package::Install, Package::Update, Package::Remove}) {
        group("Grove")->action = action;
        QVERIFY(resolve());
        // A group's name among the packages means no group.
        QCOMPARE(group("Grove")->applyAction, action);
    }
    QCOMPARE(engine->logLines(), QStringList());
    QVERIFY(!engine->entryHash.contains(YumIO::EntryKey(false, "nosuch")));
}

void TestYumIOGroupActions::groupsWithoutAMarkDoNothing()
{
    QVERIFY(resolve());
    QCOMPARE(engine->logLines(), QStringList());
}

void TestYumIOGroupActions::suitesAreNotExpanded()
{
    package("fir")->action = Package::Install;
    QVERIFY(resolve());
    QCOMPARE(package("fir")->applyAction, Package::Install);
    QCOMPARE(engine->logLines(), QStringList());
}

void TestYumIOGroupActions::earlierGroupCountsForTheNext()
{
    group("Grove")->action = Package::Install;
    group("Heath")->action = Package::Install;
    QVERIFY(resolve());
    QCOMPARE(
        engine->logLines(Log::Info).filter(" elm "),
        (QStringList{
            "For group Grove, marking package elm for Install (4)",
            "For group Heath, package elm already was marked for Install (4)"}));
}

void TestYumIOGroupActions::sharedPackageOfInstalledAndRemovedGroups()
{
    collectGroups("Grove=['elm'], Heath=['elm']");
    group("Grove")->action = Package::Install;
    group("Heath")->action = Package::Remove;
    boxes->press({"Install"});
    QVERIFY(resolve());
    QCOMPARE(
        boxes->take(), (QList<Boxes::Box>{
                           {"Apply",
                            "Package elm is included in group Heath which was marked for Remove,\n"
                            "so the package would be marked for Install,\n"
                            "but it was marked individually for Install.\nHow do you wish to proceed?",
                            {"Install", "Install", "Cancel"}}}));
}

void TestYumIOGroupActions::removedGroupLeavesOutWhatWouldReplaceOthers()
{
    SCRIPT("standin.replacing('dogwood', 'cedar')");
    collectGroups("Grove=['alder', 'dogwood']");
    group("Grove")->action = Package::Remove;
    QVERIFY(resolve());
    QCOMPARE(package("alder")->applyAction, Package::Remove);
    QCOMPARE(package("dogwood")->applyAction, Package::None);
    group("Grove")->action = Package::Update;
    QVERIFY(resolve());
    QCOMPARE(package("dogwood")->applyAction, Package::Update);
}

void TestYumIOGroupActions::conflictIsAskedWithThreeButtons_data()
{
    QTest::addColumn<int>("groupAction");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("before");
    QTest::addColumn<QString>("wouldBe");
    QTest::addColumn<QString>("present");
    auto const row = [](Package::Action groupAction, char const* name, Package::Action before,
                        char const* wouldBe, char const* present) {
        QTest::addRow("%d %s %d", groupAction, name, before)
            << int(groupAction) << QString::fromLatin1(name) << int(before) << QString::fromLatin1(wouldBe)
            << QString::fromLatin1(present);
    };
    using namespace Package;
    for (Action const groupAction : {Install, Update}) {
        row(groupAction, "alder", Remove, "Update", "Remove");
        row(groupAction, "elm", Remove, "Install", "Remove");
        // What the package would get follows from its state alone.
        row(groupAction, "birch", Remove, "Remove", "Remove");
    }
    row(Remove, "alder", Update, "Update", "Update");
    row(Remove, "alder", Install, "Update", "Install");
    row(Remove, "elm", Install, "Install", "Install");
    row(Remove, "birch", Update, "Remove", "Update");
}

void TestYumIOGroupActions::conflictIsAskedWithThreeButtons()
{
    QFETCH(int, groupAction);
    QFETCH(QString, name);
    QFETCH(int, before);
    QFETCH(QString, wouldBe);
    QFETCH(QString, present);
    QStringList const actions{"Update", "Install", "Remove"};
    collectGroups(QStringLiteral("Grove=['%1']").arg(name));
    // The first press takes the would-be action, the second round's keeps the present one.
    for (QString const& pressed : QStringList{wouldBe, present}) {
        group("Grove")->action = static_cast<Package::Action>(groupAction);
        package(name)->action = static_cast<Package::Action>(before);
        boxes->press({pressed});
        QVERIFY(resolve());
        QCOMPARE(
            boxes->take(),
            (QList<Boxes::Box>{
                {"Apply",
                 QStringLiteral("Package %1 is included in group Grove which was marked for %2,\n"
                                "so the package would be marked for %3,\n"
                                "but it was marked individually for %4.\nHow do you wish to proceed?")
                     .arg(name, actions.at(groupAction), wouldBe, present),
                 {wouldBe, present, "Cancel"}}}));
        QCOMPARE(int(package(name)->applyAction), int(actions.indexOf(pressed)));
        QCOMPARE(int(package(name)->action), before);
        QVERIFY(!package(name)->applyCause);
        QCOMPARE(
            engine->logLines(Log::Info).constLast(),
            QStringLiteral("Manually resolving conflict: marking package %1 for %2 (4)").arg(name, pressed));
    }
}

void TestYumIOGroupActions::secondConflictTellsOfTheFirst()
{
    collectGroups("Grove=['elm'], Heath=['elm']");
    group("Grove")->action = Package::Install;
    group("Heath")->action = Package::Update;
    package("elm")->action = Package::Remove;
    boxes->press({"Remove", "Install"});
    QVERIFY(resolve());
    QCOMPARE(
        boxes->takeTexts().value(1),
        QStringLiteral("Package elm is included in group Heath which was marked for Update,\n"
                       "so the package would be marked for Install,\n"
                       "but you resolved an earlier conflict by marking it for Remove.\n"
                       "How do you wish to proceed?"));
    QCOMPARE(package("elm")->applyAction, Package::Install);
}

void TestYumIOGroupActions::conflictWithAnotherGroupsMark()
{
    Package::Entry* const heath = group("Heath");
    heath->applyAction = Package::Remove;
    package("elm")->applyAction = Package::Install;
    package("elm")->applyCause = group("Grove");
    boxes->press({"Cancel"});
    QVERIFY(!engine->applyGrpConflict(heath, package("elm")));
    QCOMPARE(
        boxes->takeTexts(),
        QStringList{"Package elm is included in group Heath which was marked for Remove,\n"
                    "so the package would be marked for Install,\n"
                    "but it also was part of group Grove and so was marked for Install.\n"
                    "How do you wish to proceed?"});
}

void TestYumIOGroupActions::unexpectedStateEndsTheApply()
{
    package("elm")->state = static_cast<Package::State>(3);
    package("elm")->action = Package::Remove;
    group("Grove")->action = Package::Install;
    QVERIFY(!resolve());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: applyGrpConflict unexpected package state\n"});
}

void TestYumIOGroupActions::canceledConflictEndsTheApply_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("Cancel") << "Cancel";
    QTest::newRow("Escape") << "Escape";
}

void TestYumIOGroupActions::canceledConflictEndsTheApply()
{
    QFETCH(QString, button);
    group("Grove")->action = Package::Install;
    package("elm")->action = Package::Remove;
    boxes->press({button});
    QString byReturn;
    boxes->whileShown([&byReturn] {
        auto const* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        byReturn = box && box->defaultButton() ? box->defaultButton()->text() : QString();
    });
    QVERIFY(!engine->apply());
    QCOMPARE(byReturn, QStringLiteral("Cancel"));
    QCOMPARE(boxes->take().size(), 1);
    QCOMPARE(engine->calls(), QStringList());
    QCOMPARE(package("elm")->action, Package::Remove);
    QCOMPARE(package("alder")->action, Package::None);
}

void TestYumIOGroupActions::brokenGroupsEndTheApply_data()
{
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("del group.mandatory_packages")
        << QStringList{"Internal error: group lacks required package lists"};
    QTest::newRow("del group.default_packages")
        << QStringList{"Internal error: group lacks required package lists"};
    QString const improper = "Internal error: group lacks required proper required package lists";
    QTest::newRow("group.default_packages = ['elm']")
        << QStringList{"Internal error: method keys not found\n", improper};
    QTest::newRow("group.mandatory_packages = type('D', (), {'keys': lambda self: 5})()")
        << QStringList{improper};
    QTest::newRow("group.mandatory_packages = type('D', (), {'keys': lambda self: 1/0})()")
        << QStringList{"Internal error: python exception occurred from C code\n", improper};
}

void TestYumIOGroupActions::brokenGroupsEndTheApply()
{
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    global group\n"
           "    group = collect(None)[0]\n"
           "    return [group]\n"
           "standin.instead('collectGroupInfo', answer)");
    engine->clear();
    QVERIFY(collected());
    QCOMPARE(engine->script(QTest::currentDataTag()), QString());
    for (Package::Action const action : {Package::Install, Package::Update}) {
        group("Grove")->action = action;
        QVERIFY(!engine->apply());
        QTEST(boxes->takeTexts(), "reports");
        QVERIFY(!engine->calls().contains("apply"));
    }
}

void TestYumIOGroupActions::brokenGroupsOfOldReleases()
{
    engine->setVersion("2.4.0");
    SCRIPT("standin.become(groups='by name')\n"
           "collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    global info\n"
           "    info = collect(None)\n"
           "    return info\n"
           "standin.instead('collectGroupInfo', answer)");
    engine->clear();
    QVERIFY(collected());
    SCRIPT("info.pkgTree = lambda name: {}[name]");
    QString const general = "Internal error: python exception occurred from C code\n";
    for (Package::Action const action : {Package::Install, Package::Update}) {
        group("Trees")->action = action;
        QVERIFY(!engine->apply());
        QCOMPARE(boxes->takeTexts(), QStringList{general});
    }
    SCRIPT("info.requiredPkgs = None");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: method requiredPkgs not callable\n"});
    // An answer that is no list names nothing.
    SCRIPT("info.pkgTree = info.requiredPkgs = lambda name: 5");
    QVERIFY(resolve());
}

void TestYumIOGroupActions::removingABrokenGroupGoesOn()
{
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    groups = collect(None)\n"
           "    del groups[0].optional_packages\n"
           "    return groups\n"
           "standin.instead('collectGroupInfo', answer)");
    engine->clear();
    QVERIFY(collected());
    group("Grove")->action = Package::Remove;
    group("Heath")->action = Package::Remove;
    QVERIFY(resolve());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: group lacks package lists"});
    QCOMPARE(package("cedar")->applyAction, Package::Remove);
    QCOMPARE(package("birch")->applyAction, Package::None);
}

QTEST_MAIN(TestYumIOGroupActions)
#include "tst_yumiogroupactions.moc"
