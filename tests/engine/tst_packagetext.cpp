// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/PackageText.h"

#include <QTest>
#include <memory>
#include <thread>
#include <vector>

using Package::Text;

namespace
{

QStringList const samples{
    "",
    "a",
    "ab",
    "b",
    "B",
    "lib-0:1.2-3",
    QString(1, QChar(0)),
    QString("a") + QChar(0) + "b",
    QString(QChar(0x7f)),
    QString(QChar(0x80)),
    QString(QChar(0xfc)),
    QString(QChar(0x7ff)),
    QString(QChar(0x800)),
    QString(QChar(0xd7ff)),
    QString(QChar(0xe000)),
    QString(QChar(0xfffd)),
    QString::fromUcs4(U"\U00010000"),
    QString::fromUcs4(U"\U0001f600"),
    QString::fromUcs4(U"\U0010ffff"),
    QString(1024, 'x'),
    QString(1025, 'x'),
    QString(0xfffe, 'y'),
    QString(0xffff, 'y'),
    QString(0x10001, 'y') + QChar(0xfc),
};

int sign(int number)
{
    return (number > 0) - (number < 0);
}

} // namespace

class TestPackageText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void givesBackWhatItWasMadeOf()
    {
        std::vector<Text> texts;
        for (int turn = 0; turn < 100; ++turn) {
            for (QString const& sample : samples) {
                texts.emplace_back(sample);
            }
        }
        for (std::size_t at = 0; at < texts.size(); ++at) {
            QString const sample = samples[static_cast<qsizetype>(at) % samples.size()];
            QVERIFY(texts[at].toString() == sample);
            QCOMPARE(texts[at].isEmpty(), sample.isEmpty());
            QCOMPARE(texts[at].utf8().size(), static_cast<std::size_t>(sample.toUtf8().size()));
        }
    }

    void comparesAsTheStringsDo()
    {
        for (QString const& left : samples) {
            for (QString const& right : samples) {
                QCOMPARE(sign(Text(left).compare(Text(right))), sign(left.compare(right)));
                QCOMPARE(Text(left) == Text(right), left == right);
                QCOMPARE(Text(left) < Text(right), left < right);
                QCOMPARE(Text(left) == right, left == right);
                if (left == right) {
                    QCOMPARE(qHash(Text(left), 7), qHash(Text(right), 7));
                }
            }
        }
    }

    void halfACharacterIsNotKept()
    {
        Text const text(QString(QChar(0xd83d)) + 'a');
        QVERIFY(text.utf8().ends_with('a'));
        QVERIFY(text.toString().isValidUtf16());
        QVERIFY(Text(text.toString()) == text);
    }

    void copiesOutliveWhatTheyWereMadeFrom()
    {
        for (QString const& sample : samples) {
            auto first = std::make_unique<Text>(sample);
            Text copy(*first);
            Text assigned("else");
            assigned = copy;
            first.reset();
            Text const moved(std::move(copy));
            QVERIFY(moved.toString() == sample);
            QVERIFY(assigned.toString() == sample);
            assigned.clear();
            QVERIFY(assigned.isEmpty());
            QVERIFY(moved.toString() == sample);
        }
    }

    void outlivesTheThreadThatMadeIt()
    {
        std::vector<Text> made;
        std::thread([&made] {
            for (int number = 0; number < 5000; ++number) {
                made.emplace_back(QString::number(number));
            }
        }).join();
        std::vector<std::thread> readers;
        std::vector<int> wrong(4);
        for (int& count : wrong) {
            readers.emplace_back([&made, &count] {
                std::vector<Text> const copies = made;
                for (std::size_t at = 0; at < copies.size(); ++at) {
                    count += copies[at].toString() != QString::number(at);
                }
            });
        }
        for (std::thread& reader : readers) {
            reader.join();
        }
        QCOMPARE(wrong, std::vector<int>(4));
    }

    void aSetFindsATextByItsLetters()
    {
        Package::TextSet set;
        set.insert(Text("noarch"));
        QVERIFY(set.find(std::string_view("noarch")) != set.end());
        QVERIFY(set.find(std::string_view("noarc")) == set.end());
        QVERIFY(!set.insert(Text("noarch")).second);
    }
};

QTEST_GUILESS_MAIN(TestPackageText)
#include "tst_packagetext.moc"
