// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Interrupt.h"
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

    void belongsToTheHandlerWhileATransactionRuns()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            Interrupt::setTransactionRuns(true);
            ::kill(::getpid(), SIGINT);
            return stayAlive();
        });
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 3);
    }

    void endsTheProcessAgainBehindATransaction()
    {
        int const status = statusOfChild([] {
            Interrupt::endAtOnce();
            std::signal(SIGINT, &takeForItself);
            Interrupt::setTransactionRuns(true);
            ::kill(::getpid(), SIGINT);
            if (stayAlive() != 3) {
                return 5;
            }
            handled = 0;
            Interrupt::setTransactionRuns(false);
            ::kill(::getpid(), SIGINT);
            return stayAlive();
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
