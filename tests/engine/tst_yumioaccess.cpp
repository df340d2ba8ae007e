// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOAccess final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void fieldsOfAnEntry();
    void keysOfGroupsAndPackagesDiffer();
    void textsOfStatesAndKinds();
    void packageWhoseMembersRaiseIsReportedAndKept();
    void rowsAreReadInOrder();
    void rowsAppearWhenTheCollectionHasEnded();
    void variablesOfTheConfiguration();
    void heldJobsAreNotStarted();
};

void TestYumIOAccess::fieldsOfAnEntry()
{
    QVERIFY(engine->collect({}));
    Package::Entry const& fir = *package("fir");
    QCOMPARE(fir.action, Package::None);
    QCOMPARE(fir.kind, Package::Suite);
    QCOMPARE(fir.size, 70000ULL);
    QCOMPARE(fir.buildTime, 86400);
    QCOMPARE(engine->getName(fir), QStringLiteral("fir"));
    QCOMPARE(engine->getVerRel(fir), QStringLiteral("2:1.5-3.1"));
    QCOMPARE(engine->getRepo(fir), QStringLiteral("base"));
    QCOMPARE(engine->getArch(fir), QStringLiteral("noarch"));
    QCOMPARE(engine->getSize(fir), QStringLiteral("68Kb"));
    QCOMPARE(engine->getSummary(fir), QStringLiteral("A tree called fir"));
    QCOMPARE(engine->getBuildTime(fir), QStringLiteral("Fri Jan  2 00:00:00 1970"));
    QCOMPARE(engine->getGroup(fir), QStringLiteral("Suite"));
    QCOMPARE(engine->getLicense(fir), QStringLiteral("GPLv2+"));
    QCOMPARE(engine->getUrl(fir), QStringLiteral("http://example.org/fir"));
    QCOMPARE(engine->getSourceRpm(fir), QStringLiteral("fir-1.5-3.1.src.rpm"));
    QCOMPARE(engine->getBuildHost(fir), QString());
    TestEngine::PyGILStateWrapper const lock(true);
    QVERIFY(fir.pyObject.get() == engine->object("standin.world.find('available', 'fir')").get());
}

void TestYumIOAccess::keysOfGroupsAndPackagesDiffer()
{
    YumIO::EntryKey const groupKey(true, "x");
    YumIO::EntryKey const packageKey(false, "x");
    QVERIFY(groupKey != packageKey);
    QVERIFY(qHash(groupKey) != qHash(packageKey));
    QVERIFY(groupKey == YumIO::EntryKey(true, "x"));
    QVERIFY(groupKey != YumIO::EntryKey(true, "y"));
    SCRIPT("standin.world.groups['elm'] = standin.world.groups['Shrubs']");
    QVERIFY(engine->collect({}));
    QCOMPARE(package("elm")->kind, Package::Ordinary);
    QCOMPARE(group("elm")->kind, Package::Group);
}

void TestYumIOAccess::textsOfStatesAndKinds()
{
    Package::Entry entry;
    entry.state = static_cast<Package::State>(3);
    entry.kind = static_cast<Package::Kind>(3);
    QCOMPARE(engine->getState(entry), QString());
    QCOMPARE(engine->getKind(entry), QString());
    entry.state = Package::OutOfDate;
    entry.kind = Package::Suite;
    QCOMPARE(engine->getState(entry), QStringLiteral("Available for update"));
    QCOMPARE(engine->getKind(entry), QStringLiteral("Suite of packages"));
}

void TestYumIOAccess::packageWhoseMembersRaiseIsReportedAndKept()
{
    SCRIPT("class Thorn:\n"
           "    name = 'thorn'\n"
           "    def fail(self, *args): raise ValueError('prickly')\n"
           "    arch = size = hdr = prco = files = changelog = property(fail)\n"
           "    printVer = returnSimple = localPkg = localHdr = fail\n"
           "standin.world.available = [Thorn()]\nstandin.world.groups = {}");
    QVERIFY(engine->collect({}));
    QVERIFY(!boxes->take().isEmpty());
    Package::Entry const& thorn = *package("thorn");
    QCOMPARE(thorn.kind, Package::Ordinary);
    QCOMPARE(thorn.verRel + thorn.arch + thorn.repo + thorn.summary, QString());
    // Each text is asked anew, and reported anew.
    QCOMPARE(engine->getLicense(thorn), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    // What isn't there is no error, for whatever reason.
    QCOMPARE(engine->getFiles(thorn) + engine->getChangeLog(thorn) + engine->getProvides(thorn), QString());
    QCOMPARE(engine->getInstallTime(thorn) + engine->getRelocations(thorn), QString());
    package("thorn")->action = Package::Install;
    SCRIPT("standin.instead('apply', lambda *lists: None)");
    QVERIFY(!engine->apply());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QCOMPARE(engine->run.nHdrs, 1U);
}

void TestYumIOAccess::rowsAreReadInOrder()
{
    QVERIFY(engine->collect({}));
    int row = 0;
    for (Package::Entry* const entry : *engine) {
        QCOMPARE((*engine)[row++], entry);
    }
    QCOMPARE(row, engine->count());
}

void TestYumIOAccess::rowsAppearWhenTheCollectionHasEnded()
{
    // The table may be painted at any moment of the job, also at its very end.
    int rowsMeanwhile = 0;
    SCRIPT("standin.fail('setupTsGroup', ValueError('odd'))");
    boxes->whileShown([&] { rowsMeanwhile += engine->count(); });
    QVERIFY(engine->collect({}));
    QCOMPARE(boxes->take().size(), 1);
    QCOMPARE(rowsMeanwhile, 0);
    QCOMPARE(engine->count(), 12);
}

void TestYumIOAccess::variablesOfTheConfiguration()
{
    auto const variable = [this](char const* name) {
        TestEngine::PyGILStateWrapper const lock(true);
        return engine->getYumVar(name);
    };
    QCOMPARE(variable("basearch"), QStringLiteral("x86_64"));
    QCOMPARE(variable("nosuch"), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    SCRIPT("def construct(self):\n    pass\nYumIO.__init__ = construct");
    engine->clear();
    QCOMPARE(variable("basearch"), QString());
}

void TestYumIOAccess::heldJobsAreNotStarted()
{
    QVERIFY(collected());
    {
        YumIO::JobHold const outer(*engine);
        {
            YumIO::JobHold const inner(*engine);
        }
        engine->getFiles(*package("elm"));
        engine->getChangeLog(*package("elm"));
        QCOMPARE(engine->getFiles(*package("birch")), QStringLiteral("/usr/bin/birch"));
        QCOMPARE(engine->calls(), QStringList());
    }
    engine->getFiles(*package("elm"));
    engine->getChangeLog(*package("elm"));
    QCOMPARE(engine->calls(), (QStringList{"collectFileLists", "collectOtherData"}));
    // What has been loaded is told under a hold, too.
    YumIO::JobHold const hold(*engine);
    QVERIFY(!engine->getFiles(*package("hazel")).isEmpty());
    QVERIFY(!engine->getChangeLog(*package("hazel")).isEmpty());
}

QTEST_MAIN(TestYumIOAccess)
#include "tst_yumioaccess.moc"
