// SPDX-License-Identifier: GPL-2.0-or-later
#include "Worker.h"
#include "services/Log.h"
#include "tests/Eventually.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>
#include <array>
#include <memory>

namespace
{

QStringList texts(Log::EntryList& list)
{
    QMutexLocker<QMutex> const locker(&list);
    QStringList result;
    for (Log::Entry const& entry : std::as_const(list)) {
        result.append(entry.text);
    }
    return result;
}

} // namespace

class TestLog final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindsHaveTheirNumbers();
    void addFilesOneEntryPerLine();
    void trailingLineFeedGivesAnEmptyEntry();
    void emptyTextGivesAnEmptyEntry();
    void errorNumberBehindAColonStartsItsOwnLine_data();
    void errorNumberBehindAColonStartsItsOwnLine();
    void listenersAreToldOncePerAdd();
    void listenersMayTakeTheMutex();

    void lineWaitsForItsLineFeed();
    void pieceWithoutLineFeedTellsNobody();
    void threeLineFeedsGiveThreeEntries();
    void restStaysForTheNextPiece();
    void streamTextIsNotTakenApartAtErrorNumbers();
    void streamsKeepTheirOwnRest();

    void holdTellsListenersOnceAtItsEnd();
    void holdsNest();
    void holdOfAnotherThreadDoesNotCount();

    void writersOnManyThreadsLoseNothing();
    void twoThreadsMayFeedOneStream();
    void hundredThousandLinesAreQuick();
    void longLineInSmallPiecesIsQuick();
};

void TestLog::kindsHaveTheirNumbers()
{
    QCOMPARE(int(Log::Info), 0);
    QCOMPARE(int(Log::Output), 1);
    QCOMPARE(int(Log::Warning), 2);
    QCOMPARE(int(Log::Error), 3);
    QCOMPARE(int(Log::Action), 4);
}

void TestLog::addFilesOneEntryPerLine()
{
    Log::EntryList list;
    list.add(Log::Warning, 3, QStringLiteral("one\ntwo"));
    QCOMPARE(texts(list), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    for (Log::Entry const& entry : std::as_const(list)) {
        QCOMPARE(entry.kind, Log::Warning);
        QCOMPARE(entry.level, 3U);
    }
}

void TestLog::trailingLineFeedGivesAnEmptyEntry()
{
    Log::EntryList list;
    list.add(Log::Info, 0, QStringLiteral("one\n"));
    QCOMPARE(texts(list), QStringList({QStringLiteral("one"), QString()}));
}

void TestLog::emptyTextGivesAnEmptyEntry()
{
    Log::EntryList list;
    list.add(Log::Info, 0, QString());
    QCOMPARE(texts(list), QStringList({QString()}));
}

void TestLog::errorNumberBehindAColonStartsItsOwnLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("colon and blank") << QStringLiteral("http://a/b: [Errno 14] HTTP Error 404")
                                     << QStringList({"http://a/b:", "[Errno 14] HTTP Error 404"});
    QTest::newRow("twice") << QStringLiteral("a: [Errno 4] b: [Errno 12] c")
                           << QStringList({"a:", "[Errno 4] b:", "[Errno 12] c"});
    QTest::newRow("no number") << QStringLiteral("a: [Errno ] b") << QStringList({"a:", "[Errno ] b"});
    QTest::newRow("no colon") << QStringLiteral("a [Errno 4] b") << QStringList({"a [Errno 4] b"});
    QTest::newRow("no blank behind") << QStringLiteral("a: [Errno 4]b") << QStringList({"a: [Errno 4]b"});
    QTest::newRow("case") << QStringLiteral("a: [errno 4] b") << QStringList({"a: [errno 4] b"});
}

void TestLog::errorNumberBehindAColonStartsItsOwnLine()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    Log::EntryList list;
    list.add(Log::Error, 0, text);
    QCOMPARE(texts(list), lines);
}

