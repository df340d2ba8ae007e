// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"

#include "base/Application.h"
#include "services/Progress.h"

#include <QApplication>
#include <QMutexLocker>
#include <QThread>

TestEngine::TestEngine()
{
    // A job makes its progress right before its first line in the log.
    connect(
        &logEntries, &Log::EntryList::appended, this,
        [this] {
            bool const onWorker = QThread::currentThread() != application->thread();
            if (onWorker && jobs.progress && jobs.progress != followed) {
                followed = jobs.progress;
                progressRecord.follow(jobs.progress);
            }
        },
        Qt::DirectConnection);
}

QString TestEngine::script(QString const& statements)
{
    PyGILStateWrapper const lock(true);
    return pyStringDec(pyCall("standin.run", "(s)", statements.toUtf8().constData()));
}

QString TestEngine::value(QString const& expression)
{
    PyGILStateWrapper const lock(true);
    return pyStringDec(pyCall("standin.value", "(s)", expression.toUtf8().constData()));
}

PyRef TestEngine::object(QString const& expression)
{
    return pyr(expression.toUtf8().constData());
}

QStringList TestEngine::calls()
{
    return value(QStringLiteral("'\\n'.join(standin.calls)")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void TestEngine::setVersion(QString const& version)
{
    yumVersionKnown = true;
    yumVersionText = version;
}

void TestEngine::reset()
{
    {
        PyGILStateWrapper const lock(true);
        pyCall("standin.reset", "()");
        if (versionOfEra.isNull()) {
            versionOfEra = yumVersionStr();
        }
    }
    setVersion(versionOfEra);
    clear();
    fileListsCollected = false;
    otherDataCollected = false;
    locked = false;
    sqliteKnown = false;
    prestoKnown = false;
    logMark = -1;
    repoNames.clear();
    repoContents.clear();
    repoAct = 0;
    repoActTotal = 0;
    repoActName.clear();
    stdoutBuffer.clear();
    stderrBuffer.clear();
    run = ApplyRun();
    progressRecord.lines.clear();
    script(QStringLiteral("standin.calls.clear()"));
    QMutexLocker const locker(&logEntries);
    logEntries.clear();
}

QStringList TestEngine::logLines() const
{
    QStringList lines;
    for (Log::Entry const& entry : logEntries) {
        lines.append(entry.level ? QStringLiteral("%1 (%2)").arg(entry.text).arg(entry.level) : entry.text);
    }
    return lines;
}

QStringList TestEngine::logLines(Log::Kind kind) const
{
    QStringList const all = logLines();
    QStringList lines;
    for (qsizetype at = 0; at < all.size(); ++at) {
        if (logEntries.at(at).kind == kind) {
            lines.append(all.at(at));
        }
    }
    return lines;
}

QString EngineTest::era()
{
    return qEnvironmentVariable("VEM_TEST_ERA", QStringLiteral("3.2.19"));
}

bool EngineTest::collected()
{
    bool const done = engine->collect({});
    engine->progressRecord.lines.clear();
    engine->script(QStringLiteral("standin.calls.clear()"));
    QMutexLocker const locker(&engine->logEntries);
    engine->logEntries.clear();
    return done;
}

QStringList EngineTest::told(std::function<void(Progress&)> const& drive) const
{
    ProgressRecord record;
    Progress model(totalBar.get(), itemBar.get());
    record.follow(&model);
    model.setupItemActs(actSteps, actCount);
    drive(model);
    return record.lines;
}

void EngineTest::startProgress(Steps steps, Steps acts)
{
    actSteps = steps;
    actCount = acts;
    progressUser = std::make_unique<ProgressUser>(engine->jobs.progress, totalBar.get(), itemBar.get());
    engine->progressRecord.follow(engine->jobs.progress);
    engine->jobs.progress->setupItemActs(steps, acts);
}

void EngineTest::initTestCase()
{
    application = qobject_cast<QApplication*>(QCoreApplication::instance());
    qputenv("VEMSHARE", QByteArray(VEM_TEST_SOURCE "/standins/") + era().toLatin1());
    // Times are told in local time.
    qputenv("TZ", "UTC");
    boxes = std::make_unique<Boxes>();
    totalBar = std::make_unique<HProgressBar>();
    itemBar = std::make_unique<HProgressBar>();
    engine = std::make_unique<TestEngine>();
    engine->setup(nullptr, totalBar.get(), itemBar.get());
    QVERIFY2(engine->initialize(), qPrintable(engine->logLines().join(QLatin1Char('\n'))));
}

void EngineTest::init()
{
    engine->reset();
    boxes->take();
}

void EngineTest::cleanup()
{
    progressUser.reset();
    actSteps = actCount = 0;
    QCOMPARE(boxes->takeTexts(), QStringList());
}

void EngineTest::cleanupTestCase()
{
    engine.reset();
    boxes.reset();
}
