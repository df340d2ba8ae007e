// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOGroups final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void membersAreSortedLines();
    void listsOfTheOtherFormAreEmpty();
    void conditionalPackagesAreNotAskedOfOldReleases();
    void itemsOfTheWrongFormAreReported();
    void missingListsAreReported();
    void missingListsByNameAreReported();
    void namesOfOddTypes();
    void groupsWhoseListsRaiseAreReported();

    void stateOfAnInstalledGroup_data();
    void stateOfAnInstalledGroup();
    void stateOfAGroupThatHoldsGroups();
    void groupsAreJudgedByTheTableAlone();
    void flagThatCannotBeReadIsReportedAndTheOthersGoOn();

    void listsForMarks();
    void listsForMarksByName();

private:
    /// Fills the table anew with one group, "Grove", beside others if given.
    void collectGrove(QString const& members, QString const& others = QString());
    void becomeByName();
    QStringList names(PyRef list);
};

void TestYumIOGroups::collectGrove(QString const& members, QString const& others)
{
    QCOMPARE(
        engine->script(QStringLiteral("group = standin.world.group\n"
                                      "standin.world.groups = {%2 'Grove': group(%1)}")
                           .arg(members, others)),
        QString());
    engine->clear();
    QVERIFY(collected());
}

void TestYumIOGroups::becomeByName()
{
    engine->setVersion("2.4.0");
    SCRIPT("standin.become(groups='by name')");
}

QStringList TestYumIOGroups::names(PyRef list)
{
    return engine->namesOf(list.get());
}

void TestYumIOGroups::membersAreSortedLines()
{
    collectGrove("True, mandatory=['yew', 'ash', 'Oak'], default=['one'], optional=[], conditional=['two']");
    QCOMPARE(engine->getMandatoryPkgs(*group("Grove")), QStringLiteral("Oak\nash\nyew"));
    QCOMPARE(engine->getDefaultPkgs(*group("Grove")), QStringLiteral("one"));
    QCOMPARE(engine->getOptionalPkgs(*group("Grove")), QString());
    QCOMPARE(engine->getConditionalPkgs(*group("Grove")), QStringLiteral("two"));
    becomeByName();
    collectGrove("True, mandatory=['yew', 'ash'], default=['one'], groups=['Wood', 'Copse']");
    QCOMPARE(engine->getMandatoryPkgs(*group("Grove")), QStringLiteral("ash\nyew"));
    QCOMPARE(engine->getDefaultPkgs(*group("Grove")), QStringLiteral("one"));
    QCOMPARE(engine->getOptionalPkgs(*group("Grove")), QString());
    QCOMPARE(engine->getRequiredGroups(*group("Grove")), QStringLiteral("Copse\nWood"));
    QCOMPARE(engine->getDefaultMetaPkgs(*group("Grove")), QStringLiteral("meta-Grove"));
    QCOMPARE(engine->getOptionalMetaPkgs(*group("Grove")), QString());
}

void TestYumIOGroups::listsOfTheOtherFormAreEmpty()
{
    collectGrove("True, groups=['Wood']");
    QCOMPARE(engine->getRequiredGroups(*group("Grove")), QString());
    QCOMPARE(engine->getDefaultMetaPkgs(*group("Grove")), QString());
    QCOMPARE(engine->getOptionalMetaPkgs(*group("Grove")), QString());
}

void TestYumIOGroups::conditionalPackagesAreNotAskedOfOldReleases()
{
    engine->setVersion("2.4.99");
    // Neither a call nor a report, though there is no package object at all.
    QCOMPARE(engine->getConditionalPkgs(Package::Entry()), QString());
}

void TestYumIOGroups::itemsOfTheWrongFormAreReported()
{
    TestEngine::PyGILStateWrapper const lock(true);
    Package::Entry entry;
    QVERIFY(!engine->getGroupItem_22(entry, "sub_groups"));
    QCOMPARE(boxes->takeTexts(), QStringList{"getGroupItem_22 called for incorrect version of yum"});
    engine->setVersion("2.4.99");
    QVERIFY(!engine->getGroupItem_25(entry, "mandatory_packages"));
    QCOMPARE(boxes->takeTexts(), QStringList{"getGroupItem_25 called for incorrect version of yum"});
}

