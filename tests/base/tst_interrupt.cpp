// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Interrupt.h"
#include "base/StartingPoint.h"
#include "tests/bridge/ChildProcess.h"

#include <QTest>
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

} // namespace

/// Each test in a process of its own, which has no other threads at first.
class InterruptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsTheProcessDespiteAHandlerOfALibrary()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            ::kill(::getpid(), SIGINT);
            return stayAlive();
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void threadsThatBeginLaterLeaveItAlone()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            int answer = 0;
            std::thread([&answer] {
                ::kill(::getpid(), SIGINT);
                answer = stayAlive();
            }).join();
            return answer;
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void doesNotEndAProcessInATransaction()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            Interrupt::transactionBegins("It goes on.\n");
            ::kill(::getpid(), SIGINT);
            return stayAlive();
        });
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 4);
    }

    void isAnsweredOnTheTerminalDuringATransaction()
    {
        int ends[2];
        QCOMPARE(::pipe(ends), 0);
        int const status = statusOfChild([&ends] {
            ::dup2(ends[1], STDERR_FILENO);
            StartingPoint::remember();
            // As an apply does, which captures what is written there.
            ::dup2(::open("/dev/null", O_WRONLY), STDERR_FILENO);
            Interrupt::endAtOnce();
            Interrupt::transactionBegins("It goes on.\n");
            ::kill(::getpid(), SIGINT);
            return stayAlive();
        });
        ::close(ends[1]);
        QVERIFY(WIFEXITED(status));
        char said[64] = {};
        QCOMPARE(::read(ends[0], said, sizeof said - 1), 12);
        QCOMPARE(said, "It goes on.\n");
        ::close(ends[0]);
    }

    void isRememberedOnceForTheEndOfATransaction()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            Interrupt::transactionBegins("");
            ::kill(::getpid(), SIGINT);
            stayAlive();
            bool const first = Interrupt::transactionEnds();
            bool const second = Interrupt::transactionEnds();
            return first && !second ? 0 : 1;
        });
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 0);
    }

    void endsTheProcessAgainBehindATransaction()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            Interrupt::transactionBegins("");
            if (Interrupt::transactionEnds()) {
                return 5;
            }
            ::kill(::getpid(), SIGINT);
            return stayAlive();
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void endingIsDyingOfTheSignalOnAnyThread()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            std::thread([] { Interrupt::end(); }).join();
            return 5;
        });
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
    }

    void forkedProcessesHaveItOpen()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            return WTERMSIG(statusOfChild([] { return ::raise(SIGINT), 0; }));
        });
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), SIGINT);
    }
};

QTEST_GUILESS_MAIN(InterruptTest)
#include "tst_interrupt.moc"
