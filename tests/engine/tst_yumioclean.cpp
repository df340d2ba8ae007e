// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

class TestYumIOClean final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachCleanCallsItsMethod();
    void codeZeroIsSuccess_data();
    void codeZeroIsSuccess();
    void allCachesAreCleanedWhateverOneAnswers();
    void picklesAreCleanedWhereThereAre();
    void refusalIsReportedOnceInItsOwnWords();
};

void TestYumIOClean::eachCleanCallsItsMethod()
{
    SCRIPT("standin.instead('cleanPickles', lambda: (0,))");
    QVERIFY(engine->cleanHeaders());
    QVERIFY(engine->cleanPackages());
    QVERIFY(engine->cleanXmlMetadata());
    QVERIFY(engine->cleanPickledCache());
    QCOMPARE(
        engine->calls(), (QStringList{"cleanHeaders", "cleanPackages", "cleanMetadata", "cleanPickles"}));
    QCOMPARE(
        engine->logLines(Log::Action),
        (QStringList{
            "Cleaning Headers", "Cleaning Packages", "Cleaning Xml Metadata", "Cleaning Pickled Cache"}));
}

void TestYumIOClean::codeZeroIsSuccess_data()
{
    QTest::addColumn<bool>("success");
    QTest::newRow("lambda: (0, ['removed'])") << true;
    QTest::newRow("lambda: (1, [])") << false;
    QTest::newRow("lambda: (-1,)") << false;
    QTest::newRow("lambda: ()") << false;
    QTest::newRow("lambda: None") << false;
    QTest::newRow("lambda: [0]") << false;
    QTest::newRow("lambda: 0") << false;
    QTest::newRow("lambda: ('0',)") << false;
    QTest::newRow("lambda: (2**80,)") << false;
    QTest::newRow("lambda: 1/0") << false;
}

void TestYumIOClean::codeZeroIsSuccess()
{
    QCOMPARE(
        engine->script(QStringLiteral("for name in 'Headers', 'Packages', 'Metadata', 'Pickles':\n"
                                      "    standin.instead('clean' + name, %1)")
                           .arg(QTest::currentDataTag())),
        QString());
    QTEST(engine->cleanHeaders(), "success");
    QTEST(engine->cleanPackages(), "success");
    QTEST(engine->cleanXmlMetadata(), "success");
    QTEST(engine->cleanPickledCache(), "success");
    QTEST(engine->cleanAll(), "success");
    boxes->take();
}

void TestYumIOClean::allCachesAreCleanedWhateverOneAnswers()
{
    engine->setVersion("2.9.1");
    QStringList const methods{"cleanHeaders", "cleanPackages", "cleanMetadata", "cleanPickles"};
    for (QString const& failing : methods) {
        SCRIPT("standin.calls.clear()\n"
               "for name in 'Headers', 'Packages', 'Metadata', 'Pickles':\n"
               "    standin.instead('clean' + name, lambda: (0, []))");
        QVERIFY(engine->cleanAll());
        QCOMPARE(
            engine->script(
                QStringLiteral("standin.calls.clear()\nstandin.instead('%1', lambda: (1, []))").arg(failing)),
            QString());
        QVERIFY(!engine->cleanAll());
        QCOMPARE(engine->calls(), methods);
    }
    QCOMPARE(engine->logLines(Log::Action), QStringList(8, "Cleaning All"));
}

void TestYumIOClean::picklesAreCleanedWhereThereAre()
{
    SCRIPT("standin.instead('cleanPickles', lambda: (1, []))");
    engine->setVersion("2.9.2");
    QVERIFY(engine->cleanAll());
    QVERIFY(!engine->calls().contains("cleanPickles"));
    engine->setVersion("2.9.1");
    QVERIFY(!engine->cleanAll());
    QVERIFY(engine->calls().contains("cleanPickles"));
}

void TestYumIOClean::refusalIsReportedOnceInItsOwnWords()
{
    SCRIPT("def refuse():\n"
           "    raise yum.Errors.YumBaseError('Not for you.')\n"
           "for name in 'Headers', 'Packages', 'Metadata', 'Pickles':\n"
           "    standin.instead('clean' + name, refuse)");
    Boxes::Box const report{"VEM Yum Error", "Not for you.", {"OK"}};
    QVERIFY(!engine->cleanPackages());
    QCOMPARE(boxes->take(), QList{report});
    QVERIFY(!engine->cleanAll());
    QCOMPARE(boxes->take(), QList{report});
    QCOMPARE(engine->logLines(Log::Error), QStringList(2, "Not for you."));

    // The next call starts anew.
    SCRIPT("standin.instead('cleanPackages', lambda: (0, []))");
    QVERIFY(engine->cleanPackages());
}

QTEST_MAIN(TestYumIOClean)
#include "tst_yumioclean.moc"
