// SPDX-License-Identifier: GPL-2.0-or-later
// Details of all rows at a time, for whoever shows them as a column.
#include "EngineTest.h"

using Package::Detail;

class TestYumIODetailColumns final : public EngineTest
{
    Q_OBJECT

    int rowOf(Package::Entry const* entry) const { return static_cast<int>(engine->entries.indexOf(entry)); }

    QString text(Detail detail, QString const& name) const
    {
        return engine->details(detail).text(rowOf(package(name)));
    }

private Q_SLOTS:
    void init()
    {
        EngineTest::init();
        for (Detail const detail : {Detail::Licence, Detail::Group, Detail::Reason, Detail::InstalledSize}) {
            engine->wantDetails(detail, false);
        }
        SCRIPT("YumIO.__dict__.get('rowDetails') and delattr(YumIO, 'rowDetails')");
        QVERIFY(collected());
    }

    void nothingIsLoadedThatNobodyWants()
    {
        QCOMPARE(engine->calls(), QStringList());
        QVERIFY(!engine->details(Detail::Vendor).isFor(engine->count()));
        QCOMPARE(text(Detail::Vendor, QStringLiteral("alder")), QString());
        QVERIFY(engine->detailsAtHand());
    }

    void whatPackagesTellIsReadFromThem()
    {
        QVERIFY(engine->wantDetails(Detail::Licence, true));
        QVERIFY(engine->wantDetails(Detail::Group, true));
        QCOMPARE(text(Detail::Licence, QStringLiteral("alder")), QStringLiteral("GPLv2+"));
        QCOMPARE(text(Detail::Group, QStringLiteral("fir")), QStringLiteral("Suite"));
        QCOMPARE(text(Detail::Group, QStringLiteral("alder")), QStringLiteral("Plants"));
        QCOMPARE(engine->details(Detail::Group).text(rowOf(group(QStringLiteral("Trees")))), QString());
    }

    void theScriptIsAskedAboutAllPackagesAtOnce()
    {
        SCRIPT("def rowDetails(self, kind, packages):\n"
               "    standin.asked = (kind, [package.name for package in packages])\n"
               "    return [5 if package.name == 'hazel' else 2048 for package in packages]\n"
               "YumIO.rowDetails = rowDetails");
        QVERIFY(engine->wantDetails(Detail::InstalledSize, true));
        QCOMPARE(engine->value(QStringLiteral("standin.asked[0]")), QStringLiteral("installedSize"));
        QCOMPARE(
            engine->value(QStringLiteral("len(standin.asked[1]) == len(set(standin.asked[1]))")),
            QStringLiteral("True"));
        QCOMPARE(text(Detail::InstalledSize, QStringLiteral("alder")), QStringLiteral("2.0Kb"));
        QCOMPARE(text(Detail::InstalledSize, QStringLiteral("hazel")), QStringLiteral("5.0b"));
        QCOMPARE(
            engine->details(Detail::InstalledSize).number(rowOf(package(QStringLiteral("alder")))), 2048LL);
        QCOMPARE(
            engine->details(Detail::InstalledSize).text(rowOf(group(QStringLiteral("Trees")))), QString());
    }

    void aTextMayComeWithANumberAndAToolTip()
    {
        SCRIPT("YumIO.rowDetails = lambda self, kind, packages:"
               " [('grave', 5, 'why') if p.name == 'hazel' else '' for p in packages]");
        QVERIFY(engine->wantDetails(Detail::Advisory, true));
        Package::RowDetails const& details = engine->details(Detail::Advisory);
        int const hazel = rowOf(package(QStringLiteral("hazel")));
        QCOMPARE(details.text(hazel).toString(), QStringLiteral("grave"));
        QCOMPARE(details.number(hazel), 5LL);
        QCOMPARE(details.tip(hazel).toString(), QStringLiteral("why"));
        int const alder = rowOf(package(QStringLiteral("alder")));
        QCOMPARE(details.number(alder), 0LL);
        QCOMPARE(details.tip(alder).toString(), QString());
        QVERIFY(details.isKnown());
        engine->wantDetails(Detail::Advisory, false);
    }

    void whatNobodyCanKnowIsToldApart()
    {
        SCRIPT("YumIO.rowDetails = lambda self, kind, packages: None");
        QVERIFY(engine->wantDetails(Detail::Advisory, true));
        QVERIFY(!engine->details(Detail::Advisory).isKnown());
        QVERIFY(engine->details(Detail::Advisory).isFor(engine->count()));
        engine->wantDetails(Detail::Advisory, false);
    }

    void whatIsWantedIsLoadedWithTheNextRows()
    {
        SCRIPT("YumIO.rowDetails = lambda self, kind, packages: [p.name.upper() for p in packages]");
        QVERIFY(engine->wantDetails(Detail::Reason, true));
        engine->clear();
        QCOMPARE(engine->details(Detail::Reason).text(0), QString());
        QVERIFY(engine->collect({}));
        QCOMPARE(text(Detail::Reason, QStringLiteral("hazel")), QStringLiteral("HAZEL"));
        engine->wantDetails(Detail::Reason, false);
        engine->clear();
        QVERIFY(engine->collect({}));
        QCOMPARE(text(Detail::Reason, QStringLiteral("hazel")), QString());
    }

    void aScriptThatDoesNotTellLeavesThemEmpty()
    {
        QVERIFY(engine->wantDetails(Detail::Reason, true));
        QVERIFY(engine->detailsAtHand());
        QCOMPARE(text(Detail::Reason, QStringLiteral("hazel")), QString());
    }

    void aFailureIsReportedAndLeavesThemEmpty()
    {
        SCRIPT("def rowDetails(self, kind, packages):\n"
               "    raise yum.Errors.YumBaseError('gone')\n"
               "YumIO.rowDetails = rowDetails");
        QVERIFY(!engine->wantDetails(Detail::Reason, true));
        QList<Boxes::Box> const told = boxes->take();
        QCOMPARE(told.size(), 1);
        QVERIFY(told.first().text.contains(QLatin1String("Unable to read what a column shows")));
        QVERIFY(told.first().text.contains(QLatin1String("gone")));
        QCOMPARE(text(Detail::Reason, QStringLiteral("hazel")), QString());
        // Whoever wants them once more has them read once more.
        QVERIFY(!engine->wantDetails(Detail::Reason, true));
        QCOMPARE(boxes->take().size(), 1);
    }

    void anAnswerOfAnotherFormIsHarmless_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("no sequence") << "7";
        QTest::newRow("too short") << "['only']";
        QTest::newRow("too long") << "['x'] * 1000";
        QTest::newRow("of tuples of anything") << "[(object(), object(), object()) for package in packages]";
        QTest::newRow("of anything") << "[object() for package in packages]";
        QTest::newRow("of huge numbers") << "[10 ** 30 for package in packages]";
        QTest::newRow("of halves of letters") << "['\\ud800' for package in packages]";
    }

    void anAnswerOfAnotherFormIsHarmless()
    {
        QFETCH(QString, answer);
        QCOMPARE(
            engine->script(QStringLiteral("YumIO.rowDetails = lambda self, kind, packages: %1").arg(answer)),
            QString());
        static_cast<void>(engine->wantDetails(Detail::Reason, true));
        static_cast<void>(text(Detail::Reason, QStringLiteral("hazel")));
        boxes->take();
        QCOMPARE(engine->getName(*package(QStringLiteral("hazel"))), QStringLiteral("hazel"));
    }
};

QTEST_MAIN(TestYumIODetailColumns)
#include "tst_yumiodetailcolumns.moc"
