// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOCollectGroups final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void noGroupsAtAllIsNormal_data();
    void noGroupsAtAllIsNormal();
    void otherGroupErrorsFail();
    void unexpectedGroupErrorGoesOn();
    void oddGroups_data();
    void oddGroups();
    void oddGroupsByName_data();
    void oddGroupsByName();
    void firstGroupOfANameStands();
};

void TestYumIOCollectGroups::noGroupsAtAllIsNormal_data()
{
    QTest::addColumn<QString>("exception");
    QTest::newRow("groups error") << "yum.Errors.GroupsError('No Groups Available in any repository')";
    QTest::newRow("debugger quit") << "bdb.BdbQuit('No Groups Available')";
}

void TestYumIOCollectGroups::noGroupsAtAllIsNormal()
{
    QFETCH(QString, exception);
    QCOMPARE(engine->script("import bdb\nstandin.fail('setupTsGroup', " + exception + ")"), QString());
    QVERIFY(engine->collect({}));
    QVERIFY(engine->calls().contains("collectGroupInfo"));
    QVERIFY(group("Trees"));
}

void TestYumIOCollectGroups::otherGroupErrorsFail()
{
    for (QString const& exception :
         {QStringLiteral("yum.Errors.GroupsError('no groups available')"), QStringLiteral("bdb.BdbQuit()")}) {
        engine->reset();
        QCOMPARE(engine->script("import bdb\nstandin.fail('setupTsGroup', " + exception + ")"), QString());
        QVERIFY(!engine->collect({}));
        QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: execution of yumIO.setupTsGroup failed"});
        QCOMPARE(engine->count(), 0);
    }
}

void TestYumIOCollectGroups::unexpectedGroupErrorGoesOn()
{
    SCRIPT("standin.fail('setupTsGroup', ValueError('No Groups Available'))");
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(group("Trees"));
}

void TestYumIOCollectGroups::oddGroups_data()
{
    QTest::addColumn<QString>("change"); // of the list `groups`
    QTest::addColumn<bool>("collected");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("no name") << "del groups[1].name" << false
                             << QStringList{"Internal error: group without name"};
    QTest::newRow("no flag") << "del groups[1].installed" << false
                             << QStringList{"Internal error: cannot find group's installed flag"};
    QTest::newRow("no visibility") << "del groups[1].user_visible" << true << QStringList();
    QTest::newRow("odd visibility")
        << "groups[1].user_visible = type('B', (), {'__bool__': lambda self: 1/0})()" << true
        << QStringList();
    QTest::newRow("odd flag") << "groups[1].installed = type('B', (), {'__bool__': lambda self: 1/0})()"
                              << true
                              << QStringList{"Internal error: python exception occurred from C code\n"};
    QTest::newRow("installed, no lists") << "del groups[0].mandatory_packages" << true
                                         << QStringList{"Internal error: group mandatory_packages.Trees not "
                                                        "evaluable"};
    QTest::newRow("number for a list") << "groups[0].mandatory_packages = 5" << true << QStringList();
    QTest::newRow("number for a group") << "groups.insert(0, 5)" << true << QStringList();
}

void TestYumIOCollectGroups::oddGroups()
{
    QFETCH(QString, change);
    QCOMPARE(
        engine->script(QStringLiteral("collect = YumIO.collectGroupInfo\n"
                                      "def answer():\n"
                                      "    groups = collect(None)\n"
                                      "    %1\n"
                                      "    return groups\n"
                                      "standin.instead('collectGroupInfo', answer)")
                           .arg(change)),
        QString());
    QTEST(engine->collect({}), "collected");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOCollectGroups::oddGroupsByName_data()
{
    QTest::addColumn<QString>("change"); // of `info`
    QTest::addColumn<bool>("collected");
    QTest::addColumn<QStringList>("reports");
    QStringList const installed{"Internal error: cannot find groupInfo.group_installed['%s']"};
    QTest::newRow("no list") << "del info.visible_groups" << false
                             << QStringList{"Internal error: groupInfo.visible_groups not evaluable"};
    QTest::newRow("no flag") << "del info.group_installed['Trees']" << false << installed;
    QTest::newRow("no flags") << "del info.group_installed" << false << installed;
    QTest::newRow("flags in a list") << "info.group_installed = [True]" << false << installed;
    QTest::newRow("no groups in groups") << "del info.sub_groups['Stones']" << true
                                         << QStringList{"Internal error: groupInfo.sub_groups[Stones] not "
                                                        "evaluable"};
    QTest::newRow("no members at all")
        << "info.visible_groups = ['Stones']\n    del info.mandatory_pkgs" << true
        << QStringList{"Internal error: groupInfo.mandatory_pkgs not evaluable"};
    QTest::newRow("group that holds itself") << "info.sub_groups['Garden'] = ['Garden', 'Stones']\n"
                                                "    info.sub_groups['Stones'] = ['Garden']\n"
                                                "    info.visible_groups = ['Garden', 'Stones', 'Trees']"
                                             << true << QStringList();
}

void TestYumIOCollectGroups::oddGroupsByName()
{
    engine->setVersion("2.4.0");
    SCRIPT("standin.become(groups='by name')");
    QFETCH(QString, change);
    QCOMPARE(
        engine->script(QStringLiteral("collect = YumIO.collectGroupInfo\n"
                                      "def answer():\n"
                                      "    info = collect(None)\n"
                                      "    %1\n"
                                      "    return info\n"
                                      "standin.instead('collectGroupInfo', answer)")
                           .arg(change)),
        QString());
    QTEST(engine->collect({}), "collected");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOCollectGroups::firstGroupOfANameStands()
{
    SCRIPT("collect = YumIO.collectGroupInfo\n"
           "def answer():\n"
           "    groups = collect(None)\n"
           "    groups[1].name = groups[0].name\n"
           "    return groups\n"
           "standin.instead('collectGroupInfo', answer)");
    QVERIFY(engine->collect({}));
    QCOMPARE(engine->getMandatoryPkgs(*group("Trees")), QStringLiteral("alder"));
    QCOMPARE(engine->count(), 11);
}

QTEST_MAIN(TestYumIOCollectGroups)
#include "tst_yumiocollectgroups.moc"