void TestLog::listenersAreToldOncePerAdd()
{
    Log::EntryList list;
    QSignalSpy const spy(&list, &Log::EntryList::appended);
    list.add(Log::Info, 0, QStringLiteral("one\ntwo\nthree"));
    QCOMPARE(spy.count(), 1);
    list.emitAppended();
    QCOMPARE(spy.count(), 2);
}

void TestLog::listenersMayTakeTheMutex()
{
    Log::EntryList list;
    bool taken = false;
    connect(&list, &Log::EntryList::appended, this, [&] {
        taken = list.tryLock();
        if (taken) {
            list.unlock();
        }
    });
    list.add(Log::Info, 0, QStringLiteral("one"));
    QVERIFY(taken);
    taken = false;
    QString buffer;
    list.addStream(QStringLiteral("two\n"), Log::Info, 0, buffer);
    QVERIFY(taken);
}

void TestLog::lineWaitsForItsLineFeed()
{
    Log::EntryList list;
    QString buffer;
    list.addStream(QStringLiteral("first half"), Log::Output, 0, buffer);
    QVERIFY(list.isEmpty());
    QCOMPARE(buffer, QStringLiteral("first half"));
    list.addStream(QStringLiteral(", second half\n"), Log::Output, 0, buffer);
    QCOMPARE(texts(list), QStringList({QStringLiteral("first half, second half")}));
    QCOMPARE(list.constFirst().kind, Log::Output);
    QVERIFY(buffer.isEmpty());
}

void TestLog::pieceWithoutLineFeedTellsNobody()
{
    Log::EntryList list;
    QString buffer;
    QSignalSpy const spy(&list, &Log::EntryList::appended);
    list.addStream(QStringLiteral("half"), Log::Output, 0, buffer);
    QCOMPARE(spy.count(), 0);
    list.addStream(QStringLiteral("\nand\nhalf"), Log::Output, 0, buffer);
    QCOMPARE(spy.count(), 1);
}

void TestLog::threeLineFeedsGiveThreeEntries()
{
    Log::EntryList list;
    QString buffer;
    list.addStream(QStringLiteral("\n\n\n"), Log::Output, 0, buffer);
    QCOMPARE(texts(list), QStringList({QString(), QString(), QString()}));
    buffer = QStringLiteral("begun");
    list.clear();
    list.addStream(QStringLiteral("\n\n\n"), Log::Output, 0, buffer);
    QCOMPARE(texts(list), QStringList({QStringLiteral("begun"), QString(), QString()}));
}

