// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"
#include "engine/Jobs.h"
#include "engine/Script.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

class TestScript final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void lackingFunctionIsUndefined();
    void valuesArriveAsTheyAre_data();
    void valuesArriveAsTheyAre();
    void argumentsArriveAsTheyAre();
    void packageIsTheScriptsOwnObject();
    void otherTypesAreReported_data();
    void otherTypesAreReported();
    void callerReportsWhatMakesNoSense();
    void expectedExceptionIsHeadedByItsFailure();
    void unexpectedExceptionIsReported();
    void failureLeavesNothingBehind();
    void tenThousandItemsAreTaken();
    void stopInTheMiddleIsNoError();
    void textOfTheScriptIsTold();

private:
    Script& script() { return engine->YumIO::script; }
    /// Has the script answer this expression, and calls it.
    std::optional<QJsonValue> answerOf(QString const& expression);
};

namespace
{

QString const unanswered = QStringLiteral("Internal error: execution of yumIO.question failed");

/// In the words of the interchange format, for comparing.
QByteArray words(QJsonValue const& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
}

} // namespace

std::optional<QJsonValue> TestScript::answerOf(QString const& expression)
{
    QString const trouble =
        engine->script(QStringLiteral("standin.instead('question', lambda *given: %1)").arg(expression));
    return trouble.isEmpty() ? script().call("question", {}, "Unable to ask") : std::nullopt;
}

void TestScript::lackingFunctionIsUndefined()
{
    QVERIFY(!script().has("unheardOf"));
    std::optional<QJsonValue> const answer = script().call("unheardOf", {}, "Unable to ask");
    QVERIFY(answer && answer->isUndefined());
    QVERIFY(script().has("collectFileLists"));
}

void TestScript::valuesArriveAsTheyAre_data()
{
    QTest::addColumn<QString>("python");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("none") << "None" << QByteArray("[null]");
    QTest::newRow("truth") << "[True, False]" << QByteArray("[[true,false]]");
    QTest::newRow("numbers") << "[0, -1, 9007199254740993, 0.5]"
                             << QByteArray("[[0,-1,9007199254740993,0.5]]");
    QTest::newRow("text") << "'a text'" << QByteArray("[\"a text\"]");
    QTest::newRow("other letters") << "'Ärger 日本語 😀'" << QByteArray("[\"Ärger 日本語 😀\"]");
    QTest::newRow("no letters") << "'a\\udcffb'"
                                << QByteArray("[\"a\xef\xbf\xbd"
                                              "b\"]");
    QTest::newRow("tuple") << "('a', ('b',), [])" << QByteArray("[[\"a\",[\"b\"],[]]]");
    QTest::newRow("table") << "{'name': 'elm', 'sizes': [1, 2], 'of': {}}"
                           << QByteArray("[{\"name\":\"elm\",\"of\":{},\"sizes\":[1,2]}]");
}

void TestScript::valuesArriveAsTheyAre()
{
    QFETCH(QString const, python);
    std::optional<QJsonValue> const answer = answerOf(python);
    QVERIFY(answer);
    QTEST(words(*answer), "value");
}

void TestScript::argumentsArriveAsTheyAre()
{
    SCRIPT("standin.instead('question', lambda *given: repr(given))");
    std::optional<QJsonValue> const answer = script().call(
        "question",
        {"ein Wörtchen", 7, Q_INT64_C(9007199254740993), 0.5, true, QJsonValue(),
         QJsonArray{"a", QJsonObject{{"b", 1}}}},
        "Unable to ask");
    QVERIFY(answer);
    QCOMPARE(
        answer->toString(),
        QStringLiteral("('ein Wörtchen', 7, 9007199254740993, 0.5, True, None, ['a', {'b': 1}])"));
}

void TestScript::packageIsTheScriptsOwnObject()
{
    QVERIFY(collected());
    SCRIPT("standin.instead('question', lambda package: package.name)");
    std::optional<QJsonValue> const answer = script().call("question", {*package("elm")}, "Unable to ask");
    QVERIFY(answer);
    QCOMPARE(answer->toString(), QStringLiteral("elm"));
}

void TestScript::otherTypesAreReported_data()
{
    QTest::addColumn<QString>("python");
    QTest::newRow("object") << "object()";
    QTest::newRow("bytes") << "b'bytes'";
    QTest::newRow("set") << "{1, 2}";
    QTest::newRow("deep within") << "[{'a': ['b', {'c': object()}]}]";
    QTest::newRow("names that are no texts") << "{1: 2}";
    QTest::newRow("too large a number") << "1 << 64";
    QTest::newRow("holds itself") << "(lambda held: held.append(held) or held)([])";
}