void TestYumIOGroups::missingListsAreReported()
{
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    groups = collect(None)\n"
           "    del groups[0].default_packages\n"
           "    return groups\n"
           "standin.instead('collectGroupInfo', answer)");
    collectGrove("True");
    QCOMPARE(engine->getDefaultPkgs(*group("Grove")), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: group default_packages.Grove not evaluable"});
}

void TestYumIOGroups::missingListsByNameAreReported()
{
    becomeByName();
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    info = collect(None)\n"
           "    del info.default_pkgs\n"
           "    del info.optional_pkgs['Grove']\n"
           "    return info\n"
           "standin.instead('collectGroupInfo', answer)");
    collectGrove("True");
    QCOMPARE(engine->getDefaultPkgs(*group("Grove")), QString());
    QCOMPARE(engine->getOptionalPkgs(*group("Grove")), QString());
    QCOMPARE(
        boxes->takeTexts(), (QStringList{
                                "Internal error: groupInfo.default_pkgs not evaluable",
                                "Internal error: groupInfo.optional_pkgs[Grove] not evaluable"}));
}

void TestYumIOGroups::namesOfOddTypes()
{
    TestEngine::PyGILStateWrapper const lock(true);
    QCOMPARE(names(engine->object("{'b': 1, 'a': 2}")), (QStringList{"b", "a"}));
    QCOMPARE(names(engine->object("(b'x', 'y', None)")), (QStringList{"x", "y", ""}));
    QCOMPARE(names(engine->object("5")), QStringList());
    QCOMPARE(names(PyRef()), QStringList());
    QCOMPARE(names(engine->object("(1/0 if n else 'x' for n in (0, 1, 0))")), QStringList{"x"});
    QCOMPARE(names(engine->object("[5]")), QStringList{""});
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: YumIO::pyString did not understand type"});
}

void TestYumIOGroups::groupsWhoseListsRaiseAreReported()
{
    SCRIPT("class Raising:\n"
           "    name = groupid = 'Grove'\n"
           "    user_visible = installed = True\n"
           "    default_packages = {'x': 'x'}\n"
           "    optional_packages = conditional_packages = 5\n"
           "    @property\n"
           "    def mandatory_packages(self):\n"
           "        raise RuntimeError('not today')\n"
           "standin.instead('collectGroupInfo', lambda: [Raising()])");
    engine->clear();
    QVERIFY(engine->collect({}));
    QString const report = "Internal error: group mandatory_packages.Grove not evaluable";
    QCOMPARE(boxes->takeTexts(), QStringList{report});
    // A group with bad data doesn't show as out of date.
    QCOMPARE(group("Grove")->state, Package::UpToDate);
    QCOMPARE(engine->getMandatoryPkgs(*group("Grove")), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{report});
    QCOMPARE(engine->getDefaultPkgs(*group("Grove")), QStringLiteral("x"));
    QCOMPARE(engine->getOptionalPkgs(*group("Grove")), QString());
    QCOMPARE(engine->getConditionalPkgs(*group("Grove")), QString());
    QCOMPARE(boxes->takeTexts(), QStringList());
}

void TestYumIOGroups::stateOfAnInstalledGroup_data()
{
    QTest::addColumn<QString>("members");
    QTest::addColumn<bool>("upToDate");
    QTest::newRow("nothing at all") << "True" << true;
    QTest::newRow("mandatory to update") << "True, mandatory=['birch', 'alder']" << false;
    QTest::newRow("mandatory to date") << "True, mandatory=['birch', 'cedar']" << true;
    QTest::newRow("mandatory not installed") << "True, mandatory=['elm']" << true;
    QTest::newRow("mandatory unknown") << "True, mandatory=['nosuch']" << true;
    QTest::newRow("others to update")
        << "True, default=['alder'], optional=['alder'], conditional=['alder']" << true;
}

