// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Interrupt.h"

#include "base/StartingPoint.h"
#include "tests/bridge/ChildProcess.h"

#include <QTest>
#include <functional>
#include <map>
#include <string>
#include <thread>

namespace
{

volatile std::sig_atomic_t handled = 0;

void takeForItself(int)
{
    handled = 1;
}

/// Long enough for a signal that has been sent; a process that it doesn't end tells so by its status.
int stayAlive()
{
    for (int round = 0; round < 2000 && !handled; ++round) {
        ::usleep(1000);
    }
    return handled ? 3 : 4;
}

int interruptedBehindAHandlerOfALibrary()
{
    Interrupt::endAtOnce();
    std::signal(SIGINT, &takeForItself);
    ::kill(::getpid(), SIGINT);
    return stayAlive();
}

int interruptedByAThreadThatBeganLater()
{
    Interrupt::endAtOnce();
    std::signal(SIGINT, &takeForItself);
    int answer = 0;
    std::thread([&answer] {
        ::kill(::getpid(), SIGINT);
        answer = stayAlive();
    }).join();
    return answer;
}

int interruptedInATransaction()
{
    StartingPoint::remember();
    // As an apply does, which captures what is written there.
    ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
    Interrupt::endAtOnce();
    std::signal(SIGINT, &takeForItself);
    Interrupt::transactionBegins("It goes on.\n");
    ::kill(::getpid(), SIGINT);
    return stayAlive();
}

int toldOnceBehindATransaction()
{
    Interrupt::endAtOnce();
    Interrupt::transactionBegins("");
    ::kill(::getpid(), SIGINT);
    stayAlive();
    bool const first = Interrupt::transactionEnds();
    bool const second = Interrupt::transactionEnds();
    return first && !second ? 0 : 1;
}

int interruptedBehindATransaction()
{
    Interrupt::endAtOnce();
    std::signal(SIGINT, &takeForItself);
    Interrupt::transactionBegins("");
    if (Interrupt::transactionEnds()) {
        return 5;
    }
    ::kill(::getpid(), SIGINT);
    return stayAlive();
}

int endedByAnotherThread()
{
    Interrupt::endAtOnce();
    std::signal(SIGINT, &takeForItself);
    std::thread([] { Interrupt::end(); }).join();
    return 5;
}

int forkedAndInterrupted()
{
    Interrupt::endAtOnce();
    return WTERMSIG(statusOfChild([] { return ::raise(SIGINT), 0; }));
}

/// What this program does when it is started with one of these names.
std::map<std::string, int (*)()> const deeds{
    {"interruptedBehindAHandlerOfALibrary", &interruptedBehindAHandlerOfALibrary},
    {"interruptedByAThreadThatBeganLater", &interruptedByAThreadThatBeganLater},
    {"interruptedInATransaction", &interruptedInATransaction},
    {"toldOnceBehindATransaction", &toldOnceBehindATransaction},
    {"interruptedBehindATransaction", &interruptedBehindATransaction},
    {"endedByAnotherThread", &endedByAnotherThread},
    {"forkedAndInterrupted", &forkedAndInterrupted},
};

/// How the program ends when it is started with that name, as waitpid tells it. A process of its own, since
/// one that is only forked cannot well start threads.
int statusOf(char const* deed, int errors = -1)
{
    return statusOfChild([deed, errors] {
        if (errors >= 0) {
            ::dup2(errors, STDERR_FILENO);
        }
        ::execl("/proc/self/exe", "tst_interrupt", deed, nullptr);
        return 6;
    });
}

} // namespace

class InterruptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheProcessDespiteAHandlerOfALibrary()
    {
        int const status = statusOf("interruptedBehindAHandlerOfALibrary");
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void threadsThatBeginLaterLeaveItAlone()
    {
        int const status = statusOf("interruptedByAThreadThatBeganLater");
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void isAnsweredOnTheTerminalDuringATransactionAndEndsNothing()
    {
        int ends[2];
        QCOMPARE(::pipe2(ends, O_CLOEXEC), 0);
        int const status = statusOf("interruptedInATransaction", ends[1]);
        ::close(ends[1]);
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 4);
        char said[64] = {};
        QCOMPARE(::read(ends[0], said, sizeof said - 1), 12);
        QCOMPARE(said, "It goes on.\n");
        ::close(ends[0]);
    }

    void isRememberedOnceForTheEndOfATransaction()
    {
        int const status = statusOf("toldOnceBehindATransaction");
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
    }

    void endsTheProcessAgainBehindATransaction()
    {
        int const status = statusOf("interruptedBehindATransaction");
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void endingIsDyingOfTheSignalOnAnyThread()
    {
        int const status = statusOf("endedByAnotherThread");
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void forkedProcessesHaveItOpen()
    {
        int const status = statusOf("forkedAndInterrupted");
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), SIGINT);
    }
};

int main(int argc, char** argv)
{
    auto const deed = deeds.find(argc == 2 ? argv[1] : "");
    if (deed != deeds.end()) {
        return deed->second();
    }
    InterruptTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_interrupt.moc"