void TestScript::otherTypesAreReported()
{
    QFETCH(QString const, python);
    QVERIFY(!answerOf(python));
    QCOMPARE(boxes->takeTexts(), QStringList{unanswered});
    QCOMPARE(engine->logLines(Log::Error), QStringList{unanswered});
}

void TestScript::callerReportsWhatMakesNoSense()
{
    script().misunderstood("question");
    QCOMPARE(boxes->takeTexts(), QStringList{unanswered});
}

void TestScript::expectedExceptionIsHeadedByItsFailure()
{
    SCRIPT("standin.fail('question', yum.Errors.YumBaseError('the house is locked'))");
    QVERIFY(!script().call("question", {}, "Unable to ask"));
    QCOMPARE(boxes->takeTexts(), QStringList{"the house is locked\nUnable to ask"});
}

void TestScript::unexpectedExceptionIsReported()
{
    SCRIPT("standin.fail('question', KeyError('lost'))");
    QVERIFY(!script().call("question", {}, "Unable to ask"));
    QCOMPARE(boxes->takeTexts().size(), 1);
    QVERIFY(engine->logLines(Log::Error).join('\n').contains("KeyError: 'lost'"));
    // Where nothing is expected, the library's own exceptions are treated alike.
    SCRIPT("standin.fail('question', yum.Errors.YumBaseError('the house is locked'))");
    QVERIFY(!script().call("question", {}, QString()));
    QCOMPARE(boxes->takeTexts().size(), 1);
    QVERIFY(engine->logLines(Log::Error).join('\n').contains("the house is locked"));
}

void TestScript::failureLeavesNothingBehind()
{
    SCRIPT("standin.fail('question', yum.Errors.YumBaseError('the house is locked'))");
    QVERIFY(!script().call("question", {}, "Unable to ask"));
    boxes->take();
    QCOMPARE(engine->logMark, -1);
    std::optional<QJsonValue> const answer = answerOf("'open again'");
    QVERIFY(answer);
    QCOMPARE(answer->toString(), QStringLiteral("open again"));
}

void TestScript::tenThousandItemsAreTaken()
{
    SCRIPT("standin.instead('question', lambda: [{'number': at, 'name': 'Übung %d' % at, 'of': [at]}"
           " for at in range(10000)])");
    std::optional<QJsonValue> answer;
    QVERIFY(engine->jobs.run([&] {
        answer = script().call("question", {}, "Unable to ask");
        return bool(answer);
    }));
    QJsonArray const items = answer->toArray();
    QCOMPARE(items.size(), 10000);
    QCOMPARE(items.last().toObject().value("number").toInt(), 9999);
    QCOMPARE(items.last().toObject().value("name").toString(), QStringLiteral("Übung 9999"));
    QCOMPARE(items.last().toObject().value("of").toArray(), QJsonArray{9999});
}

void TestScript::stopInTheMiddleIsNoError()
{
    SCRIPT("import select\n"
           "def wished(descriptor):\n"
           "    select.select([descriptor], [], [], 30)\n"
           "    raise yum.Errors.YumBaseError('given up')\n"
           "standin.instead('question', wished)");
    Stop::Job const stoppable(engine->stop, Stop::HeededBy::Caller);
    QTimer::singleShot(0, this, [this] { engine->stop.want(); });
    QVERIFY(!engine->jobs.run(
        [this] { return bool(script().call("question", {engine->stop.descriptor()}, "Unable to ask")); }));
    QVERIFY(engine->stop.stopped());
    QVERIFY(engine->logLines(Log::Action).contains("Stopped"));
    QCOMPARE(engine->logLines(Log::Error), QStringList());
}

void TestScript::textOfTheScriptIsTold()
{
    QCOMPARE(script().told("unheardOf"), QString());
    SCRIPT("def motto():\n    return 'Früh übt sich'");
    QCOMPARE(script().told("motto"), QStringLiteral("Früh übt sich"));
    SCRIPT("def motto():\n    return None");
    QVERIFY(script().told("motto").isNull());
    SCRIPT("def motto():\n    raise KeyError('lost')");
    QVERIFY(script().told("motto").isNull());
    QCOMPARE(boxes->takeTexts().size(), 1);
    SCRIPT("del motto");
}

QTEST_MAIN(TestScript)
#include "tst_script.moc"