void TestYumIOGroups::stateOfAnInstalledGroup()
{
    QFETCH(QString, members);
    QFETCH(bool, upToDate);
    collectGrove(members);
    QCOMPARE(group("Grove")->state, upToDate ? Package::UpToDate : Package::OutOfDate);
    becomeByName();
    collectGrove(members);
    QCOMPARE(group("Grove")->state, upToDate ? Package::UpToDate : Package::OutOfDate);
}

void TestYumIOGroups::stateOfAGroupThatHoldsGroups()
{
    becomeByName();
    QString const others = QStringLiteral("'Old': group(True, mandatory=['alder']), 'New': group(True),\n"
                                          "'Between': group(False, groups=['Old']),");
    collectGrove("True, groups=['New', 'Nowhere', 'Old']", others);
    QCOMPARE(group("Grove")->state, Package::OutOfDate);
    // At any depth, and whether the group between is installed or not.
    collectGrove("True, groups=['Between']", others);
    QCOMPARE(group("Grove")->state, Package::OutOfDate);
    QCOMPARE(group("Between")->state, Package::Available);
    collectGrove("True, groups=['New']", others);
    QCOMPARE(group("Grove")->state, Package::UpToDate);
    // Groups that hold each other end somewhere.
    collectGrove(
        "True, groups=['One', 'Grove']", "'One': group(True, groups=['Two']), 'Two': group(True, "
                                         "groups=['One', 'Grove', 'Old']), 'Old': group(True, "
                                         "mandatory=['alder']),");
    QCOMPARE(group("Grove")->state, Package::OutOfDate);
}

void TestYumIOGroups::groupsAreJudgedByTheTableAlone()
{
    SCRIPT("from standinpackages import Package\n"
           "asked = []\n"
           "look = Package.returnSimple\n"
           "def returnSimple(self, key):\n"
           "    asked.append(key)\n"
           "    return look(self, key)\n"
           "Package.returnSimple = returnSimple\n"
           "collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    asked.clear()\n"
           "    return collect(None)\n"
           "standin.instead('collectGroupInfo', answer)");
    collectGrove("True, mandatory=['alder', 'birch']");
    QCOMPARE(engine->value("asked"), QStringLiteral("[]"));
    SCRIPT("Package.returnSimple = look");
}

void TestYumIOGroups::flagThatCannotBeReadIsReportedAndTheOthersGoOn()
{
    SCRIPT("class Odd:\n"
           "    def __bool__(self):\n"
           "        raise ValueError('neither')\n"
           "first, *others = standin.world.groups.values()\n"
           "first['installed'] = Odd()\n"
           "standin.world.groups['Behind'] = dict(others[0], visible=True)");
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QString const first = engine->value("next(iter(standin.world.groups))");
    QVERIFY(group(first));
    QCOMPARE(group(first)->state, Package::Available);
    QVERIFY(group("Behind"));
}

void TestYumIOGroups::listsForMarks()
{
    collectGrove("True, mandatory=['a', 'b'], default=['b', 'c'], optional=['a', 'd'], conditional=['e']");
    TestEngine::PyGILStateWrapper const lock(true);
    Package::Entry const* const grove = group("Grove");
    QCOMPARE(names(engine->requiredPkgs(grove)), (QStringList{"a", "b", "b", "c"}));
    QCOMPARE(names(engine->pkgTree(grove)), (QStringList{"a", "b", "b", "c"}));
    // A package that stands in two lists is named twice.
    QCOMPARE(names(engine->allPkgs(grove)), (QStringList{"a", "b", "b", "c", "a", "d", "e"}));
}

void TestYumIOGroups::listsForMarksByName()
{
    becomeByName();
    collectGrove("True, mandatory=['a', 'b'], default=['c'], optional=['d']");
    TestEngine::PyGILStateWrapper const lock(true);
    Package::Entry const* const grove = group("Grove");
    QCOMPARE(names(engine->requiredPkgs(grove)), (QStringList{"a", "b", "c"}));
    QCOMPARE(names(engine->pkgTree(grove)), (QStringList{"a", "b", "c", "d"}));
    QCOMPARE(names(engine->allPkgs(grove)), (QStringList{"a", "b", "c"}));
}

QTEST_MAIN(TestYumIOGroups)
#include "tst_yumiogroups.moc"
