// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include <array>
#include <ctime>
#include <limits>

class TestYumIOConvert final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void sizesForPeople_data();
    void sizesForPeople();
    void timesForPeople();
    void absurdTimesDoNoHarm();
    void timesAreThoseOfTheCLibrary();

    void textsOfAnyKind_data();
    void textsOfAnyKind();
    void fieldTexts_data();
    void fieldTexts();
    void mappingGivesItsItemOrAReport();
    void dictionaryItemIsBorrowedOrNothing();
    void times_data();
    void times();
    void sizesOfPackages_data();
    void sizesOfPackages();
    void simpleStringOfAField_data();
    void simpleStringOfAField();
    void buildTimeThatIsMissingIsReported();

    void versionNumbers_data();
    void versionNumbers();
    void versionIsReadOnceFromYumElseFromCli();
    void noVersionCountsAsZero();
    void featuresFollowTheVersion_data();
    void featuresFollowTheVersion();
    void onlyTrueItselfIsAYes();
    void missingQuestionsAreReportedAndCountAsNo();
    void askingAFeatureKeepsTheMarkOfTheGuardedCall();

private:
    QString text(QString const& expression);
};

QString TestYumIOConvert::text(QString const& expression)
{
    TestEngine::PyGILStateWrapper const lock(true);
    return engine->pyString(engine->object(expression).get());
}

void TestYumIOConvert::sizesForPeople_data()
{
    QTest::addColumn<unsigned long long>("bytes");
    QTest::addColumn<QString>("shown");
    auto const row = [](unsigned long long bytes, char const* shown) {
        QTest::addRow("%llu", bytes) << bytes << QString::fromLatin1(shown);
    };
    row(0, "0b");
    row(1, "1.0b");
    row(5, "5.0b");
    row(10, "10b");
    row(999, "999b");
    row(1000, "1.0Kb");
    row(1280, "1.2Kb");  // 1.25: halves go to the even digit
    row(1920, "1.9Kb");  // 1.875
    row(10179, "9.9Kb"); // 9.94
    row(10189, "10Kb");  // 9.95
    row(10752, "10Kb");  // 10.5
    row(11776, "12Kb");  // 11.5
    row(1023999, "1000Kb");
    row(1024000, "1.0Mb");
    row(1048575999, "1000Mb");
    row(1048576000, "1.0Gb");
    row(1073741823999, "1000Gb");
    row(1073741824000, "1.0Tb");
    row(1099511627776000, "1.0Pb");
    row(1125899906842623999, "1000Pb");
    row(1125899906842624000, "1.0Eb");
    row(std::numeric_limits<unsigned long long>::max(), "16Eb");
}

void TestYumIOConvert::sizesForPeople()
{
    QFETCH(unsigned long long, bytes);
    QTEST(TestEngine::bytesFormat(bytes), "shown");
}

void TestYumIOConvert::timesForPeople()
{
    QCOMPARE(TestEngine::timeFormat(0), QStringLiteral("Thu Jan  1 00:00:00 1970"));
    QCOMPARE(TestEngine::dateFormat(0), QStringLiteral("Thu Jan  1 1970"));
    QCOMPARE(TestEngine::timeFormat(1234567890), QStringLiteral("Fri Feb 13 23:31:30 2009"));
    QCOMPARE(TestEngine::dateFormat(1234567890), QStringLiteral("Fri Feb 13 2009"));
    QCOMPARE(TestEngine::timeFormat(-1), QStringLiteral("Wed Dec 31 23:59:59 1969"));
}

void TestYumIOConvert::timesAreThoseOfTheCLibrary()
{
    // From the year 1 to 9999; the steps meet every hour, weekday and month.
    for (std::time_t time = -62135596800; time < 253402214400; time += 86400 * 365 * 2 + 36683921) {
        std::array<char, 64> expected{};
        QVERIFY(ctime_r(&time, expected.data()));
        QCOMPARE(TestEngine::timeFormat(time), QString::fromLatin1(expected.data()).chopped(1));
    }
}

void TestYumIOConvert::absurdTimesDoNoHarm()
{
    // Years of more than four digits are none that ctime(3) knows.
    QCOMPARE(TestEngine::timeFormat(253402300800), QString());
    QCOMPARE(TestEngine::dateFormat(253402300800), QString());
    QCOMPARE(TestEngine::timeFormat(std::numeric_limits<long long>::max()), QString());
    QCOMPARE(TestEngine::dateFormat(std::numeric_limits<long long>::min()), QString());
}