void TestLog::restStaysForTheNextPiece()
{
    Log::EntryList list;
    QString buffer;
    list.addStream(QStringLiteral("one\ntwo\nthr"), Log::Error, 4, buffer);
    QCOMPARE(texts(list), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    QCOMPARE(buffer, QStringLiteral("thr"));
    QCOMPARE(list.constLast().level, 4U);
    list.addStream(QStringLiteral("ee\n"), Log::Error, 4, buffer);
    QCOMPARE(list.constLast().text, QStringLiteral("three"));
}

void TestLog::streamTextIsNotTakenApartAtErrorNumbers()
{
    Log::EntryList list;
    QString buffer;
    list.addStream(QStringLiteral("a: [Errno 4] b\n"), Log::Error, 0, buffer);
    QCOMPARE(texts(list), QStringList({QStringLiteral("a: [Errno 4] b")}));
}

void TestLog::streamsKeepTheirOwnRest()
{
    Log::EntryList list;
    QString out;
    QString err;
    list.addStream(QStringLiteral("out"), Log::Output, 0, out);
    list.addStream(QStringLiteral("err\n"), Log::Error, 0, err);
    list.addStream(QStringLiteral("put\n"), Log::Output, 0, out);
    QCOMPARE(texts(list), QStringList({QStringLiteral("err"), QStringLiteral("output")}));
}

void TestLog::holdTellsListenersOnceAtItsEnd()
{
    Log::EntryList list;
    Log::EntryList silent;
    QSignalSpy const spy(&list, &Log::EntryList::appended);
    QSignalSpy const silentSpy(&silent, &Log::EntryList::appended);
    {
        Log::AppendedHold const hold;
        list.add(Log::Info, 0, QStringLiteral("one"));
        list.add(Log::Info, 0, QStringLiteral("two"));
        QCOMPARE(list.count(), 2);
        QCOMPARE(spy.count(), 0);
    }
    QCOMPARE(spy.count(), 1);
    QCOMPARE(silentSpy.count(), 0);
    list.add(Log::Info, 0, QStringLiteral("three"));
    QCOMPARE(spy.count(), 2);
}

void TestLog::holdsNest()
{
    Log::EntryList list;
    QSignalSpy const spy(&list, &Log::EntryList::appended);
    {
        Log::AppendedHold const outer;
        {
            Log::AppendedHold const inner;
            list.add(Log::Info, 0, QStringLiteral("one"));
        }
        QCOMPARE(spy.count(), 0);
    }
    QCOMPARE(spy.count(), 1);
}

void TestLog::holdOfAnotherThreadDoesNotCount()
{
    Log::EntryList list;
    QSignalSpy const spy(&list, &Log::EntryList::appended);
    Log::AppendedHold const hold;
    std::unique_ptr<QThread> const thread(
        QThread::create([&list] { list.add(Log::Info, 0, QStringLiteral("one")); }));
    thread->start();
    QVERIFY(thread->wait(10000));
    EVENTUALLY_COMPARE(spy.count(), 1);
}

void TestLog::writersOnManyThreadsLoseNothing()
{
    constexpr int perThread = 2000;
    Log::EntryList list;
    std::array<std::unique_ptr<QThread>, 4> threads;
    for (std::size_t number = 0; number < threads.size(); ++number) {
        threads[number].reset(QThread::create([&list, number] {
            for (int line = 0; line < perThread; ++line) {
                list.add(Log::Info, unsigned(number), QString::number(line));
            }
        }));
        threads[number]->start();
    }
    for (auto const& thread : threads) {
        QVERIFY(thread->wait(60000));
    }
    QCOMPARE(list.count(), qsizetype(threads.size()) * perThread);
    std::array<int, 4> next{};
    for (Log::Entry const& entry : std::as_const(list)) {
        QCOMPARE(entry.text.toInt(), next[entry.level]++);
    }
}

void TestLog::twoThreadsMayFeedOneStream()
{
    constexpr int perThread = 5000;
    Log::EntryList list;
    QString buffer;
    auto const feed = [&] {
        for (int line = 0; line < perThread; ++line) {
            list.addStream(QStringLiteral("a whole line\n"), Log::Output, 0, buffer);
        }
    };
    std::unique_ptr<QThread> const other(QThread::create(feed));
    other->start();
    feed();
    QVERIFY(other->wait(60000));
    QCOMPARE(list.count(), 2 * perThread);
    QCOMPARE(texts(list).count(QStringLiteral("a whole line")), 2 * perThread);
}

void TestLog::hundredThousandLinesAreQuick()
{
    Log::EntryList list;
    QString buffer;
    QElapsedTimer timer;
    timer.start();
    for (int line = 0; line < 100'000; ++line) {
        list.add(Log::Info, 2, QStringLiteral("Checking for virtual provide or file-provide for line"));
    }
    list.add(Log::Info, 2, QString(100'000, u'\n'));
    list.addStream(QString(100'000, u'\n'), Log::Output, 0, buffer);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(list.count(), 300'001);
}

void TestLog::longLineInSmallPiecesIsQuick()
{
    Log::EntryList list;
    QString buffer;
    QElapsedTimer timer;
    timer.start();
    for (int piece = 0; piece < 300'000; ++piece) {
        list.addStream(QStringLiteral("#"), Log::Output, 0, buffer);
    }
    list.addStream(QStringLiteral("\n"), Log::Output, 0, buffer);
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(list.constLast().text.size(), 300'000);
}

QTEST_MAIN(TestLog)
#include "tst_log.moc"
