// SPDX-License-Identifier: GPL-2.0-or-later
#include "EngineTest.h"
#include "base/Application.h"
#include "bridge/Python.h"
#include "engine/Jobs.h"
#include "services/YumIODialogs.h"

#include <QThread>
#include <QTimer>

class TestJobs final : public EngineTest
{
    Q_OBJECT

private Q_SLOTS:
    void answersWhatTheJobAnswers();
    void jobRunsOnAWorkerWithItsMeans();
    void nothingIsAtHandBetweenJobs();
    void otherJobMeanwhileIsNotStarted();
    void windowServesEventsMeanwhile();
    void dialogOfAJobIsAnsweredByTheUser();
    void jobIsStoppedByTheUser();
    void jobWithoutMeansHasNoProgress();
    void briefJobIsOverBeforeAnybodyIsToldThatItLasts();
    void jobThatLastsIsToldOnceAndServesEvents();
    void briefJobIsNotStartedBesideAnother();
};

void TestJobs::answersWhatTheJobAnswers()
{
    QVERIFY(engine->jobs.run([] { return true; }));
    QVERIFY(!engine->jobs.run([] { return false; }));
    QVERIFY(engine->jobs.runBare([] { return true; }));
    QVERIFY(!engine->jobs.runBare([] { return false; }));
}

void TestJobs::jobRunsOnAWorkerWithItsMeans()
{
    bool elsewhere = false;
    bool progress = false;
    bool dialogs = false;
    QString told;
    YumIODialogs const* const outside = engine->jobs.dialogs;
    QVERIFY(engine->jobs.run([&] {
        elsewhere = QThread::currentThread() != application->thread();
        progress = engine->jobs.progress != nullptr;
        dialogs = engine->jobs.dialogs && engine->jobs.dialogs != outside;
        told = engine->value("'of the ' + 'script'");
        return engine->jobs.running();
    }));
    QVERIFY(elsewhere && progress && dialogs);
    QCOMPARE(told, QStringLiteral("of the script"));
}

void TestJobs::nothingIsAtHandBetweenJobs()
{
    YumIODialogs const* const outside = engine->jobs.dialogs;
    engine->jobs.run([] { return true; });
    QVERIFY(!engine->jobs.running());
    QVERIFY(!engine->jobs.progress);
    QVERIFY(!engine->jobs.capturers);
    QVERIFY(outside);
    QCOMPARE(engine->jobs.dialogs, outside);
}

void TestJobs::otherJobMeanwhileIsNotStarted()
{
    std::atomic<bool> tried{false};
    bool second = false;
    bool answer = true;
    QTimer::singleShot(0, this, [&] {
        answer = engine->jobs.run([&] { return second = true; });
        tried = true;
    });
    QVERIFY(engine->jobs.runBare([&] {
        while (!tried) {
            QThread::msleep(1);
        }
        return true;
    }));
    QVERIFY(!answer);
    QVERIFY(!second);
    QVERIFY(engine->jobs.run([] { return true; }));
}

void TestJobs::windowServesEventsMeanwhile()
{
    std::atomic<int> served{0};
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { ++served; });
    timer.start(1);
    QVERIFY(engine->jobs.runBare([&] {
        for (int patience = 0; served < 3 && patience < 30000; ++patience) {
            QThread::msleep(1);
        }
        return served >= 3;
    }));
}

void TestJobs::dialogOfAJobIsAnsweredByTheUser()
{
    boxes->press({"No"});
    int answer = 0;
    engine->jobs.run([&] {
        answer = engine->jobs.dialogs->warning("A caption", "A question", "Yes", "No", QString(), 0, 1);
        return true;
    });
    QCOMPARE(answer, 1);
    QCOMPARE(boxes->take(), (QList<Boxes::Box>{{"A caption", "A question", {"Yes", "No"}}}));
}

void TestJobs::jobIsStoppedByTheUser()
{
    Stop::Job const stoppable(engine->stop, Stop::HeededBy::Caller);
    QTimer::singleShot(0, this, [this] { engine->stop.want(); });
    QVERIFY(engine->jobs.runBare([this] {
        for (int patience = 0; !engine->stop.stopped() && patience < 30000; ++patience) {
            QThread::msleep(1);
        }
        return engine->stop.stopped();
    }));
}

void TestJobs::jobWithoutMeansHasNoProgress()
{
    YumIODialogs const* const outside = engine->jobs.dialogs;
    QVERIFY(engine->jobs.runBare([&] { return !engine->jobs.progress && engine->jobs.dialogs == outside; }));
}

void TestJobs::briefJobIsOverBeforeAnybodyIsToldThatItLasts()
{
    bool lasted = false;
    for (int time = 0; time < 200; ++time) {
        QVERIFY(engine->jobs.runBriefly([] { return true; }, [&] { lasted = true; }));
    }
    QVERIFY(!engine->jobs.runBriefly([] { return false; }, [&] { lasted = true; }));
    QVERIFY(!lasted);
    QVERIFY(!engine->jobs.running());
}

void TestJobs::jobThatLastsIsToldOnceAndServesEvents()
{
    int lasts = 0;
    std::atomic<int> served{0};
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { served += lasts; });
    timer.start(1);
    QVERIFY(engine->jobs.runBriefly(
        [&] {
            for (int patience = 0; served < 3 && patience < 30000; ++patience) {
                QThread::msleep(1);
            }
            return served >= 3;
        },
        [&] { ++lasts; }));
    QCOMPARE(lasts, 1);
}

void TestJobs::briefJobIsNotStartedBesideAnother()
{
    std::atomic<bool> tried{false};
    bool answer = true;
    QTimer::singleShot(0, this, [&] {
        answer = engine->jobs.runBriefly([] { return true; }, [] {});
        tried = true;
    });
    QVERIFY(engine->jobs.runBare([&] {
        while (!tried) {
            QThread::msleep(1);
        }
        return true;
    }));
    QVERIFY(!answer);
}

QTEST_MAIN(TestJobs)
#include "tst_jobs.moc"