void TestYumIOConvert::textsOfAnyKind_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("reports");
    QString const replacement(QChar::ReplacementCharacter);
    QTest::newRow("str") << "'\\u00e9\\u4e2d'" << QStringLiteral("\u00e9\u4e2d") << QStringList();
    QTest::newRow("bytes") << "'\\u00e9'.encode()" << QStringLiteral("\u00e9") << QStringList();
    QTest::newRow("subclass") << "type('S', (str,), {})('x')"
                              << "x" << QStringList();
    QTest::newRow("none") << "None" << QString() << QStringList();
    QTest::newRow("zero inside") << "'a\\0b'" << QStringLiteral("a\0b") << QStringList();
    QTest::newRow("undecodable bytes") << "b'a\\xe9b'"
                                       << "a" + replacement + "b" << QStringList();
    QTest::newRow("escaped byte") << "'a\\udce9b'"
                                  << "a" + replacement + "b" << QStringList();
    QTest::newRow("escaped character") << "'\\udcc3\\udca9'" << QStringLiteral("\u00e9") << QStringList();
    QTest::newRow("lone surrogate") << "'a\\ud800b'"
                                    << "a?b" << QStringList();
    QTest::newRow("number") << "5" << QString()
                            << QStringList{"Internal error: YumIO::pyString did not understand type"};
}

void TestYumIOConvert::textsOfAnyKind()
{
    QFETCH(QString, expression);
    QTEST(text(expression), "expected");
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOConvert::fieldTexts_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("reports");
    QStringList const type{"Internal error: YumIO::pyStringX did not understand type"};
    QTest::newRow("str") << "'x'"
                         << "x" << QStringList();
    QTest::newRow("bytes") << "b'x'"
                           << "x" << QStringList();
    QTest::newRow("empty list") << "[]" << QString() << QStringList();
    QTest::newRow("list") << "['x']" << QString()
                          << QStringList{
                                 "Internal error: YumIO::pyStringX did not understand non-empty list"};
    QTest::newRow("none") << "None" << QString() << type;
    QTest::newRow("number") << "5" << QString() << type;
    QTest::newRow("empty tuple") << "()" << QString() << type;
}

void TestYumIOConvert::fieldTexts()
{
    QFETCH(QString, expression);
    {
        TestEngine::PyGILStateWrapper const lock(true);
        QTEST(engine->pyStringXDec(engine->object(expression)), "expected");
    }
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOConvert::mappingGivesItsItemOrAReport()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const map = engine->object("{'key': b'value'}");
    QCOMPARE(engine->pyMappingString(map.get(), "key"), QStringLiteral("value"));
    QCOMPARE(engine->pyMappingString(map.get(), "other"), QString());
    QCOMPARE(boxes->takeTexts(), QStringList{"Internal error: python exception occurred from C code\n"});
    QVERIFY(!engine->logLines(Log::Error).filter("KeyError: 'other'").isEmpty());
}

void TestYumIOConvert::dictionaryItemIsBorrowedOrNothing()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const map = engine->object("{'k\\u00e9y': 'value'}");
    QCOMPARE(engine->pyString(engine->pyDictGetItem(map.get(), QStringLiteral("k\u00e9y"))), "value");
    QVERIFY(!engine->pyDictGetItem(map.get(), "other"));
    QVERIFY(!engine->pyDictGetItem(engine->object("[1]").get(), "key"));
    QVERIFY(!engine->pyDictGetItem(nullptr, "key"));
}

void TestYumIOConvert::times_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<long long>("expected");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("int") << "1234567890" << 1234567890LL << QStringList();
    QTest::newRow("negative") << "-5" << -5LL << QStringList();
    QTest::newRow("too long an int") << "2**80" << std::numeric_limits<long long>::max() << QStringList();
    QTest::newRow("str") << "'1234567890'" << 1234567890LL << QStringList();
    QTest::newRow("bytes") << "b'86400'" << 86400LL << QStringList();
    QTest::newRow("digits first") << "'12 or so'" << 12LL << QStringList();
    QTest::newRow("no digits") << "'soon'" << 0LL << QStringList();
    QTest::newRow("too long a str") << "'9'*30" << -1LL
                                    << QStringList{
                                           "Internal error: time not understood: " + QString(30, '9')};
    QTest::newRow("none") << "None" << 0LL << QStringList{"Internal error: time not understood"};
    QTest::newRow("float") << "1.5" << 0LL << QStringList{"Internal error: time not understood"};
}

