// SPDX-License-Identifier: GPL-2.0-or-later
#include "base/Parallel.h"

#include <QTest>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

class TestParallel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void coversEachNumberOnce_data()
    {
        QTest::addColumn<int>("count");
        for (int const count : {0, 1, 2, 2047, 4095, 4096, 4097, 66000, 200001}) {
            QTest::addRow("%d", count) << count;
        }
    }

    void coversEachNumberOnce()
    {
        QFETCH(int const, count);
        std::vector<int> calls(static_cast<std::size_t>(count));
        Parallel::forParts(calls.size(), [&](std::size_t begin, std::size_t end) {
            for (std::size_t i = begin; i < end; ++i) {
                ++calls[i];
            }
        });
        QCOMPARE(calls, std::vector<int>(calls.size(), 1));
    }

    void fewNumbersStayOnThisThread()
    {
        std::vector<std::thread::id> threads;
        Parallel::forParts(
            1000, [&](std::size_t, std::size_t) { threads.push_back(std::this_thread::get_id()); });
        QCOMPARE(threads.size(), std::size_t(1));
        QVERIFY(threads.front() == std::this_thread::get_id());
    }

    void manyNumbersUseSeveralThreads()
    {
        if (std::thread::hardware_concurrency() < 2) {
            QSKIP("one processor");
        }
        std::mutex mutex;
        std::set<std::thread::id> threads;
        Parallel::forParts(66000, [&](std::size_t, std::size_t) {
            std::lock_guard const guard(mutex);
            threads.insert(std::this_thread::get_id());
        });
        QVERIFY(threads.size() > 1);
        QVERIFY(threads.contains(std::this_thread::get_id()));
    }
};

QTEST_MAIN(TestParallel)
#include "tst_parallel.moc"