void TestYumIOConvert::times()
{
    QFETCH(QString, expression);
    {
        TestEngine::PyGILStateWrapper const lock(true);
        QTEST(engine->pyTimeDec(engine->object(expression)), "expected");
    }
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOConvert::sizesOfPackages_data()
{
    QTest::addColumn<QString>("size");
    QTest::addColumn<unsigned long long>("expected");
    QTest::addColumn<QStringList>("reports");
    QStringList const result{"Internal error: package size result not understood"};
    QTest::newRow("int") << "size=70000" << 70000ULL << QStringList();
    QTest::newRow("long") << "size=2**40" << (1ULL << 40) << QStringList();
    QTest::newRow("str") << "size='12345678901'" << 12345678901ULL << QStringList();
    QTest::newRow("bytes") << "size=b'77'" << 77ULL << QStringList();
    QTest::newRow("method giving int") << "size=lambda: 5" << 5ULL << QStringList();
    QTest::newRow("method giving str") << "size=lambda: '5'" << 5ULL << QStringList();
    QTest::newRow("method giving none") << "size=lambda: None" << 0ULL << result;
    QTest::newRow("method raising")
        << "size=lambda: 1/0" << 0ULL
        << QStringList{"Internal error: python exception occurred from C code\n"} + result;
    QTest::newRow("method giving a method") << "size=lambda: len" << 0ULL << result;
    QTest::newRow("none") << "size=None" << 0ULL
                          << QStringList{"Internal error: package size not understood"};
    QTest::newRow("missing") << "name='x'" << 0ULL
                             << QStringList{"Internal error: package size not understood"};
    QTest::newRow("too long a str")
        << "size='9'*30" << std::numeric_limits<unsigned long long>::max()
        << QStringList{"Internal error: package size not understood: " + QString(30, '9')};
}

void TestYumIOConvert::sizesOfPackages()
{
    QFETCH(QString, size);
    {
        TestEngine::PyGILStateWrapper const lock(true);
        PyRef const package = engine->object("__import__('types').SimpleNamespace(" + size + ")");
        QTEST(engine->sizeOf(package.get()), "expected");
    }
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOConvert::simpleStringOfAField_data()
{
    QTest::addColumn<QString>("answer"); // the function that answers for the field
    QTest::addColumn<QString>("expected");
    QTest::addColumn<QStringList>("reports");
    QTest::newRow("trailing line feeds") << "lambda key: 'a\\n\\nb\\n\\n'"
                                         << "a\n\nb" << QStringList();
    QTest::newRow("line feeds alone") << "lambda key: '\\n\\n'" << QString() << QStringList();
    QTest::newRow("the key is passed") << "lambda key: key"
                                       << "vendor" << QStringList();
    QTest::newRow("missing") << "{}.__getitem__" << QString() << QStringList();
    QTest::newRow("none") << "lambda key: None" << QString() << QStringList();
    QTest::newRow("empty list") << "lambda key: []" << QString() << QStringList();
    QTest::newRow("list") << "lambda key: ['x']" << QString()
                          << QStringList{
                                 "Internal error: YumIO::pyStringX did not understand non-empty list"};
    QTest::newRow("number") << "lambda key: 5" << QString()
                            << QStringList{"Internal error: YumIO::pyStringX did not understand type"};
    QTest::newRow("raising") << "lambda key: 1/0" << QString()
                             << QStringList{"Internal error: python exception occurred from C code\n"};
    QTest::newRow("no function") << "None" << QString()
                                 << QStringList{"Internal error: method returnSimple not callable\n"};
}

void TestYumIOConvert::simpleStringOfAField()
{
    QFETCH(QString, answer);
    {
        TestEngine::PyGILStateWrapper const lock(true);
        PyRef const package =
            engine->object("__import__('types').SimpleNamespace(returnSimple=" + answer + ")");
        QTEST(engine->simpleString(package.get(), "vendor"), "expected");
    }
    QTEST(boxes->takeTexts(), "reports");
}

void TestYumIOConvert::buildTimeThatIsMissingIsReported()
{
    TestEngine::PyGILStateWrapper const lock(true);
    PyRef const package = engine->object("__import__('types').SimpleNamespace(returnSimple={}.__getitem__)");
    QCOMPARE(engine->buildTimeOf(package.get()), 0);
    QCOMPARE(boxes->takeTexts().constLast(), QStringLiteral("Internal error: time not understood"));
}

void TestYumIOConvert::versionNumbers_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<long>("number");
    QTest::addColumn<bool>("understood");
    auto const row = [](char const* version, long number, bool understood = true) {
        QTest::newRow(version) << version << number << understood;
    };
    row("3.2.19", 30219);
    row("3.2", 30200);
    row("3.2.19.1", 30219);
    row("3.2.19rc1", 30219);
    row("4.14.0", 41400);
    row("3", 30000);
    row("2.x.5", 20005);
    row("", 0);
    row("..", 0);
    row("none at all", 0);
}

void TestYumIOConvert::versionNumbers()
{
    QFETCH(QString, version);
    engine->setVersion(version);
    QTEST(engine->yumVersion(), "number");
    engine->setVersion(QString(30, '9') + ".1.2");
    engine->yumVersion();
    QCOMPARE(
        boxes->takeTexts(),
        QStringList{"Internal error: yum version not understood: " + QString(30, '9') + ".1.2"});
    engine->setVersion("9223372036854775807.9223372036854775807.1");
    engine->yumVersion();
}

void TestYumIOConvert::versionIsReadOnceFromYumElseFromCli()
{
    SCRIPT("import sys, types\nsys.modules['cli'] = types.ModuleType('cli')\nimport cli\n"
           "cli.__version__ = '2.1'\nyum.__version__ = b'2.0.7'");
    engine->yumVersionKnown = false;
    QCOMPARE(engine->yumVersionStr(), QStringLiteral("2.0.7"));
    SCRIPT("del yum.__version__");
    QCOMPARE(engine->yumVersionStr(), QStringLiteral("2.0.7"));
    engine->yumVersionKnown = false;
    QCOMPARE(engine->yumVersionStr(), QStringLiteral("2.1"));
    SCRIPT("yum.__version__ = standin.era.version");
}

void TestYumIOConvert::noVersionCountsAsZero()
{
    SCRIPT("import sys, types\nsys.modules['cli'] = types.ModuleType('cli')\n"
           "globals().pop('cli', None)\ndel yum.__version__");
    engine->setVersion(QString());
    engine->yumVersionKnown = false;
    QCOMPARE(engine->yumVersionStr(), QString());
    QCOMPARE(engine->yumVersion(), 0);
    QVERIFY(!engine->hasDistribGroups());
    QVERIFY(engine->hasTransTest());
    QVERIFY(engine->hasPickledCache());
    SCRIPT("yum.__version__ = standin.era.version");
}

void TestYumIOConvert::featuresFollowTheVersion_data()
{
    QTest::addColumn<bool>("distribGroups");
    QTest::addColumn<bool>("pickledCache");
    QTest::addColumn<bool>("transTest");
    QTest::newRow("2.4.99") << false << true << true;
    QTest::newRow("2.5.0") << true << true << true;
    QTest::newRow("2.9.1") << true << true << true;
    QTest::newRow("2.9.2") << true << false << true;
    QTest::newRow("3.2.2") << true << false << true;
    QTest::newRow("3.2.3") << true << false << false;
}

void TestYumIOConvert::featuresFollowTheVersion()
{
    engine->setVersion(QTest::currentDataTag());
    QTEST(engine->hasDistribGroups(), "distribGroups");
    QTEST(engine->hasPickledCache(), "pickledCache");
    QTEST(engine->hasTransTest(), "transTest");
}

void TestYumIOConvert::onlyTrueItselfIsAYes()
{
    TestEngine::PyGILStateWrapper const lock(true);
    for (auto const& [answer, yes] : {std::pair{"True", true}, {"1", false}, {"False", false}}) {
        engine->sqliteKnown = engine->prestoKnown = false;
        QCOMPARE(
            engine->script(QStringLiteral("usesSqlite = lambda: %1\n"
                                          "standin.instead('usesPresto', lambda: %1)")
                               .arg(answer)),
            QString());
        QCOMPARE(engine->usesSqlite(), yes);
        QCOMPARE(engine->usesPresto(), yes);
        // The answer holds for the process.
        SCRIPT("usesSqlite = lambda: 1/0\nstandin.instead('usesPresto', lambda: 1/0)");
        QCOMPARE(engine->usesSqlite(), yes);
        QCOMPARE(engine->usesPresto(), yes);
    }
}

void TestYumIOConvert::missingQuestionsAreReportedAndCountAsNo()
{
    TestEngine::PyGILStateWrapper const lock(true);
    SCRIPT("del usesSqlite\nstandin.without('usesPresto')");
    QVERIFY(!engine->usesSqlite());
    QVERIFY(!engine->usesPresto());
    QStringList const reports = boxes->takeTexts();
    QVERIFY(reports.contains("Internal error: usesSqlite not found\n"));
    QVERIFY(reports.contains("Internal error: method usesPresto not found\n"));
    QVERIFY(!engine->usesSqlite());
    QVERIFY(!engine->usesPresto());
}

void TestYumIOConvert::askingAFeatureKeepsTheMarkOfTheGuardedCall()
{
    TestEngine::PyGILStateWrapper const lock(true);
    engine->logMark = 7;
    engine->usesSqlite();
    engine->usesPresto();
    QCOMPARE(engine->logMark, 7);
}

QTEST_MAIN(TestYumIOConvert)
#include "tst_yumioconvert.moc"
